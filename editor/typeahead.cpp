#include "editor/typeahead.h"

#include "editor/sortdata.h"

#include <algorithm>

namespace vorlane::editor {

QString TypeAhead::type(const QString& text) {
    typed_ = isTyping() ? typed_ + text : text;
    sinceLast_.start();
    return typed_;
}

int FindName(const QString& typed, int current, int count, const std::function<QString(int)>& nameAt) {
    if (typed.isEmpty()) return -1;
    const QString whole = Folded(typed);
    const bool repeats = std::all_of(whole.begin(), whole.end(), [&](QChar unit) { return unit == whole[0]; });
    const QString wanted = repeats ? whole.left(1) : whole;
    const int first = std::max(current, 0) + (repeats && current >= 0 ? 1 : 0);
    for (int n = 0; n < count; ++n) {
        const int i = (first + n) % count;
        if (Folded(nameAt(i)).startsWith(wanted)) return i;
    }
    return -1;
}

}  // namespace vorlane::editor
