#include "expectfailure.h"
#include "platform/trelmic6.h"
#include "temporaryfolder.h"

#include <cstdlib>
#include <ctime>

namespace vorlane {
namespace {

struct NameParts {
    std::string Path, Name, Part2, Extension, Base;
};

class FilePartTest : public testing::TestWithParam<NameParts> {};

TEST_P(FilePartTest, CutsThePath) {
    const NameParts& expected = GetParam();
    EXPECT_EQ(Trelmic6::FileName(expected.Path), expected.Name);
    EXPECT_EQ(Trelmic6::FilePart(expected.Path, PathPart::FileName), expected.Part2);
    EXPECT_EQ(Trelmic6::FilePart(expected.Path, PathPart::Extension), expected.Extension);
    EXPECT_EQ(Trelmic6::FilePart(expected.Path, PathPart::BaseName), expected.Base);
}

INSTANTIATE_TEST_SUITE_P(Paths, FilePartTest,
                         testing::Values(NameParts{"/photos/a.jpg", "a.jpg", "a.jpg", "jpg", "a"},
                                         NameParts{"a.JPG", "a.JPG", "a.JPG", "JPG", "a"},
                                         NameParts{"C:\\photos\\été 1.png", "été 1.png", "été 1.png", "png", "été 1"},
                                         NameParts{"/a.tar.gz", "a.tar.gz", "a.tar.gz", "gz", "a.tar"},
                                         NameParts{"/photos/name", "name", "", "", "name"},
                                         NameParts{"/photos/name.", "name.", "name.", "", "name"},
                                         NameParts{"/dir.d/name", "name", "", "", "name"},
                                         NameParts{"/.profile", ".profile", "", "", ".profile"},
                                         NameParts{"/.hidden.png", ".hidden.png", ".hidden.png", "png", ".hidden"},
                                         NameParts{"/photos/..", "..", "", "", ".."},
                                         NameParts{"/..a", "..a", "", "", "..a"},
                                         NameParts{"/photos.d/", "", "", "", ""}, NameParts{"", "", "", "", ""}));

TEST(FilePart, AnUnknownPartGivesAnEmptyText) {
    EXPECT_EQ(Trelmic6::FilePart("/photos/a.jpg", static_cast<PathPart>(0)), "");
    EXPECT_EQ(Trelmic6::FilePart("/photos/a.jpg", static_cast<PathPart>(1)), "");
    EXPECT_EQ(Trelmic6::FilePart("/photos/a.jpg", static_cast<PathPart>(5)), "");
}

TEST(FileKind, TellsTheKindByTheExtensionInAnyCase) {
    for (const char* name : {"a.jpg", "a.JPEG", "a.Jfif", "a.png", "a.webp", "a.gif", "a.bmp", "a.TIF", "a.tiff",
                             "a.svg", "a.ico", "a.ppm", "a.pgm", "a.pbm", "a.xpm", "a.xbm", "a.heic", "a.avif"}) {
        EXPECT_EQ(Trelmic6::FileKind(name), 0) << name;
    }
    for (const char* name : {"a.mp3", "a.WAV", "a.ogg", "a.oga", "a.flac", "a.m4a", "a.aac", "a.wma", "a.opus", "a.aif",
                             "a.aiff", "a.mid", "a.midi"}) {
        EXPECT_EQ(Trelmic6::FileKind(name), 1) << name;
    }
    for (const char* name : {"a.avi", "a.mp4", "a.m4v", "a.mov", "a.mkv", "a.webm", "a.mpg", "a.mpeg", "a.wmv", "a.ogv",
                             "a.3GP", "a.flv"}) {
        EXPECT_EQ(Trelmic6::FileKind(name), 2) << name;
    }
    for (const char* name : {"a.pdf", "a.txt", "a.doc", "a.docx", "a.odt", "a.rtf", "a.htm", "a.html", "a.ppt",
                             "a.pptx", "a.odp", "a.xls", "a.xlsx", "a.ods"}) {
        EXPECT_EQ(Trelmic6::FileKind(name), 3) << name;
    }
    for (const char* name : {"a.exe", "a.jpg.zip", "a.jpgg", "a. jpg"}) {
        EXPECT_EQ(Trelmic6::FileKind(name), 5) << name;
    }
}

TEST(FileKind, ANameWithoutExtensionIsAPictureForOnlyItsContentCanTell) {
    for (const char* name : {"", "/photos/name", "/photos/name.", "/dir.mp3/name", "/.mp3"}) {
        EXPECT_EQ(Trelmic6::FileKind(name), 0) << name;
    }
}

TEST(PathExists, TellsFilesFromFolders) {
    const TemporaryFolder folder;
    const std::string file = folder.File("é a.jpg");
    EXPECT_TRUE(Trelmic6::PathExists(file, PathKind::File));
    EXPECT_FALSE(Trelmic6::PathExists(file, PathKind::Folder));
    EXPECT_TRUE(Trelmic6::PathExists(folder.Path(), PathKind::Folder));
    EXPECT_TRUE(Trelmic6::PathExists(folder.Path() + "/", PathKind::Folder));
    EXPECT_FALSE(Trelmic6::PathExists(folder.Path(), PathKind::File));
}

TEST(PathExists, IsFalseForWhatCannotBeLookedAt) {
    const TemporaryFolder folder;
    const std::string file = folder.File("a");
    for (const PathKind kind : {PathKind::File, PathKind::Folder}) {
        EXPECT_FALSE(Trelmic6::PathExists("", kind));
        EXPECT_FALSE(Trelmic6::PathExists(folder.At("missing"), kind));
        EXPECT_FALSE(Trelmic6::PathExists(file + "/inside", kind));
        EXPECT_FALSE(Trelmic6::PathExists(folder.At(std::string(5000, 'x')), kind));
    }
}

TEST(PathExists, FollowsLinks) {
    const TemporaryFolder folder;
    folder.File("a");
    std::filesystem::create_symlink("a", folder.At("link"));
    std::filesystem::create_symlink("missing", folder.At("dangling"));
    EXPECT_TRUE(Trelmic6::PathExists(folder.At("link"), PathKind::File));
    EXPECT_FALSE(Trelmic6::PathExists(folder.At("dangling"), PathKind::File));
}

TEST(NormalizePath, EndsAFolderWithOneSeparator) {
    EXPECT_EQ(Trelmic6::NormalizePath("/photos"), "/photos/");
    EXPECT_EQ(Trelmic6::NormalizePath("/photos/"), "/photos/");
    EXPECT_EQ(Trelmic6::NormalizePath("photos"), "photos/");
    EXPECT_EQ(Trelmic6::NormalizePath("//photos///2024//"), "/photos/2024/");
    EXPECT_EQ(Trelmic6::NormalizePath("/"), "/");
    EXPECT_EQ(Trelmic6::NormalizePath(""), "");
    EXPECT_EQ(Trelmic6::NormalizePath("/é è/."), "/é è/./");
}

TEST(NormalizePath, KeepsBackslashesAsSeparatorsOnlyWhereNoSlashIs) {
    EXPECT_EQ(Trelmic6::NormalizePath("C:\\photos\\\\2024"), "C:\\photos\\2024\\");
    EXPECT_EQ(Trelmic6::NormalizePath("C:\\"), "C:\\");
    EXPECT_EQ(Trelmic6::NormalizePath("\\"), "\\");
    EXPECT_EQ(Trelmic6::NormalizePath("\\\\server\\\\share"), "\\\\server\\share\\");
    EXPECT_EQ(Trelmic6::NormalizePath("\\\\\\server"), "\\\\server\\");
    EXPECT_EQ(Trelmic6::NormalizePath("/photos/a\\\\b"), "/photos/a\\\\b/");
}

TEST(NormalizePath, ChangesNothingTheSecondTime) {
    for (const char* folder : {"/", "//a//b", "a", "C:\\a", "\\\\server\\share", "/a\\b", "\\\\"}) {
        const std::string once = Trelmic6::NormalizePath(folder);
        EXPECT_EQ(Trelmic6::NormalizePath(once), once) << folder;
    }
}

// Local time as in a zone one hour east of Greenwich, without summer time.
class FileDateTest : public testing::Test {
protected:
    FileDateTest() {
        setenv("TZ", "ABC-1", 1);
        tzset();
    }
    ~FileDateTest() override {
        unsetenv("TZ");
        tzset();
    }

