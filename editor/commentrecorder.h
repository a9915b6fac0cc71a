// CommentRecorder: records what is spoken into the microphone, to a new wave file.
#pragma once

#include "editor/microphone.h"
#include "editor/wavefile.h"

#include <memory>

#include <QObject>
#include <QTimer>

namespace vorlane::editor {

// What came of a recording.
struct Recording {
    QString path{};     // empty when there is nothing to be heard
    QString failure{};  // a sentence for the user on why there is less than was spoken, or nothing; else empty
};

class CommentRecorder : public QObject {
    Q_OBJECT

public:
    explicit CommentRecorder(QObject* parent = nullptr);
    ~CommentRecorder() override;

    // At first the system's.
    void setMicrophone(MakeMicrophone make) { make_ = std::move(make); }
    // The first of the names "<stem> 1.wav", "<stem> 2.wav" and so on that is free in the folder.
    static QString freeName(const QString& folder, const QString& stem);

    // Gives a sentence for the user when that fails, else an empty text.
    QString start(const QString& path);
    Recording stop();
    bool isRunning() const { return microphone_ != nullptr; }

Q_SIGNALS:
    // Whole seconds since the start, once a second.
    void secondBegan(int second);
    // The microphone has gone, or the disk is full: nothing more is recorded.
    void broken();

private:
    void CountSecond();

    MakeMicrophone make_ = SystemMicrophone;
    std::unique_ptr<WaveFile> file_;
    std::unique_ptr<Microphone> microphone_;
    QTimer second_{this};
    int seconds_ = 0;
    bool ended_ = false;  // the microphone, by itself
};

}  // namespace vorlane::editor
