#include "widgets/timelinewidget.h"

#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/keys.h"
#include "platform/qt/qtdesktop.h"
#include "platform/trelmic6.h"
#include "sheet/vorlane.h"
#include "timeline/etimeline.h"
#include "widgets/accessibletimeline.h"
#include "widgets/conversions.h"
#include "widgets/savedtext.h"
#include "widgets/vorlanewidget.h"

#include <string_view>
#include <utility>

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>

namespace vorlane {

TimeLineWidget::TimeLineWidget(QWidget* parent) : TimeLineWidget(QtDesktop::Of(*qApp), parent) {}

TimeLineWidget::TimeLineWidget(QtDesktop& desktop, QWidget* parent)
    : ControlHost(desktop, parent), line_(Host(std::make_unique<eTimeLine>(desktop.Roles(), AmbientOfHost()))) {
    line_.PropertyChanged.connect([this](std::string_view key) {
        Q_EMIT PropertyChanged(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
        if (key == "ExpositionTime") AccessibleTimeLine::TellSounds(*this);
    });
    auto& events = line_.Events;
    events.Click.connect([this] { Q_EMIT OnClick(); });
    events.DblClick.connect([this] { Q_EMIT OnDblClick(); });
    events.RemovedSound.connect([this](int32_t typeSound, int32_t key, int16_t diapoIndex) {
        Q_EMIT OnRemovedSound(typeSound, key, diapoIndex);
    });
    events.Error.connect([this](int32_t number, const std::string& description, const std::string& source,
                                int32_t lastDllError, const std::string& valeur) {
        Q_EMIT OnError(number, FromText(description), FromText(source), lastDllError, FromText(valeur));
    });
    AccessibleTimeLine::Install();
    TellChangesOf(line_.Musiques().get(), musicsHeard_);
    TellChangesOf(line_.Comments().get(), commentsHeard_);
}

TimeLineWidget::~TimeLineWidget() {
    Release();
}

QSize TimeLineWidget::sizeHint() const {
    return {640, 60};
}

void TimeLineWidget::Report(const Failure& failure, const char* name) const {
    Q_EMIT OnError(failure.Number, FromText(failure.Description), FromText(failure.Source), failure.LastDllError,
                   QStringLiteral("TimeLineWidget ") + QLatin1String(name));
}

// --- The user's hand ---

// The release of the right button opens the popup by itself.
void TimeLineWidget::contextMenuEvent(QContextMenuEvent* event) {
    event->setAccepted(Enabled());
    if (!Enabled() || event->reason() != QContextMenuEvent::Keyboard) return;
    const QPoint place = mapToGlobal(QPoint(line_.BorderWidth() + line_.MargeGauche(), height()));
    Do("ContextMenu", [&] { line_.ContextMenu(place.x(), place.y()); });
}

void TimeLineWidget::keyPressEvent(QKeyEvent* event) {
    ControlHost::keyPressEvent(event);
    if (event->isAccepted() || !Enabled()) return;
    Do("KeyCommand", [&] { event->setAccepted(line_.KeyCommand(VirtualKeyOf(event->key()))); });
}

// --- Saving ---

QByteArray TimeLineWidget::SaveProperties() const {
    return Ask("SaveProperties", QByteArray(), [&] {
        PropertyBag bag;
        line_.WriteProperties(bag);
        return SavedText(bag);
    });
}

bool TimeLineWidget::RestoreProperties(const QByteArray& text) {
    return Ask("RestoreProperties", false, [&] {
        Restart(FromSavedText(text));
        return true;
    });
}

// --- Sounds and sheet ---

void TimeLineWidget::TellChangesOf(ClsSon* sounds, ScopedConnection& heard) {
    heard = {};
    if (sounds != nullptr) heard = sounds->Events.csRepaint.connect([this] { AccessibleTimeLine::TellSounds(*this); });
}

TimeLineSounds TimeLineWidget::Musiques() const {
    return TimeLineSounds(line_.Musiques());
}

void TimeLineWidget::SetMusiques(std::shared_ptr<ClsSon> sounds) {
    Do("SetMusiques", [&] { line_.SetMusiques(std::move(sounds)); });
    TellChangesOf(line_.Musiques().get(), musicsHeard_);
    AccessibleTimeLine::TellSounds(*this);
}

TimeLineSounds TimeLineWidget::Comments() const {
    return TimeLineSounds(line_.Comments());
}

void TimeLineWidget::SetComments(std::shared_ptr<ClsSon> sounds) {
    Do("SetComments", [&] { line_.SetComments(std::move(sounds)); });
    TellChangesOf(line_.Comments().get(), commentsHeard_);
    AccessibleTimeLine::TellSounds(*this);
}

void TimeLineWidget::AttachVorlane(VorlaneWidget* sheet) {
    disconnect(sheetEnds_);
    sheetHeard_.clear();
    line_.AttachVorlane(sheet == nullptr ? nullptr : &sheet->sheet());
    if (sheet == nullptr) return;
    sheetEnds_ = connect(sheet, &QObject::destroyed, this, [this] { AttachVorlane(nullptr); });
    TellChangesOf(sheet->sheet().Events);
}

// Heard behind the time line's own handlers: the sounds have their new times by then.
void TimeLineWidget::TellChangesOf(VorlaneEvents& events) {
    const auto tell = [this](auto&&...) { AccessibleTimeLine::TellSounds(*this); };
    sheetHeard_.emplace_back(events.AfterDropAdd.connect(tell));
    sheetHeard_.emplace_back(events.OLECompleteDrag.connect(tell));
    sheetHeard_.emplace_back(events.Sorted.connect(tell));
    sheetHeard_.emplace_back(events.TLRefresh.connect(tell));
}

void TimeLineWidget::Clear() {
    Do("Clear", [&] { line_.Clear(); });
}

bool TimeLineWidget::Redraw() const {
    return line_.Redraw();
}

void TimeLineWidget::SetRedraw(bool on) {
    Do("SetRedraw", [&] { line_.SetRedraw(on); });
    if (on) AccessibleTimeLine::TellSounds(*this);
}

int TimeLineWidget::SoundSeconds(const QString& file) const {
    return Ask("SoundSeconds", 0, [&] { return Trelmic6(Desktop().Roles()).SoundSeconds(ToText(file)); });
}

QString TimeLineWidget::SecondsToText(int seconds, bool withUnits) {
    return FromText(Trelmic6::SecondsToText(seconds, withUnits));
}

// --- Painting ---

void TimeLineWidget::Refresh() {
    Do("Refresh", [&] { line_.Refresh(); });
    AccessibleTimeLine::TellSounds(*this);
}

void TimeLineWidget::GradientTrace(const QColor& startColor, const QColor& endColor, int direction, bool inverse,
                                   double x, double y, double width, double height) {
    Do("GradientTrace", [&] {
        line_.GradientTrace(FromQColor(startColor), FromQColor(endColor), direction, inverse, static_cast<float>(x),
                            static_cast<float>(y), static_cast<float>(width), static_cast<float>(height));
    });
}

void TimeLineWidget::GradientColor(const QColor& startColor, const QColor& endColor, int direction) {
    Do("GradientColor", [&] { line_.GradientColor(FromQColor(startColor), FromQColor(endColor), direction); });
}

QColor TimeLineWidget::GradientColorMedian() const {
    return Ask("GradientColorMedian", QColor(),
               [&] { return ToQColor(line_.GradientColorMedian(), Desktop().screen); });
}

int TimeLineWidget::BorderWidth() const {
    return line_.BorderWidth();
}

QString TimeLineWidget::ToolTipAt(double x, double y) const {
    return Ask("ToolTipAt", QString(),
               [&] { return FromText(line_.ToolTipAt(static_cast<float>(x), static_cast<float>(y))); });
}

// --- Playback and recording ---

void TimeLineWidget::Lecture(int nbSeconde, int diapoValue) {
    Do("Lecture", [&] { line_.Lecture(nbSeconde, ToInt16(diapoValue)); });
}

void TimeLineWidget::LectureEnd() {
    Do("LectureEnd", [&] { line_.LectureEnd(); });
}

void TimeLineWidget::Record(int nbSeconde, int diapoValue) {
    Do("Record", [&] { line_.Record(nbSeconde, ToInt16(diapoValue)); });
}

void TimeLineWidget::RecordEnd() {
    Do("RecordEnd", [&] { line_.RecordEnd(); });
}

// --- Navigation ---

void TimeLineWidget::Menu(int quoi, int xPixels, int yPixels) {
    Do("Menu", [&] { line_.Menu(quoi, xPixels, yPixels); });
}

void TimeLineWidget::MnuCtx_ItemClic(int mnuItemID) {
    Do("MnuCtx_ItemClic", [&] { line_.MnuCtx_ItemClic(mnuItemID); });
}

TimeLineSound TimeLineWidget::NextSound(int fromDiapoKey, int quoi) {
    return FromSon(line_.NextSound(fromDiapoKey, quoi));
}

TimeLineSound TimeLineWidget::PreviousSound(int fromDiapoKey, int quoi, bool setStart) {
    return FromSon(line_.PreviousSound(fromDiapoKey, quoi, setStart));
}

TimeLineSound TimeLineWidget::GetMusicAt(double diapoX) {
    return FromSon(line_.GetMusicAt(static_cast<float>(diapoX)));
}

TimeLineSound TimeLineWidget::GetCommentAt(double diapoX) {
    return FromSon(line_.GetCommentAt(static_cast<float>(diapoX)));
}

}  // namespace vorlane
