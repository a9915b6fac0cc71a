// ListKeys: what the rows of a list are put in order by. The key of a row is one criterion of its text, in small
// letters; one that is numeric (see NumericValue) is the number. A number is below any text, numbers order as numbers,
// texts by character code. Each key is cut, lowered and parsed once, and kept in words that are compared as numbers.
#pragma once

#include "sheet/wordsort.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vorlane {

// Where in a text its key is: the criterion's field, from 1, of what stands in front of the first separator. An empty
// separator stands nowhere.
struct KeyPlace {
    uint8_t Criterion = 1;
    std::string_view Separator;
    std::string_view FieldSeparator;
};

// Rows in ascending order of their keys; rows of equal keys in ascending order.
struct KeyOrder {
    struct Run {
        size_t Begin;
        size_t End;
    };

    std::vector<int32_t> Rows;
    std::vector<Run> Ties;    // where in Rows equal keys stand, two or more together; ascending
    int64_t WordsSorted = 0;  // how many pieces of keys were brought in order, as a measure of the work
};

class ListKeys {
public:
    ListKeys(const KeyPlace& place, size_t rows);

    // The next row, from 0. Without the separator it has no key; but when the criterion isn't the first, it has the
    // empty text.
    void Add(std::string_view text);
    // The next row, whose key is all of this text.
    void AddKey(std::string_view text);

    int32_t Rows() const { return rows_; }
    // How many rows have no key.
    int32_t Keyless() const { return keyless_; }
    // The rows that have a key. Call it once, when all rows are there.
    KeyOrder Order();

private:
    void Append(std::string_view key);
    void OrderNumbers(KeyOrder& order);
    void OrderTexts(KeyOrder& order);
    void TakeWords(std::span<WordEntry> entries, size_t depth);
    template <class Visit>
    static void ForEachRun(std::span<const WordEntry> entries, Visit&& visit);

    KeyPlace place_;
    int32_t rows_ = 0;
    int32_t keyless_ = 0;
    std::vector<WordEntry> numbers_;
    std::vector<WordEntry> texts_;
    std::vector<uint64_t> words_;  // of the texts
    WordSort sort_;
};

}  // namespace vorlane
