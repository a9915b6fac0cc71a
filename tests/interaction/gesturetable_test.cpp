// Keys, modifiers and modes in one table: what the host hears of a run of clicks, pulls and bands, in order, and what
// is selected behind it. Forty items, nine slides.
//
// A run is a list of strokes, each a place: the number of a slide, or "b" for the bare ground. In front of it stand "^"
// for Ctrl, "+" for Shift, "r" for the right and "m" for the middle button, "d" for a double click. "4>6" presses on 4,
// goes to 6 and lets go there.
//
// A trace has a word for each event: its name, the button if it is not the left one, and its place. "=46*" behind it:
// from then on the items 4 and 6 are selected, and 6 is the current one; "=" that nothing is; "=6!" that item 6 is and
// its slide does not show it yet.
#include "tests/interaction/gesturefixture.h"

#include <cctype>
#include <ostream>
#include <sstream>

namespace vorlane {
namespace {

enum class Mode : uint8_t {
    Many,      // many slides may be selected
    One,       // one only
    Drags,     // many, and slides can be dragged
    DragsOne,  // one only, that can be dragged
};

struct Gesture {
    const char* Name;
    vorlane::Mode Mode;
    const char* Strokes;
    const char* Trace;
    const char* States;  // in the end, as GestureTest tells them
};

void PrintTo(const Gesture& gesture, std::ostream* out) {
    *out << gesture.Name;
}

class GestureTable : public GestureTest, public ::testing::WithParamInterface<Gesture> {
protected:
    void Start(Mode mode) {
        Show(40);
        sheet->SetSelectionMultiple(mode == Mode::Many || mode == Mode::Drags);
        sheet->SetOLEDragMode(mode == Mode::Drags || mode == Mode::DragsOne ? 1 : 0);
        Listen();
    }

    void Perform(const std::string& stroke) {
        int16_t keys = kNoKeys;
        int16_t button = headless::kLeftButton;
        bool twice = false;
        std::string places;
        for (const char sign : stroke) {
            if (sign == '^') keys = static_cast<int16_t>(keys | headless::kCtrl);
            if (sign == '+') keys = static_cast<int16_t>(keys | headless::kShift);
            if (sign == 'r') button = headless::kRightButton;
            if (sign == 'm') button = headless::kMiddleButton;
            if (sign == 'd') twice = true;
            if (sign == 'b' || std::isdigit(static_cast<unsigned char>(sign)) != 0) places += sign;
        }
        const auto [x, y] = PointOf(places.front());
        if (twice) return window.DoubleClick(x, y, button, keys);
        if (places.size() == 1) return window.Click(x, y, button, keys);
        const auto [toX, toY] = PointOf(places.back());
        window.Press(x, y, button, keys);
        window.MouseTo(toX, toY, keys);
        if (desktop.keyboard.KeyIsDown(button)) window.Release(toX, toY, button, keys);  // no drag has taken it
    }

    std::string Trace() const { return trace_; }

private:
    struct Place {
        float X;
        float Y;
    };
    Place PointOf(char place) const {
        if (place == 'b') return {kGroundX, kGroundY};
        const Point point = InSlide(place - '0');
        return {static_cast<float>(point.X), static_cast<float>(point.Y)};
    }
    std::string NameOf(float x, float y) const {
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            if (sheet->Diapo.Item(k)->Bounds().Contains(x, y)) return std::to_string(k);
        }
        return "b";
    }
    static std::string NameOf(int16_t button) {
        if (button == headless::kRightButton) return "r";
        return button == headless::kMiddleButton ? "m" : "";
    }
    std::string Selection() const {
        std::string text;
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const char state = StateOf(k);
            if (state == '.' || state == '-') continue;
            text += std::to_string(k) + (state == 's' ? "" : state == 'C' ? "*" : "!");
        }
        return text;
    }

    void Tell(const std::string& word) {
        trace_ += (trace_.empty() ? "" : " ") + word;
        const std::string now = Selection();
        if (now != selected_) trace_ += "=" + now;
        selected_ = now;
    }

