#include "platform/keyindex.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

namespace vorlane {
namespace {

using Answer = KeyIndex::Answer;
using Keys = std::vector<int32_t>;

// Three blocks that stand in the order 2, 0, 1.
const std::vector<uint32_t> kPlaces{1, 2, 0};

KeyIndex IndexOf(std::initializer_list<std::pair<int32_t, uint32_t>> keysAndBlocks) {
    KeyIndex index;
    index.Reserve(keysAndBlocks.size());
    for (const auto& [key, block] : keysAndBlocks) index.Added(key, block, kPlaces);
    return index;
}

void ExpectIn(uint32_t block, const KeyIndex& index, int32_t key) {
    const auto found = index.Find(key);
    EXPECT_EQ(found.Kind, Answer::InBlock) << key;
    EXPECT_EQ(found.Block, block) << key;
}

void ExpectKind(Answer kind, const KeyIndex& index, int32_t key) {
    EXPECT_EQ(index.Find(key).Kind, kind) << key;
}

TEST(KeyIndex, OfNothingKnowsNoKey) {
    ExpectKind(Answer::None, KeyIndex(), 0);
    ExpectKind(Answer::None, IndexOf({{1, 0}}), 0);
}

TEST(KeyIndex, NamesTheBlockThatStandsFirst) {
    const KeyIndex index = IndexOf({{7, 1}, {7, 0}, {7, 2}, {7, 1}, {8, 1}, {-1, 0}, {-1, 1}});
    ExpectIn(2, index, 7);
    ExpectIn(1, index, 8);
    ExpectIn(0, index, -1);
}

TEST(KeyIndex, ForgetsAKeyWithItsLastItem) {
    KeyIndex index = IndexOf({{7, 0}, {7, 0}});
    index.Removed(7, 0, Keys{7});
    ExpectIn(0, index, 7);
    index.Removed(7, 0, {});
    ExpectKind(Answer::None, index, 7);
}

TEST(KeyIndex, LeavesTheQuestionOpenWhenTheFirstOfSeveralBlocksLosesAKey) {
    KeyIndex index = IndexOf({{7, 0}, {7, 1}});
    index.Removed(7, 0, Keys{1, 2, 3});
    ExpectKind(Answer::Open, index, 7);
    index.Learn(7, 1);
    ExpectIn(1, index, 7);
    index.Removed(7, 1, {});
    ExpectKind(Answer::None, index, 7);
}

TEST(KeyIndex, KeepsAQuestionOpenWhileItemsCome) {
    KeyIndex index = IndexOf({{7, 2}, {7, 1}});
    index.Removed(7, 2, {});
    index.Reserve(1);
    index.Added(7, 0, kPlaces);
    ExpectKind(Answer::Open, index, 7);
}

TEST(KeyIndex, CountsNoFurtherThanManyItemsAndThenAsks) {
    KeyIndex index;
    index.Reserve(1);
    index.Added(Keys(1000, 5), 0, kPlaces);
    for (int i = 0; i < 999; ++i) index.Removed(5, 0, Keys{5});
    ExpectIn(0, index, 5);
    index.Removed(5, 0, {});
    ExpectKind(Answer::Open, index, 5);
    index.Forget(5);
    ExpectKind(Answer::None, index, 5);
}

TEST(KeyIndex, FollowsItemsToAnotherBlock) {
    KeyIndex index = IndexOf({{1, 0}, {2, 0}, {3, 0}, {2, 0}, {4, 2}, {4, 0}});
    index.Moved(Keys{3, 2, 4}, 0, 1, Keys{1, 2});
    ExpectIn(0, index, 1);
    ExpectIn(0, index, 2);
    ExpectIn(1, index, 3);
    ExpectIn(2, index, 4);
}

TEST(KeyIndex, GivesRoomBackWhenFewKeysAreLeft) {
    KeyIndex index;
    index.Reserve(10'000);
    for (int32_t key = 0; key < 10'000; ++key) index.Added(key, 0, kPlaces);
    const size_t full = index.StorageBytes();
    EXPECT_LE(full, 10'000U * 10 + 100);
    for (int32_t key = 0; key < 9'990; ++key) index.Removed(key, 0, {});
    EXPECT_LT(index.StorageBytes(), full / 8);
    for (int32_t key = 9'990; key < 10'000; ++key) ExpectIn(0, index, key);
    ExpectKind(Answer::None, index, 5);
}

TEST(KeyIndex, KeepsKeysApartThatComeAndGoInAnyOrder) {
    std::mt19937 random(3);
    std::map<int32_t, uint32_t> expected;
    KeyIndex index;
    for (int step = 0; step < 60'000; ++step) {
        // Steps of a large power of two are what a weak spread of keys breaks on.
        const auto key = static_cast<int32_t>((random() % 4096) << (random() % 2 * 20));
        const auto block = static_cast<uint32_t>(random() % 3);
        const auto known = expected.find(key);
        if (known == expected.end()) {
            index.Reserve(1);
            index.Added(key, block, kPlaces);
            expected[key] = block;
        } else {
            index.Removed(key, known->second, {});
            expected.erase(known);
        }
        const auto other = static_cast<int32_t>((random() % 4096) << (random() % 2 * 20));
        const auto wanted = expected.find(other);
        if (wanted == expected.end()) {
            ExpectKind(Answer::None, index, other);
        } else {
            ExpectIn(wanted->second, index, other);
        }
    }
}

}  // namespace
}  // namespace vorlane
