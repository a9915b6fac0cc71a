// Geometry in colour and light.
#include "samples/noise.h"
#include "samples/picture.h"

#include <numbers>

#include <QPainterPath>

namespace samples {
namespace {

constexpr double kPi = std::numbers::pi;

QColor Brush(Color color, float alpha = 1) {
    return QColor::fromRgbF(Clamp01(color.R), Clamp01(color.G), Clamp01(color.B), alpha);
}

// Quarter arcs on a grid of tiles, each turned by chance.
void Arcs(Canvas& canvas) {
    const Color hues[] = {0xF2E8D5, 0xD9573F, 0x2F5D62, 0xE8A93C, 0x1F2F46};
    const float tile = 0.2F;
    canvas.Each([&](float u, float v, Color& pixel) {
        const int column = static_cast<int>(u / tile);
        const int row = static_cast<int>(v / tile);
        float x = u / tile - static_cast<float>(column);
        float y = v / tile - static_cast<float>(row);
        const int turn = static_cast<int>(Hash(column, row, 701) * 4);
        if (turn % 2 == 1) x = 1 - x;
        if (turn / 2 == 1) y = 1 - y;
        const float out = std::hypot(x, y) * 5;
        const int ring = std::min(static_cast<int>(out), 5);
        const int first = static_cast<int>(Hash(column, row, 702) * 5);
        const auto hue = [&](int i) { return i >= 5 ? hues[0] : hues[(first + i) % 5]; };
        const float soft = canvas.Pixel() / tile * 5;
        const float edge = SmoothStep(0, soft, out - static_cast<float>(ring));
        const Color inner = ring > 0 ? hue(ring - 1) : hue(0);
        const float shade = 1 - 0.12F * SmoothStep(0.5F, 0, out - static_cast<float>(ring)) * (ring > 0 ? 1.0F : 0.0F);
        pixel = Mix(inner, hue(ring) * shade, edge);
    });
}

// Sheets of paper with wavy holes, one under the other, the light from above.
void PaperCut(Canvas& canvas) {
    const Ramp hues{{0, 0xFDF3E1}, {0.3F, 0xF6B884}, {0.6F, 0xD1556A}, {0.85F, 0x5A2E6E}, {1, 0x24153F}};
    const float middle = canvas.Aspect() / 2;
    const auto hole = [&](float u, float v, int sheet) {  // below 0: inside the hole
        const float turn = std::atan2(v - 0.5F, u - middle);
        const float wave = 0.05F * std::sin(3 * turn + static_cast<float>(sheet) * 1.3F) +
                           0.03F * std::sin(5 * turn - static_cast<float>(sheet) * 2.1F);
        return std::hypot(u - middle, v - 0.5F) - (0.62F - 0.085F * static_cast<float>(sheet)) - wave;
    };
    canvas.Each([&](float u, float v, Color& pixel) {
        pixel = hues(1);
        for (int sheet = 6; sheet >= 0; --sheet) {
            const float inside = hole(u, v, sheet);
            const float shadow = SmoothStep(-0.05F, 0.012F, hole(u + 0.008F, v - 0.018F, sheet));
            pixel = pixel * (1 - 0.45F * shadow);
            const Color paper = hues(static_cast<float>(sheet) / 7) * (1 + 0.03F * Noise(u * 150, v * 150, 711));
            pixel = Mix(pixel, paper, SmoothStep(0, canvas.Pixel() * 1.5F, inside));
        }
    });
}

// A net of triangles, lit as if it were folded.
void Triangles(Canvas& canvas) {
    const int columns = 15;
    const int rows = 11;
    const Ramp hues{{0, 0x0F2A4A}, {0.35F, 0x1F7A8C}, {0.6F, 0x7CC6A4}, {0.8F, 0xF6E0A0}, {1, 0xF08A5A}};
    canvas.Draw([&](QPainter& painter) {
        const auto corner = [&](int column, int row) {
            const double jitterX = Hash(column, row, 721) - 0.5;
            const double jitterY = Hash(column, row, 722) - 0.5;
            return QPointF((column - 1 + 0.75 * jitterX) * canvas.Aspect() / (columns - 2.0),
                           (row - 1 + 0.75 * jitterY) / (rows - 2.0));
        };
        const auto facet = [&](QPointF a, QPointF b, QPointF c, float light) {
            const QPointF centre = (a + b + c) / 3;
            const auto place =
                static_cast<float>(0.2 + 0.55 * centre.x() / canvas.Aspect() + 0.35 * (1 - centre.y()) - 0.12);
            const QColor color = Brush(hues(place) * (0.86F + 0.28F * light));
            painter.setPen(QPen(color, 0.0015));
            painter.setBrush(color);
            painter.drawPolygon(QPolygonF({a, b, c}));
        };
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const QPointF a = corner(column, row);
                const QPointF b = corner(column + 1, row);
                const QPointF c = corner(column, row + 1);
                const QPointF d = corner(column + 1, row + 1);
                const bool falling = Hash(column, row, 723) < 0.5F;
                facet(a, b, falling ? d : c, Hash(column, row, 724));
                facet(falling ? a : b, c, d, Hash(column, row, 725));
            }
        }
    });
}

