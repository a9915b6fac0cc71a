// The slide's size at each step of the zoom. A pure rule: the slide is told by its width, in pixels; a picture of
// four by three, a name and a caption fill it.
#pragma once

#include <QSize>

namespace vorlane::editor::slidesize {

constexpr int kLeast = 96;
constexpr int kUsual = 176;  // 100 %
constexpr int kMost = 512;
constexpr int kStep = 16;

// width is kept within kLeast and kMost.
QSize Of(int width);
// In percent of the usual width.
int Percent(int width);
// The next step up or down from a width.
int Larger(int width);
int Smaller(int width);

}  // namespace vorlane::editor::slidesize
