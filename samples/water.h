// Water in the sample pictures: still water that mirrors, and the open sea.
#pragma once

#include "samples/canvas.h"

namespace samples {

struct Mirror {
    float Shore;   // v, the line that it mirrors about
    float Ripple;  // 0 glass to 1 broken by wind
    Color Tint;    // what the water makes of white
    Color Deep;    // its own colour, which shows towards the bottom
    uint32_t Seed;
};
// Water from the shore down, mirroring what is painted above it.
void PaintMirror(Canvas& canvas, const Mirror& mirror);

struct Sea {
    float Horizon;
    Color Far;    // under the horizon
    Color Near;   // at the bottom
    Color Crest;  // light on the waves
    float SunU;   // where the path of glitter stands
    Color Glitter;
    float Path;   // width of that path at the horizon; 0 for none
    float Swell;  // 0 calm to 1 rough
    uint32_t Seed;
};
void PaintSea(Canvas& canvas, const Sea& sea);

// A small boat with two white sails, its keel at (u, v).
void PaintBoat(Canvas& canvas, float u, float v, float height, Color sail, Color hull);

}  // namespace samples
