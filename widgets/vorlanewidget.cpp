#include "widgets/vorlanewidget.h"

#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"
#include "sheet/vorlane.h"
#include "widgets/accessiblesheet.h"
#include "widgets/conversions.h"
#include "widgets/savedtext.h"

#include <string_view>

#include <QCoreApplication>

namespace vorlane {

VorlaneWidget::VorlaneWidget(QWidget* parent) : VorlaneWidget(QtDesktop::Of(*qApp), parent) {}

VorlaneWidget::VorlaneWidget(QtDesktop& desktop, QWidget* parent)
    : ControlHost(desktop, parent), sheet_(Host(std::make_unique<Vorlane>(desktop.Roles(), AmbientOfHost()))) {
    sheet_.PropertyChanged.connect([this](std::string_view key) {
        Q_EMIT PropertyChanged(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
    });
    ConnectEvents();
    ConnectScrolling();
    ConnectPictures();
    ConnectHand();
    ConnectDrags();
    ConnectSounds();
    ConnectEdit();
    ConnectZoom();
    AccessibleSheet::Attach(*this);
}

VorlaneWidget::~VorlaneWidget() {
    Release();
}

QSize VorlaneWidget::sizeHint() const {
    return {640, 480};
}

void VorlaneWidget::Report(const Failure& failure, const char* name) const {
    Q_EMIT OnError(failure.Number, FromText(failure.Description), FromText(failure.Source), failure.LastDllError,
                   QStringLiteral("VorlaneWidget ") + QLatin1String(name));
}

void VorlaneWidget::ConnectEvents() {
    auto& events = sheet_.Events;
    events.DisplayStart.connect([this] { Q_EMIT OnDisplayStart(); });
    events.DisplayEnd.connect([this] { Q_EMIT OnDisplayEnd(); });
    events.BeforeAdd.connect([this](std::string& fileName, const std::string& extension, bool& cancel) {
        const QString given = FromText(fileName);
        QString name = given;
        Q_EMIT OnBeforeAdd(&name, FromText(extension), &cancel);
        if (name != given) fileName = ToText(name);
    });
    events.Added.connect(
        [this](int16_t index, const std::string& fileName) { Q_EMIT OnAdded(index, FromText(fileName)); });
    events.TLClear.connect([this] { Q_EMIT OnTLClear(); });
    events.Removed.connect([this](int16_t index, int32_t& key) { Q_EMIT OnRemoved(index, &key); });
    events.TLRefresh.connect([this] { Q_EMIT OnTLRefresh(); });
    events.Sorted.connect([this] { Q_EMIT OnSorted(); });
    events.Error.connect([this](int32_t number, const std::string& description, const std::string& source,
                                int32_t lastDllError, const std::string& valeur) {
        Q_EMIT OnError(number, FromText(description), FromText(source), lastDllError, FromText(valeur));
    });
}

void VorlaneWidget::ConnectScrolling() {
    auto& events = sheet_.Events;
    events.Scroll.connect([this](int32_t value, int32_t& asValue) { Q_EMIT OnScroll(value, &asValue); });
    events.ScrollMouseDown.connect([this](int16_t button, int16_t shift, float x, float y, int32_t& value) {
        Q_EMIT OnScrollMouseDown(button, shift, x, y, &value);
    });
    events.ScrollMouseUp.connect([this](int16_t button, int16_t shift, float x, float y, int32_t& value) {
        Q_EMIT OnScrollMouseUp(button, shift, x, y, &value);
    });
    events.GetThumbPath.connect([this](const std::string& fileName, std::string& thumbName) {
        QString name;
        Q_EMIT OnGetThumbPath(FromText(fileName), &name);
        thumbName = ToText(name);
    });
}

void VorlaneWidget::ConnectPictures() {
    auto& events = sheet_.Events;
    events.BeforeSetPicture.connect([this](int16_t index, const std::string& fileName, vorlane::Picture& picture,
                                           bool& haveSound, bool& haveComment, bool& haveTexte, bool& invalidMusic,
                                           bool& invalidCom) {
        SlideContent content{{}, haveSound, haveComment, haveTexte, invalidMusic, invalidCom};
        Q_EMIT OnBeforeSetPicture(index, FromText(fileName), &content);
        if (!content.Picture.isNull()) picture = PictureFromImage(content.Picture);
        haveSound = content.HaveSound;
        haveComment = content.HaveComment;
        haveTexte = content.HaveTexte;
        invalidMusic = content.InvalidMusic;
        invalidCom = content.InvalidCom;
    });
    events.InvalidPicture.connect(
        [this](int16_t index, const std::string& fileName) { Q_EMIT OnInvalidPicture(index, FromText(fileName)); });
}

// --- Saving ---

QByteArray VorlaneWidget::SaveProperties() const {
    return Ask("SaveProperties", QByteArray(), [&] {
        PropertyBag bag;
        sheet_.WriteDesign(bag);
        return SavedText(bag);
    });
}

bool VorlaneWidget::RestoreProperties(const QByteArray& text) {
    return Ask("RestoreProperties", false, [&] {
        Restart(FromSavedText(text));
        return true;
    });
}

}  // namespace vorlane
