// Another program beside the tests: this one's file in one of its other parts, which tells what happens to it, a line
// for each thing.
#pragma once

#include "tests/xvfb/user.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRect>
#include <QStringList>

namespace vorlane::test {

// The parts. Their arguments: left, top, width, height of the window, then files.
inline constexpr char kForeignPart[] = "--foreign";  // plain Qt; drags the files out of its window, and takes any drop
inline constexpr char kSheetPart[] = "--sheet";      // a sheet of the files

// Plays the part that the arguments name; nothing when they name none.
int ForeignProgram(const QRect& place, const QStringList& files);
int SheetProgram(const QRect& place, const QStringList& files);

class Program {
public:
    Program(const char* part, const QRect& place, const QStringList& files) {
        QStringList arguments{part};
        for (const int number : {place.x(), place.y(), place.width(), place.height()})
            arguments += QString::number(number);
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationFilePath(), arguments + files);
        EXPECT_TRUE(User::Until([&] { return Told("ready"); })) << "the other program did not start";
    }
    ~Program() {
        process_.kill();
        process_.waitForFinished();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool Told(const QString& line) { return Lines().contains(line); }
    const QStringList& Lines() {
        while (process_.canReadLine()) lines_ += QString::fromUtf8(process_.readLine()).trimmed();
        return lines_;
    }

private:
    QProcess process_;
    QStringList lines_;
};

}  // namespace vorlane::test
