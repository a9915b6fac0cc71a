// What the tests of the thumbnail service share: a folder of picture files, a decoder that waits for its cue, and a
// way to wait for the event loop.
#pragma once

#include "widgets/thumbnailworker.h"

#include <condition_variable>
#include <functional>
#include <gtest/gtest.h>
#include <mutex>
#include <set>
#include <thread>

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QTimer>

namespace vorlane::test {

// Runs the event loop until done() holds; false when it doesn't come to that within some seconds.
inline bool WaitFor(const std::function<bool()>& done) {
    const QDeadlineTimer deadline(20000);
    QTimer tick;  // what happens on a worker wakes no event loop by itself
    tick.start(1);
    while (!done() && !deadline.hasExpired()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return done();
}

inline QImage Plain(int width, int height, QColor color) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

inline QByteArray Encoded(const QImage& image, const char* format = "jpeg") {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 90));
    return bytes;
}

class PictureFolder {
public:
    // Writes a file that was last modified some minutes ago.
    QString Write(const QString& name, const QByteArray& bytes, int minutesAgo = 60) {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        file.close();
        SetAge(name, minutesAgo);
        return Path(name);
    }
    QString WritePicture(const QString& name, QColor color = Qt::red, QSize size = {600, 400}) {
        return Write(name, Encoded(Plain(size.width(), size.height(), color)));
    }
    QStringList WritePictures(int count) {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths.push_back(WritePicture(QStringLiteral("p%1.jpg").arg(i, 3, 10, QChar('0'))));
        return paths;
    }
    void SetAge(const QString& name, int minutes) {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        const QDateTime when = QDateTime::currentDateTime().addSecs(-60 * minutes);
        EXPECT_TRUE(file.setFileTime(when, QFileDevice::FileModificationTime));
    }
    QString Path(const QString& name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
};

// A decoder that tells who called it for what, and that can be made to wait.
class StageDecoder {
public:
    ThumbnailDecoder Decoder() {
        return [this](const QString& path, int edge) { return Decode(path, edge); };
    }

    // From now on a decode waits until Open().
    void Shut() {
        const std::lock_guard lock(mutex_);
        open_ = false;
    }
    void Open() {
        {
            const std::lock_guard lock(mutex_);
            open_ = true;
        }
        changed_.notify_all();
    }

    QStringList Begun() const {
        const std::lock_guard lock(mutex_);
        return begun_;
    }
    std::set<std::thread::id> Threads() const {
        const std::lock_guard lock(mutex_);
        return threads_;
    }
    int MostAtOnce() const {
        const std::lock_guard lock(mutex_);
        return most_;
    }

private:
    ThumbnailDecoded Decode(const QString& path, int edge) {
        {
            std::unique_lock lock(mutex_);
            begun_.push_back(QFileInfo(path).fileName());
            threads_.insert(std::this_thread::get_id());
            most_ = std::max(most_, ++now_);
            changed_.wait(lock, [this] { return open_; });
        }
        ThumbnailDecoded decoded = DecodeThumbnail(path, edge);
        const std::lock_guard lock(mutex_);
        --now_;
        return decoded;
    }

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    bool open_ = true;
    QStringList begun_;
    std::set<std::thread::id> threads_;
    int now_ = 0;
    int most_ = 0;
};

}  // namespace vorlane::test
