// Whatever moves the slides may be met by any other motion whenever the host is called, or at a yield: in the end the
// slides stand in the list's order, from where the bar stands.
#include "tests/sheet/sheetfixture.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vorlane {
namespace {

// What runs, and by what it is met.
using Meeting = std::pair<std::string, std::string>;

class MotionTest : public SheetTest, public ::testing::WithParamInterface<Meeting> {
protected:
    static constexpr int32_t kItems = 60;

    // A sheet of 60 items that shows them from 9 on, or the last ones; or one that has not shown any.
    void Prepare(const std::string& pass) {
        window.Resize(kWidth, kHeight);
        Make(window.Ambient());
        Start();
        AddSorted(0, kItems - 1);
        if (pass != "first fill") sheet->StartLecture("", AtEnd(pass) ? 1000 + kItems - 1 : 1009);
        if (pass == "remove selected") {
            for (const int32_t item : {11, 12, 40}) sheet->LstInterne.SetSelected(item, true);
            sheet->StartLecture("", 1009);
        }
        desktop.clock.Advance(200);
        desktop.trace.Clear();
    }
    static bool AtEnd(const std::string& pass) { return pass.find("at the end") != std::string::npos; }

    // Adds items whose sort data tell their order.
    void AddSorted(int32_t first, int32_t last) {
        for (int32_t n = first; n <= last; ++n) sheet->Add(File(n), std::to_string(100 + n), 1000 + n);
    }

    void Run(const std::string& pass) {
        const int32_t place = sheet->VScroll.Value();
        const int32_t row = sheet->CountDiapoX();
        const auto starts = [&](std::string_view name) { return pass.starts_with(name); };
        if (starts("jump")) sheet->VScroll.SetValue(30);
        if (starts("step forward")) sheet->VScroll.SetValue(place + row);
        if (starts("step back")) sheet->VScroll.SetValue(place - row);
        if (starts("start") || starts("first fill")) sheet->StartLecture();
        if (starts("spread")) window.Resize(kWidth + 30, kHeight);
        if (starts("grow")) window.Resize(450, 260);
        if (starts("shrink")) window.Resize(240, kHeight);
        if (starts("turn")) sheet->SetScrollDirection(ScrollDirectionType::sdHorizontal);
        if (starts("smaller slides")) sheet->SetDiapoWidth(60);
        if (starts("larger slides")) sheet->SetDiapoWidth(150);
        if (starts("remove one")) Remove(AtEnd(pass) ? 1 : 4);
        if (starts("remove selected")) sheet->RemoveAllSelected();
        if (starts("sort")) sheet->Sort(1);
        desktop.clock.Advance(300);
    }

    void Act(const std::string& action) {
        const int32_t place = sheet->VScroll.Value();
        const int32_t row = sheet->CountDiapoX();
        if (action == "resize") window.Resize(555, 200);
        if (action == "short step") sheet->VScroll.SetValue(place + 1);
        if (action == "step") sheet->VScroll.SetValue(place + row);
        if (action == "step back") sheet->VScroll.SetValue(place - row);
        if (action == "jump") sheet->VScroll.SetValue(20);
        if (action == "sort") {
            sheet->SetSortedSens(SortSensType::ssDescending);
            sheet->Sort(1);
        }
        if (action == "clear") sheet->Clear();
        if (action == "start elsewhere") sheet->StartLecture("", 1020);
        if (action == "start here") sheet->StartLecture("", sheet->Key(std::max(sheet->Diapo.Item(0)->Value(), 0)));
        if (action == "size") sheet->SetDiapoWidth(80);
        if (action == "remove") Remove(1);
        if (action == "remove selected") {
            for (const int32_t item : {10, 14, 55}) sheet->LstInterne.SetSelected(item, true);
            sheet->RemoveAllSelected();
        }
        if (action == "tick") {
            desktop.clock.Sleep(150);
            desktop.clock.DoEvents();
        }
    }

