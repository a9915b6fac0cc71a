#include "platform/renameways.h"

#include "temporaryfolder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <thread>

namespace vorlane {
namespace {

using Way = files::RenameAnswer (*)(const std::filesystem::path&, const std::filesystem::path&);

class RenameWay : public testing::TestWithParam<Way> {
protected:
    files::RenameAnswer Rename(const std::string& from, const std::string& to) const {
        return GetParam()(folder.At(from), folder.At(to));
    }

    const TemporaryFolder folder;
};

// On a file system that knows all of them.
INSTANTIATE_TEST_SUITE_P(All, RenameWay,
                         testing::Values(files::RenameAtOnce, files::RenameByLink, files::RenameOverPlaceholder));

TEST_P(RenameWay, GivesAFileAnotherName) {
    folder.File("a.jpg", "content");
    EXPECT_EQ(Rename("a.jpg", "b.jpg"), 0);
    EXPECT_FALSE(files::IsFile(folder.At("a.jpg")));
    EXPECT_EQ(folder.Read("b.jpg"), "content");
}

TEST_P(RenameWay, MovesALinkItselfWhereverItLeads) {
    std::filesystem::create_symlink("missing", folder.At("dangling"));
    EXPECT_EQ(Rename("dangling", "moved"), 0);
    EXPECT_EQ(std::filesystem::read_symlink(folder.At("moved")), "missing");
    EXPECT_FALSE(std::filesystem::is_symlink(folder.At("dangling")));
}

TEST_P(RenameWay, OverwritesNothing) {
    folder.File("a", "source");
    folder.File("file", "target");
    folder.Folder("folder");
    std::filesystem::create_symlink("missing", folder.At("dangling"));
    for (const char* target : {"file", "folder", "dangling"}) EXPECT_EQ(Rename("a", target), EEXIST) << target;
    EXPECT_EQ(folder.Read("a"), "source");
    EXPECT_EQ(folder.Read("file"), "target");
}

TEST_P(RenameWay, TellsWhatTheSystemHoldsAgainstIt) {
    folder.File("a");
    EXPECT_EQ(Rename("missing", "b"), ENOENT);
    EXPECT_EQ(Rename("a", "missing/b"), ENOENT);
    EXPECT_EQ(Rename("a", std::string(300, 'x')), ENAMETOOLONG);
}

TEST(RenameByLink, DoesNotKnowFolders) {
    const TemporaryFolder folder;
    EXPECT_EQ(files::RenameByLink(folder.Folder("a"), folder.At("b")), std::nullopt);
    EXPECT_TRUE(files::IsFolder(folder.At("a")));
    EXPECT_FALSE(files::IsFolder(folder.At("b")));
}

// Two rename their files to one name and back, each in its own time.
void ExpectNothingLost(Way way) {
    constexpr int kRounds = 20000;
    const TemporaryFolder folder;
    const std::filesystem::path target = folder.At("target");
    const auto rename = [&](const std::filesystem::path& own) {
        std::error_code lost;
        for (int round = 0; round < kRounds; ++round) {
            if (way(own, target) == 0) std::filesystem::rename(target, own, lost);
        }
    };
    const std::string first = folder.File("first", "1");
    const std::string second = folder.File("second", "2");
    std::thread other([&] { rename(second); });
    rename(first);
    other.join();
    EXPECT_EQ(folder.Read("first"), "1");
    EXPECT_EQ(folder.Read("second"), "2");
}

TEST(RenameRace, InOneStepNothingIsLost) {
    ExpectNothingLost(files::RenameAtOnce);
}

TEST(RenameRace, ByASecondNameNothingIsLost) {
    ExpectNothingLost(files::RenameByLink);
}

TEST(RenameRace, OverAPlaceholderNothingIsLost) {
    ExpectNothingLost(files::RenameOverPlaceholder);
}

TEST(RenameOverPlaceholder, KnowsFolders) {
    const TemporaryFolder folder;
    folder.Folder("a");
    folder.File("a/inside", "content");
    EXPECT_EQ(files::RenameOverPlaceholder(folder.At("a"), folder.At("b")), 0);
    EXPECT_EQ(folder.Read("b/inside"), "content");
    EXPECT_FALSE(files::IsFolder(folder.At("a")));
}

TEST(RenameOverPlaceholder, LeavesNoneBehindAFailure) {
    const TemporaryFolder folder;
    EXPECT_NE(files::RenameOverPlaceholder(folder.Folder("a"), folder.At("a/inside")), 0);
    EXPECT_TRUE(files::IsFolder(folder.At("a")));
    EXPECT_TRUE(std::filesystem::is_empty(folder.At("a")));
}

}  // namespace
}  // namespace vorlane
