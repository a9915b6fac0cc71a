// AncestorWatch: tells when a widget has got another place on the screen because something around it was moved: one of
// the widgets that contain it, up to its window, or it has got other containers. A move of the widget in its container
// is the widget's own event.
#pragma once

#include <functional>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace vorlane {

class AncestorWatch final : public QObject {
public:
    AncestorWatch(QWidget& widget, std::function<void()> moved);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Watch();

    QWidget& widget_;
    std::function<void()> moved_;
    std::vector<QPointer<QWidget>> watched_;
};

}  // namespace vorlane
