#include "platform/qt/qtdesktop.h"

#include <QCoreApplication>

namespace vorlane {

namespace {

constexpr qsizetype kScaledBytes = qsizetype{96} << 20;

QtDesktop* Known(QCoreApplication& application) {
    return application.findChild<QtDesktop*>(QString(), Qt::FindDirectChildrenOnly);
}

// Windows can't end later than this: children of the application object go when it is no application any more.
void EndDesktop() {
    delete Known(*QCoreApplication::instance());
}

}  // namespace

QtDesktop::QtDesktop(QObject* parent) : QObject(parent), scaled(kScaledBytes) {}

QtDesktop& QtDesktop::Of(QCoreApplication& application) {
    if (QtDesktop* desktop = Known(application)) return *desktop;
    qAddPostRoutine(EndDesktop);
    return *new QtDesktop(&application);
}

}  // namespace vorlane
