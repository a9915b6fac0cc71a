#include "editor/languages.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir cache;  // nothing of the user's own
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache.path()));
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    vorlane::editor::InstallLanguage(application, QStringLiteral("fr"));
    return RUN_ALL_TESTS();
}
