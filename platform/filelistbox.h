// FileListBox: the files of one folder that match a pattern, by name without regard to case, equal names by their
// bytes. It lists files and links to files, but for hidden ones, whose name begins with a point. A name stays as the
// system gives it, be it UTF-8 or not. It reads the folder when Path or Pattern changes and at Refresh, and nothing is
// then selected; a folder that can't be read gives an empty list.
#pragma once

#include "platform/listbox.h"

#include <string>
#include <vector>

namespace vorlane {

class FileListBox final : public ListControl {
public:
    explicit FileListBox(vorlane::Hwnd handle) : handle_(handle) {}

    const std::string& Path() const { return path_; }
    void SetPath(std::string path);
    // As Wildcards tells it: "*.*" lists every file, an empty pattern none.
    const std::string& Pattern() const { return pattern_; }
    void SetPattern(std::string pattern);
    void Refresh();
    // Sets both and reads the folder once, as Refresh does.
    void Read(std::string path, std::string pattern);

    int32_t ListCount() const override { return static_cast<int32_t>(entries_.size()); }
    std::string List(int32_t index) const override;
    int32_t ListIndex() const override { return listIndex_; }
    void SetListIndex(int32_t index) override;
    bool Selected(int32_t index) const override;
    void SetSelected(int32_t index, bool selected) override;
    int32_t SelCount() const override { return selCount_; }
    bool SelItems(std::vector<int32_t>& indices) const override;
    int16_t MultiSelect() const override { return 2; }
    vorlane::Hwnd Hwnd() const override { return handle_; }

    ListBox* AsListBox() override { return nullptr; }
    FileListBox* AsFileListBox() override { return this; }

private:
    struct Entry {
        std::string Name;
        bool Selected = false;
    };

    const Entry& EntryAt(int32_t index) const;

    vorlane::Hwnd handle_;
    std::string path_;
    std::string pattern_ = "*.*";
    std::vector<Entry> entries_;
    int32_t listIndex_ = -1;
    int32_t selCount_ = 0;
};

}  // namespace vorlane
