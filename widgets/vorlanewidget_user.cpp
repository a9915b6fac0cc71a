// The selection of the sheet's widget, and what the user does on it.
#include "platform/numbers.h"
#include "sheet/vorlane.h"
#include "widgets/conversions.h"
#include "widgets/vorlanewidget.h"

#include <QMetaMethod>

namespace vorlane {

// --- Selection ---

void VorlaneWidget::SelectAll() {
    Do("SelectAll", [&] { sheet_.SelectAll(); });
}

void VorlaneWidget::SelectInvert() {
    Do("SelectInvert", [&] { sheet_.SelectInvert(); });
}

void VorlaneWidget::SelectedClear(int exceptedIndex) {
    Do("SelectedClear", [&] { sheet_.SelectedClear(ToInt16(exceptedIndex)); });
}

int VorlaneWidget::CountSelected() const {
    return Ask("CountSelected", 0, [&] { return sheet_.CountSelected(); });
}

std::vector<int> VorlaneWidget::SelectedTableau() const {
    return Ask("SelectedTableau", std::vector<int>(), [&] { return sheet_.SelectedTableau(); });
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
}

// --- Mouse and keys ---

void VorlaneWidget::ConnectMouse() {
    auto& events = sheet_.Events;
    const auto at = [](float x, float y) { return QPointF(x, y); };
    events.MouseDown.connect(
        [this, at](int16_t button, int16_t shift, float x, float y) { Q_EMIT OnMouseDown(button, shift, at(x, y)); });
    events.MouseMove.connect(
        [this, at](int16_t button, int16_t shift, float x, float y) { Q_EMIT OnMouseMove(button, shift, at(x, y)); });
    events.MouseUp.connect(
        [this, at](int16_t button, int16_t shift, float x, float y) { Q_EMIT OnMouseUp(button, shift, at(x, y)); });
    events.MouseEnter.connect([this](int16_t index) { Q_EMIT OnMouseEnter(index); });
    events.MouseExit.connect([this](int16_t index) { Q_EMIT OnMouseExit(index); });
    events.Click.connect([this](int16_t index, const Picture&, const std::string& fileName, int16_t button) {
        Q_EMIT OnClick(index, FromText(fileName), button);
    });
    events.DblClick.connect([this](int16_t index, const Picture&, const std::string& fileName, int16_t button) {
        Q_EMIT OnDblClick(index, FromText(fileName), button);
    });
    events.BackgroundClick.connect([this](int16_t button) { Q_EMIT OnBackgroundClick(button); });
    events.BackgroundDblClick.connect([this](int16_t button) { Q_EMIT OnBackgroundDblClick(button); });
}

void VorlaneWidget::ConnectKeys() {
    auto& events = sheet_.Events;
    events.KeyDown.connect([this](int16_t& keyCode, int16_t shift) {
        int code = keyCode;
        Q_EMIT OnKeyDown(&code, shift);
        keyCode = ToInt16(code);
    });
    events.KeyPress.connect([this](int16_t& keyAscii) {
        int ascii = keyAscii;
        Q_EMIT OnKeyPress(&ascii);
        keyAscii = ToInt16(ascii);
    });
    events.KeyUp.connect([this](int16_t& keyCode, int16_t shift) {
        int code = keyCode;
        Q_EMIT OnKeyUp(&code, shift);
        keyCode = ToInt16(code);
    });
}

// The sheet is faster where nobody watches its progress.
void VorlaneWidget::connectNotify(const QMetaMethod& signal) {
    if (feedBackHeard_ || signal != QMetaMethod::fromSignal(&VorlaneWidget::OnTraitementFeedBack)) return;
    feedBackHeard_ = true;
    sheet_.Events.TraitementFeedBack.connect(
        [this](int32_t value, int32_t max) { Q_EMIT OnTraitementFeedBack(value, max); });
}

}  // namespace vorlane
