#include "platform/subclass.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace vorlane {
namespace {

class Client final : public ISubclass {
public:
    explicit Client(std::string name, std::string& heard) : name_(std::move(name)), heard_(heard) {}
    int32_t MsgResponse() const override { return 2; }
    void SetMsgResponse(int32_t) override {}
    int32_t WindowProc(Hwnd hWnd, int32_t iMsg, int32_t, int32_t) override {
        heard_ += name_ + std::to_string(hWnd) + ":" + std::to_string(iMsg) + " ";
        if (then) then();
        return 0;
    }
    std::function<void()> then;

private:
    std::string name_;
    std::string& heard_;
};

class MessageClientsTest : public testing::Test {
protected:
    std::string heard;
    MessageClients clients;
    Client a{"a", heard};
    Client b{"b", heard};
};

TEST_F(MessageClientsTest, AMessageReachesThoseThatAreAttachedToItInTheirOrder) {
    clients.Attach(b, 1, WM_SIZE);
    clients.Attach(a, 1, WM_SIZE);
    clients.Attach(a, 1, WM_MOVE);
    clients.Attach(a, 2, WM_SIZE);
    clients.Tell(1, WM_SIZE);
    EXPECT_EQ(heard, "b1:5 a1:5 ");
    clients.Tell(1, WM_MOVING);
    EXPECT_EQ(heard, "b1:5 a1:5 ");
}

TEST_F(MessageClientsTest, AttachingTwiceIsHeardOnceAndDetachingTwiceIsHarmless) {
    clients.Attach(a, 1, WM_SIZE);
    clients.Attach(a, 1, WM_SIZE);
    clients.Tell(1, WM_SIZE);
    EXPECT_EQ(heard, "a1:5 ");
    clients.Detach(a, 1, WM_SIZE);
    clients.Detach(a, 1, WM_SIZE);
    clients.Tell(1, WM_SIZE);
    EXPECT_EQ(heard, "a1:5 ");
    EXPECT_EQ(clients.Count(), 0);
}

TEST_F(MessageClientsTest, AClientMayDetachAndAttachOthersMeanwhile) {
    clients.Attach(a, 1, WM_SIZE);
    clients.Attach(b, 1, WM_SIZE);
    Client late("late", heard);
    a.then = [&] {
        clients.Detach(b, 1, WM_SIZE);
        clients.Attach(late, 1, WM_SIZE);
    };
    clients.Tell(1, WM_SIZE);
    EXPECT_EQ(heard, "a1:5 ");
    clients.Tell(1, WM_SIZE);
    EXPECT_EQ(heard, "a1:5 a1:5 late1:5 ");
}

TEST_F(MessageClientsTest, AClientThatThrowsStopsNobody) {
    clients.Attach(a, 1, WM_SIZE);
    clients.Attach(b, 1, WM_SIZE);
    a.then = [] { throw std::runtime_error("no"); };
    clients.Tell(1, WM_SIZE);
    EXPECT_EQ(heard, "a1:5 b1:5 ");
}

}  // namespace
}  // namespace vorlane
