#include "platform/qt/movepointer.h"

#include <gtest/gtest.h>

#include <QImage>

namespace vorlane {
namespace {

TEST(MovePointerTest, ItPointsWithItsMiddleAtAnyDensity) {
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

}  // namespace
}  // namespace vorlane
