// Whatever moves the slides may be met by any other motion whenever the host is called, or at a yield: in the end the
// slides stand in the list's order, from where the bar stands.
#include "platform/memorylistbox.h"
#include "tests/sheet/sheetfixture.h"
#include "windows/frmscroll.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace vorlane {
namespace {

// What runs, and by what it is met.
using Meeting = std::pair<std::string, std::string>;

bool Fails(const std::string& pass) {
    return pass.starts_with("failing");
}

class MotionTest : public SheetTest, public ::testing::WithParamInterface<Meeting> {
protected:
    static constexpr int32_t kItems = 60;

    // A sheet of 60 items that shows them from 9 on, or the last ones; or one that has not shown any.
    void Prepare(const std::string& pass) {
        window.Resize(kWidth, kHeight);
        Make(window.Ambient());
        PropertyBag bag;
        if (pass.starts_with("sideways")) bag.SetValue("ScrollDirection", int64_t{1});
        Start(bag);
        if (pass == "refresh") BindListOfTheHosts();
        AddSorted();
        if (pass != "first fill") sheet->StartLecture("", AtEnd(pass) ? 1000 + kItems - 1 : 1009);
        if (pass == "remove selected") {
            for (const int32_t item : {11, 12, 40}) sheet->Liste()->SetSelected(item, true);
            sheet->StartLecture("", 1009);
        }
        desktop.clock.Advance(200);
        desktop.trace.Clear();
    }
    static bool AtEnd(const std::string& pass) { return pass.find("at the end") != std::string::npos; }

    // Such a list keeps its items when the sheet is cleared.
    void BindListOfTheHosts() {
        auto list = std::make_unique<MemoryListBox>(900);
        sheet->InitListe(ListeModeType::lmList, list.get());
        list_ = std::move(list);
    }
    // Adds items whose sort data tell their order. Some have no picture that can be read.
    void AddSorted() {
        for (int32_t n = 0; n < kItems; ++n) {
            const bool broken = n % 11 == 2;
            const std::string file = broken ? "/p/broken" + std::to_string(n) + ".jpg" : File(n);
            sheet->Add(file, std::to_string(100 + n), 1000 + n);
        }
    }
    int32_t RowLength() const {
        const bool vertical = sheet->ScrollDirection() == ScrollDirectionType::sdVertical;
        return vertical ? sheet->CountDiapoX() : sheet->CountDiapoY();
    }

