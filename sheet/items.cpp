// The items: adding, clearing, binding a list, reading folders, finding keys.
#include "platform/trelmic6.h"
#include "sheet/folderitems.h"
#include "sheet/sortkeys.h"
#include "sheet/vorlane.h"

namespace vorlane {

namespace {

constexpr std::string_view kNoAddToFiles =
    "Impossible d'ajouter un élément lorsque le controle est lié a une FileListBox.";
constexpr std::string_view kNoMultiSelect = "La proprété Multiselect de la liste n'est pas activée.";

constexpr int32_t kClearSkips = 1;  // the pending error that keeps Clear from its work

}  // namespace

// --- Reading ---

ListControl& Vorlane::Bound() const {
    if (items_.Liste == nullptr) throw failures::ObjectNotSet();
    return *items_.Liste;
}

std::string Vorlane::ItemFullPath(int32_t index) const {
    ListControl& list = Bound();
    if (const FileListBox* files = list.AsFileListBox()) {
        return Trelmic6::NormalizePath(files->Path()) + files->List(index);
    }
    return std::string(ItemFileName(list.List(index)));
}

std::optional<sheet::ListItem> Vorlane::NextItem(int32_t listIndex) const {
    if (listIndex >= ListCount() - 1) return std::nullopt;
    return ListItem{ItemFullPath(listIndex + 1), listIndex + 1};
}

int32_t Vorlane::Key(int32_t listIndex) const {
    const ListBox* list = Bound().AsListBox();
    return list != nullptr ? list->ItemData(listIndex) : 0;
}

std::string Vorlane::ImageFullPath(int32_t listIndex) const {
    return Bound().AsListBox() != nullptr ? ItemFullPath(listIndex) : std::string();
}

int32_t Vorlane::GetListIndexFromItemData(int32_t key) {
    const ListBox* list = Bound().AsListBox();
    return list != nullptr ? Trelmic6::FindListItem(*list, std::to_string(key), SepSortWithData()) : -1;
}

int16_t Vorlane::GetIndexFromKey(int32_t key) const {
    const ListBox* list = Bound().AsListBox();
    if (list == nullptr) return -1;
    return FindSlide([&](const eDiapoLight& slide) {
        const int32_t item = slide.Value();
        return item >= 0 && item < list->ListCount() && list->ItemData(item) == key;
    });
}

// --- Adding and clearing ---

int32_t Vorlane::Add(const std::string& imageName, const std::string& multipleDataSort, int32_t key,
                     int32_t insertBefore) {
    const auto add = [&]() -> int32_t {
        if (Bound().AsFileListBox() != nullptr) {
            Warn(kNoAddToFiles);
            return 0;
        }
        if (imageName.empty()) return 0;
        ListBox& list = *Bound().AsListBox();
        const std::string text = ItemText(multipleDataSort, imageName);
        insertBefore != -1 ? list.AddItem(text, insertBefore) : list.AddItem(text);
        const int32_t index = list.NewIndex();
        list.SetItemData(index, key == -1 ? index : key);
        return index;
    };
    const auto report = [&](const Failure& failure) {
        Report(failure, ListLogText("Add", imageName, multipleDataSort, key, insertBefore));
    };
    return Trap(pending_, add, report, 0);
}

// In place of a trap it looks at the pending error: number 1 keeps it from its work.
void Vorlane::Clear() {
    if (pending_.Number == kClearSkips) {
        Events.Error(pending_.Number, pending_.Description, pending_.Source, pending_.LastDllError,
                     LogText("Clear", Diapo.Count()));
        return;
    }
    pass_.StopLect = true;
    ++pass_.Fills;  // what runs has nothing to say any more
    pass_.Unfinished = false;
    ImgDrag.SetVisible(false);
    const int32_t last = Diapo.UpperBound();
    for (int32_t k = 0; k <= last; ++k) {
        if (Diapo.Loaded(k)) UnloadDiapo(k);
    }
    ListBox* list = Bound().AsListBox();
    if (list != nullptr && list->Hwnd() == LstInterne.Hwnd()) list->Clear();
    SelectedClear();
    const bool blank = First().Value() < 0;  // what its yield has shown anew stays
    if (blank) pass_.StopLect = true;
    InitVScroll(blank);
    Events.TLClear();
}

void Vorlane::Refresh() {
    Clear();
    StartLecture();
}

// --- Binding a list ---

void Vorlane::InitListe(ListeModeType mode, ListControl* newList, const std::string& newPath,
                        const std::string& newPattern, std::optional<int32_t> stdSortArgs) {
    if (items_.InInitListe) return;
    items_.InInitListe = true;
    const int32_t args = stdSortArgs.value_or(items_.StdSortArgs);
    const auto init = [&] {
        items_.InternalCopy = false;
        items_.StdSortArgs = args;
        items_.FromInit = true;
        if (BindList(mode, newList)) {
            if (!newPath.empty()) SetPath(newPath);
            if (!newPattern.empty()) SetPattern(newPattern);
            Clear();
            if (items_.InternalCopy) LstCopy();
        }
    };
    const auto report = [&](const Failure& failure) {
        Report(failure, ListLogText("InitListe", static_cast<int32_t>(mode), newList != nullptr ? newList->Hwnd() : 0,
                                    newPath, newPattern, args));
    };
    Trap(pending_, init, report);
    items_.FromInit = false;
    items_.InInitListe = false;
}

// Whether the list can be shown.
bool Vorlane::BindList(ListeModeType mode, ListControl* newList) {
    if (newList == nullptr) {
        items_.InternalCopy = mode != ListeModeType::lmFileList;
        items_.Liste = items_.InternalCopy ? static_cast<ListControl*>(&LstInterne) : &FileInterne;
        return true;
    }
    if (newList->Hwnd() == Bound().Hwnd()) return true;
    items_.Liste = newList;
    if (newList->MultiSelect() != 0) return true;
    Warn(kNoMultiSelect);
    return false;
}

void Vorlane::SetPath(const std::string& path) {
    if (path == items_.Path) return;
    items_.Path = Trelmic6::NormalizePath(path);
    FolderChanged([&](FileListBox& files) {
        if (Trelmic6::NormalizePath(files.Path()) == items_.Path) return;
        files.Read(path, files.Pattern());
    });
}

void Vorlane::SetPattern(const std::string& pattern) {
    if (pattern == items_.Pattern) return;
    items_.Pattern = pattern;
    FolderChanged([&](FileListBox& files) {
        if (files.Pattern() == pattern) return;
        files.Read(files.Path(), pattern);
    });
}

// Path or Pattern is another: a bound file list follows, the sheet's own list is read anew.
void Vorlane::FolderChanged(const std::function<void(FileListBox&)>& follow) {
    ListControl& list = Bound();
    if (list.AsListBox() != nullptr && list.Hwnd() == LstInterne.Hwnd()) items_.InternalCopy = true;
    if (FileListBox* files = list.AsFileListBox()) follow(*files);
    if (!items_.FromInit && items_.InternalCopy) LstCopy();
}

// --- Reading folders ---

std::string Vorlane::SortKey(const std::string& fileName, int32_t mask) const {
    return sort_.Sorted ? BuildSortKey(fileName, mask) : std::string();
}

// Items that are read from a folder keep the key 0. A handler that sets another path meanwhile changes the folder
// under the reading, which then ends with a failure.
void Vorlane::LstCopy() {
    const std::string path = items_.Path;
    const int32_t args = items_.StdSortArgs;
    const auto copy = [&] {
        items_.InternalCopy = false;
        if (!Ambient().UserMode || !items_.ListAutoFill || path.empty() || items_.Pattern.empty()) return;
        LstInterne.Clear();
        FileInterne.Read(path, items_.Pattern);
        const std::string folder = Trelmic6::NormalizePath(FileInterne.Path());
        const int32_t count = FileInterne.ListCount();
        for (int32_t i = 0; i < count; ++i) {
            const std::string file = folder + FileInterne.List(i);
            LstInterne.AddItem(ItemText(SortKey(file, args), file));
            Events.TraitementFeedBack(i + 1, FileInterne.ListCount());
        }
    };
    GuardVoid(copy, "LstCopy", path, args);
}

int32_t Vorlane::AddFolder(const std::string& folder, int32_t insertBefore) {
    FolderRules rules{
        items_.Pattern, [this](const std::string& file) { return SortKey(file, items_.StdSortArgs); }, {}, {}};
    if (!internalDrag_) {
        rules.Offer = [this](const std::string& file, int32_t& key, bool& cancel) {
            Events.OLENewFileAdded(file, key, cancel);
        };
    }
    if (insertBefore >= 0) rules.Adding = [this] { Events.OLESortChanged(); };
    const auto add = [&]() -> int32_t {
        ListBox* list = Bound().AsListBox();
        return list != nullptr ? AddFolderItems(*list, TmpFile, folder, insertBefore, rules) : 0;
    };
    return Guard(0, add, "AddFolder", folder, insertBefore);
}

}  // namespace vorlane
