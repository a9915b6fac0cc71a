#include "widgets/thumbnailprovider.h"

#include "platform/qt/qtdesktop.h"
#include "platform/qt/qtpicturedata.h"
#include "platform/qt/qtpictures.h"
#include "platform/trelmic6.h"
#include "sheet/vorlane.h"
#include "widgets/followedthumb.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace vorlane {

namespace {

constexpr int kBroken = std::numeric_limits<int>::max();  // the size of what needs no other
constexpr QSize kTileSize(3000, 2000);                    // of a usual picture

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

bool IsPicture(const std::string& name) {
    return !name.empty() && Trelmic6::FileKind(name) == 0;
}

Picture ToPicture(const Thumbnail& thumbnail) {
    return PictureFromImage(thumbnail.image, thumbnail.pictureSize.width(), thumbnail.pictureSize.height());
}

int EdgeOf(const Thumbnail& thumbnail) {
    const bool whole = thumbnail.image.size() == thumbnail.pictureSize;
    return whole ? kBroken : std::max(thumbnail.image.width(), thumbnail.image.height());
}

}  // namespace

ThumbnailProvider::ThumbnailProvider(Vorlane& sheet, QWidget& view, QtPictures& pictures, ThumbnailService& service,
                                     QObject* parent)
    : QObject(parent),
      sheet_(sheet),
      view_(view),
      service_(&service),
      followed_(std::make_unique<FollowedThumb>(sheet, service)) {
    beforeSetPicture_ =
        sheet.Events.BeforeSetPicture.connect([this](int16_t, const std::string& name, Picture& picture, bool&, bool&,
                                                     bool&, bool&, bool&) { Answer(name, picture); });
    beforeLoad_ =
        pictures.BeforeLoad.connect([this](const std::string& name, bool& refused) { Refuse(name, refused); });
    displayEnd_ = sheet.Events.DisplayEnd.connect([this] { LookSoon(); });
    scroll_ = sheet.Events.Scroll.connect([this](int32_t, int32_t&) { LookSoon(); });
    getThumbPath_ =
        sheet.Events.GetThumbPath.connect([this](const std::string& name, std::string& thumb) { Follow(name, thumb); });
    connect(&service, &ThumbnailService::ready, this, &ThumbnailProvider::Show);
    connect(&service, &ThumbnailService::failed, this, &ThumbnailProvider::ShowBroken);
}

ThumbnailProvider::ThumbnailProvider(VorlaneWidget& widget, ThumbnailService& service)
    : ThumbnailProvider(widget.sheet(), widget, widget.Desktop().pictures, service, &widget) {}

ThumbnailProvider::~ThumbnailProvider() = default;

// --- What the sheet asks ---

void ThumbnailProvider::Answer(const std::string& name, Picture& picture) {
    LookSoon();
    if (!service_ || picture.Handle() != 0 || Trelmic6::FileKind(name) != 0) return;
    const QString path = Text(name);
    const ThumbnailService::Answer answer = service_->request(path, WantedSize());
    if (answer.state == ThumbnailService::State::Failed) {
        Note(path, kBroken);  // without a picture the sheet tries the file, and is refused
        return;
    }
    const bool tile = answer.thumbnail.IsNull();
    Note(path, tile ? 0 : EdgeOf(answer.thumbnail));
    picture = tile ? PictureFromImage(Tile(), kTileSize.width(), kTileSize.height()) : ToPicture(answer.thumbnail);
}

void ThumbnailProvider::Refuse(const std::string& name, bool& refused) const {
    if (!service_) return;
    const QString path = Text(name);
    refused = refused || refused_.contains(path) || service_->isKnownBroken(path);
}

void ThumbnailProvider::Follow(const std::string& name, std::string& thumb) {
    if (!service_) return;
    if (!thumb.empty() || !IsPicture(name)) return followed_->Forget();
    thumb = followed_->FileFor(Text(name), FollowedSize(), Tile());
}

// --- What the service tells ---

void ThumbnailProvider::Show(const QString& path, const Thumbnail& thumbnail) {
    if (!given_.contains(path)) return;
    Note(path, EdgeOf(thumbnail));
    Put(path, ToPicture(thumbnail));
}

void ThumbnailProvider::ShowBroken(const QString& path) {
    if (!given_.contains(path)) return;
    Note(path, kBroken);
    refused_.insert(path);
    Put(path, {});
    refused_.remove(path);
}

void ThumbnailProvider::Put(const QString& path, const Picture& picture) {
    for (const Bound& bound : BoundSlides()) {
        if (bound.path == path) bound.slide->PictureByString(path.toStdString(), picture);
    }
}

// --- What is in sight ---

