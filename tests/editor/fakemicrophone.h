// A microphone that a test speaks into.
#pragma once

#include "editor/microphone.h"

#include <memory>

#include <QByteArray>
#include <QIODevice>

namespace vorlane::test {

class FakeMicrophone final : public editor::Microphone {
public:
    QAudioFormat format() const override {
        QAudioFormat format;
        format.setSampleRate(100);
        format.setChannelCount(1);
        format.setSampleFormat(QAudioFormat::UInt8);
        return format;
    }
    void start(QIODevice& to) override { to_ = &to; }
    void stop() override { to_ = nullptr; }

    // Gives whether all of it was taken.
    bool Hear(int seconds) { return to_ != nullptr && to_->write(QByteArray(100 * seconds, '\x80')) == 100 * seconds; }
    void Break() { Q_EMIT ended(); }

private:
    QIODevice* to_ = nullptr;
};

// Makes microphones; last is the latest of them.
inline auto FakesOf(FakeMicrophone*& last) {
    return [&last] {
        auto made = std::make_unique<FakeMicrophone>();
        last = made.get();
        return made;
    };
}

}  // namespace vorlane::test
