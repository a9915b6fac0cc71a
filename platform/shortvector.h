// ShortVector: a vector whose first few elements need no heap. For records that are made and dropped by the thousand
// and hold a handful of parts nearly always.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <type_traits>
#include <vector>

namespace vorlane {

template <class Element, size_t Near>
class ShortVector {
    static_assert(std::is_trivially_copyable_v<Element>);

public:
    ShortVector() = default;
    ShortVector(std::initializer_list<Element> elements) {
        if (elements.size() <= Near) {
            std::copy(elements.begin(), elements.end(), near_.begin());
            nearSize_ = elements.size();
        } else {
            far_ = elements;
        }
    }

    size_t size() const { return far_.empty() ? nearSize_ : far_.size(); }
    bool empty() const { return size() == 0; }
    const Element* begin() const { return far_.empty() ? near_.data() : far_.data(); }
    const Element* end() const { return begin() + size(); }
    // The index is below size().
    const Element& operator[](size_t index) const { return begin()[index]; }

    bool operator==(const ShortVector& other) const { return std::equal(begin(), end(), other.begin(), other.end()); }

private:
    std::array<Element, Near> near_{};
    size_t nearSize_ = 0;
    std::vector<Element> far_;  // all of them, where there are more
};

}  // namespace vorlane
