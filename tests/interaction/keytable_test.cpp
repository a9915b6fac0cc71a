// Keys, modifiers and directions in one table: what the host hears of a run of strokes, in order, and where the bar
// then stands. Forty items; a page has two rows of three slides, sideways three columns of one.
//
// A run is a list of strokes, each a virtual key's code, behind "^" for Ctrl and "+" for Shift: "34" goes down and up
// again, "34_" stays down, "_34" goes up. "(" and "!" are characters.
//
// A trace has a word for each event, its key written in the same way. "@6" behind it: the bar has got to 6 by then.
#include "tests/interaction/gesturefixture.h"

#include <cctype>
#include <ostream>
#include <sstream>

namespace vorlane {
namespace {

constexpr auto kDown = ScrollDirectionType::sdVertical;
constexpr auto kSideways = ScrollDirectionType::sdHorizontal;

struct KeyRun {
    const char* Name;
    ScrollDirectionType Direction;
    const char* Strokes;
    const char* Trace;
};

void PrintTo(const KeyRun& run, std::ostream* out) {
    *out << run.Name;
}

class KeyTable : public GestureTest, public ::testing::WithParamInterface<KeyRun> {
protected:
    void Start(ScrollDirectionType direction) {
        Show(40);
        sheet->SetScrollDirection(direction);
        desktop.clock.Advance(200);
        const auto key = [this](auto& event, const std::string& name) {
            event.connect([this, name](int16_t& code, int16_t shift) {
                const std::string keys = ((shift & headless::kCtrl) != 0 ? "^" : "") +
                                         std::string((shift & headless::kShift) != 0 ? "+" : "");
                Tell(name + keys + std::to_string(code));
            });
        };
        key(sheet->Events.KeyDown, "down");
        key(sheet->Events.KeyUp, "up");
        sheet->Events.KeyPress.connect(
            [this](int16_t& character) { Tell(std::string("press") + static_cast<char>(character)); });
    }

    void Perform(const std::string& stroke) {
        if (stroke == "(" || stroke == "!") {
            auto character = static_cast<int16_t>(stroke.front());
            return window.Router().KeyPress(character);
        }
        int16_t keys = kNoKeys;
        int16_t code = 0;
        for (const char sign : stroke) {
            if (sign == '^') keys = static_cast<int16_t>(keys | headless::kCtrl);
            if (sign == '+') keys = static_cast<int16_t>(keys | headless::kShift);
            if (std::isdigit(static_cast<unsigned char>(sign)) != 0)
                code = static_cast<int16_t>(code * 10 + sign - '0');
        }
        if (stroke.front() != '_') window.HoldKey(code, keys);
        if (stroke.back() != '_') window.ReleaseKey(code, keys);
    }

    std::string Trace() const { return trace_; }

private:
    void Tell(const std::string& word) {
        trace_ += (trace_.empty() ? "" : " ") + word;
        const int32_t now = sheet->VScroll.Value();
        if (now != value_) trace_ += "@" + std::to_string(now);
        value_ = now;
    }

    std::string trace_;
    int32_t value_ = 0;
};

constexpr KeyRun kRuns[] = {
    {"APageOn", kDown, "34", "down34@6 up34"},
    {"APageBack", kDown, "34 34 33", "down34@6 up34 down34@12 up34 down33@6 up33"},
    {"NothingInFrontOfTheTop", kDown, "33", "down33 up33"},
    {"APageBackEndsAtTheTop", kDown, "( 33", "press(@3 down33@0 up33"},
    {"APageOnEndsAtTheEnd", kDown, "34 34 34 34 34 34 34",
     "down34@6 up34 down34@12 up34 down34@18 up34 down34@24 up34 down34@30 up34 down34@34 up34 down34 up34"},
    {"WithKeysItIsThePageAllTheSame", kDown, "^34 +33", "down^34@6 up^34 down+33@0 up+33"},
    {"AHeldKeyCountsOnce", kDown, "34_ 34_ 34_ _34", "down34@6 up34"},
    {"AnotherKeyIsNotHeardWhileOneIsHeld", kDown, "34_ 33_ _33 _34", "down34@6 up33 up34"},
    {"ThenTheNextOneIs", kDown, "34_ 33_ _33 33_ _33", "down34@6 up33 down33@0 up33"},
    {"AModifierIsAKeyToo", kDown, "16_ +34 _16", "down16 up+34 up16"},
    {"TwoCharactersMoveARow", kDown, "( ( !", "press(@3 press(@6 press!@3"},
    {"ACharacterCountsWhileAKeyIsHeld", kDown, "40_ ( ( _40", "down40 press(@3 press(@6 up40"},
    {"TheArrowKeysAreTheHosts", kDown, "40 38 37 39", "down40 up40 down38 up38 down37 up37 down39 up39"},
    {"SidewaysAPageOn", kSideways, "34", "down34@3 up34"},
    {"SidewaysAPageBack", kSideways, "34 33", "down34@3 up34 down33@0 up33"},
    {"SidewaysTwoCharactersMoveAColumn", kSideways, "( ( !", "press(@1 press(@2 press!@1"},
};

TEST_P(KeyTable, TellsWhatItSays) {
    Start(GetParam().Direction);
    std::istringstream strokes(GetParam().Strokes);
    for (std::string stroke; strokes >> stroke;) Perform(stroke);
    EXPECT_EQ(Trace(), GetParam().Trace);
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyTable, ::testing::ValuesIn(kRuns),
                         [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace vorlane
