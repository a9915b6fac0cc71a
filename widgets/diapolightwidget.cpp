#include "widgets/diapolightwidget.h"

#include "platform/numbers.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"
#include "slide/ediapolight.h"
#include "widgets/conversions.h"
#include "widgets/savedtext.h"

#include <string_view>

#include <QCoreApplication>

namespace vorlane {

DiapoLightWidget::DiapoLightWidget(QWidget* parent) : DiapoLightWidget(QtDesktop::Of(*qApp), parent) {}

DiapoLightWidget::DiapoLightWidget(QtDesktop& desktop, QWidget* parent)
    : ControlHost(desktop, parent), slide_(Host(std::make_unique<eDiapoLight>(desktop.Roles(), AmbientOfHost()))) {
    slide_.PropertyChanged.connect([this](std::string_view key) {
        Q_EMIT PropertyChanged(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
    });
    slide_.Events.Error.connect([this](int32_t number, const std::string& description, const std::string& source,
                                       int32_t lastDllError, const std::string& valeur) {
        Q_EMIT OnError(number, FromText(description), FromText(source), lastDllError, FromText(valeur));
    });
    ConnectInput();
    ConnectDrags();
    ConnectRequests();
}

DiapoLightWidget::~DiapoLightWidget() {
    Release();
}

QSize DiapoLightWidget::sizeHint() const {
    return {150, 114};
}

void DiapoLightWidget::Report(const Failure& failure, const char* name) const {
    Q_EMIT OnError(failure.Number, FromText(failure.Description), FromText(failure.Source), failure.LastDllError,
                   QStringLiteral("DiapoLightWidget ") + QLatin1String(name));
}

void DiapoLightWidget::ConnectInput() {
    auto& events = slide_.Events;
    events.Click.connect([this](int16_t button) { Q_EMIT OnClick(button); });
    events.DblClick.connect([this](int16_t button) { Q_EMIT OnDblClick(button); });
    events.KeyDown.connect([this](int16_t& keyCode, int16_t shift) {
        int code = keyCode;
        Q_EMIT OnKeyDown(&code, shift);
        keyCode = ToInt16(code);
    });
    events.KeyUp.connect([this](int16_t& keyCode, int16_t shift) {
        int code = keyCode;
        Q_EMIT OnKeyUp(&code, shift);
        keyCode = ToInt16(code);
    });
    events.KeyPress.connect([this](int16_t& keyAscii) {
        int character = keyAscii;
        Q_EMIT OnKeyPress(&character);
        keyAscii = ToInt16(character);
    });
    const auto forward = [this](auto& event, auto signal) {
        event.connect([this, signal](int16_t button, int16_t shift, float x, float y) {
            Q_EMIT(this->*signal)(button, shift, x, y);
        });
    };
    forward(events.MouseDown, &DiapoLightWidget::OnMouseDown);
    forward(events.MouseMove, &DiapoLightWidget::OnMouseMove);
    forward(events.MouseUp, &DiapoLightWidget::OnMouseUp);
    forward(events.ZoomMouseDown, &DiapoLightWidget::OnZoomMouseDown);
    forward(events.InfoMouseDown, &DiapoLightWidget::OnInfoMouseDown);
    forward(events.InfoMouseMove, &DiapoLightWidget::OnInfoMouseMove);
    forward(events.InfoMouseUp, &DiapoLightWidget::OnInfoMouseUp);
    events.ClickPlay.connect([this](bool fromComment) { Q_EMIT OnClickPlay(fromComment); });
    events.ClickStop.connect([this](bool fromComment) { Q_EMIT OnClickStop(fromComment); });
    events.ClickText.connect([this] { Q_EMIT OnClickText(); });
}

void DiapoLightWidget::ConnectDrags() {
    auto& events = slide_.Events;
    events.OLECompleteDrag.connect([this](int32_t& effect) { Q_EMIT OnOLECompleteDrag(&effect); });
    events.OLEDragDrop.connect([this](DataObject& dragged, int32_t& effect, int16_t button, int16_t shift, float x,
                                      float y) { Q_EMIT OnOLEDragDrop(&dragged, &effect, button, shift, x, y); });
    events.OLEDragOver.connect(
        [this](DataObject& dragged, int32_t& effect, int16_t button, int16_t shift, float x, float y, int16_t state) {
            Q_EMIT OnOLEDragOver(&dragged, &effect, button, shift, x, y, state);
        });
    events.OLEGiveFeedback.connect(
        [this](int32_t& effect, bool& defaultCursors) { Q_EMIT OnOLEGiveFeedback(&effect, &defaultCursors); });
    events.OLESetData.connect([this](DataObject& dragged, int16_t& dataFormat) {
        int format = dataFormat;
        Q_EMIT OnOLESetData(&dragged, &format);
        dataFormat = ToInt16(format);
    });
    events.OLEStartDrag.connect(
        [this](DataObject& dragged, int32_t& allowedEffects) { Q_EMIT OnOLEStartDrag(&dragged, &allowedEffects); });
}

void DiapoLightWidget::ConnectRequests() {
    auto& events = slide_.Events;
    events.InvalidPicture.connect([this](const std::string& nomImage) { Q_EMIT OnInvalidPicture(FromText(nomImage)); });
    events.SetPicture.connect([this](DiapoPictureIndex index, vorlane::Picture& newPicture, bool invalidSound) {
        QImage image;
        Q_EMIT OnSetPicture(static_cast<ui::PictureIndex>(index), &image, invalidSound);
        if (!image.isNull()) newPicture = PictureFromImage(image);
    });
    events.GetKey.connect([this](int32_t& key) { Q_EMIT OnGetKey(&key); });
    events.SetKey.connect([this](int32_t key) { Q_EMIT OnSetKey(key); });
    events.GetWindowsPos.connect([this](WinRect& rect, std::string& texte) {
        QRect place = ToQRect(rect);
        QString text = FromText(texte);
        Q_EMIT OnGetWindowsPos(&place, &text);
        rect = FromQRect(place);
        texte = ToText(text);
    });
}

// --- Saving ---

QByteArray DiapoLightWidget::SaveProperties() const {
    return Ask("SaveProperties", QByteArray(), [&] {
        PropertyBag bag;
        slide_.WriteDesign(bag);
        return SavedText(bag);
    });
}

bool DiapoLightWidget::RestoreProperties(const QByteArray& text) {
    return Ask("RestoreProperties", false, [&] {
        Restart(FromSavedText(text));
        return true;
    });
}

}  // namespace vorlane