    // A slide that shows no item has none to lose, which is told.
    void Remove(int16_t index) {
        const bool refused = sheet->Diapo.Loaded(index) && sheet->Diapo.Item(index)->Value() < 0;
        refused_ += refused ? 1 : 0;
        const int32_t before = sheet->Count();
        sheet->Remove(index);
        if (sheet->Count() < before) ++gaps_;
    }

    // Runs a pass and acts at the n-th call of the host or yield. Whether there was one.
    bool RunAndMeet(const std::string& pass, const std::string& action, int32_t n) {
        Prepare(pass);
        refused_ = gaps_ = 0;
        sizes_ = action == "size" || pass.find("slides") != std::string::npos;
        met_.clear();
        const auto call = [this, action, left = n](const std::string& what) mutable {
            if (left <= 0 || --left > 0) return;
            met_ = what;
            Act(action);
        };
        called_ = call;
        Listen();
        WaitForYield();
        Run(pass);
        called_ = nullptr;
        desktop.clock.DoEvents();  // the last one that was waited for
        return !met_.empty();
    }
    void WaitForYield() {
        desktop.clock.AtYield(1, [this] {
            if (!called_) return;
            WaitForYield();
            called_("yield");
        });
    }
    void Listen() {
        auto& events = sheet->Events;
        const auto call = [this](const std::string& what) {
            return [this, what](const auto&...) {
                if (called_) called_(what);
            };
        };
        events.DisplayStart.connect(call("DisplayStart"));
        events.DisplayEnd.connect(call("DisplayEnd"));
        events.BeforeAdd.connect(call("BeforeAdd"));
        events.BeforeSetPicture.connect(call("BeforeSetPicture"));
        events.Added.connect(call("Added"));
        events.Scroll.connect(call("Scroll"));
        events.Sorted.connect(call("Sorted"));
        events.Removed.connect(call("Removed"));
        events.TraitementFeedBack.connect(call("TraitementFeedBack"));
        events.TLRefresh.connect(call("TLRefresh"));
    }

