#include "editor/commentrecorder.h"

#include <utility>

#include <QAudioDevice>
#include <QDir>
#include <QFileInfo>
#include <QMediaDevices>

namespace vorlane::editor {

namespace {

// Speech at the quality of a disc, in one channel where the microphone can.
QAudioFormat FormatOf(const QAudioDevice& microphone) {
    QAudioFormat format;
    format.setSampleRate(44100);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return microphone.isFormatSupported(format) ? format : microphone.preferredFormat();
}

}  // namespace

CommentRecorder::CommentRecorder(QObject* parent) : QObject(parent) {
    connect(&second_, &QTimer::timeout, this, [this] { Q_EMIT secondBegan(++seconds_); });
}

CommentRecorder::~CommentRecorder() {
    stop();
}

bool CommentRecorder::isPossible() {
    return !QMediaDevices::defaultAudioInput().isNull();
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
    if (!isPossible()) return tr("Aucun microphone n'est branché");
    const QAudioDevice microphone = QMediaDevices::defaultAudioInput();
    const QAudioFormat format = FormatOf(microphone);
    auto file = std::make_unique<WaveFile>(path, format);
    if (!file->begin())
        return tr("Impossible d'enregistrer « %1 » : %2").arg(QDir::toNativeSeparators(path), file->errorString());
    file_ = std::move(file);
    source_ = std::make_unique<QAudioSource>(microphone, format);
    const auto look = [this] {
        const bool gone = source_ && source_->state() == QAudio::StoppedState && source_->error() != QAudio::NoError;
        if (gone) Q_EMIT broken();
    };
    connect(source_.get(), &QAudioSource::stateChanged, this, look, Qt::QueuedConnection);
    seconds_ = 0;
    second_.start(1000);
    source_->start(file_.get());
    return {};
}

QString CommentRecorder::stop() {
    if (!source_) return {};
    second_.stop();
    source_->disconnect(this);
    source_->stop();
    source_.reset();
    const auto file = std::exchange(file_, nullptr);
    return file->finish() ? file->fileName() : QString();
}

}  // namespace vorlane::editor