    static void SetModified(const std::string& path, std::time_t moment) {
        const auto age = std::chrono::system_clock::now() - std::chrono::system_clock::from_time_t(moment);
        // Half a second on, since the two clocks are read one after the other.
        std::filesystem::last_write_time(
            path, std::filesystem::file_time_type::clock::now() - age + std::chrono::milliseconds(500));
    }

    TemporaryFolder folder;
};

TEST_F(FileDateTest, Kind0IsTheLastModificationInLocalTime) {
    const std::string file = folder.File("a.jpg");
    SetModified(file, 1104534245);  // 2004-12-31 23:04:05 Greenwich
    EXPECT_EQ(Trelmic6::FileDateText(file, 0), "2005-01-01 00:04:05");
}

TEST_F(FileDateTest, Kind1IsNotMovedByALaterModification) {
    const std::string file = folder.File("a.jpg");
    const std::string created = Trelmic6::FileDateText(file, 1);
    SetModified(file, 4102444800);  // 2100
    EXPECT_EQ(Trelmic6::FileDateText(file, 0).substr(0, 4), "2100");
    EXPECT_EQ(Trelmic6::FileDateText(file, 1), created);
}

TEST_F(FileDateTest, AFolderHasDatesTooAndAMissingFileFails) {
    EXPECT_EQ(Trelmic6::FileDateText(folder.Path(), 0).size(), 19U);
    EXPECT_FAILURE(Trelmic6::FileDateText(folder.At("missing"), 0), FileNotFound());
    EXPECT_FAILURE(Trelmic6::FileDateText("", 1), FileNotFound());
}

TEST(FileLength, CountsBytes) {
    const TemporaryFolder folder;
    EXPECT_EQ(Trelmic6::FileLength(folder.File("empty")), 0U);
    EXPECT_EQ(Trelmic6::FileLength(folder.File("two", "é")), 2U);
}

TEST(FileLength, OfAFileBeyondFourGigabytesIsExact) {
    const TemporaryFolder folder;
    const std::string file = folder.File("sparse");
    std::filesystem::resize_file(file, 12345678901);
    EXPECT_EQ(Trelmic6::FileLength(file), 12345678901U);
}

TEST(FileLength, FailsForAFolderAndForAMissingFileWithTheSystemsNumber) {
    const TemporaryFolder folder;
    EXPECT_FAILURE(Trelmic6::FileLength(folder.Path()), FileNotFound());
    try {
        Trelmic6::FileLength(folder.At("missing"));
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, 53);
        EXPECT_EQ(failure.LastDllError, ENOENT);
    }
}

TEST(FilterNameKey, GivesBackWhatAFileNameCanHold) {
    for (const int16_t key : {int16_t{' '}, int16_t{'a'}, int16_t{'.'}, int16_t{'-'}, int16_t{'\''}, int16_t{0xE9},
                              int16_t{0x20AC}, int16_t{-3}}) {
        EXPECT_EQ(Trelmic6::FilterNameKey(key), key);
    }
}

TEST(FilterNameKey, RefusesSeparatorsWildcardsAndControlCodes) {
    for (const char key : {'/', '\\', ':', '*', '?', '"', '<', '>', '|', '\0', '\t', '\r', '\n', '\x1B', '\x7F'}) {
        EXPECT_EQ(Trelmic6::FilterNameKey(key), 0) << int{key};
    }
}

TEST(FilterNameKey, LetsTheCommandsOfAnEditBoxPass) {
    for (const int16_t key : {int16_t{1}, int16_t{3}, int16_t{8}, int16_t{22}, int16_t{24}, int16_t{26}}) {
        EXPECT_EQ(Trelmic6::FilterNameKey(key), key);
    }
}

}  // namespace
}  // namespace vorlane
