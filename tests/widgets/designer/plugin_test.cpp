// The plug-in as others use it: by itself, by the loader of forms of a running program, and by the form editor that
// designers are made of.
#include "platform/qt/qtdesktop.h"
#include "sheet/vorlane.h"
#include "slide/ediapolight.h"
#include "timeline/etimeline.h"
#include "widgets/diapolightwidget.h"
#include "widgets/timelinewidget.h"
#include "widgets/vorlanewidget.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <QApplication>
#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetFactoryInterface>
#include <QtDesigner/QExtensionManager>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace vorlane {
namespace {

using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

std::string Text(const QString& text) {
    return text.toStdString();
}

// The names of the properties that a control's class declares.
std::set<std::string> OwnProperties(const QWidget& control) {
    std::set<std::string> names;
    const QMetaObject& meta = *control.metaObject();
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) names.insert(meta.property(i).name());
    return names;
}

class DesignerPlugin : public ::testing::Test {
protected:
    QPluginLoader loader{QStringLiteral(VORLANE_PLUGIN)};

    ~DesignerPlugin() override { QtDesktop::Of(*qApp).UserMode = true; }

    QList<QDesignerCustomWidgetInterface*> Controls() {
        auto* const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
        EXPECT_NE(collection, nullptr) << Text(loader.errorString());
        return collection == nullptr ? QList<QDesignerCustomWidgetInterface*>() : collection->customWidgets();
    }
};

TEST_F(DesignerPlugin, BringsTheControlsByTheirClasses) {
    std::vector<std::string> names;
    for (const auto* control : Controls()) names.push_back(Text(control->name()));
    EXPECT_THAT(names,
                UnorderedElementsAre("vorlane::VorlaneWidget", "vorlane::DiapoLightWidget", "vorlane::TimeLineWidget"));
}

TEST_F(DesignerPlugin, TellsOfEachControlItsHeaderItsIconAndWhatItIs) {
    for (auto* control : Controls()) {
        SCOPED_TRACE(Text(control->name()));
        EXPECT_EQ(control->group(), "Vorlane");
        EXPECT_FALSE(control->isContainer());
        EXPECT_TRUE(QFile::exists(QStringLiteral(VORLANE_SOURCES) + "/" + control->includeFile()));
        EXPECT_FALSE(control->toolTip().isEmpty());
        EXPECT_GT(control->whatsThis().size(), control->toolTip().size());
        const QImage icon = control->icon().pixmap(24).toImage();
        ASSERT_FALSE(icon.isNull());
        std::set<QRgb> colors;
        for (int x = 0; x < icon.width(); ++x) colors.insert(icon.pixel(x, icon.height() / 2));
        EXPECT_GT(colors.size(), 2U) << "the icon is blank";
    }
}

TEST_F(DesignerPlugin, GivesEachPropertyAToolTip) {
    for (auto* plugin : Controls()) {
        SCOPED_TRACE(Text(plugin->name()));
        const std::unique_ptr<QWidget> control(plugin->createWidget(nullptr));
        QDomDocument description;
        ASSERT_TRUE(description.setContent(plugin->domXml()));
        EXPECT_EQ(description.elementsByTagName("widget").at(0).toElement().attribute("class"), plugin->name());
        std::set<std::string> told;
        const QDomNodeList tips = description.elementsByTagName("tooltip");
        for (int i = 0; i < tips.size(); ++i) {
            const QDomElement tip = tips.at(i).toElement();
            EXPECT_FALSE(tip.text().isEmpty());
            told.insert(Text(tip.attribute("name")));
        }
        EXPECT_EQ(told, OwnProperties(*control));
    }
}

// In French these signs stand behind a blank that never breaks.
TEST_F(DesignerPlugin, WritesItsTextsWithBlanksThatDoNotBreak) {
    for (auto* plugin : Controls()) {
        const QString texts = plugin->toolTip() + plugin->whatsThis() + plugin->domXml();
        EXPECT_TRUE(texts.contains(QStringLiteral("\u00A0:")));
        for (const char* sign : {" :", " ;", " ?", " !", "« ", " »"}) {
            EXPECT_FALSE(texts.contains(QString::fromUtf8(sign))) << Text(plugin->name()) << ": " << sign;
        }
    }
}