// Circles of thin ink on paper, darker where they overlap.
void Circles(Canvas& canvas) {
    canvas.Each([](float u, float v, Color& pixel) {
        pixel = Color(0xF6F0E2) * (1 + 0.015F * Fractal(u * 60, v * 60, 2, 731));
    });
    const Color inks[] = {0xF2A03D, 0xE5533D, 0x3D8EB9, 0x57A773, 0xF4CF58, 0x8C5FA8};
    Random random(732);
    for (int i = 0; i < 26; ++i) {
        const float u = random.Between(0.06F, canvas.Aspect() - 0.06F);
        const float v = random.Between(0.06F, 0.94F);
        const float radius = 0.05F + 0.17F * random.Unit() * random.Unit();
        const Color ink = inks[random.Below(6)];
        canvas.EachIn(u - radius, v - radius, u + radius, v + radius, [&](float x, float y, Color& pixel) {
            const float out = std::hypot(x - u, y - v) / radius;
            const float cover =
                SmoothStep(1, 1 - 2 * canvas.Pixel() / radius, out) * (0.8F + 0.2F * SmoothStep(0.85F, 1, out));
            pixel = Mix(pixel, pixel * ink, cover * 0.85F);
        });
    }
}

// Cubes in a heap, seen along their diagonal.
void Cubes(Canvas& canvas) {
    canvas.Each([](float, float v, Color& pixel) { pixel = Mix(Color(0x2B3350), Color(0x454F78), v); });
    const Ramp hues{{0, 0x35507A}, {0.4F, 0x3F9A94}, {0.7F, 0xF2C14E}, {1, 0xE8624A}};
    const double side = 0.062;
    const double wide = side * std::cos(kPi / 6);
    canvas.Draw([&](QPainter& painter) {
        for (int row = -2; row < 26; ++row) {
            for (int column = -2; column < 18; ++column) {
                const float level =
                    0.5F + 0.6F * Noise(static_cast<float>(column) * 0.21F + 5, static_cast<float>(row) * 0.13F, 741) +
                    0.2F * (Hash(column, row, 742) - 0.5F);
                const int height = static_cast<int>(4 * Clamp01(level));
                const double u = (2 * column + (row & 1)) * wide;
                const double v = row * side * 1.5 + 0.1 - height * side * 0.5;
                const Color hue = hues(Clamp01(level)) * (0.92F + 0.16F * Hash(column, row, 743));
                const auto face = [&](QPolygonF points, float light) {
                    const QColor color = Brush(hue * light);
                    painter.setPen(QPen(color, 0.001));
                    painter.setBrush(color);
                    painter.drawPolygon(points);
                };
                const double drop = side * 3;
                face({{u, v - side}, {u + wide, v - side / 2}, {u, v}, {u - wide, v - side / 2}}, 1.15F);
                face({{u - wide, v - side / 2}, {u, v}, {u, v + drop}, {u - wide, v + drop - side / 2}}, 0.8F);
                face({{u, v}, {u + wide, v - side / 2}, {u + wide, v + drop - side / 2}, {u, v + drop}}, 0.55F);
            }
        }
    });
}

// Seeds set out at the golden angle, as in a sunflower.
void Sunflower(Canvas& canvas) {
    canvas.Each([&](float u, float v, Color& pixel) {
        const float out = std::hypot(u - canvas.Aspect() / 2, v - 0.5F);
        pixel = Mix(Color(0x2F6F68), Color(0x0D2C36), SmoothStep(0.1F, 0.8F, out));
    });
    const Ramp hues{{0, 0x6B3A1E}, {0.35F, 0xB5561F}, {0.6F, 0xF29A22}, {0.85F, 0xFFD24A}, {1, 0xFFF0A8}};
    canvas.Draw([&](QPainter& painter) {
        painter.translate(canvas.Aspect() / 2, 0.5);
        painter.setPen(Qt::NoPen);
        for (int i = 0; i < 900; ++i) {
            const double far = std::sqrt(i / 900.0);
            const double turn = i * kPi * (3 - std::sqrt(5.0));
            const QPointF place(0.45 * far * std::cos(turn), 0.45 * far * std::sin(turn));
            const double radius = 0.0095 + 0.0025 * far;
            painter.setBrush(QColor(0, 0, 0, 70));
            painter.drawEllipse(place + QPointF(0.003, 0.004), radius, radius);
            QRadialGradient bead(place - QPointF(radius, radius) * 0.4, radius * 1.5);
            const Color hue = hues(static_cast<float>(far));
            bead.setColorAt(0, Brush(hue * 1.25F));
            bead.setColorAt(1, Brush(hue * 0.72F));
            painter.setBrush(bead);
            painter.drawEllipse(place, radius, radius);
        }
    });
}

