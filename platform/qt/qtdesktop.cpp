#include "platform/qt/qtdesktop.h"

#include <QCoreApplication>

namespace vorlane {

namespace {

constexpr qsizetype kScaledBytes = qsizetype{96} << 20;

}  // namespace

QtDesktop::QtDesktop(QObject* parent) : QObject(parent), scaled(kScaledBytes) {}

QtDesktop& QtDesktop::Of(QCoreApplication& application) {
    auto* desktop = application.findChild<QtDesktop*>(QString(), Qt::FindDirectChildrenOnly);
    return desktop == nullptr ? *new QtDesktop(&application) : *desktop;
}

}  // namespace vorlane
