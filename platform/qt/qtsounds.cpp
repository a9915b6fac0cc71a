#include "platform/qt/qtsounds.h"

#include <algorithm>

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

double WaveSeconds(QFile& file) {
    const QByteArray head = file.read(12);
    if (!head.startsWith("RIFF") || !head.endsWith("WAVE")) return 0;
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

}  // namespace

double QtSounds::SoundSeconds(const std::string& path) {
    const QString name = QString::fromStdString(path);
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) return 0;
    return WaveSeconds(file);
}

std::string QtSounds::Play(const std::string& path, int32_t, int32_t) {
    std::string alias = "son" + std::to_string(++played_);
    open_[alias] = {played_, path};
    return alias;
}

SoundName QtSounds::Current() const {
    const auto youngest = std::max_element(
        open_.begin(), open_.end(), [](const auto& a, const auto& b) { return a.second.handle < b.second.handle; });
    if (youngest == open_.end()) return {};
    return {youngest->first, youngest->second.handle, youngest->second.file};
}

}  // namespace vorlane
