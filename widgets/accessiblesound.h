// AccessibleSound: what assistive programs are told of one sound of a time line, and do with it.
#pragma once

#include "widgets/accessiblelistitem.h"
#include "widgets/timelinesound.h"

#include <optional>

#include <QCoreApplication>
#include <QPointer>
#include <QStringList>

namespace vorlane {

class TimeLineWidget;

class AccessibleSound final : public AccessibleListItem {
    Q_DECLARE_TR_FUNCTIONS(vorlane::AccessibleSound)

public:
    // type: 0 the music, 1 the comment of the slide.
    AccessibleSound(TimeLineWidget& widget, int type, int diapoKey);

    int Type() const { return type_; }
    int DiapoKey() const { return diapoKey_; }

    bool isValid() const override;
    QAccessible::State state() const override;
    // The place of its bars on the screen, empty when none is in sight.
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessibleInterface* parent() const override;

    // Pressing it selects its slide.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    std::optional<TimeLineSound> Sound() const;
    bool Answers() const;
    QString Name(const TimeLineSound& sound) const;

    QPointer<TimeLineWidget> widget_;
    int type_;
    int diapoKey_;
};

}  // namespace vorlane
