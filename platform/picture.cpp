#include "platform/picture.h"

namespace vorlane {

namespace {

constexpr double kHiMetricPerPixel = 2540.0 / 96.0;

}  // namespace

struct Picture::Body {
    PictureType type;
    double width;
    double height;
    std::shared_ptr<const PictureData> data;
};

Picture::Picture(PictureType type, double pixelWidth, double pixelHeight, std::shared_ptr<const PictureData> data)
    : body_(type == PictureType::None
                ? nullptr
                : std::make_shared<const Body>(
                      Body{type, pixelWidth * kHiMetricPerPixel, pixelHeight * kHiMetricPerPixel, std::move(data)})) {}

int16_t Picture::Type() const {
    return static_cast<int16_t>(body_ ? body_->type : PictureType::None);
}

double Picture::Width() const {
    return body_ ? body_->width : 0;
}

double Picture::Height() const {
    return body_ ? body_->height : 0;
}

const std::shared_ptr<const PictureData>& Picture::Data() const {
    static const std::shared_ptr<const PictureData> none;
    return body_ ? body_->data : none;
}

}  // namespace vorlane
