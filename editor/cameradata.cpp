#include "editor/cameradata.h"

#include <libexif/exif-data.h>
#include <memory>

#include <QFile>
#include <QFileInfo>

namespace vorlane::editor {

namespace {

struct Unref {
    void operator()(ExifData* data) const { exif_data_unref(data); }
};
using Data = std::unique_ptr<ExifData, Unref>;

const ExifEntry* Entry(const ExifData& data, ExifIfd ifd, ExifTag tag, ExifFormat format) {
    const ExifEntry* entry = exif_content_get_entry(data.ifd[ifd], tag);
    return entry != nullptr && entry->format == format && entry->components > 0 ? entry : nullptr;
}

QString Text(const ExifData& data, ExifIfd ifd, ExifTag tag) {
    const ExifEntry* entry = Entry(data, ifd, tag, EXIF_FORMAT_ASCII);
    if (entry == nullptr) return {};
    const QByteArray bytes(reinterpret_cast<const char*>(entry->data), static_cast<qsizetype>(entry->size));
    return QString::fromUtf8(bytes.constData()).simplified();  // up to the first zero, if there is one
}

double Number(ExifData& data, ExifTag tag) {
    const ExifEntry* entry = Entry(data, EXIF_IFD_EXIF, tag, EXIF_FORMAT_RATIONAL);
    if (entry == nullptr || entry->size < 8) return 0;
    const ExifRational value = exif_get_rational(entry->data, exif_data_get_byte_order(&data));
    return value.denominator == 0 ? 0 : static_cast<double>(value.numerator) / value.denominator;
}

int WholeNumber(ExifData& data, ExifTag tag) {
    const ExifEntry* entry = Entry(data, EXIF_IFD_EXIF, tag, EXIF_FORMAT_SHORT);
    return entry == nullptr || entry->size < 2 ? 0 : exif_get_short(entry->data, exif_data_get_byte_order(&data));
}

// Many makers begin their models' names with their own.
QString Camera(const QString& maker, const QString& model) {
    const QString brand = maker.section(QLatin1Char(' '), 0, 0);
    if (model.isEmpty() || model.startsWith(brand, Qt::CaseInsensitive)) return model.isEmpty() ? maker : model;
    return (maker + QLatin1Char(' ') + model).simplified();
}

}  // namespace

CameraData CameraDataOf(const QString& path) {
    if (!QFileInfo(path).isFile()) return {};
    const Data data(exif_data_new_from_file(QFile::encodeName(path).constData()));
    if (!data) return {};
    const QString taken = Text(*data, EXIF_IFD_EXIF, EXIF_TAG_DATE_TIME_ORIGINAL);
    return {Camera(Text(*data, EXIF_IFD_0, EXIF_TAG_MAKE), Text(*data, EXIF_IFD_0, EXIF_TAG_MODEL)),
            Number(*data, EXIF_TAG_EXPOSURE_TIME),
            Number(*data, EXIF_TAG_FNUMBER),
            Number(*data, EXIF_TAG_FOCAL_LENGTH),
            WholeNumber(*data, EXIF_TAG_ISO_SPEED_RATINGS),
            QDateTime::fromString(taken, QStringLiteral("yyyy:MM:dd HH:mm:ss"))};
}

}  // namespace vorlane::editor
