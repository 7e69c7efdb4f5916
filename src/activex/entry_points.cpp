/// What the system calls in the component.
#include "activex/class_factory.h"
#include "activex/module.h"
#include "activex/registration.h"
#include "worlds/win32/module_lock.h"

using namespace lumtex::win32;

extern "C" {

HRESULT WINAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** found) {
    return classFactory(classId, iid, found);
}

HRESULT WINAPI DllCanUnloadNow() {
    return moduleLocks() == 0 ? S_OK : S_FALSE;
}

HRESULT WINAPI DllRegisterServer() {
    return registerComponent(Registry::machine);
}

HRESULT WINAPI DllUnregisterServer() {
    return unregisterComponent(Registry::machine);
}

/// `arguments` "user" stands for the registry of the user alone. Not declared by the system's headers.
HRESULT WINAPI DllInstall(BOOL install, LPCWSTR arguments);
HRESULT WINAPI DllInstall(BOOL install, LPCWSTR arguments) {
    const bool forUser =
        arguments != nullptr && CompareStringOrdinal(arguments, -1, L"user", -1, TRUE) == CSTR_EQUAL;
    const Registry registry = forUser ? Registry::user : Registry::machine;
    return install != FALSE ? registerComponent(registry) : unregisterComponent(registry);
}
}
