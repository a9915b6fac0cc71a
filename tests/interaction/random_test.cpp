// Whatever the user's hand does to a sheet, and whatever happens at its yields: list and slides agree, each slide looks
// as if it had just been bound, a drag leaves nothing behind, no file is lost, and no memory.
#include "tests/interaction/liveheap.h"
#include "tests/interaction/randomdrops.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <map>

namespace vorlane {
namespace {

constexpr int32_t kSteps = 100000;
constexpr int64_t kMinute = 60000;  // milliseconds
constexpr int64_t kShortRun = 10;   // minutes of the virtual clock
constexpr int64_t kSettling = 2;    // those of them in which what is kept comes to its usual size
constexpr size_t kSlack = 8192;     // bytes

class RandomGestures : public RandomDrops {
protected:
    std::string Step() {
        if (Maybe(5)) desktop.clock.AtYield(Pick(1, 3), [this] { ActAtYield(); });
        if (Maybe(10)) desktop.clock.AtYield(Pick(1, 2), [this] { MoveAtYield(); });
        const std::string act = Act();
        while (Holds()) LetGo();
        return act;
    }

    // A hand that drags does nothing else; a host may.
    void ActAtYield() {
        ++disturbances_;
        desktop.trace.Add("act at a yield");
        desktop.trace.Add("act " + (DragRuns() ? ActAsHost(Pick(1, 20)) : Act()));
    }

    void MoveAtYield() {
        if (DragRuns()) return;
        ++disturbances_;
        desktop.trace.Add("act " + MoveAlone());
    }

    std::string Act() {
        const int32_t kind = Pick(1, 100);
        if (kind <= 32) return ClickSomewhere();
        if (kind <= 46) return SweepABand();
        if (kind <= 51) return TypeAKey();
        if (kind <= 57) return TurnTheWheel();
        if (kind <= 62) return MoveTheMouse();
        if (kind <= 68) return DragSlides();
        if (kind <= 72) return DropFromOutside();
        if (kind <= 76) return Rename();
        if (kind <= 80) return PressASoundButton();
        return ActAsHost(kind - 80);
    }
    std::string ActAsHost(int32_t kind) {
        if (kind <= 8) return SelectByHost();
        return kind <= 14 ? ChangeTheList() : ChangeTheGrid();
    }

    // --- What has to hold ---

    bool Sound() {
        const std::string states = States();
        CheckRest();
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
               errors_ + desktop.trace.Text({"act", "drag", "load"});
    }

    bool StepIsSound(int32_t step) {
        if (sheet->Diapo.Item(0)->Value() < 0) Fill();
        if (story_.size() > 400) story_.erase(0, 200);
        desktop.trace.Clear();
        story_ += std::to_string(step) + " " + Step() + ", ";
        if (!Sound()) return false;
        return step % 20 != 0 || (Fresh() && FilesAreThere());
    }

    // Lets go of all that hangs on the last gestures, so that what is live differs by what was lost alone.
    size_t LiveAtRest() {
        while (desktop.clock.PendingActions() > 0) desktop.clock.DoEvents();
        bool cancel = true;
        sheet->EndEdit(cancel);
        sheet->StopSound();
        sheet->Clear();
        width_ = kWidth;
        height_ = kHeight;
        window.Resize(width_, height_);
        sheet->SetDiapoWidth(100);
        AddItems(0, kPictures - 1);
        sheet->StartLecture();
        desktop.clock.Advance(2000);
        desktop.trace = headless::Trace();
        story_ = std::string();
        return LiveHeap();
    }

    std::string story_;
};

TEST_F(RandomGestures, LeaveListAndSlidesInStep) {
    Begin();
    const int64_t seconds = Seconds();
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    const auto goesOn = [&](int32_t step) {
        return seconds > 0 ? std::chrono::steady_clock::now() < end : step < kSteps;
    };
    for (int32_t step = 0; goesOn(step); ++step) {
        ASSERT_TRUE(StepIsSound(step)) << Story();
    }
    while (desktop.clock.PendingActions() > 0) desktop.clock.DoEvents();
    sheet->StopSound();
    desktop.clock.Advance(1000);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_EQ(desktop.sounds.OpenSounds(), 0);
}

TEST_F(RandomGestures, LoseNoMemory) {
    Begin();
    const bool tells = Minutes() > 0;
    const int64_t minutes = tells ? Minutes() : kShortRun;
    size_t usual = 0;
    int32_t step = 0;
    for (int64_t minute = 1; minute <= minutes; ++minute) {
        for (; desktop.clock.Now() < minute * kMinute; ++step) {
            ASSERT_TRUE(StepIsSound(step)) << Story();
        }
        const size_t live = LiveAtRest();
        if (tells) std::cout << "minute " << minute << ": " << step << " gestures, " << live << " bytes" << std::endl;
        if (minute <= kSettling) usual = std::max(usual, live);
        EXPECT_LE(live, usual + kSlack) << "minute " << minute << ", seed " << seed_;
    }
}

}  // namespace
}  // namespace vorlane
