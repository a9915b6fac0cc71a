#include "editor/showplayer.h"

#include <utility>

#include <QScreen>

namespace vorlane::editor {

ShowPlayer::ShowPlayer(ThumbnailDecoder decoder, const Soundtrack::MakeChannel& makeChannel, QObject* parent)
    : QObject(parent), soundtrack_(makeChannel), window_(std::move(decoder)) {
    connect(&playback_, &Playback::slideBegan, this, &ShowPlayer::Begin);
    connect(&playback_, &Playback::secondBegan, this, &ShowPlayer::secondBegan);
    connect(&playback_, &Playback::ended, this, &ShowPlayer::End);
    connect(&playback_, &Playback::playingChanged, this, [this](bool playing) {
        soundtrack_.setPaused(!playing);
        window_.setPaused(!playing && playback_.isActive());
    });
    connect(&soundtrack_, &Soundtrack::troubled, this, &ShowPlayer::troubled);
    connect(&soundtrack_, &Soundtrack::troubled, &window_, &PlayerWindow::tell);
    connect(&window_, &PlayerWindow::pauseAsked, &playback_, &Playback::toggle);
    connect(&window_, &PlayerWindow::stepAsked, &playback_, &Playback::step);
    connect(&window_, &PlayerWindow::endAsked, &playback_, &Playback::stop);
}

void ShowPlayer::play(SavedShow show, int first, const QWidget* beside) {
    stop();
    show_ = std::move(show);
    soundtrack_.setSounds(show_.sounds, show_.exposure);
    if (beside != nullptr) window_.setGeometry(beside->screen()->geometry());
    window_.showFullScreen();
    window_.activateWindow();
    playback_.start(first, static_cast<int>(show_.pictures.size()), show_.exposure);
}

void ShowPlayer::Begin(int picture, bool inTurn) {
    window_.present(show_.pictures[picture]);
    if (picture + 1 < show_.pictures.size()) window_.expect(show_.pictures[picture + 1]);
    soundtrack_.begin(picture, inTurn);
}

void ShowPlayer::End(int picture) {
    soundtrack_.stop();
    window_.close();
    Q_EMIT ended(picture);
}

}  // namespace vorlane::editor
