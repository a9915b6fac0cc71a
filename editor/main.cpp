#include "editor/commandline.h"
#include "editor/editorwindow.h"
#include "editor/languages.h"
#include "editor/recovery.h"
#include "editor/screenshot.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include <QApplication>
#include <QLocale>
#include <QSettings>

using namespace vorlane::editor;

namespace {

// Help and screenshots work on a machine without a display.
void SpareDisplay(int argc, char** argv) {
    const bool has = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (has || qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
    const auto spares = [](const std::string_view argument) {
        return argument == "-h" || argument == "--help" || argument == "-v" || argument == "--version" ||
               argument.substr(0, 12) == "--screenshot";
    };
    if (std::any_of(argv + 1, argv + argc, spares)) qputenv("QT_QPA_PLATFORM", "offscreen");
}

int Print(const CommandLineAnswer& answer) {
    std::fprintf(answer.wrong ? stderr : stdout, "%s\n", qPrintable(answer.text.trimmed()));
    return answer.wrong ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
#ifdef Q_OS_UNIX
    SpareDisplay(argc, argv);
#endif
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Vorlane"));
    QCoreApplication::setApplicationName(QStringLiteral("Vorlane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VORLANE_VERSION));
    InstallLanguage(application, LanguageFor(QLocale().uiLanguages()));

    const CommandLineAnswer answer = ParseCommandLine(QCoreApplication::arguments());
    if (!answer.commands) return Print(answer);
    const CommandLine& commands = *answer.commands;
    if (!commands.screenshot.isEmpty()) return TakeScreenshot(commands);

    QSettings settings;
    EditorWindow window(settings);
    if (commands.size.isValid()) window.resize(commands.size);
    window.show();
    window.setRecoveryFolder(Recovery::UsualFolder());
    if (!commands.path.isEmpty()) window.open(commands.path);
    window.offerRecovery();
    return QApplication::exec();
}
