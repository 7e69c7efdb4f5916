/// Counts and file of the module.
#include "activex/module.h"

#include "platform/win32/com_error.h"
#include "platform/win32/held_by_host.h"

#include <atomic>
#include <vector>

namespace lumtex {

namespace {

std::atomic<long> locks{0};

} // namespace

ModuleLock::ModuleLock() noexcept {
    ++locks;
}

ModuleLock::~ModuleLock() {
    --locks;
}

bool moduleIsIdle() noexcept {
    return locks == 0 && objectsHeldByHosts() == 0;
}

HINSTANCE moduleInstance() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&locks),
                       &module);
    return module;
}

String modulePath() {
    constexpr std::size_t longestPath = 32768; // units, the closing zero included
    std::vector<wchar_t> path(longestPath);
    const DWORD length = GetModuleFileNameW(moduleInstance(), path.data(), longestPath);
    return String(textOf(path.data(), length));
}

ComRef<ITypeLib> typeLibrary() {
    ComRef<ITypeLib> library;
    demand(LoadTypeLibEx(wide(modulePath()), REGKIND_NONE, library.out()));
    return library;
}

ComRef<ITypeInfo> typeInfoOf(const GUID& guid) {
    ComRef<ITypeInfo> info;
    demand(typeLibrary()->GetTypeInfoOfGuid(guid, info.out()));
    return info;
}

} // namespace lumtex