    void Run(const std::string& pass) {
        const int32_t place = sheet->VScroll.Value();
        const int32_t row = RowLength();
        const auto starts = [&](std::string_view name) {
            const auto motion = pass.substr(Fails(pass) || pass.starts_with("sideways") ? pass.find(' ') + 1 : 0);
            return motion.starts_with(name);
        };
        if (Fails(pass)) FailOnce();
        if (starts("jump")) sheet->VScroll.SetValue(30);
        if (starts("step forward")) sheet->VScroll.SetValue(place + row);
        if (starts("step back")) sheet->VScroll.SetValue(place - row);
        if (starts("start") || starts("first fill")) sheet->StartLecture();
        if (starts("thumb drag")) DragThumb();
        if (starts("refresh")) sheet->Refresh();
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

    void DragThumb() {
        window.HoldThumb(sheet->VScroll);
        window.DragThumb(sheet->VScroll, 21);
        window.DragThumb(sheet->VScroll, 33);
        window.ReleaseThumb(sheet->VScroll, 33);
    }
    // The host fails at the slide that is filled next but one.
    void FailOnce() {
        onAdded = [slides = 0](int16_t) mutable {
            if (++slides == 2) throw failures::TypeMismatch();
        };
    }

    void Act(const std::string& action) {
        const int32_t place = sheet->VScroll.Value();
        const int32_t row = RowLength();
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
        if (action == "remove behind") Remove(4);
        if (action == "remove selected") {
            for (const int32_t item : {10, 14, 55}) Select(item);
            sheet->RemoveAllSelected();
        }
        if (action == "restore") Restore();
        if (action == "tick") {
            desktop.clock.Sleep(150);
            desktop.clock.DoEvents();
        }
    }

    // With its own design, and slides that can be told from the old ones.
    void Restore() {
        PropertyBag bag;
        sheet->WriteProperties(bag);
        bag.SetValue("BorderSize", int64_t{2});
        sheet->Restart(bag);
    }

    // In the list and on the slides, wherever the pass is.
    void Select(int32_t item) {
        sheet->Liste()->SetSelected(item, true);
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const auto slide = sheet->Diapo.Item(k);
            if (slide->Value() == item) slide->SetSelected(true);
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
        begun_ = false;
        sizes_ = action == "size" || pass.find("slides") != std::string::npos;
        met_.clear();
        const auto call = [this, action, left = n](const std::string& what) mutable {
            begun_ = begun_ || (left > 0 && what == "DisplayStart");
            if (left <= 0 || --left > 0) return;
            met_ = what;
            Act(action);
        };
        called_ = call;
        Listen();
        WaitForYield();
        Run(pass);
        called_ = nullptr;
        onAdded = nullptr;
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
        events.TLClear.connect(call("TLClear"));
        events.InvalidPicture.connect(call("InvalidPicture"));
        events.GetThumbPath.connect(call("GetThumbPath"));
        events.ScrollMouseDown.connect(call("ScrollMouseDown"));
        events.ScrollMouseUp.connect(call("ScrollMouseUp"));
        events.Error.connect(call("Error"));
        sheet->PropertyChanged.connect(call("PropertyChanged"));
    }

    // A thumb that is dragged over a list that is no more fails; a host that fails in a layout is not heard.
    void ExpectNoFailure(const std::string& pass, const std::string& action) {
        const std::string heard = Heard();
        int32_t errors = 0;
        for (size_t at = heard.find("Error"); at != std::string::npos; at = heard.find("Error", at + 1)) ++errors;
        const bool nothingToFollow = pass == "thumb drag" && action == "clear";
        const int32_t more = Fails(pass) ? 1 : nothingToFollow ? 2 : 0;
        EXPECT_TRUE(errors >= refused_ && errors <= refused_ + more) << heard;
        EXPECT_EQ(desktop.screen.MousePointer(), 0);
        EXPECT_FALSE(SharedFrmScroll(desktop.Roles()).Loaded());
    }
    void ExpectInOrder() {
        EXPECT_EQ(desktop.clock.RunningTimers(), 0);
        EXPECT_EQ(sheet->Diapo.Item(0)->Value(), sheet->VScroll.Value()) << Slides();
        EXPECT_LE(sheet->Diapo.Count(), sheet->CountDiapo());
        const int32_t shown = std::min<int32_t>(sheet->CountDiapo(), sheet->Count() - sheet->VScroll.Value());
        EXPECT_GE(sheet->Diapo.Count(), shown - RowLength()) << "all but a row that is out of sight";
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
        const bool goesOn = pass == "thumb drag" || (pass == "refresh" && !begun_);
        if (action == "start elsewhere" && !renumbers && !goesOn && met_ != "Removed") {
            EXPECT_EQ(sheet->Key(sheet->VScroll.Value()), 1020);
        }
        const bool vertical = sheet->ScrollDirection() == ScrollDirectionType::sdVertical;
        if (action == "resize" && vertical) {
            EXPECT_EQ(sheet->CountDiapoX(), grid::CountThatFit(555 - 16 - 10, sheet->DiapoWidth(), 5));
        }
    }

    std::function<void(const std::string&)> called_;
    std::string met_;      // what the host was called for when it acted
    bool begun_ = false;   // the pass had begun to fill or to lay out by then
    int32_t refused_ = 0;  // removals that met a slide without an item
    int32_t gaps_ = 0;     // items that were removed one by one
    bool sizes_ = false;   // the size of the slides changes
    std::unique_ptr<MemoryListBox> list_;
};

TEST_P(MotionTest, LeavesTheSlidesInTheListsOrder) {
    const auto& [pass, action] = GetParam();
    for (int32_t n = 1; RunAndMeet(pass, action, n) && !HasFailure(); ++n) {
        SCOPED_TRACE("call " + std::to_string(n) + ", " + met_);
        ExpectNoFailure(pass, action);
        if (action == "clear" && (pass != "refresh" || begun_)) {
            EXPECT_EQ(Slides(), "(.)");
            continue;
        }
        if (Fails(pass)) {
            // Back to where the bar stood before, if it does not stand there.
            sheet->VScroll.SetValue(sheet->VScroll.Value() == 9 ? 12 : 9);
        } else {
            ExpectWhatTheActionWanted(pass, action);
        }
        ExpectInOrder();
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
    for (const char* pass : {"jump",
                             "step forward",
                             "step back",
                             "step back at the end",
                             "start",
                             "first fill",
                             "sort",
                             "spread",
                             "grow",
                             "grow at the end",
                             "shrink",
                             "turn",
                             "smaller slides",
                             "smaller slides at the end",
                             "larger slides",
                             "remove one",
                             "remove one at the end",
                             "remove selected",
                             "refresh",
                             "thumb drag",
                             "sideways jump",
                             "sideways step forward",
                             "sideways step back",
                             "sideways start",
                             "failing jump",
                             "failing step forward",
                             "failing start"}) {
        for (const char* action :
             {"resize", "short step", "step", "step back", "jump", "sort", "clear", "start elsewhere", "start here",
              "size", "remove", "remove behind", "remove selected", "restore", "tick"}) {
            const bool endsForGood = Fails(pass) && action == std::string("size");  // a throw in a layout
            if (!endsForGood) meetings.emplace_back(pass, action);
        }
    }
    return meetings;
}

INSTANTIATE_TEST_SUITE_P(Meetings, MotionTest, testing::ValuesIn(Meetings()), NameOf);

}  // namespace
}  // namespace vorlane
