// What clicks on slides make of the selection and of the current slide.
#include "tests/interaction/gesturefixture.h"

namespace vorlane {
namespace {

using SelectionTest = GestureTest;

TEST_F(SelectionTest, AClickSelectsASlideAndMakesItCurrent) {
    Show(40);
    Click(4);
    EXPECT_EQ(States(), "....C....");
    EXPECT_EQ(SelectedItems(), "4");
    EXPECT_EQ(sheet->CurrentDiapo(), 4);
}

TEST_F(SelectionTest, AClickIsToldInTheOrderDownUpClick) {
    Show(40);
    Click(4);
    EXPECT_EQ(Heard(),
              "host MouseDown 1 at 161,124\n"
              "host MouseUp 1 at 161,124\n"
              "host Click 4 004.jpg 004.jpg button 1\n");
}

}  // namespace
}  // namespace vorlane
