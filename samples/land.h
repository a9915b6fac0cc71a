// What stands on the ground of the sample pictures: ridges in haze, trees, and terrain seen in perspective.
#pragma once

#include "samples/canvas.h"

#include <functional>

namespace samples {

struct Ridge {
    float Base;    // v of its middle height
    float Height;  // of its peaks
    float Width;   // of a mountain
    float Rough;   // 0 rolling hills to 1 sharp rock
    Color Ground;  // at the crest
    Color Mist;    // at the foot
    float Depth;   // v from crest to full mist
    uint32_t Seed;
};
// The v of its crest.
float RidgeLine(const Ridge& ridge, float u);
void PaintRidge(Canvas& canvas, const Ridge& ridge);

// One ridge before the other from far, at horizon, to near, at the bottom; the colours go from far to near.
struct Ranges {
    float Horizon;
    int Count;
    float Height;
    float Rough;
    Color Far, Near;
    Color Mist;
    uint32_t Seed;
};
void PaintRanges(Canvas& canvas, const Ranges& ranges);

// A conifer standing at (u, v). Snow from 0 to 1 whitens its branches.
void PaintConifer(Canvas& canvas, float u, float v, float height, Color color, uint32_t seed, float snow = 0);
// A row of conifers along a line of the ground: line(u) is the v of their feet.
void PaintConifers(Canvas& canvas, const std::function<float(float)>& line, float height, float density, Color color,
                   uint32_t seed, float snow = 0);

// A round crown of leaves on a trunk, its foot at (u, v).
void PaintLeafTree(Canvas& canvas, float u, float v, float height, Color leaves, uint32_t seed);

// A place of a terrain and how the ground lies there.
struct Spot {
    float X, Height, Z;
    float Flat;      // 1 level ground to 0 a wall
    float Distance;  // from the eye
};

// Terrain in lengths of its own: the eye looks along z from (EyeX, EyeHeight, EyeZ).
struct Terrain {
    std::function<float(float x, float z)> Height;
    std::function<Color(const Spot&)> Ground;
    float EyeX, EyeHeight, EyeZ;
    float Horizon;  // v
    float Far;      // as far as is seen
    float SunX, SunY, SunZ;
    Color SunLight, Ambient;
    Color Haze;
    float HazeLength;  // where two thirds are haze
};
void PaintTerrain(Canvas& canvas, const Terrain& terrain);

}  // namespace samples