// Cells of coloured glass with lead between them, light from behind.
void StainedGlass(Canvas& canvas) {
    const Color hues[] = {0x1F4FA8, 0xC9302C, 0xF2B42C, 0x2C8F5A, 0x6A3FA0, 0xE8762C, 0x3FA8C8, 0xF4E6B8};
    const float cell = 0.115F;
    canvas.Each([&](float u, float v, Color& pixel) {
        const int column = static_cast<int>(std::floor(u / cell));
        const int row = static_cast<int>(std::floor(v / cell));
        float nearest = 9;
        float second = 9;
        int owner = 0;
        for (int j = row - 1; j <= row + 1; ++j) {
            for (int i = column - 1; i <= column + 1; ++i) {
                const float x = (static_cast<float>(i) + 0.1F + 0.8F * Hash(i, j, 751)) * cell;
                const float y = (static_cast<float>(j) + 0.1F + 0.8F * Hash(i, j, 752)) * cell;
                const float distance = std::hypot(u - x, v - y);
                second = std::min(second, std::max(distance, nearest));
                if (distance < nearest) owner = static_cast<int>(Hash(i, j, 753) * 8);
                nearest = std::min(nearest, distance);
            }
        }
        const float light = 1.25F - 0.8F * std::hypot(u - canvas.Aspect() * 0.5F, v - 0.4F);
        const float glass = light * (1 + 0.16F * Fractal(u * 18, v * 18, 3, 754));
        const float lead = SmoothStep(0.010F, 0.006F, second - nearest);
        pixel = Mix(hues[owner] * glass, Color(0x15130F) * (1 + 1.5F * SmoothStep(0.006F, 0, second - nearest)), lead);
    });
}

// A wave of threads of light.
void Threads(Canvas& canvas) {
    canvas.Each([&](float u, float v, Color& pixel) {
        pixel = Mix(Color(0x0B0E24), Color(0x241342),
                    SmoothStep(0.9F, 0.1F, std::hypot((u - canvas.Aspect() / 2) * 0.5F, v - 0.5F)));
    });
    const Ramp hues{{0, 0x38D0E8}, {0.5F, 0x8A5AF0}, {1, 0xFF5A9A}};
    for (int i = 0; i < 34; ++i) {
        const float t = static_cast<float>(i) / 33;
        canvas.Draw(
            [&](QPainter& painter) {
                QPainterPath path;
                for (int k = 0; k <= 160; ++k) {
                    const float u = canvas.Aspect() * static_cast<float>(k) / 160;
                    const float pinch = 0.12F + 0.88F * std::pow(std::abs(std::sin(u * 1.5F + 0.6F)), 1.4F);
                    const float v = 0.5F + (t - 0.5F) * 0.6F * pinch + 0.13F * std::sin(u * 2.4F + t * 1.6F);
                    if (k == 0) path.moveTo(u, v);
                    path.lineTo(u, v);
                }
                painter.strokePath(path, QPen(Brush(hues(t), 0.9F), 0.0022));
            },
            0.85F);
    }
    Canvas light = canvas;
    light.Blur(0.03F);
    for (int y = 0; y < canvas.Height(); ++y) {
        for (int x = 0; x < canvas.Width(); ++x) canvas.At(x, y) = canvas.At(x, y) + light.At(x, y) * 0.9F;
    }
}

}  // namespace

std::vector<Picture> Shapes() {
    return {
        {"Arcs.png", {1200, 1200}, Arcs},
        {"Papier découpé.png", {1500, 1000}, PaperCut},
        {"Triangles.png", {1600, 1200}, Triangles},
        {"Cercles d'encre.webp", {1200, 800}, Circles},
        {"Cubes.png", {1200, 900}, Cubes},
        {"Tournesol.png", {1000, 1000}, Sunflower},
        {"Vitrail.jpg", {1000, 1500}, StainedGlass},
        {"Fils de lumière.jpg", {3000, 1000}, Threads},
    };
}

}  // namespace samples
