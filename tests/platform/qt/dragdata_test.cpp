#include "platform/qt/dragdata.h"

#include "platform/draggedfile.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

namespace vorlane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> FilesOf(const QByteArray& uriList) {
    QMimeData mime;
    mime.setData(QStringLiteral("text/uri-list"), uriList);
    return DataObjectFrom(mime).Files();
}

std::string TextOf(const QString& text) {
    QMimeData mime;
    mime.setText(text);
    return DataObjectFrom(mime).Text();
}

// --- Out ---

TEST(DragDataTest, FilesGoOutAsAddressesThatAnyProgramUnderstands) {
    DataObject data;
    data.SetFiles({"/p/a b.jpg|12", "/p/\xC3\xA9t\xC3\xA9.jpg|13", "/p/100%.jpg", "/p/a|b|14"});
    const auto mime = MimeDataFrom(data);
    EXPECT_EQ(mime->data(QStringLiteral("text/uri-list")).toStdString(),
              "file:///p/a%20b.jpg\r\nfile:///p/%C3%A9t%C3%A9.jpg\r\nfile:///p/100%25.jpg\r\nfile:///p/a%7Cb\r\n");
    ASSERT_EQ(mime->urls().size(), 4);
    EXPECT_EQ(mime->urls().at(1).toLocalFile(), QStringLiteral("/p/été.jpg"));
    EXPECT_EQ(mime->urls().at(3).toLocalFile(), QStringLiteral("/p/a|b"));
}

TEST(DragDataTest, AnotherSheetGetsTheFilesWithTheirKeys) {
    DataObject data;
    data.SetFiles({"/p/a b.jpg|12", "/p/line\xC2\xA0.jpg|-5", "/p/100%41.jpg|3", "/p/a|b|14", "/p/bytes\xFF.jpg|1"});
    const DataObject back = DataObjectFrom(*MimeDataFrom(data));
    EXPECT_EQ(back.Files(), data.Files());
    EXPECT_FALSE(back.GetFormat(kFormatText));
}

// Paths made of what means something on one of the ways, in any order, with keys and without.
TEST(DragDataTest, WhatGoesOutComesBackWholeByEachWay) {
    constexpr std::array kPieces{" ",     "|",   "|12",      "|-",           "%",    "%20",      "%zz", "#",    "?",
                                 "&",     "+",   "\\",       "\"",           "'",    ":",        "//",  "/",    ".",
                                 "file:", "a",   "\xC3\xA9", "\xE6\x97\xA5", "\xFF", "\xC2\xA0", "\n",  "\r\n", "\t",
                                 "\x7F",  ".jpg"};
    std::mt19937 random(7);
    const auto below = [&](size_t end) { return std::uniform_int_distribution<size_t>(0, end - 1)(random); };
    for (int run = 0; run < 3000; ++run) {
        std::vector<std::string> sent;
        std::vector<std::string> withKeys;
        std::vector<DraggedFile> withoutKeys;
        for (size_t count = 1 + below(4); count > 0; --count) {
            std::string path = "/";
            for (size_t pieces = 1 + below(6); pieces > 0; --pieces) path += kPieces.at(below(kPieces.size()));
            const auto key = static_cast<int32_t>(below(2000)) - 1000;
            sent.push_back(below(2) == 0 ? DraggedFileEntry(path) : DraggedFileEntry(path, key));
            if (path.find_first_of("\n\r\t\x7F") != std::string::npos) continue;  // no program is given these
            withKeys.push_back(sent.back());
            withoutKeys.push_back({path, -1});
        }
        DataObject data;
        data.SetFiles(sent);
        const auto mime = MimeDataFrom(data);
        ASSERT_EQ(DataObjectFrom(*mime).Files(), withKeys);
        std::vector<DraggedFile> back;
        for (const std::string& entry : FilesOf(mime->data("text/uri-list"))) back.push_back(ReadDraggedFile(entry));
        ASSERT_EQ(back, withoutKeys);
    }
}

TEST(DragDataTest, ATextGoesOutAsText) {
    DataObject data;
    data.SetText("/p/a.jpg\r\n/p/b.jpg");
    EXPECT_EQ(MimeDataFrom(data)->text(), QStringLiteral("/p/a.jpg\r\n/p/b.jpg"));
    EXPECT_EQ(DataObjectFrom(*MimeDataFrom(data)).Text(), "/p/a.jpg\r\n/p/b.jpg");
}

// --- In: addresses ---

TEST(DragDataTest, LocalAddressesComeInAsPaths) {
    EXPECT_THAT(FilesOf("file:///p/a.jpg\r\nfile://localhost/p/b.jpg\r\nfile:/p/c.jpg\r\nFILE:///p/d.jpg"),
                ElementsAre("/p/a.jpg", "/p/b.jpg", "/p/c.jpg", "/p/d.jpg"));
    const QByteArray here = "file://" + QSysInfo::machineHostName().toUtf8() + "/p/e.jpg";
    EXPECT_THAT(FilesOf(here), ElementsAre("/p/e.jpg"));
}

TEST(DragDataTest, PercentEscapesAreResolved) {
    EXPECT_THAT(FilesOf("file:///p/%C3%A9t%C3%A9%20%25%23%3F.jpg"), ElementsAre("/p/\xC3\xA9t\xC3\xA9 %#?.jpg"));
    EXPECT_THAT(FilesOf("file:///p/%e9.jpg"), ElementsAre("/p/\xE9.jpg"));
    EXPECT_THAT(FilesOf("file:///p/a.jpg#part?query"), ElementsAre("/p/a.jpg"));
}

