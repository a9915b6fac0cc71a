// The entry points of the library as an in-process component. They do nothing but forward to the runtime of
// component/runtime.h. While there is none, no class can be had, nothing is in use, and nothing is registered: they
// answer kClassNotAvailable with a null object, kOk, and kNotImplemented. No exception leaves them.
#pragma once

#include "component/runtime.h"

extern "C" {

vorlane::HResult DllGetClassObject(const vorlane::Guid* classId, const vorlane::Guid* interfaceId, void** object);
vorlane::HResult DllCanUnloadNow();
vorlane::HResult DllRegisterServer();
vorlane::HResult DllUnregisterServer();

}  // extern "C"
