// Keys, buttons, modifiers and drop actions by the numbers of the public surface.
#pragma once

#include <cstdint>

#include <Qt>

namespace vorlane {

// The virtual code of a key, 0 for a key that has none: letters and digits by their capital letter, 27 Escape,
// 37 to 40 the arrows, 112 to 135 the function keys, ...
int16_t VirtualKeyOf(int qtKey);

// 1 left, 2 right, 4 middle; 0 for any other.
int16_t ButtonOf(Qt::MouseButton button);
// Sum of 1 Shift, 2 Ctrl, 4 Alt.
int16_t ShiftOf(Qt::KeyboardModifiers modifiers);
// Sum of the three buttons' numbers.
int16_t ButtonsOf(Qt::MouseButtons buttons);

// What a drop may do, a sum of 1 copy, 2 move, and back. Other actions have no number.
int32_t EffectsOf(Qt::DropActions actions);
Qt::DropActions ActionsOf(int32_t effects);

}  // namespace vorlane