    void ExpectNoFailure() {
        const std::string heard = Heard();
        int32_t errors = 0;
        for (size_t at = heard.find("Error"); at != std::string::npos; at = heard.find("Error", at + 1)) ++errors;
        EXPECT_EQ(errors, refused_) << heard;
        EXPECT_EQ(desktop.screen.MousePointer(), 0);
    }
    void ExpectInOrder() {
        ExpectNoFailure();
        refused_ = 0;
        EXPECT_EQ(desktop.clock.RunningTimers(), 0);
        EXPECT_EQ(sheet->Diapo.Item(0)->Value(), sheet->VScroll.Value()) << Slides();
        EXPECT_LE(sheet->Diapo.Count(), sheet->CountDiapo());
        const int32_t shown = std::min<int32_t>(sheet->CountDiapo(), sheet->Count() - sheet->VScroll.Value());
        EXPECT_GE(sheet->Diapo.Count(), shown - sheet->CountDiapoX()) << "all but a row that is out of sight";
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            EXPECT_TRUE(sheet->Diapo.Item(k)->Visible()) << "slide " << k;
        }
        ExpectSlidesAgreeWithList();
        ExpectGrid();
        ExpectEachItemOnce();
    }
    // All slides have one size, and stand in even rows and columns. The gaps between rows that were made before and
    // after a change of the slides' size may differ, until the next layout.
    void ExpectGrid() {
        const auto first = sheet->Diapo.Item(0);
        const float stepX = sheet->DiapoWidth(true);
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const auto slide = sheet->Diapo.Item(k);
            const int32_t column = k % sheet->CountDiapoX();
            EXPECT_EQ(slide->Width(), first->Width()) << "slide " << k;
            EXPECT_EQ(slide->Height(), first->Height()) << "slide " << k;
            EXPECT_EQ(slide->Left(), first->Left() + static_cast<float>(column) * stepX) << "slide " << k;
            const auto head = sheet->Diapo.Item(k - column);
            EXPECT_EQ(slide->Top(), head->Top()) << "slide " << k;
            if (k != column) ExpectRowBelow(*sheet->Diapo.Item(k - column - sheet->CountDiapoX()), *head);
        }
    }
    void ExpectRowBelow(const eDiapoLight& above, const eDiapoLight& row) {
        const float gap = row.Top() - above.Top() - above.Height();
        EXPECT_GE(gap, 5);
        if (sizes_) return;
        EXPECT_EQ(row.Top() - above.Top(), sheet->DiapoHeight(true));
    }
    // Each removal of one item may have left the item behind its last slide out, until all slides are filled.
    void ExpectEachItemOnce() const {
        int32_t gaps = 0;
        for (int32_t k = 1; k < sheet->Diapo.Count(); ++k) {
            const int32_t step = sheet->Diapo.Item(k)->Value() - sheet->Diapo.Item(k - 1)->Value();
            EXPECT_TRUE(step == 1 || step == 2) << "slide " << k << ": " << Slides();
            gaps += step == 2 ? 1 : 0;
        }
        EXPECT_LE(gaps, gaps_) << Slides();
    }

    void ExpectWhatTheActionWanted(const std::string& pass, const std::string& action) {
        const bool renumbers = pass.starts_with("remove") || pass == "sort";
        if (action == "start elsewhere" && !renumbers && met_ != "Removed") {
            EXPECT_EQ(sheet->Key(sheet->VScroll.Value()), 1020);
        }
        if (action == "resize" && pass != "turn") {
            EXPECT_EQ(sheet->CountDiapoX(), grid::CountThatFit(555 - 16 - 10, sheet->DiapoWidth(), 5));
        }
    }

    std::function<void(const std::string&)> called_;
    std::string met_;      // what the host was called for when it acted
    int32_t refused_ = 0;  // removals that met a slide without an item
    int32_t gaps_ = 0;     // items that were removed one by one
    bool sizes_ = false;   // the size of the slides changes
};

TEST_P(MotionTest, LeavesTheSlidesInTheListsOrder) {
    const auto& [pass, action] = GetParam();
    for (int32_t n = 1; RunAndMeet(pass, action, n) && !HasFailure(); ++n) {
        SCOPED_TRACE("call " + std::to_string(n) + ", " + met_);
        if (action == "clear") {
            EXPECT_EQ(Slides(), "(.)");
            ExpectNoFailure();
            continue;
        }
        ExpectInOrder();
        ExpectWhatTheActionWanted(pass, action);
        sheet->VScroll.SetValue(sheet->VScroll.Max());
        sheet->VScroll.SetValue(0);
        gaps_ = 0;
        ExpectInOrder();
        EXPECT_EQ(sheet->VScroll.Value(), 0) << "the bar is alive";
    }
}

std::string NameOf(const testing::TestParamInfo<Meeting>& info) {
    std::string name = info.param.first + "_met_by_" + info.param.second;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

std::vector<Meeting> Meetings() {
    std::vector<Meeting> meetings;
    for (const char* pass :
         {"jump", "step forward", "step back", "step back at the end", "start", "first fill", "sort", "spread", "grow",
          "grow at the end", "shrink", "turn", "smaller slides", "smaller slides at the end", "larger slides",
          "remove one", "remove one at the end", "remove selected"}) {
        for (const char* action : {"resize", "short step", "step", "step back", "jump", "sort", "clear",
                                   "start elsewhere", "start here", "size", "remove", "remove selected", "tick"}) {
            meetings.emplace_back(pass, action);
        }
    }
    return meetings;
}

INSTANTIATE_TEST_SUITE_P(Meetings, MotionTest, testing::ValuesIn(Meetings()), NameOf);

}  // namespace
}  // namespace vorlane
