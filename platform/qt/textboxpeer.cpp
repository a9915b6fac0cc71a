#include "platform/qt/textboxpeer.h"

#include "platform/failure.h"
#include "platform/qt/colors.h"
#include "platform/qt/controlhost.h"
#include "platform/qt/peers.h"

#include <QKeyEvent>
#include <QPointer>

namespace vorlane {

namespace {

// The model counts characters, the line edit UTF-16 units.
int32_t Characters(const QString& text, qsizetype units) {
    return static_cast<int32_t>(text.left(units).toUcs4().size());
}

int Units(const QString& text, int32_t characters) {
    qsizetype units = 0;
    for (int32_t i = 0; i < characters && units < text.size(); ++i) {
        units += text.at(units).isHighSurrogate() ? 2 : 1;
    }
    return static_cast<int>(units);
}

}  // namespace

TextBoxPeer::TextBoxPeer(TextBox& model, ControlHost& host) : QLineEdit(&host), model_(model), host_(host) {
    changed_ = model_.Changed.connect([this] { Follow(); });
    enabled_ = FollowEnabled(model_, *this);
    focusRequested_ = model_.FocusRequested.connect([this] { setFocus(Qt::OtherFocusReason); });
    connect(this, &QLineEdit::textEdited, this, [this] { Report(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { Report(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { Report(); });
    Follow();
}

void TextBoxPeer::Follow() {
    if (busy_) return;
    busy_ = true;
    const QString wanted = QString::fromStdString(model_.Text());
    if (wanted != text()) setText(wanted);
    FollowSelection();
    setFont(ToQFont(model_.Font()));
    const Box box = model_.BoundsInRoot();
    setGeometry(QRectF(box.Left, box.Top, box.Width, box.Height).toRect());
    if (!model_.Visible() && hasFocus()) host_.setFocus(Qt::OtherFocusReason);
    setVisible(model_.Visible());
    busy_ = false;
}

void TextBoxPeer::FollowSelection() {
    const int start = Units(text(), model_.SelStart());
    const int end = Units(text(), model_.SelStart() + model_.SelLength());
    if (end > start) {
        setSelection(start, end - start);
    } else {
        setCursorPosition(start);
    }
}

void TextBoxPeer::Report() {
    if (busy_) return;
    busy_ = true;
    Attempt([&] { model_.SetText(text().toStdString()); });
    const int first = hasSelectedText() ? selectionStart() : cursorPosition();
    const int length = static_cast<int>(selectedText().size());
    Attempt([&] {
        model_.SetSelStart(Characters(text(), first));
        model_.SetSelLength(Characters(selectedText(), length));
    });
    busy_ = false;
    if (model_.Text() != text().toStdString()) Follow();
}

void TextBoxPeer::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    host_.Router().SetFocus(&model_);
}

void TextBoxPeer::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    const QPointer<ControlHost> host = &host_;
    host_.ReleaseKeys();  // tells a handler, which may end the host
    if (host) host->Router().SetFocus(nullptr);
}

void TextBoxPeer::keyPressEvent(QKeyEvent* event) {
    if (!host_.FeedKeyDown(*event)) QLineEdit::keyPressEvent(event);
}

void TextBoxPeer::keyReleaseEvent(QKeyEvent* event) {
    if (!host_.FeedKeyUp(*event)) QLineEdit::keyReleaseEvent(event);
}

}  // namespace vorlane
