// The sheet's widget: sounds from real files, renaming in place on a real folder, the balloon and the wait window.
#include "interaction/msgboxobject.h"
#include "platform/qt/balloon.h"
#include "platform/qt/formwidget.h"
#include "platform/qt/qtdesktop.h"
#include "tests/platform/qt/soundfiles.h"
#include "tests/widgets/vorlanewidgettest.h"

#include <utility>

#include <QApplication>
#include <QCursor>
#include <QFileInfo>
#include <QLineEdit>
#include <QTest>

namespace vorlane {
namespace {

constexpr int kLimit = 30000;  // milliseconds that nothing here takes

// The window of that kind that shows.
template <class Window>
Window* ShownWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* found = dynamic_cast<Window*>(window);
        if (found != nullptr && found->isVisible()) return found;
    }
    return nullptr;
}

QPointF MiddleOf(const Control& control) {
    const Box box = control.BoundsInRoot();
    return {box.Left + box.Width / 2, box.Top + box.Height / 2};
}

// --- Sounds ---

class VorlaneWidgetSounds : public test::VorlaneWidgetTest {
protected:
    VorlaneWidgetSounds() {
        QObject::connect(&widget, &VorlaneWidget::OnBeforeSetPicture, &widget,
                         [](int, const QString&, SlideContent* content) {
                             content->HaveSound = true;
                             content->HaveComment = true;
                             content->HaveTexte = true;
                         });
        QObject::connect(&widget, &VorlaneWidget::OnClickPlay, &widget,
                         [this](int index, QString* file, int* button, int canal, bool* play, QString* alias) {
                             Say(QString("play %1 %2 on %3").arg(index).arg(*button).arg(canal));
                             *file = offered;
                             *play = plays;
                             *alias = "own";
                         });
        QObject::connect(&widget, &VorlaneWidget::OnClickStop, &widget, [this](int index, int button, int canal) {
            Say(QString("stop %1 %2 on %3").arg(index).arg(button).arg(canal));
        });
        QObject::connect(&widget, &VorlaneWidget::OnClickPlayChangeDiapo, &widget,
                         [this](int index, int button) { Say(QString("change to %1 %2").arg(index).arg(button)); });
        QObject::connect(&widget, &VorlaneWidget::OnClickText, &widget,
                         [this](int index) { Say(QString("text %1").arg(index)); });
        QObject::connect(&widget, &VorlaneWidget::OnSoundEnded, &widget,
                         [this](int canal) { Say(QString("ended %1").arg(canal)); });
        QObject::connect(&widget, &VorlaneWidget::OnSoundTrouble, &widget,
                         [this](int canal, const QString& file, ui::SoundTrouble trouble, const QString& text) {
                             if (trouble == ui::SoundTrouble::NoDevice) return;
                             Say(QString("trouble %1 on %2").arg(static_cast<int>(trouble)).arg(canal));
                             EXPECT_EQ(file, offered);
                             told = text;
                         });
        widget.SetShowDiapoTools(true);
        widget.Router().DoubleClickTime = -1;  // clicks come one by one
        AddPictures(4);
        Show();
        widget.StartLecture();
        offered = sounds.WriteWave("long.wav", 60);
    }
    ~VorlaneWidgetSounds() override { widget.StopSound(); }

    void Say(const QString& what) { happened.push_back(what); }
    QString Happened() { return std::exchange(happened, {}).join(", "); }
    eDiapoLight& Slide(int index) { return *widget.sheet().Diapo.Item(index); }
    void ClickMusic(int index) { test::Click(widget, MiddleOf(Slide(index).BtPlay)); }
    void ClickComment(int index) { test::Click(widget, MiddleOf(Slide(index).BtComment)); }
    bool ShowsStop(int index) {
        return Slide(index).BtPlayPicture().Handle() == widget.sheet().ImgLstBtPlay.ListImage(2).Handle();
    }
    bool Plays(const QString& alias) { return widget.Desktop().sounds.IsPlaying({alias.toStdString()}); }

    test::SoundFiles sounds;
    QString offered;
    bool plays = true;
    QString told;
    QStringList happened;
};

TEST_F(VorlaneWidgetSounds, AClickOnTheButtonPlaysAndAnotherOneStops) {
    ASSERT_TRUE(Slide(1).BtPlayVisible());
    ClickMusic(1);
    EXPECT_EQ(Happened(), "play 1 0 on 1");
    EXPECT_TRUE(Plays(widget.AliasMusic()));
    EXPECT_TRUE(ShowsStop(1));
    EXPECT_FALSE(ShowsStop(0));
    const QString alias = widget.AliasMusic();
    ClickMusic(1);
    EXPECT_EQ(Happened(), "ended 1, stop 1 0 on 1");
    EXPECT_FALSE(Plays(alias));
    EXPECT_FALSE(ShowsStop(1));
}

