// Whatever moves the slides may be met by any other motion at any event: in the end the slides stand in the list's
// order, from where the bar stands.
#include "tests/sheet/sheetfixture.h"

#include <tuple>

namespace vorlane {
namespace {

// What runs, the event at which it is met, and by what.
using Meeting = std::tuple<std::string, std::string, std::string>;

class MotionTest : public SheetTest, public ::testing::WithParamInterface<Meeting> {
protected:
    static constexpr int32_t kItems = 60;

    void SetUp() override {
        Start();
        AddSorted(0, kItems - 1);
        sheet->StartLecture("", 1009);
        desktop.clock.Advance(200);
        desktop.trace.Clear();
    }

    // Adds items whose sort data tell their order.
    void AddSorted(int32_t first, int32_t last) {
        for (int32_t n = first; n <= last; ++n) sheet->Add(File(n), std::to_string(100 + n), 1000 + n);
    }

    void Run(const std::string& pass) {
        if (pass == "jump") sheet->VScroll.SetValue(30);
        if (pass == "step forward") sheet->VScroll.SetValue(12);
        if (pass == "step back") sheet->VScroll.SetValue(6);
        if (pass == "start") sheet->StartLecture();
        if (pass == "spread") window.Resize(kWidth + 30, kHeight);
        if (pass == "grow") window.Resize(450, 260);
        if (pass == "shrink") window.Resize(240, kHeight);
        if (pass == "smaller slides") sheet->SetDiapoWidth(60);
        if (pass == "larger slides") sheet->SetDiapoWidth(150);
        if (pass == "remove") sheet->Remove(4);
        if (pass == "remove selected") {
            for (const int32_t item : {11, 12, 40}) sheet->LstInterne.SetSelected(item, true);
            sheet->RemoveAllSelected();
        }
        if (pass == "sort") sheet->Sort(1);
        desktop.clock.Advance(300);
    }

    // Does action once, at the first such event from now on; at an event of a slide, when it is slide 2's or later.
    void MeetAt(const std::string& event, std::function<void()> action) {
        auto once = [action = std::move(action), done = false]() mutable {
            if (!std::exchange(done, true)) action();
        };
        if (event == "DisplayStart") onDisplayStart = once;
        if (event == "DisplayEnd") onDisplayEnd = once;
        if (event == "Scroll") onScroll = [once](int32_t&) mutable { once(); };
        if (event == "Sorted") onSorted = once;
        if (event == "Removed") onRemoved = [once](int32_t&) mutable { once(); };
        if (event == "yield") desktop.clock.AtYield(1, once);
        if (event == "Added") onAdded = [once](int16_t index) mutable { index >= 2 ? once() : void(); };
        if (event == "BeforeSetPicture") {
            onBeforeSetPicture = [once](int16_t index, Picture&) mutable { index >= 2 ? once() : void(); };
        }
    }

    void Act(const std::string& action) {
        if (action == "resize") window.Resize(555, 200);
        if (action == "step") sheet->VScroll.SetValue(sheet->VScroll.Value() + 3);
        if (action == "jump") sheet->VScroll.SetValue(20);
        if (action == "sort") {
            sheet->SetSortedSens(SortSensType::ssDescending);
            sheet->Sort(1);
        }
        if (action == "clear") sheet->Clear();
        if (action == "start elsewhere") sheet->StartLecture("", 1020);
        if (action == "start here") sheet->StartLecture("", sheet->Key(Max0(sheet->Diapo.Item(0)->Value())));
        if (action == "size") sheet->SetDiapoWidth(80);
        if (action == "remove") sheet->Remove(1);
        if (action == "tick") {
            desktop.clock.Sleep(150);
            desktop.clock.DoEvents();
        }
    }
    static int32_t Max0(int32_t value) { return value < 0 ? 0 : value; }

