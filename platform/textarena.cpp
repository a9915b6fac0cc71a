#include "platform/textarena.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

namespace vorlane {

TextArena& TextArena::operator=(TextArena&& other) noexcept {
    TextArena taken(std::move(other));
    Swap(taken);
    return *this;
}

void TextArena::Swap(TextArena& other) noexcept {
    std::swap(bytes_, other.bytes_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
}

size_t TextArena::RecordBytes(size_t length) {
    size_t bytes = length + 1;
    for (size_t rest = length >> 7; rest > 0; rest >>= 7) ++bytes;
    return bytes;
}

std::string_view TextArena::At(uint32_t begin) const {
    const char* at = bytes_.get() + begin;
    size_t length = 0;
    for (int shift = 0;; shift += 7) {
        const auto part = static_cast<unsigned char>(*at++);
        length |= static_cast<size_t>(part & 0x7FU) << shift;
        if (part < 0x80) return {at, length};
    }
}

// realloc and not a vector: an arena at the end of the heap grows and shrinks in place, so that a list which is filled
// from front to end copies little and leaves no holes.
void TextArena::Reserve(size_t bytes) {
    const size_t wanted = std::max(bytes, Size());
    if (wanted == capacity_) return;
    if (wanted > std::numeric_limits<uint32_t>::max()) throw std::bad_alloc();
    if (wanted == 0) {
        *this = TextArena{};
        return;
    }
    auto* moved = static_cast<char*>(std::realloc(bytes_.get(), wanted));
    if (moved == nullptr) throw std::bad_alloc();
    static_cast<void>(bytes_.release());
    bytes_.reset(moved);
    capacity_ = static_cast<uint32_t>(wanted);
}

uint32_t TextArena::Append(std::string_view text) {
    const uint32_t begin = size_;
    char* at = bytes_.get() + begin;
    size_t rest = text.size();
    for (; rest >= 0x80; rest >>= 7) *at++ = static_cast<char>(rest | 0x80U);
    *at++ = static_cast<char>(rest);
    if (!text.empty()) std::memcpy(at, text.data(), text.size());
    size_ = static_cast<uint32_t>(begin + RecordBytes(text.size()));
    return begin;
}

}  // namespace vorlane
