#include "editor/navigator.h"

#include "editor/show.h"
#include "widgets/vorlanewidget.h"

#include <optional>

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>

namespace vorlane::editor {

namespace {

std::optional<Step> StepOf(int key, bool sideways) {
    switch (key) {
        case Qt::Key_Left:
            return Step::Back;
        case Qt::Key_Right:
            return Step::On;
        case Qt::Key_Up:
            return sideways ? Step::Back : Step::LineBack;
        case Qt::Key_Down:
            return sideways ? Step::On : Step::LineOn;
        case Qt::Key_PageUp:
            return Step::PageBack;
        case Qt::Key_PageDown:
            return Step::PageOn;
        case Qt::Key_Home:
            return Step::First;
        case Qt::Key_End:
            return Step::Last;
        default:
            return std::nullopt;
    }
}

bool IsText(const QKeyEvent& event) {
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace

Navigator::Navigator(VorlaneWidget& sheet, Show& show, QObject* parent)
    : QObject(parent), sheet_(sheet), show_(show), typing_(QApplication::keyboardInputInterval() * 2) {
    sheet.installEventFilter(this);
    // The sheet tells no release that came while it was at work on the press.
    connect(&sheet, &VorlaneWidget::OnMouseDown, this, &Navigator::FollowMouse);
    connect(&sheet, &VorlaneWidget::OnMouseUp, this, &Navigator::FollowMouse);
    connect(&sheet, &VorlaneWidget::OnAccessibleAction, this, [this](int slide) { mark(sheet_.Value(slide)); });
}

int Navigator::current() const {
    return key_ < 0 ? -1 : sheet_.GetListIndexFromItemData(key_);
}

int Navigator::slideOf(int listIndex) const {
    if (listIndex < 0) return -1;
    for (int k = 0; k < sheet_.CountAffiche(); ++k) {
        if (sheet_.Value(k) == listIndex && !sheet_.DiapoRect(k).isEmpty()) return k;
    }
    return -1;
}

int Navigator::itemAt(const QPointF& place) const {
    for (int k = 0; k < sheet_.CountAffiche(); ++k) {
        if (sheet_.DiapoRect(k).contains(place)) return sheet_.Value(k);
    }
    return -1;
}

void Navigator::mark(int listIndex) {
    key_ = listIndex < 0 || listIndex >= show_.count() ? -1 : sheet_.Key(listIndex);
    Q_EMIT moved();
}

// Keys that arrive while the sheet is at work lead on from here.
void Navigator::setCurrent(int listIndex) {
    if (listIndex < 0 || listIndex >= show_.count()) return;
    mark(listIndex);
    if (bringing_) return;
    bringing_ = true;
    int brought = -1;
    while (brought != current()) Bring(brought = current());
    bringing_ = false;
    Q_EMIT moved();
}

void Navigator::Bring(int listIndex) {
    show_.reveal(listIndex);
    sheet_.SelectedClear();
    const int slide = slideOf(listIndex);
    if (slide >= 0) sheet_.SetCurrentDiapo(slide);
}

void Navigator::Toggle() {
    const int item = current();
    show_.reveal(item);
    const int slide = slideOf(item);
    if (slide >= 0) sheet_.SetSelected(slide, !sheet_.Selected(slide));
    Q_EMIT moved();
}

bool Navigator::Type(const QString& text) {
    const auto name = [this](int i) { return QFileInfo(sheet_.ImageFullPath(i)).fileName(); };
    const int found = FindName(typing_.type(text), current(), show_.count(), name);
    if (found >= 0) setCurrent(found);
    return true;
}

// Whether the key was meant for this.
bool Navigator::Key(const QKeyEvent& event) {
    const bool plain = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const bool sideways = sheet_.ScrollDirection() == ui::ScrollDirection::sdHorizontal;
    if (!plain) return false;
    if (const auto step = StepOf(event.key(), sideways)) {
        setCurrent(Stepped(*step, current(), ViewOf(sheet_)));
        return true;
    }
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        if (current() >= 0) Q_EMIT activated(current());
        return true;
    }
    if (event.key() == Qt::Key_Space && !typing_.isTyping()) {
        Toggle();
        return true;
    }
    return IsText(event) && Type(event.text());
}

bool Navigator::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) return Key(static_cast<const QKeyEvent&>(*event));
    return QObject::eventFilter(watched, event);
}

// What the mouse has made current is so for the keys, too.
void Navigator::FollowMouse() {
    const int slide = sheet_.CurrentDiapo();
    mark(slide < 0 ? current() : sheet_.Value(slide));
}

}  // namespace vorlane::editor
