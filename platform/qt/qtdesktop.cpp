#include "platform/qt/qtdesktop.h"

#include <QCoreApplication>
#include <QGuiApplication>

namespace vorlane {

namespace {

constexpr qsizetype kScaledBytes = qsizetype{48} << 20;
constexpr qsizetype kLookBytes = qsizetype{96} << 20;  // two screens of the densest
constexpr qsizetype kReplayBytes = qsizetype{16} << 20;

QtDesktop* Known(QCoreApplication& application) {
    return application.findChild<QtDesktop*>(QString(), Qt::FindDirectChildrenOnly);
}

// Windows can't end later than this: children of the application object go when it is no application any more.
void EndDesktop() {
    delete Known(*QCoreApplication::instance());
}

}  // namespace

QtDesktop::QtDesktop(QObject* parent)
    : QObject(parent), scaled(kScaledBytes), looks(kLookBytes), replays(kReplayBytes) {
    connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, [this] {
        metrics.ForgetFonts();
        looks.Clear();
        replays.Clear();
    });
}

QtDesktop& QtDesktop::Of(QCoreApplication& application) {
    if (QtDesktop* desktop = Known(application)) return *desktop;
    qAddPostRoutine(EndDesktop);
    return *new QtDesktop(&application);
}

}  // namespace vorlane
