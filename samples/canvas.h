// Canvas: the raster on which a sample picture is painted, in float colours. Places are given as (u, v) in heights of
// the picture: v from 0 at the top to 1 at the bottom, u from 0 at the left to Aspect() at the right.
#pragma once

#include "samples/color.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <vector>

#include <QImage>
#include <QPainter>

namespace samples {

class Canvas {
public:
    Canvas(int width, int height);

    int Width() const { return width_; }
    int Height() const { return height_; }
    float Aspect() const { return static_cast<float>(width_) / static_cast<float>(height_); }
    // One pixel, in heights.
    float Pixel() const { return 1 / static_cast<float>(height_); }
    // The middle of a column or row of pixels.
    float Place(int pixel) const { return (static_cast<float>(pixel) + 0.5F) / static_cast<float>(height_); }
    Color& At(int x, int y) { return pixels_[static_cast<size_t>(y) * static_cast<size_t>(width_) + Size(x)]; }
    // The colour near a place, which is brought inside.
    Color Sample(float u, float v) const;

    // Calls paint(u, v, pixel) for each pixel between top and bottom; the pixel's colour may be changed.
    template <class Paint>
    void Each(Paint paint, float top = 0, float bottom = 1) {
        EachIn(0, top, Aspect(), bottom, paint);
    }
    template <class Paint>
    void EachIn(float left, float top, float right, float bottom, Paint paint) {
        const int lastX = Inside(right, width_);
        const int lastY = Inside(bottom, height_);
        const int firstX = Inside(left, width_);
        for (int y = Inside(top, height_); y < lastY; ++y) {
            for (int x = firstX; x < lastX; ++x) paint(Place(x), Place(y), At(x, y));
        }
    }

    // Paints what lies below a line: line(u) gives its v, fill(u, v, pixel) the colour, which covers softly at the
    // edge.
    template <class Line, class Fill>
    void Below(Line line, Fill fill) {
        for (int x = 0; x < width_; ++x) {
            const float u = Place(x);
            const float edges[] = {line(u - Pixel() / 3), line(u), line(u + Pixel() / 3)};
            const float highest = std::min({edges[0], edges[1], edges[2]});
            for (int y = Inside(highest, height_); y < height_; ++y) {
                const float v = Place(y);
                float cover = 0;
                for (const float edge : edges) cover += Clamp01((v - edge) / Pixel() + 0.5F) / 3;
                Color& pixel = At(x, y);
                pixel = Mix(pixel, fill(u, v, pixel), cover);
            }
        }
    }

    // A disc with an edge soft over the given width, mixed in with strength.
    void Disc(float u, float v, float radius, float softness, Color color, float strength = 1);
    // Light around a place, added; it falls to a third at the radius.
    void Glow(float u, float v, float radius, Color color);
    // Draws with QPainter, in heights, smooth edges.
    void Draw(const std::function<void(QPainter&)>& draw, float opacity = 1);
    // Softens the whole picture over about radius (heights).
    void Blur(float radius);

    // The finished picture at a size, with a fine grain and corners a little darker.
    QImage Finish(QSize size, uint32_t seed) const;

private:
    static size_t Size(int value) { return static_cast<size_t>(value); }
    int Inside(float place, int limit) const {
        return static_cast<int>(
            std::clamp(std::floor(place * static_cast<float>(height_)), 0.0F, static_cast<float>(limit)));
    }
    QImage Developed() const;

    int width_;
    int height_;
    std::vector<Color> pixels_;
};

}  // namespace samples
