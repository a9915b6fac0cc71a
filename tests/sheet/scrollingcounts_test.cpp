// What scrolling costs, as numbers: whatever the length of the list.
#include "tests/sheet/sheetfixture.h"
#include "tests/sheet/vectorlistbox.h"

namespace vorlane {
namespace {

class ScrollingCounts : public SheetTest, public ::testing::WithParamInterface<int32_t> {
protected:
    struct Cost {
        int32_t TextReads;
        int32_t Binds;  // slides that took a file
        int32_t Decodes;
        int32_t Reductions;
        int32_t Layouts;  // of slides
        bool operator==(const Cost&) const = default;
    };

    VectorListBox list{500};
    int32_t binds = 0;
    int32_t layouts = 0;
    std::vector<ScopedConnection> drawing;

    void SetUp() override {
        Start();
        for (int32_t n = 0; n < GetParam(); ++n) list.AddItem("\t" + File(n % 300));
        sheet->InitListe(ListeModeType::lmList, &list);
        onBeforeSetPicture = [this](int16_t, Picture&) { ++binds; };
        sheet->StartLecture();
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) CountLayouts(sheet->Diapo.Item(k)->Surface());
    }

    // A layout empties what is recorded of its slide once.
    void CountLayouts(Surface& surface) {
        drawing.emplace_back(surface.Changed.connect([this, &surface, before = surface.Commands().size()]() mutable {
            const size_t now = surface.Commands().size();
            if (now < before) ++layouts;
            before = now;
        }));
    }

    Cost CostOf(const std::function<void()>& action) {
        const int32_t loads = desktop.pictures.Loads();
        const int32_t resizes = desktop.pictures.Resizes();
        list.reads = 0;
        binds = 0;
        layouts = 0;
        action();
        return {static_cast<int32_t>(list.reads), binds, desktop.pictures.Loads() - loads,
                desktop.pictures.Resizes() - resizes, layouts};
    }
};

TEST_P(ScrollingCounts, ARowStepReadsBindsAndDecodesOneRowAndLaysEachSlideOutOnce) {
    EXPECT_EQ(CostOf([&] { sheet->VScroll.SetValue(3); }), (Cost{3, 3, 3, 0, 9}));
    sheet->VScroll.SetValue(60);
    EXPECT_EQ(CostOf([&] { sheet->VScroll.SetValue(57); }), (Cost{3, 3, 3, 0, 9}));
}

TEST_P(ScrollingCounts, ATurnOfTheWheelIsARowStep) {
    EXPECT_EQ(CostOf([&] { window.Wheel(-1, 50, 50); }), (Cost{3, 3, 3, 0, 9}));
}

TEST_P(ScrollingCounts, AJumpReadsBindsDecodesAndLaysOutOnePool) {
    EXPECT_EQ(CostOf([&] { sheet->VScroll.SetValue(60); }), (Cost{9, 9, 9, 0, 9}));
}

TEST_P(ScrollingCounts, ARefillOfWhatShowsReadsThePoolAndBindsNothing) {
    EXPECT_EQ(CostOf([&] { sheet->StartLecture(); }), (Cost{9, 0, 0, 0, 0}));
}

TEST_P(ScrollingCounts, ALayoutOfOtherGapsReadsThePoolsNamesAndBindsNothing) {
    EXPECT_EQ(CostOf([&] { window.Resize(kWidth + 30, kHeight); }), (Cost{9, 0, 0, 0, 0}));
}

TEST_P(ScrollingCounts, ALargerPoolBindsItsNewSlidesAlone) {
    const Cost cost = CostOf([&] {
        window.Resize(450, kHeight);
        desktop.clock.Advance(200);
    });
    EXPECT_EQ(cost.Binds, 3);
    EXPECT_EQ(cost.Decodes, 3);
    EXPECT_LE(cost.TextReads, 12);
}

INSTANTIATE_TEST_SUITE_P(Lengths, ScrollingCounts, ::testing::Values(100, 100000));

}  // namespace
}  // namespace vorlane
