#include "platform/qt/scrollbarpeer.h"

#include "platform/failure.h"
#include "platform/qt/controlhost.h"
#include "platform/qt/keys.h"
#include "platform/scale.h"

#include <utility>

#include <QHideEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace vorlane {

namespace {

using MouseEvent = Event<int16_t, int16_t, float, float>;

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
    setEnabled(model_.Enabled());
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
    const int before = sliderPosition();
    QScrollBar::mousePressEvent(event);
    if (isSliderDown() && sliderPosition() != before) DragThumb();
}

void ScrollBarPeer::mouseReleaseEvent(QMouseEvent* event) {
    QScrollBar::mouseReleaseEvent(event);
    held_ &= ~Qt::MouseButtons(event->button());
    Tell(model_.Input.MouseUp, *event);
}

// A bar that goes out of sight under the user's hand hears of no release any more.
void ScrollBarPeer::hideEvent(QHideEvent* event) {
    QScrollBar::hideEvent(event);
    dragged_ = false;
    setSliderDown(false);
    const Qt::MouseButtons held = std::exchange(held_, {});
    for (const Qt::MouseButton button : kButtons) {
        if (held.testFlag(button)) Attempt([&] { model_.Input.MouseUp(ButtonOf(button), 0, 0, 0); });
    }
}

// One road for every turn of the wheel over the control.
void ScrollBarPeer::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace vorlane
