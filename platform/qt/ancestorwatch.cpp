#include "platform/qt/ancestorwatch.h"

#include <utility>

#include <QEvent>

namespace vorlane {

AncestorWatch::AncestorWatch(QWidget& widget, std::function<void()> moved) : widget_(widget), moved_(std::move(moved)) {
    widget_.installEventFilter(this);
    Watch();
}

void AncestorWatch::Watch() {
    for (const auto& widget : watched_) {
        if (widget) widget->removeEventFilter(this);
    }
    watched_.clear();
    for (QWidget* widget = &widget_; !widget->isWindow() && widget->parentWidget() != nullptr;) {
        widget = widget->parentWidget();
        widget->installEventFilter(this);
        watched_.emplace_back(widget);
    }
}

bool AncestorWatch::eventFilter(QObject* watched, QEvent* event) {
    const bool regrouped = event->type() == QEvent::ParentChange;
    if (regrouped) Watch();
    if (regrouped || (watched != &widget_ && event->type() == QEvent::Move)) moved_();
    return false;
}

}  // namespace vorlane
