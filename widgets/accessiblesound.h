// AccessibleSound: what assistive programs are told of one sound of a time line, and do with it.
#pragma once

#include "widgets/timelinesound.h"

#include <optional>

#include <QAccessible>
#include <QAccessibleInterface>
#include <QPointer>
#include <QStringList>

namespace vorlane {

class TimeLineWidget;

class AccessibleSound final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    // type: 0 the music, 1 the comment of the slide.
    AccessibleSound(TimeLineWidget& widget, int type, int diapoKey);

    int Type() const { return type_; }
    int DiapoKey() const { return diapoKey_; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    // The place of its bars on the screen, empty when none is in sight.
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void* interface_cast(QAccessible::InterfaceType type) override;

    // Pressing it selects its slide.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    std::optional<TimeLineSound> Sound() const;
    QString Name(const TimeLineSound& sound) const;

    QPointer<TimeLineWidget> widget_;
    int type_;
    int diapoKey_;
};

}  // namespace vorlane
