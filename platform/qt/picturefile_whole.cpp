#include "platform/qt/picturefile.h"

#include <cmath>

#include <QtEndian>

namespace vorlane::picturefile {

namespace {

// A place in the bytes of a file, with reads that answer -1 beyond the end.
class Cursor {
public:
    Cursor(const QByteArray& bytes, qsizetype at) : bytes_(bytes), at_(at) {}

    int Byte() { return at_ < bytes_.size() ? static_cast<unsigned char>(bytes_.at(at_++)) : -1; }
    void Skip(qsizetype count) { at_ += count; }
    // Moves behind the next byte of that value.
    bool FindByte(char value) {
        at_ = at_ < bytes_.size() ? bytes_.indexOf(value, at_) : -1;
        return ++at_ > 0;
    }

private:
    const QByteArray& bytes_;
    qsizetype at_;
};

// Segments carry their length; compressed data has none, but no mark inside it other than restarts (0xD0 to 0xD7)
// and the zero that stands behind a plain 0xFF.
bool JpegIsWhole(const QByteArray& bytes) {
    constexpr int kEnd = 0xD9;
    Cursor cursor(bytes, 2);
    while (cursor.FindByte('\xFF')) {
        int mark = cursor.Byte();
        while (mark == 0xFF) mark = cursor.Byte();
        if (mark == kEnd) return true;
        if (mark <= 1 || (mark >= 0xD0 && mark <= 0xD7)) continue;
        const int high = cursor.Byte();
        const int low = cursor.Byte();
        if (high < 0 || low < 0) return false;
        cursor.Skip(high * 256 + low - 2);
    }
    return false;
}

// Whether the empty block that ends a chain of blocks is there.
bool SkipGifBlocks(Cursor& cursor) {
    int length = cursor.Byte();
    for (; length > 0; length = cursor.Byte()) cursor.Skip(length);
    return length == 0;
}

void SkipGifColors(Cursor& cursor, int flags) {
    if (flags >= 0 && (flags & 0x80) != 0) cursor.Skip(3 * (2 << (flags & 7)));
}

// The first frame is all that is shown.
bool GifIsWhole(const QByteArray& bytes) {
    constexpr int kExtension = 0x21;
    constexpr int kFrame = 0x2C;
    Cursor cursor(bytes, 10);
    const int flags = cursor.Byte();
    cursor.Skip(2);
    SkipGifColors(cursor, flags);
    int block = cursor.Byte();
    for (; block == kExtension; block = cursor.Byte()) {
        cursor.Skip(1);
        SkipGifBlocks(cursor);
    }
    if (block != kFrame) return false;
    cursor.Skip(8);
    SkipGifColors(cursor, cursor.Byte());
    cursor.Skip(1);
    return SkipGifBlocks(cursor);
}

// Only rows that are not compressed have a length that can be told beforehand.
bool BmpIsWhole(const QByteArray& bytes) {
    if (bytes.size() < 54) return false;
    const auto number = [&](qsizetype at) {
        return static_cast<double>(qFromLittleEndian<qint32>(bytes.constData() + at));
    };
    const double compression = number(30);
    if (number(14) < 40 || (compression != 0 && compression != 3)) return true;
    const double bitsPerPixel = qFromLittleEndian<quint16>(bytes.constData() + 28);
    const double rowBytes = std::ceil(number(18) * bitsPerPixel / 32) * 4;
    return number(10) + rowBytes * std::abs(number(22)) <= static_cast<double>(bytes.size());
}

}  // namespace

bool IsWhole(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xD8")) return JpegIsWhole(bytes);
    if (bytes.startsWith("GIF8")) return GifIsWhole(bytes);
    if (bytes.startsWith("BM")) return BmpIsWhole(bytes);
    return true;
}

}  // namespace vorlane::picturefile
