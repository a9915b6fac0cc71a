#include "tests/xvfb/program.h"

#include <gtest/gtest.h>

#include <QApplication>

namespace {

// The tests start this program anew to have others beside them.
int Play(const QString& part, const QStringList& arguments) {
    const auto number = [&](int i) { return arguments.at(i).toInt(); };
    const QRect place(number(0), number(1), number(2), number(3));
    const QStringList files = arguments.mid(4);
    return part == vorlane::test::kSheetPart ? vorlane::test::SheetProgram(place, files)
                                             : vorlane::test::ForeignProgram(place, files);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        GTEST_LOG_(ERROR) << "These tests want an X server.";
        return 1;
    }
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 5) return Play(arguments.at(1), arguments.mid(2));
    return RUN_ALL_TESTS();
}
