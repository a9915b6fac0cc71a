// Preferences: how the user left the window. What the settings don't hold, or hold in a form that nobody knows, is as
// it is at first.
#pragma once

#include "editor/slidesize.h"

#include <QByteArray>

class QSettings;

namespace vorlane::editor {

// What the slides are ordered by: a criterion of the sort data, by its number, or nothing but the user's hand.
enum class SortBy { Hand = 0, Name = 1, Modified = 2, Created = 3, Length = 4, Extension = 5 };

struct SortOrder {
    SortBy by = SortBy::Name;
    bool descending = false;

    // Whether a sort is in force.
    bool Sorts() const { return by != SortBy::Hand; }
    bool operator==(const SortOrder&) const = default;
};

// The longest that a slide may be shown, seconds.
constexpr int kLongestExposition = 3600;

struct Preferences {
    QByteArray geometry{};  // empty: none yet
    int slideWidth = slidesize::kUsual;
    SortOrder sort{};
    bool horizontal = false;  // the slides scroll sideways
    int exposition = 5;       // seconds of each slide

    static Preferences Load(const QSettings& settings);
    void Save(QSettings& settings) const;
};

}  // namespace vorlane::editor
