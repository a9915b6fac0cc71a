#include "timelinetest.h"

namespace vorlane {
namespace {

class PaintingTest : public TimeLineTest {
protected:
    // The marks of the usual strip without a border.
    static constexpr const char* kMarks = R"(
Line 0,40 0,35 #F34141
Text 0,21 "0:00" #F34141 "Sans Serif" 8.25
Line 150,40 150,35 #F34141
Text 150,21 "0:05" #F34141 "Sans Serif" 8.25
Line 300,40 300,35 #F34141
Text 300,21 "0:10" #F34141 "Sans Serif" 8.25
)";

    PropertyBag With(const std::string& key, BagValue value) {
        PropertyBag bag = Plain();
        bag.SetValue(key, std::move(value));
        return bag;
    }
};

// --- When it paints ---

TEST_F(PaintingTest, BeforeShowAPaintOnlyUpdatesTheBordersWidth) {
    line->Move(0, 0, 300, 40);
    line->ReadProperties(With("BorderStyle", int64_t{12}));
    EXPECT_EQ(line->BorderWidth(), 0);
    line->Paint();
    EXPECT_EQ(line->BorderWidth(), 1);
    EXPECT_TRUE(line->Surface().Commands().empty());
    EXPECT_EQ(desktop.trace.Take({"region"}), "");
    line->Show();
    EXPECT_FALSE(line->Surface().Commands().empty());
}

TEST_F(PaintingTest, APaintInsideAPaintIsStopped) {
    Start();
    int changes = 0;
    const ScopedConnection painting = line->Surface().Changed.connect([&] {
        ++changes;
        line->Paint();
    });
    line->Paint();
    EXPECT_EQ(changes, 1) << "a paint tells of all that it changes at once";
    EXPECT_EQ(Drawn(), kMarks);
    EXPECT_TRUE(Paints([&] { line->Refresh(); }));
}

TEST_F(PaintingTest, ANewSizePaintsAnew) {
    Start();
    window.Resize(140, 40);
    EXPECT_EQ(Drawn(), R"(
Line 0,40 0,35 #F34141
Text 0,21 "0:00" #F34141 "Sans Serif" 8.25
)");
}

// --- The ground ---

TEST_F(PaintingTest, EqualColoursMakeAPlainGround) {
    Start();
    EXPECT_EQ(line->Surface().BackColor(), 0xFFFFFFU);
    EXPECT_EQ(Drawn(), kMarks);
}

TEST_F(PaintingTest, DifferentColoursMakeAGradientOverTheWholeStrip) {
    Start(PropertyBag{});
    EXPECT_EQ(Drawn("GradientFill"), R"(
GradientFill down [0,0 FF00/FF00/FF00 to 300,40 C800/DC00/F000]
)");
}

TEST_F(PaintingTest, AnInvertedGradientThatTurnsInTheMiddleHasItsSecondColourAtTheEdges) {
    Start();
    line->SetGradientColorStart(0x0000FF);
    line->SetGradientDirection(2);
    line->SetGradientColorInverse(true);
    EXPECT_EQ(Drawn("GradientFill"), R"(
GradientFill down [0,0 FF00/FF00/FF00 to 300,20 FF00/0000/0000] [0,20 FF00/0000/0000 to 300,40 FF00/FF00/FF00]
)");
}

// --- Shape and border ---

TEST_F(PaintingTest, TheWindowIsShapedAtEachPaint) {
    Start();
    line->Paint();
    EXPECT_EQ(desktop.trace.Take({"region"}), "region 2 rect 0,0,300,40 redraw\n");
    line->SetRound(true);
    EXPECT_EQ(desktop.trace.Take({"region"}), "region 2 round 0,0,300,40 7x7 redraw\n");
    line->SetRoundBorder(15);
    EXPECT_EQ(desktop.trace.Take({"region"}), "region 2 round 0,0,300,40 15x15 redraw\n");
}

TEST_F(PaintingTest, EachKindOfBorderDrawsItsEdge) {
    Start();
    line->SetMargeGauche(400);  // no mark in sight
    const auto drawn = [&](int32_t kind) {
        line->SetBorderStyle(kind);
        return std::to_string(line->BorderWidth()) + Drawn();
    };
    EXPECT_EQ(drawn(0), "0\n");
    EXPECT_EQ(drawn(1), "1\nDrawEdge 0,0 300,40 edge 04 flags 400F\n");
    EXPECT_EQ(drawn(2), "1\nDrawEdge 0,0 300,40 edge 04 flags C00F\n");
    EXPECT_EQ(drawn(3), "1\nDrawEdge 0,0 300,40 edge 03 flags 400F\n");
    EXPECT_EQ(drawn(4), "1\nDrawEdge 0,0 300,40 edge 02 flags C00F\n");
    EXPECT_EQ(drawn(5), "2\nDrawEdge 0,0 300,40 edge 09 flags 100F\n");
    EXPECT_EQ(drawn(6), "2\nDrawEdge 0,0 300,40 edge 06 flags 000F\n");
    EXPECT_EQ(drawn(7), "2\nDrawEdge 0,0 300,40 edge 05 flags 400F\n");
    EXPECT_EQ(drawn(8), "1\nDrawEdge 0,0 300,40 edge 04 flags 000F\n");
    EXPECT_EQ(drawn(9), "2\nDrawEdge 0,0 300,40 edge 05 flags 000F\n");
    EXPECT_EQ(drawn(10), "1\nDrawEdge 0,0 300,40 edge 02 flags 000F\n");
    EXPECT_EQ(drawn(11), "2\nDrawEdge 0,0 300,40 edge 0A flags 000F\n");
    EXPECT_EQ(drawn(12), "1\nBox 0,0 299,39 #E3CFC9\n");
    EXPECT_EQ(drawn(13), "0\nDrawEdge 0,0 300,40 edge 0D flags 000F\n");
    EXPECT_EQ(drawn(-1), "0\nDrawEdge 0,0 300,40 edge FFFFFFFF flags 000F\n");
}

TEST_F(PaintingTest, ARoundStripHasAnOutlineInPlaceOfItsBorder) {
    Start();
    line->SetMargeGauche(400);
    line->SetRound(true);
    const auto drawn = [&](int32_t kind) {
        line->SetBorderStyle(kind);
        return Drawn();
    };
    const std::string white = "\nRoundRect 0,0 299,39 corner 7x7 #FFFFFF\n";
    const std::string colored = "\nRoundRect 0,0 299,39 corner 7x7 #E3CFC9\n";
    EXPECT_EQ(drawn(0), "\n");
    for (const int32_t kind : {1, 3, 5, 7, 9, 11, 13, 14, -2}) EXPECT_EQ(drawn(kind), white) << kind;
    for (const int32_t kind : {2, 4, 6, 8, 10, 12}) EXPECT_EQ(drawn(kind), colored) << kind;
}

TEST_F(PaintingTest, OnAnOldSystemARoundStripHasBothItsOutlineAndItsBorder) {
    Make(window.Ambient(), 2);
    PropertyBag bag = Plain();
    bag.SetValue("Round", true);
    bag.SetValue("BorderStyle", int64_t{1});
    bag.SetValue("MargeGauche", int64_t{400});
    Start(bag);
    EXPECT_EQ(Drawn(), R"(
RoundRect 0,0 299,39 corner 7x7 #FFFFFF
DrawEdge 0,0 300,40 edge 04 flags 400F
)");
}

// --- Time marks ---

TEST_F(PaintingTest, TheSecondTenLandsAt301BehindASolidBorder) {
    PropertyBag bag = Plain();
    bag.SetValue("BorderStyle", int64_t{12});
    Start(bag);
    window.Resize(302, 40);
    EXPECT_EQ(Drawn(), R"(
Box 0,0 301,39 #E3CFC9
Line 1,39 1,34 #F34141
Text 1,20 "0:00" #F34141 "Sans Serif" 8.25
Line 151,39 151,34 #F34141
Text 151,20 "0:05" #F34141 "Sans Serif" 8.25
Line 301,39 301,34 #F34141
Text 301,20 "0:10" #F34141 "Sans Serif" 8.25
)");
}

TEST_F(PaintingTest, TheFirstMarkShowsTheFirstSecondBehindTheMargin) {
    Start();
    line->SetStartPoint(12);
    line->SetMargeGauche(200);
    EXPECT_EQ(Drawn(), R"(
Line 200,40 200,35 #F34141
Text 200,21 "1:00" #F34141 "Sans Serif" 8.25
)");
}

TEST_F(PaintingTest, AFreeScaleLeavesRoomForItsLabels) {
    // A label is eleven characters of 6 pixels, blanks included: 66 pixels, which are three seconds.
    Start();
    line->SetStyle(etlType::etltFree);
    EXPECT_EQ(Drawn("Text"), R"(
Text 0,21 "0:00" #F34141 "Sans Serif" 8.25
Text 90,21 "0:03" #F34141 "Sans Serif" 8.25
Text 180,21 "0:06" #F34141 "Sans Serif" 8.25
Text 270,21 "0:09" #F34141 "Sans Serif" 8.25
)");
}

TEST_F(PaintingTest, ADisabledFreeScaleHasGreyLabelsAndTicksInTheirColour) {
    Start();
    line->SetStyle(etlType::etltFree);
    line->SetExpositionTime(1);
    line->SetEnabled(false);
    EXPECT_EQ(Drawn(), R"(
Line 0,40 0,35 #F34141
Text 0,21 "0:00" sys17 "Sans Serif" 8.25
Line 150,40 150,35 #F34141
Text 150,21 "0:01" sys17 "Sans Serif" 8.25
Line 300,40 300,35 #F34141
Text 300,21 "0:02" sys17 "Sans Serif" 8.25
)");
    line->SetStyle(etlType::etltFollowDiapo);
    EXPECT_EQ(Drawn("Text").find("sys17"), std::string::npos) << "one mark to a slide keeps its colour";
}

TEST_F(PaintingTest, OnAVeryLowStripTheTickIsClippedAndTheLabelStartsAtTheTop) {
    Start();
    window.Resize(100, 3);
    EXPECT_EQ(Drawn(), R"(
Line 0,3 0,0 #F34141
Text 0,0 "0:00" #F34141 "Sans Serif" 8.25
)");
    line->SetBorderStyle(5);
    EXPECT_EQ(Drawn("Line"), "\nLine 2,1 2,0 #F34141\n");
}

TEST_F(PaintingTest, AWidthOfZeroBecomes50AtTheFirstPaintAndStaysSo) {
    Items(3);
    line->Musiques()->Add(File("m.wav", 4), 100);
    Start(With("DiapoWidth", 0.0));
    EXPECT_EQ(line->DiapoWidth(), 50.0F);
    EXPECT_EQ(Drawn(), R"(
Line 0,40 0,35 #F34141
Text 0,21 "0:00" #F34141 "Sans Serif" 8.25
Line 50,40 50,35 #F34141
Text 50,21 "0:05" #F34141 "Sans Serif" 8.25
Line 100,40 100,35 #F34141
Text 100,21 "0:10" #F34141 "Sans Serif" 8.25
Line 150,40 150,35 #F34141
Text 150,21 "0:15" #F34141 "Sans Serif" 8.25
Line 200,40 200,35 #F34141
Text 200,21 "0:20" #F34141 "Sans Serif" 8.25
Line 250,40 250,35 #F34141
Text 250,21 "0:25" #F34141 "Sans Serif" 8.25
Line 300,40 300,35 #F34141
Text 300,21 "0:30" #F34141 "Sans Serif" 8.25
)");
    line->Paint();
    EXPECT_EQ(Told(line->MusicBars()), "100:0+40") << "the bars come with the next paint";
    EXPECT_EQ(Heard(), "") << "nothing is reported";
}

TEST_F(PaintingTest, ATimeOfZeroBecomes1AtTheFirstPaintAndStaysSo) {
    Start(With("ExpositionTime", int64_t{0}));
    EXPECT_EQ(line->ExpositionTime(), 1);
    EXPECT_EQ(Drawn("Text 150"), "\nText 150,21 \"0:01\" #F34141 \"Sans Serif\" 8.25\n");
    line->SetExpositionTime(-4);
    EXPECT_EQ(line->ExpositionTime(), 1);
    EXPECT_EQ(Heard(), "host changed ExpositionTime\n");
}

TEST_F(PaintingTest, ANegativeWidthLeavesOneMark) {
    Start();
    line->SetDiapoWidth(-30);
    EXPECT_EQ(Drawn("Line"), "\nLine 0,40 0,35 #F34141\n");
    line->SetStyle(etlType::etltFree);
    EXPECT_EQ(Drawn("Line"), "\nLine 0,40 0,35 #F34141\n");
}

TEST_F(PaintingTest, AStartThatNoNumberHoldsLeavesTheScaleAtItsBeginning) {
    Start();
    line->SetStartPoint(2000000000);
    EXPECT_EQ(Drawn(), kMarks);
    EXPECT_EQ(Heard(), "host changed StartPoint\n");
}

// --- The order of it all ---

TEST_F(PaintingTest, EverythingIsDrawnInItsOrder) {
    Items(6);
    Start(PropertyBag{});
    line->SetBorderStyle(8);
    line->Musiques()->Add(File("m.wav", 3), 100);
    line->Comments()->Add(File("c.wav", 4), 101);
    line->Record(2, 0);
    EXPECT_EQ(Drawn(), R"(
GradientFill down [0,0 FF00/FF00/FF00 to 300,40 C800/DC00/F000]
DrawEdge 0,0 300,40 edge 04 flags 000F
GradientFill across [1,3 FF00/FF00/8000 to 91,11 FF00/FF00/FF00]
Box 1,3 91,11 #00C0C0
GradientFill across [151,29 8000/FF00/8000 to 271,37 FF00/FF00/FF00]
Box 151,29 271,37 #00C000
GradientFill across [1,16 EB00/0100/0100 to 61,24 FF00/6000/6000]
Box 1,16 61,24 #0EADFA
Polygon 56,0 61,5 66,0 #F34141 fill #FF0000
Line 1,39 1,34 #F34141
Text 1,20 "0:00" #F34141 "Sans Serif" 8.25
Line 151,39 151,34 #F34141
Text 151,20 "0:05" #F34141 "Sans Serif" 8.25
)");
}

}  // namespace
}  // namespace vorlane