    void Listen() {
        auto& events = sheet->Events;
        const auto mouse = [this](auto& event, const std::string& name) {
            event.connect([this, name](int16_t button, int16_t, float x, float y) {
                Tell(name + (name == "move" ? "" : NameOf(button)) + NameOf(x, y));
            });
        };
        mouse(events.MouseDown, "down");
        mouse(events.MouseMove, "move");
        mouse(events.MouseUp, "up");
        const auto click = [this](auto& event, const std::string& name) {
            event.connect([this, name](int16_t slide, const Picture&, const std::string&, int16_t button) {
                Tell(name + NameOf(button) + std::to_string(slide));
            });
        };
        click(events.Click, "click");
        click(events.DblClick, "double");
        events.BackgroundClick.connect([this](int16_t button) { Tell("click" + NameOf(button) + "b"); });
        events.BackgroundDblClick.connect([this](int16_t button) { Tell("double" + NameOf(button) + "b"); });
        events.MouseEnter.connect([this](int16_t slide) { Tell("enter" + std::to_string(slide)); });
        events.MouseExit.connect([this](int16_t slide) { Tell("exit" + std::to_string(slide)); });
        events.OLEStartDrag.connect([this](DataObject&, int32_t&) { Tell("drag"); });
        events.OLECompleteDrag.connect([this](int32_t&) { Tell("dragged"); });
        events.TraitementFeedBack.connect(
            [this](int32_t done, int32_t of) { Tell("cleared" + std::to_string(done) + "/" + std::to_string(of)); });
        events.Error.connect([this](int32_t, const std::string&, const std::string&, int32_t, const std::string& log) {
            Tell("Error(" + log + ")");
        });
    }

    std::string trace_;
    std::string selected_;
};

