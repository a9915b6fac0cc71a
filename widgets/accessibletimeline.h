// AccessibleTimeLine: what assistive programs are told of a time line: a list of its sounds, first the musics, then the
// comments, in the order of their slides. A sound has the name of its file with the time at which it starts; pressing
// it selects its slide.
#pragma once

#include <cstddef>
#include <map>
#include <utility>

#include <QAccessible>
#include <QAccessibleWidget>

namespace vorlane {

class TimeLineWidget;

class AccessibleTimeLine final : public QAccessibleWidget {
public:
    explicit AccessibleTimeLine(TimeLineWidget& widget);
    ~AccessibleTimeLine() override;

    // Makes this the interface of all time lines.
    static void Install();
    // Tells assistive programs that the sounds may be others.
    static void TellSounds(TimeLineWidget& widget);

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    TimeLineWidget& Widget() const;
    // The interface of the sound of a slide. type: 0 its music, 1 its comment.
    QAccessibleInterface* SoundOf(int type, int diapoKey) const;
    // Lets the interfaces of sounds go that are no more.
    void Sweep() const;

    static constexpr size_t kFewSounds = 64;

    mutable std::map<std::pair<int, int>, QAccessible::Id> sounds_;  // by type and slide key
    mutable size_t sweepAt_ = kFewSounds;                            // as many of them
};

}  // namespace vorlane
