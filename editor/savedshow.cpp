#include "editor/savedshow.h"

#include <array>
#include <limits>
#include <set>
#include <utility>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vorlane::editor {

namespace {

constexpr QLatin1String kFormat("vorlane-show");

QString Tr(const char* text) {
    return QCoreApplication::translate("SavedShow", text);
}

// --- Names of values ---

struct OrderName {
    SortBy by;
    QLatin1String name;
};

constexpr std::array kOrders{
    OrderName{SortBy::Hand, QLatin1String("hand")},         OrderName{SortBy::Name, QLatin1String("name")},
    OrderName{SortBy::Modified, QLatin1String("modified")}, OrderName{SortBy::Created, QLatin1String("created")},
    OrderName{SortBy::Length, QLatin1String("length")},     OrderName{SortBy::Extension, QLatin1String("extension")}};

QString NameOf(SortBy by) {
    for (const OrderName& order : kOrders) {
        if (order.by == by) return order.name;
    }
    return kOrders.front().name;
}

QString NameOf(SoundKind kind) {
    return kind == SoundKind::Music ? QStringLiteral("music") : QStringLiteral("comment");
}

// --- Writing ---

QJsonObject ObjectOf(const SavedSound& sound, const QDir& base) {
    return {{QStringLiteral("kind"), NameOf(sound.kind)},
            {QStringLiteral("picture"), sound.picture},
            {QStringLiteral("file"), base.relativeFilePath(sound.path)},
            {QStringLiteral("repeats"), sound.repeats},
            {QStringLiteral("boosted"), sound.boosted},
            {QStringLiteral("volume"), sound.volume},
            {QStringLiteral("volumeUnderComment"), sound.volumeUnderComment},
            {QStringLiteral("volumeOfComment"), sound.volumeOfComment}};
}

// --- Reading ---

// What is wrong with a text, told by the place in it.
struct Damage {
    QString place;
};

// The members of one object. A member of the wrong kind, or out of its range, throws Damage.
class Members {
public:
    Members(const QJsonValue& value, QString place) : place_(std::move(place)) {
        if (!value.isObject()) throw Damage{place_};
        object_ = value.toObject();
    }

    bool Has(QLatin1String name) const { return object_.contains(name); }
    QString Text(QLatin1String name, const QString& usual = {}) const {
        const QJsonValue value = object_.value(name);
        if (value.isUndefined()) return usual;
        if (!value.isString()) throw Damage{PlaceOf(name)};
        return value.toString();
    }
    bool Flag(QLatin1String name, bool usual) const {
        const QJsonValue value = object_.value(name);
        if (value.isUndefined()) return usual;
        if (!value.isBool()) throw Damage{PlaceOf(name)};
        return value.toBool();
    }
    int Whole(QLatin1String name, int usual, int least, int most) const {
        const QJsonValue value = object_.value(name);
        if (value.isUndefined()) return usual;
        const qint64 number = value.toInteger(qint64{least} - 1);
        if (number < least || number > most) throw Damage{PlaceOf(name)};
        return static_cast<int>(number);
    }
    QJsonArray Array(QLatin1String name) const {
        const QJsonValue value = object_.value(name);
        if (value.isUndefined()) return {};
        if (!value.isArray()) throw Damage{PlaceOf(name)};
        return value.toArray();
    }
    Members Object(QLatin1String name) const { return {object_.value(name), PlaceOf(name)}; }
    QString PlaceOf(QLatin1String name) const { return place_.isEmpty() ? QString(name) : place_ + u'.' + name; }

private:
    QString place_;
    QJsonObject object_;
};

QString PlaceOf(QLatin1String array, qsizetype index) {
    return QStringLiteral("%1[%2]").arg(array).arg(index);
}

// An absolute, clean path of a file; what can't name one is damage. A name that begins with a colon is one of the
// folder, though Qt would take it for a resource of the program.
QString FileAt(const QString& text, const QDir& base, const QString& place) {
    if (text.isEmpty() || text.contains(QChar::Null)) throw Damage{place};
    const QString path = text.startsWith(u':') ? QStringLiteral("./") + text : text;
    return QDir::cleanPath(base.absoluteFilePath(path));
}

SortOrder OrderOf(const Members& members) {
    const QLatin1String by("by");
    const QString name = members.Text(by, kOrders.front().name);
    for (const OrderName& order : kOrders) {
        if (order.name == name) return {order.by, members.Flag(QLatin1String("descending"), false)};
    }
    throw Damage{members.PlaceOf(by)};
}

SoundKind KindOf(const Members& members) {
    const QLatin1String kind("kind");
    const QString name = members.Text(kind);
    if (name == NameOf(SoundKind::Music)) return SoundKind::Music;
    if (name == NameOf(SoundKind::Comment)) return SoundKind::Comment;
    throw Damage{members.PlaceOf(kind)};
}

SavedSound SoundOf(const Members& members, const QDir& base, int pictures) {
    const QLatin1String file("file");
    const QLatin1String picture("picture");
    SavedSound sound;
    sound.kind = KindOf(members);
    sound.picture = members.Whole(picture, -1, 0, pictures - 1);
    if (sound.picture < 0) throw Damage{members.PlaceOf(picture)};
    sound.path = FileAt(members.Text(file), base, members.PlaceOf(file));
    sound.repeats = members.Flag(QLatin1String("repeats"), sound.repeats);
    sound.boosted = members.Flag(QLatin1String("boosted"), sound.boosted);
    const auto volume = [&](QLatin1String name, int usual) { return members.Whole(name, usual, 0, 100); };
    sound.volume = volume(QLatin1String("volume"), sound.volume);
    sound.volumeUnderComment = volume(QLatin1String("volumeUnderComment"), sound.volumeUnderComment);
    sound.volumeOfComment = volume(QLatin1String("volumeOfComment"), sound.volumeOfComment);
    return sound;
}

std::vector<SavedSound> SoundsOf(const QJsonArray& entries, const QDir& base, int pictures) {
    std::vector<SavedSound> sounds;
    std::set<std::pair<SoundKind, int>> taken;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QString place = PlaceOf(QLatin1String("sounds"), i);
        const SavedSound sound = SoundOf(Members(entries[i], place), base, pictures);
        if (!taken.insert({sound.kind, sound.picture}).second) throw Damage{place};
        sounds.push_back(sound);
    }
    return sounds;
}

