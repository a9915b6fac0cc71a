// The sounds of a show, with a way back and in its file.
#include "editor/showfile.h"
#include "tests/editor/stripfixture.h"

namespace vorlane::editor {
namespace {

class StripSoundsTest : public StripFixture {};

TEST_F(StripSoundsTest, AMusicIsAddedToTheCurrentSlideAndTakenBack) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    window_->navigator().setCurrent(2);
    EXPECT_FALSE(Action("Retirer la musique").isEnabled());
    window_->soundMenu().addFiles(SoundKind::Music, {Sound("m.wav", 8), pictures_.Write("notes.txt", "x")});
    EXPECT_EQ(Musics(), "c:m");
    EXPECT_EQ(Status(), QStringLiteral("1 musique ajoutée"));
    EXPECT_EQ(TheStrip().Musiques().ItemFromPos(1)->Duree, 8);
    EXPECT_TRUE(Action("Retirer la musique").isEnabled());
    Undo();
    EXPECT_EQ(Musics(), "");
    EXPECT_FALSE(Action("Retirer la musique").isEnabled());
    window_->slides().redo();
    EXPECT_EQ(Musics(), "c:m");
    Action("Retirer la musique").trigger();
    EXPECT_EQ(Musics(), "");
    EXPECT_EQ(Status(), QStringLiteral("Musique retirée"));
}

TEST_F(StripSoundsTest, SeveralSoundsFollowEachOther) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    const QStringList files{Sound("m.wav", 11), Sound("n.wav", 5), Sound("o.wav", 70), Sound("p.wav", 1)};
    window_->soundMenu().addFiles(SoundKind::Music, files);
    EXPECT_EQ(Musics(), "a:m d:n e:o");
    EXPECT_EQ(Status(), QStringLiteral("3 musiques ajoutées\u00A0; 1 de trop pour les diapositives"));
    window_->soundMenu().addFiles(SoundKind::Music, {files[1]});
    EXPECT_EQ(Musics(), "a:n d:n e:o") << "in place of what was there";
    Undo();
    EXPECT_EQ(Musics(), "a:m d:n e:o");
}

TEST_F(StripSoundsTest, SoundsThatAreAddedToAShowAtWorkAreRefusedWithTheReason) {
    ASSERT_TRUE(OpenPictures("ab"));
    ASSERT_TRUE(window_->slides().beginMove());
    window_->soundMenu().addFiles(SoundKind::Music, {Sound("m.wav", 2)});
    EXPECT_EQ(Status(), "La planche est occupée");
    window_->soundMenu().addFiles(SoundKind::Music, {pictures_.Write("notes.txt", "x")});
    EXPECT_EQ(Status(), "Aucun son à ajouter");
    window_->slides().endMove();
    EXPECT_EQ(Musics(), "");
}

TEST_F(StripSoundsTest, AMusicRepeatsUntilTheNext) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    window_->soundMenu().addFiles(SoundKind::Music, {Sound("m.wav", 2)});
    window_->navigator().setCurrent(0);
    Action("Répéter la musique").trigger();
    EXPECT_TRUE(TheStrip().Musiques().ItemFromPos(1)->Repetition);
    EXPECT_TRUE(Action("Répéter la musique").isChecked());
    window_->navigator().setCurrent(1);
    EXPECT_FALSE(Action("Répéter la musique").isEnabled());
    Undo();
    EXPECT_FALSE(TheStrip().Musiques().ItemFromPos(1)->Repetition);
}

TEST_F(StripSoundsTest, ACommentRepeatsUntilTheNext) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 0);
    window_->navigator().setCurrent(0);
    EXPECT_FALSE(Action("Répéter la musique").isEnabled());
    QAction& repeat = Action("Répéter le commentaire");
    EXPECT_FALSE(repeat.isChecked());
    repeat.trigger();
    EXPECT_TRUE(TheStrip().Comments().ItemFromPos(1)->Repetition);
    EXPECT_TRUE(repeat.isChecked());
    repeat.trigger();
    EXPECT_FALSE(TheStrip().Comments().ItemFromPos(1)->Repetition);
    window_->navigator().setCurrent(1);
    EXPECT_FALSE(repeat.isEnabled());
    Undo();
    EXPECT_TRUE(TheStrip().Comments().ItemFromPos(1)->Repetition);
}

TEST_F(StripSoundsTest, SoundsGoWithTheirSlidesAndComeBackWithThem) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    Sounds().add(SoundKind::Music, {Sound("m.wav", 2)}, 1);
    Sounds().add(SoundKind::Music, {Sound("n.wav", 2)}, 4);
    window_->navigator().setCurrent(1);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Letters(), "acdef");
    EXPECT_EQ(Musics(), "e:n");
    Undo();
    EXPECT_EQ(Letters(), "abcdef");
    EXPECT_EQ(Musics(), "b:m e:n");
    window_->navigator().setCurrent(4);
    window_->slides().moveSelected(0);
    EXPECT_EQ(Letters(), "eabcdf");
    EXPECT_EQ(Musics(), "e:n b:m");
    window_->slides().sort({SortBy::Name, true});
    EXPECT_EQ(Musics(), "e:n b:m");
    Undo();
    Undo();
    EXPECT_EQ(Musics(), "b:m e:n");
}

