#include "component/entrypoints.h"

#include <atomic>

namespace vorlane {

namespace {

std::atomic<ComponentRuntime*> current{nullptr};

// What the runtime answers, or what stands for it while there is none.
template <class Question>
HResult Forward(HResult otherwise, Question&& question) {
    ComponentRuntime* const runtime = current;
    if (runtime == nullptr) return otherwise;
    try {
        return question(*runtime);
    } catch (...) {
        return kUnexpected;
    }
}

}  // namespace

ComponentRuntime* SetComponentRuntime(ComponentRuntime* runtime) {
    return current.exchange(runtime);
}

}  // namespace vorlane

using namespace vorlane;

HResult DllGetClassObject(const Guid* classId, const Guid* interfaceId, void** object) {
    if (object != nullptr) *object = nullptr;
    return Forward(kClassNotAvailable,
                   [&](ComponentRuntime& runtime) { return runtime.GetClassObject(classId, interfaceId, object); });
}

HResult DllCanUnloadNow() {
    return Forward(kOk, [](ComponentRuntime& runtime) { return runtime.CanUnloadNow(); });
}

HResult DllRegisterServer() {
    return Forward(kNotImplemented, [](ComponentRuntime& runtime) { return runtime.RegisterServer(); });
}

HResult DllUnregisterServer() {
    return Forward(kNotImplemented, [](ComponentRuntime& runtime) { return runtime.UnregisterServer(); });
}
