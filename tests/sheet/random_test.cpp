// Whatever is done to a sheet, in whatever order: its slides agree with its list.
#include "tests/sheet/sheetfixture.h"

#include <random>

namespace vorlane {
namespace {

class RandomOperations : public SheetTest, public ::testing::WithParamInterface<uint32_t> {
protected:
    void SetUp() override {
        PropertyBag bag;
        bag.SetValue("ScrollDirection", int64_t{GetParam() % 3 == 0 ? 1 : 2});
        bag.SetValue("MargeDiapoAutoAdjust", GetParam() % 2 == 0);
        Start(bag);
        AddItems(0, 30);
        sheet->StartLecture();
    }

    int32_t Pick(int32_t from, int32_t to) { return std::uniform_int_distribution<int32_t>(from, to)(random_); }

    void Remove(int32_t index) {
        if (index < sheet->LstInterne.ListCount()) sheet->LstInterne.RemoveItem(index);
    }

    void Select(int16_t slot, bool selected) {
        if (sheet->Diapo.Item(slot)->Visible()) sheet->SetSelected(slot, selected);
    }

    // Does one thing and gives its name.
    std::string Step() {
        const int32_t count = sheet->LstInterne.ListCount();
        switch (Pick(0, 9)) {
            case 0:
                AddItems(Pick(0, 20), Pick(20, 40));
                sheet->StartLecture();
                return "add";
            case 1:
                for (int32_t n = Pick(0, 8); n > 0; --n) Remove(Pick(0, 40));
                sheet->StartLecture("", 1000 + Pick(0, 40));
                return "remove";
            case 2:
                sheet->StartLecture("", 1000 + Pick(0, 60));
                return "start at a key";
            case 3:
                sheet->VScroll.SetValue(Pick(0, count));
                return "scroll";
            case 4:
                sheet->Wheel(Pick(-2, 2));
                return "wheel";
            case 5:
                window.Resize(Pick(50, 700), Pick(20, 500));
                desktop.clock.Advance(Pick(0, 300));
                return "resize";
            case 6:
                sheet->SetDiapoWidth(ToInt16(Pick(30, 200)));
                desktop.clock.Advance(Pick(0, 300));
                return "size of slides";
            case 7:
                Select(ToInt16(Pick(0, sheet->Diapo.Count() - 1)), Pick(0, 1) == 1);
                return "select";
            case 8:
                if (Pick(0, 4) == 0) sheet->Clear();
                return "clear";
            default:
                sheet->SetMarges(ToInt16(Pick(0, 12)));
                sheet->SetShowJauge(Pick(0, 1) == 1);
                return "properties";
        }
    }

    // Blank slides have no item to select.
    bool CanStep() const { return sheet->Diapo.Item(0)->Value() >= 0; }

    void ExpectSound() {
        ExpectSlidesAgreeWithList();
        EXPECT_THAT(Heard(), testing::Not(testing::HasSubstr("Error")));
        EXPECT_EQ(desktop.screen.MousePointer(), 0);
        const bool settled = !sheet->TimerResize.Enabled() && !sheet->TimerUnload.Enabled();
        if (!settled || !CanStep()) return;
        EXPECT_LE(sheet->Diapo.Count(), sheet->CountDiapo());
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            EXPECT_EQ(sheet->Diapo.Item(k)->Value(), sheet->VScroll.Value() + k) << "slide " << k;
            EXPECT_TRUE(sheet->Diapo.Item(k)->Visible()) << "slide " << k;
        }
    }

private:
    std::mt19937 random_{GetParam()};
};

TEST_P(RandomOperations, LeaveSlidesThatAgreeWithTheList) {
    std::string done;
    for (int32_t step = 0; step < 150 && !HasFailure(); ++step) {
        if (!CanStep()) {
            AddItems(0, Pick(0, 30));
            sheet->StartLecture();
        }
        done += Step() + ", ";
        ExpectSound();
    }
    EXPECT_FALSE(HasFailure()) << done;
    desktop.clock.Advance(1000);
    EXPECT_EQ(desktop.clock.RunningTimers(), 0);
    EXPECT_LE(sheet->Diapo.Count(), Max(sheet->CountDiapo(), 1));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomOperations, ::testing::Range(1U, 41U));

}  // namespace
}  // namespace vorlane