TEST_F(StripSoundsTest, SoundsAreToldInTheOrderOfTheirSlides) {
    ASSERT_TRUE(OpenPictures("abcd"));
    const QString file = Sound("m.wav", 2);
    const TimeLineSound sound{0, window_->sheet().Key(3), file, true, 2, 10, 20, 30, false};
    Sounds().begin({{SoundKind::Music, 3, file, true, false, 20, 10, 30}});
    Sounds().add(SoundKind::Music, {file}, 1);
    ASSERT_EQ(Sounds().all(SoundKind::Music).size(), 2U);
    EXPECT_EQ(Sounds().all(SoundKind::Music).at(1), sound);
    EXPECT_EQ(*TheStrip().Musiques().Item(sound.DiapoKey), sound);
    EXPECT_EQ(Sounds().find(SoundKind::Comment, sound.DiapoKey), std::nullopt);
    EXPECT_FALSE(Sounds().remove(SoundKind::Comment, 3));
    EXPECT_FALSE(Sounds().setRepeated(SoundKind::Music, 3, true)) << "it does already";
    EXPECT_EQ(Sounds().add(SoundKind::Music, {file}, -1), 0);
}

TEST_F(StripSoundsTest, AShowsFileHoldsItsSoundsAndItsTime) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Sounds().add(SoundKind::Music, {Sound("m.wav", 2)}, 1);
    Sounds().setRepeated(SoundKind::Music, 1, true);
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 4)}, 3);
    EXPECT_TRUE(window_->isWindowModified());
    TheStrip().SetExpositionTime(7);
    const QString path = config_.filePath("a.vorlane");
    ASSERT_EQ(SaveShow(path, {{}, {SortBy::Hand, false}}), "");
    ASSERT_TRUE(window_->openShow(path) && Settle());
    EXPECT_EQ(Musics(), "");

    const std::vector<SavedSound> sounds{{SoundKind::Music, 1, Sound("m.wav", 2), true},
                                         {SoundKind::Comment, 3, Sound("c.wav", 4), false, false, 90, 20, 80}};
    SavedShow show{{}, {SortBy::Hand, false}, 3, sounds};
    for (const char* name : {"d.jpg", "c.jpg", "b.jpg", "a.jpg"}) show.pictures.push_back(pictures_.Path(name));
    ASSERT_EQ(SaveShow(path, show), "");
    ASSERT_TRUE(window_->openShow(path) && Settle());
    EXPECT_EQ(Musics(), "c:m");
    EXPECT_EQ(Told(SoundKind::Comment), "a:c");
    EXPECT_TRUE(TheStrip().Musiques().ItemFromPos(1)->Repetition);
    EXPECT_EQ(Sounds().all(SoundKind::Comment).at(0).Duree, 4);
    EXPECT_EQ(TheStrip().ExpositionTime(), 3);
    EXPECT_FALSE(window_->isWindowModified());
    ASSERT_TRUE(window_->save());
    EXPECT_EQ(LoadShow(path).show, show);

    TheStrip().SetExpositionTime(6);
    EXPECT_TRUE(window_->isWindowModified());
    Sounds().remove(SoundKind::Music, 1);
    ASSERT_TRUE(window_->save());
    EXPECT_FALSE(window_->isWindowModified());
    EXPECT_EQ(LoadShow(path).show->exposure, 6);
    EXPECT_EQ(LoadShow(path).show->sounds, std::vector<SavedSound>{sounds[1]}) << "the boost is kept, too";
}

TEST_F(StripSoundsTest, SoundsWithoutAFileAreToldAndStayInTheShow) {
    const QString path = config_.filePath("a.vorlane");
    SavedShow show{{pictures_.WritePicture("a.jpg"), pictures_.WritePicture("b.jpg")}, {SortBy::Hand, false}};
    show.sounds = {{SoundKind::Music, 0, pictures_.Path("gone.wav")},
                   {SoundKind::Music, 1, Sound("m.wav", 2)},
                   {SoundKind::Comment, 1, pictures_.Path("lost.wav")}};
    ASSERT_EQ(SaveShow(path, show), "");
    ASSERT_TRUE(window_->openShow(path) && Settle());
    EXPECT_EQ(Status(), "2 sons introuvables");
    EXPECT_EQ(Musics(), "b:m");
    ASSERT_TRUE(window_->save());
    EXPECT_EQ(LoadShow(path).show, show);

    show.pictures[0] = pictures_.Path("none.jpg");
    show.sounds.pop_back();
    ASSERT_EQ(SaveShow(path, show), "");
    ASSERT_TRUE(window_->openShow(path) && Settle());
    EXPECT_EQ(Status(), QStringLiteral("1 image introuvable\u00A0; 1 son introuvable"));
}

TEST_F(StripSoundsTest, AnotherFolderBeginsWithoutSounds) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Sounds().add(SoundKind::Music, {Sound("m.wav", 2)}, 1);
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(Musics(), "");
    EXPECT_TRUE(Sounds().all(SoundKind::Music).empty());
}

}  // namespace
}  // namespace vorlane::editor
