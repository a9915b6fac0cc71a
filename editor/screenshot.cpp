#include "editor/screenshot.h"

#include "editor/editorwindow.h"

#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QPixmap>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

namespace vorlane::editor {

namespace {

constexpr int kPatience = 120000;  // milliseconds
constexpr QSize kUsualSize(1200, 800);

int Refuse(const QString& reason) {
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    return 1;
}

QString Tr(const char* text) {
    return QCoreApplication::translate("Screenshot", text);
}

// Whether the window came to show the folder or the show within the time.
bool Settle(EditorWindow& window, const QString& path) {
    bool failed = false;
    QEventLoop loop;
    QObject::connect(&window, &EditorWindow::settled, &loop, &QEventLoop::quit);
    QObject::connect(&window, &EditorWindow::folderFailed, &loop, [&] {
        failed = true;
        loop.quit();
    });
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    window.open(path);
    if (!failed) loop.exec();
    return !failed && window.isSettled();
}

}  // namespace

int TakeScreenshot(const CommandLine& commands) {
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    EditorWindow window(settings);
    window.resize(commands.size.isValid() ? commands.size : kUsualSize);
    window.show();
    if (!commands.path.isEmpty() && !Settle(window, commands.path)) {
        const QString name = QDir::toNativeSeparators(commands.path);
        return Refuse(Tr(QT_TRANSLATE_NOOP("Screenshot", "Impossible de présenter « %1 »")).arg(name));
    }
    QCoreApplication::processEvents();
    if (!window.grab().save(commands.screenshot, "PNG")) {
        const QString name = QDir::toNativeSeparators(commands.screenshot);
        return Refuse(Tr(QT_TRANSLATE_NOOP("Screenshot", "Impossible d'écrire le fichier « %1 »")).arg(name));
    }
    return 0;
}

}  // namespace vorlane::editor
