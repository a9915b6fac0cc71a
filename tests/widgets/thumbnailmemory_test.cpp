#include "widgets/thumbnailmemory.h"

#include "tests/widgets/thumbnailsupport.h"

#include <gtest/gtest.h>

using namespace vorlane;
using test::Plain;

namespace {

constexpr qint64 kPicture = 100 * 100 * 4;

ThumbnailMemory::Entry Entry(int edge = 128) {
    return {{Plain(100, 100, Qt::red), {1000, 1000}}, edge, {1, 1, 1}, 0};
}

}  // namespace

TEST(ThumbnailMemory, KeepsWithinItsBudgetAndLetsGoOfTheLongestUnused) {
    ThumbnailMemory memory(4 * kPicture);
    for (const char* path : {"a", "b", "c"}) memory.Put(path, Entry());
    memory.Find("a");
    memory.Put("d", Entry());
    EXPECT_LE(memory.Bytes(), 4 * kPicture);
    EXPECT_NE(memory.Peek("a"), nullptr);
    EXPECT_EQ(memory.Peek("b"), nullptr);
    EXPECT_NE(memory.Peek("c"), nullptr);
    EXPECT_NE(memory.Peek("d"), nullptr);
}

TEST(ThumbnailMemory, PeekingIsNotUsing) {
    ThumbnailMemory memory(3 * kPicture);
    memory.Put("a", Entry());
    memory.Put("b", Entry());
    memory.Peek("a");
    memory.Put("c", Entry());
    EXPECT_EQ(memory.Peek("a"), nullptr);
}

TEST(ThumbnailMemory, ReplacingFreesTheOldBytes) {
    ThumbnailMemory memory(10 * kPicture);
    memory.Put("a", Entry());
    const qint64 once = memory.Bytes();
    for (int i = 0; i < 100; ++i) memory.Put("a", Entry());
    EXPECT_EQ(memory.Bytes(), once);
    EXPECT_EQ(memory.Count(), 1);
    memory.Remove("a");
    memory.Remove("a");
    EXPECT_EQ(memory.Bytes(), 0);
}

TEST(ThumbnailMemory, WhatExceedsTheBudgetAloneIsNotKept) {
    ThumbnailMemory memory(kPicture / 2);
    memory.Put("a", Entry());
    EXPECT_EQ(memory.Count(), 0);
    EXPECT_EQ(memory.Bytes(), 0);
}

TEST(ThumbnailMemory, ABrokenFileCostsLittleButSomething) {
    ThumbnailMemory memory(kPicture);
    memory.Put("a", {});
    EXPECT_GT(memory.Bytes(), 0);
    EXPECT_LT(memory.Bytes(), 1000);
    memory.Clear();
    EXPECT_EQ(memory.Bytes(), 0);
}

TEST(ThumbnailMemory, AnEntryServesItsSizeAndLess) {
    EXPECT_TRUE(Entry(256).Serves(256));
    EXPECT_TRUE(Entry(256).Serves(128));
    EXPECT_FALSE(Entry(256).Serves(512));
}

TEST(ThumbnailMemory, AllPixelsOfAPictureServeAnySize) {
    ThumbnailMemory::Entry entry = Entry(128);
    entry.thumbnail.pictureSize = entry.thumbnail.image.size();
    EXPECT_TRUE(entry.Serves(1024));
}

TEST(ThumbnailMemory, ABrokenFileIsBrokenInAnySize) {
    EXPECT_TRUE(ThumbnailMemory::Entry{}.Serves(1024));
}
