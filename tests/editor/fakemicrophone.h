// A microphone that a test speaks into, and a disk that is full after so many bytes of a file.
#pragma once

#include "editor/microphone.h"

#include <csignal>
#include <sys/resource.h>

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

// As long as this lives, no file of the program grows beyond that.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &former_);
        const rlimit full{bytes, former_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &former_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*handler_)(int);
    rlimit former_{};
};

}  // namespace vorlane::test
