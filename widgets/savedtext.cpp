#include "widgets/savedtext.h"

#include "platform/bagtext.h"
#include "platform/qt/qtpicturedata.h"
#include "widgets/conversions.h"

#include <QBuffer>

namespace vorlane {

namespace {

constexpr std::string_view kAddress = "data:image/png;base64,";

std::string AddressOf(const Picture& picture) {
    const QImage image = ToImage(picture, 1);
    QByteArray png;
    QBuffer buffer(&png);
    if (image.isNull() || !buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) return {};
    return std::string(kAddress) + png.toBase64().toStdString();
}

Picture PictureAt(const std::string& address) {
    if (address.rfind(kAddress, 0) != 0) return {};
    const QByteArray encoded = QByteArray::fromStdString(address.substr(kAddress.size()));
    return PictureFromImage(QImage::fromData(QByteArray::fromBase64(encoded), "PNG"));
}

PictureTexts Pictures() {
    return {AddressOf, PictureAt};
}

}  // namespace

QByteArray SavedText(const PropertyBag& bag) {
    return QByteArray::fromStdString(BagToText(bag, Pictures()));
}

PropertyBag FromSavedText(const QByteArray& text) {
    return BagFromText({text.constData(), static_cast<size_t>(text.size())}, Pictures());
}

}  // namespace vorlane
