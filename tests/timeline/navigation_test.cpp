#include "timelinetest.h"

namespace vorlane {
namespace {

class NavigationTest : public TimeLineTest {
protected:
    NavigationTest() { Items(12); }

    static std::string Told(const tSon& son) {
        if (son.DiapoKey == -1 && son.Nom.empty() && son.Durée == 0) return "none";
        return (son.TypeSon == kMusic ? "music " : "comment ") + std::to_string(son.DiapoKey) + " " +
               std::to_string(son.Durée) + (son.Nom.empty() ? " nameless" : "");
    }
    std::string Next(int32_t n, int32_t quoi) { return Told(line->NextSound(100 + n, quoi)); }
    std::string Previous(int32_t n, int32_t quoi, bool setStart = false) {
        return Told(line->PreviousSound(100 + n, quoi, setStart));
    }
    // Shows the sheet's items from the top.
    void ShowSheet() {
        sheet.StartLecture();
        desktop.trace.Clear();
    }
    // The key of the slide at the top, which a jump shows there.
    int32_t Top() const { return sheet.Diapos.Item(0)->Key(); }
    // Makes a slide the current one.
    void MakeCurrent(int16_t slide) { sheet.SetSelected(slide, true); }
    std::string Menus() { return desktop.trace.Take({"menu"}); }
};

// --- NextSound and PreviousSound ---

TEST_F(NavigationTest, TheNextAndThePreviousSoundOfEachKind) {
    Start();
    for (const int32_t n : {1, 4, 7}) Music(n, 3);
    for (const int32_t n : {2, 9}) Comment(n, 4);
    EXPECT_EQ(Next(2, 0), "music 104 3");
    EXPECT_EQ(Next(0, 0), "music 101 3");
    EXPECT_EQ(Next(3, 1), "comment 109 4");
    EXPECT_EQ(Previous(4, 0), "music 101 3");
    EXPECT_EQ(Previous(11, 0), "music 107 3");
    EXPECT_EQ(Previous(8, 1), "comment 102 4");
}

TEST_F(NavigationTest, NextFromTheLastSoundAndPreviousFromTheFirstGiveNone) {
    Start();
    Music(1, 3);
    Music(4, 3);
    EXPECT_EQ(Next(4, 0), "none");
    EXPECT_EQ(Next(4, 2), "none");
    EXPECT_EQ(Previous(1, 0), "none");
    EXPECT_EQ(Previous(1, 2), "none");
    EXPECT_EQ(Next(4, 1), "none");
    EXPECT_EQ(Next(0, 3), "none");
    EXPECT_EQ(Heard(), "");
}

TEST_F(NavigationTest, OfBothKindsTheCommentWinsThoughTheMusicComesEarlier) {
    Start();
    Music(2, 3);
    Comment(5, 4);
    EXPECT_EQ(Next(1, 2), "comment 105 4");
    EXPECT_EQ(Next(5, 2), "none");
    EXPECT_EQ(Previous(7, 2), "comment 105 4");
    EXPECT_EQ(Previous(4, 2), "music 102 3");
}

TEST_F(NavigationTest, WithoutACommentTheMusicIsTheChoice) {
    Start();
    Music(2, 3);
    EXPECT_EQ(Next(1, 2), "music 102 3");
}

TEST_F(NavigationTest, ASoundOnTheSameSlideIsNeitherNextNorPrevious) {
    Start();
    Music(3, 3);
    Comment(3, 3);
    for (const int32_t quoi : {0, 1, 2}) {
        EXPECT_EQ(Next(3, quoi), "none");
        EXPECT_EQ(Previous(3, quoi), "none");
    }
}

TEST_F(NavigationTest, ACommentFoundIsAlwaysAComment) {
    Start();
    line->Comments()->SetTypeSon(0);
    Comment(3, 4);
    EXPECT_EQ(Next(0, 1), "comment 103 4");
    EXPECT_EQ(Previous(9, 2), "comment 103 4");
}

TEST_F(NavigationTest, SetStartTellsForHowLongASoundStillPlays) {
    Start();
    Music(1, 100);
    EXPECT_EQ(Previous(4, 0, true), "music -1 15 nameless");
    EXPECT_EQ(Previous(4, 2, true), "music -1 15 nameless");
    EXPECT_EQ(Previous(4, 0, false), "music 101 100");
}

TEST_F(NavigationTest, SetStartSkipsSoundsThatStillPlay) {
    Start();
    Music(1, 2);
    Music(2, 100);
    Music(3, 5);
    EXPECT_EQ(Previous(4, 2, true), "music 101 2") << "one that ends right there still plays";
    EXPECT_EQ(Previous(4, 0, true), "music -1 5 nameless") << "of one kind alone the first one ends the search";
}

TEST_F(NavigationTest, SetStartForCommentsHasTheSameSteps) {
    Start();
    Comment(1, 2);
    Comment(2, 100);
    EXPECT_EQ(Previous(4, 1, true), "comment -1 10 nameless");
    EXPECT_EQ(Previous(4, 2, true), "comment 101 2");
}

TEST_F(NavigationTest, WhenOnlyPlayingSoundsAreFoundTheMusicsRecordComesBack) {
    Start();
    Music(2, 100);
    Comment(1, 100);
    EXPECT_EQ(Previous(4, 2, true), "music -1 10 nameless");
}

TEST_F(NavigationTest, SoundsOfSlidesThatLeftFollowTheFormula) {
    Start();
    Music(3, 2);
    sheet.LstInterne.RemoveItem(3);
    EXPECT_EQ(Previous(0, 0), "music 103 2") << "it stands before the show";
    EXPECT_EQ(Told(line->NextSound(555, 0)), "none");
    EXPECT_EQ(Next(0, 0), "none");
}

TEST_F(NavigationTest, WithoutASheetTheSearchIsReported) {
    Start();
    Music(3, 2);
    line->AttachVorlane(nullptr);
    EXPECT_EQ(Told(line->NextSound(7, 2)), "none");
    EXPECT_EQ(Told(line->PreviousSound(7, 1, true)), "none");
    EXPECT_EQ(Heard(),
              "host Error 91 [TimeLine NextSound 7 - 2]\n"
              "host Error 91 [TimeLine PreviousSound 7 - 1 - -1]\n");
}

// --- GetMusicAt and GetCommentAt ---

TEST_F(NavigationTest, TheSoundAtAPlaceTellsItsSecondsUpToThere) {
    Start();
    Music(0, 4);
    Comment(1, 5);
    line->Paint();
    EXPECT_EQ(Told(line->GetMusicAt(0)), "music 100 0");
    EXPECT_EQ(Told(line->GetMusicAt(75)), "music 100 2") << "two and a half, to the even neighbour";
    EXPECT_EQ(Told(line->GetMusicAt(120)), "music 100 4");
    EXPECT_EQ(Told(line->GetCommentAt(180)), "comment 101 1");
}

TEST_F(NavigationTest, OffTheBarsAndBeforeAPaintTheRecordIsEmpty) {
    Start();
    Music(0, 4);
    EXPECT_EQ(line->GetMusicAt(10), tSon{}) << "no paint has made the bar yet";
    line->Paint();
    EXPECT_EQ(line->GetMusicAt(121), tSon{});
    EXPECT_EQ(line->GetCommentAt(10), tSon{});
}

TEST_F(NavigationTest, APlaceThatHasNoSecondIsReportedWithWhatWasFound) {
    Start();
    Music(0, 4, true);
    Comment(0, 3);
    line->Paint();
    line->SetRedraw(false);
    line->SetShowBarres(false);  // the bars stay as they are
    line->SetDiapoWidth(1e-30F);
    desktop.trace.Clear();
    EXPECT_EQ(Told(line->GetMusicAt(50)), "music 100 4");
    EXPECT_EQ(Heard(), "host Error 6 [TimeLine GetMusicAt 50]\n");
    EXPECT_EQ(Told(line->GetCommentAt(50)), "comment 100 3");
    EXPECT_EQ(Heard(), "host Error 6 [TimeLine GetCommentAt 50]\n");
}

// --- The menu ---

TEST_F(NavigationTest, TheRightButtonOpensTheWholeMenuAtThePointer) {
    Start();
    Music(1, 3);
    Comment(2, 3);
    window.Click(20, 20, headless::kRightButton);
    const std::string menus = Menus();
    EXPECT_NE(menus.find("menu 1 102 [0:05 " + folder.At("m1.wav") + "\\t(1.jpg)]\n"), std::string::npos) << menus;
    EXPECT_NE(menus.find("menu 1 103 [0:10 " + folder.At("c2.wav") + "\\t(2.jpg)]\n"), std::string::npos) << menus;
    EXPECT_NE(menus.find("track flags=1182 at 20,220 over 2 "), std::string::npos) << menus;
}

TEST_F(NavigationTest, OtherButtonsAndAMissingSheetOpenNothing) {
    Start();
    window.Click(20, 20);
    window.Click(20, 20, headless::kMiddleButton);
    line->AttachVorlane(nullptr);
    window.Click(20, 20, headless::kRightButton);
    EXPECT_EQ(Menus(), "");
}

TEST_F(NavigationTest, AHostOpensTheWholeMenuWhereItLikes) {
    Start();
    Music(1, 3);
    Comment(2, 3);
    line->ContextMenu(7, 8);
    const std::string menus = Menus();
    for (const char* item : {"-5 [", "102 [", "103 [", "track flags=1182 at 7,8 over 2 "}) {
        EXPECT_NE(menus.find(item), std::string::npos) << menus;
    }
    line->AttachVorlane(nullptr);
    line->ContextMenu(7, 8);
    EXPECT_EQ(Menus(), "");
}

TEST_F(NavigationTest, WithControlOnARowOnlyItsSoundsAreListed) {
    Start();
    Music(1, 3);
    Comment(2, 3);
    line->Paint();
    const auto lists = [&](float y, int16_t shift) {
        window.Click(20, y, headless::kRightButton, shift);
        const std::string menus = Menus();
        EXPECT_NE(menus.find("-5 ["), std::string::npos) << "the commands are there";
        return std::string(menus.find("m1.wav") != std::string::npos ? "m" : "") +
               (menus.find("c2.wav") != std::string::npos ? "c" : "");
    };
    EXPECT_EQ(lists(3, headless::kCtrl), "m");
    EXPECT_EQ(lists(11, headless::kCtrl), "m");
    EXPECT_EQ(lists(12, headless::kCtrl), "mc");
    EXPECT_EQ(lists(29, headless::kCtrl), "c");
    EXPECT_EQ(lists(37, headless::kCtrl), "c");
    EXPECT_EQ(lists(5, 0), "mc");
    EXPECT_EQ(lists(5, headless::kShift), "mc");
}

TEST_F(NavigationTest, MenuListsTheSoundsAskedForAlone) {
    Start();
    Music(1, 3);
    Comment(2, 3);
    const std::string music = "menu 1 102 [0:05 " + folder.At("m1.wav") + "\\t(1.jpg)]\n";
    line->Menu(0, 7, 8);
    EXPECT_EQ(Menus(), "menu 1 create\n" + music +
                           "menu bar of 2\n"
                           "menu 1 track flags=1182 at 7,8 over 2 size=20 exclude=0,0,0,0\n"
                           "menu 1 destroy\n")
        << "no trailing separator";
    line->Menu(1);
    EXPECT_EQ(Menus().find("m1.wav"), std::string::npos);
    line->Menu(2);
    EXPECT_NE(Menus().find(".jpg)]\nmenu 3 ----\nmenu 3 103 ["), std::string::npos);
    line->Menu(3);
    line->Menu(-1);
    EXPECT_EQ(Menus(), "");
}

TEST_F(NavigationTest, AChosenSoundShowsItsSlide) {
    Start();
    ShowSheet();
    Music(6, 3);
    desktop.menus.Choose(107);
    line->Menu(0);
    EXPECT_EQ(Top(), 106);
    EXPECT_EQ(sheet.CurrentDiapo(), 0);
    EXPECT_EQ(Heard(), "");
}

TEST_F(NavigationTest, ADismissedMenuLeavesTheCurrentSlideAlone) {
    Start();
    ShowSheet();
    Music(6, 3);
    MakeCurrent(2);
    line->Menu(2);
    EXPECT_EQ(Top(), 100);
    EXPECT_EQ(sheet.CurrentDiapo(), 2);
}

TEST_F(NavigationTest, EachCommandJumpsFromTheCurrentSlide) {
    Start();
    for (const int32_t n : {0, 3}) Music(n, 1);
    for (const int32_t n : {6, 9}) Comment(n, 1);
    const auto jump = [&](int32_t command, int32_t from) {
        sheet.StartLecture({}, 100 + from);
        for (int16_t k = 0; k < sheet.CountAffiché(); ++k) sheet.SetSelected(k, false);
        MakeCurrent(sheet.GetIndexFromKey(100 + from));
        line->MnuCtx_ItemClic(command);
        return Top();
    };
    EXPECT_EQ(jump(emnutlNextMusic, 0), 103);
    EXPECT_EQ(jump(emnutlPreviousMusic, 3), 100);
    EXPECT_EQ(jump(emnutlNextComment, 0), 106);
    EXPECT_EQ(jump(emnutlPreviousComment, 7), 106);
    EXPECT_EQ(jump(emnutlNextSound, 0), 106);
    EXPECT_EQ(jump(emnutlPreviousSound, 3), 100);
    EXPECT_EQ(Heard(), "");
}

TEST_F(NavigationTest, ACommandThatFindsNothingOrIsUnknownLeavesTheSheetAlone) {
    Start();
    ShowSheet();
    MakeCurrent(2);
    for (const int32_t command : {-7, -6, -1, 0}) line->MnuCtx_ItemClic(command);
    EXPECT_EQ(desktop.trace.Take({"load", "host"}), "");
    EXPECT_EQ(Top(), 100);
}

TEST_F(NavigationTest, CommandsNeedACurrentSlide) {
    Start();
    ShowSheet();
    Music(6, 3);
    line->MnuCtx_ItemClic(emnutlNextMusic);
    EXPECT_EQ(Top(), 100);
    EXPECT_EQ(Heard(), "");
}

TEST_F(NavigationTest, AChoiceWithoutASheetIsReported) {
    Start();
    line->AttachVorlane(nullptr);
    line->MnuCtx_ItemClic(5);
    line->MnuCtx_ItemClic(emnutlNextSound);
    EXPECT_EQ(Heard(),
              "host Error 91 [TimeLine MnuCtx_ItemClic 5]\n"
              "host Error 91 [TimeLine MnuCtx_ItemClic -6]\n");
}

TEST_F(NavigationTest, AFailureInsideAMenuIsIgnoredAndTheNextOneOpens) {
    Start();
    Music(1, 3);
    line->AttachVorlane(nullptr);
    line->Menu(0);
    EXPECT_EQ(Menus(), "menu 1 create\nmenu 1 destroy\n") << "nobody can tell where the sound starts";
    EXPECT_EQ(Heard(), "");
    line->AttachVorlane(&sheet);
    line->Menu(0);
    EXPECT_NE(Menus().find("track"), std::string::npos);
}

TEST_F(NavigationTest, ATimeLineMayEndWhileItsMenuIsOpen) {
    Start();
    Music(1, 3);
    desktop.menus.Choose(102);
    desktop.menus.OnTrack = [this] { line.reset(); };
    line->Menu(0);
    EXPECT_EQ(line, nullptr);
    EXPECT_EQ(desktop.menus.OpenMenus(), 0);
}

TEST_F(NavigationTest, ATimeLineMayEndWhileTheSheetShowsTheChosenSlide) {
    Start();
    ShowSheet();
    Music(6, 3);
    const auto endInside = [this](auto&& choose) {
        if (line == nullptr) {
            Make(window.Ambient());
            Start();
            Music(6, 3);
        }
        sheet.StartLecture();
        sheet.SetSelected(0, false);
        MakeCurrent(0);
        const ScopedConnection ends = sheet.Events.DisplayStart.connect([this](auto&&...) { line.reset(); });
        choose();
        EXPECT_EQ(line, nullptr);
        EXPECT_EQ(Top(), 106) << "the sheet goes on";
    };
    endInside([this] { line->MnuCtx_ItemClic(107); });
    endInside([this] { line->MnuCtx_ItemClic(emnutlNextMusic); });
    endInside([this] { line->KeyCommand(117); });
    endInside([this] {
        int16_t key = 117;
        sheet.Events.KeyDown(key, 0);
    });
    endInside([this] {
        desktop.menus.Choose(107);
        line->Menu(0);
    });
    endInside([this] {
        desktop.menus.Choose(107);
        line->ContextMenu(5, 5);
    });
}

TEST_F(NavigationTest, ATimeLineMayEndAsASearchThatFailedIsReportedAndThenNothingIsSelected) {
    for (int32_t n = 12; n < 70000; ++n) {
        sheet.LstInterne.AddItem("/p/x.jpg");
        sheet.LstInterne.SetItemData(n, 100 + n);
    }
    Start();
    Music(6, 3);
    Comment(69999, 3);  // its start is beyond any number
    line->SetExpositionTime(32767);
    ShowSheet();
    MakeCurrent(0);
    line->Events.Error.connect([this](auto&&...) { line.reset(); });
    line->MnuCtx_ItemClic(emnutlNextSound);
    EXPECT_EQ(line, nullptr);
    EXPECT_EQ(Heard(), "host Error 6 [TimeLine NextSound 100 - 2]\n");
    EXPECT_EQ(Top(), 100);
}

}  // namespace
}  // namespace vorlane
