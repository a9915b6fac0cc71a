// AccessibleSlide: what assistive programs are told of one slide of a sheet, and do with it.
#pragma once

#include "widgets/accessiblelistitem.h"

#include <QPointer>
#include <QStringList>

namespace vorlane {

class VorlaneWidget;

class AccessibleSlide final : public AccessibleListItem {
public:
    // slot: the slide's index.
    AccessibleSlide(VorlaneWidget& widget, int slot);

    // Whether the slide of an index shows an item.
    static bool Shows(const VorlaneWidget& widget, int slot);

    int Slot() const { return slot_; }

    bool isValid() const override;
    QAccessible::State state() const override;
    // Its place on the screen.
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessibleInterface* parent() const override;

    // Pressing selects the slide alone, toggling selects or deselects it among the others, focusing makes it current.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    QPointer<VorlaneWidget> widget_;
    int slot_;
};

}  // namespace vorlane
