#include "clssontest.h"
#include "tests/platform/expectfailure.h"

#include <random>

namespace vorlane {
namespace {

// --- Add ---

TEST_F(ClsSonTest, AddKeepsAllThatItIsTold) {
    sounds.SetTypeSon(1);
    const std::string file = File("voix.wav", 12.6);
    sounds.Add(file, 7, -1, true, false, 90, 20, 80);
    const tSon expected{1, 7, file, true, 13, 20, 90, 80, false};
    EXPECT_EQ(sounds.ItemFromPos(1), expected);
}

TEST_F(ClsSonTest, AddHasItsDefaults) {
    const std::string file = File("a.wav", 61);
    sounds.Add(file, 7);
    const tSon expected{0, 7, file, false, 61, 25, 100, 100, true};
    EXPECT_EQ(sounds.ItemFromPos(1), expected);
}

TEST_F(ClsSonTest, AddOfAFileThatIsNotThereLeavesTheCountAndRepaintsWhenTheDisplayFollows) {
    redraw = true;
    sounds.Add(folder.At("missing.wav"), 7);
    EXPECT_EQ(sounds.Count(), 0);
    EXPECT_EQ(Heard(), "son redraw?\nson repaint\n");
    sounds.Add(folder.Path(), 7);
    EXPECT_EQ(sounds.Count(), 0) << "a folder is no sound";
}

TEST_F(ClsSonTest, AddOnAnEmptyListAsksForNoNumber) {
    Put(7, 3);
    EXPECT_EQ(Heard(), "son redraw?\n");
}

TEST_F(ClsSonTest, AddAsksForTheNewNumberAtEachStep) {
    Put(1, 10);
    Put(2, 20);
    Put(3, 30);
    Heard();
    Put(4, 20);
    EXPECT_EQ(Keys(), "1 2 4 3") << "behind those of the same number";
    EXPECT_EQ(Heard(),
              "son number of 4: 20\nson number of 1: 10\n"
              "son number of 4: 20\nson number of 2: 20\n"
              "son number of 4: 20\nson number of 3: 30\n"
              "son redraw?\n");
}

TEST_F(ClsSonTest, AddWithDiapoValueNeverAsksForTheNewNumber) {
    Put(1, 10);
    Put(2, 20);
    Heard();
    sounds.Add(File(), 3, 15);
    EXPECT_EQ(Keys(), "1 3 2");
    EXPECT_EQ(Heard(), "son number of 1: 10\nson number of 2: 20\nson redraw?\n");
}

TEST_F(ClsSonTest, AddForASlideWithoutANumberAppends) {
    Put(1, 10);
    Put(2, 20);
    Heard();
    sounds.Add(File(), 3);
    EXPECT_EQ(Keys(), "1 2 3");
    EXPECT_EQ(Heard(), "son number of 3: -1\nson redraw?\n");
}

TEST_F(ClsSonTest, AddAppendsWhenTheScanMeetsASlideWithoutANumber) {
    Put(1, 10);
    Put(2, 20);
    numbers.erase(1);
    Heard();
    Put(3, 5);
    EXPECT_EQ(Keys(), "1 2 3");
    EXPECT_EQ(Heard(), "son number of 3: 5\nson number of 1: -1\nson redraw?\n");
}

TEST_F(ClsSonTest, TwoAddsForOneSlideFailAtTheSecondWhateverTheFiles) {
    redraw = true;
    Put(-3, 1);
    Heard();
    EXPECT_FAILURE(sounds.Add(File("b.wav"), -3), DuplicateKey());
    EXPECT_EQ(Keys(), "-3");
    EXPECT_EQ(Heard().find("repaint"), std::string::npos);
}

TEST_F(ClsSonTest, WithoutAnswersTheLastOnesStand) {
    ClsSon alone{desktop.Roles()};
    alone.Add(File(), 5);
    alone.Add(File(), 4);
    EXPECT_EQ(alone.ItemFromPos(1).DiapoKey, 5) << "all slides have number 0";
    bool follow = true;
    int repaints = 0;
    alone.Events.csRepaint.connect([&] { ++repaints; });
    auto answering = alone.Events.csGetRedraw.connect([&](bool& answer) { answer = follow; });
    alone.Clear();
    answering.disconnect();
    alone.Clear();
    EXPECT_EQ(repaints, 2);
}

// --- Sort ---

TEST_F(ClsSonTest, SortPutsSoundsInTheOrderOfTheirSlides) {
    Put(1, 1);
    Put(2, 2);
    Put(3, 3);
    numbers = {{1, 8}, {2, 5}, {3, 6}};
    redraw = true;
    Heard();
    sounds.Sort();
    EXPECT_EQ(Keys(), "2 3 1");
    EXPECT_EQ(Heard(),
              "son number of 1: 8\n"
              "son number of 2: 5\nson number of 1: 8\n"
              "son number of 3: 6\nson number of 2: 5\nson number of 1: 8\n");
}

TEST_F(ClsSonTest, SortDropsTheSoundOfASlideThatLeftWithoutTellingOfIt) {
    Put(1, 1);
    Put(2, 2);
    Put(3, 3);
    numbers.erase(2);
    indices[2] = 0;
    sounds.Sort();
    EXPECT_EQ(Keys(), "1 3");
    EXPECT_EQ(Heard().find("removed"), std::string::npos);
    EXPECT_FALSE(sounds.Item(2).has_value());
}

TEST_F(ClsSonTest, SortKeepsTheOldOrderOfSlidesWithTheSameNumber) {
    for (int32_t key = 1; key <= 5; ++key) Put(key, key);
    numbers = {{1, 7}, {2, 7}, {3, 4}, {4, 7}, {5, 4}};
    sounds.Sort();
    EXPECT_EQ(Keys(), "3 5 1 2 4");
}

// Against the scan that asks at each step, which an owner without a quick answer gets.
TEST_F(ClsSonTest, ASortByQuickAnswersGivesTheOrderOfTheScan) {
    std::mt19937 random(4);
    for (int round = 0; round < 200; ++round) {
        ClsSon scanned{desktop.Roles()};
        ClsSon quick{desktop.Roles()};
        const auto number = [&](int32_t key) { return numbers.at(key); };
        int32_t questions = 0;
        scanned.Events.csGetNumDiapo.connect([&](int32_t key, int32_t& answer) { answer = number(key); });
        quick.AnswerNumDiapo([&](int32_t key) {
            ++questions;
            return number(key);
        });
        const auto count = static_cast<int32_t>(random() % 20);
        for (int32_t key = 0; key < count; ++key) {
            numbers[key] = 0;
            for (ClsSon* list : {&scanned, &quick}) list->Add(File(), key);
        }
        for (int32_t key = 0; key < count; ++key) numbers[key] = static_cast<int32_t>(random() % 8) - 1;
        questions = 0;
        scanned.Sort();
        quick.Sort();
        EXPECT_EQ(questions, count);
        ASSERT_EQ(Keys(quick), Keys(scanned));
    }
}

TEST_F(ClsSonTest, AQuickAnswerComesAheadOfTheHandlersAndTheyAreStillAskedAtEachStep) {
    Put(1, 1);
    Put(2, 2);
    sounds.AnswerNumDiapo([](int32_t key) { return 100 - key; });
    sounds.Events.csGetNumDiapo.connect([](int32_t key, int32_t& number) { number = 100 - key; });
    Heard();
    sounds.Sort();
    EXPECT_EQ(Keys(), "2 1");
    EXPECT_EQ(Heard(), "son number of 1: 1\nson number of 2: 2\nson number of 1: 1\n");
}

TEST_F(ClsSonTest, AFailureOfTheOwnerReachesTheCallerOfSort) {
    Put(1, 1);
    sounds.Events.csGetNumDiapo.connect([](int32_t, int32_t&) { throw failures::Internal("hôte"); });
    EXPECT_FAILURE(sounds.Sort(), Internal("hôte"));
}

}  // namespace
}  // namespace vorlane
