#include "widgets/vorlanelist.h"

#include "platform/failure.h"
#include "platform/listbox.h"
#include "widgets/conversions.h"

namespace vorlane {

ListBox* VorlaneList::Changeable() const {
    return list_ != nullptr ? list_->AsListBox() : nullptr;
}

int VorlaneList::ListCount() const {
    return list_ != nullptr ? list_->ListCount() : 0;
}

QString VorlaneList::List(int index) const {
    QString text;
    if (list_ != nullptr) Attempt([&] { text = FromText(list_->List(index)); });
    return text;
}

bool VorlaneList::Selected(int index) const {
    bool selected = false;
    if (list_ != nullptr) Attempt([&] { selected = list_->Selected(index); });
    return selected;
}

void VorlaneList::SetSelected(int index, bool selected) {
    if (list_ != nullptr) Attempt([&] { list_->SetSelected(index, selected); });
}

std::vector<int> VorlaneList::SelItems() const {
    std::vector<int> items;
    if (list_ != nullptr && !list_->SelItems(items)) items.clear();
    return items;
}

bool VorlaneList::AddItem(const QString& text, int key, int index) {
    ListBox* list = Changeable();
    if (list == nullptr || index < -1 || index > list->ListCount()) return false;
    bool added = false;
    Attempt([&] {
        if (index < 0) {
            list->AddItem(ToText(text));
        } else {
            list->AddItem(ToText(text), index);
        }
        list->SetItemData(list->NewIndex(), key);
        added = true;
    });
    return added;
}

void VorlaneList::SetList(int index, const QString& text) {
    if (ListBox* list = Changeable()) Attempt([&] { list->SetList(index, ToText(text)); });
}

void VorlaneList::RemoveItem(int index) {
    if (ListBox* list = Changeable()) Attempt([&] { list->RemoveItem(index); });
}

void VorlaneList::Clear() {
    if (ListBox* list = Changeable()) Attempt([&] { list->Clear(); });
}

int VorlaneList::ItemData(int index) const {
    int data = 0;
    if (ListBox* list = Changeable()) Attempt([&] { data = list->ItemData(index); });
    return data;
}

}  // namespace vorlane
