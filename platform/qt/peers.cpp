#include "platform/qt/peers.h"

#include "platform/qt/controlhost.h"
#include "platform/qt/scrollbarpeer.h"
#include "platform/qt/textboxpeer.h"

namespace vorlane {

std::vector<std::unique_ptr<QWidget>> MakePeers(UserControl& control, ControlHost& host) {
    std::vector<std::unique_ptr<QWidget>> peers;
    for (Control* child : control.Children()) {
        if (auto* bar = dynamic_cast<ScrollbarPlus*>(child))
            peers.push_back(std::make_unique<ScrollBarPeer>(*bar, host));
        if (auto* box = dynamic_cast<TextBox*>(child)) peers.push_back(std::make_unique<TextBoxPeer>(*box, host));
    }
    return peers;
}

std::vector<ScopedConnection> FollowEnabled(Control& model, QWidget& peer) {
    const auto follow = [&model, &peer] {
        bool enabled = true;
        for (const Control* outer = &model; outer != nullptr; outer = outer->Container()) enabled &= outer->Enabled();
        peer.setEnabled(enabled);
    };
    std::vector<ScopedConnection> connections;
    for (Control* outer = &model; outer != nullptr; outer = outer->Container()) {
        connections.push_back(outer->Changed.connect(follow));
    }
    follow();
    return connections;
}

}  // namespace vorlane
