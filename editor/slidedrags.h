// SlideDrags: what the user drags within, onto and out of a show's sheet. Slides that are dragged within it move, in
// manual order, with a way back; other programs get copies of their files. What comes from other programs is handed on
// with its place.
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

class QDragEnterEvent;
class QMimeData;

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

class Navigator;
class Show;

class SlideDrags : public QObject {
    Q_OBJECT

public:
    // All outlive this.
    SlideDrags(VorlaneWidget& sheet, Show& show, Navigator& navigator, QObject* parent = nullptr);

    // Whether the sheet's own slides are being dragged.
    bool areDragged() const { return dragged_; }

Q_SIGNALS:
    // In front of a list index, or behind all. on: the index of the slide under the pointer, -1 for none.
    void dropped(const QStringList& paths, int before, int on);
    // Slides are dragged that a sort keeps in their places.
    void held();
    // Slides are dragged no more.
    void ended();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Refuses(QDragEnterEvent& event);
    void AnswerDrop(bool* cancel);
    QList<int> SelectedKeys() const;

    VorlaneWidget& sheet_;
    Show& show_;
    Navigator& navigator_;
    bool dragged_ = false;
    QList<int> keys_;    // of the dragged slides
    QStringList paths_;  // that other programs drag over the sheet
    int on_ = -1;        // slide under the pointer at a drop; the sheet's row closes before it tells of one
};

}  // namespace vorlane::editor
