// Renamer: renames the file of a slide in place, in a box over the slide's name. F2 on the sheet opens it for the
// current slide; so does a second click on the name of the only selected one, unless it makes a double click. What
// moves the slides closes it and leaves the name.
#pragma once

#include <QObject>
#include <QPointF>
#include <QTimer>

class QKeyEvent;
class QMouseEvent;

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

class Navigator;
class Show;

class Renamer : public QObject {
    Q_OBJECT

public:
    // All outlive the renamer.
    Renamer(VorlaneWidget& sheet, Show& show, Navigator& navigator, QObject* parent = nullptr);

    // Brings the item into sight and opens the box.
    void start(int listIndex);

Q_SIGNALS:
    void renamed(const QString& from, const QString& to);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Edited(const QString& newName, const QString& oldName, bool canceled);
    bool Key(const QKeyEvent& event);
    void Press(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void Forget();
    // The item that is selected alone and whose name is there, -1 for none.
    int NamedAt(const QPointF& place) const;

    VorlaneWidget& sheet_;
    Show& show_;
    Navigator& navigator_;
    int clicked_ = -1;  // item whose name is clicked a second time
    QPointF pressed_;
    QTimer noDoubleClick_;
};

}  // namespace vorlane::editor
