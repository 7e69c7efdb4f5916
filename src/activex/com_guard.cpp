#include "activex/com_guard.h"

#include "worlds/win32/com_ref.h"

namespace lumtex::win32 {

HRESULT automationResult(const RuntimeError& error) noexcept {
    switch (static_cast<ErrorNumber>(error.number())) {
    case ErrorNumber::typeMismatch:
    case ErrorNumber::invalidUseOfNull:
    case ErrorNumber::objectVariableNotSet:
        return DISP_E_TYPEMISMATCH;
    case ErrorNumber::overflow:
        return DISP_E_OVERFLOW;
    case ErrorNumber::outOfMemory:
        return E_OUTOFMEMORY;
    case ErrorNumber::objectDoesNotSupportMember:
        return DISP_E_MEMBERNOTFOUND;
    case ErrorNumber::argumentNotOptional:
        return DISP_E_PARAMNOTOPTIONAL;
    case ErrorNumber::wrongNumberOfArguments:
        return DISP_E_BADPARAMCOUNT;
    default:
        return resultOf(error.number());
    }
}

void tellErrorInfo(const RuntimeError& error, const GUID& interfaceId) noexcept {
    ComRef<ICreateErrorInfo> info;
    if (FAILED(CreateErrorInfo(info.out())))
        return;
    info->SetGUID(interfaceId);
    info->SetDescription(const_cast<wchar_t*>(wide(error.description())));
    if (const auto told = info.as<IErrorInfo>())
        SetErrorInfo(0, told.get());
}

} // namespace lumtex::win32
