// The plainest list of items, to compare the library's own with.
#pragma once

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace vorlane {

struct PlainItem {
    std::string Text;
    int32_t Key = 0;
    bool Selected = false;
};

using PlainItems = std::vector<PlainItem>;

inline int32_t FirstWithKey(const PlainItems& items, int32_t key) {
    const auto found = std::find_if(items.begin(), items.end(), [&](const PlainItem& item) { return item.Key == key; });
    return found == items.end() ? -1 : static_cast<int32_t>(found - items.begin());
}

inline std::vector<int32_t> SelectedIndices(const PlainItems& items) {
    std::vector<int32_t> indices;
    for (size_t i = 0; i < items.size(); ++i) {
        if (items[i].Selected) indices.push_back(static_cast<int32_t>(i));
    }
    return indices;
}

class Dice {
public:
    explicit Dice(uint32_t seed) : random_(seed) {}
    // A number from 0 to limit - 1.
    int32_t Below(int32_t limit) { return static_cast<int32_t>(random_() % static_cast<uint32_t>(limit)); }
    bool OneIn(int32_t chances) { return Below(chances) == 0; }
    // Most are short, some empty, a few long enough for a length of several bytes.
    std::string Text() {
        if (OneIn(10)) return {};
        const int32_t length = OneIn(50) ? Below(40'000) : Below(OneIn(5) ? 300 : 40);
        std::string text(static_cast<size_t>(length), '\0');
        for (char& unit : text) unit = static_cast<char>(Below(256));
        return text;
    }
    std::mt19937& Engine() { return random_; }

private:
    std::mt19937 random_;
};

}  // namespace vorlane
