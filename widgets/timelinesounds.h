// TimeLineSounds: the sounds of one kind of a time line (ClsSon) in Qt's types, in the order of their slides, at most
// one to a slide. It is a view, and keeps its collection alive. What the collection refuses changes nothing and gives
// false or nothing.
#pragma once

#include "widgets/timelinesound.h"

#include <memory>
#include <optional>

#include <QString>

namespace vorlane {

class ClsSon;

class TimeLineSounds {
public:
    // sounds may be null: an empty collection then, which takes nothing.
    explicit TimeLineSounds(std::shared_ptr<ClsSon> sounds) : sounds_(std::move(sounds)) {}

    int Count() const;
    // False for a file that is not there and for a slide that has a sound. diapoValue is the slide's place on the sheet
    // where the caller knows it.
    bool Add(const QString& soundFileName, int diapoKey, int diapoValue = -1, bool repetition = false,
             bool rehausse = true, int volNormal = 100, int volPendantComment = 25, int volComment = 100);
    // Of a slide.
    std::optional<TimeLineSound> Item(int key) const;
    // A slide without a sound gets none, and the display follows all the same.
    bool SetItem(int key, const TimeLineSound& sound);
    bool Remove(int key);
    // From 1.
    std::optional<TimeLineSound> ItemFromPos(int index) const;
    // All sounds of a file, whatever the case of its name.
    void RemoveFromName(const QString& fileName);
    // In the present order of the slides, without those of slides that have left. The caller refreshes the strip.
    void Sort();
    void Clear();

private:
    std::shared_ptr<ClsSon> sounds_;
};

}  // namespace vorlane
