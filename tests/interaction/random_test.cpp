// Whatever the user's hand does to a sheet, and whatever happens at its yields: list and slides agree, and each slide
// looks as if it had just been bound.
//
// VORLANE_RANDOM_SECONDS=60 lets it run for that long with a seed of its own, which a failure tells;
// VORLANE_RANDOM_SEED=n sets the seed.
#include "tests/interaction/gesturefixture.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <map>
#include <random>

namespace vorlane {
namespace {

constexpr int32_t kSteps = 100000;
constexpr uint32_t kSeed = 20240229;
constexpr int32_t kPictures = 60;

int64_t FromEnvironment(const char* name, int64_t otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoll(text);
}

class RandomGestures : public GestureTest {
protected:
    RandomGestures() {
        const bool free = FromEnvironment("VORLANE_RANDOM_SECONDS", 0) > 0;
        seed_ = static_cast<uint32_t>(FromEnvironment("VORLANE_RANDOM_SEED", free ? std::random_device{}() : kSeed));
        random_.seed(seed_);
        sheet = std::make_unique<Vorlane>(desktop.Roles(), window.Ambient());
        sheet->Events.Error.connect(
            [this](int32_t number, const std::string& text, const std::string&, int32_t, const std::string& log) {
                errors_ += std::to_string(number) + " " + text + " " + log + "\n";
            });
    }

    int32_t Pick(int32_t from, int32_t to) { return std::uniform_int_distribution<int32_t>(from, to)(random_); }
    bool Maybe(int32_t percent) { return Pick(1, 100) <= percent; }
    float Across() { return static_cast<float>(Pick(-10, width_ + 10)); }
    float Down() { return static_cast<float>(Pick(-10, height_ + 10)); }
    int16_t Keys() {
        constexpr int16_t kKeys[] = {0, 0, headless::kCtrl, headless::kShift, headless::kCtrl + headless::kShift};
        return kKeys[Pick(0, 4)];
    }
    int16_t Button() {
        constexpr int16_t kButtons[] = {1, 1, 1, 1, 1, 1, 1, 2, 2, 4};
        return kButtons[Pick(0, 9)];
    }

    void Fill() {
        AddItems(0, Pick(0, kPictures - 1));
        sheet->StartLecture();
    }

    // --- What the hand does ---

    std::string ClickSomewhere() {
        const int16_t keys = Keys();
        const int16_t button = Button();
        const float x = Across();
        const float y = Down();
        if (Maybe(10)) {
            window.DoubleClick(x, y, button, keys);
        } else {
            window.Click(x, y, button, keys);
        }
        return "click";
    }

    std::string SweepABand() {
        const int16_t keys = Keys();
        window.Press(Maybe(50) ? kGroundX : Across(), Maybe(50) ? kGroundY : Down(), headless::kLeftButton, keys);
        for (int32_t n = Pick(0, 5); n > 0; --n) window.MouseTo(Across(), Down(), keys);
        if (Maybe(10)) sheet->VScroll.SetValue(Pick(0, sheet->VScroll.Max()));
        window.Release(Across(), Down(), headless::kLeftButton, keys);
        return "band";
    }

    std::string TypeAKey() {
        constexpr int16_t kCodes[] = {33, 34, 65};
        constexpr int16_t kCharacters[] = {'(', '!', 'a', 0};
        window.Key(kCodes[Pick(0, 2)], kCharacters[Pick(0, 3)], Keys());
        return "key";
    }

    std::string TurnTheWheel() {
        window.Wheel(Pick(-2, 2), Across(), Down());
        return "wheel";
    }

    std::string MoveTheMouse() {
        window.MouseTo(Across(), Down());
        return "move";
    }

    // --- What the host does ---

    std::string SelectByHost() {
        switch (Pick(0, 4)) {
            case 0:
                sheet->SelectAll();
                return "all";
            case 1:
                sheet->SelectInvert();
                return "invert";
            case 2:
                sheet->SelectedClear();
                return "none";
            case 3:
                sheet->SetCurrentDiapo(ToInt16(Pick(-1, 20)));
                return "current";
            default:
                if (sheet->Diapo.Item(0)->Value() >= 0) {
                    sheet->SetSelected(ToInt16(Pick(0, sheet->Diapo.Count() - 1)), Maybe(60));
                }
                return "selected";
        }
    }

    std::string ChangeTheList() {
        switch (Pick(0, 4)) {
            case 0:
                Fill();
                return "fill";
            case 1:
                if (sheet->CountSelected() < 10) sheet->RemoveAllSelected();
                return "remove selected";
            case 2:
                if (sheet->Diapo.Item(0)->Value() >= 0) sheet->Remove(ToInt16(Pick(0, sheet->Diapo.Count() - 1)));
                return "remove";
            case 3:
                sheet->SetSortedSens(Maybe(50) ? SortSensType::ssAscending : SortSensType::ssDescending);
                sheet->Sort(1);
                return "sort";
            default:
                if (sheet->LstInterne.ListCount() > 100 || Maybe(5)) sheet->Clear();
                return "clear";
        }
    }

