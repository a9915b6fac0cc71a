// What painting needs of the desktop.
#pragma once

namespace vorlane {

class QtTextMetrics;
class ScaledPictures;
class Screen;

struct PaintTools {
    const Screen& screen;        // system colours
    const QtTextMetrics& fonts;  // the fonts that text was measured with
    ScaledPictures& pictures;
};

}  // namespace vorlane
