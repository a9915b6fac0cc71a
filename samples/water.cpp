#include "samples/water.h"

#include "samples/noise.h"

#include <QPainterPath>

namespace samples {

void PaintMirror(Canvas& canvas, const Mirror& mirror) {
    canvas.Each(
        [&](float u, float v, Color& pixel) {
            const float down = v - mirror.Shore;
            const float far = 1 / (down + 0.03F);
            const float wave = Fractal(u * 3 + far * 0.5F, far * 2.6F, 3, mirror.Seed);
            const float fine = Noise(u * 16, far * 7, mirror.Seed + 5);
            const float reach = mirror.Ripple * (0.004F + down * 0.12F);
            const float above = mirror.Shore - down * 0.96F + (wave + 0.4F * fine) * reach;
            const Color image =
                canvas.Sample(u + (fine - wave) * reach * 0.25F, std::min(above, mirror.Shore - canvas.Pixel()));
            const float own = Clamp01(0.06F + down * 0.75F + mirror.Ripple * 0.12F * wave);
            const Color shore = Color(0x0A0F14);
            pixel = Mix(Mix(image * mirror.Tint, mirror.Deep, own), shore, 0.5F * SmoothStep(0.006F, 0, down));
        },
        mirror.Shore);
}

void PaintSea(Canvas& canvas, const Sea& sea) {
    canvas.Each(
        [&](float u, float v, Color& pixel) {
            const float down = v - sea.Horizon;
            const float far = 1 / (down + 0.012F);
            const float x = (u - canvas.Aspect() / 2) * std::min(far, 30.0F);
            const float calm = SmoothStep(0, 0.06F, down);
            const float swell = Fractal(x * 0.55F, far * 1.1F, 4, sea.Seed);
            const float chop = Fractal(x * 2.4F + swell, far * 5.5F, 3, sea.Seed + 9);
            const float slope = swell * 0.75F * sea.Swell + chop * (0.28F + 0.2F * sea.Swell);
            Color water = Mix(sea.Far, sea.Near, std::pow(Clamp01(down / (1 - sea.Horizon)), 0.6F));
            water = Mix(water, sea.Crest, Clamp01(slope * 0.55F) * calm);
            water = water * (1 - 0.22F * Clamp01(-slope) * calm);
            if (sea.Path > 0) {
                const float width = sea.Path * (1 + down * 2.4F);
                const float aside = (u - sea.SunU) / width;
                const float path = std::exp(-aside * aside);
                const float spark = SmoothStep(0.42F - 0.75F * path, 0.85F - 0.35F * path, chop + 0.5F * swell + 0.25F);
                water = water + sea.Glitter * (path * (0.22F + 1.05F * spark) * std::exp(-down * 1.6F));
            }
            pixel = Mix(pixel, water, Clamp01(down / canvas.Pixel() + 0.5F));
        },
        sea.Horizon - canvas.Pixel());
}

void PaintBoat(Canvas& canvas, float u, float v, float height, Color sail, Color hull) {
    const auto brush = [](Color color) {
        return QColor::fromRgbF(Clamp01(color.R), Clamp01(color.G), Clamp01(color.B));
    };
    canvas.Draw([&](QPainter& painter) {
        painter.translate(u, v);
        painter.scale(height, height);
        painter.setPen(Qt::NoPen);
        QPainterPath main(QPointF(0.02, -1));
        main.quadTo(0.34, -0.55, 0.36, -0.13);
        main.lineTo(0.02, -0.13);
        QPainterPath jib(QPointF(-0.01, -0.92));
        jib.quadTo(-0.12, -0.5, -0.3, -0.14);
        jib.lineTo(-0.01, -0.16);
        QPainterPath body(QPointF(-0.36, -0.1));
        body.lineTo(0.42, -0.1);
        body.quadTo(0.36, 0, 0.24, 0.01);
        body.lineTo(-0.22, 0.01);
        body.quadTo(-0.32, 0, -0.36, -0.1);
        painter.fillPath(main, brush(sail));
        painter.fillPath(jib, brush(sail * 0.88F));
        painter.fillPath(body, brush(hull));
    });
}

}  // namespace samples
