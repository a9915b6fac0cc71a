// Seas, beaches, lakes.
#include "samples/land.h"
#include "samples/noise.h"
#include "samples/picture.h"
#include "samples/sky.h"
#include "samples/water.h"

namespace samples {
namespace {

void SeaSunset(Canvas& canvas) {
    Sky(canvas, {{0, 0x31417A}, {0.45F, 0xB5648A}, {0.8F, 0xFF9A5C}, {1, 0xFFD88A}}, 0.56F);
    PaintClouds(canvas, {0.57F, 0.48F, 0.55F, 0xFFC08A, 0x7D4E7E, 0.8F, 0.5F, 301, 2.2F});
    PaintSun(canvas, {0.8F, 0.5F, 0.036F, 0xFFF2C0, Color(0xFF9440) * 0.5F, 0.16F});
    PaintSea(canvas, {0.56F, 0xE58C66, 0x1C2C52, 0xB9708A, 0.8F, 0xFFB765, 0.1F, 0.4F, 302});
}

void Beach(Canvas& canvas) {
    Sky(canvas, {{0, 0x2A86D8}, {0.7F, 0x8CCBF0}, {1, 0xE2F3F5}}, 0.42F);
    PaintCumulus(canvas, 0.4F, 0.22F, 0xFFFFFF, 0xB3C9DC, 311);
    PaintSea(canvas, {0.42F, 0x1E6FA8, 0x4FD0C8, 0xE8FFFA, 0, 0x000000, 0, 0.25F, 312});
    PaintBoat(canvas, 1.08F, 0.445F, 0.075F, 0xFFFFFF, 0x2B4C74);
    const auto shore = [](float u) {
        return 0.74F - 0.09F * u + 0.025F * Noise(u * 2.2F, 0, 313) + 0.006F * Noise(u * 12, 0, 314);
    };
    canvas.Below([&](float u) { return shore(u) - 0.012F; },
                 [&](float u, float v, Color water) {
                     const float lace = Ridged(u * 9, v * 22, 4, 315);
                     return Mix(water, Color(0xFFFFFF), SmoothStep(0.45F, 0.75F, lace + 0.25F));
                 });
    canvas.Below(shore, [&](float u, float v, Color) {
        const float dry = SmoothStep(0, 0.13F, v - shore(u) + 0.02F * Noise(u * 5, 2, 316));
        const float grains = 0.05F * Fractal(u * 26, v * 40, 4, 317);
        const float foam = SmoothStep(0.016F, 0, v - shore(u) - 0.004F * Noise(u * 30, 0, 318));
        const Color sand = Mix(Color(0xB9935F), Color(0xF1DCA9), dry) * (1 + grains);
        return Mix(sand, Color(0xFFFFFF), foam * 0.9F);
    });
    const auto brush = [](uint32_t rgb) { return QColor(QRgb(0xFF000000U | rgb)); };
    canvas.Draw([&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(60, 40, 20, 70));
        painter.drawEllipse(QPointF(0.43, 0.93), 0.2, 0.028);
        painter.setBrush(brush(0xE6E0D4));
        painter.drawRect(QRectF(0.327, 0.6, 0.008, 0.33));
        const uint32_t cloth[] = {0xE2463F, 0xFBF7EE, 0xE2463F, 0xFBF7EE, 0xE2463F};
        for (int i = 0; i < 5; ++i) {  // the five visible panels of the sunshade
            const double left = -0.2 + 0.08 * i;
            QPolygonF panel;
            for (int k = 0; k <= 8; ++k) {
                const double x = left + 0.08 * k / 8;
                panel << QPointF(0.331 + x, 0.68 - 0.012 * std::sin(k * 3.1416 / 8));
            }
            panel << QPointF(0.331, 0.55);
            painter.setBrush(brush(cloth[i]));
            painter.drawPolygon(panel);
        }
    });
}

void Moonlight(Canvas& canvas) {
    Sky(canvas, {{0, 0x060B1E}, {0.6F, 0x13264A}, {1, 0x2E4A74}}, 0.5F);
    PaintStars(canvas, 500, 0.45F, 320);
    PaintClouds(canvas, {0.51F, 0.4F, 0.5F, 0x8FA3C4, 0x16233F, 1, 0.2F, 321, 2});
    PaintMoon(canvas, 1.0F, 0.2F, 0.055F);
    PaintSea(canvas, {0.5F, 0x2A456C, 0x050B1A, 0x53709A, 1.0F, 0xC9D6EA, 0.09F, 0.5F, 322});
    PaintBoat(canvas, 0.42F, 0.56F, 0.11F, 0x1B2742, 0x080D18);
}

void StillLake(Canvas& canvas) {
    Sky(canvas, {{0, 0x3C7CC0}, {0.7F, 0xA6CDE8}, {1, 0xF3EBDD}}, 0.52F);
    PaintClouds(canvas, {0.5F, 0.42F, 0.45F, 0xFFFFFF, 0xA9BCD3, 0.3F, 0.1F, 331, 1.4F});
    PaintRidge(canvas, {0.4F, 0.22F, 0.6F, 1, 0x8593AB, 0xC3D0DD, 0.3F, 332});
    PaintRidge(canvas, {0.47F, 0.09F, 0.5F, 0.4F, 0x4F6E66, 0x8FA79E, 0.18F, 333});
    PaintConifers(
        canvas, [](float u) { return 0.525F + 0.01F * Noise(u * 3, 0, 334); }, 0.085F, 9, 0x1D3B30, 335);
    PaintMirror(canvas, {0.53F, 0.1F, 0xD6E4EA, 0x16384E, 336});
}

void AutumnLake(Canvas& canvas) {
    Sky(canvas, {{0, 0x86A9C4}, {0.7F, 0xD5DDD6}, {1, 0xF6E9CF}}, 0.5F);
    PaintRanges(canvas, {0.34F, 4, 0.1F, 0.4F, 0xA9AEB4, 0x6A5A3C, 0xE0D6C4, 341});
    canvas.Below([](float u) { return 0.47F + 0.03F * Noise(u * 1.6F, 0, 343); },
                 [](float u, float v, Color) {
                     return Mix(Color(0x8A8250), Color(0xB98A4A), Clamp01(0.5F + Fractal(u * 12, v * 40, 3, 346)));
                 });
    Random random(342);
    const Color hues[] = {0xD98A2B, 0xC25B2A, 0xE6B83E, 0x8F8B3A, 0xA8442C, 0x5E7040};
    for (int i = 0; i < 60; ++i) {  // the wood on the bank, from its back to its front
        const float near = static_cast<float>(i) / 60;
        const float u = random.Between(-0.05F, canvas.Aspect() + 0.05F);
        const float foot = Mix(0.47F + 0.03F * Noise(u * 1.6F, 0, 343), 0.565F, near);
        const Color hue = Mix(Color(0xB9A58C), hues[random.Below(6)], 0.6F + 0.4F * near);
        PaintLeafTree(canvas, u, foot, random.Between(0.13F, 0.2F), hue, random.Next());
    }
    PaintMirror(canvas, {0.56F, 0.22F, 0xDCDCD0, 0x2A3A3C, 345});
}

void Sailing(Canvas& canvas) {
    Sky(canvas, {{0, 0x3F8FD6}, {0.7F, 0xA4D3EE}, {1, 0xEEF4EE}}, 0.6F);
    PaintClouds(canvas, {0.6F, 0.45F, 0.5F, 0xFFFFFF, 0xB6C7DA, 0.1F, 0.1F, 351, 1.6F});
    PaintRidge(canvas, {0.6F, 0.03F, 0.4F, 0.5F, 0x8EA9C0, 0xB8CBD8, 0.05F, 352});
    PaintSea(canvas, {0.6F, 0x3E86B4, 0x0D3F6A, 0x9FD6EC, 0.9F, 0x586068, 0.3F, 0.9F, 353});
    PaintBoat(canvas, 0.38F, 0.72F, 0.42F, 0xFDFCF8, 0x24405F);
    PaintBoat(canvas, 0.76F, 0.63F, 0.09F, 0xF2F4F4, 0x5A2F2A);
    PaintBoat(canvas, 0.9F, 0.618F, 0.05F, 0xEDEFF0, 0x3A4450);
}

void Storm(Canvas& canvas) {
    Sky(canvas, {{0, 0x2A343E}, {0.7F, 0x5C6B74}, {1, 0xB4B5A6}}, 0.48F);
    PaintClouds(canvas, {0.49F, 0.86F, 0.6F, 0x9AA4A8, 0x262E38, 1.4F, 0.4F, 361, 1.4F});
    PaintSea(canvas, {0.48F, 0x66777A, 0x12262C, 0xB9CBC8, 1.3F, 0x9A9C94, 0.2F, 1.5F, 362});
    const auto rock = [](float u) { return 0.66F + 0.42F * u + 0.06F * Fractal(u * 5, 0, 4, 363) - 0.03F; };
    canvas.Below(rock,
                 [](float u, float v, Color) { return Color(0x14191C) * (1 + 0.5F * Fractal(u * 8, v * 12, 4, 364)); });
    canvas.Draw([](QPainter& painter) {  // the lighthouse
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xE9E6DD));
        painter.drawPolygon(QPolygonF({{0.145, 0.3}, {0.205, 0.3}, {0.225, 0.78}, {0.125, 0.78}}));
        painter.setBrush(QColor(0xA93A32));
        painter.drawPolygon(QPolygonF({{0.1405, 0.4}, {0.2095, 0.4}, {0.2135, 0.5}, {0.1365, 0.5}}));
        painter.drawPolygon(QPolygonF({{0.1315, 0.6}, {0.2185, 0.6}, {0.2225, 0.7}, {0.1275, 0.7}}));
        painter.setBrush(QColor(0x22282C));
        painter.drawRect(QRectF(0.137, 0.285, 0.076, 0.016));
        painter.drawPolygon(QPolygonF({{0.146, 0.232}, {0.175, 0.195}, {0.204, 0.232}}));
        painter.setBrush(QColor(0xFFF1B8));
        painter.drawRect(QRectF(0.152, 0.232, 0.046, 0.053));
    });
    canvas.Glow(0.175F, 0.258F, 0.05F, Color(0xFFE9A8) * 0.8F);
    canvas.Each([](float u, float v, Color& pixel) {  // its beam
        const float along = u - 0.175F;
        if (along <= 0) return;
        const float aside = (v - 0.258F + along * 0.06F) / (0.012F + along * 0.09F);
        pixel = pixel + Color(0xFFF0C0) * (0.34F * std::exp(-aside * aside) * std::exp(-along * 1.1F));
    });
    canvas.Below(rock,
                 [](float u, float v, Color) { return Color(0x14191C) * (1 + 0.5F * Fractal(u * 8, v * 12, 4, 364)); });
}

