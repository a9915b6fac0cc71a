#include "editor/sortdata.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <QStringList>

using namespace vorlane::editor;

namespace {

QStringList Ordered(QStringList names) {
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) { return SortName(a) < SortName(b); });
    return names;
}

}  // namespace

TEST(SortName, OrdersNumbersByTheirValue) {
    EXPECT_EQ(Ordered({"image 10.jpg", "image 9.jpg", "image 100.jpg", "image 1.jpg"}),
              QStringList({"image 1.jpg", "image 9.jpg", "image 10.jpg", "image 100.jpg"}));
}

TEST(SortName, MakesNoDifferenceBetweenCasesOrAccents) {
    EXPECT_EQ(SortName(QString::fromUtf8("\u00C9T\u00C9 \u00E0 la mer.JPG")), "ete a la mer.jpg");
}

TEST(SortName, KeepsVeryLongNumbers) {
    EXPECT_EQ(SortName("12345678901234567890"), "12345678901234567890");
    EXPECT_EQ(SortName("7"), "000000000007");
}

TEST(SortData, WritesFiveCriteriaThatEndInTheName) {
    const FileFacts facts{"Plage 2.JPG", QDateTime(QDate(2024, 3, 9), QTime(7, 5, 1)),
                          QDateTime(QDate(2023, 12, 31), QTime(23, 59, 59)), 1234};
    const QString name = SortName(facts.name);
    EXPECT_EQ(SortData(facts, name).split(kSepSortArg),
              QStringList({"plage 000000000002.jpg", "20240309070501plage 000000000002.jpg",
                           "20231231235959plage 000000000002.jpg", "0000001234plage 000000000002.jpg",
                           "jpgplage 000000000002.jpg"}));
}

TEST(SortData, AFileWithoutDatesOrExtensionKeepsItsFiveCriteria) {
    const QStringList criteria = SortData({"cliche"}, "cliche").split(kSepSortArg);
    ASSERT_EQ(criteria.size(), 5);
    EXPECT_EQ(criteria[1], "00000000000000cliche");
    EXPECT_EQ(criteria[4], "cliche");
}
