// A program with nothing but a sheet, which tells its list, as names with their keys, when it has changed.
#include "tests/xvfb/program.h"
#include "tests/xvfb/sheets.h"

#include <cstdio>

#include <QApplication>

namespace vorlane::test {

int SheetProgram(const QRect& place, const QStringList& files) {
    VorlaneWidget sheet;
    SetUp(sheet, place, files);
    const auto tell = [&](const QString& line) {
        std::printf("%s\n", qUtf8Printable(line));
        std::fflush(stdout);
    };
    QObject::connect(&sheet, &VorlaneWidget::OnOLEStartDrag, &sheet, [&] { tell("drags"); });
    QObject::connect(&sheet, &VorlaneWidget::OnOLEDragOver, &sheet, [&] { tell("over"); });
    QObject::connect(&sheet, &VorlaneWidget::OnAfterDropAdd, &sheet, [&] { tell(ItemsOf(sheet)); });
    QObject::connect(&sheet, &VorlaneWidget::OnOLECompleteDrag, &sheet,
                     [&](const int* effect) { tell("dragged " + QString::number(*effect)); });
    if (!QTest::qWaitForWindowExposed(&sheet)) return 1;
    tell("ready");
    return QApplication::exec();
}

}  // namespace vorlane::test