constexpr Gesture kGestures[] = {
    {"AClickSelects", Mode::Many, "4", "down4=4* up4 click4", "....C...."},
    {"AClickOnAnotherSlideMovesTheSelection", Mode::Many, "4 6", "down4=4* up4 click4 down6=6* up6 click6",
     "......C.."},
    {"AClickOnTheSelectedSlideLeavesIt", Mode::Many, "4 4", "down4=4* up4 click4 down4 up4 click4", "....C...."},
    {"CtrlAdds", Mode::Many, "4 ^6", "down4=4* up4 click4 down6=46* up6 click6", "....s.C.."},
    {"CtrlTakesAway", Mode::Many, "4 ^6 ^6", "down4=4* up4 click4 down6=46* up6 click6 down6=4 up6 click6",
     "....s...."},
    {"CtrlTakesAwayAnEarlierOne", Mode::Many, "4 ^6 ^4", "down4=4* up4 click4 down6=46* up6 click6 down4=6 up4 click4",
     "......s.."},
    {"CtrlAloneSelects", Mode::Many, "^4", "down4=4* up4 click4", "....C...."},
    {"AClickElsewhereLeavesOneOfMany", Mode::Many, "4 ^6 2",
     "down4=4* up4 click4 down6=46* up6 click6 cleared1/2=6! cleared2/2= down2=2* up2 click2", "..C......"},
    {"AClickOnOneOfManyOnlyMakesItCurrent", Mode::Many, "4 ^6 4",
     "down4=4* up4 click4 down6=46* up6 click6 down4=4*6 up4 click4", "....C.s.."},
    {"AClickOnTheOnlyOneLeftMakesItCurrent", Mode::Many, "4 ^6 ^4 6",
     "down4=4* up4 click4 down6=46* up6 click6 down4=6 up4 click4 down6=6* up6 click6", "......C.."},
    {"ShiftSelectsFromTheAnchorOn", Mode::Many, "4 +7", "down4=4* up4 click4 down7=4567* up7 click7", "....sssC."},
    {"ShiftSelectsFromTheAnchorBack", Mode::Many, "7 +4", "down7=7* up7 click7 down4=4*567 up4 click4", "....Csss."},
    {"ShiftKeepsTheAnchorAndWhatLiesOutside", Mode::Many, "4 +7 +2",
     "down4=4* up4 click4 down7=4567* up7 click7 down2=2*34567 up2 click2", "..Csssss."},
    {"ShiftStartsAtTheFirstItemAtFirst", Mode::Many, "+3", "down3=0123* up3 click3", "sssC....."},
    {"ShiftOnTheAnchorItself", Mode::Many, "4 +4", "down4=4* up4 click4 down4 up4 click4", "....C...."},
    {"ShiftOnOneThatIsSelectedMarksIt", Mode::Many, "4 ^6 +6",
     "down4=4* up4 click4 down6=46* up6 click6 down6 up6 click6", "....s.C.."},
    {"ShiftWithCtrlIsShift", Mode::Many, "4 ^+7", "down4=4* up4 click4 down7=4567* up7 click7", "....sssC."},
    {"ARightClickSelects", Mode::Many, "4 r6", "down4=4* up4 click4 downr6=6* upr6 clickr6", "......C.."},
    {"ARightClickOnASelectedSlideChangesNothing", Mode::Many, "4 ^6 r4",
     "down4=4* up4 click4 down6=46* up6 click6 downr4 upr4 clickr4", "....s.C.."},
    {"ARightClickOnTheOnlyOneLeftChangesNothing", Mode::Many, "4 ^6 ^4 r6",
     "down4=4* up4 click4 down6=46* up6 click6 down4=6 up4 click4 downr6 upr6 clickr6", "......s.."},
    {"ARightClickWithCtrlAdds", Mode::Many, "4 ^r6", "down4=4* up4 click4 downr6=46* upr6 clickr6", "....s.C.."},
    {"ARightClickWithShiftSelectsARange", Mode::Many, "4 r+7", "down4=4* up4 click4 downr7=4567* upr7 clickr7",
     "....sssC."},
    {"AMiddleClickSelects", Mode::Many, "4 m6", "down4=4* up4 click4 downm6=6* upm6 clickm6", "......C.."},
    {"AMiddleClickTakesAway", Mode::Many, "4 m4", "down4=4* up4 click4 downm4= upm4 clickm4", "........."},
    {"TheGroundTakesAll", Mode::Many, "4 ^6 b",
     "down4=4* up4 click4 down6=46* up6 click6 cleared1/2=6! cleared2/2= downb upb clickb", "........."},
    {"TheGroundWithCtrlTakesNothing", Mode::Many, "4 ^6 ^b",
     "down4=4* up4 click4 down6=46* up6 click6 downb upb clickb", "....s.C.."},
    {"TheGroundWithShiftTakesNothing", Mode::Many, "4 ^6 +b",
     "down4=4* up4 click4 down6=46* up6 click6 downb upb clickb", "....s.C.."},
    {"TheGroundUnderTheRightButtonTakesNothing", Mode::Many, "4 ^6 rb",
     "down4=4* up4 click4 down6=46* up6 click6 downrb uprb clickrb", "....s.C.."},
    {"OneOnlyAClickSelects", Mode::One, "4", "down4=4* up4 click4", "....C...."},
    {"OneOnlyAClickElsewhereMovesTheSelection", Mode::One, "4 6", "down4=4* up4 click4 down6=6* up6 click6",
     "......C.."},
    {"OneOnlyCtrlMovesTheSelection", Mode::One, "4 ^6", "down4=4* up4 click4 down6=6* up6 click6", "......C.."},
    {"OneOnlyCtrlTakesAway", Mode::One, "4 ^4", "down4=4* up4 click4 down4= up4 click4", "........."},
    {"OneOnlyShiftIsAPlainClick", Mode::One, "4 +7", "down4=4* up4 click4 down7=7* up7 click7", ".......C."},
    {"OneOnlyShiftOnTheSelectedSlideIsAPlainClick", Mode::One, "4 +4", "down4=4* up4 click4 down4 up4 click4",
     "....C...."},
    {"OneOnlyARightClickSelects", Mode::One, "4 r6", "down4=4* up4 click4 downr6=6* upr6 clickr6", "......C.."},
    {"OneOnlyTheGroundTakesIt", Mode::One, "4 b", "down4=4* up4 click4 cleared1/1= downb upb clickb", "........."},
    {"ADoubleClickSelectsOnce", Mode::Many, "d4", "down4=4* up4 click4 double4 up4", "....C...."},
    {"ADoubleClickWithCtrlSelectsOnce", Mode::Many, "^d4", "down4=4* up4 click4 double4 up4", "....C...."},
    {"ADoubleRightClickSelectsOnce", Mode::Many, "rd4", "downr4=4* upr4 clickr4 doubler4 upr4", "....C...."},
    {"ADoubleClickOnTheGround", Mode::Many, "4 db", "down4=4* up4 click4 cleared1/1= downb upb clickb doubleb upb",
     "........."},
    {"APullWithoutDragsIsNoClick", Mode::Many, "4>6", "down4=4* enter4 move6 up6", "....C...."},
    {"ABandSweepsWhatItTouches", Mode::Many, "b>1", "downb move1=01 up1", "ss......."},
    {"ABandTakesTheEarlierSelectionFirst", Mode::Many, "4 ^6 b>1",
     "down4=4* up4 click4 down6=46* up6 click6 cleared1/2=6! cleared2/2= downb move1=01 up1", "ss......."},
    {"ABandWithCtrlTurnsWhatItTouches", Mode::Many, "0 ^6 ^b>1",
     "down0=0* up0 click0 down6=06* up6 click6 downb move1=16* up1", ".s....C.."},
    {"ABandWithShiftTurnsWhatItTouches", Mode::Many, "0 ^6 +b>1",
     "down0=0* up0 click0 down6=06* up6 click6 downb move1=16* up1", ".s....C.."},
    {"NoBandUnderTheRightButton", Mode::Many, "4 rb>1", "down4=4* up4 click4 downrb move1 upr1", "....C...."},
    {"NoBandUnderTheMiddleButton", Mode::Many, "4 mb>1", "down4=4* up4 click4 downmb move1 upm1", "....C...."},
    {"OneOnlyADoubleClickSelectsOnce", Mode::One, "d4", "down4=4* up4 click4 double4 up4", "....C...."},
    {"OneOnlyNoBand", Mode::One, "4 b>1", "down4=4* up4 click4 cleared1/1= downb move1 up1", "........."},
    {"OneOnlyAMiddleClickTakesIt", Mode::One, "4 m4", "down4=4* up4 click4 downm4= upm4 clickm4", "........."},
    {"APullDragsWhatThePressHasSelected", Mode::Drags, "4>6", "down4=4* enter4 drag cleared1/1= dragged move6",
     "........."},
    {"APullDragsTheWholeSelection", Mode::Drags, "4 ^6 4>2",
     "down4=4* up4 click4 down6=46* up6 click6 down4=4*6 enter4 drag cleared1/2=6! cleared2/2= dragged move2",
     "........."},
    {"WithCtrlNothingIsDragged", Mode::Drags, "^4>6", "down4=4* enter4 move6 up6", "....C...."},
    {"WithShiftNothingIsDragged", Mode::Drags, "4 +6>2", "down4=4* up4 click4 down6=456* enter6 move2 up2",
     "....ssC.."},
    {"WhatCtrlHasTakenAwayIsNotDragged", Mode::Drags, "4 ^6 ^4>2",
     "down4=4* up4 click4 down6=46* up6 click6 down4=6 enter4 move2 up2", "......s.."},
    {"TheRightButtonDragsNothing", Mode::Drags, "4 r4>6", "down4=4* up4 click4 downr4 enter4 move6 upr6", "....C...."},
    {"TheMiddleButtonDragsNothing", Mode::Drags, "m4>6", "downm4=4* enter4 move6 upm6", "....C...."},
    {"CtrlTakesAwayTheOnlyOne", Mode::Many, "4 ^4", "down4=4* up4 click4 down4= up4 click4", "........."},
    {"ShiftStartsAtWhatCtrlHasTakenAway", Mode::Many, "4 ^4 +7",
     "down4=4* up4 click4 down4= up4 click4 down7=4567* up7 click7", "....sssC."},
    {"ShiftStartsAtTheLastToggle", Mode::Many, "0 ^8 +6",
     "down0=0* up0 click0 down8=08* up8 click8 down6=06*78 up6 click6", "s.....Css"},
    {"ShiftStartsAtARightClickToo", Mode::Many, "4 r6 +7",
     "down4=4* up4 click4 downr6=6* upr6 clickr6 down7=67* up7 click7", "......sC."},
    {"ARightClickWithCtrlTakesAway", Mode::Many, "4 ^6 ^r6",
     "down4=4* up4 click4 down6=46* up6 click6 downr6=4 upr6 clickr6", "....s...."},
    {"ARightClickWithShiftOnASelectedSlideSelectsARange", Mode::Many, "4 ^6 +r4",
     "down4=4* up4 click4 down6=46* up6 click6 downr4=4*56 upr4 clickr4", "....Css.."},
    {"ARightPullIsNoClick", Mode::Many, "r4>6", "downr4=4* enter4 move6 upr6", "....C...."},
    {"AMiddleClickWithCtrlAdds", Mode::Many, "4 ^m6", "down4=4* up4 click4 downm6=46* upm6 clickm6", "....s.C.."},
    {"AMiddleClickWithShiftSelectsARange", Mode::Many, "4 +m7", "down4=4* up4 click4 downm7=4567* upm7 clickm7",
     "....sssC."},
    {"AMiddleClickOnTheCurrentOneOfManyLeavesNone", Mode::Many, "4 ^6 m6",
     "down4=4* up4 click4 down6=46* up6 click6 downm6=4 cleared1/1= upm6 clickm6", "........."},
    {"AMiddleClickOnAnotherOneOfManyLeavesNone", Mode::Many, "4 ^6 m4",
     "down4=4* up4 click4 down6=46* up6 click6 downm4=6 cleared1/1= upm4 clickm4", "........."},
    {"ADoubleMiddleClickSelectsOnce", Mode::Many, "md4", "downm4=4* upm4 clickm4 doublem4 upm4", "....C...."},
    {"ADoubleClickWithShiftSelectsARangeOnce", Mode::Many, "+d3", "down3=0123* up3 click3 double3 up3", "sssC....."},
    {"ADoubleClickOnOneOfManyKeepsThem", Mode::Many, "4 ^6 d4",
     "down4=4* up4 click4 down6=46* up6 click6 down4=4*6 up4 click4 double4 up4", "....C.s.."},
    {"ADoubleRightClickOnTheGround", Mode::Many, "4 rdb", "down4=4* up4 click4 downrb uprb clickrb doublerb uprb",
     "....C...."},
    {"TheGroundWithCtrlAndShiftTakesNothing", Mode::Many, "4 ^6 ^+b",
     "down4=4* up4 click4 down6=46* up6 click6 downb upb clickb", "....s.C.."},
    {"TheGroundUnderTheMiddleButtonTakesNothing", Mode::Many, "4 ^6 mb",
     "down4=4* up4 click4 down6=46* up6 click6 downmb upmb clickmb", "....s.C.."},
    {"TheGroundUnderTheRightButtonWithCtrlTakesNothing", Mode::Many, "4 ^6 ^rb",
     "down4=4* up4 click4 down6=46* up6 click6 downrb uprb clickrb", "....s.C.."},
    {"APullWithCtrlTakesAwayAtThePress", Mode::Many, "4 ^2 ^4>6",
     "down4=4* up4 click4 down2=2*4 up2 click2 down4=2 enter4 move6 up6", "..s......"},
    {"ABandWithCtrlAndShiftTurnsWhatItTouches", Mode::Many, "0 ^6 ^+b>1",
     "down0=0* up0 click0 down6=06* up6 click6 downb move1=16* up1", ".s....C.."},
    {"OneOnlyCtrlAndShiftIsCtrl", Mode::One, "4 ^+4", "down4=4* up4 click4 down4= up4 click4", "........."},
    {"OneOnlyARightClickOnTheSelectedSlideChangesNothing", Mode::One, "4 r4", "down4=4* up4 click4 downr4 upr4 clickr4",
     "....C...."},
    {"OneOnlyARightClickWithCtrlMovesTheSelection", Mode::One, "4 ^r6", "down4=4* up4 click4 downr6=6* upr6 clickr6",
     "......C.."},
    {"OneOnlyARightClickWithCtrlTakesAway", Mode::One, "4 ^r4", "down4=4* up4 click4 downr4= upr4 clickr4",
     "........."},
    {"OneOnlyARightClickWithShiftIsAPlainOne", Mode::One, "4 +r6 +r6",
     "down4=4* up4 click4 downr6=6* upr6 clickr6 downr6 upr6 clickr6", "......C.."},
    {"OneOnlyAMiddleClickWithCtrlTakesAway", Mode::One, "4 ^m4", "down4=4* up4 click4 downm4= upm4 clickm4",
     "........."},
    {"OneOnlyAMiddleClickElsewhereMovesTheSelection", Mode::One, "4 m6", "down4=4* up4 click4 downm6=6* upm6 clickm6",
     "......C.."},
    {"OneOnlyADoubleClickWithCtrlSelectsOnce", Mode::One, "^d4", "down4=4* up4 click4 double4 up4", "....C...."},
    {"OneOnlyTheGroundWithCtrlTakesNothing", Mode::One, "4 ^b", "down4=4* up4 click4 downb upb clickb", "....C...."},
    {"OneOnlyTheGroundWithShiftTakesNothing", Mode::One, "4 +b", "down4=4* up4 click4 downb upb clickb", "....C...."},
    {"OneOnlyTheGroundUnderTheRightButtonTakesNothing", Mode::One, "4 rb", "down4=4* up4 click4 downrb uprb clickrb",
     "....C...."},
    {"OneOnlyAPullIsNoClick", Mode::One, "4>6", "down4=4* enter4 move6 up6", "....C...."},
    {"WhereSlidesAreDraggedAClickOnOneOfManyKeepsThem", Mode::Drags, "4 ^6 4",
     "down4=4* up4 click4 down6=46* up6 click6 down4=4*6 up4 click4", "....C.s.."},
    {"WhereSlidesAreDraggedTheGroundTakesAll", Mode::Drags, "4 b", "down4=4* up4 click4 cleared1/1= downb upb clickb",
     "........."},
    {"APullOfAnotherSlideDragsThatAlone", Mode::Drags, "4 ^6 2>7",
     "down4=4* up4 click4 down6=46* up6 click6 cleared1/2=6! cleared2/2= down2=2* enter2 drag cleared1/1= dragged "
     "move7",
     "........."},
    {"APullDragsAWholeRange", Mode::Drags, "4 +6 5>0",
     "down4=4* up4 click4 down6=456* up6 click6 down5=45*6 enter5 drag cleared1/3=5!6! cleared2/3=6! cleared3/3= "
     "dragged move0",
     "........."},
    {"WithCtrlAndShiftNothingIsDragged", Mode::Drags, "4 ^+6>2", "down4=4* up4 click4 down6=456* enter6 move2 up2",
     "....ssC.."},
    {"TheRightButtonDragsNothingUnselected", Mode::Drags, "r4>6", "downr4=4* enter4 move6 upr6", "....C...."},
    {"APullOnTheGroundWithCtrlIsABand", Mode::Drags, "4 ^b>1", "down4=4* up4 click4 downb move1=014* up1", "ss..C...."},
    {"OneOnlyAPullDragsIt", Mode::DragsOne, "4 6>2",
     "down4=4* up4 click4 down6=6* enter6 drag cleared1/1= dragged move2", "........."},
    {"OneOnlyWithShiftNothingIsDragged", Mode::DragsOne, "+4>6", "down4=4* enter4 move6 up6", "....C...."},
    {"OneOnlyAPullOnTheGroundIsNoBand", Mode::DragsOne, "b>1", "downb move1 up1", "........."},
    {"APullOnTheGroundIsABand", Mode::Drags, "b>1", "downb move1=01 up1", "ss......."},
};

TEST_P(GestureTable, TellsAndLeavesWhatItSays) {
    Start(GetParam().Mode);
    std::istringstream strokes(GetParam().Strokes);
    for (std::string stroke; strokes >> stroke;) Perform(stroke);
    EXPECT_EQ(Trace(), GetParam().Trace);
    EXPECT_EQ(States(), GetParam().States);
    EXPECT_EQ(sheet->CurrentDiapo(), static_cast<int16_t>(std::string(GetParam().States).find('C')));
}

INSTANTIATE_TEST_SUITE_P(Gestures, GestureTable, ::testing::ValuesIn(kGestures),
                         [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace vorlane
