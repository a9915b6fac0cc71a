// The sheet's drags, in Qt's types.
#include "platform/numbers.h"
#include "sheet/vorlane.h"
#include "widgets/conversions.h"
#include "widgets/vorlanewidget.h"

namespace vorlane {

int VorlaneWidget::CountObject(const DataObject* dragged) {
    return Ask("CountObject", 0, [&] { return sheet_.CountObject(dragged); });
}

int VorlaneWidget::DropPlace() const {
    return Ask("DropPlace", 0, [&] { return sheet_.DropPlace(); });
}

void VorlaneWidget::OLEDrag() {
    Do("OLEDrag", [&] { sheet_.OLEDrag(); });
}

void VorlaneWidget::OleResetDrag() {
    Do("OleResetDrag", [&] { sheet_.OleResetDrag(); });
}

void VorlaneWidget::ConnectDrags() {
    auto& events = sheet_.Events;
    events.OLEBeforeStartDrag.connect([this](int32_t nbObject, std::string& displayText, bool& cancel) {
        QString text = FromText(displayText);
        Q_EMIT OnOLEBeforeStartDrag(nbObject, &text, &cancel);
        displayText = ToText(text);
    });
    events.OLEStartDrag.connect(
        [this](DataObject& dragged, int32_t& allowedEffects) { Q_EMIT OnOLEStartDrag(&dragged, &allowedEffects); });
    events.OLEDragOver.connect(
        [this](DataObject& dragged, int32_t& effect, int16_t button, int16_t shift, float x, float y, int16_t state) {
            Q_EMIT OnOLEDragOver(&dragged, &effect, button, shift, x, y, state);
        });
    events.OLEDragDrop.connect([this](DataObject& dragged, int32_t& effect, int16_t button, int16_t shift, float x,
                                      float y) { Q_EMIT OnOLEDragDrop(&dragged, &effect, button, shift, x, y); });
    events.OLEGiveFeedback.connect(
        [this](int32_t& effect, bool& defaultCursors) { Q_EMIT OnOLEGiveFeedback(&effect, &defaultCursors); });
    events.OLESetData.connect([this](DataObject& dragged, int16_t& dataFormat) {
        int format = dataFormat;
        Q_EMIT OnOLESetData(&dragged, &format);
        dataFormat = ToInt16(format);
    });
    events.OLECompleteDrag.connect([this](int32_t& effect) { Q_EMIT OnOLECompleteDrag(&effect); });
    events.OLEBeforeDropStart.connect(
        [this](int32_t numberOfFilesRep, bool& cancel) { Q_EMIT OnOLEBeforeDropStart(numberOfFilesRep, &cancel); });
    events.OLENewFileAdded.connect([this](const std::string& fileName, int32_t& key, bool& cancel) {
        Q_EMIT OnOLENewFileAdded(FromText(fileName), &key, &cancel);
    });
    events.OLESortChanged.connect([this] { Q_EMIT OnOLESortChanged(); });
    events.OLEDragError.connect([this] { Q_EMIT OnOLEDragError(); });
    events.AfterDropAdd.connect([this](int32_t numberOfFilesAdded) { Q_EMIT OnAfterDropAdd(numberOfFilesAdded); });
}

}  // namespace vorlane
