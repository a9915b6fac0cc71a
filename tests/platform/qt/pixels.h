// Pictures as text, and a screen with a theme of its own, for tests of what painting puts where.
#pragma once

#include "platform/desktop.h"
#include "platform/qt/looks.h"
#include "platform/qt/qttextmetrics.h"
#include "platform/qt/scaledpictures.h"
#include "platform/qt/surfacepainter.h"
#include "platform/surface.h"

#include <map>
#include <string>

#include <QImage>
#include <QPainter>

namespace vorlane::test {

// System colours as letters: 'f' button face, 's' shadow, 'h' highlight, 'd' dark shadow, 'l' light, 'm' window frame,
// 'w' window.
class LetterScreen final : public Screen {
public:
    float TwipsPerPixelX() const override { return 15; }
    float TwipsPerPixelY() const override { return 15; }
    Point CursorPos() const override { return {}; }
    void SetCursorPos(Point) override {}
    int16_t MousePointer() const override { return 0; }
    void SetMousePointer(int16_t) override {}
    OLE_COLOR SysColor(int32_t number) const override {
        static const std::map<int32_t, char> letters{{15, 'f'}, {16, 's'}, {20, 'h'}, {21, 'd'},
                                                     {22, 'l'}, {6, 'm'},  {5, 'w'}};
        return letters.contains(number) ? static_cast<OLE_COLOR>(letters.at(number)) : 0;
    }
    void SetCapture(Hwnd) override {}
    void ReleaseCapture() override {}
    Hwnd Captured() const override { return 0; }
};

// The colour that Map shows as a letter.
constexpr OLE_COLOR Letter(char letter) {
    return static_cast<OLE_COLOR>(letter);
}

// A surface on a ground of dots, replayed into that many device pixels.
inline QImage Replay(const Surface& surface, int width, int height, double scale = 1) {
    static const LetterScreen screen;
    static const QtTextMetrics fonts;
    static ScaledPictures pictures(1 << 20);
    static Looks looks(1 << 20);
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(QColor('.', 0, 0));
    QPainter painter(&image);
    SurfacePainter(painter, {screen, fonts, pictures, looks, looks}, scale).Replay(surface);
    return image;
}

// One letter a pixel, by its red part, and one line a row.
inline std::string Map(const QImage& image) {
    std::string map;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) map += static_cast<char>(qRed(image.pixel(x, y)));
        map += '\n';
    }
    return map;
}

}  // namespace vorlane::test
