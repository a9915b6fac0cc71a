#include "timeline/soncollection.h"

#include "tests/platform/expectfailure.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace vorlane {
namespace {

tSon Son(int32_t diapoKey, const std::string& name = "a.wav") {
    tSon son;
    son.DiapoKey = diapoKey;
    son.Nom = name;
    return son;
}

std::string Keys(const SonCollection& sounds) {
    std::string text;
    for (int32_t i = 1; i <= sounds.Count(); ++i) {
        text += (i == 1 ? "" : " ") + std::to_string(sounds.Item(i).DiapoKey);
    }
    return text;
}

TEST(SonCollection, CountsFromOneAndInsertsInFront) {
    SonCollection sounds;
    sounds.Add(Son(1), "1k");
    sounds.Add(Son(2), "2k");
    sounds.Add(Son(3), "3k", 1);
    sounds.Add(Son(4), "4k", 3);
    EXPECT_EQ(Keys(sounds), "3 1 4 2");
    sounds.Remove(2);
    EXPECT_EQ(Keys(sounds), "3 4 2");
    EXPECT_FAILURE(sounds.Item(0), SubscriptOutOfRange());
    EXPECT_FAILURE(sounds.Item(4), SubscriptOutOfRange());
    EXPECT_FAILURE(sounds.Remove(4), SubscriptOutOfRange());
    EXPECT_FAILURE(sounds.Add(Son(5), "5k", 4), SubscriptOutOfRange());
    EXPECT_EQ(Keys(sounds), "3 4 2");
}

TEST(SonCollection, AKeyThatIsThereIsRefusedUntilItsEntryHasGone) {
    SonCollection sounds;
    sounds.Add(Son(1), "1k");
    EXPECT_FAILURE(sounds.Add(Son(2), "1k"), DuplicateKey());
    EXPECT_EQ(Keys(sounds), "1");
    sounds.Remove(1);
    sounds.Add(Son(2), "1k");
    EXPECT_EQ(Keys(sounds), "2");
}

TEST(SonCollection, FindsTheFirstOfSeveralSoundsOfASlide) {
    SonCollection sounds;
    sounds.Add(Son(7), "a");
    sounds.Add(Son(9), "b");
    sounds.Add(Son(9), "c", 1);
    EXPECT_EQ(sounds.FindDiapoKey(9), 1);
    sounds.Remove(1);
    EXPECT_EQ(sounds.FindDiapoKey(9), 2);
    sounds.Remove(2);
    EXPECT_EQ(sounds.FindDiapoKey(9), -1);
}

TEST(SonCollection, FindsNamesInSmallLetters) {
    SonCollection sounds;
    sounds.Add(Son(1, "/s/Été.WAV"), "1k");
    sounds.Add(Son(2, "/s/été.wav"), "2k");
    EXPECT_EQ(sounds.FindLowerName("/s/été.wav"), 1);
    EXPECT_EQ(sounds.FindLowerName("/s/Été.WAV"), -1);
}

// Against a plain walk, over comings and goings everywhere.
TEST(SonCollection, FindsWhatAWalkFinds) {
    std::mt19937 random(20);
    SonCollection sounds;
    std::vector<int32_t> plain;
    const auto below = [&](size_t limit) { return static_cast<size_t>(random() % limit); };
    for (int step = 0; step < 5000; ++step) {
        if (plain.size() < 3 || below(5) < 3) {
            const size_t place = below(plain.size() + 1);
            const auto key = static_cast<int32_t>(below(400));
            const std::string text = std::to_string(step);
            if (place == plain.size()) {
                sounds.Add(Son(key), text);
            } else {
                sounds.Add(Son(key), text, static_cast<int32_t>(place) + 1);
            }
            plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(place), key);
        } else {
            const size_t place = below(plain.size());
            sounds.Remove(static_cast<int32_t>(place) + 1);
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(place));
        }
        const auto wanted = static_cast<int32_t>(below(400));
        const auto found = std::find(plain.begin(), plain.end(), wanted);
        const int32_t expected = found == plain.end() ? -1 : static_cast<int32_t>(found - plain.begin()) + 1;
        ASSERT_EQ(sounds.FindDiapoKey(wanted), expected) << "step " << step;
    }
}

}  // namespace
}  // namespace vorlane
