// A user in front of a real X server: the pointer and the keys go through the server to whatever stands there.
#pragma once

#include <algorithm>
#include <gtest/gtest.h>

#include <QPoint>
#include <QProcess>
#include <QStringList>
#include <QTest>

namespace vorlane::test {

class User {
public:
    // The pace of the pointer, milliseconds a step.
    static constexpr int kPace = 40;
    static constexpr int kPatience = 10000;

    // Waits, with the program running on.
    template <class Condition>
    static bool Until(Condition&& condition) {
        return QTest::qWaitFor(condition, kPatience);
    }

    static void Do(const QStringList& command) {
        QProcess process;
        process.start(QStringLiteral("xdotool"), command);
        EXPECT_TRUE(Until([&] { return process.state() == QProcess::NotRunning; })) << command.join(' ').toStdString();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    }

    static void PointAt(QPoint place) {
        Do({"mousemove", QString::number(place.x()), QString::number(place.y())});
        QTest::qWait(kPace);
    }
    // In steps of at most 15 pixels.
    static void MoveBy(QPoint way) {
        const int steps = std::max(1, way.manhattanLength() / 15);
        for (int step = 0; step < steps; ++step) {
            const QPoint from = way * step / steps;
            const QPoint to = way * (step + 1) / steps;
            Do({"mousemove_relative", "--", QString::number(to.x() - from.x()), QString::number(to.y() - from.y())});
            QTest::qWait(kPace);
        }
    }
    // 1 left, 2 middle, 3 right, 4 wheel away, 5 wheel towards the user.
    static void Click(int button = 1) { Do({"click", QString::number(button)}); }
    static void Press(int button = 1) { Do({"mousedown", QString::number(button)}); }
    static void Release(int button = 1) { Do({"mouseup", QString::number(button)}); }
    static void Key(const QString& key) { Do({"key", key}); }
    static void HoldKey(const QString& key) { Do({"keydown", key}); }
    static void LetKeyGo(const QString& key) { Do({"keyup", key}); }
};

}  // namespace vorlane::test
