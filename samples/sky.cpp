#include "samples/sky.h"

#include "samples/noise.h"

namespace samples {

void Sky(Canvas& canvas, const Ramp& colors, float horizon) {
    canvas.Each([&](float, float v, Color& pixel) { pixel = colors(v / horizon); });
}

void PaintSun(Canvas& canvas, const Sun& sun) {
    canvas.Glow(sun.U, sun.V, sun.Spread, sun.Light);
    canvas.Glow(sun.U, sun.V, sun.Spread / 4, sun.Light);
    canvas.Disc(sun.U, sun.V, sun.Radius, sun.Radius / 12, sun.Disc * 1.4F);
}

void PaintClouds(Canvas& canvas, const Clouds& clouds) {
    const float middle = canvas.Aspect() / 2;
    const auto density = [&](float u, float v) {
        const float far = 1 / (clouds.Horizon - v + 0.12F);
        const float x = (u - middle) * far / (clouds.Size * 2.2F * clouds.Stretch);
        const float y = far / (clouds.Size * 1.1F);
        const float bend = Noise(x * 0.7F, y * 0.7F, clouds.Seed + 50);
        return Fractal(x + bend * 0.5F, y + bend * 0.3F, 6, clouds.Seed, 0.55F) + clouds.Cover * 1.6F - 0.8F;
    };
    canvas.Each(
        [&](float u, float v, Color& pixel) {
            const float here = density(u, v);
            const float solid = SmoothStep(-0.1F, 0.5F, here) * SmoothStep(0, 0.1F, clouds.Horizon - v);
            if (solid < 0.004F) return;
            const float reach = std::max(0.05F, std::hypot(clouds.SunU - u, clouds.SunV - v));
            const float step = 0.03F / reach;
            const float toSun = density(u + (clouds.SunU - u) * step, v + (clouds.SunV - v) * step);
            const float light = Clamp01(0.62F + (here - toSun) * 1.5F - here * 0.45F);
            pixel = Mix(pixel, Mix(clouds.Shaded, clouds.Lit, light), solid);
        },
        0, clouds.Horizon);
}

void PaintCumulus(Canvas& canvas, float base, float size, Color lit, Color shaded, uint32_t seed) {
    const auto density = [&](float u, float v) {
        const float x = u / size;
        const float above = (base - v) / size;
        const float heap = 0.55F + 0.75F * Noise(x * 0.8F, 3, seed) + 0.2F * Noise(x * 2.1F, 5, seed);
        float puffs = 0;  // bulges, each with smaller ones on it
        float strength = 0.2F;
        float px = x * 2.6F;
        float py = above * 3.1F;
        for (uint32_t i = 0; i < 5; ++i) {
            puffs += strength * (0.5F - 1.6F * std::abs(Noise(px, py, seed + 20 + i)));
            strength *= 0.6F;
            const float turned = 1.7F * px - 1.3F * py;
            py = 1.3F * px + 1.7F * py;
            px = turned;
        }
        const float foot = SmoothStep(0.05F, -0.04F, above + 0.15F * puffs);
        return heap - above * 1.15F + puffs * 1.3F - foot * 2;
    };
    canvas.Each(
        [&](float u, float v, Color& pixel) {
            const float here = density(u, v);
            if (here <= 0) return;
            const float shade = density(u - size * 0.03F, v - size * 0.05F);
            const float low = SmoothStep(0.45F, 0, (base - v) / size);
            const float light = Clamp01(0.78F + (here - shade) * 1.3F - low * 0.5F);
            pixel = Mix(pixel, Mix(shaded, lit, light), SmoothStep(0, 0.12F, here) * 0.97F);
        },
        base - size * 1.4F, base + size * 0.1F);
}

void PaintStars(Canvas& canvas, int count, float down, uint32_t seed) {
    Random random(seed);
    for (int i = 0; i < count; ++i) {
        const float u = random.Between(0, canvas.Aspect());
        const float v = random.Between(0, down);
        const float bright = std::pow(random.Unit(), 6.0F);
        const Color hue = Mix(Color(0xBFD4FF), Color(0xFFE9C8), random.Unit());
        const float fade = SmoothStep(down, down * 0.6F, v);
        canvas.Disc(u, v, 0.0006F + bright * 0.0016F, 0.0012F, hue, (0.35F + bright * 0.65F) * fade);
        if (bright > 0.7F) canvas.Glow(u, v, 0.004F, hue * 0.25F * fade);
    }
}

void PaintMilkyWay(Canvas& canvas, float u, float v, float angle, uint32_t seed) {
    const float across = std::cos(angle);
    const float along = std::sin(angle);
    Random random(seed);
    canvas.Each([&](float x, float y, Color& pixel) {
        const float s = (x - u) * across + (y - v) * along;
        const float t = (y - v) * across - (x - u) * along + Noise(s * 2, 3, seed) * 0.05F;
        const float band = std::exp(-t * t * 45) * (0.8F + 0.35F * Fractal(s * 3, t * 5, 5, seed));
        const float heart = std::exp(-(t * t * 160 + s * s * 5));
        const float dust = SmoothStep(0.5F, 0.95F, Ridged(s * 3.2F + 5, t * 7, 5, seed + 7)) * std::exp(-t * t * 130);
        const float light = std::max(0.0F, band) * (1 - 0.75F * dust);
        pixel = pixel + Mix(Color(0x5C6CA8), Color(0xB79A92), heart) * (light * 0.42F) +
                Color(0xFFD9A8) * (heart * 0.30F * (1 - dust * 0.8F));
    });
    const int count = static_cast<int>(canvas.Aspect() * 5200);
    for (int i = 0; i < count; ++i) {
        const float s = random.Between(-1.5F, 1.5F);
        const float t = (random.Unit() + random.Unit() + random.Unit() - 1.5F) * 0.28F;
        const float x = u + s * across - t * along;
        const float y = v + s * along + t * across;
        canvas.Disc(x, y, 0.0005F, 0.0010F, Color(0xDDE4FF), random.Between(0.15F, 0.6F));
    }
}

void PaintAurora(Canvas& canvas, float down, Color low, Color high, uint32_t seed) {
    for (uint32_t curtain = 0; curtain < 3; ++curtain) {
        const uint32_t chance = seed + curtain * 31;
        const float strength = 0.95F - 0.25F * static_cast<float>(curtain);
        const float middle = down * (0.86F - 0.2F * static_cast<float>(curtain));
        const float length = down * (0.42F + 0.1F * static_cast<float>(curtain));
        const auto foot = [&](float u) {
            return middle + 0.16F * Noise(u * 0.9F, 1, chance) + 0.035F * Noise(u * 4, 2, chance);
        };
        canvas.Each([&](float u, float v, Color& pixel) {
            const float above = (foot(u) - v) / length;
            if (above < -0.25F) return;
            const float rays =
                0.62F + 0.3F * Noise(u * 14, v * 0.6F, chance + 3) + 0.18F * Noise(u * 45, v, chance + 4);
            const float patches = SmoothStep(-0.5F, 0.4F, Noise(u * 1.3F, 7, chance + 5));
            const float rise = above < 0 ? SmoothStep(-0.16F, 0, above) : std::exp(-above * 2.2F);
            pixel = pixel + Mix(low, high, Clamp01(above * 1.1F)) * (rise * rays * patches * strength);
        });
    }
}

void PaintMoon(Canvas& canvas, float u, float v, float radius) {
    canvas.Glow(u, v, radius * 1.3F, Color(0x39435C));
    canvas.EachIn(u - radius * 1.1F, v - radius * 1.1F, u + radius * 1.1F, v + radius * 1.1F,
                  [&](float x, float y, Color& pixel) {
                      const float dx = (x - u) / radius;
                      const float dy = (y - v) / radius;
                      const float distance = std::hypot(dx, dy);
                      const float seas = SmoothStep(-0.1F, 0.5F, Fractal(dx * 0.9F + 4.3F, dy * 0.9F, 5, 79, 0.45F));
                      const float craters = 0.06F * Fractal(dx * 6, dy * 6, 4, 78, 0.7F);
                      const float limb = std::sqrt(std::max(0.0F, 1 - distance * distance));
                      const Color ground = Mix(Color(0xF6F1E4), Color(0x9C9A98), seas * 0.75F) * (0.86F + craters);
                      pixel = Mix(pixel, ground * (0.62F + 0.38F * std::sqrt(limb)),
                                  SmoothStep(1 + 0.012F / radius * 0.2F, 0.99F, distance));
                  });
}

}  // namespace samples
