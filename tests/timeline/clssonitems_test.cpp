#include "clssontest.h"
#include "tests/platform/expectfailure.h"

namespace vorlane {
namespace {

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

TEST_F(ClsSonTest, RemoveFromNameTakesTheSoundItFoundThoughAnEarlierOneHasItsSlide) {
    Put(1, 1, "a.wav");
    Put(2, 2, "b.wav");
    Put(3, 3, "c.wav");
    tSon son = *sounds.Item(1);
    son.DiapoKey = 2;
    sounds.SetItem(1, son);
    ASSERT_EQ(Keys(), "2 2 3");
    sounds.RemoveFromName(folder.At("b.wav"));
    ASSERT_EQ(Keys(), "2 3");
    EXPECT_EQ(sounds.ItemFromPos(1).Nom, folder.At("a.wav"));
    sounds.RemoveFromName(folder.At("a.wav"));
    EXPECT_EQ(Keys(), "3");
}

TEST_F(ClsSonTest, RemoveFromNameTakesTheSoundThoughAHandlerSortsOrWritesIt) {
    Put(1, 1, "a.wav");
    Put(2, 2, "b.wav");
    Put(3, 3, "a.wav");
    indices = {{1, 0}, {3, 2}};
    sounds.Events.csRemoveSound.connect([&](int32_t key, int16_t) {
        tSon son = *sounds.Item(key);
        son.VolNormal ^= 1;
        sounds.SetItem(key, son);
        numbers[key] = 9;
        sounds.Sort();
    });
    Heard();
    sounds.RemoveFromName(folder.At("a.wav"));
    EXPECT_EQ(Keys(), "2");
    const std::string heard = Heard();
    EXPECT_NE(heard.find("removed 1 at 0"), std::string::npos);
    EXPECT_EQ(heard.find("removed 1 at 0"), heard.rfind("removed 1 at 0")) << "told once";
}

TEST_F(ClsSonTest, RemoveFromNameLeavesASoundOfAnotherFileThatAHandlerPutsInItsPlace) {
    Put(1, 1, "a.wav");
    indices[1] = 0;
    const std::string other = File("b.wav");
    sounds.Events.csRemoveSound.connect([&](int32_t key, int16_t) {
        sounds.Remove(key);
        sounds.Add(other, key);
    });
    sounds.RemoveFromName(folder.At("a.wav"));
    ASSERT_EQ(Keys(), "1");
    EXPECT_EQ(sounds.ItemFromPos(1).Nom, other);
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
