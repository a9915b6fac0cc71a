// Turning the files of a folder into items of a list.
#pragma once

#include "platform/filelistbox.h"
#include "platform/listbox.h"

#include <cstdint>
#include <functional>
#include <string>

namespace vorlane {

struct FolderRules {
    std::string Pattern;
    // Sort data of a file.
    std::function<std::string(const std::string& fileName)> SortKey;
    // May refuse a file or give it a key; both stand for the following files until they are changed again. May be
    // empty.
    std::function<void(const std::string& fileName, int32_t& key, bool& cancel)> Offer;
    // Hears of each file that is about to come in. May be empty.
    std::function<void()> Adding;
};

// Adds the files of folder that match the pattern, in its order, in front of insertBefore when that is 0 or more, else
// at the end. A key of -1 becomes the index of the first item that is added with it. Gives the number of items added; 0
// when there is no such folder.
int32_t AddFolderItems(ListBox& list, FileListBox& reader, const std::string& folder, int32_t insertBefore,
                       const FolderRules& rules);

}  // namespace vorlane
