#include "widgets/thumbnailcache.h"

#include <filesystem>
#include <utility>
#include <vector>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace vorlane {

namespace {

using Texts = std::vector<std::pair<QString, QString>>;

constexpr qint64 kSettled = 3000;  // milliseconds after which a file's next change shows in its date
constexpr int kQuickCompression = 20;

QString AddressKey() {
    return QStringLiteral("Thumb::URI");
}
QString ModifiedKey() {
    return QStringLiteral("Thumb::MTime");
}
QString WidthKey() {
    return QStringLiteral("Thumb::Image::Width");
}
QString HeightKey() {
    return QStringLiteral("Thumb::Image::Height");
}

QString FolderOf(int edge) {
    switch (edge) {
        case 0:
            return QStringLiteral("fail/vorlane-1");
        case 128:
            return QStringLiteral("normal");
        case 256:
            return QStringLiteral("large");
        case 512:
            return QStringLiteral("x-large");
        default:
            return QStringLiteral("xx-large");
    }
}

// The date in whole seconds, as entries tell it.
QString Modified(const FileStamp& stamp) {
    return QString::number(stamp.modified / 1000);
}

// Some programs add a fraction.
bool IsModified(const QString& told, const FileStamp& stamp) {
    return told.section(QLatin1Char('.'), 0, 0) == Modified(stamp);
}

bool StandsFor(const QImage& entry, const QString& path, const FileStamp& stamp) {
    return entry.text(AddressKey()).toUtf8() == ThumbnailCache::Address(path) &&
           IsModified(entry.text(ModifiedKey()), stamp);
}

// What stands there for the file in that state; a null image otherwise. The reader tells these texts right only on the
// image, so that is read in any case; what may be there is bounded first.
QImage ReadEntry(const QString& entryPath, const QString& path, const FileStamp& stamp, int edge) {
    QFile file(entryPath);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QImageReader reader(&file, "png");
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > edge || size.height() > edge) return {};
    const QImage image = reader.read();
    return StandsFor(image, path, stamp) ? image : QImage();
}

Thumbnail ToThumbnail(QImage entry) {
    const QSize told(entry.text(WidthKey()).toInt(), entry.text(HeightKey()).toInt());
    const QSize pictureSize = told.isEmpty() ? QSize() : UprightLike(entry.size(), told);
    entry.convertTo(entry.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return {std::move(entry), pictureSize};
}

// Missing folders are made for the user alone.
bool MakeFolder(const QString& folder) {
    if (QFileInfo(folder).isDir()) return true;
    if (!MakeFolder(QFileInfo(folder).path())) return false;
    if (!QDir().mkdir(folder)) return QFileInfo(folder).isDir();
    return QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// Under a name of its own first, so that nobody ever sees half an entry.
void WriteEntry(const QString& entryPath, QImage image, const Texts& texts) {
    if (!MakeFolder(QFileInfo(entryPath).path())) return;
    QTemporaryFile file(entryPath + QStringLiteral(".XXXXXX"));
    if (!file.open()) return;
    QImageWriter writer(&file, "png");
    writer.setCompression(kQuickCompression);
    for (const auto& [key, text] : texts) image.setText(key, text);
    if (!writer.write(image) || !file.flush()) return;
    std::error_code error;
    std::filesystem::rename(file.filesystemFileName(), QFile(entryPath).filesystemFileName(), error);
    if (!error) file.setAutoRemove(false);
}

Texts TextsOf(const QString& path, const FileStamp& stamp) {
    return {
        {AddressKey(), QString::fromLatin1(ThumbnailCache::Address(path))},
        {ModifiedKey(), Modified(stamp)},
        {QStringLiteral("Thumb::Size"), QString::number(stamp.size)},
        {QStringLiteral("Software"), QStringLiteral("Vorlane")},
    };
}

}  // namespace

ThumbnailCache::ThumbnailCache(QString folder) : folder_(std::move(folder)) {}

QString ThumbnailCache::DefaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/thumbnails");
}

QByteArray ThumbnailCache::Address(const QString& path) {
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    return "file://" + QFile::encodeName(absolute).toPercentEncoding("/!$&'()*+,:=@");
}

QString ThumbnailCache::EntryPath(const QString& path, int edge) const {
    const QByteArray digest = QCryptographicHash::hash(Address(path), QCryptographicHash::Md5).toHex();
    return QStringLiteral("%1/%2/%3.png").arg(folder_, FolderOf(edge), QString::fromLatin1(digest));
}

std::optional<ThumbnailCache::Entry> ThumbnailCache::FindEntry(const QString& path, const FileStamp& stamp,
                                                               int edge) const {
    if (folder_.isEmpty() || !stamp.Exists()) return std::nullopt;
    for (const int size : kThumbnailEdges) {
        if (size < edge) continue;
        const QString file = EntryPath(path, size);
        QImage image = ReadEntry(file, path, stamp, size);
        if (!image.isNull()) return Entry{file, std::move(image)};
    }
    return std::nullopt;
}

std::optional<Thumbnail> ThumbnailCache::Find(const QString& path, const FileStamp& stamp, int edge) const {
    auto entry = FindEntry(path, stamp, edge);
    return entry ? std::optional(ToThumbnail(std::move(entry->image))) : std::nullopt;
}

QString ThumbnailCache::FindFile(const QString& path, const FileStamp& stamp, int edge) const {
    const auto entry = FindEntry(path, stamp, edge);
    return entry ? entry->file : QString();
}

bool ThumbnailCache::IsBroken(const QString& path, const FileStamp& stamp) const {
    if (folder_.isEmpty() || !stamp.Exists()) return false;
    return !ReadEntry(EntryPath(path, 0), path, stamp, 1).isNull();
}

bool ThumbnailCache::MayStore(const QString& path, const FileStamp& stamp) const {
    if (folder_.isEmpty() || !stamp.Exists()) return false;
    const qint64 age = QDateTime::currentMSecsSinceEpoch() - stamp.modified;
    const bool own = QFileInfo(path).absoluteFilePath().startsWith(folder_ + QLatin1Char('/'));
    return !own && (age < 0 || age >= kSettled);
}

void ThumbnailCache::Store(const QString& path, const FileStamp& stamp, const Thumbnail& thumbnail, int edge) const {
    if (!MayStore(path, stamp) || thumbnail.image.size() == thumbnail.pictureSize) return;
    Texts texts = TextsOf(path, stamp);
    texts.emplace_back(WidthKey(), QString::number(thumbnail.pictureSize.width()));
    texts.emplace_back(HeightKey(), QString::number(thumbnail.pictureSize.height()));
    WriteEntry(EntryPath(path, edge), thumbnail.image, texts);
}

void ThumbnailCache::StoreBroken(const QString& path, const FileStamp& stamp) const {
    if (!MayStore(path, stamp)) return;
    QImage dot(1, 1, QImage::Format_ARGB32);
    dot.fill(Qt::transparent);
    WriteEntry(EntryPath(path, 0), dot, TextsOf(path, stamp));
}

}  // namespace vorlane
