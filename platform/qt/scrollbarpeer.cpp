#include "platform/qt/scrollbarpeer.h"

#include "platform/failure.h"
#include "platform/qt/controlhost.h"
#include "platform/qt/keys.h"
#include "platform/qt/peers.h"
#include "platform/scale.h"

#include <utility>

#include <QHideEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace vorlane {

namespace {

using MouseEvent = Event<int16_t, int16_t, float, float>;

constexpr int kShadow = 8;  // pixels around the thumb

constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

void Tell(const MouseEvent& told, const QMouseEvent& event) {
    const int16_t button = ButtonOf(event.button());
    const auto twips = [](double pixels) { return static_cast<float>(pixels * kTwipsPerPixel); };
    if (button == 0) return;
    Attempt(
        [&] { told(button, ShiftOf(event.modifiers()), twips(event.position().x()), twips(event.position().y())); });
}

}  // namespace

ScrollBarPeer::ScrollBarPeer(ScrollbarPlus& model, ControlHost& host) : QScrollBar(&host), model_(model) {
    setTracking(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    changed_ = model_.Changed.connect([this] { Follow(); });
    enabled_ = FollowEnabled(model_, *this);
    connect(this, &QScrollBar::sliderMoved, this, [this] {
        if (!following_) DragThumb();
    });
    connect(this, &QScrollBar::valueChanged, this, [this](int value) {
        if (following_) return;
        Attempt([&] { model_.SetValue(value); });
        Follow();
    });
    connect(this, &QScrollBar::sliderReleased, this, [this] {
        if (std::exchange(dragged_, false)) Attempt([&] { model_.DropThumb(sliderPosition()); });
        Follow();
    });
    Follow();
}

// While the user holds the thumb, it stays where it is as far as there is room: a new range alone would bring it back.
void ScrollBarPeer::Follow() {
    if (following_) return;
    following_ = true;
    const int thumb = sliderPosition();
    setOrientation(model_.Orientation() == vorlane::Orientation::Horizontal ? Qt::Horizontal : Qt::Vertical);
    setRange(model_.Min(), model_.Max());
    setSingleStep(model_.SmallChange());
    setPageStep(model_.LargeChange());
    isSliderDown() ? setSliderPosition(thumb) : setValue(model_.Value());
    const Box box = model_.BoundsInRoot();
    setGeometry(QRectF(box.Left, box.Top, box.Width, box.Height).toRect());
    setVisible(model_.Visible());
    following_ = false;
}

void ScrollBarPeer::DragThumb() {
    dragged_ = true;
    Attempt([this] { model_.DragThumb(sliderPosition()); });
}

// A press beside the thumb may bring it there at once, which Qt tells nobody.
void ScrollBarPeer::mousePressEvent(QMouseEvent* event) {
    held_ |= event->button();
    Tell(model_.Input.MouseDown, *event);
    if (!held_.testFlag(event->button())) return;  // a handler has taken the bar out of the hand
    const int before = sliderPosition();
    QScrollBar::mousePressEvent(event);
    if (isSliderDown() && sliderPosition() != before) DragThumb();
}

void ScrollBarPeer::mouseReleaseEvent(QMouseEvent* event) {
    QScrollBar::mouseReleaseEvent(event);
    if (!held_.testFlag(event->button())) return;
    held_ &= ~Qt::MouseButtons(event->button());
    Tell(model_.Input.MouseUp, *event);
}

// --- The end of a press without a release ---

bool ScrollBarPeer::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) LetGo();
    return QScrollBar::event(event);
}

void ScrollBarPeer::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) LetGo();
    QScrollBar::changeEvent(event);
}

void ScrollBarPeer::hideEvent(QHideEvent*) {
    LetGo();
}

// A bar that goes out of sight, is disabled or stands behind a dialog hears of no release any more. Its value stays.
void ScrollBarPeer::LetGo() {
    QHideEvent hidden;  // lets the style's part of the bar go
    QScrollBar::hideEvent(&hidden);
    dragged_ = false;
    setSliderDown(false);
    const Qt::MouseButtons held = std::exchange(held_, {});
    for (const Qt::MouseButton button : kButtons) {
        if (held.testFlag(button)) Attempt([&] { model_.Input.MouseUp(ButtonOf(button), 0, 0, 0); });
    }
}

// --- Painting ---

void ScrollBarPeer::paintEvent(QPaintEvent* event) {
    painted_ = sliderPosition();
    QScrollBar::paintEvent(event);
}

// A step through a long list hardly moves the thumb, and styles take their time to draw a bar: only where the thumb was
// and is, is it drawn anew. At an end of the range a style may draw its arrows otherwise.
void ScrollBarPeer::sliderChange(SliderChange change) {
    const auto atEnd = [this](int position) { return position <= minimum() || position >= maximum(); };
    if (change != SliderValueChange || atEnd(painted_) || atEnd(sliderPosition())) {
        return QScrollBar::sliderChange(change);
    }
    const QRect before = ThumbAt(painted_);
    const QRect now = ThumbAt(sliderPosition());
    if (before != now) update(before | now);
}

// With what its shadow may touch.
QRect ScrollBarPeer::ThumbAt(int position) const {
    QStyleOptionSlider bar;
    initStyleOption(&bar);
    bar.sliderPosition = position;
    bar.sliderValue = position;
    const QRect thumb = style()->subControlRect(QStyle::CC_ScrollBar, &bar, QStyle::SC_ScrollBarSlider, this);
    return orientation() == Qt::Vertical ? QRect(0, thumb.top() - kShadow, width(), thumb.height() + 2 * kShadow)
                                         : QRect(thumb.left() - kShadow, 0, thumb.width() + 2 * kShadow, height());
}

// One road for every turn of the wheel over the control.
void ScrollBarPeer::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace vorlane
