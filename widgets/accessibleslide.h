// AccessibleSlide: what assistive programs are told of one slide of a sheet, and do with it.
#pragma once

#include <QAccessible>
#include <QAccessibleInterface>
#include <QPointer>
#include <QStringList>

namespace vorlane {

class VorlaneWidget;

class AccessibleSlide final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    // slot: the slide's index.
    AccessibleSlide(VorlaneWidget& widget, int slot);

    // Whether the slide of an index shows an item.
    static bool Shows(const VorlaneWidget& widget, int slot);

    int Slot() const { return slot_; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    // Its place on the screen.
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void* interface_cast(QAccessible::InterfaceType type) override;

    // Pressing selects the slide alone, toggling selects or deselects it among the others, focusing makes it current.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<VorlaneWidget> widget_;
    int slot_;
};

}  // namespace vorlane
