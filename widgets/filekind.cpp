#include "widgets/filekind.h"

#include "platform/trelmic6.h"

#include <QFile>
#include <QImageReader>

namespace vorlane {

FileKind FileKindOf(const QString& path) {
    return static_cast<FileKind>(Trelmic6::FileKind(path.toStdString()));
}

bool HasExtension(const QString& path) {
    return !Trelmic6::FilePart(path.toStdString(), PathPart::Extension).empty();
}

bool HoldsPicture(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && !QImageReader::imageFormat(&file).isEmpty();
}

}  // namespace vorlane
