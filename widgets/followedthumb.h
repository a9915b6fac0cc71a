// FollowedThumb: what the follow window of a sheet shows while the user drags the thumb of its bar, taken from a
// thumbnail service: the thumbnail, or a tile until it is there. So browsing by the thumb waits for no picture file.
#pragma once

#include "platform/event.h"
#include "widgets/thumbnail.h"

#include <optional>
#include <string>

#include <QObject>
#include <QTemporaryDir>

namespace vorlane {

class ThumbnailService;
class Vorlane;

class FollowedThumb : public QObject {
    Q_OBJECT

public:
    // The sheet outlives this; nothing is asked of it once the service has gone.
    FollowedThumb(Vorlane& sheet, ThumbnailService& service);

    // The file to show for the picture file under the thumb, in that size or a larger one, in pixels; one of nothing
    // for a file that is known to be broken. Empty when no file can be written.
    std::string FileFor(const QString& path, int size, const QImage& tile);

    // Something else is under the thumb.
    void Forget() { awaited_.clear(); }
    // The file whose thumbnail is waited for; empty when there is none.
    const QString& Awaited() const { return awaited_; }

private:
    void Show(const QString& path, const Thumbnail& thumbnail);
    void ShowBroken(const QString& path);
    bool IsShown(const QString& path) const;
    std::string Written(const QImage& image);

    Vorlane& sheet_;
    ThumbnailService& service_;
    QString awaited_;
    std::optional<QTemporaryDir> folder_;  // the window takes files alone
    ScopedConnection released_;
};

}  // namespace vorlane
