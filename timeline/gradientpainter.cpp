// Two-colour gradients on the time line's surface.
#include "platform/numbers.h"
#include "timeline/etimeline.h"
#include "timeline/gradient.h"
#include "timeline/log.h"

namespace vorlane {

void eTimeLine::GradientTrace(OLE_COLOR startColor, OLE_COLOR endColor, int32_t direction, bool inverse, float x,
                              float y, float width, float height) {
    const float right = x + width;
    const float bottom = y + height;
    const auto trace = [&] {
        const OLE_COLOR from = inverse ? endColor : startColor;
        const Rgb a = utilities_.ColorToRgb(from);
        const Rgb b = utilities_.ColorToRgb(inverse ? startColor : endColor);
        if (life_.OldSystem) return TraceLines(from, a, b, direction, right, bottom);
        const gradient::Mesh mesh = gradient::MeshOf(direction, a, b, x, y, right, bottom);
        Surface().GradientFill(mesh.Vertices, mesh.Rects, mesh.Mode);
    };
    // The log tells the edges in place of the sizes.
    Trap(pending_, trace, [&](const Failure& failure) {
        Report(failure, TimeLineLogText("GradientTrace", static_cast<int32_t>(startColor),
                                        static_cast<int32_t>(endColor), direction, inverse, x, y, right, bottom));
    });
}

// For a system without gradients: lines from the left or top edge of the strip, over what is there.
void eTimeLine::TraceLines(OLE_COLOR from, Rgb a, Rgb b, int32_t direction, float right, float bottom) {
    const bool across = gradient::Across(direction);
    const bool mirrored = gradient::Mirrored(direction);
    const float span = across ? right : bottom;
    const gradient::Shift shift = gradient::ShiftPerPixel(a, b, span, mirrored);
    for (double i = 0; i <= span; ++i) {
        const float steps = gradient::Steps(static_cast<float>(i), span, mirrored);
        const OLE_COLOR color = utilities_.ColorShift(from, ToInt32(steps * shift.Red), ToInt32(steps * shift.Green),
                                                      ToInt32(steps * shift.Blue));
        if (across) {
            Surface().Line(i, 0, i, bottom, color);
        } else {
            Surface().Line(0, i, right, i, color);
        }
    }
}

void eTimeLine::GradientColor(OLE_COLOR startColor, OLE_COLOR endColor, int32_t& direction) {
    settings_.GradientColorStart = startColor;
    settings_.GradientColorEnd = endColor;
    settings_.GradientDirection = direction;
    Paint();
}

OLE_COLOR eTimeLine::GradientColorMedian() const {
    const OLE_COLOR start = settings_.GradientColorStart;
    const OLE_COLOR end = settings_.GradientColorEnd;
    if (start == end) return end;
    const bool inverse = settings_.GradientColorInverse;
    const OLE_COLOR set0 = inverse ? end : start;
    const OLE_COLOR set1 = inverse ? start : end;
    const float size = gradient::Across(settings_.GradientDirection) ? ScaleWidth() : ScaleHeight();
    const gradient::Median median =
        gradient::MedianOf(utilities_.ColorToRgb(set0), utilities_.ColorToRgb(set1), size, medianMode_);
    return utilities_.ColorShift(median.Set == 0 ? set0 : set1, ToInt32(median.Amount.Red),
                                 ToInt32(median.Amount.Green), ToInt32(median.Amount.Blue));
}

}  // namespace vorlane
