// Slides of an array that are unloaded by a handler of their own.
#include "platform/controlarray.h"
#include "slidetest.h"
#include "tests/platform/headless/panel.h"

#include <memory>

namespace vorlane::headless {
namespace {

class UnloadingTest : public testing::Test {
protected:
    UnloadingTest() {
        slides.Load(1);
        const auto slide = slides.Item(1);
        watched = slide;
        slide->SetHaveTexte(true);
        Listen(desktop.trace, *slide);
        desktop.trace.Clear();
    }

    std::shared_ptr<eDiapoLight> Make() {
        auto slide = std::make_shared<eDiapoLight>(desktop.Roles(), window.Ambient(), &sheet);
        slide->Start();
        return slide;
    }

    // Whether the slide still works, out of the array.
    bool LivesOn() const { return !slides.Loaded(1) && !watched.expired(); }

    Desktop desktop;
    Window window{desktop, {0, 0, 400, 300}};
    Panel sheet{desktop, window.Ambient()};
    ControlArray<eDiapoLight> slides{[this](int32_t) { return Make(); }};
    std::weak_ptr<eDiapoLight> watched;
};

TEST_F(UnloadingTest, ASlideUnloadedWhenItAsksForAPictureFinishesFirst) {
    bool livesOn = false;
    slides.Item(1)->Events.SetPicture.connect([&](DiapoPictureIndex, Picture&, bool) {
        if (slides.Loaded(1)) slides.Unload(1);
        livesOn = LivesOn();
    });
    slides.Item(1)->PictureByString("/bad.jpg");
    EXPECT_EQ(desktop.trace.Take({"slide", "load"}),
              "slide SetPicture 7\nload /bad.jpg\nslide SetPicture 0\nslide InvalidPicture [/bad.jpg]\n");
    EXPECT_TRUE(livesOn);
    EXPECT_TRUE(watched.expired());
}

TEST_F(UnloadingTest, ASlideUnloadedWhenItReportsABadFileFinishesFirst) {
    bool livesOn = false;
    slides.Item(1)->Events.InvalidPicture.connect([&](const std::string&) {
        slides.Unload(1);
        livesOn = LivesOn();
    });
    slides.Item(1)->PictureByString("/bad.jpg");
    EXPECT_EQ(desktop.trace.Take({"slide", "load"}),
              "slide SetPicture 7\nload /bad.jpg\nslide SetPicture 0\nslide InvalidPicture [/bad.jpg]\n");
    EXPECT_TRUE(livesOn);
    EXPECT_TRUE(watched.expired());
}

}  // namespace
}  // namespace vorlane::headless
