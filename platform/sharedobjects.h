// SharedObjects: what all controls of a desktop share, one object of a kind. An object is made when it is asked for
// first and ends with the desktop, the youngest one first.
#pragma once

#include <memory>
#include <typeindex>
#include <typeinfo>
#include <utility>
#include <vector>

namespace vorlane {

class SharedObjects {
public:
    SharedObjects() = default;
    ~SharedObjects() { Clear(); }
    SharedObjects(const SharedObjects&) = delete;
    SharedObjects& operator=(const SharedObjects&) = delete;

    // The object of that type; arguments are for its constructor.
    template <class T, class... Args>
    T& Get(Args&&... args) {
        for (const auto& [kind, object] : objects_) {
            if (kind == typeid(T)) return *static_cast<T*>(object.get());
        }
        auto made = std::make_shared<T>(std::forward<Args>(args)...);
        objects_.emplace_back(typeid(T), made);
        return *made;
    }

    // What an object asks for as it ends is made, and ends too.
    void Clear() {
        while (!objects_.empty()) {
            const std::shared_ptr<void> last = std::move(objects_.back().second);
            objects_.pop_back();
        }
    }

private:
    std::vector<std::pair<std::type_index, std::shared_ptr<void>>> objects_;
};

}  // namespace vorlane
