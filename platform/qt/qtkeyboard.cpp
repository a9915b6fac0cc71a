#include "platform/qt/qtkeyboard.h"

#include <QGuiApplication>

namespace vorlane {

bool QtKeyboard::KeyIsDown(int32_t virtualKey) const {
    switch (virtualKey) {
        case 1:
            return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
        case 2:
            return QGuiApplication::mouseButtons().testFlag(Qt::RightButton);
        case 4:
            return QGuiApplication::mouseButtons().testFlag(Qt::MiddleButton);
        case 16:
            return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier);
        case 17:
            return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier);
        case 18:
            return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier);
        default:
            return down_.count(virtualKey) != 0;
    }
}

}  // namespace vorlane
