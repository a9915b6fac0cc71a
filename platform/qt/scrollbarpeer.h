// ScrollBarPeer: a native scroll bar in front of a ScrollbarPlus. While the user drags its thumb the model hears of
// the values that pass, and takes the last one when the thumb is let go.
#pragma once

#include "platform/scrollbarplus.h"

#include <vector>

#include <QScrollBar>

namespace vorlane {

class ControlHost;

class ScrollBarPeer final : public QScrollBar {
    Q_OBJECT

public:
    ScrollBarPeer(ScrollbarPlus& model, ControlHost& host);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void sliderChange(SliderChange change) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Follow();
    void DragThumb();
    void LetGo();
    QRect ThumbAt(int position) const;

    ScrollbarPlus& model_;
    ScopedConnection changed_;
    std::vector<ScopedConnection> enabled_;
    bool following_ = false;
    Qt::MouseButtons held_;  // those that went down on the bar and are not up again
    bool dragged_ = false;   // the user has moved the thumb and not let go of it
    int painted_ = 0;        // where the thumb was painted
};

}  // namespace vorlane
