// ReserveOne: room for one element more, so that what follows in an operation can't fail for want of memory.
#pragma once

#include <vector>

namespace vorlane {

// Grows by half, so that a vector filled one by one is copied a bounded number of times per element.
template <class T>
void ReserveOne(std::vector<T>& elements) {
    if (elements.size() == elements.capacity()) elements.reserve(elements.size() + elements.size() / 2 + 8);
}

}  // namespace vorlane
