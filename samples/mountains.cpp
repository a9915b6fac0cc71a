// Mountains, hills, dunes.
#include "samples/land.h"
#include "samples/noise.h"
#include "samples/picture.h"
#include "samples/sky.h"

namespace samples {
namespace {

void MorningMist(Canvas& canvas) {
    Sky(canvas, {{0, 0x9FB6C9}, {0.5F, 0xE3D3C4}, {1, 0xFBE3C0}}, 0.62F);
    PaintSun(canvas, {0.98F, 0.36F, 0.035F, 0xFFF6DA, Color(0xFFC98A) * 0.5F, 0.22F});
    PaintRanges(canvas, {0.46F, 6, 0.13F, 0.55F, 0xD9BFAF, 0x1C2C33, 0xF3DDC6, 11});
    PaintConifers(
        canvas, [](float u) { return 0.985F + 0.03F * Noise(u * 2, 0, 3); }, 0.17F, 3.2F, 0x0F1A1E, 12);
}

void BlueRidges(Canvas& canvas) {
    Sky(canvas, {{0, 0x7BA4CF}, {0.6F, 0xC9DCEA}, {1, 0xF4EFE4}}, 0.6F);
    PaintClouds(canvas, {0.62F, 0.33F, 0.5F, 0xFFFFFF, 0xB7C6D8, 2, 0.1F, 5, 2});
    PaintRanges(canvas, {0.5F, 8, 0.15F, 0.35F, 0xB9CCDD, 0x14304A, 0xDDE8EF, 23});
}

void Dusk(Canvas& canvas) {
    Sky(canvas, {{0, 0x2B2B57}, {0.45F, 0x8B4C7A}, {0.75F, 0xE97F67}, {1, 0xFFD08A}}, 0.58F);
    PaintClouds(canvas, {0.6F, 0.38F, 0.55F, 0xFFB48A, 0x7A4A78, 0.5F, 0.55F, 8, 2.5F});
    PaintSun(canvas, {0.52F, 0.53F, 0.028F, 0xFFF3C9, Color(0xFF9A55) * 0.55F, 0.2F});
    PaintRanges(canvas, {0.52F, 6, 0.16F, 0.75F, 0xA85A73, 0x160F24, 0xF2A27E, 37});
}

void FirstSun(Canvas& canvas) {
    Sky(canvas, {{0, 0x3C6EA8}, {0.6F, 0x9CC3DC}, {1, 0xFFE6BE}}, 0.66F);
    PaintClouds(canvas, {0.66F, 0.3F, 0.4F, 0xFFEBD2, 0xA9B4CB, 0.1F, 0.5F, 15, 3});
    const Ridge peaks{0.5F, 0.24F, 0.55F, 1, 0xE79C6B, 0x5E6C93, 0.36F, 44};
    PaintRidge(canvas, peaks);
    PaintRidge(canvas, {0.72F, 0.1F, 0.5F, 0.5F, 0x4B5E80, 0x8FA3BC, 0.25F, 45});
    PaintRidge(canvas, {0.86F, 0.08F, 0.5F, 0.2F, 0x27405A, 0x52708A, 0.3F, 46});
    PaintConifers(
        canvas, [](float u) { return 0.93F + 0.05F * Noise(u * 1.5F, 0, 5); }, 0.12F, 4, 0x16302F, 47);
    PaintConifers(
        canvas, [](float u) { return 1.02F + 0.03F * Noise(u * 2, 0, 6); }, 0.2F, 3, 0x0B1D1D, 48);
}

Color SnowyRock(const Spot& spot) {
    const float patch = Fractal(spot.X * 2.5F, spot.Z * 2.5F, 4, 63) * 0.5F;
    const Color rock = Mix(Color(0x4B4A50), Color(0x7D766F), 0.5F + patch);
    const Color wood = Mix(Color(0x1F3B2B), Color(0x3E5C36), 0.5F + patch);
    const float snow =
        SmoothStep(0.30F, 0.46F, spot.Flat + patch * 0.12F) * SmoothStep(0.5F, 0.85F, spot.Height + patch * 0.3F);
    const float green = SmoothStep(0.75F, 0.5F, spot.Height + patch * 0.25F);
    return Mix(Mix(rock, wood, green), Color(0xFAFCFF), snow);
}

float AlpineHeight(float x, float z) {
    const float rise = SmoothStep(1.5F, 7, z);
    const float peaks = Ridged(x * 0.2F + 5.2F, z * 0.2F, 6, 61);
    return 0.14F * Noise(x * 0.9F, z * 0.9F, 60) + rise * (2.6F * peaks * peaks + 0.35F);
}

void SnowyAlps(Canvas& canvas) {
    Sky(canvas, {{0, 0x2F6DB5}, {0.7F, 0x8FBBE0}, {1, 0xDCE9F2}}, 0.55F);
    PaintClouds(canvas, {0.56F, 0.36F, 0.45F, 0xFFFFFF, 0xA8B9CF, 0.2F, 0.1F, 19, 1.6F});
    PaintTerrain(canvas, {.Height = AlpineHeight,
                          .Ground = SnowyRock,
                          .EyeX = 0,
                          .EyeHeight = 0.8F,
                          .EyeZ = 0,
                          .Horizon = 0.62F,
                          .Far = 24,
                          .SunX = -0.7F,
                          .SunY = 0.52F,
                          .SunZ = -0.49F,
                          .SunLight = Color(0xFFF0D8) * 1.05F,
                          .Ambient = Color(0x8FA8CC) * 0.7F,
                          .Haze = 0xB5CDE6,
                          .HazeLength = 26});
    PaintConifers(
        canvas, [](float u) { return 0.97F + 0.04F * Noise(u * 2, 0, 64); }, 0.09F, 4, 0x16281F, 65);
    PaintConifers(
        canvas, [](float u) { return 1.04F + 0.03F * Noise(u * 2, 0, 66); }, 0.15F, 4, 0x0C1A15, 67);
}

struct DuneLight {
    uint32_t Seed;
    float SunX, SunY, SunZ;
    Color Sun, Ambient, Haze;
};

void Dunes(Canvas& canvas, const DuneLight& light) {
    const auto height = [&](float x, float z) {
        const float bend = x + 0.5F * Noise(x * 0.4F, z * 0.4F, light.Seed);
        const float wave = Noise(bend * 0.42F, z * 0.6F, light.Seed + 1);
        const float crests = 1 - std::sqrt(wave * wave + 0.0004F) * 1.5F;
        return 0.62F * crests * std::abs(crests) + 0.2F * Noise(x * 0.3F, z * 0.3F, light.Seed + 2);
    };
    const auto ground = [&](const Spot& spot) {
        const float ripple =
            std::sin((spot.X * 0.8F + spot.Z + 0.35F * Noise(spot.X * 2, spot.Z * 2, light.Seed + 3)) * 60);
        return Color(0xE2B078) * (1 + 0.07F * ripple * SmoothStep(2.4F, 0.5F, spot.Distance));
    };
    PaintTerrain(canvas, {height, ground, 0, 1.05F, 0, 0.42F, 26, light.SunX, light.SunY, light.SunZ, light.Sun,
                          light.Ambient, light.Haze, 16});
}

void MorningDunes(Canvas& canvas) {
    Sky(canvas, {{0, 0x5B8FC4}, {0.6F, 0xA9CBE0}, {1, 0xF6E3C8}}, 0.45F);
    Dunes(canvas, {70, -0.86F, 0.36F, 0.36F, Color(0xFFE2B0) * 1.2F, Color(0x9C86A0) * 0.55F, 0xF0DCC4});
}

void EveningDunes(Canvas& canvas) {
    Sky(canvas, {{0, 0x2C2A5C}, {0.5F, 0xA5547C}, {0.8F, 0xF08A5D}, {1, 0xFFCE7E}}, 0.44F);
    PaintSun(canvas, {1.25F, 0.36F, 0.04F, 0xFFF0BF, Color(0xFF9A50) * 0.5F, 0.2F});
    Dunes(canvas, {82, 0.8F, 0.24F, 0.55F, Color(0xFF9D5C) * 1.35F, Color(0x7A4E86) * 0.6F, 0xF3A06A});
}

float CanyonHeight(float x, float z) {
    const float step = 1.7F + 1.9F * Fractal(x * 0.24F, z * 0.24F, 5, 91, 0.42F);
    const float tread = std::floor(step) + SmoothStep(0.5F, 0.9F, step - std::floor(step));
    return 0.5F * tread + 0.02F * Noise(x * 3, z * 3, 92);
}

Color CanyonRock(const Spot& spot) {
    const float layer = Fractal(spot.Height * 9, 0.2F * spot.X, 3, 93, 0.7F);
    const Color rock = Mix(Color(0xA9482A), Color(0xE3A377), Clamp01(0.5F + 0.5F * layer));
    return Mix(rock, Color(0xC79A66), SmoothStep(0.75F, 0.95F, spot.Flat) * 0.8F);
}

void RedCanyon(Canvas& canvas) {
    Sky(canvas, {{0, 0x2D74BC}, {0.7F, 0x86B8DC}, {1, 0xE8DCCB}}, 0.4F);
    PaintClouds(canvas, {0.4F, 0.4F, 0.4F, 0xFFFFFF, 0xB9BFCB, 2, 0, 27});
    PaintTerrain(canvas, {.Height = CanyonHeight,
                          .Ground = CanyonRock,
                          .EyeX = 4,
                          .EyeHeight = 2.1F,
                          .EyeZ = 3,
                          .Horizon = 0.34F,
                          .Far = 30,
                          .SunX = 0.66F,
                          .SunY = 0.5F,
                          .SunZ = -0.56F,
                          .SunLight = Color(0xFFE3BE) * 1.2F,
                          .Ambient = Color(0x8E86A8) * 0.6F,
                          .Haze = 0xD3C6CB,
                          .HazeLength = 24});
}

float IslandHeight(float x, float z) {
    return 1.25F * Fractal(x * 0.36F + 2, z * 0.36F, 5, 101, 0.46F) - 0.42F;
}

float SeaOrIsland(float x, float z) {
    return std::max(IslandHeight(x, z), 0.004F * Noise(x * 12, z * 9, 102));
}

Color IslandGround(const Spot& spot) {
    const float height = IslandHeight(spot.X, spot.Z);
    const Color water = Mix(Color(0x37C0BE), Color(0x0C4C86), SmoothStep(0, -0.45F, height));
    const Color green = Mix(Color(0x3C6A2E), Color(0x7C9446), 0.5F + 0.4F * Fractal(spot.X * 7, spot.Z * 7, 2, 103));
    const Color ground = Mix(Color(0xF1E0B4), green, SmoothStep(0.03F, 0.1F, height));
    return Mix(water, ground, SmoothStep(-0.015F, 0.01F, height));
}

void Islands(Canvas& canvas) {
    Sky(canvas, {{0, 0x3F86C6}, {0.7F, 0xA6D0E6}, {1, 0xF2EFDF}}, 0.4F);
    PaintCumulus(canvas, 0.36F, 0.24F, 0xFFFFFF, 0xA9BBD0, 33);
    PaintTerrain(canvas, {.Height = SeaOrIsland,
                          .Ground = IslandGround,
                          .EyeX = 1,
                          .EyeHeight = 1.6F,
                          .EyeZ = 0,
                          .Horizon = 0.36F,
                          .Far = 40,
                          .SunX = -0.5F,
                          .SunY = 0.75F,
                          .SunZ = -0.43F,
                          .SunLight = Color(0xFFF4DC) * 0.95F,
                          .Ambient = Color(0xA6C3DC) * 0.55F,
                          .Haze = 0xCFE2EA,
                          .HazeLength = 22});
}

float HillHeight(float x, float z) {
    return 0.55F * Fractal(x * 0.3F, z * 0.3F, 3, 111, 0.35F);
}

// Fields of every green, with hedges between them.
Color HillField(const Spot& spot) {
    const float x = spot.X * 1.3F + spot.Z * 0.45F + 0.15F * Noise(spot.X, spot.Z, 114) + 0.4F;
    const float z = spot.Z * 0.9F - spot.X * 0.3F;
    const float cell = Hash(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(z)), 112);
    const float hedge = std::max(std::abs(x - std::floor(x) - 0.5F), std::abs(z - std::floor(z) - 0.5F));
    static const Ramp kCrops{{0, 0x3F7A32}, {0.55F, 0x86A844}, {0.8F, 0xD2BE5C}, {1, 0x9C7A4A}};
    const Color grown = kCrops(cell) * (1 + 0.12F * Fractal(spot.X * 9, spot.Z * 9, 3, 113));
    const float ragged = 0.012F * Noise(spot.X * 30, spot.Z * 30, 115);
    return Mix(grown, Color(0x25471F), SmoothStep(0.465F, 0.475F, hedge + ragged));
}

void GreenHills(Canvas& canvas) {
    Sky(canvas, {{0, 0x4E97D6}, {0.7F, 0xA9D3EE}, {1, 0xEAF3F0}}, 0.6F);
    PaintCumulus(canvas, 0.46F, 0.3F, 0xFFFFFF, 0xA7BBD2, 51);
    PaintTerrain(canvas, {.Height = HillHeight,
                          .Ground = HillField,
                          .EyeX = 0,
                          .EyeHeight = 1,
                          .EyeZ = 0,
                          .Horizon = 0.46F,
                          .Far = 26,
                          .SunX = 0.7F,
                          .SunY = 0.55F,
                          .SunZ = -0.2F,
                          .SunLight = Color(0xFFF0C8) * 1.05F,
                          .Ambient = Color(0x9CB8D0) * 0.55F,
                          .Haze = 0xD6E6EC,
                          .HazeLength = 18});
}

}  // namespace

std::vector<Picture> Mountains() {
    return {
        {"Brume du matin.jpg", {2400, 1600}, MorningMist}, {"Crêtes bleues.jpg", {3600, 1200}, BlueRidges},
        {"Vallée au crépuscule.jpg", {2560, 1440}, Dusk},  {"Premier soleil.jpg", {1600, 1200}, FirstSun},
        {"Alpes enneigées.jpg", {4240, 2832}, SnowyAlps},  {"Dunes au petit matin.jpg", {2400, 1600}, MorningDunes},
        {"Dunes du soir.jpg", {1920, 1080}, EveningDunes}, {"Canyon rouge.jpg", {3000, 2000}, RedCanyon},
        {"Îles au large.jpg", {2400, 1600}, Islands},      {"Collines vertes.jpg", {2048, 1536}, GreenHills},
    };
}

}  // namespace samples
