// Colours of the sample pictures while they are painted: three floats, 0 black to 1 full, beyond 1 for light that is
// cut off at the end; and ramps of colours.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace samples {

struct Color {
    float R = 0;
    float G = 0;
    float B = 0;

    constexpr Color() = default;
    constexpr Color(float r, float g, float b) : R(r), G(g), B(b) {}
    // From 0xRRGGBB.
    constexpr Color(uint32_t rgb)  // NOLINT(google-explicit-constructor): palettes are tables of such numbers
        : R(static_cast<float>(rgb >> 16 & 255U) / 255),
          G(static_cast<float>(rgb >> 8 & 255U) / 255),
          B(static_cast<float>(rgb & 255U) / 255) {}

    friend constexpr Color operator+(Color a, Color b) { return {a.R + b.R, a.G + b.G, a.B + b.B}; }
    friend constexpr Color operator*(Color a, Color b) { return {a.R * b.R, a.G * b.G, a.B * b.B}; }
    friend constexpr Color operator*(Color a, float f) { return {a.R * f, a.G * f, a.B * f}; }
};

constexpr float Clamp01(float value) {
    return std::clamp(value, 0.0F, 1.0F);
}
constexpr float Mix(float a, float b, float t) {
    return a + (b - a) * t;
}
constexpr Color Mix(Color a, Color b, float t) {
    return a * (1 - t) + b * t;
}
// 0 below from, 1 above to, smooth between; from may be the greater.
constexpr float SmoothStep(float from, float to, float value) {
    const float t = Clamp01((value - from) / (to - from));
    return t * t * (3 - 2 * t);
}

// A colour for each place from 0 to 1, from colours at places in rising order.
class Ramp {
public:
    struct Stop {
        float Place;
        Color At;
    };
    Ramp(std::initializer_list<Stop> stops) : stops_(stops) {}

    Color operator()(float place) const {
        if (place <= stops_.front().Place) return stops_.front().At;
        for (size_t i = 1; i < stops_.size(); ++i) {
            const Stop& a = stops_[i - 1];
            const Stop& b = stops_[i];
            if (place < b.Place) return Mix(a.At, b.At, (place - a.Place) / (b.Place - a.Place));
        }
        return stops_.back().At;
    }

private:
    std::vector<Stop> stops_;
};

}  // namespace samples
