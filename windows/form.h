// Form: a small shared window with its content, both made when they are first needed (loaded) and gone at Unload. It
// owns the window's place, its showing and its life; what it shows is the derived form's business.
//
// Places are twips of the screen and always whole pixels: what is written is rounded, halves to the even neighbour.
#pragma once

#include "platform/compositecontrol.h"
#include "platform/forms.h"

#include <functional>
#include <memory>
#include <optional>

namespace vorlane {

// The root control that fills a form.
class FormContent : public CompositeControl {
public:
    FormContent(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, std::function<void()> onResize)
        : CompositeControl(desktop, ambient, nullptr), onResize_(std::move(onResize)) {}

protected:
    void Resized() override { onResize_(); }

private:
    std::function<void()> onResize_;
};

class Form {
public:
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    // --- Life ---
    bool Loaded() const { return hwnd_ != 0; }
    // Harmless on a loaded form. Every operation below that needs the window loads it.
    void Load();
    // Closes the window and forgets everything: the next use starts anew.
    void Unload();
    vorlane::Hwnd Hwnd();

    // --- Place, twips ---
    float Left() const;
    float Top() const;
    float Width() const;
    float Height() const;
    void Move(double left, double top);
    void Move(double left, double top, double width, double height);
    // Size in pixels.
    int32_t ScaleWidth() const { return place_.Right - place_.Left; }
    int32_t ScaleHeight() const { return place_.Bottom - place_.Top; }
    float TwipsPerPixelX() const { return desktop_.screen.TwipsPerPixelX(); }
    float TwipsPerPixelY() const { return desktop_.screen.TwipsPerPixelY(); }

    // --- Showing ---
    // Without activating the window.
    void Show();
    void Hide();
    bool Visible() const;
    // Paints what has changed before it returns.
    void Refresh();
    OLE_COLOR BackColor();
    void SetBackColor(OLE_COLOR color);

protected:
    // The size of the unloaded form, pixels.
    Form(const Desktop& desktop, int32_t designWidth, int32_t designHeight);

    virtual std::unique_ptr<FormContent> MakeContent(const Ambient& ambient, std::function<void()> onResize) = 0;
    virtual void OnLoad() = 0;
    virtual void OnResize() = 0;
    virtual void OnVisibleChanged(bool) {}
    // The window is about to close. What comes back is how it goes; nothing: at once.
    virtual std::optional<ClosingEffect> OnUnload() = 0;
    // The fields as in a form that was never used.
    virtual void Reset() = 0;

    // The part of the window that there is.
    void SetWindowRgn(const Region& region) { TheForms().SetWindowRgn(Hwnd(), region); }

    const Desktop& TheDesktop() const { return desktop_; }
    Forms& TheForms() const { return desktop_.forms; }
    // The content of a loaded form.
    FormContent& Content();

private:
    void MoveTo(const WinRect& place);

    Desktop desktop_;
    WinRect design_;
    WinRect place_;
    vorlane::Hwnd hwnd_ = 0;
    std::unique_ptr<FormContent> content_;
};

// Shows a form; a failure is ignored.
void ShowForm(Form& form);

}  // namespace vorlane
