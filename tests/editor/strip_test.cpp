// The time line under the sheet: in step with it, and its sounds with a way back.
#include "editor/strip.h"

#include "editor/navigator.h"
#include "editor/show.h"
#include "editor/showfile.h"
#include "editor/stripmenu.h"
#include "editor/stripsounds.h"
#include "editor/volumepanel.h"
#include "tests/editor/fakemicrophone.h"
#include "tests/editor/windowfixture.h"

#include <cerrno>

#include <QDir>
#include <QScrollBar>
#include <QSlider>
#include <QtEndian>

namespace vorlane::editor {
namespace {

class StripTest : public WindowFixture {
protected:
    StripTest() { window_->slides().setOrder({SortBy::Hand, false}); }

    // A silent wave file.
    QString Sound(const QString& name, int seconds) {
        constexpr quint32 kRate = 100;  // bytes a second
        const quint32 length = kRate * static_cast<quint32>(seconds);
        QByteArray wave("RIFF\0\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\0\0\0\0\0\0\0\0\1\0\x8\0data\0\0\0\0", 44);
        qToLittleEndian(kRate, wave.data() + 28);
        qToLittleEndian(length, wave.data() + 40);
        return pictures_.Write(name, wave + QByteArray(static_cast<int>(length), '\x80'));
    }
    QAction& Beginning(const QString& text) {
        for (QAction* action : window_->findChildren<QAction*>()) {
            if (QString(action->text()).remove('&').startsWith(text)) return *action;
        }
        throw std::out_of_range(text.toStdString());
    }
    Strip& TheStrip() { return window_->strip(); }
    StripSounds& Sounds() { return window_->sounds(); }
    // The letters of the slides with sounds of a kind, as the strip has them, each with its sound's name.
    QString Told(SoundKind kind) {
        QString told;
        TimeLineSounds sounds = kind == SoundKind::Music ? TheStrip().Musiques() : TheStrip().Comments();
        for (int i = 1; i <= sounds.Count(); ++i) {
            const TimeLineSound sound = *sounds.ItemFromPos(i);
            const int item = window_->sheet().GetListIndexFromItemData(sound.DiapoKey);
            told += (told.isEmpty() ? "" : " ") + Letters().mid(item, 1) + ":" + QFileInfo(sound.Nom).baseName();
        }
        return told;
    }
    QString Musics() { return Told(SoundKind::Music); }
    void Undo() { window_->slides().undo(); }
    // Drops files on a widget; whether it took them.
    bool DropOnStrip(const QStringList& files, QPoint place) { return DropOn(TheStrip(), files, place); }
    static bool DropOn(QWidget& target, const QStringList& files, QPoint place) {
        QList<QUrl> urls;
        for (const QString& file : files) urls.push_back(QUrl::fromLocalFile(file));
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted()) return false;
        QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &move);
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        drop.setDropAction(move.dropAction());
        QCoreApplication::sendEvent(&target, &drop);
        return drop.isAccepted();
    }
    QAction& StartRecording() {
        window_->soundMenu().setMicrophone([this] {
            auto microphone = std::make_unique<test::FakeMicrophone>();
            microphone_ = microphone.get();
            return microphone;
        });
        QAction& record = Beginning("Enregistrer un commentaire");
        record.trigger();
        return record;
    }
    int MiddleOf(int item) const {
        const QRectF slide = window_->sheet().DiapoRect(item);
        return static_cast<int>(slide.center().x());
    }

    test::FakeMicrophone* microphone_ = nullptr;  // of the last recording
};

// --- In step ---

TEST_F(StripTest, InARowTheStripIsInStepWithScrollingAndSlideSize) {
    pictures_.WritePictures(60);
    ASSERT_TRUE(Open(Folder()));
    Action("Horizontal").trigger();
    ASSERT_TRUE(Settle());
    const auto& sheet = window_->sheet();
    const auto expectInStep = [&] {
        EXPECT_EQ(TheStrip().StartPoint(), sheet.Value(0));
        EXPECT_NEAR(TheStrip().MargeGauche() + TheStrip().BorderWidth(), sheet.DiapoRect(0).left(), 1);
        EXPECT_NEAR(TheStrip().DiapoWidth(), sheet.DiapoRect(1).left() - sheet.DiapoRect(0).left(), 0.01);
        EXPECT_EQ(TheStrip().Style(), ui::TimeMarks::etltFollowDiapo);
    };
    expectInStep();
    sheet.findChild<QScrollBar*>()->setValue(17);
    EXPECT_EQ(TheStrip().StartPoint(), 17);
    expectInStep();
    window_->status().setSlideWidth(320);
    ASSERT_TRUE(Settle());
    expectInStep();
    EXPECT_GT(TheStrip().DiapoWidth(), 320);
    EXPECT_EQ(TheStrip().itemAt(MiddleOf(1)), sheet.Value(1));
}

