#include "platform/subclass.h"

#include "platform/failure.h"

#include <algorithm>

namespace vorlane {

bool MessageClients::Has(const Entry& entry) const {
    return std::find(entries_.begin(), entries_.end(), entry) != entries_.end();
}

void MessageClients::Attach(ISubclass& client, Hwnd window, int32_t message) {
    const Entry entry{&client, window, message};
    if (!Has(entry)) entries_.push_back(entry);
}

void MessageClients::Detach(ISubclass& client, Hwnd window, int32_t message) {
    std::erase(entries_, Entry{&client, window, message});
}

void MessageClients::Tell(Hwnd window, int32_t message) const {
    const std::vector<Entry> entries = entries_;
    for (const Entry& entry : entries) {
        if (entry.window != window || entry.message != message || !Has(entry)) continue;
        Attempt([&] { entry.client->WindowProc(window, message, 0, 0); });
    }
}

}  // namespace vorlane
