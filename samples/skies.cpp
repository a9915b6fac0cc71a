// Skies by day and by night.
#include "samples/land.h"
#include "samples/noise.h"
#include "samples/picture.h"
#include "samples/sky.h"
#include "samples/water.h"

#include <numbers>

#include <QPainterPath>

namespace samples {
namespace {

void AprilSky(Canvas& canvas) {
    Sky(canvas, {{0, 0x1F6CC0}, {0.6F, 0x6FB0E4}, {1, 0xD6EAF4}}, 0.95F);
    PaintCumulus(canvas, 0.9F, 0.42F, 0xF4F8FC, 0xB4C6DA, 405);
    PaintCumulus(canvas, 0.68F, 0.62F, 0xFFFFFF, 0x9FB3CC, 402);
    PaintRidge(canvas, {0.95F, 0.03F, 0.5F, 0.1F, 0x3F6A3A, 0x3F6A3A, 0.2F, 403});
}

void SeaOfClouds(Canvas& canvas) {
    Sky(canvas, {{0, 0x2E6CB2}, {0.6F, 0x92BEE0}, {1, 0xFFE9CC}}, 0.52F);
    PaintSun(canvas, {1.2F, 0.4F, 0.025F, 0xFFFBE8, Color(0xFFD49A) * 0.35F, 0.2F});
    PaintRidge(canvas, {0.5F, 0.12F, 0.5F, 0.9F, 0x6F86A6, 0xC6D2E0, 0.16F, 411});
    for (int i = 0; i < 6; ++i) {  // banks of cloud, from far to near
        const float near = static_cast<float>(i) / 5;
        const float base = 0.54F + 0.4F * near;
        const auto seed = static_cast<uint32_t>(412 + i * 10);
        const float scale = 4.5F - 3 * near;
        const auto top = [&](float u) {
            return base - (0.02F + 0.07F * near) * (Fractal(u * scale * 0.5F, 0, 2, seed) +
                                                    0.35F * (1 - std::abs(Noise(u * scale * 2, 3, seed))));
        };
        canvas.Below(top, [&](float u, float v, Color back) {
            const float down = (v - top(u)) / (0.10F + 0.16F * near);
            const float puffs = 0.16F * Fractal(u * scale * 2.2F, v * scale * 4.5F, 4, seed + 5);
            const Color cloud = Mix(Color(0xFFF6EA), Color(0x9FB4D2), Clamp01(down * 0.75F + puffs + 0.05F));
            return Mix(back, cloud, SmoothStep(0, 0.25F, down + 0.05F));
        });
        if (i == 1) PaintRidge(canvas, {0.68F, 0.1F, 0.4F, 0.9F, 0x3B5274, 0xAFC0D6, 0.14F, 419});
    }
}

void PinkClouds(Canvas& canvas) {
    Sky(canvas, {{0, 0x4A6FB4}, {0.5F, 0xA98FC0}, {0.8F, 0xF2A9A8}, {1, 0xFFD8AE}}, 0.9F);
    PaintClouds(canvas, {0.96F, 0.6F, 0.75F, 0xFFB9A6, 0x7F6EA8, 0.8F, 1, 421, 1.5F});
    PaintRidge(canvas, {0.93F, 0.05F, 0.4F, 0.6F, 0x2C2444, 0x2C2444, 0.3F, 422});
}

void ComingStorm(Canvas& canvas) {
    Sky(canvas, {{0, 0x2D3B4C}, {0.6F, 0x6C7E8A}, {1, 0xE8C98E}}, 0.78F);
    PaintClouds(canvas, {0.8F, 0.82F, 0.8F, 0xA0A8B0, 0x29323E, 0.2F, 0.75F, 431, 1.2F});
    canvas.Each([](float u, float v, Color& pixel) {  // rain in the distance
        const float veil = SmoothStep(0.4F, 0.9F, Noise(u * 1.6F + v * 0.25F, 1, 432) + 0.45F);
        const float streaks = 0.8F + 0.3F * Noise(u * 60 + v * 14, v * 2, 433);
        pixel = Mix(pixel, Color(0x6B7884), 0.62F * veil * streaks * SmoothStep(0.42F, 0.62F, v));
    });
    const auto bolt = [&](double u, double v, double down, uint32_t seed, double width) {
        Random random(seed);
        QPainterPath path(QPointF(u, v));
        for (double y = v; y < down; y += 0.011) {
            u += random.Between(-0.012F, 0.0125F);
            path.lineTo(u, y);
        }
        canvas.Draw([&](QPainter& painter) { painter.strokePath(path, QPen(QColor(0xF4F0FF), width)); });
    };
    canvas.Glow(1.17F, 0.55F, 0.09F, Color(0xA8A0D8) * 0.5F);
    bolt(1.18, 0.36, 0.79, 434, 0.0045);
    bolt(1.17, 0.46, 0.66, 435, 0.002);
    canvas.Below([](float u) { return 0.785F + 0.006F * Noise(u * 4, 0, 436); },
                 [](float u, float v, Color) {
                     const float far = 1 / (v - 0.75F);
                     const float wind = Fractal(u * far * 1.2F, far * 3, 4, 437);
                     return Mix(Color(0x5B5A34), Color(0xC0A552),
                                Clamp01(0.4F + 0.5F * wind) * SmoothStep(1, 0.78F, v));
                 });
}

void GalaxyOverPeaks(Canvas& canvas) {
    Sky(canvas, {{0, 0x050815}, {0.6F, 0x0F1C3A}, {1, 0x33496A}}, 0.95F);
    PaintMilkyWay(canvas, canvas.Aspect() * 0.52F, 0.42F, -1.05F, 441);
    PaintStars(canvas, 1400, 0.95F, 442);
    PaintRidge(canvas, {0.86F, 0.12F, 0.5F, 0.9F, 0x0C1424, 0x1B2A42, 0.3F, 443});
    PaintConifers(
        canvas, [](float u) { return 1.01F + 0.03F * Noise(u * 2, 0, 444); }, 0.12F, 6, 0x04070D, 445);
}

void NorthernLights(Canvas& canvas) {
    Sky(canvas, {{0, 0x050A1C}, {1, 0x12324A}}, 0.8F);
    PaintStars(canvas, 900, 0.8F, 451);
    PaintAurora(canvas, 0.66F, Color(0x3CE89A) * 0.95F, 0x8A3FC0, 452);
    PaintRidge(canvas, {0.8F, 0.13F, 0.55F, 0.9F, 0x9FC4C8, 0x284A5C, 0.24F, 453});
    canvas.Below([](float u) { return 0.9F + 0.03F * Noise(u * 1.4F, 0, 454); },
                 [](float u, float v, Color) {
                     return Mix(Color(0x7FB0AE), Color(0x1C3444),
                                Clamp01((v - 0.86F) * 6 + 0.2F * Fractal(u * 6, v * 9, 3, 455)));
                 });
    PaintConifers(
        canvas, [](float u) { return 0.93F + 0.04F * Noise(u * 2, 0, 456); }, 0.11F, 4, 0x0A1820, 457, 0.4F);
}

void LightsOverLake(Canvas& canvas) {
    Sky(canvas, {{0, 0x060A20}, {1, 0x1A2A50}}, 0.6F);
    PaintStars(canvas, 900, 0.6F, 461);
    PaintAurora(canvas, 0.52F, Color(0x55E6C0) * 1.1F, 0xC04A9A, 452);
    PaintRidge(canvas, {0.56F, 0.1F, 0.6F, 0.6F, 0x0B1526, 0x1A2C44, 0.2F, 463});
    PaintConifers(
        canvas, [](float u) { return 0.605F + 0.008F * Noise(u * 3, 0, 464); }, 0.055F, 9, 0x050B14, 465);
    PaintMirror(canvas, {0.61F, 0.16F, 0xB4C8D4, 0x071426, 466});
}

void FullMoon(Canvas& canvas) {
    Sky(canvas, {{0, 0x0A1024}, {1, 0x1E2A4A}});
    PaintStars(canvas, 260, 1, 471);
    PaintMoon(canvas, 0.5F, 0.46F, 0.3F);
    canvas.Each([](float u, float v, Color& pixel) {  // wisps of cloud before it
        const float wisp = SmoothStep(0.1F, 0.9F, Fractal(u * 1.3F, v * 6, 5, 472));
        pixel = Mix(pixel, Color(0x3A4564), wisp * 0.75F * SmoothStep(0.35F, 0.8F, v));
    });
    PaintConifers(
        canvas, [](float u) { return 1.03F + 0.02F * Noise(u * 2, 0, 473); }, 0.17F, 5, 0x05080F, 474);
}

void StarTrails(Canvas& canvas) {
    Sky(canvas, {{0, 0x0A1430}, {0.7F, 0x1F3866}, {1, 0x6B6F8A}}, 0.9F);
    const QPointF pole(canvas.Aspect() * 0.55, 0.42);
    canvas.Draw([&](QPainter& painter) {
        Random random(481);
        for (int i = 0; i < 330; ++i) {
            const double radius = 0.012 + 1.25 * std::sqrt(static_cast<double>(random.Unit()));
            const Color hue = Mix(Color(0xA9C4FF), Color(0xFFDDB0), random.Unit());
            const auto light = random.Between(0.25F, 0.9F);
            QColor color = QColor::fromRgbF(hue.R, hue.G, hue.B, light);
            painter.setPen(QPen(color, random.Between(0.0009F, 0.0024F), Qt::SolidLine, Qt::RoundCap));
            const QRectF circle(pole - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
            painter.drawArc(circle, random.Below(360 * 16), 62 * 16);
        }
    });
    PaintRidge(canvas, {0.88F, 0.08F, 0.5F, 0.7F, 0x0A101C, 0x141E30, 0.3F, 482});
    PaintConifer(canvas, 0.26F, 0.98F, 0.42F, 0x05080E, 483);
    PaintConifer(canvas, 0.42F, 1.02F, 0.3F, 0x05080E, 484);
    PaintConifers(
        canvas, [](float) { return 1.03F; }, 0.14F, 6, 0x04060B, 485);
}

void RainbowHills(Canvas& canvas) {
    Sky(canvas, {{0, 0x5E7486}, {0.7F, 0x9FB0B8}, {1, 0xDDDCCB}}, 0.7F);
    PaintClouds(canvas, {0.72F, 0.66F, 0.6F, 0xD8DEE2, 0x65758A, 0.1F, 0.6F, 491, 1.3F});
    const float middle = canvas.Aspect() * 0.46F;
    const Ramp bow{{0, 0x7A4FC8},     {0.25F, 0x3F8FE0}, {0.45F, 0x4FC46A},
                   {0.62F, 0xF0E25A}, {0.8F, 0xF29A3C},  {1, 0xE0483C}};
    canvas.Each([&](float u, float v, Color& pixel) {
        const float radius = std::hypot(u - middle, v - 0.86F);
        const float inner = (radius - 0.56F) / 0.055F;
        if (inner < -3 || inner > 8) return;
        if (inner < 0) pixel = pixel + Color(0xFFFFFF) * (0.05F * SmoothStep(-3, 0, inner));
        const float band = SmoothStep(0, 0.2F, inner) * SmoothStep(1, 0.8F, inner);
        const float second = (radius - 0.72F) / 0.07F;
        const float faint = SmoothStep(0, 0.3F, second) * SmoothStep(1, 0.7F, second);
        pixel = Mix(Mix(pixel, bow(inner), 0.5F * band), bow(1 - second), 0.16F * faint);
    });
    PaintRanges(canvas, {0.72F, 4, 0.07F, 0.15F, 0x8FA79A, 0x3E6B2C, 0xC3CFC0, 492});
}

// A balloon of a size in heights, gores in turns of two colours.
void PaintBalloon(Canvas& canvas, double u, double v, double size, QRgb first, QRgb second) {
    canvas.Draw([&](QPainter& painter) {
        painter.translate(u, v);
        painter.scale(size, size);
        QPainterPath envelope(QPointF(0, -0.5));
        envelope.cubicTo(0.34, -0.5, 0.46, -0.2, 0.38, 0.02);
        envelope.cubicTo(0.3, 0.22, 0.12, 0.36, 0.09, 0.46);
        envelope.lineTo(-0.09, 0.46);
        envelope.cubicTo(-0.12, 0.36, -0.3, 0.22, -0.38, 0.02);
        envelope.cubicTo(-0.46, -0.2, -0.34, -0.5, 0, -0.5);
        painter.setPen(Qt::NoPen);
        painter.setClipPath(envelope);
        for (int gore = -5; gore <= 5; ++gore) {
            const auto edge = [](int i) {
                return 0.45 * std::sin(std::clamp(i / 5.0, -1.0, 1.0) * std::numbers::pi / 2);
            };
            const double left = edge(gore);
            const double right = edge(gore + 1);
            QPainterPath strip(QPointF(0, -0.52));
            strip.cubicTo(left * 1.1, -0.5, left * 1.25, 0.0, left * 0.25, 0.48);
            strip.lineTo(right * 0.25, 0.48);
            strip.cubicTo(right * 1.25, 0.0, right * 1.1, -0.5, 0, -0.52);
            painter.fillPath(strip, QColor(gore % 2 == 0 ? first : second));
        }
        QRadialGradient light(QPointF(-0.16, -0.2), 0.75);
        light.setColorAt(0, QColor(255, 255, 255, 110));
        light.setColorAt(0.4, QColor(255, 255, 255, 0));
        light.setColorAt(1, QColor(20, 10, 40, 170));
        painter.fillRect(QRectF(-0.5, -0.6, 1, 1.2), light);
        painter.setClipping(false);
        painter.setPen(QPen(QColor(0x40342C), 0.008));
        painter.drawLine(QPointF(-0.085, 0.46), QPointF(-0.05, 0.6));
        painter.drawLine(QPointF(0.085, 0.46), QPointF(0.05, 0.6));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x6B4526));
        painter.drawRoundedRect(QRectF(-0.06, 0.59, 0.12, 0.09), 0.015, 0.015);
    });
}

void Balloons(Canvas& canvas) {
    Sky(canvas, {{0, 0x4C8FD0}, {0.6F, 0xA9CFE6}, {1, 0xFBE6C8}}, 0.8F);
    PaintClouds(canvas, {0.82F, 0.4F, 0.5F, 0xFFFFFF, 0xB9C6DA, 0.2F, 0.6F, 501, 1.8F});
    PaintRanges(canvas, {0.78F, 4, 0.07F, 0.2F, 0xAFC0C6, 0x4A6A44, 0xE6DCCB, 502});
    PaintBalloon(canvas, 0.98, 0.52, 0.13, 0xFF3F7A5A, 0xFFEFE6CC);
    PaintBalloon(canvas, 0.28, 0.56, 0.16, 0xFF2F5FA8, 0xFFF2C24A);
    PaintBalloon(canvas, 1.22, 0.3, 0.24, 0xFF8A3FA0, 0xFFF2A0B4);
    PaintBalloon(canvas, 0.64, 0.37, 0.46, 0xFFD8402F, 0xFFF6C445);
}

}  // namespace

std::vector<Picture> Skies() {
    return {
        {"Ciel d'avril.jpg", {2400, 1600}, AprilSky},
        {"Mer de nuages.jpg", {3000, 2000}, SeaOfClouds},
        {"Nuages roses.jpg", {1920, 1080}, PinkClouds},
        {"L'orage approche.jpg", {2400, 1600}, ComingStorm},
        {"Voie lactée.jpg", {1600, 2400}, GalaxyOverPeaks},
        {"Aurore boréale.jpg", {2560, 1440}, NorthernLights},
        {"Aurore sur le lac.jpg", {1500, 1500}, LightsOverLake},
        {"Pleine lune.jpg", {1200, 1200}, FullMoon},
        {"Filé d'étoiles.jpg", {2048, 1536}, StarTrails},
        {"Arc-en-ciel.jpg", {1800, 1200}, RainbowHills},
        {"Montgolfières.jpg", {2000, 1333}, Balloons},
    };
}

}  // namespace samples
