#include "platform/qt/retiredplayer.h"

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QObject>

namespace vorlane {

void RetirePlayer(QMediaPlayer* player, QAudioOutput* output) {
    player->disconnect();
    output->disconnect();
    output->setMuted(true);
    auto* both = new QObject;  // the output goes first, as the player wants it
    output->setParent(both);
    player->setParent(both);
    const auto end = [player, both] {
        if (player->mediaStatus() == QMediaPlayer::LoadingMedia) return;
        player->disconnect();
        player->stop();
        both->deleteLater();
    };
    QObject::connect(player, &QMediaPlayer::mediaStatusChanged, both, end, Qt::QueuedConnection);
    QMetaObject::invokeMethod(both, end, Qt::QueuedConnection);
}

}  // namespace vorlane
