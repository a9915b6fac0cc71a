// SonCollection: an ordered list of sounds, counted from 1, each under a text key of its own. Finding the sound of a
// slide is no walk: entries are known by their slide key and remember about where they stand.
#pragma once

#include "timeline/tson.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vorlane {

class SonCollection {
public:
    int32_t Count() const { return static_cast<int32_t>(entries_.size()); }
    // Fails with SubscriptOutOfRange() outside 1 to Count().
    const tSon& Item(int32_t index) const;
    // Appends, or inserts in front of an index. Fails with DuplicateKey() for a key that is there, and with
    // SubscriptOutOfRange(); the list then stays as it was.
    void Add(const tSon& son, const std::string& key);
    void Add(const tSon& son, const std::string& key, int32_t before);
    // Fails with SubscriptOutOfRange().
    void Remove(int32_t index);

    // Index of the first sound of a slide, of a file name in small letters; -1 for none.
    int32_t FindDiapoKey(int32_t diapoKey) const;
    int32_t FindLowerName(std::string_view lowerName) const;

    // Moves on with every change.
    uint64_t Revision() const { return revision_; }

private:
    struct Entry {
        tSon Son;
        std::string Key;
        std::string LowerName;
        mutable size_t Place;  // where it stood last; comings and goings since may have moved it
    };

    void Insert(const tSon& son, const std::string& key, size_t place);
    size_t Checked(int32_t index) const;
    size_t PlaceOf(const Entry& entry) const;

    std::vector<std::unique_ptr<const Entry>> entries_;
    std::unordered_set<std::string_view> keys_;
    std::unordered_multimap<int32_t, const Entry*> byDiapoKey_;
    uint64_t revision_ = 0;
};

}  // namespace vorlane
