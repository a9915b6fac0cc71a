#include "platform/itemblock.h"

#include "platform/failure.h"
#include "platform/prefetch.h"

#include <algorithm>
#include <utility>

namespace vorlane {

namespace {

// How much of the texts' memory may be idle, as room for more or as waste: a sixteenth, and a little for small blocks.
constexpr size_t Slack(size_t textBytes) {
    return textBytes / 16 + 64;
}

}  // namespace

void ItemBlock::Insert(size_t index, std::string_view text) {
    const uint32_t begin = Put(text);
    std::copy_backward(begins_.begin() + index, begins_.begin() + count_, begins_.begin() + count_ + 1);
    std::copy_backward(keys_.begin() + index, keys_.begin() + count_, keys_.begin() + count_ + 1);
    begins_[index] = begin;
    keys_[index] = 0;
    const Bits before = FirstBits(index);
    selected_ = (selected_ & before) | (selected_ & ~before) << 1;
    ++count_;
}

void ItemBlock::Remove(size_t index) {
    Drop(index);
    std::copy(begins_.begin() + index + 1, begins_.begin() + count_, begins_.begin() + index);
    std::copy(keys_.begin() + index + 1, keys_.begin() + count_, keys_.begin() + index);
    const Bits before = FirstBits(index);
    selected_[index] = false;
    selected_ = (selected_ & before) | (selected_ & ~before) >> 1;
    --count_;
    TrimWaste();
}

void ItemBlock::SetText(size_t index, std::string_view text) {
    const uint32_t begin = Put(text);
    Drop(index);
    begins_[index] = begin;
    TrimWaste();
}

// The texts lie anywhere, so all are asked for before the first is read.
void ItemBlock::AppendAll(std::span<const ItemView> items) {
    constexpr size_t cacheLine = 64;
    size_t bytes = 0;
    for (const auto& [text, key, selected] : items) {
        bytes += TextArena::RecordBytes(text.size());
        for (size_t at = 0; at < text.size(); at += cacheLine) Prefetch(text.data() + at);
    }
    Repack(bytes);
    for (const ItemView& item : items) Append(item);
}

void ItemBlock::Append(const ItemView& item) {
    begins_[count_] = texts_.Append(item.Text);
    keys_[count_] = item.Key;
    selected_[count_] = item.Selected;
    ++count_;
}

void ItemBlock::MoveTail(size_t index, ItemBlock& to) {
    size_t bytes = 0;
    for (size_t i = index; i < count_; ++i) bytes += RecordBytes(i);
    to.Repack(bytes);
    for (size_t i = index; i < count_; ++i) to.Append(Item(i));
    selected_ &= FirstBits(index);
    count_ = static_cast<uint32_t>(index);
    waste_ += static_cast<uint32_t>(bytes);
    TrimWaste();
}

size_t ItemBlock::TextBytes() const {
    size_t bytes = 0;
    for (size_t i = 0; i < count_; ++i) bytes += Text(i).size();
    return bytes;
}

uint32_t ItemBlock::Put(std::string_view text) {
    const size_t bytes = TextArena::RecordBytes(text.size());
    if (texts_.Room() < bytes) Repack(bytes + Slack(texts_.Size()));
    return texts_.Append(text);
}

// Too little memory to copy to is no reason for a removal to fail.
void ItemBlock::TrimWaste() {
    if (waste_ > Slack(texts_.Size())) Attempt([&] { Repack(0); });
}

void ItemBlock::Repack(size_t room) {
    const size_t wanted = texts_.Size() - waste_ + room;
    if (waste_ == 0) {
        texts_.Reserve(wanted);
        return;
    }
    TextArena packed;
    packed.Reserve(wanted);
    for (size_t i = 0; i < count_; ++i) begins_[i] = packed.Append(Text(i));
    texts_ = std::move(packed);
    waste_ = 0;
}

}  // namespace vorlane
