#include "editor/showfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace vorlane::editor {

namespace {

constexpr qint64 kMostBytes = qint64{512} * 1024 * 1024;

QString Tr(const char* text) {
    return QCoreApplication::translate("ShowFile", text);
}

QDir FolderOf(const QString& path) {
    return QFileInfo(path).absoluteDir();
}

ShowReading NotRead(const QString& path, const QString& why) {
    const QString name = QDir::toNativeSeparators(path);
    return {std::nullopt, Tr(QT_TRANSLATE_NOOP("ShowFile", "Impossible d'ouvrir « %1 » : %2")).arg(name, why)};
}

// A disk that fills up takes a part, and tells why only when it is given the rest.
bool WriteAll(QIODevice& file, const QByteArray& text) {
    qint64 done = 0;
    while (done < text.size()) {
        const qint64 more = file.write(text.constData() + done, text.size() - done);
        if (more <= 0) return false;
        done += more;
    }
    return true;
}

}  // namespace

bool IsShowFile(const QString& path) {
    return QFileInfo(path).suffix().compare(kShowExtension, Qt::CaseInsensitive) == 0;
}

ShowReading LoadShow(const QString& path) {
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) return NotRead(path, file.errorString());
    if (file.size() > kMostBytes)
        return NotRead(path, Tr(QT_TRANSLATE_NOOP("ShowFile", "le fichier est trop grand pour un diaporama")));
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError) return NotRead(path, file.errorString());
    ShowReading reading = ReadShow(text, FolderOf(path));
    return reading.show ? reading : NotRead(path, reading.failure);
}

// Without a buffer: what fails as one is emptied would go unnoticed.
QString SaveShow(const QString& path, const SavedShow& show) {
    QSaveFile file(path);
    const QByteArray text = ShowText(show, FolderOf(path));
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && WriteAll(file, text) && file.commit()) return {};
    return Tr(QT_TRANSLATE_NOOP("ShowFile", "Impossible d'enregistrer « %1 » : %2"))
        .arg(QDir::toNativeSeparators(path), file.errorString());
}

}  // namespace vorlane::editor
