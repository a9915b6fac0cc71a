#include "sheet/listkeys.h"

#include "platform/failure.h"
#include "platform/trelmic6.h"
#include "sheet/numerictext.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace vorlane {

namespace {

// A text is kept as words of seven bytes, the first one highest, and in the lowest byte how many of the word's bytes
// are the text's, or More when another word follows. Comparing words as numbers compares the texts, and words that
// are equal and not More end equal texts.
constexpr size_t WordBytes = 7;
constexpr uint64_t More = WordBytes + 1;

bool EndsText(uint64_t word) {
    return (word & 0xFFU) != More;
}

// Of seven bytes, with nothing yet in the lowest one.
uint64_t FullWord(const char* bytes) {
    const auto byte = [&](size_t i) { return uint64_t{static_cast<unsigned char>(bytes[i])}; };
    return byte(0) << 56 | byte(1) << 48 | byte(2) << 40 | byte(3) << 32 | byte(4) << 24 | byte(5) << 16 | byte(6) << 8;
}

uint64_t LastWord(std::string_view rest) {
    if (rest.empty()) return 0;
    uint64_t word = 0;
    for (const char c : rest) word = word << 8 | static_cast<unsigned char>(c);
    return word << 8 * (WordBytes + 1 - rest.size()) | rest.size();
}

// False only for a text that has no capital letter.
bool MayHoldCapitals(std::string_view text) {
    bool found = false;
    for (const char c : text) found |= (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
    return found;
}

}  // namespace

ListKeys::ListKeys(const KeyPlace& place, size_t rows) : place_(place) {
    texts_.reserve(rows);
    words_.reserve(rows * 3);
}

void ListKeys::Add(std::string_view text) {
    const size_t cut = place_.Separator.empty() ? std::string_view::npos : text.find(place_.Separator);
    if (cut != std::string_view::npos) {
        AddKey(Trelmic6::FieldViewAt(text.substr(0, cut), place_.Criterion, place_.FieldSeparator));
    } else if (place_.Criterion != 1) {
        AddKey({});
    } else {
        ++rows_;
        ++keyless_;
    }
}

void ListKeys::AddKey(std::string_view text) {
    if (MayHoldCapitals(text)) {
        Append(Trelmic6::LowerCase(text));
    } else {
        Append(text);
    }
}

void ListKeys::Append(std::string_view key) {
    const int32_t row = rows_++;
    if (const auto number = NumericValue(key)) {
        const auto word = static_cast<uint64_t>(int64_t{*number} - std::numeric_limits<int32_t>::min());
        numbers_.push_back({word, 0, row});
        return;
    }
    const size_t first = words_.size();
    if (first > std::numeric_limits<uint32_t>::max()) throw failures::OutOfMemory();
    for (; key.size() > WordBytes; key.remove_prefix(WordBytes)) words_.push_back(FullWord(key.data()) | More);
    words_.push_back(LastWord(key));
    texts_.push_back({words_[first], static_cast<uint32_t>(first), row});
}

KeyOrder ListKeys::Order() {
    KeyOrder order;
    OrderNumbers(order);
    OrderTexts(order);
    order.Rows.reserve(numbers_.size() + texts_.size());
    for (const WordEntry& entry : numbers_) order.Rows.push_back(entry.Row);
    for (const WordEntry& entry : texts_) order.Rows.push_back(entry.Row);
    const auto before = [](const KeyOrder::Run& a, const KeyOrder::Run& b) { return a.Begin < b.Begin; };
    std::sort(order.Ties.begin(), order.Ties.end(), before);
    return order;
}

void ListKeys::OrderNumbers(KeyOrder& order) {
    sort_.Sort(numbers_);
    order.WordsSorted += static_cast<int64_t>(numbers_.size());
    ForEachRun(numbers_, [&](size_t begin, size_t end) { order.Ties.push_back({begin, end}); });
}

// Sorts by the first words, then each run of equal ones by the next words, and so on.
void ListKeys::OrderTexts(KeyOrder& order) {
    struct Part {
        size_t Begin;
        size_t End;
        size_t Depth;
    };
    std::vector<Part> parts{{0, texts_.size(), 0}};
    while (!parts.empty()) {
        const Part part = parts.back();
        parts.pop_back();
        const std::span<WordEntry> entries = std::span(texts_).subspan(part.Begin, part.End - part.Begin);
        sort_.Sort(entries);
        order.WordsSorted += static_cast<int64_t>(entries.size());
        ForEachRun(entries, [&](size_t begin, size_t end) {
            const size_t first = numbers_.size() + part.Begin;
            if (EndsText(entries[begin].Word)) {
                order.Ties.push_back({first + begin, first + end});
            } else {
                TakeWords(entries.subspan(begin, end - begin), part.Depth + 1);
                parts.push_back({part.Begin + begin, part.Begin + end, part.Depth + 1});
            }
        });
    }
}

void ListKeys::TakeWords(std::span<WordEntry> entries, size_t depth) {
    for (WordEntry& entry : entries) entry.Word = words_[entry.Place + depth];
}

// Calls visit with the begin and the end of each run of two or more equal words.
template <class Visit>
void ListKeys::ForEachRun(std::span<const WordEntry> entries, Visit&& visit) {
    size_t begin = 0;
    for (size_t i = 1; i <= entries.size(); ++i) {
        if (i < entries.size() && entries[i].Word == entries[begin].Word) continue;
        if (i - begin > 1) visit(begin, i);
        begin = i;
    }
}

}  // namespace vorlane
