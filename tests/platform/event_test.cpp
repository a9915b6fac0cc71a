#include "platform/event.h"

#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <string>

namespace vorlane {
namespace {

class EventTest : public testing::Test {
protected:
    std::function<void()> Note(char letter) {
        return [this, letter] { log += letter; };
    }
    std::string Raised() {
        log.clear();
        event();
        return log;
    }

    Event<> event;
    std::string log;
};

TEST_F(EventTest, CallsHandlersInTheOrderOfConnection) {
    EXPECT_EQ(Raised(), "");
    event.connect(Note('a'));
    event.connect(Note('b'));
    event.connect(Note('c'));
    EXPECT_EQ(Raised(), "abc");
    EXPECT_EQ(Raised(), "abc");
}

TEST_F(EventTest, KnowsWhetherARaiseWouldCallAnybody) {
    EXPECT_FALSE(event.connected());
    Connection connection = event.connect(Note('a'));
    EXPECT_TRUE(event.connected());
    connection.disconnect();
    EXPECT_FALSE(event.connected());
}

TEST_F(EventTest, ADisconnectedHandlerIsNotCalledAndTheOthersKeepTheirOrder) {
    event.connect(Note('a'));
    Connection middle = event.connect(Note('b'));
    event.connect(Note('c'));
    EXPECT_TRUE(middle.connected());
    middle.disconnect();
    EXPECT_FALSE(middle.connected());
    event.connect(Note('d'));
    EXPECT_EQ(Raised(), "acd");
}

TEST_F(EventTest, CopiesOfAConnectionNameTheSameOne) {
    Connection connection = event.connect(Note('a'));
    Connection copy = connection;
    copy.disconnect();
    EXPECT_FALSE(connection.connected());
    connection.disconnect();
    EXPECT_EQ(Raised(), "");
}

TEST_F(EventTest, DroppingAConnectionDisconnectsNothing) {
    { const Connection dropped = event.connect(Note('a')); }
    EXPECT_EQ(Raised(), "a");
}

TEST_F(EventTest, AnEmptyConnectionIsHarmless) {
    Connection connection;
    EXPECT_FALSE(connection.connected());
    connection.disconnect();
}

TEST_F(EventTest, AScopedConnectionEndsWithItsOwner) {
    {
        const ScopedConnection scoped = event.connect(Note('a'));
        EXPECT_TRUE(scoped.connected());
        EXPECT_EQ(Raised(), "a");
    }
    EXPECT_EQ(Raised(), "");
}

TEST_F(EventTest, AScopedConnectionMoves) {
    ScopedConnection first = event.connect(Note('a'));
    ScopedConnection second = event.connect(Note('b'));
    second = std::move(first);
    EXPECT_EQ(Raised(), "a");
    const ScopedConnection third = std::move(second);
    EXPECT_EQ(Raised(), "a");
    EXPECT_TRUE(third.connected());
}

TEST_F(EventTest, AConnectionMayOutliveItsEvent) {
    auto owned = std::make_unique<Event<>>();
    Connection connection = owned->connect(Note('a'));
    const ScopedConnection scoped = owned->connect(Note('b'));
    owned.reset();
    EXPECT_FALSE(connection.connected());
    connection.disconnect();
}

TEST_F(EventTest, AHandlerConnectedDuringARaiseWaitsForTheNextOne) {
    bool connected = false;
    event.connect([&] {
        log += 'a';
        if (!std::exchange(connected, true)) event.connect(Note('b'));
    });
    EXPECT_EQ(Raised(), "a");
    EXPECT_EQ(Raised(), "ab");
}

TEST_F(EventTest, AHandlerMayDisconnectItself) {
    Connection self;
    self = event.connect([&] {
        log += 'a';
        self.disconnect();
        log += 'A';
    });
    event.connect(Note('b'));
    EXPECT_EQ(Raised(), "aAb");
    EXPECT_EQ(Raised(), "b");
}

TEST_F(EventTest, AHandlerDisconnectedDuringARaiseIsNotCalledAnyMore) {
    Connection later;
    event.connect([&] {
        log += 'a';
        later.disconnect();
    });
    later = event.connect(Note('b'));
    event.connect(Note('c'));
    EXPECT_EQ(Raised(), "ac");
    EXPECT_EQ(Raised(), "ac");
}

TEST_F(EventTest, AHandlerConnectedAndDisconnectedDuringARaiseIsNeverCalled) {
    event.connect([&] {
        log += 'a';
        event.connect(Note('b')).disconnect();
    });
    EXPECT_EQ(Raised(), "a");
    EXPECT_EQ(Raised(), "a");
}

TEST_F(EventTest, AThrowingHandlerEndsTheRaiseAndReachesTheRaiser) {
    event.connect(Note('a'));
    Connection thrower = event.connect([] { throw std::runtime_error("broken"); });
    event.connect(Note('b'));
    EXPECT_THROW(event(), std::runtime_error);
    EXPECT_EQ(log, "a");
    thrower.disconnect();
    EXPECT_EQ(Raised(), "ab");
}

TEST_F(EventTest, AHandlerThatDisconnectsAndThrowsIsGone) {
    Connection self;
    self = event.connect([&] {
        self.disconnect();
        throw std::runtime_error("broken");
    });
    event.connect(Note('a'));
    EXPECT_THROW(event(), std::runtime_error);
    EXPECT_EQ(Raised(), "a");
}

TEST_F(EventTest, AHandlerMayRaiseTheEventAgain) {
    int depth = 0;
    event.connect([&] {
        log += 'a';
        if (++depth < 3) event();
    });
    event.connect(Note('b'));
    EXPECT_EQ(Raised(), "aaabbb");
}

TEST_F(EventTest, AHandlerDisconnectedInAnInnerRaiseIsNotCalledByTheOuterOneEither) {
    Connection last;
    bool inner = false;
    event.connect([&] {
        log += 'a';
        if (std::exchange(inner, true)) return last.disconnect();
        event();
    });
    event.connect(Note('b'));
    last = event.connect(Note('c'));
    EXPECT_EQ(Raised(), "aabb");
}

TEST_F(EventTest, AHandlerConnectedInTheOuterRaiseIsCalledByTheInnerOne) {
    bool inner = false;
    event.connect([&] {
        log += 'a';
        if (std::exchange(inner, true)) return;
        event.connect(Note('b'));
        event();
    });
    EXPECT_EQ(Raised(), "aab");
}

TEST_F(EventTest, AHandlerMayDestroyTheEventAndTheRaiseGoesOn) {
    auto owned = std::make_unique<Event<>>();
    owned->connect([&] {
        owned.reset();
        log += 'a';
    });
    owned->connect(Note('b'));
    (*owned)();
    EXPECT_EQ(log, "ab");
    EXPECT_EQ(owned, nullptr);
}

TEST_F(EventTest, AHandlerDisconnectedAfterTheEventsEndIsNotCalled) {
    auto owned = std::make_unique<Event<>>();
    Connection later;
    owned->connect([&] {
        owned.reset();
        later.disconnect();
    });
    later = owned->connect(Note('b'));
    (*owned)();
    EXPECT_EQ(log, "");
}

TEST_F(EventTest, WhatAHandlerHoldsIsReleasedWithItsConnection) {
    const auto held = std::make_shared<int>(5);
    Connection connection = event.connect([held] {});
    EXPECT_EQ(held.use_count(), 2);
    connection.disconnect();
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(EventTest, WhatAHandlerHoldsLivesUntilItReturns) {
    auto held = std::make_shared<int>(5);
    const std::weak_ptr<int> watch = held;
    Connection self;
    self = event.connect([held = std::move(held), &self, &watch] {
        self.disconnect();
        EXPECT_FALSE(watch.expired());
    });
    event();
    EXPECT_TRUE(watch.expired());
}

TEST_F(EventTest, AHandlersEndMayComeBackToTheEvent) {
    struct Farewell {
        Event<>& event;
        Connection& other;
        explicit Farewell(Event<>& of, Connection& also) : event(of), other(also) {}
        ~Farewell() {
            other.disconnect();
            event();
        }
    };
    Connection other = event.connect(Note('a'));
    event.connect(Note('b'));
    Connection connection = event.connect([farewell = std::make_shared<Farewell>(event, other)] {});
    connection.disconnect();
    EXPECT_EQ(log, "b");
}

TEST_F(EventTest, AHandlersEndMayConnectAnother) {
    struct Heir {
        explicit Heir(std::function<void()> with) : begin(std::move(with)) {}
        ~Heir() { begin(); }
        std::function<void()> begin;
    };
    const auto heir = [&](char letter) {
        return std::make_shared<Heir>([this, letter] { event.connect(Note(letter)); });
    };
    Connection first;
    Connection second;
    event.connect([&] {
        first.disconnect();
        second.disconnect();
    });
    first = event.connect([held = heir('c')] {});
    second = event.connect([held = heir('d')] {});
    event.connect(Note('b'));
    EXPECT_EQ(Raised(), "b");
    EXPECT_EQ(Raised(), "bdc");
}

TEST(EventArguments, ReferencesCarryTheAnswerFromHandlerToHandlerToTheRaiser) {
    Event<int&, const std::string&> event;
    event.connect([](int& answer, const std::string& text) { answer += static_cast<int>(text.size()); });
    event.connect([](int& answer, const std::string&) { answer *= 2; });
    int answer = 1;
    event(answer, "abc");
    EXPECT_EQ(answer, 8);
}

TEST(EventArguments, ValuesAreEachHandlersOwn) {
    Event<std::string> event;
    std::string seen;
    event.connect([](std::string text) { text.clear(); });
    event.connect([&](const std::string& text) { seen = text; });
    event("abc");
    EXPECT_EQ(seen, "abc");
}

}  // namespace
}  // namespace vorlane
