// The outer frame in each of its styles, on a slide of 160 x 140 without picture frame and shadow.
#include "slidetest.h"

namespace vorlane::headless {
namespace {

struct Golden {
    const char* name;
    DiapoBorderStyle style;
    const char* drawn;
};

class OuterFrameTest : public LaidSlideTest, public testing::WithParamInterface<Golden> {};

TEST_P(OuterFrameTest, GoesAroundTheWholeSlide) {
    slide.SetBorderStyle(DiapoBorderStyle::BorderNone);
    slide.SetBorderStyleExt(GetParam().style);
    slide.SetShowShadow(false);
    EXPECT_EQ(Drawn(), GetParam().drawn);
}

INSTANTIATE_TEST_SUITE_P(Styles, OuterFrameTest,
                         testing::Values(Golden{"BorderSunken", DiapoBorderStyle::BorderSunken, R"(
Line 0,0 160,0 sys16
Line 0,0 0,140 sys16
Line 159,0 159,140 sys20
Line 0,139 159,139 sys20
)"},
                                         Golden{"BorderRaised", DiapoBorderStyle::BorderRaised, R"(
Line 0,0 160,0 sys20
Line 0,0 0,140 sys20
Line 159,0 159,140 sys16
Line 0,139 159,139 sys16
)"},
                                         Golden{"BorderSunkenDouble", DiapoBorderStyle::BorderSunkenDouble, R"(
Line 0,0 160,0 sys16
Line 0,0 0,140 sys16
Line 159,0 159,140 sys20
Line 0,139 159,139 sys20
Line 1,1 158,1 sys21
Line 1,1 1,138 sys21
Line 158,1 158,139 sys22
Line 1,138 158,138 sys22
)"},
                                         Golden{"BorderRaisedDouble", DiapoBorderStyle::BorderRaisedDouble, R"(
Line 0,0 160,0 sys20
Line 0,0 0,140 sys20
Line 159,0 159,140 sys16
Line 0,139 159,139 sys16
Line 1,1 158,1 sys22
Line 1,1 1,138 sys22
Line 158,1 158,139 sys21
Line 1,138 158,138 sys21
)"},
                                         Golden{"FlatBackColor", DiapoBorderStyle::FlatBackColor, R"(
Box 0,0 159,139 #C0C0C0
)"}),
                         [](const auto& golden) { return golden.param.name; });

}  // namespace
}  // namespace vorlane::headless
