// Towns at dusk and by night.
#include "samples/noise.h"
#include "samples/picture.h"
#include "samples/sky.h"
#include "samples/water.h"

#include <QPainterPath>

namespace samples {
namespace {

struct TownLook {
    float Ground;  // v of the streets
    float Tall;    // the tallest houses
    float Narrow;  // width of a house
    Color Wall;
    Color Light;  // of a window
    float Lit;    // share of the windows with a light
    uint32_t Seed;
};

void PaintWindows(Canvas& canvas, const TownLook& look, float left, float top, float width, uint32_t seed) {
    const float pitch = look.Narrow * 0.115F;
    const float storey = pitch * 1.35F;
    const int columns = static_cast<int>((width - pitch) / pitch);
    const int storeys = static_cast<int>((look.Ground - top - storey) / storey);
    const float margin = (width - static_cast<float>(columns) * pitch) / 2;
    for (int row = 0; row < storeys; ++row) {
        for (int column = 0; column < columns; ++column) {
            if (Hash(column, row, seed) > look.Lit * (0.5F + Hash(0, row, seed + 1))) continue;
            const float u = left + margin + (static_cast<float>(column) + 0.22F) * pitch;
            const float v = top + (static_cast<float>(row) + 0.9F) * storey;
            const Color light = look.Light * (0.55F + 0.6F * Hash(column, row, seed + 2));
            canvas.EachIn(u, v, u + pitch * 0.56F, v + storey * 0.55F,
                          [&](float, float, Color& pixel) { pixel = light; });
        }
    }
}

// One row of houses, side by side.
void PaintHouses(Canvas& canvas, const TownLook& look) {
    Random random(look.Seed);
    float left = -look.Narrow * random.Unit();
    while (left < canvas.Aspect()) {
        const float width = look.Narrow * random.Between(0.6F, 1.3F);
        const float centre = 1 - std::abs((left + width / 2) / canvas.Aspect() - 0.5F) * 1.1F;
        const float height = look.Tall * (0.25F + 0.75F * random.Unit() * random.Unit()) * (0.45F + 0.75F * centre);
        const float top = look.Ground - height;
        const Color wall = look.Wall * random.Between(0.82F, 1.12F);
        const bool stepped = random.Chance(0.3F);
        const bool mast = random.Chance(0.25F);
        const auto fill = [&](float l, float t, float r) {
            canvas.EachIn(l, t, r, look.Ground,
                          [&](float u, float, Color& pixel) { pixel = wall * (1.06F - 0.2F * (u - left) / width); });
        };
        fill(left, top, left + width);
        if (stepped) fill(left + width * 0.22F, top - look.Tall * 0.06F, left + width * 0.78F);
        if (mast)
            fill(left + width * 0.49F, top - look.Tall * 0.16F,
                 left + width * 0.49F + std::max(0.0018F, canvas.Pixel()));
        PaintWindows(canvas, look, left, top, width, random.Next());
        left += width;
    }
}

void DuskTown(Canvas& canvas) {
    Sky(canvas, {{0, 0x1F2A5C}, {0.45F, 0x7A4F86}, {0.75F, 0xE9806A}, {1, 0xFFC98A}}, 0.82F);
    PaintClouds(canvas, {0.84F, 0.42F, 0.6F, 0xFF9F88, 0x5C457E, 0.4F, 0.8F, 601, 2.2F});
    PaintHouses(canvas, {0.84F, 0.42F, 0.07F, 0x8A5878, 0xFFD9A0, 0.12F, 602});
    PaintHouses(canvas, {0.92F, 0.5F, 0.1F, 0x4A3560, 0xFFD48A, 0.3F, 603});
    PaintHouses(canvas, {1.02F, 0.46F, 0.15F, 0x1C1834, 0xFFC86E, 0.42F, 604});
}

void MistyTown(Canvas& canvas) {
    Sky(canvas, {{0, 0xB9C6CE}, {0.6F, 0xE4DDD0}, {1, 0xF4E6CE}}, 0.8F);
    PaintSun(canvas, {0.5F, 0.3F, 0.04F, 0xFFFCEE, Color(0xFFE7BC) * 0.22F, 0.2F});
    const Color mist = 0xEDE2D2;
    for (int i = 0; i < 5; ++i) {
        const float near = static_cast<float>(i) / 4;
        PaintHouses(canvas, {0.72F + 0.3F * near, 0.45F, 0.07F + 0.09F * near,
                             Mix(Color(0xCFCFCB), Color(0x3E4C58), near * near), 0xF7E2B0, 0.05F * near,
                             static_cast<uint32_t>(611 + i)});
        canvas.Each([&](float u, float v, Color& pixel) {
            const float fog =
                SmoothStep(0.42F, 0.95F, v + 0.06F * Fractal(u * 2, v * 3, 3, 619)) * (0.75F - 0.5F * near);
            pixel = Mix(pixel, mist, fog);
        });
    }
}

void RiverNight(Canvas& canvas) {
    Sky(canvas, {{0, 0x070C22}, {0.7F, 0x1C2A58}, {1, 0x5A4A78}}, 0.62F);
    PaintStars(canvas, 500, 0.4F, 621);
    PaintHouses(canvas, {0.62F, 0.38F, 0.08F, 0x2A3460, 0xC9D4F0, 0.22F, 622});
    PaintHouses(canvas, {0.63F, 0.46F, 0.12F, 0x141A36, 0xFFD080, 0.5F, 623});
    canvas.Draw([&](QPainter& painter) {  // a bridge of five arches
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x5C4C62));
        QPainterPath bridge;
        bridge.addRect(QRectF(-0.1, 0.545, canvas.Aspect() + 0.2, 0.095));
        for (int i = -1; i < 9; ++i) {
            QPainterPath arch;
            arch.addEllipse(QPointF(0.22 + 0.44 * i, 0.655), 0.2, 0.09);
            bridge -= arch;
        }
        painter.drawPath(bridge);
    });
    for (int i = 0; i < 16; ++i) {
        const float u = 0.11F + 0.22F * static_cast<float>(i);
        canvas.EachIn(u - 0.0015F, 0.51F, u + 0.0015F, 0.546F, [](float, float, Color& pixel) { pixel = 0x1A1624; });
        canvas.Glow(u, 0.506F, 0.014F, Color(0xFFC070) * 0.9F);
        canvas.Disc(u, 0.506F, 0.005F, 0.003F, 0xFFF2CC);
    }
    PaintMirror(canvas, {0.64F, 0.75F, 0xCCD2E4, 0x080C1E, 624});
}

