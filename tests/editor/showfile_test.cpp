// Shows in files, through the window.
#include "editor/showfile.h"

#include "editor/show.h"
#include "editor/showkeeper.h"
#include "editor/strip.h"
#include "tests/editor/fulldisk.h"
#include "tests/editor/windowfixture.h"

#include <cerrno>

#include <QDialog>
#include <QFile>
#include <QListWidget>
#include <QPushButton>

namespace vorlane::editor {
namespace {

class ShowFileTest : public WindowFixture {
protected:
    ~ShowFileTest() override { window_.reset(); }  // before its files

    QString Write(const QString& name, const SavedShow& show) {
        const QString path = files_.filePath(name);
        EXPECT_EQ(SaveShow(path, show), "");
        return path;
    }
    bool OpenShow(const QString& path) { return window_->openShow(path) && Settle(); }
    SavedShow OfPictures(const QString& letters) {
        SavedShow show;
        for (const QChar letter : letters) show.pictures.push_back(pictures_.WritePicture(QString(letter) + ".jpg"));
        return show;
    }
    // Presses a button of the question that stands open; false when there is none.
    bool Answer(const QString& question, const QString& text) {
        auto* box = window_->findChild<QDialog*>(question);
        if (box == nullptr) return false;
        for (QAbstractButton* button : box->findChildren<QAbstractButton*>()) {
            if (button->text().remove('&') == text && button->isEnabled()) {
                button->click();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                return true;
            }
        }
        return false;
    }
    // A show of those pictures that another run kept for recovery.
    QString Leave(const QString& name, const QString& letters, int minutesAgo) {
        EXPECT_TRUE(QDir().mkpath(RecoveryFolder()));
        const QString path = RecoveryFolder() + "/" + name + ".vorlane";
        EXPECT_EQ(SaveShow(path, OfPictures(letters)), "");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        const QDateTime when = QDateTime::currentDateTime().addSecs(-60 * minutesAgo);
        EXPECT_TRUE(file.setFileTime(when, QFileDevice::FileModificationTime));
        return path;
    }
    // What the user is offered, and chooses from.
    QListWidget* Offered() {
        auto* panel = window_->findChild<QDialog*>("recovery");
        return panel == nullptr ? nullptr : panel->findChild<QListWidget*>();
    }
    bool AnswerUnsaved(const QString& text) { return Answer("unsaved", text); }
    void RemoveFirst() {
        VorlaneList list = window_->sheet().Liste();
        list.SetSelected(0, true);
        window_->removeSelected();
    }
    QByteArray BytesOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QString RecoveryFolder() const { return files_.filePath("recovery"); }
    QStringList Kept() const { return QDir(RecoveryFolder()).entryList({"*.vorlane"}); }

