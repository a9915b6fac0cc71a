// Trelmic6: the utilities that the controls share. What needs the system goes through the desktop's roles; the rest
// are pure functions. Each operation is told here once, with what it does at its edges.
#pragma once

#include "platform/desktop.h"
#include "platform/listbox.h"
#include "platform/numbers.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

enum class PathKind : int16_t { File = 0, Folder = 1 };

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
    // Part 2: the file name without folder. 3: the extension without the point. 4: the file name without folder and
    // extension, which is what a rename edits. Both "/" and "\" end a folder. Part 2 is empty when the name has no
    // extension; part 4 is not. An unknown part gives an empty text.
    static std::string FilePart(std::string_view path, int16_t part);
    // The file name without folder, whatever its extension.
    static std::string FileName(std::string_view path);
    // By extension, in any case: 0 a picture, 1 a sound, 2 a video, 3 a document, 5 anything else. A name without
    // extension counts as a picture, for only its content can tell.
    static int16_t FileKind(std::string_view path);
    static bool PathExists(const std::string& path, PathKind kind);
    // A folder without doubled separators and with one at its end; an empty text stays empty.
    static std::string NormalizePath(std::string_view folder);
    // kind 0: the file's last modification; 1: its creation, or the earliest date known of it where the system keeps
    // none. As "yyyy-mm-dd hh:nn:ss", local time. Fails with FileNotFound().
    static std::string FileDateText(const std::string& path, int16_t kind);
    // Bytes. Fails with FileNotFound().
    static uint64_t FileLength(const std::string& path);
    // The key of a typed character, or 0 for one that a file name can't hold: / \ : * ? " < > | and control codes.
    static int16_t FilterNameKey(int16_t keyAscii);

    // --- Texts ---
    // The n-th piece, from 1, of text cut at separator; empty beyond the last.
    static std::string FieldAt(std::string_view text, int32_t n, std::string_view separator);
    // How many separators text holds.
    static int32_t CountOf(std::string_view text, std::string_view separator);
    // Small letters of the Latin, Greek and Cyrillic alphabets, in UTF-8; bytes that are no UTF-8 stay as they are.
    static std::string LowerCase(std::string_view text);
    // withUnits false: "m:ss", or "h:mm:ss" from an hour on. withUnits true: "2 h 05 min 09 s". Negative seconds get
    // a leading "-".
    static std::string SecondsToText(int32_t seconds, bool withUnits);
    // The text of a message number in the user's language; ResMissing() for an unknown number.
    std::string ResText(std::string_view number) const;
    static std::string ResMissing() { return "?"; }

    // --- Lists ---
    // First index whose ItemData is the number that keyText spells; -1 for none, or when it spells no number.
    static int32_t FindListItem(const ListBox& list, std::string_view keyText, std::string_view separator);

    // --- Pictures and sounds ---
    std::optional<Picture> LoadImageFile(const std::string& path) const {
        return desktop_.pictures.LoadImageFile(path);
    }
    Picture ResizePicture(const Picture& picture, int32_t width, int32_t height) const {
        return desktop_.pictures.ResizePicture(picture, width, height);
    }
    double SoundSeconds(const std::string& path) const { return desktop_.sounds.SoundSeconds(path); }

    // --- The system ---
    // The kind of operating system on the library's own scale: 8 or more has layered windows, 11 or more paints
    // gradients itself. Every desktop of today counts as 12.
    static int32_t SystemFamily() { return 12; }

private:
    Desktop desktop_;
};

}  // namespace vorlane