// Round lights out of focus.
void PaintBokeh(Canvas& canvas, int count, float least, float most, std::initializer_list<Color> hues, uint32_t seed) {
    Random random(seed);
    for (int i = 0; i < count; ++i) {
        const float radius = random.Between(least, most);
        const Color hue = *(hues.begin() + random.Below(static_cast<int>(hues.size())));
        const float strength = random.Between(0.12F, 0.5F);
        const float u = random.Between(0, canvas.Aspect());
        const float v = Clamp01(0.5F + (random.Unit() + random.Unit() - 1) * 0.55F);
        canvas.EachIn(u - radius * 1.1F, v - radius * 1.1F, u + radius * 1.1F, v + radius * 1.1F,
                      [&](float x, float y, Color& pixel) {
                          const float out = std::hypot(x - u, y - v) / radius;
                          const float rim = 0.7F + 0.45F * SmoothStep(0.75F, 0.97F, out);
                          pixel = pixel + hue * (strength * rim * SmoothStep(1.04F, 0.98F, out));
                      });
    }
}

void PartyLights(Canvas& canvas) {
    Sky(canvas, {{0, 0x120A1E}, {0.5F, 0x3A1830}, {1, 0x1A0E18}});
    PaintBokeh(canvas, 70, 0.02F, 0.05F, {0xFFB050, 0xFF7A50, 0xFFD890}, 631);
    PaintBokeh(canvas, 60, 0.05F, 0.11F, {0xFF9A40, 0xE84A6A, 0xFFC870, 0x9A5AE0, 0x40B0C8}, 632);
}

// A drop on a pane shows the scene behind it, small and upside down.
void PaintDrop(Canvas& canvas, const Canvas& scene, float u, float v, float radius) {
    canvas.EachIn(u - radius, v - radius * 1.3F, u + radius, v + radius * 1.3F, [&](float x, float y, Color& pixel) {
        const float dx = (x - u) / radius;
        const float dy = (y - v) / (radius * 1.2F);
        const float out = dx * dx + dy * dy;
        if (out > 1) return;
        const float bend = 0.35F + 0.5F * out;
        const Color through = scene.Sample(u - dx * bend * 0.5F, v - dy * bend * 0.7F);
        const float rim = 1 - 0.6F * SmoothStep(0.55F, 1, out);
        const float shine = 0.55F * SmoothStep(0.3F, 0, std::hypot(dx + 0.35F, dy + 0.4F));
        pixel = Mix(pixel, through * rim * 1.15F + Color(0xFFFFFF) * shine, SmoothStep(1, 0.8F, out));
    });
}

