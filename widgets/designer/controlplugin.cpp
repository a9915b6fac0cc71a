#include "widgets/designer/controlplugin.h"

#include "platform/qt/qtdesktop.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QCoreApplication>
#include <QXmlStreamWriter>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace vorlane::designer {

ControlPlugin::ControlPlugin(ControlDescription description, QObject* parent)
    : QObject(parent), description_(std::move(description)) {}

QString ControlPlugin::name() const {
    return QString::fromUtf8(description_.Class.className());
}

QString ControlPlugin::group() const {
    return QStringLiteral("Vorlane");
}

QString ControlPlugin::toolTip() const {
    return QString::fromUtf8(description_.ToolTip);
}

QString ControlPlugin::whatsThis() const {
    return QString::fromUtf8(description_.WhatsThis);
}

QString ControlPlugin::includeFile() const {
    return QString::fromUtf8(description_.Header);
}

QIcon ControlPlugin::icon() const {
    return QIcon(QString::fromUtf8(description_.Icon));
}

bool ControlPlugin::isContainer() const {
    return false;
}

bool ControlPlugin::isInitialized() const {
    return !designer_.isNull();
}

void ControlPlugin::initialize(QDesignerFormEditorInterface* core) {
    if (core == nullptr) return;
    designer_ = core;
    QtDesktop::Of(*qApp).UserMode = false;
}

QWidget* ControlPlugin::createWidget(QWidget* parent) {
    QWidget* const control = description_.Make(parent);
    if (designer_) GroupProperties(*control);
    return control;
}

// What is told of the properties that the control has.
std::vector<PropertyHelp> ControlPlugin::Properties() const {
    std::vector<PropertyHelp> properties;
    std::copy_if(description_.Properties.begin(), description_.Properties.end(), std::back_inserter(properties),
                 [&](const PropertyHelp& property) { return description_.Class.indexOfProperty(property.Name) >= 0; });
    return properties;
}

void ControlPlugin::GroupProperties(QWidget& control) const {
    auto* const sheet = qt_extension<QDesignerPropertySheetExtension*>(designer_->extensionManager(), &control);
    if (sheet == nullptr) return;
    for (const PropertyHelp& property : Properties()) {
        sheet->setPropertyGroup(sheet->indexOf(QString::fromUtf8(property.Name)), QString::fromUtf8(property.Group));
    }
}

QString ControlPlugin::domXml() const {
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement("ui");
    xml.writeAttribute("language", "c++");
    xml.writeStartElement("widget");
    xml.writeAttribute("class", name());
    xml.writeAttribute("name", QString::fromUtf8(description_.ObjectName));
    xml.writeEndElement();
    xml.writeStartElement("customwidgets");
    xml.writeStartElement("customwidget");
    xml.writeTextElement("class", name());
    xml.writeStartElement("propertyspecifications");
    for (const PropertyHelp& property : Properties()) {
        xml.writeStartElement("tooltip");
        xml.writeAttribute("name", QString::fromUtf8(property.Name));
        xml.writeCharacters(QString::fromUtf8(property.Text));
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return text;
}

}  // namespace vorlane::designer
