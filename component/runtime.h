// The runtime of components: what loads the library as an in-process component, makes the objects of its classes and
// keeps the register of classes. The library has none: who loads it as a component lends it the platform's.
#pragma once

#include <array>
#include <cstdint>

namespace vorlane {

using HResult = int32_t;  // negative: failed

// What the entry points answer while no runtime is there.
inline constexpr HResult kOk = 0;
inline constexpr HResult kNotImplemented = static_cast<HResult>(0x80004001);
inline constexpr HResult kUnexpected = static_cast<HResult>(0x8000FFFF);  // the runtime has thrown
inline constexpr HResult kClassNotAvailable = static_cast<HResult>(0x80040111);

struct Guid {
    uint32_t Data1;
    uint16_t Data2;
    uint16_t Data3;
    std::array<uint8_t, 8> Data4;
};

class ComponentRuntime {
public:
    virtual ~ComponentRuntime() = default;

    virtual HResult GetClassObject(const Guid* classId, const Guid* interfaceId, void** object) = 0;
    // kOk when no object of the library is in use any more.
    virtual HResult CanUnloadNow() = 0;
    virtual HResult RegisterServer() = 0;
    virtual HResult UnregisterServer() = 0;
};

// The runtime of this process from now on, nullptr for none; it must outlive its use here. Returns the former one.
// There is one for the process, as the platform has one register of components; the controls don't know of it.
ComponentRuntime* SetComponentRuntime(ComponentRuntime* runtime);

}  // namespace vorlane