void RainyPane(Canvas& canvas) {
    Sky(canvas, {{0, 0x16202E}, {0.55F, 0x2A3A4E}, {1, 0x0E141E}});
    PaintBokeh(canvas, 34, 0.03F, 0.075F, {0xFFB860, 0xFF6A4A, 0xFFE0A0, 0x58C8A0, 0x6AA0FF}, 641);
    PaintBokeh(canvas, 22, 0.06F, 0.12F, {0xFFA040, 0xE0523C, 0x4AA8D8}, 642);
    canvas.Blur(0.012F);
    const Canvas scene = canvas;
    Random random(643);
    for (int i = 0; i < 1500; ++i) {
        PaintDrop(canvas, scene, random.Between(0, canvas.Aspect()), random.Unit(), random.Between(0.002F, 0.007F));
    }
    for (int i = 0; i < 130; ++i) {
        const float radius = 0.009F + 0.024F * std::pow(random.Unit(), 2.5F);
        PaintDrop(canvas, scene, random.Between(0, canvas.Aspect()), random.Unit(), radius);
    }
}

void Roofs(Canvas& canvas) {
    Sky(canvas, {{0, 0x3B6FB0}, {0.6F, 0xA8C6DA}, {1, 0xFBE0BC}}, 0.6F);
    PaintClouds(canvas, {0.6F, 0.4F, 0.5F, 0xFFF2E2, 0xA7B2CA, 0.1F, 0.4F, 651, 1.8F});
    canvas.Draw([&](QPainter& painter) {
        Random random(652);
        painter.setPen(Qt::NoPen);
        const QRgb walls[] = {0xFFE9D3A8, 0xFFE0B58C, 0xFFD9C7B0, 0xFFC98F70, 0xFFEFE2C8, 0xFFB9C4C0};
        const QRgb roofs[] = {0xFFB5573C, 0xFF9C4834, 0xFFC46B48, 0xFF8A4A3C};
        for (int row = 0; row < 6; ++row) {
            const double near = row / 5.0;
            const double foot = 0.56 + 0.5 * near;
            for (double left = -0.1; left < canvas.Aspect();) {
                const double width = (0.06 + 0.12 * near) * random.Between(0.8F, 1.3F);
                const double eaves = foot - (0.05 + 0.14 * near) * random.Between(0.8F, 1.25F);
                const double ridge = eaves - width * random.Between(0.3F, 0.5F);
                const auto haze = [&](QRgb rgb) {
                    const Color color =
                        Mix(Color(0xE6D8C8), Color(rgb & 0xFFFFFFU), static_cast<float>(0.45 + 0.55 * near));
                    return QColor::fromRgbF(color.R, color.G, color.B);
                };
                const QColor wall = haze(walls[random.Below(6)]);
                const QColor roof = haze(roofs[random.Below(4)]);
                painter.setBrush(wall);
                painter.drawRect(QRectF(left, eaves, width, 1.2 - eaves));
                painter.setBrush(wall.darker(118));
                painter.drawRect(QRectF(left + width * 0.62, eaves, width * 0.38, 1.2 - eaves));
                painter.setBrush(roof);
                painter.drawPolygon(QPolygonF(
                    {{left - width * 0.05, eaves}, {left + width * 0.3, ridge}, {left + width * 0.62, eaves}}));
                painter.setBrush(roof.darker(125));
                painter.drawPolygon(QPolygonF({{left + width * 0.62, eaves},
                                               {left + width * 0.3, ridge},
                                               {left + width * 0.9, ridge},
                                               {left + width * 1.05, eaves}}));
                if (random.Chance(0.5F)) {
                    painter.setBrush(haze(0xFF7A4438));
                    painter.drawRect(QRectF(left + width * 0.68, ridge - width * 0.12, width * 0.09, width * 0.24));
                }
                const double pane = width * 0.1;
                for (int storey = 0; storey < 3; ++storey) {
                    for (const double place : {0.13, 0.37, 0.74}) {
                        painter.setBrush(random.Chance(0.16F) ? QColor(0xFFE2A0) : haze(0xFF4A5A66));
                        painter.drawRect(
                            QRectF(left + width * place, eaves + width * (0.14 + 0.34 * storey), pane, pane * 1.6));
                    }
                }
                left += width * 1.04;
            }
        }
    });
}

}  // namespace

std::vector<Picture> Towns() {
    return {
        {"Ville au crépuscule.jpg", {2400, 1600}, DuskTown},  {"Ville dans la brume.jpg", {1600, 1200}, MistyTown},
        {"Nuit sur le fleuve.jpg", {4500, 1500}, RiverNight}, {"Lumières de fête.jpg", {1920, 1080}, PartyLights},
        {"Pluie sur la vitre.jpg", {2400, 1600}, RainyPane},  {"Toits du village.jpg", {2000, 1333}, Roofs},
    };
}

}  // namespace samples
