// CommentRecorder: records what is spoken into the microphone, to a new wave file.
#pragma once

#include "editor/wavefile.h"

#include <memory>

#include <QAudioSource>
#include <QObject>
#include <QTimer>

namespace vorlane::editor {

class CommentRecorder : public QObject {
    Q_OBJECT

public:
    explicit CommentRecorder(QObject* parent = nullptr);
    ~CommentRecorder() override;

    // Whether there is a microphone.
    static bool isPossible();
    // The first of the names "<stem> 1.wav", "<stem> 2.wav" and so on that is free in the folder.
    static QString freeName(const QString& folder, const QString& stem);

    // Gives a sentence for the user when that fails, else an empty text.
    QString start(const QString& path);
    // The file that was recorded; empty when nothing came of it.
    QString stop();
    bool isRunning() const { return source_ != nullptr; }

Q_SIGNALS:
    // Whole seconds since the start, once a second.
    void secondBegan(int second);
    // The microphone has gone, or the disk is full; what came until then is kept.
    void broken();

private:
    std::unique_ptr<WaveFile> file_;
    std::unique_ptr<QAudioSource> source_;
    QTimer second_{this};
    int seconds_ = 0;
};

}  // namespace vorlane::editor
