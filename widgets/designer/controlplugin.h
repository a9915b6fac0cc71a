// ControlPlugin: one control as a form designer sees it. Forms that are loaded while a program runs use it as well;
// only a designer calls initialize, and from then on the controls that are made show themselves as samples.
#pragma once

#include "widgets/designer/propertyhelp.h"

#include <functional>
#include <vector>

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace vorlane::designer {

struct ControlDescription {
    const QMetaObject& Class;
    const char* ObjectName;  // of the first one on a form
    const char* Header;
    const char* Icon;
    const char* ToolTip;
    const char* WhatsThis;
    const PropertyTable& Properties;
    std::function<QWidget*(QWidget* parent)> Make;
};

class ControlPlugin final : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    ControlPlugin(ControlDescription description, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* core) override;
    // The control, and the tool tips of its properties.
    QString domXml() const override;

private:
    std::vector<PropertyHelp> Properties() const;
    void GroupProperties(QWidget& control) const;

    ControlDescription description_;
    QPointer<QDesignerFormEditorInterface> designer_;
};

}  // namespace vorlane::designer