// Once for all that the sheet does until the event loop comes round.
void ThumbnailProvider::LookSoon() {
    if (looking_) return;
    looking_ = true;
    QMetaObject::invokeMethod(
        this, [this] { Look(); }, Qt::QueuedConnection);
}

void ThumbnailProvider::Look() {
    looking_ = false;
    if (!service_) return;
    const std::vector<Bound> bound = BoundSlides();
    QStringList wanted;
    if (!followed_->Awaited().isEmpty()) wanted.push_back(followed_->Awaited());
    QHash<QString, int> given;
    for (const Bound& one : bound) {
        wanted.push_back(one.path);
        given.insert(one.path, given_.value(one.path));
    }
    given_ = std::move(given);
    service_->setWanted(wanted);
    for (const Bound& one : bound) AskAgain(one);
    Attempt([&] { AskAhead(bound); });
    Note({}, 0);
}

// For a slide whose request was dropped when it was out of sight, or that has grown.
void ThumbnailProvider::AskAgain(const Bound& bound) {
    const int wanted = ThumbnailEdge(WantedSize());
    if (given_.value(bound.path) >= wanted) return;
    const ThumbnailService::Answer answer = service_->request(bound.path, wanted);
    if (answer.state == ThumbnailService::State::Ready) {
        Show(bound.path, answer.thumbnail);
        Note(bound.path, std::max(wanted, given_.value(bound.path)));  // there is no larger one
    }
    if (answer.state == ThumbnailService::State::Failed) ShowBroken(bound.path);
}

// The next screenful, so that it is there when the user turns the page.
void ThumbnailProvider::AskAhead(const std::vector<Bound>& bound) {
    int32_t last = -1;
    for (const Bound& one : bound) last = std::max(last, one.slide->Value());
    const ListControl* list = sheet_.Liste();
    if (last < 0 || !list) return;
    const int32_t end = std::min(list->ListCount() - 1, last + sheet_.CountDiapo());
    for (int32_t i = end; i > last; --i) {  // the newest request is served first
        const std::string name = sheet_.ImageFullPath(i);
        if (IsPicture(name)) service_->request(Text(name), WantedSize());
    }
}

// Slides of files that this has an eye on: those in sight as one reads them, then the others.
std::vector<ThumbnailProvider::Bound> ThumbnailProvider::BoundSlides() const {
    std::vector<Bound> bound;
    for (int32_t k = 0; k < sheet_.Diapo.Count(); ++k) {
        const std::shared_ptr<eDiapoLight> slide = sheet_.Diapo.Item(k);
        const QString path = slide->Value() >= 0 && slide->Visible() ? PathOf(*slide) : QString();
        if (!path.isEmpty()) bound.push_back({slide, path});
    }
    const auto place = [this](const Bound& one) {
        const eDiapoLight& slide = *one.slide;
        const QRectF area(slide.Left(), slide.Top(), slide.Width(), slide.Height());
        return std::tuple(!area.intersects(QRectF(view_.rect())), slide.Top(), slide.Left());
    };
    std::sort(bound.begin(), bound.end(), [&](const Bound& a, const Bound& b) { return place(a) < place(b); });
    return bound;
}

QString ThumbnailProvider::PathOf(const eDiapoLight& slide) const {
    QString path = Text(slide.ImageFullPath());
    if (given_.contains(path)) return path;
    const bool pointed = path.endsWith(QLatin1Char('.'));
    if (pointed) path.chop(1);
    return pointed && given_.contains(path) ? path : QString();
}

int ThumbnailProvider::missing() const {
    return missing_;
}

void ThumbnailProvider::Note(const QString& path, int edge) {
    if (!path.isNull()) given_.insert(path, edge);
    const auto missing = static_cast<int>(std::count(given_.begin(), given_.end(), 0));
    if (std::exchange(missing_, missing) != missing) Q_EMIT missingChanged(missing);
}

// In device pixels.
int ThumbnailProvider::WantedSize() const {
    const eDiapoLight& slide = *sheet_.Diapo.Item(0);
    const double longest = std::max(slide.Width(), slide.Height());
    return static_cast<int>(longest * view_.devicePixelRatioF());
}

// As large as the slides, too, so that what is decoded on the way serves where the thumb is let go.
int ThumbnailProvider::FollowedSize() const {
    return std::max(WantedSize(), static_cast<int>(sheet_.ScrollWindowWidth() * view_.devicePixelRatioF()));
}

QImage ThumbnailProvider::Tile() const {
    const QColor ink = view_.palette().color(QPalette::WindowText);
    const QColor paper = view_.palette().color(QPalette::Base);
    const auto mixed = [](int a, int b) { return (a * 14 + b * 86) / 100; };
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(qRgb(mixed(ink.red(), paper.red()), mixed(ink.green(), paper.green()), mixed(ink.blue(), paper.blue())));
    return image;
}

}  // namespace vorlane
