// AccessibleSheet: what assistive programs are told of a sheet: a list whose first children are the slides that show an
// item, by their places on the sheet; behind them stand the native widgets in it, such as the scroll bar. A slide has
// the name of its file, its caption, its place in the list, and whether it is selected or current; they can be made so.
#pragma once

#include <map>

#include <QAccessible>
#include <QAccessibleWidget>

namespace vorlane {

class VorlaneWidget;

class AccessibleSheet final : public QAccessibleWidget {
public:
    explicit AccessibleSheet(VorlaneWidget& widget);
    ~AccessibleSheet() override;

    // Makes this the interface of a widget, and tells assistive programs from then on when the sheet shows other
    // slides, when a slide gets another name and when the user changes the selection.
    static void Attach(VorlaneWidget& widget);
    // Tells them that the selection has changed, and which slide has the focus if one has.
    static void TellSelection(VorlaneWidget& widget);
    static void TellFocus(VorlaneWidget& widget);
    // Tells them that a file has got this name, and so have the slides that show it.
    static void TellName(VorlaneWidget& widget, const QString& file);
    // Tells them that the slide of an index has another text: its name or its description.
    static void TellText(VorlaneWidget& widget, int slot, QAccessible::Event change);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    VorlaneWidget& Widget() const;
    // The interface of the slide of an index.
    QAccessibleInterface* SlideAt(int slot) const;

    mutable std::map<int, QAccessible::Id> slides_;  // by the slide's index
};

}  // namespace vorlane
