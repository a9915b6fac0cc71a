// What stands in the skies of the sample pictures: the sky itself, sun and moon, clouds, stars, northern lights.
#pragma once

#include "samples/canvas.h"

namespace samples {

// Colours from the top (0) to the horizon (1), which stands at v; below it the horizon's colour goes on.
void Sky(Canvas& canvas, const Ramp& colors, float horizon = 1);

struct Sun {
    float U, V;
    float Radius;
    Color Disc;
    Color Light;   // added around the disc
    float Spread;  // how far the light goes
};
void PaintSun(Canvas& canvas, const Sun& sun);

struct Clouds {
    float Horizon;  // where the ceiling of clouds meets the earth
    float Cover;    // 0 none to 1 all
    float Size;     // of a cloud overhead, in heights
    Color Lit;
    Color Shaded;
    float SunU, SunV;  // the side that is lit
    uint32_t Seed;
    float Stretch = 1;  // above 1: drawn out across the picture
};
// A ceiling of clouds that runs to the horizon.
void PaintClouds(Canvas& canvas, const Clouds& clouds);

// Clouds that tower, seen from the side, their feet near base; size is that of one cloud.
void PaintCumulus(Canvas& canvas, float base, float size, Color lit, Color shaded, uint32_t seed);

// Stars down to v, more of them small than large.
void PaintStars(Canvas& canvas, int count, float down, uint32_t seed);

// The band of the galaxy through (u, v), inclined by angle (radians).
void PaintMilkyWay(Canvas& canvas, float u, float v, float angle, uint32_t seed);

// Curtains of light over the upper part down to about v.
void PaintAurora(Canvas& canvas, float down, Color low, Color high, uint32_t seed);

// A full moon with its seas.
void PaintMoon(Canvas& canvas, float u, float v, float radius);

}  // namespace samples
