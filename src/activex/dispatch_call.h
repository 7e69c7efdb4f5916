/// \file
/// Calls by dispatch number over the table of the public interface.
#pragma once

#include "activex/automation_target.h"

namespace lumtex::win32 {

/// The numbers of a member and, behind it, of its parameters by name. DISP_E_UNKNOWNNAME if one is not
/// known, whose number is DISPID_UNKNOWN then.
HRESULT
idsOfNames(const automation::ClassDescription& description, std::span<LPOLESTR> names, std::span<DISPID> ids);

/// What a caller of IDispatch::Invoke handed over. `result`, `details` and `wrongArgument` may be null.
struct DispatchCall {
    DISPID number;
    WORD kind;   ///< a property is also read by a call, and a method also called by a read, as scripts do it
    LCID locale; ///< of the caller, by which typed arguments are converted
    DISPPARAMS* parameters;
    VARIANT* result;
    EXCEPINFO* details;
    UINT* wrongArgument;
};

/// DISP_E_MEMBERNOTFOUND, DISP_E_BADPARAMCOUNT, DISP_E_PARAMNOTOPTIONAL, DISP_E_PARAMNOTFOUND,
/// DISP_E_TYPEMISMATCH, DISP_E_BADVARTYPE and DISP_E_OVERFLOW, E_POINTER for a reference that leads nowhere;
/// all of an argument with its place in the caller's array. By-reference arguments are written back. A
/// search's result is an object with the fields of its record.
HRESULT invokeMember(AutomationTarget& target, const DispatchCall& call) noexcept;

} // namespace lumtex::win32
