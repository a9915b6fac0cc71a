// Trelmic6: the utilities that the controls share. What needs the system goes through the desktop's roles; the rest
// are pure functions. Each operation is told here once, with what it does at its edges.
#pragma once

#include "platform/desktop.h"
#include "platform/listbox.h"
#include "platform/numbers.h"
#include "platform/sounds.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vorlane {

enum class PathKind : int16_t { File = 0, Folder = 1 };

// What FilePart gives of a path.
enum class PathPart : int16_t {
    FileName = 2,   // without folder, empty when it has no extension ("name." gives "name.")
    Extension = 3,  // without the point
    BaseName = 4,   // without folder, extension and its point, also of a name without extension; what a rename edits
};

class Trelmic6 {
public:
    explicit Trelmic6(const Desktop& desktop) : desktop_(desktop) {}

    // --- Keyboard, pointer, colours ---
    bool KeyIsDown(int32_t virtualKey) const { return desktop_.keyboard.KeyIsDown(virtualKey); }
    // Both coordinates -99: only asks. Otherwise puts the pointer there first. Returns where it is, screen pixels.
    Point CursorPos(int32_t x = -99, int32_t y = -99) const;
    OLE_COLOR SysColor(int32_t number) const { return desktop_.screen.SysColor(number); }
    // A system colour is resolved in the present theme.
    Rgb ColorToRgb(OLE_COLOR color) const;
    // The resolved colour with an amount added to each part; each part stays within 0 to 255.
    OLE_COLOR ColorShift(OLE_COLOR color, int32_t red, int32_t green, int32_t blue) const;

    // --- Paths ---
    // Both "/" and "\" end a folder. The extension of a name is what stands behind its last point; points at the very
    // front start no extension. So "a.tar.gz" has "gz", "name." an empty one, ".profile" and "name" have none.
    // An unknown part gives an empty text.
    static std::string FilePart(std::string_view path, PathPart part);
    // The file name without folder, whatever its extension.
    static std::string FileName(std::string_view path);
    // By extension, in any case: 0 a picture, 1 a sound, 2 a video, 3 a document, 5 anything else. A name without
    // extension, or with an empty one, counts as a picture, for only its content can tell.
    //   0: avif bmp dib gif heic heif ico jfif jpe jpeg jpg jxl pbm pgm png pnm ppm svg svgz tga tif tiff webp xbm xpm
    //   1: aac aif aiff flac m4a mid midi mp3 oga ogg opus wav wma
    //   2: 3gp avi flv m2ts m4v mkv mov mp4 mpeg mpg mts ogv webm wmv
    //   3: csv doc docx htm html md odp ods odt pdf ppt pptx rtf txt xls xlsx
    static int16_t FileKind(std::string_view path);
    // The extensions of a kind, in small letters; none of kind 5.
    static std::span<const std::string_view> ExtensionsOf(int16_t kind);
    // Follows links. A file is a regular one. Anything that can't be looked at does not exist.
    static bool PathExists(const std::string& path, PathKind kind);
    // A folder without doubled separators and with one at its end; an empty text stays empty and "/" stays "/". The
    // separator is "/"; in a text that holds "\" and no "/" it is "\", and a doubled one in front, which starts the
    // name of a server, stays.
    static std::string NormalizePath(std::string_view folder);
    // kind 0: the file's last modification; any other: its creation, or the earliest date known of it where the system
    // keeps none. As "yyyy-mm-dd hh:nn:ss", local time. Fails with FileNotFound().
    static std::string FileDateText(const std::string& path, int16_t kind);
    // Now, as "hh:nn:ss", local time.
    static std::string TimeOfDayText();
    // Bytes. Fails with FileNotFound(), for a folder too.
    static uint64_t FileLength(const std::string& path);
    // The key of a typed character, or 0 for one that a file name can't hold: / \ : * ? " < > | and control codes,
    // but for those that are commands of an edit box: 1 select all, 3 copy, 8 backspace, 22 paste, 24 cut, 26 undo.
    static int16_t FilterNameKey(int16_t keyAscii);

    // --- Texts ---
    // The n-th piece, from 1, of text cut at separator; empty for any other n. An empty separator cuts nothing.
    static std::string FieldAt(std::string_view text, int32_t n, std::string_view separator);
    // The same as a part of text, which it stays.
    static std::string_view FieldViewAt(std::string_view text, int32_t n, std::string_view separator);
    // How many separators text holds; an empty separator is nowhere.
    static int32_t CountOf(std::string_view text, std::string_view separator);
    // Small letters of the Latin (full width too; not the rare ones of U+0180 to U+024F whose pairs don't stand
    // together), Greek (without accents of old), Cyrillic and Armenian alphabets, letter by letter in UTF-8, whatever
    // the locale. Everything else, also bytes that are no UTF-8, stays as it is.
    static std::string LowerCase(std::string_view text);
    // withUnits false: "m:ss", or "h:mm:ss" from an hour on. withUnits true: "2 h 05 min 09 s", without the units in
    // front that are zero: "5 min 09 s", "9 s". Negative seconds get a leading "-".
    static std::string SecondsToText(int32_t seconds, bool withUnits);
    // The text of a message number in the user's language; ResMissing() for an unknown number.
    std::string ResText(std::string_view number) const;
    static std::string ResMissing() { return "?"; }

    // --- Lists ---
    // First index whose ItemData is the number that keyText spells; -1 for none, or when it spells no number.
    // The separator between an item's sort data and its file name has no part in it.
    static int32_t FindListItem(const ListBox& list, std::string_view keyText, std::string_view separator);

    // --- Pictures and sounds ---
    std::optional<Picture> LoadImageFile(const std::string& path) const {
        return desktop_.pictures.LoadImageFile(path);
    }
    Picture ResizePicture(const Picture& picture, int32_t width, int32_t height) const {
        return desktop_.pictures.ResizePicture(picture, width, height);
    }
    // The length of a sound file in whole seconds, rounded; 0 when it can't be told. Fails with Overflow() beyond 32
    // bits.
    int32_t SoundSeconds(const std::string& path) const { return ToInt32(desktop_.sounds.SoundSeconds(path)); }
    Sounds& SoundPlayer() const { return desktop_.sounds; }

    // --- The system ---
    // The kind of operating system on the library's own scale: 1, 2, 3 and 7 can't paint gradients, 8 or more has
    // layered windows, 11 or more wants the lines of a tooltip evened. Every desktop of today counts as 12.
    static int32_t SystemFamily() { return 12; }

private:
    Desktop desktop_;
};

}  // namespace vorlane