TEST(DragDataTest, AddressesOfOtherHostsAndSchemesAreLeftOut) {
    EXPECT_THAT(FilesOf("file://elsewhere.example/p/a.jpg\r\nhttp://host/p/b.jpg\r\nsmb://host/c.jpg\r\n"
                        "data:text/plain,d\r\njavascript:alert(1)\r\nfile:///p/e.jpg"),
                ElementsAre("/p/e.jpg"));
}

TEST(DragDataTest, RelativeAddressesAreLeftOut) {
    EXPECT_THAT(FilesOf("file:a.jpg\r\nfile:./b.jpg\r\nfile:../c.jpg\r\na.jpg\r\nfile:\r\nfile://"), IsEmpty());
}

TEST(DragDataTest, CommentsAndEmptyLinesInAListOfAddressesAreNone) {
    EXPECT_THAT(FilesOf("# pictures\r\n\r\nfile:///p/a.jpg\nfile:///p/b.jpg\n"), ElementsAre("/p/a.jpg", "/p/b.jpg"));
}

TEST(DragDataTest, MissingFilesAndDirectoriesComeInAsTheyAre) {
    EXPECT_THAT(FilesOf("file:///nowhere/a.jpg\r\nfile:///tmp/\r\nfile:///tmp"),
                ElementsAre("/nowhere/a.jpg", "/tmp/", "/tmp"));
}

TEST(DragDataTest, APathThatEndsLikeAKeyHasNone) {
    EXPECT_THAT(FilesOf("file:///p/a%7C12\r\nfile:///p/b%7C.jpg"), ElementsAre("/p/a|12|-1", "/p/b|.jpg"));
}

TEST(DragDataTest, NamesWithControlCodesAreLeftOut) {
    EXPECT_THAT(FilesOf("file:///p/a%00.jpg\r\nfile:///p/b%0A.jpg\r\nfile:///p/c%09.jpg\r\nfile:///p/d%7F.jpg"),
                IsEmpty());
    EXPECT_THAT(FilesOf("file:///p/%zz%4"), ElementsAre(testing::StartsWith("/p/")));
}

TEST(DragDataTest, ThousandsOfEntriesComeIn) {
    QByteArray list;
    for (int n = 0; n < 20'000; ++n) list += "file:///p/" + QByteArray::number(n) + ".jpg\r\n";
    const auto files = FilesOf(list);
    ASSERT_EQ(files.size(), 20'000U);
    EXPECT_EQ(files.back(), "/p/19999.jpg");
}

TEST(DragDataTest, WhatHoldsNoFileHasNoForm) {
    QMimeData mime;
    mime.setData(QStringLiteral("text/uri-list"), "http://host/a.jpg");
    mime.setData(QStringLiteral("image/png"), "png");
    EXPECT_TRUE(DataObjectFrom(mime).Empty());
}

TEST(DragDataTest, TheOwnFormIsNotTrustedEither) {
    QMimeData mime;
    mime.setData(QLatin1String(kOwnDragForm), "relative.jpg|1\n/p/a%00|2\n\n/p/ok.jpg|3\n%%%\n/p/%2541|4");
    EXPECT_THAT(DataObjectFrom(mime).Files(), ElementsAre("/p/ok.jpg|3", "/p/%41|4"));
}

// --- In: texts ---

TEST(DragDataTest, PathsAndAddressesOfAPlainTextComeInOneALine) {
    EXPECT_EQ(TextOf(QStringLiteral("/p/a.jpg\nfile:///p/b%20c.jpg\r\n/p/été.jpg")),
              "/p/a.jpg\r\n/p/b c.jpg\r\n/p/\xC3\xA9t\xC3\xA9.jpg");
}

// Of a list of addresses Qt makes the hosts small itself.
TEST(DragDataTest, TheCaseOfAHostsNameDoesNotCount) {
    const QString here = QSysInfo::machineHostName();
    EXPECT_EQ(TextOf("file://LocalHost/p/a.jpg\nfile://" + here.toUpper() + "/p/b.jpg\nFile://" + here.toLower() +
                     "/p/C.jpg"),
              "/p/a.jpg\r\n/p/b.jpg\r\n/p/C.jpg");
}

TEST(DragDataTest, AnEmptyLineEndsAText) {
    EXPECT_EQ(TextOf(QStringLiteral("/p/a.jpg\n\n/p/b.jpg")), "/p/a.jpg");
    EXPECT_EQ(TextOf(QStringLiteral("\n/p/b.jpg")), "");
}

TEST(DragDataTest, WhatIsNoPathInATextIsLeftOut) {
    EXPECT_EQ(TextOf(QStringLiteral("Once upon a time\n./a.jpg\n/p/b.jpg\nhttp://host/c.jpg\n~/d.jpg")), "/p/b.jpg");
    QMimeData mime;
    mime.setText(QStringLiteral("Once upon a time"));
    EXPECT_TRUE(DataObjectFrom(mime).Empty());
}

TEST(DragDataTest, AHostileTextDoesNoHarm) {
    QString text = QStringLiteral("/p/") + QChar(0) + QStringLiteral(".jpg\n/p/\tx.jpg\n");
    EXPECT_EQ(TextOf(text), "");
    EXPECT_EQ(TextOf(QString(4'000'000, QLatin1Char('/'))).size(), 4'000'000U);
    EXPECT_EQ(TextOf(QString(1'000'000, QLatin1Char('\n'))), "");
    QMimeData mime;
    mime.setData(QStringLiteral("text/plain"), QByteArray("\xFF\xFE\xC3\x28/p/a.jpg"));
    EXPECT_TRUE(DataObjectFrom(mime).Empty());
}

}  // namespace
}  // namespace vorlane
