#include "platform/qt/keys.h"

#include <algorithm>
#include <iterator>

namespace vorlane {

namespace {

struct KeyCode {
    int qtKey;
    int16_t code;
};

constexpr KeyCode kKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},          {Qt::Key_Backtab, 9},     {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},       {Qt::Key_Control, 17},    {Qt::Key_Alt, 18},
    {Qt::Key_AltGr, 18},    {Qt::Key_Pause, 19},       {Qt::Key_CapsLock, 20},   {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},    {Qt::Key_PageUp, 33},      {Qt::Key_PageDown, 34},   {Qt::Key_End, 35},
    {Qt::Key_Home, 36},     {Qt::Key_Left, 37},        {Qt::Key_Up, 38},         {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},     {Qt::Key_Print, 44},       {Qt::Key_Insert, 45},     {Qt::Key_Delete, 46},
    {Qt::Key_Help, 47},     {Qt::Key_Menu, 93},        {Qt::Key_Asterisk, 106},  {Qt::Key_Plus, 107},
    {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145}, {Qt::Key_Semicolon, 186}, {Qt::Key_Equal, 187},
    {Qt::Key_Comma, 188},   {Qt::Key_Minus, 189},      {Qt::Key_Period, 190},    {Qt::Key_Slash, 191},
};

}  // namespace

int16_t VirtualKeyOf(int qtKey) {
    const bool letter = qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z;
    const bool digit = qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9;
    if (letter || digit) return static_cast<int16_t>(qtKey);
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return static_cast<int16_t>(112 + qtKey - Qt::Key_F1);
    const auto* found =
        std::find_if(std::begin(kKeys), std::end(kKeys), [&](const KeyCode& key) { return key.qtKey == qtKey; });
    return found == std::end(kKeys) ? int16_t{0} : found->code;
}

int16_t ButtonOf(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return 1;
        case Qt::RightButton:
            return 2;
        case Qt::MiddleButton:
            return 4;
        default:
            return 0;
    }
}

int16_t ShiftOf(Qt::KeyboardModifiers modifiers) {
    const int shift = modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0;
    const int ctrl = modifiers.testFlag(Qt::ControlModifier) ? 2 : 0;
    const int alt = modifiers.testFlag(Qt::AltModifier) ? 4 : 0;
    return static_cast<int16_t>(shift + ctrl + alt);
}

int16_t ButtonsOf(Qt::MouseButtons buttons) {
    int sum = 0;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (buttons.testFlag(button)) sum += ButtonOf(button);
    }
    return static_cast<int16_t>(sum);
}

int32_t EffectsOf(Qt::DropActions actions) {
    return (actions.testFlag(Qt::CopyAction) ? 1 : 0) + (actions.testFlag(Qt::MoveAction) ? 2 : 0);
}

Qt::DropActions ActionsOf(int32_t effects) {
    Qt::DropActions actions = Qt::IgnoreAction;
    actions.setFlag(Qt::CopyAction, (effects & 1) != 0);
    actions.setFlag(Qt::MoveAction, (effects & 2) != 0);
    return actions;
}

}  // namespace vorlane
