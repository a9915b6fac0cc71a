#include "samples/canvas.h"

#include "samples/noise.h"

namespace samples {
namespace {

int ToLevel(float value, float offset) {
    return static_cast<int>(std::clamp(value * 255 + offset, 0.0F, 255.0F));
}

QRgb ToRgb(Color color, float offset) {
    return qRgb(ToLevel(color.R, offset), ToLevel(color.G, offset), ToLevel(color.B, offset));
}

Color FromRgb(QRgb rgb) {
    return Color(rgb & 0xFFFFFFU);
}

// A mean over 2 * reach + 1 neighbours along one line of pixels, stride apart.
void BlurLine(Color* line, int count, std::ptrdiff_t stride, int reach) {
    std::vector<Color> source(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) source[static_cast<size_t>(i)] = line[i * stride];
    const auto at = [&](int i) { return source[static_cast<size_t>(std::clamp(i, 0, count - 1))]; };
    Color sum;
    for (int i = -reach; i <= reach; ++i) sum = sum + at(i);
    for (int i = 0; i < count; ++i) {
        line[i * stride] = sum * (1 / static_cast<float>(2 * reach + 1));
        sum = sum + at(i + reach + 1) + at(i - reach) * -1;
    }
}

// Moves each level of each pixel by up to strength levels.
void AddGrain(QImage& image, float strength, uint32_t seed) {
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int shift = static_cast<int>(std::lround((Hash(x, y, seed) - 0.5F) * 2 * strength));
            const auto moved = [shift](int level) { return std::clamp(level + shift, 0, 255); };
            line[x] = qRgb(moved(qRed(line[x])), moved(qGreen(line[x])), moved(qBlue(line[x])));
        }
    }
}

}  // namespace

Canvas::Canvas(int width, int height) : width_(width), height_(height), pixels_(Size(width) * Size(height)) {}

Color Canvas::Sample(float u, float v) const {
    const int x = std::clamp(static_cast<int>(u * static_cast<float>(height_)), 0, width_ - 1);
    const int y = std::clamp(static_cast<int>(v * static_cast<float>(height_)), 0, height_ - 1);
    return pixels_[Size(y) * Size(width_) + Size(x)];
}

void Canvas::Disc(float u, float v, float radius, float softness, Color color, float strength) {
    const float reach = radius + softness;
    EachIn(u - reach, v - reach, u + reach, v + reach, [&](float x, float y, Color& pixel) {
        const float distance = std::hypot(x - u, y - v);
        pixel = Mix(pixel, color, strength * SmoothStep(radius + softness, radius - softness, distance));
    });
}

void Canvas::Glow(float u, float v, float radius, Color color) {
    const float reach = radius * 5;
    EachIn(u - reach, v - reach, u + reach, v + reach, [&](float x, float y, Color& pixel) {
        const float distance = std::hypot(x - u, y - v) / radius;
        pixel = pixel + color * (std::exp(-distance) * SmoothStep(5, 3, distance));
    });
}

void Canvas::Draw(const std::function<void(QPainter&)>& draw, float opacity) {
    QImage layer(width_, height_, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(height_, height_);
    draw(painter);
    painter.end();
    for (int y = 0; y < height_; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(layer.constScanLine(y));
        for (int x = 0; x < width_; ++x) {
            const float alpha = static_cast<float>(qAlpha(line[x])) / 255;
            At(x, y) = At(x, y) * (1 - alpha * opacity) + FromRgb(line[x]) * opacity;
        }
    }
}

void Canvas::Blur(float radius) {
    const int reach = std::max(1, static_cast<int>(radius * static_cast<float>(height_) / 2));
    for (int pass = 0; pass < 2; ++pass) {
        for (int y = 0; y < height_; ++y) BlurLine(&At(0, y), width_, 1, reach);
        for (int x = 0; x < width_; ++x) BlurLine(&At(x, 0), height_, width_, reach);
    }
}

QImage Canvas::Developed() const {
    QImage image(width_, height_, QImage::Format_RGB32);
    const float middle = Aspect() / 2;
    for (int y = 0; y < height_; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width_; ++x) {
            const float across = (Place(x) - middle) / middle;
            const float along = Place(y) * 2 - 1;
            const float light = 1 - 0.07F * (across * across + along * along);
            line[x] = ToRgb(pixels_[Size(y) * Size(width_) + Size(x)] * light, Hash(x, y, 1));
        }
    }
    return image;
}

QImage Canvas::Finish(QSize size, uint32_t seed) const {
    QImage image = Developed();
    if (image.size() != size) image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    AddGrain(image, 3, seed);
    return image;
}

}  // namespace samples
