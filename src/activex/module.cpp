/// File and type library of the module.
#include "activex/module.h"

#include "worlds/win32/com_error.h"

#include <vector>

namespace lumtex::win32 {

namespace {

/// Something of the module that has an address.
const char inside = 0;

} // namespace

HINSTANCE moduleInstance() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&inside),
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

} // namespace lumtex::win32
