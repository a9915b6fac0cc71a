// TextBoxPeer: a native line edit in front of a TextBox.
#pragma once

#include "platform/textbox.h"

#include <vector>

#include <QLineEdit>

namespace vorlane {

class ControlHost;

class TextBoxPeer final : public QLineEdit {
    Q_OBJECT

public:
    TextBoxPeer(TextBox& model, ControlHost& host);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void Follow();
    void FollowSelection();
    void Report();

    TextBox& model_;
    ControlHost& host_;
    ScopedConnection changed_;
    std::vector<ScopedConnection> enabled_;
    ScopedConnection focusRequested_;
    bool busy_ = false;  // following the model, or reporting to it
};

}  // namespace vorlane
