// WaveFile: a wave file (PCM) that grows as sound comes in. A file that is there already is never touched. The lengths
// in its head are written when it is closed; one that was cut off before that plays in most programs all the same.
#pragma once

#include <QAudioFormat>
#include <QFile>

namespace vorlane::editor {

class WaveFile : public QFile {
public:
    WaveFile(const QString& path, const QAudioFormat& format) : QFile(path), format_(format) {}
    ~WaveFile() override { finish(); }

    // False when it can't be made; errorString() tells why.
    bool begin();
    // Closes it. False when it could not be written to its end.
    bool finish();

private:
    QByteArray Head(qint64 bytes) const;

    QAudioFormat format_;
};

}  // namespace vorlane::editor
