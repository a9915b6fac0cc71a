// AccessibleTimeLine: what assistive programs are told of a time line: a list of its sounds, first the musics, then the
// comments, in the order of their slides. A sound has the name of its file with the time at which it starts; pressing
// it selects its slide.
#pragma once

#include <map>
#include <utility>

#include <QAccessible>
#include <QAccessibleWidget>

namespace vorlane {

class ClsSon;
class TimeLineWidget;

class AccessibleTimeLine final : public QAccessibleWidget {
public:
    explicit AccessibleTimeLine(TimeLineWidget& widget);
    ~AccessibleTimeLine() override;

    // Makes this the interface of a widget.
    static void Attach(TimeLineWidget& widget);
    // Tells assistive programs that the sounds may be others; and does so from then on when the display follows a
    // change of a collection, for as long as the widget is there.
    static void TellSounds(TimeLineWidget& widget);
    static void Follow(TimeLineWidget& widget, ClsSon* sounds);

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    TimeLineWidget& Widget() const;
    // The interface of the sound of a slide. type: 0 its music, 1 its comment.
    QAccessibleInterface* SoundOf(int type, int diapoKey) const;

    mutable std::map<std::pair<int, int>, QAccessible::Id> sounds_;  // by type and slide key
};

}  // namespace vorlane
