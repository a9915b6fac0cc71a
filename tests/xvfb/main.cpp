#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        GTEST_LOG_(ERROR) << "These tests want an X server.";
        return 1;
    }
    return RUN_ALL_TESTS();
}
