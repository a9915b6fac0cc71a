// PrefixSums: a sequence of whole numbers of 0 or more that tells the sum of its first ones, and which one a sum lies
// in, in steps of the logarithm of its length. An insertion or erasure rewrites the sequence, but for one at
// its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorlane {

class PrefixSums {
public:
    struct Place {
        size_t Ordinal;  // which number the sum lies in
        int32_t Rest;    // what the numbers before it leave of the sum
    };

    size_t Size() const { return size_; }
    // Sum of the numbers in front of ordinal (0 to Size()).
    int32_t Before(size_t ordinal) const;
    // The number that sum (0 or more) lies in: Before(ordinal) <= sum < Before(ordinal + 1), so never a 0. A sum that
    // is not below the total lies in none: Ordinal is Size().
    Place Find(int32_t sum) const;

    void Add(size_t ordinal, int32_t delta);
    void Insert(size_t ordinal, int32_t number);
    void Erase(size_t ordinal);
    // The next Insert needs no memory.
    void ReserveOne();

    size_t StorageBytes() const { return nodes_.capacity() * sizeof(int32_t); }

private:
    void Push(int32_t number);
    void Pad();
    void ToNumbers();
    void ToSums();

    // A binary indexed tree: node i, counted from 1, holds the sum of as many numbers up to the i-th as i's lowest bit
    // says. Behind the last node come nodes that no sum reaches, up to one less than a power of two: a search then goes
    // down the tree without a branch.
    std::vector<int32_t> nodes_;
    size_t size_ = 0;
};

}  // namespace vorlane
