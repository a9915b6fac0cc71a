// Event: a list of handlers that an owner calls synchronously, in order of connection.
//
// An argument that the host may answer is a reference in the event's signature. During a raise
//   - a handler that connects another one: the newcomer waits for the next raise;
//   - a handler that disconnects itself or another one: what is disconnected is not called any more;
//   - a handler that throws ends the raise: later handlers are not called, the exception reaches the raiser;
//   - a handler may raise the same event again, or destroy the event: the raise goes on over its own handlers.
// One thread. An event without a handler costs one pointer test.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vorlane {

namespace detail {

class HandlerList {
public:
    virtual ~HandlerList() = default;
    virtual void Disconnect(unsigned id) = 0;
    virtual bool Connected(unsigned id) const = 0;
};

}  // namespace detail

// A handle on one connected handler. Copies name the same connection; dropping a handle disconnects nothing.
class Connection {
public:
    Connection() = default;
    Connection(std::weak_ptr<detail::HandlerList> list, unsigned id) : list_(std::move(list)), id_(id) {}

    // Harmless on a connection that is gone.
    void disconnect() {
        if (const auto list = list_.lock()) list->Disconnect(id_);
        list_.reset();
    }

    bool connected() const {
        const auto list = list_.lock();
        return list && list->Connected(id_);
    }

private:
    std::weak_ptr<detail::HandlerList> list_;
    unsigned id_ = 0;
};

// A connection that ends with its owner.
class ScopedConnection {
public:
    ScopedConnection() = default;
    ScopedConnection(Connection connection) : connection_(std::move(connection)) {}  // NOLINT: meant to convert
    ScopedConnection(ScopedConnection&& other) noexcept : connection_(std::exchange(other.connection_, {})) {}
    ScopedConnection& operator=(ScopedConnection&& other) noexcept {
        if (this != &other) {
            connection_.disconnect();
            connection_ = std::exchange(other.connection_, {});
        }
        return *this;
    }
    ScopedConnection(const ScopedConnection&) = delete;
    ScopedConnection& operator=(const ScopedConnection&) = delete;
    ~ScopedConnection() { connection_.disconnect(); }

    bool connected() const { return connection_.connected(); }

private:
    Connection connection_;
};

template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    Connection connect(Handler handler) {
        if (!list_) list_ = std::make_shared<List>();
        const unsigned id = list_->Add(std::move(handler));
        return {list_, id};
    }

    // Whether a raise would call anybody.
    bool connected() const { return list_ && list_->live > 0; }

    // Raises the event.
    void operator()(Args... args) const {
        if (!connected()) return;
        const std::shared_ptr<List> list = list_;
        list->Raise(args...);
    }

private:
    struct Slot {
        unsigned id;
        Handler handler;
        bool connected = true;
    };

    struct List final : detail::HandlerList {
        unsigned Add(Handler handler) {
            entries.push_back(std::make_shared<Slot>(Slot{++lastId, std::move(handler)}));
            ++live;
            return lastId;
        }

        void Disconnect(unsigned id) override {
            for (const auto& slot : entries) {
                if (slot->id == id) live -= std::exchange(slot->connected, false) ? 1 : 0;
            }
            Sweep();
        }

        bool Connected(unsigned id) const override {
            for (const auto& slot : entries) {
                if (slot->id == id) return slot->connected;
            }
            return false;
        }

        void Raise(Args&... args) {
            struct Depth {
                List& list;
                explicit Depth(List& owner) : list(owner) { ++list.raising; }
                ~Depth() {
                    --list.raising;
                    list.Sweep();
                }
            } depth(*this);
            const size_t count = entries.size();
            for (size_t i = 0; i < count; ++i) {
                const std::shared_ptr<Slot> slot = entries[i];  // survives its own disconnection
                if (slot->connected) slot->handler(args...);
            }
        }

        // Forgets disconnected handlers once no raise walks over them, without a need for memory. Each goes when the
        // list no longer holds it, since what a handler holds may come back here as it goes.
        void Sweep() {
            if (raising > 0) return;
            while (static_cast<size_t>(live) != entries.size()) {
                std::stable_partition(entries.begin(), entries.end(), [](const auto& slot) { return slot->connected; });
                while (!entries.empty() && !entries.back()->connected) {
                    const std::shared_ptr<Slot> gone = std::move(entries.back());
                    entries.pop_back();
                }
            }
        }

        std::vector<std::shared_ptr<Slot>> entries;
        unsigned lastId = 0;
        int live = 0;
        int raising = 0;
    };

    std::shared_ptr<List> list_;
};

}  // namespace vorlane
