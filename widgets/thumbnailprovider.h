// ThumbnailProvider: lets a sheet take its pictures from a thumbnail service, so that no slide ever decodes a file on
// the user's thread. A slide gets its thumbnail at once where there is one. Where there is none it shows an even tile
// for the moment, and its thumbnail when that arrives. The picture handed over has the size of the file's own, though
// not its pixels: what the slide tells of its picture is true of the file.
//
// While the thumb of the bar is dragged, the follow window takes its pictures from the service, too.
//
// A file that can't be shown ends as the sheet's substitute, with its InvalidPicture event, when the service has found
// out. A picture that another handler of BeforeSetPicture gave before is left alone, and so are files of other kinds.
#pragma once

#include "platform/event.h"
#include "platform/picture.h"
#include "widgets/thumbnailservice.h"

#include <memory>
#include <string>
#include <vector>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QWidget>

namespace vorlane {

class eDiapoLight;
class FollowedThumb;
class QtPictures;
class Vorlane;
class VorlaneWidget;

class ThumbnailProvider : public QObject {
    Q_OBJECT

public:
    // Serves sheet, which view shows with the pictures of pictures. All of them outlive this but the service, without
    // which the sheet decodes again by itself.
    ThumbnailProvider(Vorlane& sheet, QWidget& view, QtPictures& pictures, ThumbnailService& service,
                      QObject* parent = nullptr);
    // Serves the widget's sheet, and ends with the widget at the latest.
    ThumbnailProvider(VorlaneWidget& widget, ThumbnailService& service);
    ~ThumbnailProvider() override;

    // How many slides wait for their thumbnail.
    int missing() const;

Q_SIGNALS:
    void missingChanged(int count);

private:
    struct Bound {
        std::shared_ptr<eDiapoLight> slide;
        QString path;
    };

    void Answer(const std::string& name, Picture& picture);
    void Refuse(const std::string& name, bool& refused) const;
    void Follow(const std::string& name, std::string& thumb);
    void LookSoon();
    void Look();
    void AskAgain(const Bound& bound);
    void AskAhead(const std::vector<Bound>& bound);
    void Show(const QString& path, const Thumbnail& thumbnail);
    void ShowBroken(const QString& path);
    void Put(const QString& path, const Picture& picture);
    void Note(const QString& path, int edge);

    std::vector<Bound> BoundSlides() const;
    QString PathOf(const eDiapoLight& slide) const;
    int WantedSize() const;
    int FollowedSize() const;
    QImage Tile() const;

    Vorlane& sheet_;
    QWidget& view_;
    QPointer<ThumbnailService> service_;
    QHash<QString, int> given_;  // by file on a slide: the size of the thumbnail that was handed over, 0 for a tile
    QSet<QString> refused_;      // files that are being shown as broken
    bool looking_ = false;
    int missing_ = 0;
    std::unique_ptr<FollowedThumb> followed_;
    ScopedConnection beforeSetPicture_;
    ScopedConnection beforeLoad_;
    ScopedConnection displayEnd_;
    ScopedConnection scroll_;
    ScopedConnection getThumbPath_;
};

}  // namespace vorlane
