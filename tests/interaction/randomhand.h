// RandomHand: a hand that plays on a sheet at random, by mouse and keys, and a host that changes list and grid. What it
// does follows from a seed. Each act gives its name.
//
// VORLANE_RANDOM_SECONDS=60 lets a test run for that long, VORLANE_RANDOM_MINUTES=60 for that long by the virtual clock
// where the test counts by it, both with a seed of its own, which a failure tells. VORLANE_RANDOM_SEED=n sets the seed.
#pragma once

#include "tests/interaction/gesturefixture.h"

#include <cstdlib>
#include <random>
#include <string>

namespace vorlane {

class RandomHand : public GestureTest {
protected:
    static constexpr int32_t kPictures = 60;

    RandomHand() {
        const bool free = Seconds() > 0 || Minutes() > 0;
        seed_ = static_cast<uint32_t>(FromEnvironment("VORLANE_RANDOM_SEED", free ? std::random_device{}() : kSeed));
        random_.seed(seed_);
        sheet = std::make_unique<Vorlane>(desktop.Roles(), window.Ambient());
        sheet->Events.Error.connect(
            [this](int32_t number, const std::string& text, const std::string&, int32_t, const std::string& log) {
                errors_ += std::to_string(number) + " " + text + " " + log + "\n";
            });
    }

    // How long to run; 0 for a fixed number of steps.
    static int64_t Seconds() { return FromEnvironment("VORLANE_RANDOM_SECONDS", 0); }

    // The same in minutes of the virtual clock; 0 for a short run.
    static int64_t Minutes() { return FromEnvironment("VORLANE_RANDOM_MINUTES", 0); }

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

    // --- One press, one move, one release ---

    bool Holds() const { return desktop.keyboard.KeyIsDown(headless::kLeftButton); }
    void LetGo() {
        const float x = Across();
        const float y = Down();
        if (Holds()) window.Release(x, y);
    }
    // Alone, in the middle of something else.
    std::string MoveAlone() {
        const float x = Across();
        const float y = Down();
        if (Maybe(30)) {
            window.MouseTo(x, y, Keys());
            return "move alone";
        }
        if (Holds()) {
            window.Release(x, y);
            return "release alone";
        }
        window.Press(x, y, headless::kLeftButton, Keys());
        return "press alone";
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
        LetGo();
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
                RemoveOne();
                return "remove";
            case 3:
                Sort();
                return "sort";
            default:
                if (sheet->LstInterne.ListCount() > 100 || Maybe(5)) sheet->Clear();
                return "clear";
        }
    }

    // The order stays in force, mostly not: slides can be moved then.
    void Sort() {
        sheet->SetSortedSens(Maybe(50) ? SortSensType::ssAscending : SortSensType::ssDescending);
        sheet->Sort(1);
        if (Maybe(80)) sheet->SetSortedSens(SortSensType::ssNone);
    }

    // A slide without an item has none to lose.
    void RemoveOne() {
        const auto slot = ToInt16(Pick(0, sheet->Diapo.Count() - 1));
        if (sheet->Diapo.Item(slot)->Value() >= 0) sheet->Remove(slot);
    }

    std::string ChangeTheGrid() {
        switch (Pick(0, 4)) {
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
            case 3:
                sheet->SetScrollDirection(Maybe(30) ? ScrollDirectionType::sdHorizontal
                                                    : ScrollDirectionType::sdVertical);
                break;
            default:
                sheet->VScroll.SetValue(Pick(0, sheet->VScroll.Max()));
                break;
        }
        desktop.clock.Advance(Pick(0, 300));
        return "grid";
    }

    std::mt19937 random_;
    uint32_t seed_ = 0;
    int32_t width_ = kWidth;
    int32_t height_ = kHeight;
    std::string errors_;

private:
    static constexpr uint32_t kSeed = 20240229;

    static int64_t FromEnvironment(const char* name, int64_t otherwise) {
        const char* text = std::getenv(name);
        return text == nullptr ? otherwise : std::atoll(text);
    }
};

}  // namespace vorlane
