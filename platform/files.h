// Files: what the library asks of the file system, one room for all desktops. Paths are UTF-8 texts, or whatever bytes
// the system gave for one.
#pragma once

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>

namespace vorlane::files {

std::filesystem::path ToPath(std::string_view path);

// Both follow links and are false for what can't be looked at.
bool IsFile(std::string_view path);
bool IsFolder(std::string_view path);

// Bytes of a file. Fails with FileNotFound(), for a folder too.
uint64_t Length(std::string_view path);

struct Dates {
    std::time_t Modified = 0;
    std::time_t Created = 0;  // the earliest known date where the system keeps no creation
};

// Fails with FileNotFound().
Dates DatesOf(std::string_view path);

// Gives a file or folder another name on the same volume; it never overwrites. Fails with FileExists() when there is
// something at the new name, with FileNotFound() when there is nothing at the old one, with PathNotFound() when the new
// name's folder is missing, and with AccessDenied() for whatever else the system holds against it.
void Rename(std::string_view from, std::string_view to);

}  // namespace vorlane::files