TEST_F(DesignerPlugin, GivesAFormThatIsLoadedItsControlsRunningWithTheirProperties) {
    QByteArray form = R"(<ui version="4.0"><class>Form</class>
        <widget class="QWidget" name="Form">
          <widget class="vorlane::VorlaneWidget" name="planche">
            <property name="DiapoWidth"><number>120</number></property>
            <property name="CaptionWait"><string>Un instant</string></property>
            <property name="ScrollDirection"><enum>vorlane::ui::sdHorizontal</enum></property>
          </widget>
          <widget class="vorlane::DiapoLightWidget" name="diapo">
            <property name="CaptionBottom"><string>La mer</string></property>
          </widget>
        </widget></ui>)";
    QBuffer buffer(&form);
    ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
    QUiLoader forms;
    forms.addPluginPath(QFileInfo(loader.fileName()).path());
    const std::unique_ptr<QWidget> window(forms.load(&buffer));
    ASSERT_NE(window, nullptr) << Text(forms.errorString());

    auto* const sheet = window->findChild<VorlaneWidget*>("planche");
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->DiapoWidth(), 120);
    EXPECT_EQ(sheet->CaptionWait(), "Un instant");
    EXPECT_EQ(sheet->ScrollDirection(), ui::ScrollDirection::sdHorizontal);
    EXPECT_TRUE(sheet->sheet().Ambient().UserMode);
    auto* const slide = window->findChild<DiapoLightWidget*>("diapo");
    ASSERT_NE(slide, nullptr);
    EXPECT_EQ(slide->CaptionBottom(), "La mer");
    EXPECT_TRUE(slide->slide().Ambient().UserMode);
}

// The form editor of designers, with the plug-in in one of its folders.
class FormEditor : public DesignerPlugin {
protected:
    std::unique_ptr<QDesignerFormEditorInterface> editor;
    QWidget form;

    FormEditor() {
        QCoreApplication::addLibraryPath(QFileInfo(loader.fileName()).path() + "/..");
        QDesignerComponents::initializeResources();
        editor.reset(QDesignerComponents::createFormEditor(nullptr));
        new QDesignerIntegration(editor.get(), editor.get());
        QDesignerComponents::initializePlugins(editor.get());
        form.resize(400, 300);
    }

    template <class Widget>
    Widget* Make(const char* name) {
        return qobject_cast<Widget*>(editor->widgetFactory()->createWidget(QString::fromUtf8(name), &form));
    }
};

TEST_F(FormEditor, MakesControlsThatShowThemselvesAsSamples) {
    const auto* sheet = Make<VorlaneWidget>("vorlane::VorlaneWidget");
    ASSERT_NE(sheet, nullptr);
    EXPECT_FALSE(sheet->sheet().Ambient().UserMode);
    const auto* slide = Make<DiapoLightWidget>("vorlane::DiapoLightWidget");
    ASSERT_NE(slide, nullptr);
    EXPECT_FALSE(slide->slide().Ambient().UserMode);
    const auto* timeLine = Make<TimeLineWidget>("vorlane::TimeLineWidget");
    ASSERT_NE(timeLine, nullptr);
    EXPECT_FALSE(timeLine->timeline().Ambient().UserMode);
}

TEST_F(FormEditor, GroupsTheirPropertiesByTopic) {
    auto* const sheet = Make<VorlaneWidget>("vorlane::VorlaneWidget");
    ASSERT_NE(sheet, nullptr);
    auto* const properties = qt_extension<QDesignerPropertySheetExtension*>(editor->extensionManager(), sheet);
    ASSERT_NE(properties, nullptr);
    const auto group = [&](const char* name) {
        return Text(properties->propertyGroup(properties->indexOf(QString::fromUtf8(name))));
    };
    EXPECT_EQ(group("DiapoWidth"), "Grille");
    EXPECT_EQ(group("ScrollDirection"), "Défilement");
    EXPECT_EQ(group("ShadowColor"), "Cadres et ombre");
    for (const std::string& name : OwnProperties(*sheet)) {
        EXPECT_NE(group(name.c_str()), "vorlane::VorlaneWidget") << name;
    }
}

// What it writes is C++ in the end.
TEST_F(FormEditor, SavesEnumerationsByTheirFullNames) {
    auto* const window = editor->formWindowManager()->createFormWindow();
    ASSERT_TRUE(window->setContents(QStringLiteral(
        R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
             <widget class="vorlane::VorlaneWidget" name="planche"/></widget></ui>)")));
    auto* const sheet = window->findChild<VorlaneWidget*>("planche");
    ASSERT_NE(sheet, nullptr);
    window->cursor()->setWidgetProperty(sheet, "ScrollDirection", 1);
    EXPECT_EQ(sheet->ScrollDirection(), ui::ScrollDirection::sdHorizontal);
    EXPECT_THAT(Text(window->contents()), HasSubstr("<enum>vorlane::ui::sdHorizontal</enum>"));
    EXPECT_EQ(vorlane::ui::sdHorizontal, ui::ScrollDirection::sdHorizontal);  // the former compiles
    EXPECT_THAT(Text(window->contents()), HasSubstr("<header>widgets/vorlanewidget.h</header>"));
}

}  // namespace
}  // namespace vorlane
