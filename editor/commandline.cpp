#include "editor/commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

namespace vorlane::editor {

namespace {

QString Tr(const char* text) {
    return QCoreApplication::translate("CommandLine", text);
}

// "800x600"; not valid for anything else.
QSize SizeOf(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^([1-9][0-9]{0,4})[xX×]([1-9][0-9]{0,4})$"));
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

}  // namespace

CommandLineAnswer ParseCommandLine(const QStringList& arguments) {
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        Tr(QT_TRANSLATE_NOOP("CommandLine", "Enregistre la fenêtre dans une image PNG, puis quitte.")),
        Tr(QT_TRANSLATE_NOOP("CommandLine", "fichier")));
    const QCommandLineOption size(QStringLiteral("size"),
                                  Tr(QT_TRANSLATE_NOOP("CommandLine", "Taille de la fenêtre en pixels.")),
                                  Tr(QT_TRANSLATE_NOOP("CommandLine", "LxH")));
    QCommandLineParser parser;
    parser.setApplicationDescription(Tr(QT_TRANSLATE_NOOP(
        "CommandLine", "Présente les images d'un dossier, ou d'un diaporama, comme une planche de diapositives.")));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  Tr(QT_TRANSLATE_NOOP("CommandLine", "Affiche cette aide.")));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     Tr(QT_TRANSLATE_NOOP("CommandLine", "Affiche la version.")));
    parser.addOptions({screenshot, size, help, version});
    parser.addPositionalArgument(Tr(QT_TRANSLATE_NOOP("CommandLine", "dossier")),
                                 Tr(QT_TRANSLATE_NOOP("CommandLine", "Le dossier ou le diaporama à ouvrir.")),
                                 Tr(QT_TRANSLATE_NOOP("CommandLine", "[dossier]")));

    if (!parser.parse(arguments)) return {std::nullopt, parser.errorText(), true};
    if (parser.isSet(help)) return {std::nullopt, parser.helpText()};
    if (parser.isSet(version))
        return {std::nullopt, QStringLiteral("Vorlane %1").arg(QCoreApplication::applicationVersion())};
    CommandLine commands{parser.positionalArguments().value(0), parser.value(screenshot), SizeOf(parser.value(size))};
    if (parser.positionalArguments().size() > 1)
        return {std::nullopt, Tr(QT_TRANSLATE_NOOP("CommandLine", "Un seul dossier ou diaporama à la fois.")), true};
    if (parser.isSet(size) && !commands.size.isValid())
        return {std::nullopt, Tr(QT_TRANSLATE_NOOP("CommandLine", "La taille s'écrit comme 1200x800.")), true};
    if (parser.isSet(screenshot) && commands.screenshot.isEmpty())
        return {std::nullopt, Tr(QT_TRANSLATE_NOOP("CommandLine", "Il manque le fichier de l'image.")), true};
    return {commands};
}

}  // namespace vorlane::editor
