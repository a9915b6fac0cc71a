#include "timeline/clsson.h"

#include "platform/headless/desktop.h"
#include "tests/platform/expectfailure.h"
#include "tests/platform/temporaryfolder.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

namespace vorlane {
namespace {

// A collection with an owner that answers from tables and writes what it is asked.
class ClsSonTest : public testing::Test {
protected:
    ClsSonTest() {
        auto& events = sounds.Events;
        events.csRepaint.connect([this] { Say("repaint"); });
        events.csGetRedraw.connect([this](bool& answer) {
            Say("redraw?");
            answer = redraw;
        });
        events.csGetNumDiapo.connect([this](int32_t key, int32_t& number) {
            number = numbers.count(key) != 0 ? numbers[key] : -1;
            Say("number of " + std::to_string(key) + ": " + std::to_string(number));
        });
        events.csGetDiapoIndex.connect([this](int32_t key, int16_t& index) {
            index = indices.count(key) != 0 ? indices[key] : int16_t{-1};
            Say("index of " + std::to_string(key) + ": " + std::to_string(index));
        });
        events.csRemoveSound.connect([this](int32_t key, int16_t index) {
            Say("removed " + std::to_string(key) + " at " + std::to_string(index));
        });
    }

    void Say(const std::string& line) { desktop.trace.Add("son " + line); }
    std::string Heard() { return desktop.trace.Take(); }

    std::string File(const std::string& name = "a.wav", double seconds = 10) {
        const std::string path = folder.File(name);
        desktop.sounds.Add(path, seconds);
        return path;
    }
    // Adds the sound of a slide that stands at a place of the sheet.
    void Put(int32_t key, int32_t number, const std::string& name = "a.wav") {
        numbers[key] = number;
        sounds.Add(File(name), key);
    }
    std::string Keys() const { return Keys(sounds); }
    static std::string Keys(const ClsSon& list) {
        std::string text;
        for (const tSon& son : list.NewEnum()) text += (text.empty() ? "" : " ") + std::to_string(son.DiapoKey);
        return text;
    }

