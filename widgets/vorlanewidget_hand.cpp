// The user's hand on the sheet's widget: the events of mouse and keyboard as signals, and the selection.
#include "platform/numbers.h"
#include "sheet/vorlane.h"
#include "widgets/accessiblesheet.h"
#include "widgets/conversions.h"
#include "widgets/vorlanewidget.h"

#include <vector>

#include <QMetaMethod>

namespace vorlane {

namespace {

// Lets a receiver answer a code in the width that a signal has.
template <class Tell>
void Answer(int16_t& code, Tell&& tell) {
    int answer = code;
    tell(&answer);
    if (answer != code) code = ToInt16(answer);
}

}  // namespace

void VorlaneWidget::ConnectHand() {
    auto& events = sheet_.Events;
    const auto mouse = [this](auto& event, auto signal) {
        event.connect([this, signal](int16_t button, int16_t shift, float x, float y) {
            Q_EMIT(this->*signal)(button, shift, x, y);
        });
    };
    mouse(events.MouseDown, &VorlaneWidget::OnMouseDown);
    mouse(events.MouseMove, &VorlaneWidget::OnMouseMove);
    mouse(events.MouseUp, &VorlaneWidget::OnMouseUp);
    // The picture is made for a receiver only.
    const auto click = [this](auto& event, auto signal) {
        event.connect([this, signal](int16_t index, const vorlane::Picture& picture, const std::string& fileName,
                                     int16_t button) {
            if (!isSignalConnected(QMetaMethod::fromSignal(signal))) return;
            Q_EMIT(this->*signal)(index, ToImage(picture, devicePixelRatioF()), FromText(fileName), button);
        });
    };
    click(events.Click, &VorlaneWidget::OnClick);
    click(events.DblClick, &VorlaneWidget::OnDblClick);
    events.MouseEnter.connect([this](int16_t index) { Q_EMIT OnMouseEnter(index); });
    events.MouseExit.connect([this](int16_t index) { Q_EMIT OnMouseExit(index); });
    events.BackgroundClick.connect([this](int16_t button) { Q_EMIT OnBackgroundClick(button); });
    events.BackgroundDblClick.connect([this](int16_t button) { Q_EMIT OnBackgroundDblClick(button); });
    events.KeyDown.connect([this](int16_t& keyCode, int16_t shift) {
        Answer(keyCode, [&](int* code) { Q_EMIT OnKeyDown(code, shift); });
    });
    events.KeyUp.connect(
        [this](int16_t& keyCode, int16_t shift) { Answer(keyCode, [&](int* code) { Q_EMIT OnKeyUp(code, shift); }); });
    events.KeyPress.connect(
        [this](int16_t& keyAscii) { Answer(keyAscii, [&](int* code) { Q_EMIT OnKeyPress(code); }); });
}

// Qt tells assistive programs of the widget behind this; the slide comes last.
void VorlaneWidget::focusInEvent(QFocusEvent* event) {
    ControlHost::focusInEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { AccessibleSheet::TellFocus(*this); }, Qt::QueuedConnection);
}

// --- Progress ---

// The sheet works faster where nobody wants to know how far it is.
void VorlaneWidget::connectNotify(const QMetaMethod& signal) {
    if (signal != QMetaMethod::fromSignal(&VorlaneWidget::OnTraitementFeedBack) || feedBack_.connected()) return;
    feedBack_ = sheet_.Events.TraitementFeedBack.connect(
        [this](int32_t value, int32_t max) { Q_EMIT OnTraitementFeedBack(value, max); });
}

// Qt may hold its own lock here, under which it can't be asked: the sheet is looked after from the event loop.
void VorlaneWidget::disconnectNotify(const QMetaMethod&) {
    const auto forget = [this] {
        if (!isSignalConnected(QMetaMethod::fromSignal(&VorlaneWidget::OnTraitementFeedBack))) feedBack_ = {};
    };
    if (feedBack_.connected()) QMetaObject::invokeMethod(this, forget, Qt::QueuedConnection);
}

// --- Selection ---

void VorlaneWidget::SelectAll() {
    Do("SelectAll", [&] { sheet_.SelectAll(); });
    AccessibleSheet::TellSelection(*this);
}

void VorlaneWidget::SelectInvert() {
    Do("SelectInvert", [&] { sheet_.SelectInvert(); });
    AccessibleSheet::TellSelection(*this);
}

void VorlaneWidget::SelectedClear(int exceptedIndex) {
    Do("SelectedClear", [&] { sheet_.SelectedClear(ToInt16(exceptedIndex)); });
    AccessibleSheet::TellSelection(*this);
}

QList<int> VorlaneWidget::SelectedTableau() const {
    return Ask("SelectedTableau", QList<int>(), [&] {
        const std::vector<int32_t> items = sheet_.SelectedTableau();
        return QList<int>(items.begin(), items.end());
    });
}

int VorlaneWidget::CountSelected() const {
    return Ask("CountSelected", 0, [&] { return sheet_.CountSelected(); });
}

int VorlaneWidget::CurrentDiapo() const {
    return Ask("CurrentDiapo", -1, [&] { return sheet_.CurrentDiapo(); });
}

void VorlaneWidget::SetCurrentDiapo(int index) {
    Do("SetCurrentDiapo", [&] { sheet_.SetCurrentDiapo(ToInt16(index)); });
}

bool VorlaneWidget::Selected(int index) const {
    return Ask("Selected", false, [&] { return sheet_.Selected(ToInt16(index)); });
}

void VorlaneWidget::SetSelected(int index, bool selected) {
    Do("SetSelected", [&] { sheet_.SetSelected(ToInt16(index), selected); });
    AccessibleSheet::TellSelection(*this);
}

}  // namespace vorlane