    void ExpectInOrder() {
        EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
        EXPECT_EQ(desktop.screen.MousePointer(), 0);
        EXPECT_EQ(desktop.clock.RunningTimers(), 0);
        EXPECT_EQ(sheet->Diapo.Item(0)->Value(), sheet->VScroll.Value());
        EXPECT_LE(sheet->Diapo.Count(), sheet->CountDiapo());
        const int32_t shown = std::min<int32_t>(sheet->CountDiapo(), sheet->Count() - sheet->VScroll.Value());
        EXPECT_GE(sheet->Diapo.Count(), shown - sheet->CountDiapoX()) << "all but a row that is out of sight";
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            EXPECT_TRUE(sheet->Diapo.Item(k)->Visible()) << "slide " << k;
        }
        ExpectSlidesAgreeWithList();
        ExpectGrid();
    }
    // All slides have one size, and stand in rows and columns that do not overlap.
    void ExpectGrid() {
        const auto first = sheet->Diapo.Item(0);
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const auto slide = sheet->Diapo.Item(k);
            const int32_t column = k % sheet->CountDiapoX();
            const int32_t row = k / sheet->CountDiapoX();
            const float stepX = sheet->DiapoWidth(true);
            const float stepY = sheet->DiapoHeight(true);
            EXPECT_EQ(slide->Width(), first->Width()) << "slide " << k;
            EXPECT_EQ(slide->Height(), first->Height()) << "slide " << k;
            EXPECT_EQ(slide->Left(), first->Left() + static_cast<float>(column) * stepX) << "slide " << k;
            EXPECT_EQ(slide->Top(), first->Top() + static_cast<float>(row) * stepY) << "slide " << k;
        }
    }
    // The slides of a removal that passes an item over are in order but for the last one.
    void ExpectEachItemOnce() {
        for (int32_t k = 1; k < sheet->Diapo.Count(); ++k) {
            const bool last = k == sheet->Diapo.Count() - 1;
            const int32_t step = sheet->Diapo.Item(k)->Value() - sheet->Diapo.Item(k - 1)->Value();
            EXPECT_TRUE(step == 1 || (last && step == 2)) << "slide " << k << ": " << Slides();
        }
    }
};

TEST_P(MotionTest, LeavesTheSlidesInTheListsOrder) {
    const auto& [pass, event, action] = GetParam();
    bool met = false;
    const std::string what = action;
    MeetAt(event, [&] {
        met = true;
        Act(what);
    });
    Run(pass);
    ASSERT_TRUE(met);
    if (action == "clear") {
        EXPECT_EQ(Slides(), "(.)");
        EXPECT_EQ(desktop.screen.MousePointer(), 0);
        EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
        return;
    }
    ExpectInOrder();
    ExpectEachItemOnce();
    if (action == "start elsewhere" && pass != "remove" && pass != "remove selected" && pass != "sort") {
        EXPECT_EQ(sheet->Key(sheet->VScroll.Value()), 1020);
    }
    if (action == "resize") {
        EXPECT_EQ(sheet->CountDiapoX(), grid::CountThatFit(555 - 16 - 10, sheet->DiapoWidth(), 5));
    }
    sheet->VScroll.SetValue(0);
    ExpectInOrder();
    EXPECT_EQ(sheet->VScroll.Value(), 0) << "the bar is alive";
}

std::string NameOf(const testing::TestParamInfo<Meeting>& info) {
    const auto& [pass, event, action] = info.param;
    std::string name = pass + "_at_" + event + "_" + action;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

// What is not promised. A removal's last slide passes an item over, and what moves the slides during its fill moves
// that gap along. A removal while another motion has a row without items in hand shows the rest at the next fill.
bool Promised(const std::string& pass, const std::string& event, const std::string& action) {
    if (pass == "remove") return action != "resize" && action != "step" && action != "remove";
    const bool rows = pass == "grow" || pass == "smaller slides" || pass == "larger slides" || pass == "step back";
    return !(rows && action == "remove" && (event == "DisplayStart" || event == "BeforeSetPicture"));
}

std::vector<Meeting> Meetings() {
    const std::vector<std::pair<std::string, std::vector<std::string>>> passes{
        {"jump", {"DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd", "Scroll"}},
        {"step forward", {"DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd", "Scroll"}},
        {"step back", {"DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd", "Scroll"}},
        {"start", {"DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd"}},
        {"sort", {"DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd", "Sorted"}},
        {"spread", {"DisplayStart", "Added", "DisplayEnd"}},
        {"grow", {"DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd", "yield"}},
        {"shrink", {"DisplayStart", "Added", "DisplayEnd", "yield"}},
        {"smaller slides", {"DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd", "yield"}},
        {"larger slides", {"DisplayStart", "Added", "DisplayEnd", "yield"}},
        {"remove", {"Removed", "DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd", "yield"}},
        {"remove selected", {"Removed", "DisplayStart", "BeforeSetPicture", "Added", "DisplayEnd"}},
    };
    std::vector<Meeting> meetings;
    for (const auto& [pass, events] : passes) {
        for (const std::string& event : events) {
            for (const char* action : {"resize", "step", "jump", "sort", "clear", "start elsewhere", "start here",
                                       "size", "remove", "tick"}) {
                if (Promised(pass, event, action)) meetings.emplace_back(pass, event, action);
            }
        }
    }
    return meetings;
}

INSTANTIATE_TEST_SUITE_P(Meetings, MotionTest, testing::ValuesIn(Meetings()), NameOf);

}  // namespace
}  // namespace vorlane