    std::string ChangeTheGrid() {
        switch (Pick(0, 3)) {
            case 0:
                width_ = Pick(60, 600);
                height_ = Pick(60, 400);
                window.Resize(width_, height_);
                break;
            case 1:
                sheet->SetDiapoWidth(ToInt16(Pick(50, 150)));
                break;
            case 2:
                sheet->SetSelectionMultiple(Maybe(80));
                break;
            default:
                sheet->VScroll.SetValue(Pick(0, sheet->VScroll.Max()));
                break;
        }
        desktop.clock.Advance(Pick(0, 300));
        return "grid";
    }

    std::string Step() {
        if (Maybe(5)) desktop.clock.AtYield(Pick(1, 3), [this] { Act(); });
        return Act();
    }

    std::string Act() {
        const int32_t kind = Pick(1, 100);
        if (kind <= 40) return ClickSomewhere();
        if (kind <= 58) return SweepABand();
        if (kind <= 66) return TypeAKey();
        if (kind <= 74) return TurnTheWheel();
        if (kind <= 80) return MoveTheMouse();
        if (kind <= 88) return SelectByHost();
        if (kind <= 94) return ChangeTheList();
        return ChangeTheGrid();
    }

    // --- What has to hold ---

    bool Sound() {
        const std::string states = States();
        bool sound = errors_.empty() && states.find('!') == std::string::npos;
        sound = sound && std::count(states.begin(), states.end(), 'C') <= 1 && desktop.screen.MousePointer() == 0;
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const auto slide = sheet->Diapo.Item(k);
            if (slide->Value() < 0) continue;
            sound = sound && slide->ImageFullPath() == sheet->ImageFullPath(slide->Value()) && !slide->SelectedTmp();
        }
        return sound;
    }

    // The slides, bound once more, show their items the same way.
    bool Fresh() {
        const int32_t top = sheet->Diapo.Item(0)->Value();
        if (top < 0) return true;
        const std::map<int32_t, char> before = StatesByItem();
        sheet->StartLecture("", sheet->Key(top));
        for (const auto& [item, state] : StatesByItem()) {
            const auto was = before.find(item);
            if (was != before.end() && was->second != state) {
                story_ += "item " + std::to_string(item) + " was " + was->second + ", ";
                return false;
            }
        }
        return true;
    }

    std::map<int32_t, char> StatesByItem() const {
        std::map<int32_t, char> states;
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) states[sheet->Diapo.Item(k)->Value()] = StateOf(k);
        return states;
    }

    // Selection of slide and item, ground, wanted file where it is another.
    std::string Details() const {
        std::string text;
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const auto slide = sheet->Diapo.Item(k);
            text += std::to_string(k) + ": " + (slide->Selected() ? "selected " : "- ") +
                    std::to_string(slide->BackColor()) + (slide->SelectedTmp() ? " swept" : "");
            if (slide->Value() >= 0) {
                text += sheet->Liste()->Selected(slide->Value()) ? " item selected" : " item -";
                if (slide->ImageFullPath() != sheet->ImageFullPath(slide->Value())) text += " another file";
            }
            text += "\n";
        }
        return text;
    }

    std::string Story() const {
        return Details() + "seed " + std::to_string(seed_) + ": " + story_ + "\n" + States() + "\n" + Slides() + "\n" +
               errors_;
    }

    bool StepIsSound(int32_t step) {
        if (sheet->Diapo.Item(0)->Value() < 0) Fill();
        if (story_.size() > 400) story_.erase(0, 200);
        story_ += std::to_string(step) + " " + Step() + ", ";
        desktop.trace.Clear();
        if (!Sound()) return false;
        return step % 20 != 0 || Fresh();
    }

    std::mt19937 random_;
    uint32_t seed_ = 0;
    int32_t width_ = kWidth;
    int32_t height_ = kHeight;
    std::string errors_;
    std::string story_;
};

TEST_F(RandomGestures, LeaveListAndSlidesInStep) {
    Start();
    Fill();
    const int64_t seconds = FromEnvironment("VORLANE_RANDOM_SECONDS", 0);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    const auto goesOn = [&](int32_t step) {
        return seconds > 0 ? std::chrono::steady_clock::now() < end : step < kSteps;
    };
    for (int32_t step = 0; goesOn(step); ++step) {
        ASSERT_TRUE(StepIsSound(step)) << Story();
    }
    desktop.clock.Advance(1000);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
}

}  // namespace
}  // namespace vorlane
