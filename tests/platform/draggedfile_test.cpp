#include "platform/draggedfile.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(DraggedFileTest, APathAloneHasNoKey) {
    EXPECT_EQ(ReadDraggedFile("/p/a.jpg"), (DraggedFile{"/p/a.jpg", -1}));
    EXPECT_EQ(ReadDraggedFile(""), (DraggedFile{"", -1}));
}

TEST(DraggedFileTest, TheKeyStandsBehindTheBar) {
    EXPECT_EQ(ReadDraggedFile("/p/a.jpg|12"), (DraggedFile{"/p/a.jpg", 12}));
    EXPECT_EQ(ReadDraggedFile("/p/a.jpg|-1"), (DraggedFile{"/p/a.jpg", -1}));
    EXPECT_EQ(ReadDraggedFile("/p/a.jpg|-2147483648"), (DraggedFile{"/p/a.jpg", INT32_MIN}));
}

TEST(DraggedFileTest, APathThatHoldsABarItselfIsNeverCutWrongly) {
    EXPECT_EQ(ReadDraggedFile("/p/a|b.jpg"), (DraggedFile{"/p/a|b.jpg", -1}));
    EXPECT_EQ(ReadDraggedFile("/p/a|b.jpg|7"), (DraggedFile{"/p/a|b.jpg", 7}));
    EXPECT_EQ(ReadDraggedFile("/p/1|2|3"), (DraggedFile{"/p/1|2", 3}));
    EXPECT_EQ(ReadDraggedFile("/p/a|3|"), (DraggedFile{"/p/a|3|", -1}));
}

TEST(DraggedFileTest, WhatIsNoWholeNumberOf32BitsBelongsToThePath) {
    for (const char* entry : {"/p/a|", "/p/a|1.5", "/p/a| 1", "/p/a|1 ", "/p/a|+1", "/p/a|0x1", "/p/a|2147483648",
                              "/p/a|99999999999999999999", "/p/a|--1", "/p/a|1.jpg"}) {
        EXPECT_EQ(ReadDraggedFile(entry), (DraggedFile{entry, -1}));
    }
}

TEST(DraggedFileTest, WhatIsWrittenReadsTheSame) {
    for (const char* path : {"/p/a.jpg", "/p/a|b", "/p/a|5", "|", "/p/\xC3\xA9t\xC3\xA9|.png"}) {
        for (const int32_t key : {-1, 0, 1000, INT32_MAX, INT32_MIN}) {
            EXPECT_EQ(ReadDraggedFile(DraggedFileEntry(path, key)), (DraggedFile{path, key}));
        }
    }
}

}  // namespace
}  // namespace vorlane
