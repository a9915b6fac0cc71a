#include "editor/wavefile.h"

#include <algorithm>
#include <limits>

#include <QtEndian>

namespace vorlane::editor {

namespace {

constexpr quint32 kRiff = 8;  // bytes in front that the file's own length doesn't count
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
    Put(head, static_cast<quint32>(length + kHead - kRiff));
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

// Without a buffer, so that what fails is known at once.
bool WaveFile::begin() {
    if (!open(NewOnly | ReadWrite | Unbuffered)) {
        failure_ = errorString();
        return false;
    }
    if (write(Head(0)) == kHead) return true;
    remove();
    return false;
}

// A disk that fills up takes a part, and tells why only when it is given the rest.
qint64 WaveFile::writeData(const char* data, qint64 size) {
    qint64 done = 0;
    while (done < size) {
        const qint64 more = QFile::writeData(data + done, size - done);
        if (more <= 0) {
            if (failure_.isEmpty()) failure_ = errorString();
            return done > 0 ? done : -1;
        }
        done += more;
    }
    return done;
}

bool WaveFile::finish() {
    if (!isOpen()) return false;
    const bool told = seek(0) && write(Head(size() - kHead)) == kHead;
    if (!told && failure_.isEmpty()) failure_ = errorString();
    close();
    return told && failure_.isEmpty();
}

}  // namespace vorlane::editor
