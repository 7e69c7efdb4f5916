/// \file
/// The system's side of UI Automation, which not every system has.
#pragma once

#include "activex/uia_declarations.h"

namespace lumtex::win32 {

/// Functions of uiautomationcore.dll, all of them there.
struct UiaLibrary {
    LRESULT(WINAPI* returnProvider)(HWND, WPARAM, LPARAM, IRawElementProviderSimple*);
    HRESULT(WINAPI* hostProvider)(HWND, IRawElementProviderSimple**);
    WINBOOL(WINAPI* clientsAreListening)();
    HRESULT(WINAPI* raiseEvent)(IRawElementProviderSimple*, UiaEvent);
    /// The values are the caller's.
    HRESULT(WINAPI* raisePropertyChange)(IRawElementProviderSimple*, PROPERTYID, VARIANT, VARIANT);
    /// The identifier of a child, and how many numbers it has; null and 0 where it is none in particular.
    HRESULT(WINAPI* raiseStructureChange)(IRawElementProviderSimple*, StructureChange, int*, int);
};

/// Loads it with the first call, for good; null where the system lacks it, or one of the functions.
const UiaLibrary* systemsUiaLibrary();

} // namespace lumtex::win32
