#include "editor/caption.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

namespace vorlane::editor {
namespace {

TEST(Caption, TellsSizeAndDayAsTheLocaleWritesThem) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.jpg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(QByteArray(1677722, 'x')), 1677722);
    file.flush();
    const QDateTime day(QDate(2026, 3, 14), QTime(12, 0));
    ASSERT_TRUE(file.setFileTime(day, QFileDevice::FileModificationTime));
    file.close();
    const QString french = CaptionOf(file.fileName(), QLocale(QLocale::French, QLocale::France));
    EXPECT_EQ(french.toStdString(), "1,6 Mo · 14/03/2026");
    const QString english = CaptionOf(file.fileName(), QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(english.toStdString(), "1.6 MB · 3/14/26");
}

TEST(Caption, CountsFewBytesInWords) {
    const QTemporaryDir folder;
    const auto sizeText = [&](int size) {
        QFile file(folder.filePath(QStringLiteral("a.jpg")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(QByteArray(size, 'x')), size);
        file.close();
        const QString caption = CaptionOf(file.fileName(), QLocale(QLocale::French, QLocale::France));
        return caption.section(QStringLiteral(" · "), 0, 0).toStdString();
    };
    EXPECT_EQ(sizeText(0), "0 octet");
    EXPECT_EQ(sizeText(1), "1 octet");
    EXPECT_EQ(sizeText(2), "2 octets");
    EXPECT_EQ(sizeText(1023), "1\u202F023 octets");
    EXPECT_EQ(sizeText(1024), "1,0 ko");
}

TEST(Caption, IsEmptyForAFileThatIsGone) {
    EXPECT_EQ(CaptionOf(QStringLiteral("/nowhere/a.jpg"), QLocale::c()).toStdString(), "");
}

}  // namespace
}  // namespace vorlane::editor
