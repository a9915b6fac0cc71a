#include "editor/screenshot.h"

#include "tests/widgets/thumbnailsupport.h"

#include <gtest/gtest.h>

using namespace vorlane;
using namespace vorlane::editor;

namespace {

class ScreenshotTest : public testing::Test {
protected:
    QString Folder() { return QFileInfo(pictures_.Path("x")).path(); }
    int Take(const QString& folder, QSize size = {640, 480}) {
        testing::internal::CaptureStderr();
        const int code = TakeScreenshot({folder, png_, size});
        errors_ = testing::internal::GetCapturedStderr();
        return code;
    }

    test::PictureFolder pictures_;
    QTemporaryDir out_;
    QString png_ = out_.filePath("shot.png");
    std::string errors_;
};

}  // namespace

TEST_F(ScreenshotTest, ShowsAllThumbnails) {
    for (int i = 0; i < 20; ++i) pictures_.WritePicture(QStringLiteral("%1.jpg").arg(i), QColor(200, 30, 160));
    ASSERT_EQ(Take(Folder()), 0) << errors_;
    const QImage shot(png_);
    ASSERT_EQ(shot.size(), QSize(640, 480));
    int purple = 0;
    for (int y = 0; y < shot.height(); ++y) {
        for (int x = 0; x < shot.width(); ++x) {
            const QColor color = shot.pixelColor(x, y);
            purple += color.red() > 180 && color.green() < 60 && color.blue() > 140;
        }
    }
    EXPECT_GT(purple, 640 * 480 / 5);
}

TEST_F(ScreenshotTest, WithoutAFolderItShowsTheInvitation) {
    EXPECT_EQ(Take({}), 0) << errors_;
    EXPECT_EQ(QImage(png_).size(), QSize(640, 480));
}

TEST_F(ScreenshotTest, AFolderThatCannotBeReadIsAnError) {
    const QString missing = pictures_.Path("missing");
    EXPECT_EQ(Take(missing), 1);
    EXPECT_NE(errors_.find(missing.toStdString()), std::string::npos);
    EXPECT_FALSE(QFile::exists(png_));
}

TEST_F(ScreenshotTest, AFileThatCannotBeWrittenIsAnError) {
    pictures_.WritePicture("a.jpg");
    png_ = out_.filePath("missing/shot.png");
    EXPECT_EQ(Take(Folder()), 1);
    EXPECT_NE(errors_.find(png_.toStdString()), std::string::npos);
}
