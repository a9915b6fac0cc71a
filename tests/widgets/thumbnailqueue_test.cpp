#include "widgets/thumbnailqueue.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace vorlane;

namespace {

FileStamp SomeStamp() {
    return {1, 2, 3};
}

QStringList Emptied(ThumbnailQueue& queue) {
    QStringList paths;
    while (const auto job = queue.Pop()) paths.push_back(job->path);
    return paths;
}

}  // namespace

TEST(ThumbnailQueue, IsEmptyAtFirst) {
    ThumbnailQueue queue;
    EXPECT_TRUE(queue.IsEmpty());
    EXPECT_FALSE(queue.Pop());
}

TEST(ThumbnailQueue, GivesTheNewestFirst) {
    ThumbnailQueue queue;
    for (const char* path : {"a", "b", "c"}) queue.Push({path, 128});
    EXPECT_EQ(Emptied(queue), QStringList({"c", "b", "a"}));
}

TEST(ThumbnailQueue, GivesTheWantedBeforeTheOthersInTheirOrder) {
    ThumbnailQueue queue;
    queue.SetWanted({"a", "b", "c"});
    for (const char* path : {"x", "c", "b", "y", "a"}) queue.Push({path, 128});
    EXPECT_EQ(Emptied(queue), QStringList({"a", "b", "c", "y", "x"}));
}

TEST(ThumbnailQueue, DropsWhatIsNotWantedAnyMore) {
    ThumbnailQueue queue;
    for (const char* path : {"a", "b", "c", "d"}) queue.Push({path, 128});
    const QStringList dropped = queue.SetWanted({"d", "b"});
    EXPECT_EQ(QSet<QString>(dropped.begin(), dropped.end()), QSet<QString>({"a", "c"}));
    EXPECT_EQ(Emptied(queue), QStringList({"d", "b"}));
}

TEST(ThumbnailQueue, DropsChecksWithoutAWord) {
    ThumbnailQueue queue;
    queue.Push({"a", 128, SomeStamp()});
    EXPECT_TRUE(queue.SetWanted({}).isEmpty());
    EXPECT_TRUE(queue.IsEmpty());
}

TEST(ThumbnailQueue, GivesChecksLast) {
    ThumbnailQueue queue;
    queue.SetWanted({"a", "b"});
    queue.Push({"a", 128, SomeStamp()});
    queue.Push({"b", 128});
    queue.Push({"x", 128});
    EXPECT_EQ(Emptied(queue), QStringList({"b", "x", "a"}));
}

TEST(ThumbnailQueue, MergesTheJobsOfAFile) {
    ThumbnailQueue queue;
    queue.Push({"a", 512});
    queue.Push({"a", 128, SomeStamp()});
    ASSERT_EQ(queue.Count(), 1);
    const auto job = queue.Pop();
    EXPECT_EQ(job->edge, 512);
    EXPECT_FALSE(job->IsCheck());
}

TEST(ThumbnailQueue, AMergedJobIsACheckOnlyIfBothAre) {
    ThumbnailQueue queue;
    queue.Push({"a", 128, SomeStamp()});
    queue.Push({"a", 256, SomeStamp()});
    const auto job = queue.Pop();
    EXPECT_EQ(job->edge, 256);
    EXPECT_TRUE(job->IsCheck());
}

TEST(ThumbnailQueue, WhatIsBeingWorkedOnIsNotQueuedAgainForTheSameOrLess) {
    ThumbnailQueue queue;
    queue.Push({"a", 256});
    queue.Pop();
    queue.Push({"a", 256});
    queue.Push({"a", 128});
    queue.Push({"a", 512, SomeStamp()});
    EXPECT_TRUE(queue.IsEmpty());
    queue.Push({"a", 512});
    EXPECT_EQ(queue.Count(), 1);
}

TEST(ThumbnailQueue, ACheckThatIsBeingWorkedOnStandsInNobodysWay) {
    ThumbnailQueue queue;
    queue.Push({"a", 256, SomeStamp()});
    queue.Pop();
    queue.Push({"a", 256});
    EXPECT_EQ(queue.Count(), 1);
}

TEST(ThumbnailQueue, WhatIsDoneCanBeQueuedAgain) {
    ThumbnailQueue queue;
    queue.Push({"a", 256});
    queue.Pop();
    queue.Done("a");
    queue.Push({"a", 256});
    EXPECT_EQ(queue.Count(), 1);
}

TEST(ThumbnailQueue, RenewMakesAJobTheNewest) {
    ThumbnailQueue queue;
    for (const char* path : {"a", "b", "c"}) queue.Push({path, 128});
    queue.Renew("a");
    queue.Renew("nobody");
    EXPECT_EQ(Emptied(queue), QStringList({"a", "c", "b"}));
}

TEST(ThumbnailQueue, APathThatIsWantedTwiceCountsOnce) {
    ThumbnailQueue queue;
    queue.Push({"a", 128});
    queue.Push({"b", 128});
    queue.SetWanted({"a", "b", "a"});
    EXPECT_EQ(Emptied(queue).size(), 2);
}
