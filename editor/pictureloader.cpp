#include "editor/pictureloader.h"

#include <utility>

#include <QFileInfo>

namespace vorlane::editor {

namespace {

ReadPicture PictureFrom(const QString& path, const ThumbnailDecoded& decoded) {
    using State = ReadPicture::State;
    switch (decoded.state) {
        case ThumbnailDecoded::State::Fine:
            return {State::Fine, decoded.thumbnail.image};
        case ThumbnailDecoded::State::Broken:
            return {State::Damaged};
        case ThumbnailDecoded::State::Unreadable:
            return {QFileInfo::exists(path) ? State::Unreadable : State::Missing};
    }
    return {};
}

}  // namespace

PictureLoader::PictureLoader(ThumbnailDecoder decoder, QObject* parent)
    : QObject(parent), decoder_(std::move(decoder)) {
    pool_.setMaxThreadCount(2);
}

PictureLoader::~PictureLoader() {
    pool_.clear();
    pool_.waitForDone();
}

void PictureLoader::want(const QString& path, int edge) {
    const bool known = expected_.Is(path, edge);
    wanted_ = known ? std::exchange(expected_, {}) : Known{path, edge};
    if (!known) {
        pool_.clear();  // of what nobody waits for any more
        expected_ = {};
        return Read(path, edge);
    }
    if (wanted_.read) Q_EMIT loaded(path, wanted_.picture);
}

void PictureLoader::expect(const QString& path, int edge) {
    if (expected_.Is(path, edge)) return;
    expected_ = {path, edge};
    Read(path, edge);
}

void PictureLoader::forget() {
    pool_.clear();
    wanted_ = expected_ = {};
}

// The pool is done before this ends, so this is there to be called.
void PictureLoader::Read(const QString& path, int edge) {
    pool_.start([this, path, edge, decoder = decoder_] {
        const ReadPicture picture = PictureFrom(path, decoder(path, edge));
        QMetaObject::invokeMethod(
            this, [this, path, edge, picture] { Done(path, edge, picture); }, Qt::QueuedConnection);
    });
}

void PictureLoader::Done(const QString& path, int edge, const ReadPicture& picture) {
    for (Known* known : {&wanted_, &expected_}) {
        if (!known->Is(path, edge) || known->read) continue;
        known->picture = picture;
        known->read = true;
        if (known == &wanted_) Q_EMIT loaded(path, picture);
    }
}

}  // namespace vorlane::editor
