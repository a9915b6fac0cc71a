// PictureLoader: reads pictures for the screen off the user's thread, the one that is wanted now and the one that comes
// next. A picture that nobody waits for any more is not heard of.
#pragma once

#include "widgets/thumbnailworker.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QThreadPool>

namespace vorlane::editor {

// What came of reading a picture's file.
struct ReadPicture {
    enum class State { Fine, Missing, Unreadable, Damaged };
    State state = State::Fine;
    QImage image{};  // null unless all is fine
};

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
    void loaded(const QString& path, const vorlane::editor::ReadPicture& picture);

private:
    struct Known {
        QString path;
        int edge = 0;
        ReadPicture picture{};
        bool read = false;
        bool Is(const QString& other, int size) const { return path == other && edge == size; }
    };

    void Read(const QString& path, int edge);
    void Done(const QString& path, int edge, const ReadPicture& picture);

    ThumbnailDecoder decoder_;
    QThreadPool pool_;
    Known wanted_;
    Known expected_;
};

}  // namespace vorlane::editor
