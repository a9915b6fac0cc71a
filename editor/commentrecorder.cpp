#include "editor/commentrecorder.h"

#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QPointer>

namespace vorlane::editor {

CommentRecorder::CommentRecorder(QObject* parent) : QObject(parent) {
    connect(&second_, &QTimer::timeout, this, &CommentRecorder::CountSecond);
}

CommentRecorder::~CommentRecorder() {
    stop();
}

QString CommentRecorder::freeName(const QString& folder, const QString& stem) {
    for (int number = 1;; ++number) {
        const QString path = QDir(folder).filePath(QStringLiteral("%1 %2.wav").arg(stem).arg(number));
        const QFileInfo file(path);
        if (!file.exists() && !file.isSymLink()) return path;
    }
}

QString CommentRecorder::start(const QString& path) {
    stop();
    auto microphone = make_();
    if (!microphone) return tr("Aucun microphone n'est branché");
    auto file = std::make_unique<WaveFile>(path, microphone->format());
    if (!file->begin())
        return tr("Impossible d'enregistrer « %1 » : %2").arg(QDir::toNativeSeparators(path), file->failure());
    file_ = std::move(file);
    microphone_ = std::move(microphone);
    // What is under way when its recording stops may come in the middle of the next one.
    const auto end = [this, recording = QPointer(microphone_.get())] {
        if (!recording) return;
        ended_ = true;
        Q_EMIT broken();
    };
    connect(microphone_.get(), &Microphone::ended, this, end, Qt::QueuedConnection);
    ended_ = false;
    seconds_ = 0;
    second_.start(1000);
    microphone_->start(*file_);
    return {};
}

// A microphone doesn't tell of a disk that is full.
void CommentRecorder::CountSecond() {
    if (!file_->failure().isEmpty()) return Q_EMIT broken();
    Q_EMIT secondBegan(++seconds_);
}

Recording CommentRecorder::stop() {
    if (!microphone_) return {};
    second_.stop();
    microphone_->disconnect(this);
    microphone_->stop();
    microphone_.reset();
    const auto file = std::exchange(file_, nullptr);
    const bool whole = file->finish();
    const bool sounds = file->hasSound();
    QString why = ended_ && whole ? tr("le microphone ne répond plus") : file->failure();
    if (why.isEmpty() && sounds) return {file->fileName()};
    if (why.isEmpty()) why = tr("aucun son n'a été capté");
    if (sounds) return {file->fileName(), tr("Le commentaire est incomplet : %1").arg(why)};
    file->remove();
    return {{}, tr("Le commentaire n'a pas pu être enregistré : %1").arg(why)};
}

}  // namespace vorlane::editor
