#include "platform/qt/qtforms.h"

#include "platform/qt/colors.h"
#include "platform/qt/formwidget.h"
#include "platform/qt/qtwindows.h"

#include <algorithm>
#include <utility>

#include <QApplication>

namespace vorlane {

namespace {

constexpr double kOpaque = 255;

}  // namespace

QtForms::QtForms(QtWindows& windows, const PaintTools& tools) : windows_(windows), tools_(tools) {}

QtForms::~QtForms() {
    for (const auto& closing : closing_) delete closing.data();
}

FormWidget* QtForms::WidgetOf(Hwnd form) const {
    const auto found = open_.find(form);
    return found == open_.end() ? nullptr : found->second.get();
}

int QtForms::ClosingForms() const {
    return static_cast<int>(std::count_if(closing_.begin(), closing_.end(), [](const auto& form) { return form; }));
}

Ambient QtForms::OpenForm() {
    auto widget = std::make_unique<FormWidget>(tools_);
    Ambient ambient;
    ambient.Font = FromQFont(QApplication::font());
    ambient.Window = windows_.HandleOf(widget.get());
    open_[ambient.Window] = std::move(widget);
    return ambient;
}

void QtForms::SetContent(Hwnd form, UserControl& content) {
    if (FormWidget* widget = WidgetOf(form)) widget->SetContent(content);
}

void QtForms::Move(Hwnd form, const WinRect& place) {
    if (FormWidget* widget = WidgetOf(form)) {
        widget->setGeometry(place.Left, place.Top, std::max(0, place.Right - place.Left),
                            std::max(0, place.Bottom - place.Top));
    }
}

void QtForms::Show(Hwnd form) {
    FormWidget* widget = WidgetOf(form);
    if (widget == nullptr || widget->isVisible()) return;
    widget->show();
    widget->raise();
}

void QtForms::Hide(Hwnd form) {
    if (FormWidget* widget = WidgetOf(form)) widget->hide();
}

bool QtForms::Visible(Hwnd form) const {
    const FormWidget* widget = WidgetOf(form);
    return widget != nullptr && widget->isVisible();
}

// All forms have the flag that keeps them there.
void QtForms::KeepOnTop(Hwnd form) {
    if (FormWidget* widget = WidgetOf(form)) widget->raise();
}

void QtForms::SetWindowRgn(Hwnd form, const Region& region) {
    if (FormWidget* widget = WidgetOf(form)) widget->SetRegion(region);
}

void QtForms::SetLayered(Hwnd form, uint8_t alpha, std::optional<OLE_COLOR> colorKey) {
    FormWidget* widget = WidgetOf(form);
    if (widget == nullptr) return;
    widget->setWindowOpacity(alpha / kOpaque);
    widget->SetColorKey(colorKey);
}

void QtForms::CloseForm(Hwnd form) {
    open_.erase(form);
}

void QtForms::CloseForm(Hwnd form, const ClosingEffect& effect) {
    const FormWidget* widget = WidgetOf(form);
    if (widget == nullptr || !widget->isVisible() || effect.Steps < 1) return CloseForm(form);
    FormWidget* closing = open_[form].release();
    open_.erase(form);
    std::erase_if(closing_, [](const auto& gone) { return gone.isNull(); });
    closing_.emplace_back(closing);
    closing->CloseInto(effect);
}

}  // namespace vorlane