    QTemporaryDir files_;
};

const char* kDiscard = "Ne pas enregistrer";

TEST_F(ShowFileTest, OpensAShowInTheOrderThatItWasSavedIn) {
    const QString path = Write("Vacances.vorlane", OfPictures("cab"));
    ASSERT_TRUE(OpenShow(path));
    EXPECT_EQ(Letters(), "cab");
    EXPECT_EQ(window_->showPath(), path);
    EXPECT_EQ(window_->windowTitle(), QString::fromUtf8("Vacances[*] — Vorlane"));
    EXPECT_FALSE(window_->isWindowModified());
    EXPECT_EQ(window_->slides().order().by, SortBy::Hand);
    EXPECT_EQ(Recents(settings_).list().value(0), path);
}

TEST_F(ShowFileTest, WhatIsChangedAndSavedComesBack) {
    const QString path = Write("a.vorlane", OfPictures("abcd"));
    ASSERT_TRUE(OpenShow(path));
    RemoveFirst();
    EXPECT_TRUE(window_->isWindowModified());
    ASSERT_TRUE(window_->save());
    EXPECT_FALSE(window_->isWindowModified());
    EXPECT_EQ(Status(), QString::fromUtf8("Diaporama enregistré"));
    EXPECT_EQ(LoadShow(path).show, OfPictures("bcd"));
}

TEST_F(ShowFileTest, UndoingTheChangeLeavesNothingToSave) {
    ASSERT_TRUE(OpenShow(Write("a.vorlane", OfPictures("abc"))));
    RemoveFirst();
    window_->slides().undo();
    EXPECT_EQ(Letters(), "abc");
    EXPECT_FALSE(window_->isWindowModified());
    window_->slides().redo();
    EXPECT_TRUE(window_->isWindowModified());
}

TEST_F(ShowFileTest, SoundsFollowTheirPictures) {
    SavedShow show = OfPictures("abc");
    show.exposure = 3;
    const QString song = files_.filePath("song.ogg");
    show.sounds = {{SoundKind::Music, 0, song}, {SoundKind::Comment, 2, song}};
    const QString path = Write("a.vorlane", show);
    ASSERT_TRUE(OpenShow(path));
    RemoveFirst();
    ASSERT_TRUE(window_->save());
    SavedShow expected = OfPictures("bc");
    expected.exposure = 3;
    expected.sounds = {{SoundKind::Comment, 1, song}};
    EXPECT_EQ(LoadShow(path).show, expected);
}

TEST_F(ShowFileTest, PicturesThatAreGoneStayAsBrokenSlides) {
    const SavedShow show = OfPictures("abc");
    const QString path = Write("a.vorlane", show);
    ASSERT_TRUE(QFile::remove(show.pictures[1]));
    ASSERT_TRUE(OpenShow(path));
    EXPECT_EQ(Letters(), "abc");
    EXPECT_EQ(Status(), "1 image introuvable");
    EXPECT_EQ(invalid_, QStringList("b.jpg"));
    EXPECT_FALSE(window_->isWindowModified());
    ASSERT_TRUE(window_->save());
    EXPECT_EQ(LoadShow(path).show->pictures, show.pictures);
}

TEST_F(ShowFileTest, ADamagedFileLeavesEverythingAsItIs) {
    ASSERT_TRUE(OpenPictures("ab"));
    QFile file(files_.filePath("bad.vorlane"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"format\":");
    file.close();
    EXPECT_FALSE(window_->openShow(file.fileName()));
    EXPECT_TRUE(Status().contains(QString::fromUtf8("endommagé"))) << Status().toStdString();
    EXPECT_EQ(Letters(), "ab");
    EXPECT_EQ(window_->showPath(), "");
    EXPECT_FALSE(window_->openShow(files_.filePath("nowhere.vorlane")));
    EXPECT_TRUE(Status().contains("nowhere.vorlane"));
    EXPECT_EQ(Letters(), "ab");
}

TEST_F(ShowFileTest, AFailedSavingLeavesTheFileAndTheMark) {
    const QString path = Write("a.vorlane", OfPictures("ab"));
    ASSERT_TRUE(OpenShow(path));
    RemoveFirst();
    const QByteArray before = BytesOf(path);
    const auto saves = [this] {
        const test::FullDisk full(10);
        return window_->save();
    };
    EXPECT_FALSE(saves());
    EXPECT_EQ(Status(),
              QStringLiteral("Impossible d'enregistrer «\u00A0%1\u00A0»\u00A0: %2").arg(path, qt_error_string(EFBIG)));
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_TRUE(window_->isWindowModified());
    EXPECT_TRUE(window_->save());
    EXPECT_EQ(LoadShow(path).show, OfPictures("b"));
}

TEST_F(ShowFileTest, AShowIsSavedNeitherInAFolderThatIsMissingNorInTheNameOfOne) {
    EXPECT_NE(SaveShow(files_.filePath("none/a.vorlane"), SavedShow{}), "");
    ASSERT_TRUE(QDir().mkdir(files_.filePath("folder.vorlane")));
    EXPECT_NE(SaveShow(files_.filePath("folder.vorlane"), SavedShow{}), "");
}

TEST_F(ShowFileTest, AShowWhoseReadingIsCutOffIsNoLongerThatOfItsFile) {
    constexpr int kPictures = 500;
    SavedShow show;
    for (int i = 0; i < kPictures; ++i) show.pictures.push_back(pictures_.Write(QStringLiteral("p%1.jpg").arg(i), {}));
    const QString path = Write("a.vorlane", show);
    window_->setSliceTime(0);
    const auto hold = [this] { window_->slides().beginMove(); };
    QObject::connect(&window_->sheet(), &VorlaneWidget::OnDisplayStart, window_.get(), hold, Qt::SingleShotConnection);
    ASSERT_TRUE(window_->openShow(path));
    ASSERT_TRUE(test::WaitFor([this] { return window_->count() > 0; }));
    ASSERT_EQ(window_->showPath(), path);
    window_->openFolder(files_.filePath("nowhere"));
    window_->slides().endMove();
    ASSERT_TRUE(Settle());
    ASSERT_LT(window_->count(), kPictures);
    EXPECT_EQ(window_->showPath(), "");
    EXPECT_EQ(LoadShow(path).show, show);
}

TEST_F(ShowFileTest, PicturesAddedWhileAShowIsReadLeaveItsSoundsAlone) {
    SavedShow show = OfPictures("abc");
    const QString song = files_.filePath("song.ogg");
    show.sounds = {{SoundKind::Music, 2, song}};
    const QString path = Write("a.vorlane", show);
    const QString added = pictures_.WritePicture("x.jpg");
    ASSERT_TRUE(window_->openShow(path));
    window_->addFiles({added});
    ASSERT_TRUE(Settle());
    ASSERT_TRUE(window_->save());
    const SavedShow saved = *LoadShow(path).show;
    ASSERT_EQ(saved.sounds.size(), 1U);
    EXPECT_EQ(saved.pictures.at(saved.sounds[0].picture), show.pictures[2]);
}

TEST_F(ShowFileTest, AFolderThatIsOnlySortedNeedsNoSaving) {
    ASSERT_TRUE(OpenPictures("abc"));
    window_->slides().sort({SortBy::Name, true});
    EXPECT_EQ(Letters(), "cba");
    EXPECT_FALSE(window_->isWindowModified());
    RemoveFirst();
    EXPECT_EQ(Letters(), "ba") << Status().toStdString();
    EXPECT_TRUE(window_->isWindowModified());
}

TEST_F(ShowFileTest, ASortOfAShowIsAChange) {
    ASSERT_TRUE(OpenShow(Write("a.vorlane", OfPictures("ab"))));
    window_->slides().sort({SortBy::Name, true});
    EXPECT_TRUE(window_->isWindowModified());
}

TEST_F(ShowFileTest, AShowIsOpenedByItsNameAmongFoldersAndByDrop) {
    const QString path = Write("a.vorlane", OfPictures("ab"));
    window_->open(path);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(window_->showPath(), path);
    window_->open(Folder());
    ASSERT_TRUE(Settle());
    EXPECT_EQ(window_->showPath(), "");
    Drop({QUrl::fromLocalFile(path)});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(window_->showPath(), path);
}

// --- What isn't saved ---

TEST_F(ShowFileTest, ClosingAsksAndStaysUntilItIsAnswered) {
    ASSERT_TRUE(OpenShow(Write("a.vorlane", OfPictures("abc"))));
    RemoveFirst();
    EXPECT_FALSE(window_->close());
    EXPECT_TRUE(AnswerUnsaved("Annuler"));
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(window_->isWindowModified());
    EXPECT_FALSE(window_->close());
    EXPECT_TRUE(AnswerUnsaved(kDiscard));
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(ShowFileTest, ClosingCanSave) {
    const QString path = Write("a.vorlane", OfPictures("abc"));
    ASSERT_TRUE(OpenShow(path));
    RemoveFirst();
    EXPECT_FALSE(window_->close());
    EXPECT_TRUE(AnswerUnsaved("Enregistrer"));
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(LoadShow(path).show->pictures.size(), 2);
}

TEST_F(ShowFileTest, AnUnchangedShowClosesWithoutAWord) {
    ASSERT_TRUE(OpenShow(Write("a.vorlane", OfPictures("abc"))));
    EXPECT_TRUE(window_->close());
    EXPECT_FALSE(AnswerUnsaved("Annuler"));
}

TEST_F(ShowFileTest, AnotherShowWaitsForTheAnswer) {
    const QString one = Write("one.vorlane", OfPictures("abc"));
    const QString other = Write("other.vorlane", OfPictures("xy"));
    ASSERT_TRUE(OpenShow(one));
    RemoveFirst();
    Drop({QUrl::fromLocalFile(other)});
    ASSERT_TRUE(Settle());
    EXPECT_EQ(window_->showPath(), one);
    EXPECT_TRUE(AnswerUnsaved(kDiscard));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(window_->showPath(), other);
    EXPECT_EQ(Letters(), "xy");
    EXPECT_EQ(LoadShow(one).show->pictures.size(), 3);
}

// --- Recovery ---

TEST_F(ShowFileTest, WhatARunLeftIsOfferedAndTakenUp) {
    SavedShow left = OfPictures("cab");
    left.origin = files_.filePath("first.vorlane");
    ASSERT_TRUE(QDir().mkpath(RecoveryFolder()));
    const QString file = RecoveryFolder() + "/left.vorlane";
    ASSERT_EQ(SaveShow(file, left), "");
    window_->setRecoveryFolder(RecoveryFolder());
    window_->offerRecovery();
    ASSERT_TRUE(Answer("recovery", "Retrouver"));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "cab");
    EXPECT_EQ(window_->showPath(), left.origin);
    EXPECT_TRUE(window_->isWindowModified());
    EXPECT_FALSE(QFile::exists(file));
    ASSERT_EQ(Kept().size(), 1);  // by this run now
    ASSERT_TRUE(window_->save());
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_EQ(LoadShow(left.origin).show, OfPictures("cab"));
}

TEST_F(ShowFileTest, WhatIsLeftForLaterStaysAndWhatIsNotWantedGoes) {
    Leave("left", "a", 1);
    window_->setRecoveryFolder(RecoveryFolder());
    window_->offerRecovery();
    ASSERT_TRUE(Answer("recovery", "Plus tard"));
    EXPECT_EQ(Kept().size(), 1);
    window_->offerRecovery();
    ASSERT_TRUE(Answer("recovery", "Supprimer"));
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_EQ(window_->count(), 0);
}

TEST_F(ShowFileTest, WithoutAnythingLeftNothingIsAsked) {
    window_->setRecoveryFolder(RecoveryFolder());
    window_->offerRecovery();
    EXPECT_EQ(Offered(), nullptr);
}

TEST_F(ShowFileTest, ADamagedFileIsToldAndBlocksNoOther) {
    const QString oldest = Leave("oldest", "cab", 30);
    const QString older = Leave("older", "xy", 20);
    const QString damaged = Leave("damaged", "z", 10);
    QFile file(damaged);
    ASSERT_TRUE(file.resize(20));
    file.close();
    window_->setRecoveryFolder(RecoveryFolder());
    window_->offerRecovery();
    ASSERT_NE(Offered(), nullptr);
    ASSERT_EQ(Offered()->count(), 3);
    EXPECT_TRUE(Offered()->item(0)->text().contains("endommagé")) << Offered()->item(0)->text().toStdString();
    EXPECT_FALSE(Answer("recovery", "Retrouver"));
    ASSERT_TRUE(Answer("recovery", "Supprimer"));
    EXPECT_FALSE(QFile::exists(damaged));
    ASSERT_EQ(Offered()->count(), 2);
    Offered()->setCurrentRow(1);
    ASSERT_TRUE(Answer("recovery", "Retrouver"));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(Letters(), "cab");
    EXPECT_EQ(Offered(), nullptr);
    EXPECT_FALSE(QFile::exists(oldest));  // this run keeps it now
    EXPECT_TRUE(QFile::exists(older));
}

TEST_F(ShowFileTest, WhatHasBeenTakenUpElsewhereMeanwhileIsToldAndTheOthersAreOfferedAgain) {
    Leave("older", "xy", 20);
    const QString gone = Leave("gone", "z", 10);
    window_->setRecoveryFolder(RecoveryFolder());
    window_->offerRecovery();
    ASSERT_TRUE(QFile::remove(gone));
    ASSERT_TRUE(Answer("recovery", "Retrouver"));
    EXPECT_TRUE(Status().contains("gone.vorlane"));
    ASSERT_NE(Offered(), nullptr);
    EXPECT_EQ(Offered()->count(), 1);
}

TEST_F(ShowFileTest, AChangeIsKeptAfterAWhileAndForgottenOnceItIsSaved) {
    Show& show = window_->slides();
    ShowKeeper keeper(show, [this] { return std::optional(OfPictures("q")); });
    keeper.setRecoveryFolder(RecoveryFolder());
    keeper.touch();
    auto* pause = keeper.findChild<QTimer*>();
    ASSERT_NE(pause, nullptr);
    EXPECT_TRUE(pause->isActive());
    EXPECT_LE(pause->interval(), ShowKeeper::kRecoveryPause * 1000);
    ASSERT_EQ(keeper.keep(), "");
    EXPECT_EQ(Kept().size(), 1);
    ASSERT_EQ(keeper.save(files_.filePath("q.vorlane")), "");
    EXPECT_FALSE(keeper.isModified());
    EXPECT_FALSE(pause->isActive());
    EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(ShowFileTest, TheTimeOfAShowWithoutAFileIsKeptAlongWithItsOtherChanges) {
    ASSERT_TRUE(OpenPictures("abc"));
    window_->setRecoveryFolder(RecoveryFolder());
    auto* keeper = window_->findChild<ShowKeeper*>();
    ASSERT_NE(keeper, nullptr);
    auto* pause = keeper->findChild<QTimer*>();
    window_->strip().SetExpositionTime(9);
    EXPECT_FALSE(window_->isWindowModified()) << "the time of a folder is nothing to keep";
    RemoveFirst();
    EXPECT_EQ(keeper->keep(), "");
    pause->stop();
    window_->strip().SetExpositionTime(12);
    EXPECT_TRUE(pause->isActive());
    EXPECT_EQ(keeper->keep(), "");
    ASSERT_EQ(Kept().size(), 1);
    EXPECT_EQ(LoadShow(RecoveryFolder() + "/" + Kept().first()).show->exposure, 12);
}

TEST_F(ShowFileTest, AShowThatIsBeingReadIsNeitherSavedNorKept) {
    ShowKeeper keeper(window_->slides(), [] { return std::optional<SavedShow>(); });
    keeper.setRecoveryFolder(RecoveryFolder());
    keeper.touch();
    EXPECT_EQ(keeper.keep(), "");
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_NE(keeper.save(files_.filePath("q.vorlane")), "");
    EXPECT_FALSE(QFile::exists(files_.filePath("q.vorlane")));
    EXPECT_TRUE(keeper.isModified());
}

TEST_F(ShowFileTest, WhatIsTakenUpStaysInItsFileUntilItIsKept) {
    const QString left = Leave("left", "cab", 1);
    std::optional<SavedShow> present;
    ShowKeeper keeper(window_->slides(), [&] { return present; });
    keeper.setRecoveryFolder(RecoveryFolder());
    keeper.takeUp(left);
    EXPECT_TRUE(keeper.isModified());
    EXPECT_EQ(Kept(), QStringList("left.vorlane"));
    present = OfPictures("cab");
    EXPECT_EQ(keeper.keep(), "");
    EXPECT_FALSE(QFile::exists(left));
    ASSERT_EQ(Kept().size(), 1);
    EXPECT_EQ(LoadShow(RecoveryFolder() + "/" + Kept().first()).show->pictures, present->pictures);
}

TEST_F(ShowFileTest, WhatIsTakenUpAndSavedBeforeItIsKeptIsNotOfferedAgain) {
    const QString left = Leave("left", "cab", 1);
    std::optional<SavedShow> present;
    ShowKeeper keeper(window_->slides(), [&] { return present; });
    keeper.setRecoveryFolder(RecoveryFolder());
    keeper.takeUp(left);
    present = OfPictures("cab");
    ASSERT_EQ(keeper.save(files_.filePath("q.vorlane")), "");
    EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(ShowFileTest, WhatIsTakenUpOutlivesAnotherShowThatComesBeforeItIsKept) {
    const QString left = Leave("left", "cab", 1);
    ShowKeeper keeper(window_->slides(), [] { return std::optional<SavedShow>(); });
    keeper.setRecoveryFolder(RecoveryFolder());
    keeper.takeUp(left);
    keeper.begin({});
    EXPECT_TRUE(QFile::exists(left));
}

}  // namespace
}  // namespace vorlane::editor
