// A gesture of the user's in front of a real X server, written down first and then played: each step waits for what
// the one before has led to, however long that takes. It goes on inside of nested message loops, as a drag runs one.
#pragma once

#include "tests/xvfb/user.h"

#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <QCursor>
#include <QElapsedTimer>
#include <QTimer>

namespace vorlane::test {

class Gesture {
public:
    using Condition = std::function<bool()>;

    Gesture& PointAt(QPoint place) {
        place_ = place;
        return Add({"mousemove", QString::number(place.x()), QString::number(place.y())}, IsAt(place), "the pointer");
    }
    Gesture& Press() { return Add({"mousedown", "1"}, {}, "the press"); }
    Gesture& Release() { return Add({"mouseup", "1"}, {}, "the release"); }
    Gesture& Key(const QString& key) { return Add({"key", key}, {}, "the key"); }
    // In a straight line, in steps of at most 15 pixels.
    Gesture& GoTo(QPoint place) {
        const QPoint from = place_;
        const QPoint way = place - from;
        const int steps = std::max(1, static_cast<int>(std::ceil(std::hypot(way.x(), way.y()) / kStep)));
        for (int step = 1; step <= steps; ++step) PointAt(from + way * step / steps);
        return *this;
    }
    // Stays about there, as a hand does that is never quite still, until something has come about.
    Gesture& Until(Condition condition, std::string what) {
        steps_.push_back({{}, std::move(condition), std::move(what), true, place_});
        return *this;
    }
    Gesture& Do(std::function<void()> action) {
        return Add(
            {}, [action = std::move(action)] { return action(), true; }, "an action");
    }

    // Whether it came to its end. If not, the button is let go, and the test fails with what was waited for.
    bool Play() {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Tick(); });
        timer.start(kTick);
        const bool ended = QTest::qWaitFor([this] { return next_ >= steps_.size() && IsIdle(); }, kLongest);
        EXPECT_TRUE(ended) << "the gesture never ended";
        return ended && !failed_;
    }

private:
    static constexpr int kTick = 4;      // milliseconds
    static constexpr int kTremble = 60;  // milliseconds
    static constexpr int kLongest = 90000;
    static constexpr double kStep = 15;

    struct Step {
        QStringList command;
        Condition done;
        std::string what;
        bool trembles = false;
        QPoint place;
    };

    static Condition IsAt(QPoint place) {
        return [place] { return QCursor::pos() == place; };
    }
    Gesture& Add(const QStringList& command, Condition done, std::string what) {
        steps_.push_back({command, std::move(done), std::move(what), false, place_});
        return *this;
    }
    bool IsIdle() const { return process_->state() == QProcess::NotRunning; }

    void Tick() {
        if (!IsIdle() || next_ >= steps_.size()) return;
        const Step& step = steps_[next_];
        if (!begun_) return Begin(step);
        if (step.done && !step.done()) {
            if (sinceBegun_.elapsed() > User::kPatience) return Fail(step);
            if (step.trembles && sinceTrembled_.elapsed() > kTremble) Tremble(step.place);
            return;
        }
        begun_ = false;
        ++next_;
    }
    void Begin(const Step& step) {
        begun_ = true;
        sinceBegun_.start();
        sinceTrembled_.start();
        if (!step.command.isEmpty()) process_->start("xdotool", step.command);
    }
    void Tremble(QPoint place) {
        sinceTrembled_.start();
        aside_ = !aside_;
        const QPoint there = place + QPoint(aside_ ? 1 : 0, 0);
        process_->start("xdotool", {"mousemove", QString::number(there.x()), QString::number(there.y())});
    }
    void Fail(const Step& step) {
        ADD_FAILURE() << "never came: " << step.what;
        failed_ = true;
        steps_.resize(next_);
        process_->start("xdotool", {"mouseup", "1"});
    }

    std::vector<Step> steps_;
    size_t next_ = 0;
    QPoint place_;
    bool begun_ = false;
    bool aside_ = false;
    bool failed_ = false;
    QElapsedTimer sinceBegun_;
    QElapsedTimer sinceTrembled_;
    std::unique_ptr<QProcess> process_ = std::make_unique<QProcess>();
};

}  // namespace vorlane::test
