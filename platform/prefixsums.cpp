#include "platform/prefixsums.h"

#include <bit>
#include <limits>

namespace vorlane {

namespace {

// Larger than any sum that is searched for.
constexpr int32_t kUnreached = std::numeric_limits<int32_t>::max();

constexpr size_t LowestBit(size_t node) {
    return node & (~node + 1);
}

}  // namespace

int32_t PrefixSums::Before(size_t ordinal) const {
    int32_t sum = 0;
    for (size_t node = ordinal; node > 0; node -= LowestBit(node)) sum += nodes_[node - 1];
    return sum;
}

PrefixSums::Place PrefixSums::Find(int32_t sum) const {
    size_t passed = 0;
    for (size_t step = (nodes_.size() + 1) / 2; step > 0; step /= 2) {
        const int32_t node = nodes_[passed + step - 1];
        const bool pass = node <= sum;
        passed += pass ? step : 0;
        sum -= pass ? node : 0;
    }
    return {passed, sum};
}

void PrefixSums::Add(size_t ordinal, int32_t delta) {
    for (size_t node = ordinal + 1; node <= Size(); node += LowestBit(node)) nodes_[node - 1] += delta;
}

void PrefixSums::Insert(size_t ordinal, int32_t number) {
    ReserveOne();
    if (ordinal == size_) {
        Push(number);
        return;
    }
    ToNumbers();
    nodes_.resize(size_);
    nodes_.insert(nodes_.begin() + static_cast<std::ptrdiff_t>(ordinal), number);
    ++size_;
    Pad();
    ToSums();
}

void PrefixSums::Erase(size_t ordinal) {
    if (ordinal + 1 < size_) ToNumbers();
    nodes_.resize(size_);
    nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(ordinal));
    --size_;
    Pad();
    if (ordinal < size_) ToSums();
}

void PrefixSums::Push(int32_t number) {
    const size_t node = ++size_;
    Pad();
    nodes_[node - 1] = number;
    for (size_t below = node - 1; below > node - LowestBit(node); below -= LowestBit(below)) {
        nodes_[node - 1] += nodes_[below - 1];
    }
}

void PrefixSums::ReserveOne() {
    nodes_.reserve(std::bit_ceil(size_ + 2));
}

void PrefixSums::Pad() {
    nodes_.resize(std::bit_ceil(size_ + 1) - 1, kUnreached);
}

void PrefixSums::ToNumbers() {
    for (size_t node = size_; node > 0; --node) {
        const size_t parent = node + LowestBit(node);
        if (parent <= size_) nodes_[parent - 1] -= nodes_[node - 1];
    }
}

void PrefixSums::ToSums() {
    for (size_t node = 1; node <= size_; ++node) {
        const size_t parent = node + LowestBit(node);
        if (parent <= size_) nodes_[parent - 1] += nodes_[node - 1];
    }
}

}  // namespace vorlane
