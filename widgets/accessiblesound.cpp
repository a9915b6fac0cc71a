#include "widgets/accessiblesound.h"

#include "platform/failure.h"
#include "platform/trelmic6.h"
#include "timeline/etimeline.h"
#include "widgets/conversions.h"
#include "widgets/timelinewidget.h"

#include <limits>

#include <QFileInfo>

namespace vorlane {

namespace {

// What it is and for how long it sounds.
QString Description(const TimeLineSound& sound, int type) {
    const QString length = FromText(Trelmic6::SecondsToText(sound.Duree, true));
    const QString kind = type == kMusic ? AccessibleSound::tr("Musique") : AccessibleSound::tr("Commentaire");
    return (sound.Repetition ? AccessibleSound::tr("%1, %2, en boucle") : AccessibleSound::tr("%1, %2"))
        .arg(kind, length);
}

}  // namespace

AccessibleSound::AccessibleSound(TimeLineWidget& widget, int type, int diapoKey)
    : widget_(&widget), type_(type), diapoKey_(diapoKey) {}

std::optional<TimeLineSound> AccessibleSound::Sound() const {
    if (!widget_) return std::nullopt;
    return (type_ == kMusic ? widget_->Musiques() : widget_->Comments()).Item(diapoKey_);
}

bool AccessibleSound::isValid() const {
    return Sound().has_value();
}

bool AccessibleSound::Answers() const {
    return isValid() && widget_->isEnabled() && widget_->Enabled();
}

QAccessible::State AccessibleSound::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid) return state;
    state.disabled = !Answers();
    state.offscreen = !widget_->isVisible() || rect().isEmpty();
    return state;
}

QRect AccessibleSound::rect() const {
    if (!isValid()) return {};
    const eTimeLine& line = widget_->timeline();
    const float top = type_ == kMusic ? line.BarTopMusic() : line.BarTopComment();
    QRectF place;
    for (const tBarreSon& bar : type_ == kMusic ? line.MusicBars() : line.CommentBars()) {
        if (bar.Son.DiapoKey == diapoKey_) place |= QRectF(bar.x, top, bar.W, line.BarreHeight());
    }
    return place.isEmpty() ? QRect() : place.toAlignedRect().translated(widget_->mapToGlobal(QPoint()));
}

// The name of the file and the time at which it starts, where its slide is on the sheet and the time can be told.
QString AccessibleSound::Name(const TimeLineSound& sound) const {
    const QString file = QFileInfo(sound.Nom).fileName();
    const eTimeLine& line = widget_->timeline();
    if (line.PositionOf(diapoKey_) < 0) return file;
    QString name = file;
    Attempt(
        [&] { name = tr("%1, à %2").arg(file, FromText(Trelmic6::SecondsToText(line.StartOf(diapoKey_), false))); });
    return name;
}

QString AccessibleSound::text(QAccessible::Text kind) const {
    const auto sound = Sound();
    if (!sound) return {};
    switch (kind) {
        case QAccessible::Name:
            return Name(*sound);
        case QAccessible::Description:
            return Description(*sound, type_);
        default:
            return {};
    }
}

QAccessibleInterface* AccessibleSound::parent() const {
    return widget_ ? QAccessible::queryAccessibleInterface(widget_) : nullptr;
}

QStringList AccessibleSound::actionNames() const {
    return isValid() ? QStringList(pressAction()) : QStringList();
}

void AccessibleSound::doAction(const QString& name) {
    const bool known = diapoKey_ >= 0 && diapoKey_ < std::numeric_limits<int32_t>::max();  // others would be commands
    if (Answers() && known && name == pressAction()) widget_->MnuCtx_ItemClic(diapoKey_ + 1);
}

}  // namespace vorlane
