#include "platform/qt/qtscreen.h"

#include "platform/qt/colors.h"
#include "platform/qt/qtwindows.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPalette>

namespace vorlane {

namespace {

QColor ThemeColor(const QPalette& theme, SystemColor color) {
    switch (color) {
        case SystemColor::ScrollBar:
            return theme.color(QPalette::Button);
        case SystemColor::Window:
            return theme.color(QPalette::Base);
        case SystemColor::WindowFrame:
            return theme.color(QPalette::WindowText);
        case SystemColor::WindowText:
            return theme.color(QPalette::Text);
        case SystemColor::Highlight:
            return theme.color(QPalette::Highlight);
        case SystemColor::HighlightText:
            return theme.color(QPalette::HighlightedText);
        case SystemColor::ButtonFace:
            return theme.color(QPalette::Window);
        case SystemColor::ButtonShadow:
            return theme.color(QPalette::Dark);
        case SystemColor::GrayText:
            return theme.color(QPalette::Disabled, QPalette::Text);
        case SystemColor::ButtonText:
            return theme.color(QPalette::ButtonText);
        case SystemColor::ButtonHighlight:
            return theme.color(QPalette::Light);
        case SystemColor::DarkShadow:
            return theme.color(QPalette::Shadow);
        case SystemColor::ActiveBorder:
            return theme.color(QPalette::Mid);
        case SystemColor::GradientInactiveCaption:
        case SystemColor::Light:
            return theme.color(QPalette::Midlight);
        case SystemColor::InfoText:
            return theme.color(QPalette::ToolTipText);
        case SystemColor::InfoBackground:
            return theme.color(QPalette::ToolTipBase);
    }
    return Qt::black;
}

}  // namespace

Qt::CursorShape CursorShapeOf(int16_t mousePointer) {
    switch (mousePointer) {
        case 2:
            return Qt::CrossCursor;
        case 3:
            return Qt::IBeamCursor;
        case 5:
        case 15:
            return Qt::SizeAllCursor;
        case 6:
            return Qt::SizeBDiagCursor;
        case 7:
            return Qt::SizeVerCursor;
        case 8:
            return Qt::SizeFDiagCursor;
        case 9:
            return Qt::SizeHorCursor;
        case 10:
            return Qt::UpArrowCursor;
        case 11:
            return Qt::WaitCursor;
        case 12:
            return Qt::ForbiddenCursor;
        case 13:
            return Qt::BusyCursor;
        case 14:
            return Qt::WhatsThisCursor;
        default:
            return Qt::ArrowCursor;
    }
}

QtScreen::~QtScreen() {
    SetMousePointer(0);
    ReleaseCapture();
}

Point QtScreen::CursorPos() const {
    const QPoint place = QCursor::pos();
    return {place.x(), place.y()};
}

void QtScreen::SetCursorPos(Point place) {
    QCursor::setPos(place.X, place.Y);
}

void QtScreen::SetMousePointer(int16_t shape) {
    if (shape == pointer_ || qGuiApp == nullptr) return;
    if (shape == 0) {
        QGuiApplication::restoreOverrideCursor();
    } else if (pointer_ == 0) {
        QGuiApplication::setOverrideCursor(CursorShapeOf(shape));
    } else {
        QGuiApplication::changeOverrideCursor(CursorShapeOf(shape));
    }
    pointer_ = shape;
}

OLE_COLOR QtScreen::SysColor(int32_t number) const {
    if (number < 0 || number > 0xFF) return 0;
    return FromQColor(ThemeColor(QGuiApplication::palette(), static_cast<SystemColor>(number)));
}

void QtScreen::SetCapture(Hwnd window) {
    QWidget* widget = windows_.WidgetOf(window);
    if (window == captured_ || widget == nullptr) return;
    ReleaseCapture();
    captured_ = window;
    widget->grabMouse();
}

void QtScreen::ReleaseCapture() {
    QWidget* widget = windows_.WidgetOf(captured_);
    captured_ = 0;
    if (widget != nullptr) widget->releaseMouse();
}

}  // namespace vorlane