SavedShow ShowOf(const Members& members, const QDir& base) {
    const QLatin1String pictures("pictures");
    const QLatin1String sort("sort");
    const QLatin1String origin("origin");
    SavedShow show;
    const QJsonArray entries = members.Array(pictures);
    show.pictures.reserve(entries.size());
    for (qsizetype i = 0; i < entries.size(); ++i)
        show.pictures.push_back(FileAt(entries[i].toString(), base, PlaceOf(pictures, i)));
    if (members.Has(sort)) show.order = OrderOf(members.Object(sort));
    show.exposure = members.Whole(QLatin1String("exposure"), show.exposure, 1, kLongestExposition);
    show.sounds = SoundsOf(members.Array(QLatin1String("sounds")), base, static_cast<int>(show.pictures.size()));
    if (members.Has(origin)) show.origin = FileAt(members.Text(origin), base, origin);
    return show;
}

ShowReading Failed(const QString& why) {
    return {std::nullopt, why};
}

}  // namespace

QByteArray ShowText(const SavedShow& show, const QDir& base) {
    QJsonArray pictures;
    for (const QString& path : show.pictures) pictures.append(base.relativeFilePath(path));
    QJsonArray sounds;
    for (const SavedSound& sound : show.sounds) sounds.append(ObjectOf(sound, base));
    const QJsonObject sort{{QStringLiteral("by"), NameOf(show.order.by)},
                           {QStringLiteral("descending"), show.order.descending}};
    QJsonObject members{{QStringLiteral("format"), kFormat},    {QStringLiteral("version"), kShowVersion},
                        {QStringLiteral("sort"), sort},         {QStringLiteral("exposure"), show.exposure},
                        {QStringLiteral("pictures"), pictures}, {QStringLiteral("sounds"), sounds}};
    if (!show.origin.isEmpty()) members.insert(QStringLiteral("origin"), base.relativeFilePath(show.origin));
    return QJsonDocument(members).toJson();
}

ShowReading ReadShow(const QByteArray& text, const QDir& base) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (document.isNull())
        return Failed(Tr(QT_TRANSLATE_NOOP("SavedShow", "le fichier est endommagé à l'octet %1")).arg(error.offset));
    try {
        const Members members(document.object(), {});
        if (members.Text(QLatin1String("format")) != kFormat)
            return Failed(Tr(QT_TRANSLATE_NOOP("SavedShow", "ce n'est pas un diaporama de Vorlane")));
        const QLatin1String version("version");
        if (!members.Has(version)) throw Damage{version};
        if (members.Whole(version, 0, 1, std::numeric_limits<int>::max()) > kShowVersion)
            return Failed(Tr(QT_TRANSLATE_NOOP("SavedShow", "il vient d'une version plus récente de Vorlane")));
        return {ShowOf(members, base), {}};
    } catch (const Damage& damage) {
        return Failed(
            Tr(QT_TRANSLATE_NOOP("SavedShow", "le fichier est endommagé, à l'entrée « %1 »")).arg(damage.place));
    }
}

}  // namespace vorlane::editor
