// The user's hand on a native scroll bar.
#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

namespace vorlane::test {

// Where a part of the bar lies on it.
inline QRect PartOf(const QScrollBar& bar, QStyle::SubControl part) {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = bar.orientation();
    if (bar.orientation() == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    option.singleStep = bar.singleStep();
    option.pageStep = bar.pageStep();
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

class BarHand {
public:
    explicit BarHand(QScrollBar& bar) : bar_(bar) {}

    QPoint Thumb() const { return PartOf(bar_, QStyle::SC_ScrollBarSlider).center(); }

    void Press(QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        place_ = place;
        held_ |= button;
        Send(QEvent::MouseButtonPress, button);
    }
    void PressThumb() { Press(Thumb()); }
    void Move(QPoint by) {
        place_ += by;
        Send(QEvent::MouseMove, Qt::NoButton);
    }
    void Release(Qt::MouseButton button = Qt::LeftButton) {
        held_ &= ~Qt::MouseButtons(button);
        Send(QEvent::MouseButtonRelease, button);
    }
    void Click(QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        Press(place, button);
        Release(button);
    }

private:
    void Send(QEvent::Type type, Qt::MouseButton button) {
        QMouseEvent event(type, place_, bar_.mapToGlobal(QPointF(place_)), button, held_, Qt::NoModifier);
        QCoreApplication::sendEvent(&bar_, &event);
    }

    QScrollBar& bar_;
    QPoint place_;
    Qt::MouseButtons held_;
};

}  // namespace vorlane::test
