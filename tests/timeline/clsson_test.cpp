#include "clssontest.h"
#include "tests/platform/expectfailure.h"

#include <map>
#include <random>
#include <vector>

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

// --- Numbers that are known ---

// An owner that answers alone, tells what its answers go by and counts them.
struct Owner {
    explicit Owner(ClsSon& sounds) {
        sounds.AnswerNumDiapo(
            this,
            [this](int32_t key) {
                ++asked;
                return numbers.count(key) == 0 ? -1 : numbers[key];
            },
            [this] { return state; });
    }
    std::map<int32_t, int32_t> numbers;
    uint64_t state = 1;
    int asked = 0;
};

TEST_F(ClsSonTest, WhereTheOwnerTellsWhatItsAnswersGoByEachSoundIsAskedForOnce) {
    ClsSon quiet(desktop.Roles());
    Owner owner(quiet);
    const std::string file = File();
    for (int32_t key = 0; key < 100; ++key) {
        owner.numbers[key] = 500 - key;
        quiet.Add(file, key);
    }
    EXPECT_LE(owner.asked, 2 * 100);
    owner.asked = 0;
    ASSERT_NE(quiet.KnownPlaces(&owner), nullptr);
    EXPECT_EQ(quiet.KnownPlaces(&owner)->Numbers().front(), 401);
    EXPECT_EQ(owner.asked, 0);
    owner.numbers[99] = 600;
    EXPECT_EQ(quiet.KnownPlaces(&owner)->Numbers().front(), 401) << "the owner has told of no change";
    ++owner.state;
    EXPECT_EQ(quiet.KnownPlaces(&owner)->Numbers().front(), 600);
    EXPECT_EQ(owner.asked, 100);
    EXPECT_EQ(quiet.KnownPlaces(this), nullptr) << "somebody else answers";
    owner.state = 0;
    EXPECT_EQ(quiet.KnownPlaces(&owner), nullptr);
}

TEST_F(ClsSonTest, KnownPlacesFollowEveryChangeOfTheList) {
    ClsSon quiet(desktop.Roles());
    Owner owner(quiet);
    const std::string file = File();
    for (const int32_t key : {4, 2, 8}) {
        owner.numbers[key] = key;
        quiet.Add(file, key);
    }
    const auto known = [&] { return quiet.KnownPlaces(&owner)->Numbers(); };
    EXPECT_EQ(known(), (std::vector<int32_t>{2, 4, 8}));
    quiet.Remove(4);
    EXPECT_EQ(known(), (std::vector<int32_t>{2, 8}));
    quiet.CollectItem()->Add(*quiet.Item(2), "x", 1);
    EXPECT_EQ(known(), (std::vector<int32_t>{2, 2, 8}));
    quiet.Clear();
    EXPECT_EQ(known(), std::vector<int32_t>());
    owner.numbers[6] = 60;
    quiet.Add(file, 6, 6);
    EXPECT_EQ(known(), std::vector<int32_t>{60}) << "what the owner answers, not what Add was told";
}

TEST_F(ClsSonTest, TheOrderIsTheOneThatTheQuestionsGive) {
    std::mt19937 dice(7);  // NOLINT(cert-msc51-cpp): the same on every run
    const std::string file = File();
    for (int round = 0; round < 200; ++round) {
        ClsSon asking(desktop.Roles());
        ClsSon knowing(desktop.Roles());
        Owner slow(asking);
        slow.state = 0;
        Owner quick(knowing);
        for (int32_t step = 0; step < 30; ++step) {
            const auto key = static_cast<int32_t>(dice() % 40);
            const auto number = static_cast<int32_t>(dice() % 12) - 1;
            const int32_t told = dice() % 3 == 0 ? static_cast<int32_t>(dice() % 12) : -1;
            slow.numbers[key] = quick.numbers[key] = number;
            ++quick.state;
            for (ClsSon* list : {&asking, &knowing}) {
                if (!list->Item(key)) list->Add(file, key, told);
            }
            ASSERT_EQ(Keys(knowing), Keys(asking)) << round << " " << step;
        }
    }
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
        quick.AnswerNumDiapo(this, [&](int32_t key) {
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
    sounds.AnswerNumDiapo(this, [](int32_t key) { return 100 - key; });
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
