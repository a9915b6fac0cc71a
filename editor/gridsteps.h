// The arithmetic of walking over a sheet: where a step leads, and what has to come into sight for it. Items are told by
// their list index, -1 for none; a line is a row of a sheet that scrolls down, a column of one that scrolls sideways.
#pragma once

namespace vorlane::editor {

// What of a sheet is in sight.
struct GridView {
    int count = 0;       // items on the list
    int top = 0;         // the item at slide 0
    int lineLength = 1;  // slides in a line
    int lines = 1;       // that are in sight as a whole
};

enum class Step { Back, On, LineBack, LineOn, PageBack, PageOn, First, Last };

// The item that a step from current leads to; current itself where there is no way on. From none it leads to the first
// item in sight.
int Stepped(Step step, int current, const GridView& view);

// The item that is to be at slide 0 so that item is in sight, whole lines away from the present one; the present one
// where it is in sight already.
int TopShowing(int item, const GridView& view);

}  // namespace vorlane::editor
