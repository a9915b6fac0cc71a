// ControlHost: a widget that is the window of one root control. It feeds the user's input to the control's router,
// paints the control, gives it the widget's size and its Show, lends native peers to its scroll bars and text boxes,
// and shows its tooltips and pointers. What a control means is the control's own business.
//
// No exception leaves an event handler of the widget.
#pragma once

#include "platform/ambient.h"
#include "platform/dataobject.h"
#include "platform/inputrouter.h"
#include "platform/qt/ancestorwatch.h"
#include "platform/qt/damage.h"

#include <functional>
#include <memory>
#include <vector>

#include <QPointer>
#include <QWidget>

class QHelpEvent;

namespace vorlane {

class PropertyBag;
class QtDesktop;

class ControlHost : public QWidget {
    Q_OBJECT

public:
    ~ControlHost() override;

    QtDesktop& Desktop() const { return desktop_; }
    InputRouter& Router() { return *router_; }

    // A drag has taken the releases of what was down, buttons and keys.
    void ForgetHeld();
    // Keys on their way to the control that has the focus. Return whether a handler swallowed the key.
    bool FeedKeyDown(const QKeyEvent& event);
    bool FeedKeyUp(const QKeyEvent& event);
    // The keyboard goes elsewhere: keys that are down count as let go.
    void ReleaseKeys();

protected:
    ControlHost(QtDesktop& desktop, QWidget* parent);

    // What the hosted control is to be constructed with.
    vorlane::Ambient AmbientOfHost();
    // Takes the control over as a new one. Its Show comes when the widget is shown first.
    template <class T>
    T& Host(std::unique_ptr<T> control) {
        Release();
        T& hosted = *control;
        if constexpr (requires { hosted.Events; }) {
            silence_ = [&events = hosted.Events] {
                std::destroy_at(&events);
                std::construct_at(&events);
            };
        }
        Attach(std::move(control));
        return hosted;
    }
    // Starts the control anew as a saved one, up to its Show if it has been shown.
    void Restart(const PropertyBag& saved);
    // Ends the control. A derived class does so before anything that the control's events reach goes away. A control
    // that is at work, in the middle of a drag for instance, ends behind that; its Events reach nobody any more.
    void Release();

    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    // The control while something is fed to it: it outlives the widget.
    struct Hosted {
        std::shared_ptr<UserControl> Control;
        std::shared_ptr<InputRouter> Router;
    };

    Hosted Hold() const { return {control_, router_}; }
    void Attach(std::shared_ptr<UserControl> control);
    void TakeSize();
    void TellMoved();
    void PointAt(const QPointF& place);
    bool ShowToolTip(const QHelpEvent& event);

    QtDesktop& desktop_;
    std::shared_ptr<UserControl> control_;
    std::shared_ptr<InputRouter> router_;
    std::function<void()> silence_;  // disconnects the control's Events
    std::vector<std::unique_ptr<QWidget>> peers_;
    ScopedConnection damaged_;
    std::shared_ptr<DataObject> dragged_;  // what the drag over the widget carries
    AncestorWatch around_{*this, [this] { TellMoved(); }};
    Damage damage_;
    bool shown_ = false;
    int16_t pointer_ = 0;
    Picture pointerIcon_;
};

}  // namespace vorlane
