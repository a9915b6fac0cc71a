#include "widgets/accessibletimeline.h"

#include "timeline/etimeline.h"
#include "widgets/accessiblesound.h"
#include "widgets/timelinewidget.h"

#include <algorithm>

#include <QCoreApplication>

namespace vorlane {

namespace {

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<TimeLineWidget*>(object);
    return widget == nullptr ? nullptr : new AccessibleTimeLine(*widget);
}

}  // namespace

AccessibleTimeLine::AccessibleTimeLine(TimeLineWidget& widget) : QAccessibleWidget(&widget, QAccessible::List) {}

AccessibleTimeLine::~AccessibleTimeLine() {
    for (const auto& [sound, id] : sounds_) QAccessible::deleteAccessibleInterface(id);
}

void AccessibleTimeLine::Install() {
    QAccessible::removeFactory(MakeInterface);
    QAccessible::installFactory(MakeInterface);
}

void AccessibleTimeLine::TellSounds(TimeLineWidget& widget) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(&widget, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

TimeLineWidget& AccessibleTimeLine::Widget() const {
    return *static_cast<TimeLineWidget*>(object());
}

QString AccessibleTimeLine::text(QAccessible::Text kind) const {
    const QString told = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || !told.isEmpty()) return told;
    return QCoreApplication::translate("vorlane::AccessibleTimeLine", "Ligne de temps");
}

// --- Children ---

int AccessibleTimeLine::childCount() const {
    return Widget().Musiques().Count() + Widget().Comments().Count();
}

QAccessibleInterface* AccessibleTimeLine::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    const int musics = Widget().Musiques().Count();
    const int type = index < musics ? kMusic : kComment;
    const auto sound = type == kMusic ? Widget().Musiques().ItemFromPos(index + 1)
                                      : Widget().Comments().ItemFromPos(index - musics + 1);
    return SoundOf(type, sound->DiapoKey);
}

QAccessibleInterface* AccessibleTimeLine::SoundOf(int type, int diapoKey) const {
    const std::pair<int, int> name(type, diapoKey);
    const auto known = sounds_.find(name);
    if (known != sounds_.end()) return QAccessible::accessibleInterface(known->second);
    if (sounds_.size() >= sweepAt_) Sweep();
    auto* sound = new AccessibleSound(Widget(), type, diapoKey);
    sounds_[name] = QAccessible::registerAccessibleInterface(sound);
    return sound;
}

void AccessibleTimeLine::Sweep() const {
    std::erase_if(sounds_, [](const auto& known) {
        const QAccessibleInterface* sound = QAccessible::accessibleInterface(known.second);
        const bool gone = sound == nullptr || !sound->isValid();
        if (gone) QAccessible::deleteAccessibleInterface(known.second);
        return gone;
    });
    sweepAt_ = std::max(kFewSounds, 2 * sounds_.size());
}

QAccessibleInterface* AccessibleTimeLine::childAt(int x, int y) const {
    const eTimeLine& line = Widget().timeline();
    for (const int type : {kMusic, kComment}) {
        for (const tBarreSon& bar : type == kMusic ? line.MusicBars() : line.CommentBars()) {
            QAccessibleInterface* sound = SoundOf(type, bar.Son.DiapoKey);
            if (sound->rect().contains(x, y)) return sound;
        }
    }
    return nullptr;
}

int AccessibleTimeLine::indexOfChild(const QAccessibleInterface* child) const {
    const auto* sound = dynamic_cast<const AccessibleSound*>(child);
    if (sound == nullptr || !sound->isValid() || SoundOf(sound->Type(), sound->DiapoKey()) != child) return -1;
    const eTimeLine& line = Widget().timeline();
    if (sound->Type() == kMusic) return line.Musiques()->CollectItem()->FindDiapoKey(sound->DiapoKey()) - 1;
    const int comment = line.Comments()->CollectItem()->FindDiapoKey(sound->DiapoKey()) - 1;
    return line.Musiques()->Count() + comment;
}

}  // namespace vorlane