TEST_F(StripTest, InSeveralRowsTheStripShowsAllThatIsInSight) {
    pictures_.WritePictures(200);
    ASSERT_TRUE(Open(Folder()));
    const GridView view = ViewOf(window_->sheet());
    const int inSight = view.lineLength * view.lines;
    ASSERT_GT(view.lines, 1);
    EXPECT_EQ(TheStrip().Style(), ui::TimeMarks::etltFree);
    const double left = window_->sheet().DiapoRect(0).left();
    EXPECT_EQ(TheStrip().itemAt(left + 1), 0);
    EXPECT_EQ(TheStrip().itemAt(TheStrip().width() - left - 1), inSight - 1);
    window_->sheet().findChild<QScrollBar*>()->setValue(2 * view.lineLength);
    EXPECT_EQ(TheStrip().StartPoint(), 2 * view.lineLength);
    window_->resize(700, 600);
    ASSERT_TRUE(Settle());
    const GridView narrow = ViewOf(window_->sheet());
    EXPECT_EQ(TheStrip().itemAt(TheStrip().width() - window_->sheet().DiapoRect(0).left() - 1),
              2 * view.lineLength + narrow.lineLength * narrow.lines - 1);
}

TEST_F(StripTest, TheStatusLineTellsTheLengthOfTheShow) {
    EXPECT_EQ(window_->status().length(), "");
    ASSERT_TRUE(OpenPictures("abcdefghijklm"));
    EXPECT_EQ(window_->status().length(), QStringLiteral("Durée\u00A0: 1 min 05 s"));
    TheStrip().SetExpositionTime(4);
    EXPECT_EQ(window_->status().length(), QStringLiteral("Durée\u00A0: 52 s"));
    window_->navigator().setCurrent(0);
    window_->removeSelected();
    EXPECT_EQ(window_->status().length(), QStringLiteral("Durée\u00A0: 48 s"));
}

TEST_F(StripTest, TheStripIsHiddenWhereItIsNotWantedAndTheTimeOfSlidesIsKept) {
    ASSERT_TRUE(OpenPictures("abc"));
    EXPECT_TRUE(TheStrip().isVisible());
    Action("Afficher la ligne de temps").trigger();
    EXPECT_FALSE(TheStrip().isVisible());
    TheStrip().SetExpositionTime(9);
    window_->close();
    Make();
    EXPECT_EQ(TheStrip().ExpositionTime(), 9);
}

// --- Sounds ---

TEST_F(StripTest, AMusicIsAddedToTheCurrentSlideAndTakenBack) {
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

TEST_F(StripTest, SeveralSoundsFollowEachOther) {
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

TEST_F(StripTest, AMusicRepeatsUntilTheNext) {
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

TEST_F(StripTest, SoundsComeByDroppingThemOnTheStrip) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Action("Horizontal").trigger();
    ASSERT_TRUE(Settle());
    const QString music = Sound("m.wav", 3);
    const QString comment = Sound("c.wav", 3);
    EXPECT_TRUE(DropOnStrip({music, pictures_.Path("a.jpg")}, {MiddleOf(2), 10}));
    EXPECT_TRUE(DropOnStrip({comment}, {MiddleOf(1), TheStrip().height() - 10}));
    EXPECT_EQ(Musics(), "c:m");
    EXPECT_EQ(Told(SoundKind::Comment), "b:c");
    EXPECT_EQ(Status(), QStringLiteral("1 commentaire ajouté"));
    EXPECT_EQ(Letters(), "abcd");
}

TEST_F(StripTest, SoundsDroppedOnASlideAreItsMusicWithAWayBack) {
    ASSERT_TRUE(OpenPictures("abcdef"));
    const QPoint onC = window_->sheet().DiapoRect(2).center().toPoint();
    EXPECT_TRUE(DropOn(window_->sheet(), {Sound("m.wav", 11), Sound("n.wav", 3)}, onC));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Musics(), "c:m f:n");
    EXPECT_EQ(Status(), QStringLiteral("2 musiques ajoutées"));
    EXPECT_EQ(Letters(), "abcdef");
    Undo();
    EXPECT_EQ(Musics(), "");
    EXPECT_FALSE(window_->slides().undoStack().canUndo());
}

TEST_F(StripTest, PicturesAndSoundsThatAreDroppedTogetherGoWhereEachKindBelongs) {
    ASSERT_TRUE(OpenPictures("abcd"));
    const QRectF b = window_->sheet().DiapoRect(1);
    const QPoint onB(static_cast<int>(b.left() + b.width() * 0.8), static_cast<int>(b.center().y()));
    EXPECT_TRUE(DropOn(window_->sheet(), {pictures_.WritePicture("x.jpg"), Sound("m.wav", 3)}, onB));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "abxcd");
    EXPECT_EQ(Musics(), "b:m");
    Undo();
    EXPECT_EQ(Letters(), "abcd");
    EXPECT_EQ(Musics(), "b:m");
    Undo();
    EXPECT_EQ(Musics(), "");
}

