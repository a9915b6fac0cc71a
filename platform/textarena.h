// TextArena: texts packed one behind another in one piece of memory, each with its length in front. A text is named by
// where its record begins. The arena only grows at its end; its owner drops texts by copying the others to a new one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace vorlane {

class TextArena {
public:
    TextArena() = default;
    TextArena(TextArena&& other) noexcept { Swap(other); }
    TextArena& operator=(TextArena&& other) noexcept;

    // Bytes of the record of a text: its length takes one byte below 128, then one more for every 7 bits.
    static size_t RecordBytes(size_t length);
    // The bytes stay where they are until the next Reserve.
    std::string_view At(uint32_t begin) const;

    size_t Size() const { return size_; }
    size_t Capacity() const { return capacity_; }
    size_t Room() const { return capacity_ - size_; }

    // Makes the capacity exactly bytes, never below Size(). Fails with bad_alloc, at 4 GiB for sure.
    void Reserve(size_t bytes);
    // Where the record of text begins. There is Room() for RecordBytes(text.size()).
    uint32_t Append(std::string_view text);

private:
    struct Free {
        void operator()(char* bytes) const { std::free(bytes); }
    };

    void Swap(TextArena& other) noexcept;

    std::unique_ptr<char, Free> bytes_;
    uint32_t size_ = 0;
    uint32_t capacity_ = 0;
};

}  // namespace vorlane
