// PictureLoader: reads pictures for the screen off the user's thread, the one that is wanted now and the one that comes
// next. A picture that nobody waits for any more is not heard of.
#pragma once

#include "widgets/thumbnailworker.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QThreadPool>

namespace vorlane::editor {

class PictureLoader : public QObject {
    Q_OBJECT

public:
    explicit PictureLoader(ThumbnailDecoder decoder = DecodeThumbnail, QObject* parent = nullptr);
    ~PictureLoader() override;

    // edge: what its longer side is reduced to, pixels.
    void want(const QString& path, int edge);
    // Reads it for a want() that comes later, without telling.
    void expect(const QString& path, int edge);
    // Nothing is wanted any more.
    void forget();

Q_SIGNALS:
    // image: null for what can't be read.
    void loaded(const QString& path, const QImage& image);

private:
    struct Known {
        QString path;
        int edge = 0;
        QImage image{};
        bool read = false;
        bool Is(const QString& other, int size) const { return path == other && edge == size; }
    };

    void Read(const QString& path, int edge);
    void Done(const QString& path, int edge, const QImage& image);

    ThumbnailDecoder decoder_;
    QThreadPool pool_;
    Known wanted_;
    Known expected_;
};

}  // namespace vorlane::editor
