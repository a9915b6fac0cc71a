// Microphone: where recorded sound comes from.
#pragma once

#include <functional>
#include <memory>

#include <QAudioFormat>
#include <QObject>

class QIODevice;

namespace vorlane::editor {

class Microphone : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual QAudioFormat format() const = 0;
    // Pours what is heard into there, until stop() or until it ends by itself.
    virtual void start(QIODevice& to) = 0;
    virtual void stop() = 0;

Q_SIGNALS:
    // By itself.
    void ended();
};

using MakeMicrophone = std::function<std::unique_ptr<Microphone>()>;

// The one that the system is set to; none when there is none.
std::unique_ptr<Microphone> SystemMicrophone();

}  // namespace vorlane::editor
