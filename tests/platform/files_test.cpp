#include "platform/files.h"

#include "expectfailure.h"
#include "temporaryfolder.h"

#include <cerrno>

namespace vorlane {
namespace {

Failure RenameFailure(const std::string& from, const std::string& to) {
    try {
        files::Rename(from, to);
    } catch (const Failure& failure) {
        return failure;
    }
    return {0, "none"};
}

TEST(Rename, GivesAFileAnotherName) {
    const TemporaryFolder folder;
    files::Rename(folder.File("a.jpg", "content"), folder.At("é b.jpg"));
    EXPECT_FALSE(files::IsFile(folder.At("a.jpg")));
    EXPECT_EQ(folder.Read("é b.jpg"), "content");
}

TEST(Rename, NeverOverwritesAFileAFolderOrALink) {
    const TemporaryFolder folder;
    const std::string source = folder.File("a", "source");
    folder.File("file", "target");
    folder.Folder("folder");
    std::filesystem::create_symlink("missing", folder.At("dangling"));
    for (const char* target : {"file", "folder", "dangling"}) {
        const Failure failure = RenameFailure(source, folder.At(target));
        EXPECT_EQ(failure.Number, 58) << target;
        EXPECT_EQ(failure.LastDllError, EEXIST) << target;
    }
    EXPECT_EQ(folder.Read("a"), "source");
    EXPECT_EQ(folder.Read("file"), "target");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.At("dangling")));
}

TEST(Rename, TellsAMissingSourceFromAMissingTargetFolder) {
    const TemporaryFolder folder;
    const std::string source = folder.File("a");
    EXPECT_EQ(RenameFailure(folder.At("missing"), folder.At("b")).Number, 53);
    EXPECT_EQ(RenameFailure(source, folder.At("missing/b")).Number, 76);
    EXPECT_EQ(RenameFailure(source, source + "/b").Number, 76);
    EXPECT_EQ(RenameFailure(source, folder.At("missing/b")).LastDllError, ENOENT);
}

TEST(Rename, WhateverElseTheSystemRefusesIsDenied) {
    const TemporaryFolder folder;
    const Failure tooLong = RenameFailure(folder.File("a"), folder.At(std::string(300, 'x')));
    EXPECT_EQ(tooLong.Number, 70);
    EXPECT_EQ(tooLong.LastDllError, ENAMETOOLONG);
    const std::string outer = folder.Folder("outer");
    EXPECT_EQ(RenameFailure(outer, outer + "/inner").Number, 70);
}

TEST(Rename, ANameOfCapitalsIsAnotherName) {
    const TemporaryFolder folder;
    files::Rename(folder.File("a.jpg", "content"), folder.At("A.JPG"));
    EXPECT_EQ(folder.Read("A.JPG"), "content");
}

TEST(Paths, CarryBytesThatAreNoUtf8) {
    const TemporaryFolder folder;
    const std::string file = folder.File("\xE9\xFF.jpg", "x");
    EXPECT_TRUE(files::IsFile(file));
    EXPECT_EQ(files::Length(file), 1U);
    EXPECT_EQ(files::ToPath(file).string(), file);
}

}  // namespace
}  // namespace vorlane
