// Peers: the native widgets that a host lends to the scroll bars and text boxes of its control. A peer follows the
// model, which stays the truth, and reports what the user does to it.
#pragma once

#include "platform/event.h"

#include <memory>
#include <vector>

class QWidget;

namespace vorlane {

class Control;
class ControlHost;
class UserControl;

// The peers of the control's children, hidden or shown as these are. control outlives them.
std::vector<std::unique_ptr<QWidget>> MakePeers(UserControl& control, ControlHost& host);

// Enables the peer while the model and all its containers are enabled, as long as the result lives.
std::vector<ScopedConnection> FollowEnabled(Control& model, QWidget& peer);

}  // namespace vorlane
