// Woods and fields.
#include "samples/land.h"
#include "samples/noise.h"
#include "samples/picture.h"
#include "samples/sky.h"

namespace samples {
namespace {

struct WoodLook {
    Color Far, Near;
    Color Mist;
    float Tall;  // the nearest trees, in heights
    int Rows;
    uint32_t Seed;
    float Snow = 0;
};

// Rows of conifers from far in the mist to near.
void PaintWood(Canvas& canvas, const WoodLook& look, float horizon) {
    for (int i = 0; i < look.Rows; ++i) {
        const float near = static_cast<float>(i) / static_cast<float>(look.Rows - 1);
        const float foot = Mix(horizon, 1.06F, near * near);
        const uint32_t seed = look.Seed + static_cast<uint32_t>(i) * 7;
        const auto line = [&](float u) { return foot + (0.05F + 0.03F * near) * Noise(u * 1.3F, 0, seed); };
        const Color ground = Mix(look.Far, look.Near, near);
        PaintConifers(canvas, line, look.Tall * (0.12F + 0.88F * near * near), 7 - 3.5F * near, ground, seed,
                      look.Snow);
        canvas.Below(line, [&](float, float v, Color) {
            return Mix(Mix(ground, Color(0xDCE6F0), look.Snow * 0.85F), look.Mist,
                       SmoothStep(foot - 0.05F, foot + 0.16F, v) * (1 - near));
        });
    }
}

void PineForest(Canvas& canvas) {
    Sky(canvas, {{0, 0x9FC0BE}, {0.6F, 0xDCE6D6}, {1, 0xF3EBD2}}, 0.6F);
    PaintSun(canvas, {0.4F, 0.2F, 0.03F, 0xFFFBE8, Color(0xFFE9B8) * 0.22F, 0.2F});
    PaintRanges(canvas, {0.36F, 3, 0.07F, 0.3F, 0xB7CDC4, 0x86A79E, 0xE3EADB, 131});
    PaintWood(canvas, {0x86A79C, 0x0C211C, 0xD9E4D6, 0.52F, 7, 132}, 0.5F);
}

void FoggyEdge(Canvas& canvas) {
    Sky(canvas, {{0, 0xC9D0D3}, {1, 0xE9E6DE}}, 0.7F);
    PaintWood(canvas, {0xBCC6C8, 0x2C3B3E, 0xE2E2DC, 0.62F, 6, 141}, 0.5F);
    canvas.Each([](float u, float v, Color& pixel) {
        const float fog = 0.35F + 0.3F * Fractal(u * 1.4F, v * 3, 4, 142);
        pixel = Mix(pixel, Color(0xE6E5DF), Clamp01(fog) * SmoothStep(0.2F, 0.75F, v) * 0.8F);
    });
}

void FirstSnow(Canvas& canvas) {
    Sky(canvas, {{0, 0x6F8FB8}, {0.6F, 0xB9CBE0}, {1, 0xF3DDD6}}, 0.6F);
    PaintRidge(canvas, {0.44F, 0.16F, 0.5F, 0.9F, 0xE8E4EC, 0xA9BAD2, 0.3F, 150});
    PaintWood(canvas, {0x7E93AC, 0x24384A, 0xC9D5E4, 0.5F, 6, 151, 0.75F}, 0.56F);
}

void Snowfall(Canvas& canvas) {
    Sky(canvas, {{0, 0x46566E}, {1, 0x93A3B8}}, 0.7F);
    PaintWood(canvas, {0x74849A, 0x18242F, 0x98A7BA, 0.6F, 6, 161, 0.6F}, 0.56F);
    Random random(162);
    for (int i = 0; i < 900; ++i) {
        const float near = std::pow(random.Unit(), 5.0F);
        const float size = 0.0014F + 0.011F * near;
        canvas.Disc(random.Between(0, canvas.Aspect()), random.Unit(), size, size * 0.8F, 0xF4F8FF,
                    0.85F - 0.45F * near);
    }
}

void AutumnAvenue(Canvas& canvas) {
    Sky(canvas, {{0, 0x8FB4CF}, {0.7F, 0xD9E2DC}, {1, 0xF4E3C0}}, 0.55F);
    PaintRanges(canvas, {0.46F, 3, 0.06F, 0.1F, 0xC9B89C, 0x8F7F50, 0xE9DCBF, 171});
    canvas.Each(
        [&](float u, float v, Color& pixel) {
            const float far = 1 / (v - 0.5F);
            const float aside = std::abs(u - canvas.Aspect() * 0.5F - 0.02F * Noise(far, 0, 1)) * far;
            const float leaves = Fractal((u - canvas.Aspect() * 0.5F) * far * 5, far * 5, 4, 172);
            const Color grass = Mix(Color(0x7F7A36), Color(0xC98A35), Clamp01(0.5F + 0.7F * leaves));
            const Color path = Mix(Color(0xC2A988), Color(0xB9793A), Clamp01(leaves * 1.5F));
            pixel = Mix(path, grass, SmoothStep(0.42F, 0.62F, aside));
        },
        0.56F);
    const Color hues[] = {0xD9822B, 0xC5532A, 0xE3B23C, 0xB8862F, 0xA83F2B};
    Random random(173);
    for (int i = 11; i >= 0; --i) {
        const float far = 1 + 0.62F * static_cast<float>(i);
        const float foot = 0.5F + 0.56F / far;
        const float height = 1.15F / far + 0.03F;
        for (const float side : {-1.0F, 1.0F}) {
            const float u = canvas.Aspect() * 0.5F + side * 0.92F / far + random.Between(-0.02F, 0.02F);
            const Color hue = Mix(hues[random.Below(5)], Color(0xEAD9BC), Clamp01(static_cast<float>(i) * 0.055F));
            PaintLeafTree(canvas, u, foot, height * random.Between(0.9F, 1.1F), hue, random.Next());
        }
    }
}

struct RowsLook {
    float Horizon;
    float Vanish;  // u where the rows meet
    float Density;
    Color Crop, Shade, Soil;
    float Bend;
    uint32_t Seed;
};

// A field in rows that run to a point of the horizon.
void PaintRows(Canvas& canvas, const RowsLook& look) {
    canvas.Each(
        [&](float u, float v, Color& pixel) {
            const float down = v - look.Horizon;
            const float far = 1 / (down + 0.015F);
            const float across = (u - look.Vanish) * far + look.Bend * std::sin(far * 0.5F);
            const float row = across * look.Density;
            const float place = row - std::floor(row);
            const float tuft = Fractal(across * 9, far * 9, 3, look.Seed);
            const float bush = std::abs(place - 0.5F) * 2 + 0.3F * tuft;
            const float clear = SmoothStep(0.5F, 0.12F, far * look.Density * canvas.Pixel() * 2);
            const Color plant = Mix(look.Shade, look.Crop, Clamp01(0.72F - 0.6F * (place - 0.3F) + 0.55F * tuft));
            const Color near = Mix(plant, look.Soil, SmoothStep(0.62F, 0.85F, bush));
            const Color mean = Mix(Mix(look.Shade, look.Crop, 0.62F), look.Soil, 0.16F);
            const Color ground = Mix(mean * (1 + 0.12F * tuft), near, clear);
            pixel = Mix(ground, Mix(look.Crop, Color(0xF2E6D8), 0.4F), 0.55F * SmoothStep(0.12F, 0, down));
        },
        look.Horizon);
}

void Lavender(Canvas& canvas) {
    Sky(canvas, {{0, 0x5D7FC0}, {0.55F, 0xC9A6C6}, {0.85F, 0xF7C9A0}, {1, 0xFFE3B0}}, 0.44F);
    PaintClouds(canvas, {0.45F, 0.36F, 0.5F, 0xFFD9C0, 0x9A88B5, 1.1F, 0.4F, 180, 2.4F});
    PaintSun(canvas, {1.1F, 0.39F, 0.022F, 0xFFF6D8, Color(0xFFB070) * 0.5F, 0.16F});
    PaintRidge(canvas, {0.425F, 0.035F, 0.4F, 0.2F, 0x7E74A6, 0xC4A9BE, 0.06F, 181});
    PaintRows(canvas, {0.445F, 0.82F, 2.6F, 0x9B7BD0, 0x4A3580, 0x6E5A4A, 0, 182});
    PaintLeafTree(canvas, 0.42F, 0.47F, 0.13F, 0x5B6B3A, 183);
}

void Wheat(Canvas& canvas) {
    Sky(canvas, {{0, 0x2F7FCB}, {0.7F, 0x9CCBEA}, {1, 0xE6EFE8}}, 0.5F);
    PaintCumulus(canvas, 0.43F, 0.3F, 0xFFFFFF, 0xA4B5CC, 195);
    PaintRidge(canvas, {0.475F, 0.03F, 0.5F, 0.1F, 0x5E8150, 0x9DB581, 0.05F, 191});
    PaintRows(canvas, {0.49F, 0.5F, 3.4F, 0xEFC868, 0xB88A35, 0xD6AC58, 0.16F, 192});
    PaintLeafTree(canvas, 1.22F, 0.535F, 0.3F, 0x4C7034, 193);
}

void Tulips(Canvas& canvas) {
    Sky(canvas, {{0, 0x6FB1E4}, {0.7F, 0xC2E0F2}, {1, 0xF4F4EC}}, 0.4F);
    PaintClouds(canvas, {0.4F, 0.42F, 0.4F, 0xFFFFFF, 0xBCCBDD, 0.2F, 0, 203, 1.6F});
    PaintRidge(canvas, {0.39F, 0.012F, 0.1F, 0.1F, 0x49683F, 0x49683F, 0.1F, 201});
    const Color beds[] = {0xD8324A, 0xF2B632, 0xF3F0EA, 0xE86AA0, 0x7B3FA0, 0xF07A2C};
    const float vanish = 0.95F;
    canvas.Each(
        [&](float u, float v, Color& pixel) {
            const float down = v - 0.4F;
            const float far = 1 / (down + 0.012F);
            const float row = (u - vanish) * far * 1.1F + 40;
            const float place = row - std::floor(row);
            const Color bed = beds[static_cast<int>(row) % 6];
            const float heads = Noise((u - vanish) * far * 26, far * 26, 202) * SmoothStep(26, 6, far);
            const Color bloom = Mix(bed * (1 + 0.35F * heads), Color(0x3F7A36), Clamp01(-heads * 1.4F - 0.25F));
            const Color green = Color(0x4C8A3C) * (0.85F + 0.3F * heads);
            const float edge = 0.06F + far * canvas.Pixel();
            const float strip =
                SmoothStep(0.10F - edge, 0.10F + edge, place) * SmoothStep(0.92F + edge, 0.92F - edge, place);
            pixel = Mix(Mix(green, bloom, strip), Color(0xF1EDE6), 0.4F * SmoothStep(0.1F, 0, down));
        },
        0.4F);
}

void PloughedField(Canvas& canvas) {
    Sky(canvas, {{0, 0x7FA9D2}, {0.7F, 0xE6DCCB}, {1, 0xFFE2AE}}, 0.5F);
    PaintSun(canvas, {0.2F, 0.34F, 0.02F, 0xFFFBE6, Color(0xFFCF8A) * 0.25F, 0.2F});
    PaintRanges(canvas, {0.4F, 4, 0.07F, 0.2F, 0xC2B2A8, 0x6C6A44, 0xF0DEC0, 211});
    PaintRows(canvas, {0.5F, 0.62F, 1.9F, 0xD08A30, 0x7A3B22, 0x8F7A56, -0.1F, 212});
}

}  // namespace

std::vector<Picture> Woods() {
    return {
        {"Forêt de sapins.jpg", {1600, 2400}, PineForest},
        {"Lisière dans le brouillard.jpg", {2400, 1600}, FoggyEdge},
        {"Première neige.jpg", {1600, 1200}, FirstSnow},
        {"Il neige.jpg", {1200, 1200}, Snowfall},
        {"Allée d'automne.jpg", {2000, 2000}, AutumnAvenue},
        {"Champ de lavande.jpg", {3000, 2000}, Lavender},
        {"Blés d'été.jpg", {2400, 1600}, Wheat},
        {"Rangs de tulipes.jpg", {2560, 1440}, Tulips},
        {"Labours d'octobre.webp", {1200, 900}, PloughedField},
    };
}

}  // namespace samples
