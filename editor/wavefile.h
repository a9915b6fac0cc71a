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

    // False when it can't be made; nothing is left of it then.
    bool begin();
    // Closes it. Whether all that came is in it.
    bool finish();
    // Whether there is more in it than its head.
    bool hasSound() const { return size() > kHead; }
    // What the system said of the first thing that failed; empty as long as nothing has.
    QString failure() const { return failure_; }

protected:
    qint64 writeData(const char* data, qint64 size) override;

private:
    static constexpr qint64 kHead = 44;  // bytes in front of the sound

    QByteArray Head(qint64 bytes) const;

    QAudioFormat format_;
    QString failure_;
};

}  // namespace vorlane::editor
