#include "tests/platform/expectfailure.h"
#include "timelinetest.h"

namespace vorlane {
namespace {

class GradientPainterTest : public TimeLineTest {
protected:
    // Starts an empty strip, without marks.
    void StartEmpty(int32_t systemFamily = Trelmic6::SystemFamily()) {
        Make(window.Ambient(), systemFamily);
        PropertyBag bag = Plain();
        bag.SetValue("MargeGauche", int64_t{400});
        Start(bag);
        line->Surface().Cls();
    }
};

constexpr OLE_COLOR kRed = 0x0000FF;
constexpr OLE_COLOR kWhite = 0xFFFFFF;

TEST_F(GradientPainterTest, ACurrentSystemTakesOneCall) {
    StartEmpty();
    line->GradientTrace(kRed, kWhite, 3, false, 10, 20, 100, 8);
    EXPECT_EQ(Drawn(), "\nGradientFill across [10,20 FF00/0000/0000 to 110,28 FF00/FF00/FF00]\n");
}

TEST_F(GradientPainterTest, EachWayAndItsInverse) {
    StartEmpty();
    const auto drawn = [&](int32_t direction, bool inverse) {
        line->Surface().Cls();
        line->GradientTrace(kRed, kWhite, direction, inverse, 0, 0, 100, 40);
        return Drawn();
    };
    EXPECT_EQ(drawn(1, false), "\nGradientFill down [0,0 FF00/0000/0000 to 100,40 FF00/FF00/FF00]\n");
    EXPECT_EQ(drawn(1, true), "\nGradientFill down [0,0 FF00/FF00/FF00 to 100,40 FF00/0000/0000]\n");
    EXPECT_EQ(drawn(2, true),
              "\nGradientFill down [0,0 FF00/FF00/FF00 to 100,20 FF00/0000/0000] "
              "[0,20 FF00/0000/0000 to 100,40 FF00/FF00/FF00]\n");
    EXPECT_EQ(drawn(3, true), "\nGradientFill across [0,0 FF00/FF00/FF00 to 100,40 FF00/0000/0000]\n");
    EXPECT_EQ(drawn(4, false),
              "\nGradientFill across [0,0 FF00/0000/0000 to 50,40 FF00/FF00/FF00] "
              "[50,0 FF00/FF00/FF00 to 100,40 FF00/0000/0000]\n");
    EXPECT_EQ(drawn(17, false), drawn(1, false));
}

TEST_F(GradientPainterTest, EqualColoursArePaintedLikeAnyOthers) {
    StartEmpty();
    line->GradientTrace(kRed, kRed, 3, false, 0, 0, 10, 8);
    EXPECT_EQ(Drawn(), "\nGradientFill across [0,0 FF00/0000/0000 to 10,8 FF00/0000/0000]\n");
}

TEST_F(GradientPainterTest, ASystemColourIsResolved) {
    StartEmpty();
    line->GradientTrace(FromSystem(SystemColor::Highlight), kRed, 3, false, 0, 0, 10, 8);
    EXPECT_EQ(Drawn(), "\nGradientFill across [0,0 0000/7800/D700 to 10,8 FF00/0000/0000]\n");
}

TEST_F(GradientPainterTest, AFailureIsReportedAndNothingIsDrawn) {
    StartEmpty();
    line->GradientTrace(kRed, FromSystem(SystemColor::Window), 3, true, 1.5F, 2, 1e20F, 8);
    EXPECT_EQ(Drawn(), "\n");
    EXPECT_EQ(Heard(), "host Error 6 [TimeLine GradientTrace 255 - -2147483643 - 3 - -1 - 1.5 - 2 - 1e+20 - 10]\n");
}

// --- Without gradients of its own ---

TEST_F(GradientPainterTest, OldSystemsAreKnownByTheirFamily) {
    for (const int32_t family : {1, 2, 3, 7}) {
        StartEmpty(family);
        line->GradientTrace(kRed, kWhite, 3, false, 0, 0, 1, 1);
        EXPECT_EQ(Drawn("GradientFill"), "\n") << family;
        EXPECT_EQ(line->PersistedProperties()[13].Default(*line), BagValue(int64_t{0xB4B4B4})) << family;
    }
    for (const int32_t family : {0, 4, 5, 6, 8, 12}) {
        StartEmpty(family);
        line->GradientTrace(kRed, kWhite, 3, false, 0, 0, 1, 1);
        EXPECT_NE(Drawn("GradientFill"), "\n") << family;
        EXPECT_EQ(line->PersistedProperties()[13].Default(*line), BagValue(int64_t{0xF0DCC8})) << family;
    }
}

TEST_F(GradientPainterTest, AnOldSystemDrawsLinesFromTheLeftEdgeWhateverThePlace) {
    StartEmpty(1);
    line->GradientTrace(0x000000, 0x040404, 3, false, 2, 6, 2, 4);
    EXPECT_EQ(Drawn(), R"(
Line 0,0 0,10 #000000
Line 1,0 1,10 #010101
Line 2,0 2,10 #020202
Line 3,0 3,10 #030303
Line 4,0 4,10 #040404
)");
}

TEST_F(GradientPainterTest, AnOldSystemDrawsLinesFromTheTopEdge) {
    StartEmpty(1);
    line->GradientTrace(0x000000, 0x030303, 1, true, 0, 0, 20, 3);
    EXPECT_EQ(Drawn(), R"(
Line 0,0 20,0 #030303
Line 0,1 20,1 #020202
Line 0,2 20,2 #010101
Line 0,3 20,3 #000000
)");
}

TEST_F(GradientPainterTest, AnOldSystemGoesBackBehindTheMiddle) {
    StartEmpty(1);
    const std::string expected = R"(
Line 0,0 0,10 #000000
Line 1,0 1,10 #020202
Line 2,0 2,10 #040404
Line 3,0 3,10 #020202
Line 4,0 4,10 #000000
)";
    line->GradientTrace(0x000000, 0x040404, 4, false, 0, 0, 4, 10);
    EXPECT_EQ(Drawn(), expected);
    line->Surface().Cls();
    line->GradientTrace(0x000000, 0x040404, 2, false, 0, 0, 10, 4);
    EXPECT_EQ(Drawn("Line 0,3"), "\nLine 0,3 10,3 #020202\n");
}

TEST_F(GradientPainterTest, LinesRunWhileTheyAreWithinTheEdge) {
    StartEmpty(1);
    line->GradientTrace(0x000000, 0x000000, 3, false, 0, 0, 1.5F, 4);
    EXPECT_EQ(Drawn(), "\nLine 0,0 0,4 #000000\nLine 1,0 1,4 #000000\n");
}

TEST_F(GradientPainterTest, AnOldSystemReportsAMirroredGradientWithABottomOfZero) {
    StartEmpty(1);
    line->GradientTrace(kRed, kWhite, 2, false, 0, -4, 100, 4);
    EXPECT_EQ(Heard(), "host Error 11 [TimeLine GradientTrace 255 - 16777215 - 2 - 0 - 0 - -4 - 100 - 0]\n");
}

// --- The members beside it ---

TEST_F(GradientPainterTest, GradientColorSetsThreeAndPaintsWithoutReportingAChange) {
    Start();
    int32_t direction = 4;
    EXPECT_EQ(PaintsIn([&] { line->GradientColor(kRed, kWhite, direction); }), 1);
    EXPECT_EQ(line->GradientColorStart(), kRed);
    EXPECT_EQ(line->GradientColorEnd(), kWhite);
    EXPECT_EQ(line->GradientDirection(), 4);
    EXPECT_EQ(direction, 4);
    EXPECT_EQ(PaintsIn([&] { line->GradientColor(kRed, kWhite, direction); }), 1) << "also with the same values";
    EXPECT_EQ(Heard(), "");
}

TEST_F(GradientPainterTest, TheMedianIsTheGradientsFirstColour) {
    Start();
    line->SetGradientColorStart(0x123456);
    EXPECT_EQ(line->GradientColorMedian(), 0x123456U);
    line->SetGradientColorInverse(true);
    EXPECT_EQ(line->GradientColorMedian(), 0xFFFFFFU);
    line->SetGradientColorStart(kWhite);
    EXPECT_EQ(line->GradientColorMedian(), kWhite);
    line->SetGradientColorStart(FromSystem(SystemColor::Window));
    line->SetGradientColorEnd(FromSystem(SystemColor::Window));
    EXPECT_EQ(line->GradientColorMedian(), FromSystem(SystemColor::Window)) << "equal colours come back as they are";
}

TEST_F(GradientPainterTest, TheMedianOfAStripWithoutSizeFails) {
    Start();
    line->SetGradientColorStart(kRed);
    line->Move(0, 0, 0, 40);
    EXPECT_EQ(line->GradientColorMedian(), kRed) << "from top to bottom only the height counts";
    line->SetGradientDirection(3);
    EXPECT_FAILURE(line->GradientColorMedian(), DivisionByZero());
}

}  // namespace
}  // namespace vorlane
