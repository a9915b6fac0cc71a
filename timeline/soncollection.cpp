#include "timeline/soncollection.h"

#include "platform/failure.h"
#include "platform/trelmic6.h"

#include <algorithm>

namespace vorlane {

const tSon& SonCollection::Item(int32_t index) const {
    return entries_[Checked(index)]->Son;
}

void SonCollection::Add(const tSon& son, const std::string& key) {
    Insert(son, key, entries_.size());
}

void SonCollection::Add(const tSon& son, const std::string& key, int32_t before) {
    Insert(son, key, Checked(before));
}

void SonCollection::Insert(const tSon& son, const std::string& key, size_t place) {
    if (keys_.count(key) != 0) throw failures::DuplicateKey();
    auto entry = std::make_unique<const Entry>(Entry{son, key, Trelmic6::LowerCase(son.Nom), place});
    keys_.insert(entry->Key);
    byDiapoKey_.emplace(son.DiapoKey, entry.get());
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(place), std::move(entry));
    ++revision_;
}

void SonCollection::Remove(int32_t index) {
    const auto gone = entries_.begin() + static_cast<std::ptrdiff_t>(Checked(index));
    const auto [first, last] = byDiapoKey_.equal_range((*gone)->Son.DiapoKey);
    byDiapoKey_.erase(std::find_if(first, last, [&](const auto& known) { return known.second == gone->get(); }));
    keys_.erase((*gone)->Key);
    entries_.erase(gone);
    ++revision_;
}

int32_t SonCollection::FindDiapoKey(int32_t diapoKey) const {
    const auto [first, last] = byDiapoKey_.equal_range(diapoKey);
    if (first == last) return -1;
    size_t place = entries_.size();
    for (auto known = first; known != last; ++known) place = std::min(place, PlaceOf(*known->second));
    return static_cast<int32_t>(place) + 1;
}

int32_t SonCollection::FindLowerName(std::string_view lowerName) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const auto& entry) { return entry->LowerName == lowerName; });
    return found == entries_.end() ? -1 : static_cast<int32_t>(found - entries_.begin()) + 1;
}

size_t SonCollection::Checked(int32_t index) const {
    if (index < 1 || index > Count()) throw failures::SubscriptOutOfRange();
    return static_cast<size_t>(index) - 1;
}

// Looks outwards from where the entry stood last.
size_t SonCollection::PlaceOf(const Entry& entry) const {
    const auto stands = [&](size_t place) { return place < entries_.size() && entries_[place].get() == &entry; };
    size_t away = 0;
    while (!stands(entry.Place + away) && !(entry.Place >= away && stands(entry.Place - away))) ++away;
    return entry.Place = stands(entry.Place + away) ? entry.Place + away : entry.Place - away;
}

}  // namespace vorlane
