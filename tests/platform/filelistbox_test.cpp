#include "platform/filelistbox.h"

#include "expectfailure.h"
#include "temporaryfolder.h"

#include <unistd.h>

namespace vorlane {
namespace {

using Names = std::vector<std::string>;

class FileList : public testing::Test {
protected:
    TemporaryFolder folder;
    FileListBox list{43};

    void Make(const Names& names) const {
        for (const std::string& name : names) folder.File(name);
    }
    Names Listed() const {
        Names names;
        for (int32_t i = 0; i < list.ListCount(); ++i) names.push_back(list.List(i));
        return names;
    }
};

TEST_F(FileList, IsAFileListOfManySelectedItemsAndEmptyAtFirst) {
    EXPECT_EQ(list.AsListBox(), nullptr);
    EXPECT_EQ(list.AsFileListBox(), &list);
    EXPECT_EQ(list.Hwnd(), 43);
    EXPECT_NE(list.MultiSelect(), 0);
    EXPECT_EQ(list.Path(), "");
    EXPECT_EQ(list.Pattern(), "*.*");
    EXPECT_EQ(list.ListCount(), 0);
    list.Refresh();
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(FileList, ListsFilesByNameWithoutRegardToCase) {
    Make({"b.jpg", "A.jpg", "c.JPG", "é.jpg", "È.jpg", "Z.jpg", "ä b", "10", "9"});
    list.SetPath(folder.Path());
    EXPECT_EQ(Listed(), (Names{"10", "9", "A.jpg", "b.jpg", "c.JPG", "Z.jpg", "ä b", "È.jpg", "é.jpg"}));
}

TEST_F(FileList, PutsNamesThatDifferByCaseAloneInTheOrderOfTheirBytes) {
    Make({"a.jpg", "A.jpg", "a.JPG", "A.JPG"});
    list.SetPath(folder.Path());
    EXPECT_EQ(Listed(), (Names{"A.JPG", "A.jpg", "a.JPG", "a.jpg"}));
}

TEST_F(FileList, LeavesOutFoldersHiddenFilesAndWhatIsNoFile) {
    Make({"file", ".hidden", "..dots"});
    folder.Folder("folder.jpg");
    ASSERT_EQ(mkfifo(folder.At("pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("file", folder.At("link"));
    std::filesystem::create_symlink("folder.jpg", folder.At("link to a folder"));
    std::filesystem::create_symlink("missing", folder.At("dangling"));
    list.SetPath(folder.Path());
    EXPECT_EQ(Listed(), (Names{"file", "link"}));
}

TEST_F(FileList, ReadsAgainWhenPathOrPatternChangesOnly) {
    Make({"a.jpg", "b.png"});
    folder.Folder("inner");
    Make({"inner/c.jpg"});
    list.SetPath(folder.Path());
    EXPECT_EQ(Listed(), (Names{"a.jpg", "b.png"}));
    Make({"new.jpg"});
    list.SetPath(folder.Path());
    list.SetPattern("*.*");
    EXPECT_EQ(Listed(), (Names{"a.jpg", "b.png"}));
    list.Refresh();
    EXPECT_EQ(Listed(), (Names{"a.jpg", "b.png", "new.jpg"}));
    list.SetPattern("*.JPG");
    EXPECT_EQ(Listed(), (Names{"a.jpg", "new.jpg"}));
    list.SetPath(folder.At("inner"));
    EXPECT_EQ(Listed(), Names{"c.jpg"});
    list.SetPattern("");
    EXPECT_EQ(Listed(), Names{});
}

TEST_F(FileList, GivesNamesThatAreNoUtf8ByteForByte) {
    const Names names{"caf\xE9.JPG", "\xFF\xFE.jpg", "\xC3.jpg"};
    Make(names);
    list.SetPath(folder.Path());
    list.SetPattern("*.jpg");
    EXPECT_EQ(Listed(), (Names{"caf\xE9.JPG", "\xC3.jpg", "\xFF\xFE.jpg"}));
    for (const std::string& name : names) EXPECT_TRUE(files::IsFile(folder.At(name)));
}

TEST_F(FileList, IsEmptyForAFolderThatCannotBeRead) {
    Make({"file"});
    list.SetPath(folder.Path());
    for (const std::string& path : Names{folder.At("missing"), folder.At("file"), "", std::string(5000, 'x')}) {
        list.SetPath(path);
        EXPECT_EQ(list.ListCount(), 0) << path;
    }
    if (geteuid() == 0) return;  // to whom nothing is closed
    const std::string closed = folder.Folder("closed");
    std::filesystem::permissions(closed, std::filesystem::perms::none);
    list.SetPath(closed);
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(FileList, IsEmptyWhenItsFolderHasVanished) {
    folder.Folder("inner");
    Make({"inner/a", "inner/b"});
    list.SetPath(folder.At("inner"));
    EXPECT_EQ(list.ListCount(), 2);
    std::filesystem::remove_all(folder.At("inner"));
    EXPECT_EQ(list.ListCount(), 2);
    list.Refresh();
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(FileList, KeepsASelectionUntilItReadsAgain) {
    Make({"a", "b", "c"});
    list.SetPath(folder.Path());
    list.SetSelected(0, true);
    list.SetSelected(2, true);
    list.SetSelected(2, true);
    list.SetSelected(1, false);
    list.SetListIndex(1);
    std::vector<int32_t> indices{9};
    EXPECT_TRUE(list.SelItems(indices));
    EXPECT_EQ(indices, (std::vector<int32_t>{0, 2}));
    EXPECT_EQ(list.SelCount(), 2);
    EXPECT_TRUE(list.Selected(0));
    list.Refresh();
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_FALSE(list.Selected(0));
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.ListCount(), 3);
}

TEST_F(FileList, RefusesIndicesOutsideTheList) {
    Make({"a"});
    list.SetPath(folder.Path());
    for (const int32_t index : {-1, 1, INT32_MAX}) {
        EXPECT_FAILURE(static_cast<void>(list.List(index)), SubscriptOutOfRange());
        EXPECT_FAILURE(static_cast<void>(list.Selected(index)), SubscriptOutOfRange());
        EXPECT_FAILURE(list.SetSelected(index, true), SubscriptOutOfRange());
    }
    EXPECT_FAILURE(list.SetListIndex(1), InvalidProperty());
    EXPECT_FAILURE(list.SetListIndex(-2), InvalidProperty());
    list.SetListIndex(0);
    list.SetListIndex(-1);
    EXPECT_EQ(list.ListIndex(), -1);
}

}  // namespace
}  // namespace vorlane