TEST_F(VorlaneWidgetSounds, ACommentPlaysOnAChannelOfItsOwn) {
    ClickComment(2);
    EXPECT_EQ(Happened(), "play 2 1 on 2");
    EXPECT_TRUE(Plays(widget.AliasComment()));
    EXPECT_TRUE(widget.AliasMusic().isEmpty());
    widget.StopSound(0);
    EXPECT_TRUE(Plays(widget.AliasComment()));
    widget.StopSound(1);
    EXPECT_FALSE(Plays(widget.AliasComment()));
}

TEST_F(VorlaneWidgetSounds, AnotherSlidesButtonTakesTheSoundOver) {
    ClickMusic(1);
    const QString first = widget.AliasMusic();
    Happened();
    ClickMusic(2);
    EXPECT_EQ(Happened(), "change to 2 0, play 2 0 on 1");
    EXPECT_FALSE(Plays(first));
    EXPECT_TRUE(Plays(widget.AliasMusic()));
    EXPECT_FALSE(ShowsStop(1));
    EXPECT_TRUE(ShowsStop(2));
}

TEST_F(VorlaneWidgetSounds, ASoundThatComesToItsEndGivesTheButtonBack) {
    offered = sounds.WriteWave("short.wav", 1);
    ClickMusic(0);
    Happened();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !happened.empty(); }, kLimit));
    EXPECT_EQ(Happened(), "ended 1");
    EXPECT_FALSE(ShowsStop(0));
    EXPECT_FALSE(widget.Desktop().sounds.IsOpen(widget.AliasMusic().toStdString()));
}

TEST_F(VorlaneWidgetSounds, AFileThatCannotBePlayedIsToldAndEnds) {
    offered = sounds.Write("text.mp3", "This is no sound.");
    ClickMusic(0);
    EXPECT_TRUE(ShowsStop(0));
    EXPECT_TRUE(QTest::qWaitFor([this] { return happened.contains("ended 1"); }, kLimit));
    EXPECT_EQ(Happened(), "play 0 0 on 1, trouble 1 on 1, ended 1");
    EXPECT_EQ(told, "Le fichier « text.mp3 » est abîmé ou n'est pas un son");
    EXPECT_FALSE(ShowsStop(0));
    EXPECT_EQ(errors, "");
}

TEST_F(VorlaneWidgetSounds, AMissingFileIsTold) {
    offered = sounds.Path("missing.ogg");
    ClickComment(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !told.isEmpty(); }, kLimit));
    EXPECT_EQ(Happened(), "play 0 1 on 2, trouble 0 on 2");
    EXPECT_EQ(told, "Le son « missing.ogg » est introuvable");
}

TEST_F(VorlaneWidgetSounds, OnlyTheSheetThatPlaysIsToldOfTrouble) {
    VorlaneWidget other;
    int heard = 0;
    QObject::connect(&other, &VorlaneWidget::OnSoundTrouble, &other, [&] { ++heard; });
    offered = sounds.Path("missing.ogg");
    ClickMusic(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !told.isEmpty(); }, kLimit));
    EXPECT_EQ(heard, 0);
}

TEST_F(VorlaneWidgetSounds, AHostMayPlayForItself) {
    plays = false;
    ClickMusic(1);
    EXPECT_EQ(widget.AliasMusic(), "own");
    EXPECT_TRUE(ShowsStop(1));
    widget.BtState(1, 0, false);
    EXPECT_FALSE(ShowsStop(1));
    widget.BtState(1, 0, true);
    EXPECT_TRUE(ShowsStop(1));
}

TEST_F(VorlaneWidgetSounds, TheTextButtonTellsItsSlide) {
    test::Click(widget, MiddleOf(Slide(3).BtTexte));
    EXPECT_EQ(Happened(), "text 3");
}

// --- Rename in place ---

class DialogueBox : public MsgBoxObject {
public:
    std::string TypeName() const override { return "DialogueBox"; }
    void Action(const std::string& text, const std::string&, const std::string&, int32_t) override { said = text; }

    std::string said;
};

class VorlaneWidgetRename : public test::VorlaneWidgetTest {
protected:
    VorlaneWidgetRename() {
        QObject::connect(&widget, &VorlaneWidget::OnBeforeEdit, &widget, [this](bool* cancel, const QString& name) {
            happened += "before " + name + "\n";
            *cancel = refuses;
        });
        QObject::connect(&widget, &VorlaneWidget::OnAfterEdit, &widget,
                         [this](const QString& newName, const QString& oldName, bool canceled) {
                             happened += "after " + QFileInfo(newName).fileName() + " " +
                                         QFileInfo(oldName).fileName() + (canceled ? " canceled" : "") + "\n";
                         });
        AddPictures(3);
        Show();
        widget.StartLecture();
    }

