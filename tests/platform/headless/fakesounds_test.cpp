// The headless desktop's sounds play on its virtual clock.
#include "platform/headless/desktop.h"

#include <gtest/gtest.h>

namespace vorlane::headless {
namespace {

TEST(FakeSoundsTest, ASoundPlaysForItsLengthAndStaysOpenUntilItIsStopped) {
    Desktop desktop;
    desktop.sounds.Add("/a.mp3", 2);
    const std::string alias = desktop.sounds.Play("/a.mp3", desktop.sounds.CanalMusic(), 100);
    EXPECT_TRUE(desktop.sounds.IsPlaying({alias}));
    desktop.clock.Advance(2000);
    EXPECT_FALSE(desktop.sounds.IsPlaying({alias}));
    EXPECT_TRUE(desktop.sounds.IsOpen(alias));
    desktop.sounds.Stop(alias);
    EXPECT_FALSE(desktop.sounds.IsOpen(alias));
    EXPECT_EQ(desktop.trace.Text(), "sound play /a.mp3 on 11 at 100 as son1\nsound stop son1\n");
}

TEST(FakeSoundsTest, AFileThatIsNotThereOpensAndIsSilent) {
    Desktop desktop;
    const std::string alias = desktop.sounds.Play("/none.mp3", 11, 100);
    EXPECT_TRUE(desktop.sounds.IsOpen(alias));
    EXPECT_FALSE(desktop.sounds.IsPlaying({alias}));
}

TEST(FakeSoundsTest, ASoundIsKnownByItsNumberAndItsFileToo) {
    Desktop desktop;
    desktop.sounds.Add("/a.mp3", 2);
    EXPECT_EQ(desktop.sounds.Current().Handle, -1);
    desktop.sounds.Play("/a.mp3", 11, 100);
    const SoundName current = desktop.sounds.Current();
    EXPECT_EQ(current.File, "/a.mp3");
    EXPECT_TRUE(desktop.sounds.IsPlaying({"", current.Handle, ""}));
    EXPECT_TRUE(desktop.sounds.IsPlaying({"", -1, "/a.mp3"}));
    EXPECT_FALSE(desktop.sounds.IsPlaying({}));
}

}  // namespace
}  // namespace vorlane::headless
