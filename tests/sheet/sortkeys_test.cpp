#include "sheet/sortkeys.h"

#include "platform/trelmic6.h"
#include "sheet/types.h"
#include "tests/platform/temporaryfolder.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

// The criteria of a key, each in brackets.
std::string Criteria(const std::string& key) {
    std::string text;
    const std::string separator(1, '\x0B');
    for (int32_t n = 1; n <= Trelmic6::CountOf(key, separator) + 1; ++n) {
        text += "[" + Trelmic6::FieldAt(key, n, separator) + "]";
    }
    return text;
}

// Year, month and day of a date text.
std::string Digits(const std::string& path, int16_t kind) {
    const std::string text = Trelmic6::FileDateText(path, kind);
    return text.substr(0, 4) + text.substr(5, 2) + text.substr(8, 2);
}

TEST(SortKeys, TheNameAloneInSmallLetters) {
    EXPECT_EQ(BuildSortKey("/nowhere/Été.JPG", 0), "été.jpg");
}

TEST(SortKeys, AllFiveCriteriaEndInTheName) {
    const TemporaryFolder folder;
    const std::string file = folder.Sparse("B.JPG", 1234);
    EXPECT_EQ(Criteria(BuildSortKey(file, 30)),
              "[b.jpg][" + Digits(file, 0) + "b.jpg][" + Digits(file, 1) + "b.jpg][0000001234b.jpg][jpgb.jpg]");
}

TEST(SortKeys, ACriterionsNumberDependsOnTheMask) {
    const TemporaryFolder folder;
    const std::string file = folder.Sparse("b.jpg", 7);
    EXPECT_EQ(Criteria(BuildSortKey(file, saSize)), "[b.jpg][0000000007b.jpg]");
    EXPECT_EQ(Criteria(BuildSortKey(file, saExtension | saSize)), "[b.jpg][0000000007b.jpg][jpgb.jpg]");
}

TEST(SortKeys, TheFirstDateIsTheLastModification) {
    const TemporaryFolder folder;
    const std::string file = folder.File("b.jpg");
    std::filesystem::last_write_time(file,
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(24 * 400));
    EXPECT_EQ(Criteria(BuildSortKey(file, saDateFirst)), "[b.jpg][" + Digits(file, 0) + "b.jpg]");
    EXPECT_NE(Digits(file, 0), Digits(file, 1)) << "the file was made today";
}

TEST(SortKeys, ALengthOfMoreThanTenDigitsKeepsThemAll) {
    const TemporaryFolder folder;
    EXPECT_EQ(Criteria(BuildSortKey(folder.Sparse("b.jpg", 12345678901), saSize)), "[b.jpg][12345678901b.jpg]");
}

TEST(SortKeys, EqualDatesOrderByName) {
    const TemporaryFolder folder;
    const std::string first = BuildSortKey(folder.File("A.jpg"), saDateFirst);
    const std::string second = BuildSortKey(folder.File("b.jpg"), saDateFirst);
    EXPECT_LT(first.substr(first.find('\x0B')), second.substr(second.find('\x0B')));
}

TEST(SortKeys, ACriterionThatTheFileCantAnswerIsMissingWhole) {
    EXPECT_EQ(Criteria(BuildSortKey("/nowhere/x.jpg", 30)), "[x.jpg][jpgx.jpg]");
}

TEST(SortKeys, AFileWithoutExtensionHasItsNameEverywhere) {
    const TemporaryFolder folder;
    EXPECT_EQ(Criteria(BuildSortKey(folder.Sparse("Photo", 5), saSize | saExtension)),
              "[photo][0000000005photo][photo]");
}

}  // namespace
}  // namespace vorlane
