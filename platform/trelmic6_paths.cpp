#include "platform/files.h"
#include "platform/trelmic6.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <span>

namespace vorlane {

namespace {

using Extensions = std::span<const std::string_view>;

constexpr std::string_view kPictures[] = {"avif", "bmp", "dib", "gif",  "heic", "heif", "ico", "jfif", "jpe",
                                          "jpeg", "jpg", "jxl", "pbm",  "pgm",  "png",  "pnm", "ppm",  "svg",
                                          "svgz", "tga", "tif", "tiff", "webp", "xbm",  "xpm"};
constexpr std::string_view kSounds[] = {"aac", "aif", "aiff", "flac", "m4a", "mid", "midi",
                                        "mp3", "oga", "ogg",  "opus", "wav", "wma"};
constexpr std::string_view kVideos[] = {"3gp", "avi",  "flv", "m2ts", "m4v", "mkv",  "mov",
                                        "mp4", "mpeg", "mpg", "mts",  "ogv", "webm", "wmv"};
constexpr std::string_view kDocuments[] = {"csv", "doc", "docx", "htm",  "html", "md",  "odp", "ods",
                                           "odt", "pdf", "ppt",  "pptx", "rtf",  "txt", "xls", "xlsx"};

bool Holds(Extensions extensions, std::string_view extension) {
    for (const std::string_view candidate : extensions) {
        if (candidate == extension) return true;
    }
    return false;
}

std::string_view NameOf(std::string_view path) {
    const size_t folderEnd = path.find_last_of("/\\");
    return folderEnd == std::string_view::npos ? path : path.substr(folderEnd + 1);
}

// Where the point of the name's extension stands, npos for a name without one.
size_t ExtensionPoint(std::string_view name) {
    const size_t point = name.rfind('.');
    const size_t first = name.find_first_not_of('.');
    return first < point ? point : std::string_view::npos;
}

std::string LocalTimeText(std::time_t moment) {
    std::tm local{};
#if defined(__unix__)
    localtime_r(&moment, &local);
#else
    if (const std::tm* found = std::localtime(&moment)) local = *found;
#endif
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", local.tm_year + 1900, local.tm_mon + 1,
                  local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
    return text.data();
}

}  // namespace

std::string Trelmic6::FilePart(std::string_view path, PathPart part) {
    const std::string_view name = NameOf(path);
    const size_t point = ExtensionPoint(name);
    const bool extended = point != std::string_view::npos;
    switch (part) {
        case PathPart::FileName:
            return std::string(extended ? name : "");
        case PathPart::Extension:
            return std::string(extended ? name.substr(point + 1) : "");
        case PathPart::BaseName:
            return std::string(name.substr(0, point));
    }
    return {};
}

std::string Trelmic6::FileName(std::string_view path) {
    return std::string(NameOf(path));
}

int16_t Trelmic6::FileKind(std::string_view path) {
    const std::string extension = LowerCase(FilePart(path, PathPart::Extension));
    if (extension.empty()) return 0;
    for (int16_t kind = 0; kind <= 3; ++kind) {
        if (Holds(ExtensionsOf(kind), extension)) return kind;
    }
    return 5;
}

std::span<const std::string_view> Trelmic6::ExtensionsOf(int16_t kind) {
    switch (kind) {
        case 0:
            return kPictures;
        case 1:
            return kSounds;
        case 2:
            return kVideos;
        case 3:
            return kDocuments;
        default:
            return {};
    }
}

bool Trelmic6::PathExists(const std::string& path, PathKind kind) {
    return kind == PathKind::Folder ? files::IsFolder(path) : files::IsFile(path);
}

std::string Trelmic6::NormalizePath(std::string_view folder) {
    if (folder.empty()) return {};
    const bool backward = folder.find('/') == std::string_view::npos && folder.find('\\') != std::string_view::npos;
    const char separator = backward ? '\\' : '/';
    const bool server = backward && folder.substr(0, 2) == "\\\\";
    std::string clean(server ? "\\" : "");
    for (const char unit : folder.substr(clean.size())) {
        const bool doubled = unit == separator && clean.size() > (server ? 1U : 0U) && clean.back() == separator;
        if (!doubled) clean += unit;
    }
    if (clean.back() != separator) clean += separator;
    return clean;
}

std::string Trelmic6::FileDateText(const std::string& path, int16_t kind) {
    const files::Dates dates = files::DatesOf(path);
    return LocalTimeText(kind == 0 ? dates.Modified : dates.Created);
}

std::string Trelmic6::TimeOfDayText() {
    constexpr size_t time = 11;  // behind the date and a blank
    return LocalTimeText(std::time(nullptr)).substr(time);
}

uint64_t Trelmic6::FileLength(const std::string& path) {
    return files::Length(path);
}

int16_t Trelmic6::FilterNameKey(int16_t keyAscii) {
    constexpr std::string_view commands = "\x01\x03\x08\x16\x18\x1A";
    constexpr std::string_view refused = "/\\:*?\"<>|\x7F";
    if (keyAscii < 0 || keyAscii > 0x7F) return keyAscii;
    const auto key = static_cast<char>(keyAscii);
    const bool allowed =
        keyAscii < 0x20 ? commands.find(key) != std::string_view::npos : refused.find(key) == std::string_view::npos;
    return allowed ? keyAscii : int16_t{0};
}

}  // namespace vorlane
