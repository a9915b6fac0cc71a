// ISubclass: who hears of a window's messages by way of the desktop's Windows role, and MessageClients, which keeps
// them for a desktop.
#pragma once

#include "platform/desktop.h"

#include <cstdint>
#include <vector>

namespace vorlane {

// The messages that the desktops tell of.
enum : int32_t {
    WM_MOVE = 3,      // the window's place on the screen has changed
    WM_SIZE = 5,      // its size has changed
    WM_SIZING = 532,  // the user drags its edge; only where the system tells of it apart from WM_SIZE
    WM_MOVING = 534,  // the user drags it; likewise
};

class ISubclass {
public:
    virtual ~ISubclass() = default;

    // When the client hears of a message: 2, behind the window's own handling, which is when the desktops tell it.
    virtual int32_t MsgResponse() const = 0;
    virtual void SetMsgResponse(int32_t response) = 0;
    // wParam and lParam are 0: what they would tell is to be had from the Windows role. Gives the message's result.
    virtual int32_t WindowProc(Hwnd hWnd, int32_t iMsg, int32_t wParam, int32_t lParam) = 0;
};

class MessageClients {
public:
    // Harmless for what is attached already.
    void Attach(ISubclass& client, Hwnd window, int32_t message);
    // Harmless for what isn't attached.
    void Detach(ISubclass& client, Hwnd window, int32_t message);
    // Calls the clients in the order in which they were attached; one may attach and detach meanwhile. No failure
    // leaves it.
    void Tell(Hwnd window, int32_t message) const;
    int32_t Count() const { return static_cast<int32_t>(entries_.size()); }

private:
    struct Entry {
        ISubclass* client;
        Hwnd window;
        int32_t message;
        bool operator==(const Entry&) const = default;
    };

    bool Has(const Entry& entry) const;

    std::vector<Entry> entries_;
};

}  // namespace vorlane
