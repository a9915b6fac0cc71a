#include "platform/qt/tooltipwindow.h"

#include <algorithm>

#include <QApplication>
#include <QCursor>
#include <QEvent>

namespace vorlane {

namespace {

constexpr int kCentred = 2;
constexpr int kFindsTheMouse = 16;
constexpr int kUnderThePointer = 18;  // pixels from the pointer's tip to its lower end

QRect RectOf(const TOOLINFO& tool) {
    return {QPoint(tool.rect.Left, tool.rect.Top), QPoint(tool.rect.Right - 1, tool.rect.Bottom - 1)};
}

bool Has(const std::optional<TOOLINFO>& tool, int32_t flag) {
    return tool && (tool->uFlags & flag) != 0;
}

}  // namespace

TooltipWindow::TooltipWindow(int32_t style, QWidget* parent)
    : style_(style), widget_(parent), balloon_((style & TTS_BALLOON) != 0) {
    rest_.setSingleShot(true);
    rest_.setInterval(500);
    showing_.setSingleShot(true);
    connect(&rest_, &QTimer::timeout, this, [this] { ShowAtPointer(); });
    connect(&showing_, &QTimer::timeout, this, [this] { balloon_.hide(); });
    if (parent == nullptr) return;
    parent->setMouseTracking(true);  // moves are what it waits for
    parent->installEventFilter(this);
}

void TooltipWindow::SetActive(bool active) {
    active_ = active;
    spent_ = false;
    if (active) {
        FollowPointer();
    } else {
        Hide();
    }
}

void TooltipWindow::SetInitialDelay(int delay) {
    rest_.setInterval(std::max(0, delay));
    FollowPointer();
}

void TooltipWindow::SetTool(std::optional<TOOLINFO> tool) {
    tool_ = std::move(tool);
    if (tool_) SetToolText(*tool_);
    FollowPointer();
}

void TooltipWindow::SetToolText(const TOOLINFO& tool) {
    balloon_.SetText(QString::fromStdString(tool.lpszText));
}

void TooltipWindow::SetTracking(bool tracking) {
    tracking_ = tracking;
    Hide();
    if (!tracking || !active_ || !tool_) return;
    balloon_.PointAt(trackPosition_, Has(tool_, kCentred));
    balloon_.show();
}

void TooltipWindow::SetTrackPosition(QPoint place) {
    trackPosition_ = place;
    if (tracking_) balloon_.PointAt(place, Has(tool_, kCentred));
}

bool TooltipWindow::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseMove:
        case QEvent::HoverMove:
        case QEvent::Enter:
        case QEvent::Leave:
            FollowPointer();
            break;
        case QEvent::MouseButtonPress:
        case QEvent::Wheel:
        case QEvent::WindowDeactivate:
        case QEvent::Hide:
            if (!tracking_) Hide();
            spent_ = true;
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

bool TooltipWindow::PointerIsOverTool() const {
    if (!widget_ || !widget_->isVisible() || !tool_) return false;
    const bool mayShow = (style_ & TTS_ALWAYSTIP) != 0 || widget_->isActiveWindow();
    return mayShow && RectOf(*tool_).contains(widget_->mapFromGlobal(QCursor::pos()));
}

void TooltipWindow::FollowPointer() {
    if (tracking_ || !active_ || !Has(tool_, kFindsTheMouse)) return;
    if (!PointerIsOverTool()) {
        spent_ = false;
        return Hide();
    }
    if (!spent_ && !balloon_.isVisible()) rest_.start();
}

void TooltipWindow::ShowAtPointer() {
    if (tracking_ || !active_ || !PointerIsOverTool()) return;
    spent_ = true;
    balloon_.PointAt(Target(), Has(tool_, kCentred));
    balloon_.show();
    balloon_.raise();
    if (showingTime_ > 0) showing_.start(showingTime_);
}

QPoint TooltipWindow::Target() const {
    if (!Has(tool_, kCentred)) return QCursor::pos() + QPoint(0, kUnderThePointer);
    const QRect tool = RectOf(*tool_);
    return widget_->mapToGlobal(QPoint(tool.center().x(), tool.bottom() + 1));
}

void TooltipWindow::Hide() {
    rest_.stop();
    showing_.stop();
    balloon_.hide();
}

}  // namespace vorlane
