#include "platform/qt/pointers.h"

#include "platform/qt/qtpicturedata.h"

#include <gtest/gtest.h>

#include <QImage>

namespace vorlane {
namespace {

TEST(PointersTest, TheArrowOfAMovePointsWithItsMiddleAtAnyDensity) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QImage image = MovePointer(scale).toImage();
        const int middle = image.width() / 2;
        int first = image.height();
        for (int y = image.height() - 1; y >= 0; --y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() > 200) first = y;
            }
        }
        EXPECT_NEAR(first, middle, 2 * scale) << scale;
        EXPECT_EQ(image.pixelColor(middle + qRound(3 * scale), middle + qRound(8 * scale)), QColor(Qt::black));
        EXPECT_EQ(image.pixelColor(2, 2).alpha(), 0);
        EXPECT_EQ(image.devicePixelRatio(), scale);
    }
}

TEST(PointersTest, APictureOfTheHostsPointsWithItsCornerInTheMiddleOfADragsPointer) {
    QImage icon(6, 4, QImage::Format_RGB32);
    icon.fill(Qt::red);
    for (const double scale : {1.0, 2.0}) {
        const QImage image = DragPointer(PictureFromImage(icon), scale).toImage();
        const int density = static_cast<int>(scale);
        EXPECT_EQ(image.size(), QSize(12, 8) * density);
        EXPECT_EQ(image.devicePixelRatio(), scale);
        EXPECT_EQ(image.pixelColor(6 * density, 4 * density), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(12 * density - 1, 8 * density - 1), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(6 * density - 1, 4 * density).alpha(), 0);
        EXPECT_EQ(image.pixelColor(6 * density, 4 * density - 1).alpha(), 0);
    }
    EXPECT_TRUE(DragPointer({}, 1).isNull());
}

}  // namespace
}  // namespace vorlane
