#include "activex/uia_library.h"

#include <optional>

namespace lumtex::win32 {

namespace {

template <class Function>
bool find(HMODULE library, const char* name, Function& found) {
    found = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    return found != nullptr;
}

std::optional<UiaLibrary> loaded() {
    const HMODULE library = LoadLibraryExW(L"uiautomationcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    UiaLibrary found{};
    const bool complete =
        library != nullptr && find(library, "UiaReturnRawElementProvider", found.returnProvider) &&
        find(library, "UiaHostProviderFromHwnd", found.hostProvider) &&
        find(library, "UiaClientsAreListening", found.clientsAreListening) &&
        find(library, "UiaRaiseAutomationEvent", found.raiseEvent) &&
        find(library, "UiaRaiseAutomationPropertyChangedEvent", found.raisePropertyChange) &&
        find(library, "UiaRaiseStructureChangedEvent", found.raiseStructureChange);
    return complete ? std::optional(found) : std::nullopt;
}

} // namespace

const UiaLibrary* systemsUiaLibrary() {
    static const std::optional<UiaLibrary> library = loaded();
    return library ? &*library : nullptr;
}

} // namespace lumtex::win32
