#include "samples/noise.h"

#include "samples/color.h"

#include <array>
#include <cmath>

namespace samples {
namespace {

uint32_t HashBits(int x, int y, uint32_t seed) {
    uint32_t bits =
        static_cast<uint32_t>(x) * 0x27D4EB2DU ^ (static_cast<uint32_t>(y) + seed * 0x9E3779B1U) * 0x165667B1U;
    bits = (bits ^ bits >> 15) * 0x85EBCA6BU;
    bits = (bits ^ bits >> 13) * 0xC2B2AE35U;
    return bits ^ bits >> 16;
}

// The next whole number below; faster than the library's.
int Floor(float value) {
    const int cut = static_cast<int>(value);
    return cut - (value < static_cast<float>(cut) ? 1 : 0);
}

struct Slope {
    float X, Y;
};

// Sixteen directions around the circle.
constexpr std::array<Slope, 16> kSlopes{{{1, 0},
                                         {0.924F, 0.383F},
                                         {0.707F, 0.707F},
                                         {0.383F, 0.924F},
                                         {0, 1},
                                         {-0.383F, 0.924F},
                                         {-0.707F, 0.707F},
                                         {-0.924F, 0.383F},
                                         {-1, 0},
                                         {-0.924F, -0.383F},
                                         {-0.707F, -0.707F},
                                         {-0.383F, -0.924F},
                                         {0, -1},
                                         {0.383F, -0.924F},
                                         {0.707F, -0.707F},
                                         {0.924F, -0.383F}}};

float Pull(int x, int y, float dx, float dy, uint32_t seed) {
    const Slope slope = kSlopes[HashBits(x, y, seed) >> 28];
    return slope.X * dx + slope.Y * dy;
}

float Fade(float t) {
    return t * t * t * (t * (t * 6 - 15) + 10);
}

}  // namespace

uint32_t Random::Next() {
    state_ += 0x9E3779B97F4A7C15ULL;
    uint64_t bits = (state_ ^ state_ >> 30) * 0xBF58476D1CE4E5B9ULL;
    bits = (bits ^ bits >> 27) * 0x94D049BB133111EBULL;
    return static_cast<uint32_t>(bits >> 32);
}

float Hash(int x, int y, uint32_t seed) {
    return static_cast<float>(HashBits(x, y, seed) >> 8) / 16777216.0F;
}

float Noise(float x, float y, uint32_t seed) {
    const int ix = Floor(x);
    const int iy = Floor(y);
    const float dx = x - static_cast<float>(ix);
    const float dy = y - static_cast<float>(iy);
    const float fx = Fade(dx);
    const float above = Mix(Pull(ix, iy, dx, dy, seed), Pull(ix + 1, iy, dx - 1, dy, seed), fx);
    const float below = Mix(Pull(ix, iy + 1, dx, dy - 1, seed), Pull(ix + 1, iy + 1, dx - 1, dy - 1, seed), fx);
    return 1.4F * Mix(above, below, Fade(dy));
}

float Fractal(float x, float y, int octaves, uint32_t seed, float gain) {
    float sum = 0;
    float strength = 1;
    const float askew = 0.8F * x - 0.6F * y;
    y = 0.6F * x + 0.8F * y;
    x = askew;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * Noise(x, y, seed + static_cast<uint32_t>(i));
        strength *= gain;
        const float turned = 1.6F * x - 1.2F * y;  // each octave stands askew to the last, which hides the lattice
        y = 1.2F * x + 1.6F * y;
        x = turned;
    }
    return sum;
}

float Ridged(float x, float y, int octaves, uint32_t seed) {
    float sum = 0;
    float strength = 0.55F;
    float last = 1;
    for (int i = 0; i < octaves; ++i) {
        const float crest = 1 - std::abs(Noise(x, y, seed + static_cast<uint32_t>(i)));
        sum += strength * crest * crest * last;
        last = crest;
        strength *= 0.5F;
        const float turned = 1.6F * x - 1.2F * y;
        y = 1.2F * x + 1.6F * y;
        x = turned;
    }
    return sum;
}

}  // namespace samples
