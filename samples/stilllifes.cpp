// Still lifes of spheres on a table, by following rays of light.
#include "samples/noise.h"
#include "samples/picture.h"

#include <functional>

namespace samples {
namespace {

struct Vector {
    float X, Y, Z;
    friend Vector operator+(Vector a, Vector b) { return {a.X + b.X, a.Y + b.Y, a.Z + b.Z}; }
    friend Vector operator-(Vector a, Vector b) { return {a.X - b.X, a.Y - b.Y, a.Z - b.Z}; }
    friend Vector operator*(Vector a, float f) { return {a.X * f, a.Y * f, a.Z * f}; }
};
float Dot(Vector a, Vector b) {
    return a.X * b.X + a.Y * b.Y + a.Z * b.Z;
}
Vector Unit(Vector a) {
    return a * (1 / std::sqrt(Dot(a, a)));
}

enum class Skin : uint8_t { Matte, Glossy, Mirror, Glass };

struct Sphere {
    Vector Centre;
    float Radius;
    Color Hue;
    Skin Surface = Skin::Glossy;
};

// Spheres on the table y = 0, before a wall that the table bends up into.
struct Scene {
    std::vector<Sphere> Spheres;
    std::function<Color(float x, float z)> Table;
    Color Wall;
    Color Light;
    Color Sky;  // light from all around
    Vector Lamp;
    Vector Eye;
    float Down;  // how far the eye looks down
};

struct Ray {
    Vector From, Along;
};

// Distance along the ray to the sphere, or -1.
float Meet(const Ray& ray, const Sphere& sphere) {
    const Vector to = ray.From - sphere.Centre;
    const float b = Dot(to, ray.Along);
    const float h = b * b - Dot(to, to) + sphere.Radius * sphere.Radius;
    if (h < 0) return -1;
    const float root = std::sqrt(h);
    return -b - root > 0.001F ? -b - root : -1;
}

// How much of a wide lamp is seen past the spheres: 0 to 1.
float Unshadowed(const Scene& scene, Vector place, const Sphere* self) {
    const Vector away = Unit(scene.Lamp - place);
    float seen = 1;
    for (const Sphere& sphere : scene.Spheres) {
        if (&sphere == self) continue;
        const Vector to = sphere.Centre - place;
        const float along = Dot(to, away);
        if (along <= 0) continue;
        const float miss = std::sqrt(std::max(0.0F, Dot(to, to) - along * along)) - sphere.Radius;
        const float through = sphere.Surface == Skin::Glass ? 0.55F : 0.0F;
        seen *= std::max(through, SmoothStep(-0.13F * along, 0.13F * along, miss));
    }
    return seen;
}

// How much of the sky a place sees past the spheres about it.
float Open(const Scene& scene, Vector place, Vector normal, const Sphere* self) {
    float open = 1;
    for (const Sphere& sphere : scene.Spheres) {
        if (&sphere == self) continue;
        const Vector to = sphere.Centre - place;
        const float distance = std::sqrt(Dot(to, to));
        const float share = sphere.Radius / distance;
        open *= 1 - Clamp01(Dot(normal, to) / distance) * share * share;
    }
    return open;
}

Color Trace(const Scene& scene, const Ray& ray, int depth);

Color Background(const Scene& scene, const Ray& ray) {
    return Mix(scene.Wall * 1.1F, scene.Wall * 0.55F, Clamp01(0.2F + ray.Along.Y * 1.4F)) +
           scene.Light * (0.9F * SmoothStep(0.93F, 0.975F, Dot(ray.Along, Unit(scene.Lamp))));
}

Color TableLook(const Scene& scene, const Ray& ray) {
    const float distance = -ray.From.Y / ray.Along.Y;
    const Vector place = ray.From + ray.Along * distance;
    const float sun = Unshadowed(scene, place, nullptr) * Unit(scene.Lamp - place).Y;
    const float open = Open(scene, place, {0, 1, 0}, nullptr);
    const Color lit = scene.Table(place.X, place.Z) * (scene.Light * sun + scene.Sky * (0.25F + 0.75F * open));
    const Ray level{ray.From, Unit({ray.Along.X, 0.02F, ray.Along.Z})};
    return Mix(lit, Background(scene, level), SmoothStep(7, 16, distance));
}

Color GlassLook(const Scene& scene, const Ray& ray, const Sphere& sphere, Vector place, Vector normal, float rim,
                int depth) {
    const Vector inward = Unit(ray.Along - normal * (0.34F * (1 + Dot(normal, ray.Along))) - normal * 0.12F);
    const float across = -2 * Dot(place - sphere.Centre, inward);
    const Vector exit = place + inward * across;
    const Vector out = Unit(inward + Unit(exit - sphere.Centre) * -0.34F);
    const Color through = Trace(scene, {exit + out * 0.01F, out}, depth + 1) * sphere.Hue;
    const Vector bounced = ray.Along - normal * (2 * Dot(ray.Along, normal));
    return Mix(through, Trace(scene, {place, bounced}, depth + 1), 0.06F + 0.8F * rim);
}

Color SphereLook(const Scene& scene, const Ray& ray, const Sphere& sphere, float distance, int depth) {
    const Vector place = ray.From + ray.Along * distance;
    const Vector normal = (place - sphere.Centre) * (1 / sphere.Radius);
    const float rim = std::pow(1 - Clamp01(-Dot(normal, ray.Along)), 4.0F);
    const Vector lamp = Unit(scene.Lamp - place);
    const Vector bounced = ray.Along - normal * (2 * Dot(ray.Along, normal));
    const float seen = Unshadowed(scene, place, &sphere);
    const float shine = seen * std::pow(Clamp01(Dot(bounced, lamp)), 90.0F);
    if (sphere.Surface == Skin::Glass && depth < 3) {
        return GlassLook(scene, ray, sphere, place, normal, rim, depth) + scene.Light * shine;
    }
    const float sun = Clamp01(Dot(normal, lamp)) * seen;
    const float under = Clamp01(0.5F - 0.5F * normal.Y);
    const Color around = Mix(scene.Sky, scene.Table(place.X, place.Z) * scene.Sky * 0.7F, under);
    const float open =
        Open(scene, place, normal, &sphere) * SmoothStep(-0.2F, 0.5F, place.Y / sphere.Radius + normal.Y * 0.4F + 0.3F);
    const Color matte = sphere.Hue * (scene.Light * sun + around * open);
    if (sphere.Surface == Skin::Matte || depth >= 3) return matte;
    const Color mirrored = Trace(scene, {place, bounced}, depth + 1);
    if (sphere.Surface == Skin::Mirror) return mirrored * Mix(sphere.Hue, Color(0xFFFFFF), rim) + scene.Light * shine;
    return Mix(matte, mirrored, 0.05F + 0.5F * rim) + scene.Light * (shine * 0.8F);
}

Color Trace(const Scene& scene, const Ray& ray, int depth) {
    const Sphere* nearest = nullptr;
    float distance = 1e9F;
    for (const Sphere& sphere : scene.Spheres) {
        const float here = Meet(ray, sphere);
        if (here < 0 || here >= distance) continue;
        distance = here;
        nearest = &sphere;
    }
    if (nearest) return SphereLook(scene, ray, *nearest, distance, depth);
    return ray.Along.Y < -0.001F ? TableLook(scene, ray) : Background(scene, ray);
}

void PaintScene(Canvas& canvas, const Scene& scene) {
    const float quarter = canvas.Pixel() / 4;
    canvas.Each([&](float u, float v, Color& pixel) {
        Color sum;
        for (const float dx : {-quarter, quarter}) {
            for (const float dy : {-quarter, quarter}) {
                const Vector along = Unit({u + dx - canvas.Aspect() / 2, 0.5F - v - dy - scene.Down, 1.5F});
                const Color light = Trace(scene, {scene.Eye, along}, 0);
                sum = sum + Color(std::min(light.R, 1.2F), std::min(light.G, 1.2F), std::min(light.B, 1.2F)) * 0.25F;
            }
        }
        pixel = sum;
    });
}

Color Planks(float x, float z) {
    const float plank = std::floor(x * 0.9F);
    const float grain = Noise(x * 14, z * 0.7F + plank * 7, 801) * 0.5F + Noise(x * 42, z * 1.6F, 802) * 0.3F;
    const float seam = SmoothStep(
        0.012F, 0.03F, std::abs(x * 0.9F - plank - 0.5F) < 0.5F ? std::min(x * 0.9F - plank, plank + 1 - x * 0.9F) : 1);
    return Color(0xB98555) * (0.9F + 0.2F * Hash(static_cast<int>(plank), 0, 803) + 0.16F * grain) *
           (0.55F + 0.45F * seam);
}

Color Cloth(float, float) {
    return 0xE9E4DA;
}

Color Marble(float x, float z) {
    const float vein = Ridged(x * 0.6F + 0.4F * Noise(x, z, 811), z * 0.6F, 5, 812);
    return Mix(Color(0xECEAE6), Color(0x8C9096), SmoothStep(0.72F, 1.0F, vein) * 0.7F);
}

void ThreeSpheres(Canvas& canvas) {
    PaintScene(canvas, {{{{-1.05F, 0.8F, 5.2F}, 0.8F, 0xD8432F},
                         {{0.75F, 0.55F, 4.4F}, 0.55F, 0xF0B432},
                         {{0.55F, 1.05F, 6.6F}, 1.05F, 0x2F6FB0, Skin::Matte}},
                        Cloth,
                        0xC9D3D8,
                        Color(0xFFF2DC) * 0.85F,
                        Color(0xB9CCE4) * 0.42F,
                        {-5, 7, 1},
                        {0, 1.7F, 0},
                        0.24F});
}

void Fruit(Canvas& canvas) {
    Scene scene{{{{-0.55F, 0.62F, 4.4F}, 0.62F, 0xE58A1F},
                 {{0.55F, 0.56F, 4.2F}, 0.56F, 0xC9302C},
                 {{0.05F, 0.55F, 5.5F}, 0.55F, 0x9DB83A},
                 {{-1.55F, 0.5F, 5.2F}, 0.5F, 0xE8C63C, Skin::Matte}},
                Planks,
                0x4A3A36,
                Color(0xFFE4BC) * 1.3F,
                Color(0xA89C9C) * 0.6F,
                {-5, 4.5F, 1.5F},
                {0, 1.75F, 0},
                0.25F};
    Random random(821);
    for (int i = 0; i < 15; ++i) {  // a bunch of grapes
        const float x = 1.45F + random.Between(-0.38F, 0.38F);
        const float z = 4.5F + random.Between(-0.4F, 0.4F);
        scene.Spheres.push_back({{x, i < 10 ? 0.17F : 0.42F, z}, 0.17F, 0x5A2A6A});
    }
    PaintScene(canvas, scene);
}

void GlassMarbles(Canvas& canvas) {
    Scene scene{{}, Marble, 0xBFCBD2, Color(0xFFF6E8) * 0.8F, Color(0xC4D4E4) * 0.45F, {4, 7, 2}, {0, 2.1F, 0}, 0.36F};
    const Color hues[] = {0x9AD8E8, 0xF2A8A0, 0xB8E0A0, 0xF6DC90, 0xC8B0F0};
    const float places[][3] = {
        {-1.3F, 5.6F, 0.62F}, {0.1F, 4.6F, 0.5F}, {1.35F, 5.3F, 0.7F}, {-0.75F, 4.0F, 0.36F}, {0.2F, 6.6F, 0.75F}};
    for (int i = 0; i < 5; ++i)
        scene.Spheres.push_back({{places[i][0], places[i][2], places[i][1]}, places[i][2], hues[i], Skin::Glass});
    scene.Spheres.push_back({{0.95F, 0.3F, 3.9F}, 0.3F, 0xC23B3B});
    scene.Spheres.push_back({{-1.75F, 0.28F, 4.4F}, 0.28F, 0x2F5FA8});
    PaintScene(canvas, scene);
}

void Pearls(Canvas& canvas) {
    Scene scene{
        {},
        [](float x, float z) { return Mix(Color(0x23405A), Color(0x2C4F6C), 0.5F + 0.5F * Noise(x * 3, z * 3, 831)); },
        0x1C2F44,
        Color(0xFFF4E6) * 0.95F,
        Color(0x8CA4C4) * 0.5F,
        {-4, 7, 2},
        {0, 2.6F, 0},
        0.5F};
    Random random(832);
    for (int tries = 0; tries < 900 && scene.Spheres.size() < 36; ++tries) {
        const float radius = random.Between(0.14F, 0.42F);
        const Vector centre{random.Between(-2.6F, 2.6F), radius, random.Between(3.4F, 8)};
        bool clear = true;
        for (const Sphere& other : scene.Spheres) {
            const Vector apart = other.Centre - centre;
            clear = clear && Dot(apart, apart) > (radius + other.Radius) * (radius + other.Radius);
        }
        const Color hues[] = {0xF6EDE2, 0xE9D3C4, 0xC9D3DC, 0xE3B8A8, 0xD8B25A};
        if (clear)
            scene.Spheres.push_back(
                {centre, radius, hues[random.Below(5)], random.Chance(0.16F) ? Skin::Mirror : Skin::Glossy});
    }
    PaintScene(canvas, scene);
}

void Chessboard(Canvas& canvas) {
    const auto board = [](float x, float z) {
        return (static_cast<int>(std::floor(x)) + static_cast<int>(std::floor(z))) % 2 == 0 ? Color(0xF0E9DC)
                                                                                            : Color(0x2E3A46);
    };
    PaintScene(canvas, {{{{0, 1.1F, 6}, 1.1F, 0xE6EAEE, Skin::Mirror},
                         {{-1.7F, 0.6F, 4.8F}, 0.6F, 0xE8B23C, Skin::Mirror},
                         {{1.5F, 0.5F, 4.4F}, 0.5F, 0xC23B4A},
                         {{0.35F, 0.3F, 3.8F}, 0.3F, 0x2F8F7A}},
                        board,
                        0x86B4DC,
                        Color(0xFFF4E0) * 0.85F,
                        Color(0xB4CCE8) * 0.45F,
                        {5, 7, 0},
                        {0, 1.6F, 0},
                        0.2F});
}

}  // namespace

std::vector<Picture> StillLifes() {
    return {
        {"Trois sphères.jpg", {1800, 1200}, ThreeSpheres},   {"Nature morte.jpg", {2400, 1600}, Fruit},
        {"Billes de verre.jpg", {1600, 1200}, GlassMarbles}, {"Perles.jpg", {1500, 1000}, Pearls},
        {"Échiquier.jpg", {1920, 1080}, Chessboard},
    };
}

}  // namespace samples
