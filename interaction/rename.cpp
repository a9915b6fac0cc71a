// Renaming in place: a box over a slide's name, whose text becomes the name of the file, of the item and of the slide.
// A name that is refused leaves the box open and everything as it was. Nothing on the disk is ever replaced, and no
// file leaves its folder.
#include "interaction/filename.h"
#include "interaction/msgboxobject.h"
#include "platform/files.h"
#include "platform/trelmic6.h"
#include "platform/withinblock.h"
#include "sheet/itemtext.h"
#include "sheet/vorlane.h"

#include <charconv>

namespace vorlane {

namespace {

constexpr int16_t kEnter = 13;
constexpr int16_t kEscape = 27;
constexpr int32_t kErrorIcon = 16;
constexpr int32_t kTargetExists = 0;

constexpr std::string_view kAppTitle = "Vorlane";
constexpr std::string_view kRenameTitle = "Renommer un fichier";
constexpr std::string_view kExists = "Impossible de renommer le fichier, un autre fichier portant ce nom existe déjà.";

std::string NameIn(const std::string& path) {
    return Trelmic6::FilePart(path, PathPart::BaseName);
}

Failure BadFileName() {
    return {52, "Le nom de fichier est incorrect."};
}

std::optional<int16_t> NumberIn(const std::string& text) {
    int16_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

// Whether a file is there already. A name that differs from the old one in the case of letters alone counts as there,
// as it is on file systems that make no difference.
bool IsTaken(const std::string& newPath, const std::string& oldPath) {
    return Trelmic6::PathExists(newPath, PathKind::File) ||
           Trelmic6::LowerCase(newPath) == Trelmic6::LowerCase(oldPath);
}

// Fails for a name that is none, and for one that would take the file to another folder.
void CheckNewName(const std::string& typed, const std::string& newPath, const std::string& oldPath) {
    if (!IsNameForFile(typed) || !IsShortEnough(Trelmic6::FileName(newPath))) throw BadFileName();
    if (FolderOf(newPath) != FolderOf(oldPath)) throw failures::PathNotFound();
}

std::string CannotRename(const std::string& oldName, const std::string& typed, int32_t number) {
    return "Impossible de renommer le fichier " + oldName + " en " + typed +
           ".\r\nVérifiez que le fichier ne soit pas utilisé par une autre application.\r\nErreur numéro : " +
           std::to_string(number);
}

// The text of an item whose file has another name. What stands behind a point is a name's extension where both have it,
// as a file without one may get a point; otherwise the path takes the new name whole.
std::string Renamed(const std::string& item, const std::string& oldName, const std::string& newName) {
    const auto extension = [](const std::string& path) { return Trelmic6::FilePart(path, PathPart::Extension); };
    const std::string from = NameIn(oldName);
    const std::string to = NameIn(newName);
    if (extension(oldName) == extension(newName)) return ReplacedAll(item, from, to);
    const std::string_view path = ItemFileName(item);
    const std::string_view data = std::string_view(item).substr(0, item.size() - path.size());
    return ReplacedAll(data, from, to) + ReplacedAll(path, Trelmic6::FileName(oldName), Trelmic6::FileName(newName));
}

}  // namespace

void Vorlane::ConnectEdit() {
    Txt.Input.KeyPress.connect([this](int16_t& ascii) {
        const int16_t key = std::exchange(ascii, int16_t{0});
        bool cancel = key == kEscape;
        if (key == kEnter || key == kEscape) return EndEdit(cancel);
        ascii = Trelmic6::FilterNameKey(key);
    });
}

// --- Opening ---

void Vorlane::StartEdit(int16_t index) {
    const auto start = [&] {
        if (Bound().AsListBox() == nullptr) return;
        Txt.SetText(NameIn(ItemFullPath(Diapo.Item(index)->Value())));
        bool cancel = false;
        const std::string name = Txt.Text();
        Events.BeforeEdit(cancel, name);
        if (cancel) return;
        const auto slide = Diapo.Item(index);
        const WinRect place = slide->ImageNameRect();  // a width and a height on the right and at the bottom
        Txt.Move(static_cast<double>(slide->Col()) + place.Left, static_cast<double>(slide->Lig()) + place.Top,
                 place.Right, place.Bottom);
        Txt.SetVisible(true);
        Txt.SetTag(std::to_string(index));
        Txt.SetSelStart(0);
        Txt.SetSelLength(ToInt32(Txt.Text().size()));  // as many bytes as there are, so all characters
        Txt.SetFocus();
    };
    GuardVoid(start, "StartEdit", index);
}

// --- Closing ---

void Vorlane::DropEdit() {
    bool cancel = true;
    EndEdit(cancel);
}

void Vorlane::EndEdit() {
    bool cancel = false;
    EndEdit(cancel);
}

void Vorlane::EndEdit(bool& cancel, MsgBoxObject* msgBox) {
    const auto end = [&] {
        const std::optional<int16_t> slot = NumberIn(Txt.Tag());
        if (!slot || !Txt.Visible() || inEndEdit_) return;
        const WithinBlock ending(inEndEdit_);
        if (Txt.Text().empty()) return CloseEdit("", "", true);
        if (*slot < 0 || *slot >= Diapo.Count()) return;
        if (cancel) return CloseEdit("", "", true);
        const int32_t item = Diapo.Item(*slot)->Value();
        if (item < 0 || Bound().AsListBox() == nullptr) return CloseEdit("", "", true);
        const std::string oldPath = ItemFullPath(item);
        const std::string oldName = NameIn(oldPath);
        const std::string typed = Txt.Text();
        if (typed == oldName) return HideEdit();
        const std::string newPath = ReplacedAll(oldPath, oldName, typed);
        const auto rename = [&] {
            CheckNewName(typed, newPath, oldPath);
            if (IsTaken(newPath, oldPath)) {
                TellTaken(newPath, oldPath, cancel, msgBox);
                return false;
            }
            RenameFile(item, oldPath, newPath, *slot);
            return true;
        };
        const auto tell = [&](const Failure& failure) {
            Desktop().dialogs.MsgBox(CannotRename(oldName, typed, failure.Number), kErrorIcon, kRenameTitle);
        };
        if (!Trap(pending_, rename, tell, false)) return Txt.SetFocus();
        if (sort_.SortedSens != SortSensType::ssNone) Sort();
        CloseEdit(newPath, oldPath, false);
    };
    GuardVoid(end, "EndEdit", cancel);
}

// The host may replace the text; that it wants no message is no matter.
void Vorlane::TellTaken(const std::string& newPath, const std::string& oldPath, bool& cancel, MsgBoxObject* msgBox) {
    std::string message;
    Events.RenameError(kTargetExists, newPath, oldPath, message, cancel);
    if (message.empty()) message = kExists;
    const std::string title(kAppTitle);
    if (msgBox == nullptr) {
        Desktop().dialogs.MsgBox(message, kErrorIcon, title);
    } else if (msgBox->TypeName() == "DialogueBox") {
        msgBox->Action(message, title, title, kErrorIcon);
    }
}

// The file gets its old name back when item and slide can't follow.
void Vorlane::RenameFile(int32_t item, const std::string& oldPath, const std::string& newPath, int16_t slot) {
    files::Rename(oldPath, newPath);
    try {
        FollowRename(item, oldPath, newPath, slot);
    } catch (...) {
        Attempt([&] { files::Rename(newPath, oldPath); });
        throw;
    }
}

bool Vorlane::RenameDiapo(int32_t listIndex, const std::string& oldName, const std::string& newName,
                          int16_t diapoIndex) {
    const auto rename = [&] {
        FollowRename(listIndex, oldName, newName, diapoIndex);
        return true;
    };
    return Guard(false, rename, "RenameDiapo", listIndex, oldName, newName, diapoIndex);
}

// Both follow the new name, or neither does.
void Vorlane::FollowRename(int32_t listIndex, const std::string& oldName, const std::string& newName,
                           int16_t diapoIndex) {
    ListBox* list = Bound().AsListBox();
    if (list == nullptr) return;
    const int16_t slot = diapoIndex < 0 ? SlotFromListIndex(listIndex) : diapoIndex;
    const auto slide = slot < 0 ? nullptr : Diapo.Item(slot);
    const std::string item = list->List(listIndex);
    const std::string shown = slide ? slide->ImageFullPath() : "";
    try {
        list->SetList(listIndex, Renamed(item, oldName, newName));
        if (slide) slide->SetImageFullPath(eDiapoLight::KnownPath(newName));
    } catch (...) {
        Attempt([&] { list->SetList(listIndex, item); });
        if (slide) Attempt([&] { slide->SetImageFullPath(shown); });
        throw;
    }
}

// The box goes also when a handler fails.
void Vorlane::CloseEdit(const std::string& newPath, const std::string& oldPath, bool canceled) {
    try {
        Events.AfterEdit(newPath, oldPath, canceled);
    } catch (...) {
        HideEdit();
        throw;
    }
    HideEdit();
}

void Vorlane::HideEdit() {
    Txt.SetVisible(false);
    Txt.SetTag("");
}

}  // namespace vorlane
