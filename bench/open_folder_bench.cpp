// Opening a folder of many files in the editor: how long until the first slides are bound, until all files are on the
// list, and for how long the user's thread was busy at a stretch.
//
//   open_folder_bench [folder for the files]
#include "editor/editorwindow.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

using namespace vorlane;
using namespace vorlane::editor;

namespace {

constexpr int kFiles = 100'000;

// Empty files, unless they are there from the last run.
QString Folder(const QString& folder) {
    const QString last = QStringLiteral("%1/img_%2.jpg").arg(folder).arg(kFiles - 1, 6, 10, QLatin1Char('0'));
    if (QFile::exists(last)) return folder;
    QDir().mkpath(folder);
    for (int i = 0; i < kFiles; ++i) {
        QFile file(QStringLiteral("%1/img_%2.jpg").arg(folder).arg(i, 6, 10, QLatin1Char('0')));
        if (!file.open(QIODevice::WriteOnly)) std::abort();
    }
    return folder;
}

// Milliseconds that this thread has computed.
double Computed() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

struct Run {
    double first = 0;    // milliseconds until slides are bound
    double all = 0;      // until all files are on the list
    double longest = 0;  // the longest turn of the event loop, of the thread's own processor time
    int fills = 0;
};

Run Open(const QString& folder) {
    const QTemporaryDir config;
    QSettings settings(config.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    ThumbnailOptions options;
    options.cacheFolder.clear();
    options.decoder = [](const QString&, int) { return ThumbnailDecoded{ThumbnailDecoded::State::Broken}; };
    EditorWindow window(settings, options);
    window.resize(1000, 700);
    window.show();
    QCoreApplication::processEvents();

    Run run;
    QElapsedTimer clock;
    clock.start();
    const auto now = [&] { return static_cast<double>(clock.nsecsElapsed()) / 1e6; };
    QObject::connect(&window.sheet(), &VorlaneWidget::OnDisplayEnd, [&] {
        ++run.fills;
        if (run.first == 0) run.first = now();
    });
    window.openFolder(folder);
    while (!window.isSettled()) {
        const double before = Computed();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        run.longest = std::max(run.longest, Computed() - before);
    }
    run.all = now();
    if (window.count() != kFiles) std::abort();
    return run;
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QString folder =
        Folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath() + "/vorlane-bench-files");
    for (int round = 0; round < 3; ++round) {
        const Run run = Open(folder);
        std::printf(
            "%d files: %d fills; first slides %.0f ms, all %.0f ms, longest turn of the user's thread %.1f ms\n",
            kFiles, run.fills, run.first, run.all, run.longest);
    }
    return 0;
}