void NamelessLake(Canvas& canvas) {
    Sky(canvas, {{0, 0x4A4E8C}, {0.5F, 0xC98AA6}, {1, 0xFFD9B0}}, 0.5F);
    PaintRanges(canvas, {0.36F, 4, 0.12F, 0.8F, 0xB98CA4, 0x2C2748, 0xF0C0B0, 371});
    PaintMirror(canvas, {0.58F, 0.18F, 0xE6D4DC, 0x241F40, 372});
}

void Lagoon(Canvas& canvas) {
    Sky(canvas, {{0, 0x1F8AD8}, {0.7F, 0x86D2F0}, {1, 0xE6F8F2}}, 0.38F);
    PaintCumulus(canvas, 0.37F, 0.2F, 0xFFFFFF, 0xB9D0E0, 383);
    PaintSea(canvas, {0.38F, 0x0F6FA4, 0x7BE8D6, 0xF2FFF8, 0, 0x000000, 0, 0.2F, 381});
    canvas.Each(
        [](float u, float v, Color& pixel) {  // light on the sandy ground
            const float far = 1 / (v - 0.36F);
            const float net = Ridged(u * far * 2.2F, far * 5, 3, 382);
            const float depth = SmoothStep(0.42F, 0.95F, v);
            pixel = Mix(pixel, Color(0xD8FFF0), 0.75F * depth * SmoothStep(0.72F, 0.95F, net));
        },
        0.4F);
}

