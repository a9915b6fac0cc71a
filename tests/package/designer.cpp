// designer PLUGINS PREFIX: a program that knows nothing of the library but the folder of the installed plug-in: it
// loads a form with the three controls, as programs do and designers in their previews. Whatever of the library it then
// has in memory comes from the installed tree.
#include <cstdio>
#include <memory>

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPluginLoader>
#include <QTextStream>
#include <QUiLoader>
#include <QWidget>

namespace {

const char* const kForm = R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
    <widget class="vorlane::VorlaneWidget" name="planche"><property name="DiapoWidth"><number>120</number></property></widget>
    <widget class="vorlane::DiapoLightWidget" name="diapo"><property name="CaptionBottom"><string>La mer</string></property></widget>
    <widget class="vorlane::TimeLineWidget" name="ligne"><property name="ExpositionTime"><number>7</number></property></widget>
  </widget></ui>)";

int failures = 0;

void Expect(bool holds, const QString& what) {
    if (holds) return;
    ++failures;
    std::fprintf(stderr, "%s\n", qPrintable(what));
}

void ExpectControl(const QWidget& form, const QString& name, const char* className, const char* property,
                   const QVariant& value) {
    const auto* control = form.findChild<QWidget*>(name);
    if (control == nullptr) return Expect(false, "no " + name);
    Expect(qstrcmp(control->metaObject()->className(), className) == 0,
           name + " is a " + control->metaObject()->className());
    Expect(control->property(property) == value,
           name + ": " + property + " is " + control->property(property).toString());
}

// The files of the library that this program has in memory.
QStringList LoadedParts() {
    QFile maps("/proc/self/maps");
    QStringList parts;
    if (!maps.open(QIODevice::ReadOnly)) return parts;
    for (const QString& line : QTextStream(&maps).readAll().split('\n')) {
        const QString path = line.mid(line.indexOf('/'));
        if (line.contains("/libvorlane-") && !parts.contains(path)) parts.push_back(path);
    }
    return parts;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QDir plugins(application.arguments().value(1) + "/designer");
    const QStringList files = plugins.entryList({"*vorlane*"}, QDir::Files);
    Expect(files.size() == 1, "the plug-in is not in " + plugins.path());
    if (failures > 0) return 1;
    QPluginLoader loader(plugins.filePath(files.front()));
    Expect(loader.load(), loader.errorString());

    QByteArray text(kForm);
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    QUiLoader forms;
    forms.clearPluginPaths();
    forms.addPluginPath(plugins.path());
    const std::unique_ptr<QWidget> form(forms.load(&buffer));
    Expect(form != nullptr, forms.errorString());
    if (failures > 0) return 1;
    ExpectControl(*form, "planche", "vorlane::VorlaneWidget", "DiapoWidth", 120);
    ExpectControl(*form, "diapo", "vorlane::DiapoLightWidget", "CaptionBottom", "La mer");
    ExpectControl(*form, "ligne", "vorlane::TimeLineWidget", "ExpositionTime", 7);

    const QString prefix = QDir(application.arguments().value(2)).canonicalPath() + "/";
    const QStringList parts = LoadedParts();
    Expect(!parts.isEmpty(), "nothing of the library is loaded");
    for (const QString& part : parts) Expect(part.startsWith(prefix), part + " is not in " + prefix);
    return failures == 0 ? 0 : 1;
}
