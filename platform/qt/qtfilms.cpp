#include "platform/qt/qtfilms.h"

#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/qt/picturefile.h"
#include "platform/qt/qtpicturedata.h"

#include <utility>

#include <QBuffer>
#include <QFile>
#include <QImageReader>

namespace vorlane {

namespace {

// A frame that asks for less counts as one that does not know, as everywhere.
constexpr int kShortestDelay = 20;
constexpr int kUsualDelay = 100;

bool Moves(const QImageReader& reader) {
    return reader.supportsAnimation() && reader.imageCount() != 1;
}

class Still final : public Film {
public:
    explicit Still(Picture picture) : picture_(std::move(picture)) {}
    std::optional<FilmFrame> NextFrame() override {
        const Picture picture = std::exchange(picture_, {});
        return picture.Type() == 0 ? std::nullopt : std::optional(FilmFrame{picture, 0});
    }

private:
    Picture picture_;
};

class Animation final : public Film {
public:
    explicit Animation(QByteArray bytes) : bytes_(std::move(bytes)) {
        source_.setBuffer(&bytes_);
        source_.open(QIODevice::ReadOnly);
        Rewind();
    }

    std::optional<FilmFrame> NextFrame() override {
        auto frame = Read();
        if (frame || frames_ == 0) return frame;
        if (!rounds_) rounds_ = reader_->loopCount();
        if (*rounds_ == 0) return std::nullopt;
        if (*rounds_ > 0) --*rounds_;
        Rewind();
        return Read();
    }

private:
    void Rewind() {
        source_.seek(0);
        reader_ = std::make_unique<QImageReader>(&source_);
        frames_ = 0;
    }

    std::optional<FilmFrame> Read() {
        QImage image;
        if (!reader_->read(&image) || image.isNull()) return std::nullopt;
        ++frames_;
        const int delay = reader_->nextImageDelay();
        return FilmFrame{PictureFromImage(image), delay < kShortestDelay ? kUsualDelay : delay};
    }

    QByteArray bytes_;
    QBuffer source_;
    std::unique_ptr<QImageReader> reader_;
    int frames_ = 0;             // read since the start of the round
    std::optional<int> rounds_;  // still to come, below 0 for ever; known behind the first
};

}  // namespace

bool QtFilms::CanOpen(const std::string& path) const {
    const std::string file = picturefile::Found(path);
    if (!files::IsFile(file)) return false;
    QImageReader reader(QFile::decodeName(file.c_str()));
    reader.setDecideFormatFromContent(true);
    return reader.canRead();
}

std::unique_ptr<Film> QtFilms::Open(const std::string& path) {
    const std::string file = picturefile::Found(path);
    QImageReader reader(QFile::decodeName(file.c_str()));
    reader.setDecideFormatFromContent(true);
    if (files::IsFile(file) && reader.canRead() && Moves(reader)) {
        auto bytes = picturefile::Read(file);
        return bytes ? std::make_unique<Animation>(std::move(*bytes)) : nullptr;
    }
    auto picture = pictures_.LoadImageFile(file);
    return picture ? std::make_unique<Still>(std::move(*picture)) : nullptr;
}

}  // namespace vorlane
