// What the strip shows of the show, so that it is in step with the sheet. Where the slides lie in one row, each second
// stands under the slide that it belongs to; where they lie in several, the strip shows all that are in sight, one
// behind the other. Pure arithmetic; lengths are pixels of the strip, which lies below the sheet, edge to edge.
#pragma once

namespace vorlane::editor {

// The sheet as it stands.
struct SheetSight {
    bool sideways = false;  // one row
    int first = 0;          // list index of the first slide
    double left = 0;        // of the first slide
    double pitch = 0;       // from the left of a slide to that of the next
    int cells = 1;          // slides that fit into sight
    double width = 0;       // of the sheet and of the strip
};

struct StripScale {
    int startPoint = 0;      // list index at the left
    int left = 0;            // where it begins
    double slideWidth = 50;  // of a slide with its gap
    bool markEach = false;   // a mark to a slide; else as many as there is room for
    bool operator==(const StripScale&) const = default;
};

StripScale ScaleOf(const SheetSight& sight);

// The list index of the slide whose time lies at x, within a show of so many; -1 for a show of none.
int ItemAt(double x, const StripScale& scale, int count);

// How many slides a sound goes on for, at least 1.
int SlidesOf(int seconds, int exposition);

}  // namespace vorlane::editor