void Waves(Canvas& canvas) {
    Sky(canvas, {{0, 0xE9B8A0}, {1, 0xFBE3C4}}, 0.3F);
    PaintSun(canvas, {1.0F, 0.16F, 0.05F, 0xFFF6DC, Color(0xFFC090) * 0.35F, 0.2F});
    for (int i = 0; i < 9; ++i) {  // paper-like waves, one before the other
        const float near = static_cast<float>(i) / 8;
        const float base = 0.26F + 0.72F * near * (0.6F + 0.4F * near);
        const auto seed = static_cast<uint32_t>(391 + i);
        const auto crest = [&](float u) {
            const float x = u * (3.4F - 1.9F * near) + Hash(i, 0, 390) * 9;
            return base + (0.012F + 0.04F * near) * (std::sin(x * 2.2F) + 0.5F * Noise(x, 0, seed));
        };
        const Color color = Mix(Color(0xE7B7A2), Color(0x123B5C), std::pow(near, 0.7F));
        canvas.Below([&](float u) { return crest(u) - 0.02F; },
                     [&](float u, float v, Color back) {
                         return back * (1 - 0.2F * SmoothStep(crest(u) - 0.02F, crest(u), v));
                     });
        canvas.Below(crest, [&](float u, float v, Color) {
            return Mix(color * 1.12F, color * 0.9F, SmoothStep(0, 0.12F, v - crest(u)));
        });
    }
}

}  // namespace

std::vector<Picture> Waters() {
    return {
        {"Coucher de soleil sur la mer.jpg", {3000, 2000}, SeaSunset},
        {"Été à la plage.jpg", {2400, 1600}, Beach},
        {"Clair de lune.jpg", {2048, 1536}, Moonlight},
        {"Lac immobile.jpg", {4000, 3000}, StillLake},
        {"Reflets d'automne.jpg", {2400, 1600}, AutumnLake},
        {"Voilier au large.jpg", {1333, 2000}, Sailing, 6},
        {"Tempête.jpg", {2560, 1440}, Storm},
        {"Lac sans nom", {1500, 1000}, NamelessLake},
        {"Lagon.webp", {1280, 720}, Lagoon},
        {"Vagues de papier.jpg", {2000, 1333}, Waves},
    };
}

}  // namespace samples
