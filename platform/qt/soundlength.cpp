#include "platform/qt/soundlength.h"

#include <algorithm>
#include <audioproperties.h>
#include <fileref.h>
#include <optional>
#include <tfilestream.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace vorlane {

namespace {

struct Chunk {
    QByteArray name;
    qint64 size;  // bytes of content, as declared
    qint64 next;  // where the next chunk begins: content has an even length
};

// The chunk at the file's place, which moves to its content; an empty name at the end.
Chunk ReadChunk(QFile& file) {
    const QByteArray head = file.read(8);
    if (head.size() < 8) return {{}, 0, 0};
    const qint64 size = qFromLittleEndian<quint32>(head.constData() + 4);
    return {head.left(4), size, file.pos() + size + (size & 1)};
}

// Read here, for the library knows nothing of a wave file whose sizes are not those of the file. Nothing for another
// kind of file.
std::optional<double> WaveSeconds(QFile& file) {
    const QByteArray head = file.read(12);
    if (!head.startsWith("RIFF") || !head.endsWith("WAVE")) return std::nullopt;
    quint32 bytesPerSecond = 0;
    for (Chunk chunk = ReadChunk(file); !chunk.name.isEmpty(); chunk = ReadChunk(file)) {
        if (chunk.name == "fmt ") {
            const QByteArray format = file.read(16);
            if (format.size() < 16) return 0;
            bytesPerSecond = qFromLittleEndian<quint32>(format.constData() + 8);
        }
        if (chunk.name == "data") {
            const qint64 there = std::min(chunk.size, file.size() - file.pos());
            return bytesPerSecond == 0 ? 0 : static_cast<double>(there) / bytesPerSecond;
        }
        if (!file.seek(chunk.next)) return 0;
    }
    return 0;
}

// A file whose kind only its content can tell.
class Nameless : public TagLib::FileStream {
public:
    using FileStream::FileStream;
    TagLib::FileName name() const override { return ""; }
};

double TaggedSeconds(TagLib::FileStream& stream) {
    const TagLib::FileRef file(&stream, true, TagLib::AudioProperties::Average);
    const TagLib::AudioProperties* known = file.isNull() ? nullptr : file.audioProperties();
    return known == nullptr ? 0 : std::max(known->lengthInMilliseconds(), 0) / 1000.0;
}

// Its name tells the kind of a file best, but it may be wrong.
double TaggedSeconds(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    TagLib::FileStream named(name.constData(), true);
    const double seconds = TaggedSeconds(named);
    if (seconds > 0) return seconds;
    Nameless nameless(name.constData(), true);
    return TaggedSeconds(nameless);
}

}  // namespace

double SoundLength(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return 0;
    const std::optional<double> wave = WaveSeconds(file);
    return wave ? *wave : TaggedSeconds(path);
}

}  // namespace vorlane
