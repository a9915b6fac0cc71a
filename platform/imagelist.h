// ImageList: numbered pictures, counted from 1.
#pragma once

#include "platform/failure.h"
#include "platform/picture.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace vorlane {

class ImageList {
public:
    ImageList() = default;
    explicit ImageList(std::vector<Picture> pictures) : pictures_(std::move(pictures)) {}

    int32_t Count() const { return static_cast<int32_t>(pictures_.size()); }
    void Add(Picture picture) { pictures_.push_back(std::move(picture)); }
    // Fails with SubscriptOutOfRange().
    const Picture& ListImage(int32_t number) const {
        if (number < 1 || number > Count()) throw failures::SubscriptOutOfRange();
        return pictures_[static_cast<size_t>(number - 1)];
    }

private:
    std::vector<Picture> pictures_;
};

}  // namespace vorlane
