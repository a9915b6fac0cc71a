#include "editor/gridsteps.h"

#include <algorithm>

namespace vorlane::editor {

namespace {

int Distance(Step step, const GridView& view) {
    const int page = view.lineLength * std::max(view.lines, 1);
    switch (step) {
        case Step::Back:
            return -1;
        case Step::On:
            return 1;
        case Step::LineBack:
            return -view.lineLength;
        case Step::LineOn:
            return view.lineLength;
        case Step::PageBack:
            return -page;
        case Step::PageOn:
            return page;
        case Step::First:
        case Step::Last:
            break;
    }
    return 0;
}

}  // namespace

int Stepped(Step step, int current, const GridView& view) {
    const int last = view.count - 1;
    if (last < 0) return -1;
    if (step == Step::First) return 0;
    if (step == Step::Last) return last;
    if (current < 0) return std::clamp(view.top, 0, last);
    const int target = current + Distance(step, view);
    if (target >= 0 && target <= last) return target;
    const bool page = step == Step::PageBack || step == Step::PageOn;
    if (page) return std::clamp(target, 0, last);
    // Below the end of a shorter last line stands its last item.
    const bool shorter = step == Step::LineOn && last / view.lineLength > current / view.lineLength;
    return shorter ? last : std::min(current, last);
}

int TopShowing(int item, const GridView& view) {
    const int length = std::max(view.lineLength, 1);
    const int sight = length * std::max(view.lines, 1);
    const auto linesFor = [length](int items) { return (items + length - 1) / length * length; };
    if (item < view.top) return std::max(0, view.top - linesFor(view.top - item));
    if (item >= view.top + sight) return view.top + linesFor(item - view.top - sight + 1);
    return view.top;
}

}  // namespace vorlane::editor