    QLineEdit& Box() { return *widget.findChild<QLineEdit*>(); }
    void Type(const QString& name) {
        Box().selectAll();
        QTest::keyClicks(&Box(), name);
    }
    void Press(Qt::Key key) { QTest::keyClick(&Box(), key); }
    bool Exists(const QString& name) const { return QFileInfo::exists(folder.filePath(name)); }

    bool refuses = false;
    QString happened;
};

TEST_F(VorlaneWidgetRename, EnterRenamesTheFileItsItemAndItsSlide) {
    widget.StartEdit(1);
    ASSERT_TRUE(Box().isVisible());
    EXPECT_EQ(Box().text(), "001");
    EXPECT_EQ(Box().selectedText(), "001");
    EXPECT_TRUE(widget.NameRect(1).intersects(QRectF(Box().geometry())));
    Type("summer");
    Press(Qt::Key_Return);
    EXPECT_EQ(happened, "before 001\nafter summer.png 001.png\n");
    EXPECT_FALSE(Box().isVisible());
    EXPECT_TRUE(Exists("summer.png"));
    EXPECT_FALSE(Exists("001.png"));
    EXPECT_EQ(widget.ImageFullPath(widget.GetListIndexFromItemData(1001)), folder.filePath("summer.png"));
    EXPECT_EQ(errors, "");
}

TEST_F(VorlaneWidgetRename, EscapeLeavesAllAsItWas) {
    widget.StartEdit(0);
    Type("other");
    Press(Qt::Key_Escape);
    EXPECT_EQ(happened, "before 000\nafter   canceled\n");
    EXPECT_FALSE(Box().isVisible());
    EXPECT_TRUE(Exists("000.png"));
}

TEST_F(VorlaneWidgetRename, AHostMayRefuseTheEdit) {
    refuses = true;
    widget.StartEdit(0);
    EXPECT_FALSE(Box().isVisible());
}

TEST_F(VorlaneWidgetRename, ATakenNameIsRefusedByTheHostsOwnMessage) {
    QObject::connect(&widget, &VorlaneWidget::OnRenameError, &widget,
                     [this](int type, const QString& newName, const QString&, QString* message, bool* cancel) {
                         happened += QString("error %1 %2\n").arg(type).arg(QFileInfo(newName).fileName());
                         *message = "taken";
                         *cancel = true;
                     });
    widget.StartEdit(0);
    Type("002");
    DialogueBox box;
    EXPECT_TRUE(widget.EndEdit(false, &box));
    EXPECT_EQ(happened, "before 000\nerror 0 002.png\n");
    EXPECT_EQ(box.said, "taken");
    EXPECT_TRUE(Box().isVisible());
    EXPECT_TRUE(Exists("000.png"));
    EXPECT_TRUE(widget.EndEdit(true));
    EXPECT_FALSE(Box().isVisible());
}

TEST_F(VorlaneWidgetRename, AnItemMayBeGivenAnotherFileWithoutTouchingAny) {
    widget.RenameDiapo(0, folder.filePath("000.png"), folder.filePath("new.png"));
    EXPECT_EQ(widget.ImageFullPath(0), folder.filePath("new.png"));
    EXPECT_EQ(widget.sheet().Diapo.Item(0)->ImageName(), "new.png");
    EXPECT_TRUE(Exists("000.png"));
}

// --- Balloon ---

class VorlaneWidgetBalloon : public test::VorlaneWidgetTest {
protected:
    VorlaneWidgetBalloon() {
        widget.SetShowInfo(true);
        QObject::connect(&widget, &VorlaneWidget::OnToolTipInfos, &widget,
                         [this](int index, const QString& file, QString* titre, QString* texte, int* icone) {
                             if (silent) return;
                             *titre = QString("%1 of %2").arg(QFileInfo(file).fileName()).arg(index);
                             *texte = "one|two";
                             *icone = 1;
                         });
        AddPictures(2);
        Show();
        widget.StartLecture();
        button = MiddleOf(widget.sheet().Diapo.Item(1)->ImgInfo);
        QCursor::setPos(widget.mapToGlobal(button.toPoint()));
    }

    void Send(QEvent::Type type, bool down) { test::SendMouse(widget, type, button, Qt::LeftButton, down); }

    QPointF button;
    bool silent = false;
};

