// AccessibleListItem: what all entries of a widget's list have in common for assistive programs: they have no entries
// of their own, no object and no text to be set, and can be acted on.
#pragma once

#include <QAccessible>
#include <QAccessibleInterface>
#include <QStringList>

namespace vorlane {

class AccessibleListItem : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
};

}  // namespace vorlane
