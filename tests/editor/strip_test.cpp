// The time line under the sheet, in step with it.
#include "tests/editor/stripfixture.h"
#include "timeline/etimeline.h"

#include <QScrollBar>

namespace vorlane::editor {
namespace {

class StripTest : public StripFixture {};

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

TEST_F(StripTest, TheLengthOfTheLongestShowsIsCounted) {
    VorlaneWidget sheet;
    const Strip strip(sheet);
    for (int i = 0; i < 70000; ++i) sheet.sheet().LstInterne.AddItem("/nowhere/x.jpg");
    strip.timeline().SetExpositionTime(32767);
    EXPECT_EQ(strip.showSeconds(), qint64{70000} * 32767);
    window_->status().setLength(strip.showSeconds());
    EXPECT_EQ(window_->status().length(), QStringLiteral("Durée\u00A0: 596523 h 14 min 07 s")) << "the most it tells";
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

}  // namespace
}  // namespace vorlane::editor
