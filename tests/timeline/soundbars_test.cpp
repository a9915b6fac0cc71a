#include "timelinetest.h"

#include <random>
#include <vector>

namespace vorlane {
namespace {

class SoundBarsTest : public TimeLineTest {
protected:
    SoundBarsTest() { Items(40); }

    std::string Musics() { return Told(line->MusicBars()); }
    std::string Comments() { return Told(line->CommentBars()); }
    // The outlines of the bars: where they stand, and which colours they have.
    std::string Boxes() const { return Drawn("Box"); }
};

TEST_F(SoundBarsTest, ASoundOfTenSecondsOnTheFirstVisibleSlide) {
    Start();
    window.Resize(400, 40);
    line->SetBorderStyle(12);
    line->SetStartPoint(4);
    Music(4, 10);
    line->Paint();
    EXPECT_EQ(Musics(), "104:1+300");
}

TEST_F(SoundBarsTest, ANonRepeatingSoundFromTheLeftShowsWhatIsLeftOfItAndTheMargin) {
    Start();
    window.Resize(600, 40);
    line->SetBorderStyle(12);
    line->SetMargeGauche(4);
    line->SetStartPoint(1);
    Music(0, 20);
    line->Paint();
    EXPECT_EQ(Musics(), "100:1+454");
}

TEST_F(SoundBarsTest, ARepeatingSoundFromLongBeforeFillsTheRowUpToTheNextSound) {
    Start();
    line->SetBorderStyle(12);
    line->SetStartPoint(20);
    Music(0, 3, true);
    Music(21, 2);
    line->Paint();
    EXPECT_EQ(Musics(), "100:1+90 100:91+60 121:151+60");
}

TEST_F(SoundBarsTest, OfTwoRepeatingSoundsFromTheLeftOnlyTheLaterIsDrawn) {
    Start();
    line->SetStartPoint(20);
    Music(0, 3, true);
    Music(5, 4, true);
    line->Paint();
    EXPECT_EQ(Musics(), "105:0+120 105:120+120 105:240+60");
}

TEST_F(SoundBarsTest, ANonRepeatingSoundThatEndedHidesAnEarlierRepeatingOne) {
    Start();
    line->SetStartPoint(20);
    Music(0, 3, true);
    Music(5, 4);
    Comment(0, 7, true);
    line->Paint();
    EXPECT_EQ(Musics(), "");
    EXPECT_EQ(Comments(), "100:0+210 100:210+90") << "each row has its own flag";
}

TEST_F(SoundBarsTest, ASoundCutByANeighbourEndsBeforeItAndARepetitionOnIt) {
    Start();
    Music(0, 30);
    Music(1, 5);
    Comment(0, 2, true);
    Comment(1, 5);
    line->Paint();
    EXPECT_EQ(Musics(), "100:0+149 101:150+150");
    EXPECT_EQ(Comments(), "100:0+60 100:60+60 100:120+30 101:150+150");
}

TEST_F(SoundBarsTest, SoundsBeyondTheRightEdgeAreLeftOut) {
    Start();
    Music(1, 100);
    Music(2, 100);
    line->Paint();
    EXPECT_EQ(Musics(), "101:150+150");
}

TEST_F(SoundBarsTest, NeighbouringSlidesAlternateBetweenTheTwoSets) {
    Start();
    line->SetDiapoWidth(60);
    Music(0, 3, true);
    Music(1, 5);
    Music(2, 5);
    Comment(1, 5);
    Comment(3, 5);
    line->Paint();
    EXPECT_EQ(Boxes(), R"(
Box 0,3 36,11 #00C0C0
Box 60,29 120,37 #00C000
Box 36,3 60,11 #00C0C0
Box 180,29 240,37 #808000
Box 60,3 119,11 #0080FF
Box 120,3 180,11 #00C0C0
)");
    EXPECT_EQ(Drawn("GradientFill"), R"(
GradientFill across [0,3 FF00/FF00/8000 to 36,11 FF00/FF00/FF00]
GradientFill across [60,29 8000/FF00/8000 to 120,37 FF00/FF00/FF00]
GradientFill across [36,3 FF00/FF00/8000 to 60,11 FF00/FF00/FF00]
GradientFill across [180,29 8000/FF00/FF00 to 240,37 FF00/FF00/FF00]
GradientFill across [60,3 FF00/C000/8000 to 119,11 FF00/FF00/FF00]
GradientFill across [120,3 FF00/FF00/8000 to 180,11 FF00/FF00/FF00]
)");
}

TEST_F(SoundBarsTest, CommentsGoOnTopWhenTheyShould) {
    Start();
    Music(0, 2);
    Comment(0, 4);
    line->SetBarreOnTop(7);
    EXPECT_EQ(Boxes(), "\nBox 0,29 60,37 #00C0C0\nBox 0,3 120,11 #00C000\n");
    EXPECT_EQ(line->BarTopMusic(), 29);
    EXPECT_EQ(line->BarTopComment(), 3);
    line->SetBarreMarge(1);
    line->SetBarreHeight(10);
    EXPECT_EQ(Boxes(), "\nBox 0,29 60,39 #00C0C0\nBox 0,1 120,11 #00C000\n");
}

TEST_F(SoundBarsTest, ASoundWhoseSlideHasLeftGivesNoBarAndStaysInTheCollection) {
    Start();
    Music(0, 2);
    Music(1, 2);
    sheet.Liste()->AsListBox()->RemoveItem(0);
    line->Paint();
    EXPECT_EQ(Musics(), "101:0+60");
    EXPECT_EQ(line->Musiques()->Count(), 2);
}

TEST_F(SoundBarsTest, BarsFollowTheOrderOfTheSheetAtEachPaint) {
    Start();
    Music(0, 2);
    sheet.Add("/p/new.jpg", "", 999, 0);
    line->Paint();
    EXPECT_EQ(Musics(), "100:150+60");
}

TEST_F(SoundBarsTest, WithTheBarsHiddenTheListsStayAndTheTooltipGoesOnShowingThem) {
    Start();
    Music(0, 2);
    line->Paint();
    line->SetShowBarres(false);
    EXPECT_EQ(Boxes(), "\n");
    EXPECT_EQ(Musics(), "100:0+60");
    EXPECT_EQ(line->ToolTipAt(10, 5), folder.At("m0.wav") + " 2 s");
}

TEST_F(SoundBarsTest, InADesignerNoBarsAppear) {
    Ambient designer = window.Ambient();
    designer.UserMode = false;
    Make(designer);
    Start();
    Music(0, 2);
    line->Paint();
    EXPECT_EQ(Boxes(), "\n");
    EXPECT_EQ(Musics(), "");
    EXPECT_NE(Drawn("Text"), "\n");
}

TEST_F(SoundBarsTest, WithoutASheetNothingIsDrawnForSoundsAndNothingReported) {
    Start();
    Music(0, 2);
    line->AttachVorlane(nullptr);
    line->Paint();
    EXPECT_EQ(Musics(), "");
    EXPECT_EQ(Boxes(), "\n");
    EXPECT_EQ(Heard(), "");
}

TEST_F(SoundBarsTest, ASoundWhoseStartNoNumberHoldsIsLeftOut) {
    Start();
    for (int32_t n = 40; n < 70000; ++n) {
        sheet.LstInterne.AddItem("/p/x.jpg");
        sheet.LstInterne.SetItemData(n, 100 + n);
    }
    Music(65001, 2);
    Music(69999, 2);
    line->SetExpositionTime(32767);
    line->SetStartPoint(65000);
    EXPECT_EQ(Musics(), "65101:150+0");
    EXPECT_EQ(Heard().find("Error"), std::string::npos);
}

TEST_F(SoundBarsTest, ABarThatCantBeExtendedIsReportedAndThePaintGoesOn) {
    Start();
    Music(0, 2, true);
    line->SetDiapoWidth(5e9F);
    desktop.trace.Clear();
    line->Move(0, 0, 1e10, 40);
    EXPECT_EQ(Heard(), "host Error 6 [TimeLine RepetSon ]\n");
    EXPECT_NE(Drawn("Box"), "\n");
    EXPECT_NE(Drawn("Text"), "\n");
}

TEST_F(SoundBarsTest, AHostMayEndTheTimeLineAsItHearsOfABarWithoutAGround) {
    Start();
    line->SetShowBarres(false);
    for (int32_t n = 0; n < 20; ++n) Music(n, 2);
    line->SetDiapoWidth(3e9F);
    line->Move(0, 0, 6e10F, 40);
    line->SetShowBarres(true);
    const std::string whole = Boxes();
    int32_t heard = 0;
    std::vector<std::vector<float>> others;  // in place of what the bars had
    line->Events.Error.connect([&](auto&&...) {
        if (++heard != 15) return;
        line->Terminate();
        for (int i = 0; i < 100; ++i) others.emplace_back(128, 7.0F);
    });
    line->Paint();
    EXPECT_EQ(heard, 15);
    EXPECT_EQ(Boxes(), whole) << "the one that the surface can hold";
}

// --- Without a walk over all sounds ---

// Two strips over the same sounds. A collection knows the places of its sounds for one owner, so that the first strip
// walks over all of them, while the second looks them up.
TEST_F(SoundBarsTest, TheBarsAreThoseOfAWalkOverAllSounds) {
    std::mt19937 dice(31);  // NOLINT(cert-msc51-cpp): the same on every run
    const auto below = [&](int end) { return static_cast<int>(dice() % static_cast<unsigned>(end)); };
    Start();
    headless::Window otherWindow{desktop, {0, 300, 300, 340}};
    eTimeLine other{desktop.Roles(), otherWindow.Ambient()};
    other.AttachVorlane(&sheet);
    otherWindow.Host(other, Plain());
    const std::string file = File("m.wav", 3);
    int bars = 0;
    for (int round = 0; round < 400; ++round) {
        line->SetMusiques(std::make_shared<ClsSon>(desktop.Roles()));
        line->SetComments(std::make_shared<ClsSon>(desktop.Roles()));
        other.SetMusiques(line->Musiques());
        other.SetComments(line->Comments());
        for (const auto& sounds : {line->Musiques(), line->Comments()}) {
            for (int32_t n = 0; n < 40; ++n) {
                if (below(3) == 0) continue;
                const int32_t key = 100 + n;
                sounds->Add(file, key, -1, below(4) == 0);
                tSon son = *sounds->Item(key);
                son.Durée = below(10) == 0 ? below(250) : below(12) - 1;
                sounds->SetItem(key, son);
            }
            if (below(5) > 0) sounds->Sort();
        }
        for (eTimeLine* strip : {line.get(), &other}) {
            strip->SetMargeGauche(0);
            strip->SetStartPoint(0);
        }
        const std::mt19937 scene = dice;
        for (eTimeLine* strip : {line.get(), &other}) {
            dice = scene;
            strip->SetBorderStyle(below(13));
            strip->SetExpositionTime(static_cast<int16_t>(below(8) - 1));
            strip->SetDiapoWidth(static_cast<float>(below(200) - 5));
            strip->SetMargeGauche(static_cast<int16_t>(below(4) == 0 ? below(80) - 40 : 0));
            strip->SetStartPoint(below(45) - 3);
            strip->Move(0, 0, static_cast<float>(below(400)), 40);
            strip->Paint();
        }
        ASSERT_EQ(Told(other.MusicBars()), Told(line->MusicBars())) << round;
        ASSERT_EQ(Told(other.CommentBars()), Told(line->CommentBars())) << round;
        ASSERT_EQ(other.Surface().dump(), line->Surface().dump()) << round;
        bars += static_cast<int>(line->MusicBars().size());
    }
    EXPECT_GT(bars, 1000);
}

// --- The tooltip ---

TEST_F(SoundBarsTest, ATooltipTellsTheSoundUnderThePointer) {
    Start();
    Music(0, 2);
    Comment(0, 65);
    line->Paint();
    EXPECT_EQ(line->ToolTipAt(0, 3), folder.At("m0.wav") + " 2 s");
    EXPECT_EQ(line->ToolTipAt(60, 11), folder.At("m0.wav") + " 2 s");
    EXPECT_EQ(line->ToolTipAt(61, 11), "");
    EXPECT_EQ(line->ToolTipAt(0, 2), "");
    EXPECT_EQ(line->ToolTipAt(100, 29), folder.At("c0.wav") + " 1 min 05 s");
    EXPECT_EQ(line->ToolTipAt(100, 37), folder.At("c0.wav") + " 1 min 05 s");
    EXPECT_EQ(line->ToolTipAt(100, 38), "");
}

TEST_F(SoundBarsTest, WhereTheRowsOverlapTheMusicWins) {
    Start();
    window.Resize(300, 16);
    Music(0, 2);
    Comment(0, 5);
    line->Paint();
    EXPECT_EQ(line->ToolTipAt(30, 9), folder.At("m0.wav") + " 2 s");
    EXPECT_EQ(line->ToolTipAt(100, 9), folder.At("c0.wav") + " 5 s");
}

TEST_F(SoundBarsTest, ThePointersMoveShowsAndClearsTheTooltip) {
    Start();
    Music(0, 2);
    line->Paint();
    window.MouseTo(10, 5);
    EXPECT_EQ(line->ToolTipText(), folder.At("m0.wav") + " 2 s");
    window.MouseTo(10, 20);
    EXPECT_EQ(line->ToolTipText(), "");
}

}  // namespace
}  // namespace vorlane
