#include "editor/savedshow.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace vorlane::editor;

namespace {

const QDir kBase(QStringLiteral("/shows/2024"));

SavedShow Full() {
    SavedShow show;
    show.pictures = {"/shows/2024/a.jpg", "/shows/2024/été/b é.jpg", "/pictures/c.jpg", "/shows/2024/a.jpg"};
    show.order = {SortBy::Modified, true};
    show.exposure = 7;
    show.sounds = {{SoundKind::Music, 0, "/shows/2024/song.ogg", true, false, 90, 20, 80},
                   {SoundKind::Comment, 0, "/voices/one.wav", false, true, 100, 25, 100}};
    show.origin = "/shows/first.vorlane";
    return show;
}

QString Failure(const QByteArray& text) {
    const ShowReading reading = ReadShow(text, kBase);
    EXPECT_FALSE(reading.show.has_value());
    return reading.failure;
}

// A whole text with this member in place of its own.
QByteArray With(const char* member, const QJsonValue& value) {
    QJsonObject members = QJsonDocument::fromJson(ShowText(Full(), kBase)).object();
    members[QLatin1String(member)] = value;
    return QJsonDocument(members).toJson();
}

QString DamagedAt(const char* place) {
    return QString::fromUtf8("le fichier est endommagé, à l'entrée «\u00a0%1\u00a0»").arg(place);
}

}  // namespace

TEST(SavedShow, ComesBackAsItWasWritten) {
    const ShowReading reading = ReadShow(ShowText(Full(), kBase), kBase);
    ASSERT_TRUE(reading.show) << reading.failure.toStdString();
    EXPECT_EQ(*reading.show, Full());
}

TEST(SavedShow, MovesTogetherWithItsPictures) {
    const ShowReading reading = ReadShow(ShowText(Full(), kBase), QDir("/backup/2025"));
    ASSERT_TRUE(reading.show);
    EXPECT_EQ(reading.show->pictures, QStringList({"/backup/2025/a.jpg", QString::fromUtf8("/backup/2025/été/b é.jpg"),
                                                   "/pictures/c.jpg", "/backup/2025/a.jpg"}));
    EXPECT_EQ(reading.show->sounds.front().path, "/backup/2025/song.ogg");
}

TEST(SavedShow, EveryOrderHasAName) {
    for (const SortBy by :
         {SortBy::Hand, SortBy::Name, SortBy::Modified, SortBy::Created, SortBy::Length, SortBy::Extension}) {
        SavedShow show;
        show.order = {by, false};
        const ShowReading reading = ReadShow(ShowText(show, kBase), kBase);
        ASSERT_TRUE(reading.show);
        EXPECT_EQ(reading.show->order, show.order);
    }
}

TEST(SavedShow, WhatIsMissingIsAsAtFirst) {
    const ShowReading reading = ReadShow(R"({"format": "vorlane-show", "version": 1, "later": {"a": []}})", kBase);
    ASSERT_TRUE(reading.show) << reading.failure.toStdString();
    EXPECT_EQ(*reading.show, SavedShow{});
    const ShowReading sound = ReadShow(R"({"format": "vorlane-show", "version": 1, "pictures": ["a.jpg"],
        "sounds": [{"kind": "comment", "picture": 0, "file": "b.wav"}]})",
                                       kBase);
    ASSERT_TRUE(sound.show) << sound.failure.toStdString();
    EXPECT_EQ(sound.show->sounds, std::vector<SavedSound>({{SoundKind::Comment, 0, "/shows/2024/b.wav"}}));
}

TEST(SavedShow, TextThatIsNotJsonIsToldByItsPlace) {
    EXPECT_EQ(Failure(""), QString::fromUtf8("le fichier est endommagé à l'octet 0"));
    const QByteArray cut = ShowText(Full(), kBase).left(100);
    EXPECT_TRUE(Failure(cut).startsWith(QString::fromUtf8("le fichier est endommagé à l'octet ")));
    EXPECT_TRUE(Failure(QByteArray(5000, '[')).contains("octet"));
}

TEST(SavedShow, AnotherKindOfFileIsNoShow) {
    for (const QByteArray text : {"[]", "{}", R"({"format": "other", "version": 1})"})
        EXPECT_EQ(Failure(text), "ce n'est pas un diaporama de Vorlane") << text.toStdString();
}

TEST(SavedShow, ALaterVersionIsToldAsSuch) {
    EXPECT_EQ(Failure(With("version", kShowVersion + 1)),
              QString::fromUtf8("il vient d'une version plus récente de Vorlane"));
}

TEST(SavedShow, EntriesOfAnotherKindAreDamageToldByTheirPlace) {
    const QJsonObject sound{{"kind", "music"}, {"picture", 0}, {"file", "a.wav"}};
    const auto soundWith = [sound](const char* member, const QJsonValue& value) {
        QJsonObject changed = sound;
        changed[QLatin1String(member)] = value;
        return With("sounds", QJsonArray{sound, changed});
    };
    const struct {
        QByteArray text;
        const char* place;
    } cases[] = {
        {With("version", QJsonValue::Undefined), "version"},
        {With("version", 0), "version"},
        {With("version", "1"), "version"},
        {With("version", 1.5), "version"},
        {With("pictures", QJsonObject{}), "pictures"},
        {With("pictures", QJsonArray{"a.jpg", 7}), "pictures[1]"},
        {With("pictures", QJsonArray{""}), "pictures[0]"},
        {With("pictures", QJsonArray{QString(QLatin1String("a\0b", 3))}), "pictures[0]"},
        {With("sort", 3), "sort"},
        {With("sort", QJsonObject{{"by", "colour"}}), "sort.by"},
        {With("sort", QJsonObject{{"by", "name"}, {"descending", 1}}), "sort.descending"},
        {With("exposure", 0), "exposure"},
        {With("exposure", 2.5), "exposure"},
        {With("exposure", 1e300), "exposure"},
        {With("exposure", "5"), "exposure"},
        {With("sounds", "none"), "sounds"},
        {With("sounds", QJsonArray{1}), "sounds[0]"},
        {soundWith("kind", "noise"), "sounds[1].kind"},
        {soundWith("picture", 4), "sounds[1].picture"},
        {soundWith("picture", -1), "sounds[1].picture"},
        {soundWith("picture", QJsonValue::Undefined), "sounds[1].picture"},
        {soundWith("file", QJsonValue::Undefined), "sounds[1].file"},
        {soundWith("repeats", "yes"), "sounds[1].repeats"},
        {soundWith("volume", 101), "sounds[1].volume"},
        {soundWith("volume", 1e18), "sounds[1].volume"},
        {soundWith("volumeUnderComment", -1), "sounds[1].volumeUnderComment"},
        {soundWith("volume", 50), "sounds[1]"},  // a second one of the kind with the same picture
        {With("origin", 1), "origin"},
    };
    for (const auto& [text, place] : cases) EXPECT_EQ(Failure(text), DamagedAt(place));
}
