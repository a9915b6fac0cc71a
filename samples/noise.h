// Chance that is the same on every run: a generator of random numbers and smooth noise, both from fixed seeds.
#pragma once

#include <cstdint>

namespace samples {

class Random {
public:
    explicit Random(uint32_t seed) : state_(seed * 0x9E3779B97F4A7C15ULL + 0x632BE59BD9B4E019ULL) {}

    uint32_t Next();
    // 0 up to, without, 1.
    float Unit() { return static_cast<float>(Next() >> 8) / 16777216.0F; }
    float Between(float low, float high) { return low + (high - low) * Unit(); }
    // 0 up to, without, count.
    int Below(int count) { return static_cast<int>(Unit() * static_cast<float>(count)); }
    bool Chance(float probability) { return Unit() < probability; }

private:
    uint64_t state_;
};

// A fixed random number, 0 to 1, for a place of the lattice.
float Hash(int x, int y, uint32_t seed);

// Smooth noise with features of size 1: about -1 to 1, 0 on average.
float Noise(float x, float y, uint32_t seed);

// Noise summed over octaves, each of half the size and gain times the strength of the one before.
float Fractal(float x, float y, int octaves, uint32_t seed, float gain = 0.5F);

// As Fractal with sharp crests: 0 to 1, highest on the crests.
float Ridged(float x, float y, int octaves, uint32_t seed);

}  // namespace samples
