#include "timelinetest.h"

namespace vorlane {
namespace {

class IndicatorsTest : public TimeLineTest {
protected:
    std::string Triangles() const { return Drawn("Polygon"); }
    std::string Bar() const { return Drawn("Box"); }
};

// --- Playback ---

TEST_F(IndicatorsTest, LectureWithoutASlideWhileIdleDoesNothing) {
    Start();
    EXPECT_EQ(PaintsIn([&] { line->Lecture(7, -1); }), 0);
    EXPECT_EQ(PaintsIn([&] { line->Lecture(7); }), 0);
    EXPECT_EQ(PaintsIn([&] { line->Record(7); }), 0);
    line->Paint();
    EXPECT_EQ(Triangles(), "\n");
}

TEST_F(IndicatorsTest, TheFirstCallPaintsTwiceUnlessItTellsNoSecond) {
    Start();
    EXPECT_EQ(PaintsIn([&] { line->Lecture(3, 0); }), 2);
    line->LectureEnd();
    EXPECT_EQ(PaintsIn([&] { line->Lecture(0, 0); }), 1);
}

TEST_F(IndicatorsTest, ASecondCallWithTheSameSecondDoesNotPaint) {
    Start();
    line->Lecture(3, 0);
    EXPECT_EQ(PaintsIn([&] { line->Lecture(3, 0); }), 0);
    EXPECT_EQ(PaintsIn([&] { line->Lecture(4, 0); }), 1);
}

TEST_F(IndicatorsTest, ARunningIndicatorKeepsItsSlide) {
    Start();
    line->Lecture(2, 1);
    EXPECT_EQ(Triangles(), "\nPolygon 205,0 210,5 215,0 #F34141 fill #FF0000\n");
    line->Lecture(3, 0);
    EXPECT_EQ(Triangles(), "\nPolygon 235,0 240,5 245,0 #F34141 fill #FF0000\n");
}

TEST_F(IndicatorsTest, TheTriangleShowsAtTheTopAtTheBottomOrAtBoth) {
    Start();
    line->Lecture(2, 0);
    line->SetLectureIndicPos(0);
    EXPECT_EQ(Triangles(), "\nPolygon 55,39 60,34 65,39 #F34141 fill #FF0000\n");
    line->SetLectureIndicPos(2);
    EXPECT_EQ(Triangles(),
              "\nPolygon 55,0 60,5 65,0 #F34141 fill #FF0000\nPolygon 55,39 60,34 65,39 #F34141 fill #FF0000\n");
    line->SetLectureIndicPos(3);
    EXPECT_EQ(Triangles(), "\n");
    EXPECT_EQ(line->Surface().FillStyle(), 1);
}

TEST_F(IndicatorsTest, TheTrianglesOutlineIsOfTheColourThatTheStripLastDrewWith) {
    Start();
    line->SetRound(true);
    line->SetBorderStyle(12);
    line->SetBorderColor(0x123456);
    line->Lecture(2, 0);
    EXPECT_EQ(Triangles(), "\nPolygon 56,0 61,5 66,0 #123456 fill #FF0000\n");
    line->SetBorderStyle(1);
    EXPECT_EQ(Triangles(), "\nPolygon 56,0 61,5 66,0 #FFFFFF fill #FF0000\n");
}

TEST_F(IndicatorsTest, ATriangleOutsideWhatIsSeenIsNotDrawn) {
    Start();
    line->SetStartPoint(2);
    line->Lecture(0, 2);
    EXPECT_EQ(Triangles(), "\nPolygon -5,0 0,5 5,0 #F34141 fill #FF0000\n");
    line->Lecture(10, 2);
    EXPECT_EQ(Triangles(), "\nPolygon 295,0 300,5 305,0 #F34141 fill #FF0000\n");
    line->Lecture(11, 2);
    EXPECT_EQ(Triangles(), "\n");
    line->Lecture(-1, 2);
    EXPECT_EQ(Triangles(), "\n");
}

TEST_F(IndicatorsTest, LectureEndTakesTheTriangleAway) {
    Start();
    line->Lecture(2, 1);
    EXPECT_EQ(PaintsIn([&] { line->LectureEnd(); }), 1);
    EXPECT_EQ(Triangles(), "\n");
    EXPECT_EQ(PaintsIn([&] { line->LectureEnd(); }), 1) << "also when nothing runs";
}

// --- Recording ---

TEST_F(IndicatorsTest, ARecordingIsABarFromItsSlideOnAndATriangle) {
    Start();
    window.Resize(900, 40);
    line->Record(12, 3);
    EXPECT_EQ(Bar(), "\nBox 450,16 810,24 #0EADFA\n") << "from second 15 on, 360 pixels";
    EXPECT_EQ(Triangles(), "\nPolygon 805,0 810,5 815,0 #F34141 fill #FF0000\n");
    EXPECT_EQ(Drawn("GradientFill"), "\nGradientFill across [450,16 EB00/0100/0100 to 810,24 FF00/6000/6000]\n");
}

TEST_F(IndicatorsTest, ARecordBarIsCutAtTheRightEdge) {
    Start();
    line->SetBorderStyle(5);
    line->Record(12, 1);
    EXPECT_EQ(Bar(), "\nBox 152,16 296,24 #0EADFA\n");
}

TEST_F(IndicatorsTest, ARunThatBeganBeforeTheFirstSecondShowsFromTheLeftBorder) {
    Start();
    line->SetBorderStyle(12);
    line->SetMargeGauche(6);
    line->SetStartPoint(2);
    line->Record(12, 0);
    EXPECT_EQ(Drawn("Box 1,16"), "\nBox 1,16 67,24 #0EADFA\n");
    EXPECT_EQ(Triangles(), "\nPolygon 62,0 67,5 72,0 #F34141 fill #FF0000\n");
    line->Record(9, 0);
    EXPECT_EQ(Drawn("Box 1,16"), "\n") << "it ended left of the margin";
    EXPECT_EQ(Triangles(), "\n");
}

TEST_F(IndicatorsTest, ARecordingBehindTheRightEdgeIsNotSeen) {
    Start();
    line->Record(5, 2);
    EXPECT_EQ(Bar(), "\n");
}

TEST_F(IndicatorsTest, TheRecordColoursAreFixedWhateverTheirPropertiesHold) {
    Start();
    line->Record(2, 0);
    const std::string before = Drawn();
    EXPECT_EQ(PaintsIn([&] { line->SetRecordGradientColorStart(0x123456); }), 1);
    EXPECT_EQ(PaintsIn([&] { line->SetRecordGradientColorEnd(0x123456); }), 1);
    EXPECT_EQ(PaintsIn([&] { line->SetRecordBorderColor(0x123456); }), 1);
    EXPECT_EQ(Drawn(), before);
    EXPECT_EQ(line->RecordGradientColorStart(), 0x123456U);
}

TEST_F(IndicatorsTest, RecordEndEndsBoth) {
    Start();
    line->Record(2, 0);
    EXPECT_EQ(PaintsIn([&] { line->RecordEnd(); }), 1);
    EXPECT_EQ(Bar(), "\n");
    EXPECT_EQ(Triangles(), "\n");
    line->Lecture(3, 1);
    EXPECT_EQ(Triangles(), "\nPolygon 235,0 240,5 245,0 #F34141 fill #FF0000\n");
    EXPECT_EQ(Bar(), "\n");
}

TEST_F(IndicatorsTest, LectureEndDuringARecordingLeavesTheBarAtNegativeTime) {
    Start();
    line->SetMargeGauche(150);
    line->Record(7, 0);
    line->LectureEnd();
    EXPECT_EQ(Triangles(), "\n");
    EXPECT_EQ(Bar(), "\nBox 0,16 0,24 #0EADFA\n") << "from second -5 on, no second long, up to the margin";
    line->Record(4, 2);
    EXPECT_EQ(Bar(), "\nBox 0,16 120,24 #0EADFA\n") << "the recording still runs from there";
}

TEST_F(IndicatorsTest, ARecordingStaysWhereItBeganWhenItsSlideMovesOrLeaves) {
    Items(3);
    Start();
    line->Record(2, 1);
    const std::string before = Drawn();
    const auto take = [this](int32_t item) { sheet.LstInterne.RemoveItem(item); };
    take(1);
    sheet.LstInterne.AddItem("/p/1.jpg", 0);
    sheet.LstInterne.SetItemData(0, 101);
    EXPECT_EQ(PaintsIn([&] { sheet.Events.Sorted(); }), 1);
    EXPECT_EQ(Drawn(), before);
    take(0);
    int32_t key = 101;
    sheet.Events.Removed(0, key);
    EXPECT_EQ(PaintsIn([&] { sheet.Events.TLRefresh(); }), 1);
    EXPECT_EQ(Drawn(), before);
    line->Record(3);
    EXPECT_EQ(Bar(), "\nBox 150,16 240,24 #0EADFA\n");
}

TEST_F(IndicatorsTest, DuringARecordingTheMusicRowStandsInTheMiddle) {
    Items(3);
    Start();
    Music(0, 2);
    line->Record(1, 0);
    EXPECT_EQ(Drawn("Box 0,3"), "\nBox 0,3 60,11 #00C0C0\n") << "the bars are drawn before";
    EXPECT_EQ(line->ToolTipAt(10, 5), "");
    EXPECT_EQ(line->ToolTipAt(10, 20), folder.At("m0.wav") + " 2 s");
    line->SetShowBarres(false);
    line->RecordEnd();
    EXPECT_EQ(line->ToolTipAt(10, 20), folder.At("m0.wav") + " 2 s") << "until a paint sets the rows";
    line->SetShowBarres(true);
    EXPECT_EQ(line->ToolTipAt(10, 5), folder.At("m0.wav") + " 2 s");
}

}  // namespace
}  // namespace vorlane
