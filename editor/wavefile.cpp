#include "editor/wavefile.h"

#include <algorithm>
#include <limits>

#include <QtEndian>

namespace vorlane::editor {

namespace {

constexpr quint32 kHead = 44;  // bytes in front of the sound
constexpr quint32 kRiff = 8;   // those of them that the file's own length doesn't count
constexpr quint32 kFormatSize = 16;
constexpr quint16 kWhole = 1;  // samples are whole numbers
constexpr quint16 kFloat = 3;

template <class T>
void Put(QByteArray& bytes, T value) {
    char raw[sizeof(T)];
    qToLittleEndian(value, raw);
    bytes.append(raw, sizeof raw);
}

}  // namespace

QByteArray WaveFile::Head(qint64 bytes) const {
    constexpr qint64 kMost = std::numeric_limits<quint32>::max() - kHead;
    const auto length = static_cast<quint32>(std::clamp(bytes, qint64{0}, kMost));
    const auto rate = static_cast<quint32>(format_.sampleRate());
    QByteArray head("RIFF");
    Put(head, length + kHead - kRiff);
    head += "WAVEfmt ";
    Put(head, kFormatSize);
    Put(head, format_.sampleFormat() == QAudioFormat::Float ? kFloat : kWhole);
    Put(head, static_cast<quint16>(format_.channelCount()));
    Put(head, rate);
    Put(head, rate * static_cast<quint32>(format_.bytesPerFrame()));
    Put(head, static_cast<quint16>(format_.bytesPerFrame()));
    Put(head, static_cast<quint16>(8 * format_.bytesPerSample()));
    head += "data";
    Put(head, length);
    return head;
}

bool WaveFile::begin() {
    return open(NewOnly | ReadWrite) && write(Head(0)) == kHead;
}

bool WaveFile::finish() {
    if (!isOpen()) return false;
    const bool fine = seek(0) && write(Head(size() - kHead)) == kHead && flush();
    close();
    return fine;
}

}  // namespace vorlane::editor
