#include "platform/qt/controlhost.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/keys.h"
#include "platform/qt/peers.h"
#include "platform/qt/pointers.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/widgetpainting.h"

#include <cmath>

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMoveEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyleHints>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

namespace vorlane {

namespace {

constexpr double kNotch = 120;  // eighths of a degree

float X(const QPointF& place) {
    return static_cast<float>(place.x());
}

float Y(const QPointF& place) {
    return static_cast<float>(place.y());
}

// The smallest rectangle of whole pixels around a box.
QRect Around(const Box& box) {
    return QRectF(box.Left, box.Top, box.Width, box.Height).toAlignedRect();
}

// A pointer of the host's own, pointing with its top left corner.
QCursor CursorFrom(const Picture& icon, double scale) {
    const QPixmap pixels = PointerFrom(icon, scale);
    return pixels.isNull() ? QCursor(Qt::ArrowCursor) : QCursor(pixels, 0, 0);
}

// A text that shows as it stands, also where Qt would take it for formatted.
QString Unformatted(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")));
}

}  // namespace

ControlHost::ControlHost(QtDesktop& desktop, QWidget* parent) : QWidget(parent), desktop_(desktop) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAcceptDrops(true);
}

ControlHost::~ControlHost() {
    Release();
}

vorlane::Ambient ControlHost::AmbientOfHost() {
    vorlane::Ambient ambient;
    ambient.UserMode = desktop_.UserMode;
    ambient.Font = FromQFont(font());
    ambient.Window = desktop_.windows.HandleOf(this);
    return ambient;
}

void ControlHost::Attach(std::shared_ptr<UserControl> control) {
    control_ = std::move(control);
    router_ = std::make_shared<InputRouter>(*control_);
    router_->DoubleClickTime = QApplication::doubleClickInterval();
    router_->DoubleClickDistance = static_cast<float>(QGuiApplication::styleHints()->mouseDoubleClickDistance());
    damaged_ = control_->Damaged.connect([this](const Box& box) {
        if (const auto part = damage_.Add(TouchedBy(box))) update(*part);
    });
    peers_ = MakePeers(*control_, *this);
    Attempt([&] { control_->InitProperties(); });
    TakeSize();
}

void ControlHost::Release() {
    peers_.clear();
    damaged_ = {};
    if (control_.use_count() > 1 && silence_) silence_();
    router_.reset();
    control_.reset();
}

void ControlHost::Restart(const PropertyBag& saved) {
    control_->Restart(saved);
    if (shown_) control_->Show();
}

void ControlHost::TakeSize() {
    if (control_) Attempt([&] { control_->Move(0, 0, width(), height()); });
}

void ControlHost::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (shown_ || !control_) return;
    shown_ = true;
    Attempt([&] { control_->Show(); });
}

void ControlHost::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    TakeSize();
    desktop_.windows.Tell(this, WM_SIZE);
}

void ControlHost::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    TellMoved();
}

void ControlHost::TellMoved() {
    desktop_.windows.Tell(this, WM_MOVE);
}

void ControlHost::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    update();
}

void ControlHost::paintEvent(QPaintEvent* event) {
    if (!control_) return;
    damage_.Clear();
    QPainter painter(this);
    PaintOnWidget(painter, event->region(), *control_, desktop_.Tools());
}

// --- Mouse ---

void ControlHost::PointAt(const QPointF& place) {
    const Control* under = router_->At(X(place), Y(place));
    if (under != nullptr) under = under->WithPointer();
    const int16_t shape = under == nullptr ? int16_t{0} : under->MousePointer();
    const Picture icon = shape == Control::kPointerIsIcon ? under->MouseIcon() : Picture{};
    if (shape == pointer_ && icon == pointerIcon_) return;
    pointer_ = shape;
    pointerIcon_ = icon;
    if (shape == 0) {
        unsetCursor();
    } else {
        setCursor(icon.Type() == 0 ? QCursor(CursorShapeOf(shape)) : CursorFrom(icon, devicePixelRatioF()));
    }
}

void ControlHost::mousePressEvent(QMouseEvent* event) {
    const int16_t button = ButtonOf(event->button());
    if (!router_ || button == 0) return QWidget::mousePressEvent(event);
    Hold().Router->MouseDown(button, ShiftOf(event->modifiers()), X(event->position()), Y(event->position()));
}

// The router makes its own double clicks.
void ControlHost::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void ControlHost::mouseReleaseEvent(QMouseEvent* event) {
    const int16_t button = ButtonOf(event->button());
    if (!router_ || button == 0) return QWidget::mouseReleaseEvent(event);
    Hold().Router->MouseUp(button, ShiftOf(event->modifiers()), X(event->position()), Y(event->position()));
}

void ControlHost::mouseMoveEvent(QMouseEvent* event) {
    if (!router_) return;
    PointAt(event->position());
    Hold().Router->MouseMove(ShiftOf(event->modifiers()), X(event->position()), Y(event->position()));
}

void ControlHost::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    pointer_ = 0;
    pointerIcon_ = {};
    unsetCursor();
}

void ControlHost::wheelEvent(QWheelEvent* event) {
    if (!router_) return;
    const QPoint angle = event->angleDelta();
    const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / kNotch;
    Hold().Router->Wheel(notches, X(event->position()), Y(event->position()));
    event->accept();
}

bool ControlHost::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && router_) return ShowToolTip(*static_cast<QHelpEvent*>(event));
    return QWidget::event(event);
}

bool ControlHost::ShowToolTip(const QHelpEvent& event) {
    const Control* under = router_->At(X(event.pos()), Y(event.pos()));
    while (under != nullptr && under->ToolTipText().empty()) under = under->Container();
    if (under == nullptr) {
        QToolTip::hideText();
        return true;
    }
    const QString text = Unformatted(QString::fromStdString(under->ToolTipText()));
    QToolTip::showText(event.globalPos(), text, this, Around(under->BoundsInRoot()));
    return true;
}

// --- Keys ---

bool ControlHost::FeedKeyDown(const QKeyEvent& event) {
    const Hosted hosted = Hold();
    if (!hosted.Router) return false;
    int16_t code = VirtualKeyOf(event.key());
    if (code != 0) {
        desktop_.keyboard.Press(code);
        hosted.Router->KeyDown(code, ShiftOf(event.modifiers()));
        if (code == 0) return true;
    }
    if (event.text().isEmpty()) return false;
    auto character = static_cast<int16_t>(event.text().at(0).unicode());
    hosted.Router->KeyPress(character);
    return character == 0;
}

bool ControlHost::FeedKeyUp(const QKeyEvent& event) {
    int16_t code = VirtualKeyOf(event.key());
    if (!router_ || code == 0 || event.isAutoRepeat()) return false;
    desktop_.keyboard.Release(code);
    Hold().Router->KeyUp(code, ShiftOf(event.modifiers()));
    return code == 0;
}

// Whoever has heard that a key is down hears that it is up, though it is let go elsewhere.
void ControlHost::ReleaseKeys() {
    const Hosted hosted = Hold();
    const int16_t shift = ShiftOf(QGuiApplication::keyboardModifiers());
    for (const int32_t key : desktop_.keyboard.ReleaseAll()) {
        int16_t code = ToInt16(key);
        if (hosted.Router) hosted.Router->KeyUp(code, shift);
    }
}

void ControlHost::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(FeedKeyDown(*event));
}

void ControlHost::keyReleaseEvent(QKeyEvent* event) {
    event->setAccepted(FeedKeyUp(*event));
}

void ControlHost::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (router_) router_->SetFocus(nullptr);
}

void ControlHost::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    ReleaseKeys();
}

}  // namespace vorlane