TEST_F(StripTest, SoundsDroppedOffTheSlidesGoBehindTheMarkOrToTheCurrentSlide) {
    ASSERT_TRUE(OpenPictures("abcd"));
    window_->navigator().setCurrent(1);
    const QString file = Sound("m.wav", 3);
    const QRectF b = window_->sheet().DiapoRect(1);
    const double between = (b.right() + window_->sheet().DiapoRect(2).left()) / 2;
    EXPECT_TRUE(DropOn(window_->sheet(), {file}, {static_cast<int>(between), static_cast<int>(b.center().y())}));
    EXPECT_EQ(Musics(), "c:m");
    const QPoint farBelow(window_->sheet().width() / 2, window_->sheet().height() - 2);
    EXPECT_TRUE(DropOn(window_->sheet(), {file}, farBelow));
    EXPECT_EQ(Musics(), "c:m d:m") << "behind the last one there is none";
    Drop({QUrl::fromLocalFile(file)});
    EXPECT_EQ(Musics(), "b:m c:m d:m") << "beside the sheet";
}

TEST_F(StripTest, WithoutSlidesADroppedSoundHasNoPlace) {
    Drop({QUrl::fromLocalFile(Sound("m.wav", 3))});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Status(), QStringLiteral("Aucun son à ajouter"));
    EXPECT_EQ(Musics(), "");
}

TEST_F(StripTest, TheDropIsShownWhereItWouldGo) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Action("Horizontal").trigger();
    ASSERT_TRUE(Settle());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Sound("m.wav", 3))});
    const QImage before = TheStrip().grab().toImage();
    const QPoint place(MiddleOf(1), 10);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&TheStrip(), &enter);
    const QImage during = TheStrip().grab().toImage();
    EXPECT_NE(during.pixel(place.x(), 26), before.pixel(place.x(), 26));
    EXPECT_EQ(during.pixel(MiddleOf(2), 26), before.pixel(MiddleOf(2), 26));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&TheStrip(), &leave);
    EXPECT_EQ(TheStrip().grab().toImage(), before);
}

