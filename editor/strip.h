// Strip: the time line under the window's sheet. It keeps in step with the sheet's scrolling and with the size of its
// slides, and takes sound files that are dropped on it: musics on its upper half, comments on the lower one.
#pragma once

#include "editor/savedshow.h"
#include "editor/stripscale.h"
#include "widgets/timelinewidget.h"

#include <optional>

#include <QPalette>
#include <QStringList>

class QMimeData;

namespace vorlane::editor {

class Strip : public TimeLineWidget {
    Q_OBJECT

public:
    // sheet outlives the strip.
    explicit Strip(VorlaneWidget& sheet, QWidget* parent = nullptr);

    void applyLook(const QPalette& palette);
    // The list index of the slide whose time lies there, -1 when there is none.
    int itemAt(double x) const;
    // The key of an item of the list, -1 for none.
    int keyOf(int listIndex) const;
    // The place of that item in the list, -1 when it has left.
    int itemOf(int key) const;
    // The length of the whole show, seconds.
    qint64 showSeconds() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void soundsDropped(vorlane::editor::SoundKind kind, const QStringList& files, int listIndex);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Where a drop would go.
    struct Target {
        SoundKind kind;
        int item;
        bool operator==(const Target&) const = default;
    };

    void Follow();
    Target TargetAt(const QPointF& place) const;
    void SetTarget(std::optional<Target> target);
    QRectF PlaceOf(const Target& target) const;

    VorlaneWidget& sheet_;
    StripScale scale_;
    std::optional<Target> target_;
};

}  // namespace vorlane::editor
