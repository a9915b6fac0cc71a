#include "editor/languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace vorlane::editor {

QString LanguageFor(const QStringList& userLanguages) {
    const QString french = QStringLiteral("fr");
    const QString english = QStringLiteral("en");
    bool stated = false;
    for (const QString& name : userLanguages) {
        const QString language = name.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
        if (language == french || language == english) return language;
        stated = stated || (!language.isEmpty() && language != QLatin1String("c"));
    }
    return stated ? english : french;
}

void InstallLanguage(QCoreApplication& application, const QString& language) {
    const auto install = [&](const QString& name, const QString& folder) {
        auto* translator = new QTranslator(&application);
        if (translator->load(name, folder)) {
            QCoreApplication::installTranslator(translator);
        } else {
            delete translator;
        }
    };
    const QLocale locale(language);
    if (QLocale().language() != locale.language()) QLocale::setDefault(locale);
    install(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(QStringLiteral("vorlane_") + language, QStringLiteral(":/editor/translations"));
}

}  // namespace vorlane::editor