TEST_F(VorlaneWidgetBalloon, ShowsWhatTheHostTellsWhileTheButtonIsHeld) {
    Send(QEvent::MouseButtonPress, true);
    EXPECT_TRUE(QTest::qWaitFor([] { return ShownWindow<Balloon>() != nullptr; }, kLimit));
    EXPECT_EQ(ShownWindow<Balloon>()->Title().text, "001.png of 1");
    EXPECT_EQ(ShownWindow<Balloon>()->Title().icon, 1);
    EXPECT_EQ(ShownWindow<Balloon>()->Text(), "one\ntwo");
    Send(QEvent::MouseButtonRelease, false);
    EXPECT_EQ(ShownWindow<Balloon>(), nullptr);
}

TEST_F(VorlaneWidgetBalloon, IsNotThereForAHostThatTellsNothing) {
    silent = true;
    Send(QEvent::MouseButtonPress, true);
    QCoreApplication::processEvents();
    EXPECT_EQ(ShownWindow<Balloon>(), nullptr);
    Send(QEvent::MouseButtonRelease, false);
}

// --- Wait window, places ---

class VorlaneWidgetWindows : public test::VorlaneWidgetTest {
protected:
    VorlaneWidgetWindows() {
        AddPictures(2);
        Show();
        widget.StartLecture();
    }
};

TEST_F(VorlaneWidgetWindows, AWaitWindowStandsOverTheSheetUntilItIsClosed) {
    EXPECT_FALSE(widget.IsWaitOpen());
    widget.WaitShow("Un instant", ui::WaitPlace::Middle, true);
    EXPECT_TRUE(widget.IsWaitOpen());
    ASSERT_NE(ShownWindow<FormWidget>(), nullptr);
    EXPECT_TRUE(QRect(widget.mapToGlobal(QPoint()), widget.size()).contains(ShownWindow<FormWidget>()->geometry()));
    widget.SetWaitCaption("Encore un");
    widget.WaitClose(true);
    EXPECT_FALSE(widget.IsWaitOpen());
    EXPECT_TRUE(QTest::qWaitFor([] { return ShownWindow<FormWidget>() == nullptr; }, kLimit));
    EXPECT_EQ(errors, "");
}

TEST_F(VorlaneWidgetWindows, TheSheetsWindowHasItsNumber) {
    EXPECT_NE(widget.Hwnd(), 0);
    EXPECT_EQ(widget.Hwnd(), widget.sheet().Hwnd());
    EXPECT_EQ(widget.hDC(), widget.sheet().hDC());
}

TEST_F(VorlaneWidgetWindows, AnEndedSheetHasNoList) {
    widget.Terminate();
    widget.Terminate();
    EXPECT_EQ(widget.Liste().ListCount(), 0);
    EXPECT_EQ(errors, "");
}

TEST_F(VorlaneWidgetWindows, ASlideHasTheSoundButtonsThatItIsGiven) {
    widget.SetHaveSoundMusic(1, true);
    widget.SetHaveSoundComment(0, true);
    EXPECT_TRUE(widget.HaveSoundMusic(1));
    EXPECT_TRUE(widget.sheet().Diapo.Item(1)->BtPlayVisible());
    EXPECT_FALSE(widget.HaveSoundMusic(0));
    EXPECT_TRUE(widget.HaveSoundComment(0));
    EXPECT_FALSE(widget.HaveSoundComment(1));
    widget.SetHaveSoundMusic(1, false);
    EXPECT_FALSE(widget.sheet().Diapo.Item(1)->BtPlayVisible());
}

TEST_F(VorlaneWidgetWindows, AButtonComesWithThePictureOfASoundThatCannotBePlayed) {
    widget.SetHaveInvalidMusic(1, true);
    widget.SetHaveInvalidComm(0, true);
    widget.SetHaveSoundMusic(1, true);
    widget.SetHaveSoundComment(0, true);
    EXPECT_TRUE(widget.HaveInvalidMusic(1) && widget.HaveInvalidComm(0));
    EXPECT_FALSE(widget.HaveInvalidMusic(0) || widget.HaveInvalidComm(1));
    const auto invalid = widget.sheet().ImgLstBtPlay.ListImage(6).Handle();
    EXPECT_EQ(widget.sheet().Diapo.Item(1)->BtPlayPicture().Handle(), invalid);
    EXPECT_EQ(widget.sheet().Diapo.Item(0)->BtCommentPicture().Handle(), invalid);
}

TEST_F(VorlaneWidgetWindows, ANameStandsWithinItsSlide) {
    EXPECT_TRUE(widget.DiapoRect(1).contains(widget.NameRect(1)));
    EXPECT_FALSE(widget.NameRect(1).isEmpty());
    widget.SetShowFileName(false);
    EXPECT_TRUE(widget.NameRect(1).isEmpty());
}

}  // namespace
}  // namespace vorlane
