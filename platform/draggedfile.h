// The entries of a DataObject's Files: a path, or a path, "|" and the key of its slide in decimal.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vorlane {

struct DraggedFile {
    std::string Path;
    int32_t Key = -1;  // -1: none
    bool operator==(const DraggedFile&) const = default;
};

// The key is what stands behind the last "|" when that is a whole number of 32 bits; else all of it is the path.
DraggedFile ReadDraggedFile(std::string_view entry);

std::string DraggedFileEntry(std::string_view path, int32_t key);
// Of a file without a key: the path alone, unless its end would be taken for one.
std::string DraggedFileEntry(std::string_view path);

}  // namespace vorlane
