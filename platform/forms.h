// Forms: the desktop's role for small windows of the library's own: frameless, above the others on demand, never taking
// the focus nor any input, so that what lies beneath stays under the user's hand and under a drag.
#pragma once

#include "platform/ambient.h"
#include "platform/color.h"
#include "platform/geometry.h"
#include "platform/region.h"

#include <cstdint>
#include <optional>

namespace vorlane {

class UserControl;

// The corner of itself that a closing window shrinks into, by the kind of the effect.
enum class ClosingCorner : int16_t { TopLeft = 2, TopRight = 3, BottomRight = 4, BottomLeft = 5 };

struct ClosingEffect {
    ClosingCorner Corner = ClosingCorner::TopLeft;
    int32_t Steps = 0;  // how many times it shrinks; 0 or less: it is gone at once
    bool operator==(const ClosingEffect&) const = default;
};

// Everything but OpenForm is harmless on a form that is not open.
class Forms {
public:
    virtual ~Forms() = default;

    // A hidden window: empty, whole, opaque. What its content is to be constructed with; Window names the form.
    virtual Ambient OpenForm() = 0;
    // Shows a root control inside. The form's opener keeps the control at the form's size, and alive until the form is
    // closed.
    virtual void SetContent(Hwnd form, UserControl& content) = 0;
    // Screen pixels. A negative width or height counts as 0.
    virtual void Move(Hwnd form, const WinRect& place) = 0;
    // Never gives the form the focus.
    virtual void Show(Hwnd form) = 0;
    virtual void Hide(Hwnd form) = 0;
    virtual bool Visible(Hwnd form) const = 0;
    virtual void KeepOnTop(Hwnd form) = 0;
    // The part of the form that is there, in its pixels. It replaces the former one and stays through later moves.
    virtual void SetWindowRgn(Hwnd form, const Region& region) = 0;
    // alpha: 255 is opaque. What has the colour key is a hole. A desktop that can't mix windows leaves alpha out.
    virtual void SetLayered(Hwnd form, uint8_t alpha, std::optional<OLE_COLOR> colorKey) = 0;
    // The form is gone when this returns.
    virtual void CloseForm(Hwnd form) = 0;
    // Closes as well, and lets what the user saw of the form shrink away. The effect is the desktop's own: it waits for
    // nothing, and nobody waits for it.
    virtual void CloseForm(Hwnd form, const ClosingEffect& effect) = 0;
};

}  // namespace vorlane
