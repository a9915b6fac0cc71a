// A folder of sound files for tests, waves as they are asked for.
#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QtEndian>

namespace vorlane::test {

class SoundFiles {
public:
    // The file of a wave that tells that many bytes a second, and has as many as asked for.
    static QByteArray Wave(quint32 bytesPerSecond, quint32 bytes) {
        QByteArray wave("RIFF\0\0\0\0WAVEJUNK\3\0\0\0abc\0fmt \x10\0\0\0\1\0\1\0", 36);
        Append(wave, 8000);
        Append(wave, bytesPerSecond);
        wave.append("\1\0\x08\0data", 8);
        Append(wave, bytes);
        return wave + QByteArray(static_cast<qsizetype>(bytes), '\x80');
    }

    QString Path(const QString& name) const { return folder_.filePath(name); }
    QString Write(const QString& name, const QByteArray& bytes) {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return Path(name);
    }
    // Silence.
    QString WriteWave(const QString& name, quint32 seconds) { return Write(name, Wave(8000, 8000 * seconds)); }

private:
    static void Append(QByteArray& bytes, quint32 value) {
        char raw[4];
        qToLittleEndian(value, raw);
        bytes.append(raw, 4);
    }

    QTemporaryDir folder_;
};

}  // namespace vorlane::test
