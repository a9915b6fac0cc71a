#include "sheet/folderitems.h"

#include "tests/platform/temporaryfolder.h"
#include "tests/sheet/vectorlistbox.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

class FolderItemsTest : public ::testing::Test {
protected:
    TemporaryFolder folder;
    VectorListBox list{500};
    FileListBox reader{501};
    FolderRules rules{"*.*", [](const std::string&) { return std::string("k"); }, {}, {}};

    int32_t AddFolder(int32_t insertBefore = -1) {
        return AddFolderItems(list, reader, folder.WithSeparator(), insertBefore, rules);
    }
    // Names and keys.
    std::string Items() const {
        std::string text;
        for (int32_t i = 0; i < list.ListCount(); ++i) {
            const std::string item = list.List(i);
            text += item.substr(item.rfind('/') + 1) + "=" + std::to_string(list.ItemData(i)) + " ";
        }
        return text;
    }
};

TEST_F(FolderItemsTest, AFolderThatIsNotThereGivesNothing) {
    EXPECT_EQ(AddFolderItems(list, reader, "/nowhere", -1, rules), 0);
}

TEST_F(FolderItemsTest, AFolderThatHasChangedIsReadAnew) {
    folder.File("a.jpg");
    EXPECT_EQ(AddFolder(), 1);
    folder.File("b.jpg");
    EXPECT_EQ(AddFolder(), 2);
}

TEST_F(FolderItemsTest, FilesComeInWithSortDataAndFullName) {
    folder.File("a.jpg");
    EXPECT_EQ(AddFolder(), 1);
    EXPECT_EQ(list.List(0), "k\t" + folder.WithSeparator() + "a.jpg");
}

TEST_F(FolderItemsTest, FilesThatDoNotMatchThePatternAreLeftOut) {
    for (const char* name : {"a.jpg", "b.png", "c", "d.JPG"}) folder.File(name);
    rules.Pattern = "*.jpg";
    const int32_t added = AddFolder();
    EXPECT_EQ(added, list.ListCount());
    EXPECT_EQ(Items().find("b.png"), std::string::npos);
    EXPECT_EQ(Items().find("c="), std::string::npos);
    EXPECT_NE(Items().find("a.jpg"), std::string::npos);
}

TEST_F(FolderItemsTest, TheFirstIndexBecomesTheKeyAndStandsForTheOthers) {
    list.AddItem("\t/p/z.jpg");
    for (const char* name : {"a.jpg", "b.jpg"}) folder.File(name);
    EXPECT_EQ(AddFolder(), 2);
    EXPECT_EQ(Items(), "z.jpg=0 a.jpg=1 b.jpg=1 ");
}

TEST_F(FolderItemsTest, FilesKeepTheirOrderInFrontOfAPlace) {
    list.AddItem("\t/p/z.jpg");
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) folder.File(name);
    AddFolder(0);
    EXPECT_EQ(Items(), "a.jpg=0 b.jpg=0 c.jpg=0 z.jpg=0 ");
}

TEST_F(FolderItemsTest, WhatTheHostLeftStandsForTheNextFile) {
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg", "d.jpg"}) folder.File(name);
    rules.Offer = [this](const std::string& file, int32_t& key, bool& cancel) {
        if (file == folder.WithSeparator() + "a.jpg") key = 70;
        if (file == folder.WithSeparator() + "b.jpg") cancel = true;
        if (file == folder.WithSeparator() + "d.jpg") cancel = false;
    };
    EXPECT_EQ(AddFolder(), 2);
    EXPECT_EQ(Items(), "a.jpg=70 d.jpg=70 ");
}

}  // namespace
}  // namespace vorlane
