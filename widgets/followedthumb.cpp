#include "widgets/followedthumb.h"

#include "platform/failure.h"
#include "sheet/vorlane.h"
#include "widgets/thumbnailservice.h"
#include "windows/frmscroll.h"

#include <QFile>

namespace vorlane {

namespace {

constexpr int kUncompressed = 100;  // written and read once

// What the window shows in place of a broken file, so that it opens none.
QImage Nothing() {
    QImage dot(1, 1, QImage::Format_ARGB32);
    dot.fill(Qt::transparent);
    return dot;
}

}  // namespace

FollowedThumb::FollowedThumb(Vorlane& sheet, ThumbnailService& service) : sheet_(sheet), service_(service) {
    released_ = sheet.Events.ScrollMouseUp.connect([this](auto&&...) { awaited_.clear(); });
    connect(&service, &ThumbnailService::ready, this, &FollowedThumb::Show);
    connect(&service, &ThumbnailService::failed, this, &FollowedThumb::ShowBroken);
}

std::string FollowedThumb::FileFor(const QString& path, int size, const QImage& tile) {
    awaited_.clear();
    const QString cached = service_.cachedFile(path, size);
    if (!cached.isEmpty()) return QFile::encodeName(cached).toStdString();
    const ThumbnailService::Answer answer = service_.request(path, size);
    if (answer.state == ThumbnailService::State::Failed) return Written(Nothing());
    awaited_ = path;
    return Written(answer.thumbnail.IsNull() ? tile : answer.thumbnail.image);
}

void FollowedThumb::Show(const QString& path, const Thumbnail& thumbnail) {
    if (!IsShown(path)) return;
    const std::string file = Written(thumbnail.image);
    Attempt([&] { SharedFrmScroll(sheet_.Desktop()).PictureLet(file, sheet_.ScrollWindowBackColor()); });
}

void FollowedThumb::ShowBroken(const QString& path) {
    if (IsShown(path)) Attempt([&] { SharedFrmScroll(sheet_.Desktop()).Img().Clear(); });
}

// The window is shared with those who enlarge a slide.
bool FollowedThumb::IsShown(const QString& path) const {
    if (path != awaited_) return false;
    const FrmScroll& form = SharedFrmScroll(sheet_.Desktop());
    return form.Visible() && !form.ZoomMode;
}

// Always the same file: the window has read it when it has taken it.
std::string FollowedThumb::Written(const QImage& image) {
    if (!folder_) folder_.emplace();
    const QString file = folder_->filePath(QStringLiteral("followed.png"));
    return image.save(file, "png", kUncompressed) ? QFile::encodeName(file).toStdString() : std::string();
}

}  // namespace vorlane
