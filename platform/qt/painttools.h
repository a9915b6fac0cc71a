// What painting needs of the desktop.
#pragma once

namespace vorlane {

class Looks;
class QtTextMetrics;
class ScaledPictures;
class Screen;

struct PaintTools {
    const Screen& screen;        // system colours
    const QtTextMetrics& fonts;  // the fonts that text was measured with
    ScaledPictures& pictures;
    Looks& looks;    // of controls inside of others
    Looks& replays;  // of what was recorded on them
};

}  // namespace vorlane
