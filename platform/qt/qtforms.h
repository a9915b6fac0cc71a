// QtForms: forms as real windows of their own. Their opacity shows where the screen has a compositor; elsewhere they
// are opaque. What is left open at its end is closed then.
#pragma once

#include "platform/forms.h"
#include "platform/qt/painttools.h"

#include <map>
#include <memory>
#include <vector>

#include <QPointer>

namespace vorlane {

class FormWidget;
class QtWindows;

class QtForms final : public Forms {
public:
    // windows names the forms among the other windows.
    QtForms(QtWindows& windows, const PaintTools& tools);
    ~QtForms() override;

    // nullptr for a form that is not open.
    FormWidget* WidgetOf(Hwnd form) const;
    // Windows that are on their way out.
    int ClosingForms() const;

    Ambient OpenForm() override;
    void SetContent(Hwnd form, UserControl& content) override;
    void Move(Hwnd form, const WinRect& place) override;
    void Show(Hwnd form) override;
    void Hide(Hwnd form) override;
    bool Visible(Hwnd form) const override;
    void KeepOnTop(Hwnd form) override;
    void SetWindowRgn(Hwnd form, const Region& region) override;
    void SetLayered(Hwnd form, uint8_t alpha, std::optional<OLE_COLOR> colorKey) override;
    void CloseForm(Hwnd form) override;
    void CloseForm(Hwnd form, const ClosingEffect& effect) override;

private:
    QtWindows& windows_;
    PaintTools tools_;
    std::map<Hwnd, std::unique_ptr<FormWidget>> open_;
    std::vector<QPointer<FormWidget>> closing_;
};

}  // namespace vorlane
