#include "editor/microphone.h"

#include <QAudioDevice>
#include <QAudioSource>
#include <QMediaDevices>

namespace vorlane::editor {

namespace {

// Speech at the quality of a disc, in one channel where the microphone can.
QAudioFormat FormatOf(const QAudioDevice& device) {
    QAudioFormat format;
    format.setSampleRate(44100);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return device.isFormatSupported(format) ? format : device.preferredFormat();
}

class DeviceMicrophone final : public Microphone {
public:
    explicit DeviceMicrophone(const QAudioDevice& device) : source_(device, FormatOf(device)) {
        const auto look = [this] {
            if (source_.state() == QAudio::StoppedState && source_.error() != QAudio::NoError) Q_EMIT ended();
        };
        connect(&source_, &QAudioSource::stateChanged, this, look, Qt::QueuedConnection);
    }

    QAudioFormat format() const override { return source_.format(); }
    void start(QIODevice& to) override { source_.start(&to); }
    void stop() override { source_.stop(); }

private:
    QAudioSource source_;
};

}  // namespace

std::unique_ptr<Microphone> SystemMicrophone() {
    const QAudioDevice device = QMediaDevices::defaultAudioInput();
    return device.isNull() ? nullptr : std::make_unique<DeviceMicrophone>(device);
}

}  // namespace vorlane::editor
