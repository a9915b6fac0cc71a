#include "samples/land.h"

#include "samples/noise.h"

#include <numbers>

namespace samples {

float RidgeLine(const Ridge& ridge, float u) {
    const float x = u / ridge.Width;
    const float soft = Fractal(x, 0.5F, 5, ridge.Seed, 0.42F);
    const float sharp = (Ridged(x * 0.8F, 0.5F, 6, ridge.Seed + 11) - 0.55F) * 1.7F + Noise(x * 0.35F, 9, ridge.Seed);
    return ridge.Base - ridge.Height * Mix(soft, sharp, ridge.Rough);
}

void PaintRidge(Canvas& canvas, const Ridge& ridge) {
    std::vector<float> crest;  // by column; the mist begins at a line that follows the crest from afar
    std::vector<float> mist;
    for (int x = 0; x < canvas.Width(); ++x) {
        const float u = canvas.Place(x);
        crest.push_back(RidgeLine(ridge, u));
        mist.push_back(ridge.Base - ridge.Height * 0.5F * Noise(u / ridge.Width, 0.5F, ridge.Seed) -
                       ridge.Height * 0.5F);
    }
    const auto column = [&](float u) {
        return static_cast<size_t>(std::clamp(static_cast<int>(u / canvas.Pixel()), 0, canvas.Width() - 1));
    };
    canvas.Below([&](float u) { return crest[column(u)]; },
                 [&](float u, float v, Color) {
                     const float down = (v - Mix(crest[column(u)], mist[column(u)], 0.7F)) / ridge.Depth;
                     const float grain = ridge.Rough > 0.5F ? 0.1F * Noise(u * 12, v * 18, ridge.Seed + 40) : 0;
                     return Mix(ridge.Ground * (1 + grain), ridge.Mist, SmoothStep(0, 1, down));
                 });
}

void PaintRanges(Canvas& canvas, const Ranges& ranges) {
    for (int i = 0; i < ranges.Count; ++i) {
        const float near = static_cast<float>(i) / static_cast<float>(ranges.Count - 1);
        const float place = near * (0.55F + 0.45F * near);
        const Color ground = Mix(ranges.Far, ranges.Near, near);
        PaintRidge(canvas, {.Base = Mix(ranges.Horizon, 1.02F, place),
                            .Height = ranges.Height * (0.55F + 0.45F * near),
                            .Width = 0.35F + 0.55F * near,
                            .Rough = ranges.Rough * (1 - 0.6F * near),
                            .Ground = ground,
                            .Mist = Mix(ground, ranges.Mist, 0.75F - 0.5F * near),
                            .Depth = 0.16F + 0.2F * near,
                            .Seed = ranges.Seed + static_cast<uint32_t>(i) * 17});
    }
}

void PaintConifer(Canvas& canvas, float u, float v, float height, Color color, uint32_t seed, float snow) {
    const float top = v - height;
    const float spread = height * (0.17F + 0.05F * Hash(1, 1, seed));
    const float storeys = 7 + 5 * Hash(2, 2, seed);
    canvas.EachIn(u - spread * 1.2F, top, u + spread * 1.2F, v, [&](float x, float y, Color& pixel) {
        const float down = (y - top) / height;
        const float storey = down * storeys + 0.5F * Noise((x - u) / height * 9, down * 3, seed + 1);
        const float branch = storey - std::floor(storey);
        const float ragged = 0.25F * Noise(x / height * 40, y / height * 30, seed);
        const float half = spread * down * (0.62F + 0.38F * branch + ragged) + height * 0.006F;
        const float side = std::abs(x - u);
        const float edge = std::max(canvas.Pixel(), height * 0.006F);
        const float cover = SmoothStep(half + edge, half - edge, side);
        const float white = snow * SmoothStep(0.6F, 0.15F, branch + 2 * ragged) *
                            (0.55F + 0.45F * Noise(x / height * 14, y / height * 14, seed + 2));
        const float shade = 1 - 0.25F * (x - u) / spread;
        pixel = Mix(pixel, Mix(color * shade, Color(0xE9EFF7), Clamp01(white)), cover);
    });
}

void PaintConifers(Canvas& canvas, const std::function<float(float)>& line, float height, float density, Color color,
                   uint32_t seed, float snow) {
    Random random(seed);
    const int count = static_cast<int>(canvas.Aspect() / height * density);
    for (int i = 0; i < count; ++i) {
        const float u =
            canvas.Aspect() * (static_cast<float>(i) + random.Between(-0.5F, 1.5F)) / static_cast<float>(count);
        const float tall = height * random.Between(0.55F, 1.15F);
        PaintConifer(canvas, u, line(u), tall, color * random.Between(0.9F, 1.1F), random.Next(), snow);
    }
}

void PaintLeafTree(Canvas& canvas, float u, float v, float height, Color leaves, uint32_t seed) {
    const Color bark = 0x3A2A22;
    canvas.EachIn(u - height * 0.05F, v - height * 0.5F, u + height * 0.05F, v, [&](float x, float y, Color& pixel) {
        const float half = height * (0.014F + 0.014F * SmoothStep(v - height * 0.2F, v, y));
        pixel = Mix(pixel, bark, SmoothStep(half + canvas.Pixel(), half, std::abs(x - u)));
    });
    Random random(seed);
    for (int i = 0; i < 700; ++i) {
        const float turn = random.Between(0, 2 * std::numbers::pi_v<float>);
        const float out = std::sqrt(random.Unit());
        const float x = u + std::cos(turn) * out * height * 0.3F;
        const float y = v - height * 0.63F + std::sin(turn) * out * height * 0.36F;
        const float light = 0.72F + 0.45F * (0.5F * (u - x) + (v - height * 0.6F - y)) / (height * 0.36F) * 0.6F +
                            random.Between(-0.1F, 0.1F);
        canvas.Disc(x, y, height * random.Between(0.01F, 0.034F), height * 0.004F, leaves * light, 0.9F);
    }
}

namespace {

// How the ground at a place looks from the eye.
Color Look(const Terrain& terrain, float x, float y, float z, float distance) {
    const float step = 0.004F + distance * 0.0012F;
    const float slopeX = (terrain.Height(x + step, z) - y) / step;
    const float slopeZ = (terrain.Height(x, z + step) - y) / step;
    const float length = std::sqrt(slopeX * slopeX + slopeZ * slopeZ + 1);
    const float facing = (terrain.SunY - slopeX * terrain.SunX - slopeZ * terrain.SunZ) / length;
    float sun = Clamp01(facing);
    for (float away = 0.03F; away < 1.5F && sun > 0; away *= 1.9F) {
        const float ray = y + terrain.SunY * away;
        const float over = terrain.Height(x + terrain.SunX * away, z + terrain.SunZ * away) - ray;
        sun *= SmoothStep(0.03F * away + 0.01F, -0.03F * away, over);
    }
    const Color ground = terrain.Ground({x, y, z, 1 / length, distance});
    const Color lit = ground * (terrain.Ambient * (0.6F + 0.4F / length) + terrain.SunLight * sun);
    return Mix(terrain.Haze, lit, std::exp(-distance / terrain.HazeLength));
}

// One column of pixels, from the eye's feet away: each ground is seen from its height down to what stands before it.
void PaintColumn(Canvas& canvas, const Terrain& terrain, int column) {
    const auto rows = static_cast<float>(canvas.Height());
    const float slant = (static_cast<float>(column) + 0.5F) / rows - canvas.Aspect() / 2;
    std::vector<Color> behind;
    for (int i = 0; i < canvas.Height(); ++i) behind.push_back(canvas.At(column, i));
    float lowest = rows;
    for (float z = 0.15F; z < terrain.Far && lowest > 0; z *= 1.002F) {
        const float x = terrain.EyeX + slant * z;
        const float y = terrain.Height(x, terrain.EyeZ + z);
        const float row = std::max(0.0F, (terrain.Horizon + (terrain.EyeHeight - y) / z) * rows);
        if (row > lowest - 0.4F) continue;
        const Color look = Look(terrain, x, y, terrain.EyeZ + z, z);
        for (int i = static_cast<int>(row); static_cast<float>(i) < lowest; ++i) {
            const auto edge = static_cast<float>(i);
            const float seen = std::min(lowest, edge + 1) - std::max(row, edge);
            canvas.At(column, i) = canvas.At(column, i) + (look + behind[static_cast<size_t>(i)] * -1) * seen;
        }
        lowest = row;
    }
}

}  // namespace

void PaintTerrain(Canvas& canvas, const Terrain& terrain) {
    for (int column = 0; column < canvas.Width(); ++column) PaintColumn(canvas, terrain, column);
}

}  // namespace samples