    headless::Desktop desktop;
    TemporaryFolder folder;
    std::map<int32_t, int32_t> numbers;
    std::map<int32_t, int16_t> indices;
    bool redraw = false;
    ClsSon sounds{desktop.Roles()};
};

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

// --- Item ---

TEST_F(ClsSonTest, ItemOfAnUnknownSlideIsNothing) {
    Put(1, 1);
    EXPECT_EQ(sounds.Item(1)->DiapoKey, 1);
    EXPECT_FALSE(sounds.Item(2).has_value());
}

TEST_F(ClsSonTest, ItemFromPosFailsOutsideTheList) {
    Put(1, 1);
    EXPECT_FAILURE(sounds.ItemFromPos(0), SubscriptOutOfRange());
    EXPECT_FAILURE(sounds.ItemFromPos(2), SubscriptOutOfRange());
}

TEST_F(ClsSonTest, WritingTheLastButOneMovesItToTheEndAndOthersKeepTheirPlaces) {
    redraw = true;
    for (int32_t key = 1; key <= 3; ++key) Put(key, key);
    const auto write = [&](int32_t key) {
        tSon son = *sounds.Item(key);
        son.VolNormal = 42;
        Heard();
        sounds.SetItem(key, son);
        EXPECT_EQ(Heard(), "son redraw?\nson repaint\n");
        EXPECT_EQ(sounds.Item(key)->VolNormal, 42);
    };
    write(1);
    EXPECT_EQ(Keys(), "1 2 3");
    write(3);
    EXPECT_EQ(Keys(), "1 2 3");
    write(2);
    EXPECT_EQ(Keys(), "1 3 2");
    sounds.Sort();
    EXPECT_EQ(Keys(), "1 2 3");
}

TEST_F(ClsSonTest, WritingAnUnknownSlideChangesNothingAndRepaints) {
    redraw = true;
    Put(1, 1);
    Heard();
    sounds.SetItem(2, *sounds.Item(1));
    EXPECT_EQ(Keys(), "1");
    EXPECT_EQ(Heard(), "son redraw?\nson repaint\n");
}

TEST_F(ClsSonTest, AnEntryWrittenForAnotherSlideIsFoundByItsOwnKey) {
    Put(1, 1);
    Put(2, 2);
    tSon son = *sounds.Item(1);
    son.DiapoKey = 40;
    sounds.SetItem(1, son);
    EXPECT_TRUE(sounds.Item(40).has_value());
    EXPECT_FALSE(sounds.Item(1).has_value());
    EXPECT_FAILURE(sounds.Add(File(), 1), DuplicateKey());
}

// --- Removing ---

TEST_F(ClsSonTest, RemoveTellsWhetherASoundWent) {
    redraw = true;
    Put(1, 1);
    Heard();
    EXPECT_TRUE(sounds.Remove(1));
    EXPECT_EQ(sounds.Count(), 0);
    EXPECT_EQ(Heard(), "son redraw?\nson repaint\n");
}

TEST_F(ClsSonTest, RemoveOfAnUnknownKeyIsFalseAndRaisesNothing) {
    Put(1, 1);
    Heard();
    EXPECT_FALSE(sounds.Remove(2));
    EXPECT_EQ(Heard(), "");
}

TEST_F(ClsSonTest, RemoveSwallowsAFailureOfTheOwner) {
    redraw = true;
    Put(1, 1);
    sounds.Events.csRepaint.connect([] { throw failures::Internal("hôte"); });
    EXPECT_FALSE(sounds.Remove(1));
    EXPECT_EQ(sounds.Count(), 0);
}

TEST_F(ClsSonTest, RemoveFromNameTakesAllSoundsOfTheNameInAnyCase) {
    redraw = true;
    Put(1, 1, "Été.wav");
    Put(2, 2, "b.wav");
    Put(3, 3, "été.WAV");
    Put(4, 4, "ÉTÉ.wav");
    indices = {{1, 0}, {4, 3}};
    Heard();
    sounds.RemoveFromName(folder.At("éTé.wav"));
    EXPECT_EQ(Keys(), "2");
    EXPECT_EQ(Heard(),
              "son index of 1: 0\nson removed 1 at 0\n"
              "son index of 3: -1\n"
              "son index of 4: 3\nson removed 4 at 3\n"
              "son redraw?\nson repaint\n");
}

TEST_F(ClsSonTest, RemoveFromNameRepaintsAlsoWhenNothingMatched) {
    redraw = true;
    Put(1, 1);
    Heard();
    sounds.RemoveFromName("autre.wav");
    EXPECT_EQ(Heard(), "son redraw?\nson repaint\n");
}

TEST_F(ClsSonTest, RemoveFromNameWithAnEmptyNameRaisesNothing) {
    Put(1, 1);
    Heard();
    sounds.RemoveFromName("");
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(Keys(), "1");
}

TEST_F(ClsSonTest, RemoveFromNameTakesNoOtherSoundWhenAHandlerRemovesTheSoundItself) {
    Put(1, 1, "a.wav");
    Put(2, 2, "b.wav");
    indices[1] = 0;
    sounds.Events.csRemoveSound.connect([&](int32_t key, int16_t) { sounds.Remove(key); });
    sounds.RemoveFromName(folder.At("a.wav"));
    EXPECT_EQ(Keys(), "2");
}

TEST_F(ClsSonTest, ClearEmptiesAndRepaints) {
    redraw = true;
    Put(1, 1);
    Heard();
    sounds.Clear();
    EXPECT_EQ(sounds.Count(), 0);
    EXPECT_EQ(Heard(), "son redraw?\nson repaint\n");
}

// --- The list itself ---

TEST_F(ClsSonTest, CollectItemGivesTheVeryListUntilClearOrSortBeginsAnother) {
    Put(1, 1);
    const auto list = sounds.CollectItem();
    Put(2, 2);
    EXPECT_EQ(list->Count(), 2);
    sounds.Sort();
    EXPECT_NE(sounds.CollectItem(), list);
    Put(3, 3);
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(sounds.Count(), 3);
    const auto sorted = sounds.CollectItem();
    sounds.Clear();
    EXPECT_EQ(sorted->Count(), 3);
}

TEST_F(ClsSonTest, TheEnumeratorWalksTheListThatStoodWhenItBegan) {
    for (int32_t key = 1; key <= 3; ++key) Put(key, key);
    std::string walked;
    for (const tSon& son : sounds.NewEnum()) {
        walked += std::to_string(son.DiapoKey);
        sounds.Sort();
        if (son.DiapoKey == 2) sounds.Clear();
    }
    EXPECT_EQ(walked, "123");
}

}  // namespace
}  // namespace vorlane
