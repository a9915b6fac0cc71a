#include "platform/filelistbox.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/trelmic6.h"
#include "platform/wildcards.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vorlane {

namespace {

// Names of the folder's files that aren't hidden, in no order; none when it can't be read to its end.
std::vector<std::string> FileNames(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code failed;
    std::filesystem::directory_iterator entry(files::ToPath(folder), failed);
    for (; !failed && entry != std::filesystem::directory_iterator(); entry.increment(failed)) {
        std::error_code gone;
        std::string name = entry->path().filename().string();
        if (!name.starts_with('.') && entry->is_regular_file(gone)) names.push_back(std::move(name));
    }
    if (failed) names.clear();
    return names;
}

void SortByName(std::vector<std::string>& names) {
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names) keyed.emplace_back(Trelmic6::LowerCase(name), std::move(name));
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(), [](auto& pair) { return std::move(pair.second); });
}

}  // namespace

void FileListBox::SetPath(std::string path) {
    if (path == path_) return;
    path_ = std::move(path);
    Refresh();
}

void FileListBox::SetPattern(std::string pattern) {
    if (pattern == pattern_) return;
    pattern_ = std::move(pattern);
    Refresh();
}

void FileListBox::Read(std::string path, std::string pattern) {
    path_ = std::move(path);
    pattern_ = std::move(pattern);
    Refresh();
}

void FileListBox::Refresh() {
    const Wildcards wildcards(pattern_);
    std::vector<std::string> names = FileNames(path_);
    std::erase_if(names, [&](const std::string& name) { return !wildcards.Match(name); });
    SortByName(names);
    entries_.clear();
    for (std::string& name : names) entries_.push_back({std::move(name)});
    listIndex_ = -1;
    selCount_ = 0;
}

std::string FileListBox::List(int32_t index) const {
    return EntryAt(index).Name;
}

void FileListBox::SetListIndex(int32_t index) {
    if (index < -1 || index >= ListCount()) throw failures::InvalidProperty();
    listIndex_ = index;
}

bool FileListBox::Selected(int32_t index) const {
    return EntryAt(index).Selected;
}

void FileListBox::SetSelected(int32_t index, bool selected) {
    if (EntryAt(index).Selected == selected) return;
    entries_[static_cast<size_t>(index)].Selected = selected;
    selCount_ += selected ? 1 : -1;
}

bool FileListBox::SelItems(std::vector<int32_t>& indices) const {
    indices.clear();
    for (int32_t index = 0; index < ListCount(); ++index) {
        if (EntryAt(index).Selected) indices.push_back(index);
    }
    return true;
}

const FileListBox::Entry& FileListBox::EntryAt(int32_t index) const {
    if (index < 0 || index >= ListCount()) throw failures::SubscriptOutOfRange();
    return entries_[static_cast<size_t>(index)];
}

}  // namespace vorlane
