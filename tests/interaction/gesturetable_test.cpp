// Keys, modifiers and modes in one table: what a run of clicks leaves selected.
//
// A run is a list of clicks, each the number of a slide or "b" for the bare ground, behind "^" for Ctrl, "+" for Shift,
// "r" for the right and "m" for the middle button. Forty items, nine slides.
#include "tests/interaction/gesturefixture.h"

#include <cctype>
#include <ostream>
#include <sstream>

namespace vorlane {
namespace {

struct Gesture {
    const char* Name;
    bool Multiple;  // SelectionMultiple
    const char* Clicks;
    const char* States;  // as GestureTest tells them
};

void PrintTo(const Gesture& gesture, std::ostream* out) {
    *out << gesture.Name;
}

class GestureTable : public GestureTest, public ::testing::WithParamInterface<Gesture> {
protected:
    void Perform(const std::string& click) {
        int16_t keys = kNoKeys;
        int16_t button = headless::kLeftButton;
        for (const char sign : click) {
            if (sign == '^') keys = static_cast<int16_t>(keys | headless::kCtrl);
            if (sign == '+') keys = static_cast<int16_t>(keys | headless::kShift);
            if (sign == 'r') button = headless::kRightButton;
            if (sign == 'm') button = headless::kMiddleButton;
            if (sign == 'b') window.Click(kGroundX, kGroundY, button, keys);
            if (std::isdigit(static_cast<unsigned char>(sign)) != 0) Click(sign - '0', keys, button);
        }
    }
};

constexpr bool kMany = true;
constexpr bool kOne = false;

constexpr Gesture kGestures[] = {
    {"AClickSelects", kMany, "4", "....C...."},
    {"AClickOnAnotherSlideMovesTheSelection", kMany, "4 6", "......C.."},
    {"AClickOnTheSelectedSlideLeavesIt", kMany, "4 4", "....C...."},
    {"CtrlAdds", kMany, "4 ^6", "....s.C.."},
    {"CtrlTakesAway", kMany, "4 ^6 ^6", "....s...."},
    {"CtrlTakesAwayAnEarlierOne", kMany, "4 ^6 ^4", "......s.."},
    {"CtrlAloneSelects", kMany, "^4", "....C...."},
    {"AClickElsewhereLeavesOneOfMany", kMany, "4 ^6 2", "..C......"},
    {"AClickOnOneOfManyOnlyMakesItCurrent", kMany, "4 ^6 4", "....C.s.."},
    {"AClickOnTheOnlyOneLeftMakesItCurrent", kMany, "4 ^6 ^4 6", "......C.."},
    {"ShiftSelectsFromTheAnchorOn", kMany, "4 +7", "....sssC."},
    {"ShiftSelectsFromTheAnchorBack", kMany, "7 +4", "....Csss."},
    {"ShiftKeepsTheAnchorAndWhatLiesOutside", kMany, "4 +7 +2", "..Csssss."},
    {"ShiftStartsAtTheFirstItemAtFirst", kMany, "+3", "sssC....."},
    {"ShiftOnTheAnchorItself", kMany, "4 +4", "....C...."},
    {"ShiftOnOneThatIsSelectedMarksIt", kMany, "4 ^6 +6", "....s.C.."},
    {"ShiftWithCtrlIsShift", kMany, "4 ^+7", "....sssC."},
    {"ARightClickSelects", kMany, "4 r6", "......C.."},
    {"ARightClickOnASelectedSlideChangesNothing", kMany, "4 ^6 r4", "....s.C.."},
    {"ARightClickOnTheOnlyOneLeftChangesNothing", kMany, "4 ^6 ^4 r6", "......s.."},
    {"ARightClickWithCtrlAdds", kMany, "4 ^r6", "....s.C.."},
    {"ARightClickWithShiftSelectsARange", kMany, "4 r+7", "....sssC."},
    {"AMiddleClickSelects", kMany, "4 m6", "......C.."},
    {"AMiddleClickTakesAway", kMany, "4 m4", "........."},
    {"TheGroundTakesAll", kMany, "4 ^6 b", "........."},
    {"TheGroundWithCtrlTakesNothing", kMany, "4 ^6 ^b", "....s.C.."},
    {"TheGroundWithShiftTakesNothing", kMany, "4 ^6 +b", "....s.C.."},
    {"TheGroundUnderTheRightButtonTakesNothing", kMany, "4 ^6 rb", "....s.C.."},
    {"OneOnlyAClickSelects", kOne, "4", "....C...."},
    {"OneOnlyAClickElsewhereMovesTheSelection", kOne, "4 6", "......C.."},
    {"OneOnlyCtrlMovesTheSelection", kOne, "4 ^6", "......C.."},
    {"OneOnlyCtrlTakesAway", kOne, "4 ^4", "........."},
    {"OneOnlyShiftIsAPlainClick", kOne, "4 +7", ".......C."},
    {"OneOnlyShiftOnTheSelectedSlideIsAPlainClick", kOne, "4 +4", "....C...."},
    {"OneOnlyARightClickSelects", kOne, "4 r6", "......C.."},
    {"OneOnlyTheGroundTakesIt", kOne, "4 b", "........."},
};

TEST_P(GestureTable, LeavesWhatItSays) {
    Show(40);
    sheet->SetSelectionMultiple(GetParam().Multiple);
    std::istringstream clicks(GetParam().Clicks);
    for (std::string click; clicks >> click;) Perform(click);
    EXPECT_EQ(States(), GetParam().States);
    EXPECT_EQ(sheet->CurrentDiapo(), static_cast<int16_t>(std::string(GetParam().States).find('C')));
    EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
}

INSTANTIATE_TEST_SUITE_P(Gestures, GestureTable, ::testing::ValuesIn(kGestures),
                         [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace vorlane
