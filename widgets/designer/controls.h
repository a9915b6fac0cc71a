// The controls of the library for form designers: what a designer's plug-in loader finds.
#pragma once

#include <QList>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace vorlane::designer {

class Controls final : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit Controls(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return controls_; }

private:
    QList<QDesignerCustomWidgetInterface*> controls_;
};

}  // namespace vorlane::designer