TEST_F(StripTest, SoundsGoWithTheirSlidesAndComeBackWithThem) {
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

TEST_F(StripTest, SoundsAreToldInTheOrderOfTheirSlides) {
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

TEST_F(StripTest, AShowsFileHoldsItsSoundsAndItsTime) {
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

// --- Volumes ---

TEST_F(StripTest, TheVolumesOfASlideAreSetWithAWayBack) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Sounds().add(SoundKind::Music, {Sound("m.wav", 2)}, 1);
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 1);
    window_->navigator().setCurrent(1);
    Beginning("Volumes").trigger();
    auto* panel = window_->findChild<VolumePanel*>();
    ASSERT_NE(panel, nullptr);
    const auto sliders = panel->findChildren<QSlider*>();
    ASSERT_EQ(sliders.size(), 3);
    EXPECT_EQ(sliders[0]->value(), 100);
    EXPECT_EQ(sliders[1]->value(), 25);
    EXPECT_EQ(sliders[2]->value(), 100);
    sliders[0]->setValue(80);
    sliders[1]->setValue(10);
    sliders[2]->setValue(60);
    panel->accept();
    const auto volumes = [this] {
        const TimeLineSound music = *TheStrip().Musiques().ItemFromPos(1);
        const TimeLineSound comment = *TheStrip().Comments().ItemFromPos(1);
        return QList<int>{music.VolNormal, music.VolPendantComment, comment.VolComment};
    };
    EXPECT_EQ(volumes(), QList<int>({80, 10, 60}));
    Undo();
    EXPECT_EQ(volumes(), QList<int>({100, 25, 100}));
}

TEST_F(StripTest, TheVolumesStayWithTheirSlideWhileTheListChanges) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Sounds().add(SoundKind::Comment, {Sound("b.wav", 2)}, 1);
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 2);
    const auto volumes = [this] {
        QStringList told;
        for (const TimeLineSound& sound : Sounds().all(SoundKind::Comment))
            told.push_back(QFileInfo(sound.Nom).baseName() + QString::number(sound.VolComment));
        return told.join(" ").toStdString();
    };
    const auto openPanel = [this](int slide) {
        window_->navigator().setCurrent(slide);
        Beginning("Volumes").trigger();
        return window_->findChild<VolumePanel*>();
    };
    VolumePanel* panel = openPanel(2);
    panel->findChild<QSlider*>()->setValue(60);
    window_->slides().sort({SortBy::Name, true});
    ASSERT_EQ(Letters(), "dcba");
    panel->accept();
    EXPECT_EQ(volumes(), "c60 b100");
    panel = openPanel(1);
    panel->findChild<QSlider*>()->setValue(30);
    window_->navigator().setCurrent(1);
    window_->removeSelected();
    ASSERT_EQ(Letters(), "dba");
    panel->accept();
    EXPECT_EQ(volumes(), "b100");
    Undo();
    EXPECT_EQ(volumes(), "c60 b100");
}

TEST_F(StripTest, AnotherShowClosesThePanelOfVolumes) {
    ASSERT_TRUE(OpenPictures("ab"));
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 0);
    window_->navigator().setCurrent(0);
    Beginning("Volumes").trigger();
    ASSERT_NE(window_->findChild<VolumePanel*>(), nullptr);
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(window_->findChild<VolumePanel*>(), nullptr);
}

TEST_F(StripTest, WithoutASoundThereIsNoVolume) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->navigator().setCurrent(0);
    EXPECT_FALSE(Beginning("Volumes").isEnabled());
    const int key = TheStrip().keyOf(0);
    EXPECT_FALSE(Sounds().setVolumes(key, MusicVolumes{1, 2}, 3));
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 0);
    EXPECT_TRUE(Beginning("Volumes").isEnabled());
    EXPECT_FALSE(Sounds().setVolumes(key, MusicVolumes{1, 2}, 100));
    EXPECT_TRUE(Sounds().setVolumes(key, MusicVolumes{1, 2}, 3));
}

// --- Recording ---

TEST_F(StripTest, WithoutAMicrophoneRecordingSaysSo) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->soundMenu().setMicrophone([] { return nullptr; });
    QAction& record = Beginning("Enregistrer un commentaire");
    record.trigger();
    EXPECT_EQ(Status(), "Aucun microphone n'est branché");
    EXPECT_TRUE(QDir(Folder()).entryList({"*.wav"}).isEmpty());
    EXPECT_FALSE(record.isChecked());
}

TEST_F(StripTest, ARecordingMakesAComment) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->navigator().setCurrent(1);
    QAction& record = StartRecording();
    EXPECT_TRUE(record.isChecked());
    EXPECT_TRUE(microphone_->Hear(2));
    record.trigger();
    EXPECT_EQ(Told(SoundKind::Comment), "b:Commentaire 1");
    EXPECT_EQ(Status(), "1 commentaire ajouté");
    EXPECT_FALSE(record.isChecked());
}

TEST_F(StripTest, ARecordingThatFailsTellsTheReason) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->navigator().setCurrent(0);
    QAction& record = StartRecording();
    {
        const test::FullDisk full(144);
        EXPECT_FALSE(microphone_->Hear(2));
        record.trigger();
    }
    EXPECT_EQ(Told(SoundKind::Comment), "a:Commentaire 1");
    EXPECT_TRUE(Status().endsWith(qt_error_string(EFBIG))) << Status().toStdString();
}

TEST_F(StripTest, AnotherFolderBeginsWithoutSounds) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Sounds().add(SoundKind::Music, {Sound("m.wav", 2)}, 1);
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(Musics(), "");
    EXPECT_TRUE(Sounds().all(SoundKind::Music).empty());
}

}  // namespace
}  // namespace vorlane::editor
