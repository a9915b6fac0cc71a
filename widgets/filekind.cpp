#include "widgets/filekind.h"

#include "platform/trelmic6.h"

#include <QFile>
#include <QImageReader>
#include <QStringList>

namespace vorlane {

FileKind FileKindOf(const QString& path) {
    return static_cast<FileKind>(Trelmic6::FileKind(path.toStdString()));
}

bool HasExtension(const QString& path) {
    return !Trelmic6::FilePart(path.toStdString(), PathPart::Extension).empty();
}

QString NamePatternsOf(FileKind kind) {
    QStringList patterns;
    for (const std::string_view extension : Trelmic6::ExtensionsOf(static_cast<int16_t>(kind))) {
        patterns.push_back(QStringLiteral("*.") + QString::fromLatin1(extension));
    }
    return patterns.join(u' ');
}

bool HoldsPicture(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && !QImageReader::imageFormat(&file).isEmpty();
}

}  // namespace vorlane
