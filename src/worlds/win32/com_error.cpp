#include "worlds/win32/com_error.h"

namespace lumtex {

namespace {

struct NumberOfResult {
    HRESULT result;
    Long number;
};

constexpr NumberOfResult numbers[] = {
    {DISP_E_UNKNOWNNAME, objectDoesNotSupportMember},
    {DISP_E_MEMBERNOTFOUND, objectDoesNotSupportMember},
    {DISP_E_UNKNOWNINTERFACE, objectDoesNotSupportMember},
    {DISP_E_TYPEMISMATCH, typeMismatch},
    {DISP_E_BADVARTYPE, typeMismatch},
    {DISP_E_OVERFLOW, overflow},
    {DISP_E_DIVBYZERO, divisionByZero},
    {DISP_E_BADINDEX, subscriptOutOfRange},
    {DISP_E_BADPARAMCOUNT, wrongNumberOfArguments},
    {DISP_E_PARAMNOTOPTIONAL, argumentNotOptional},
    {E_OUTOFMEMORY, outOfMemory},
    {E_INVALIDARG, invalidProcedureCall},
    {E_NOINTERFACE, objectDoesNotSupportMember},
    {E_NOTIMPL, objectDoesNotSupportMember},
    {CLASS_E_CLASSNOTAVAILABLE, cannotCreateObject},
    {REGDB_E_CLASSNOTREG, cannotCreateObject},
    {CO_E_CLASSSTRING, cannotCreateObject},
};

/// The last of the numbers that the facility of controls carries.
constexpr Long lastNumber = 0xFFFF;

} // namespace

Long numberOfResult(HRESULT result) {
    if (HRESULT_FACILITY(result) == FACILITY_CONTROL)
        return HRESULT_CODE(result);
    for (const NumberOfResult& known : numbers) {
        if (known.result == result)
            return known.number;
    }
    return result;
}

HRESULT resultOf(Long errorNumber) {
    if (errorNumber < 1 || errorNumber > lastNumber)
        return FAILED(errorNumber) ? errorNumber : E_FAIL;
    return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, errorNumber);
}

void CallDetails::clear() {
    for (BSTR text : {info_.bstrDescription, info_.bstrSource, info_.bstrHelpFile})
        SysFreeString(text);
    info_ = {};
}

void throwCallFailure(HRESULT result, CallDetails& details) {
    if (result != DISP_E_EXCEPTION)
        throw RuntimeError(numberOfResult(result));
    EXCEPINFO& info = details.get();
    if (info.pfnDeferredFillIn != nullptr)
        info.pfnDeferredFillIn(&info);
    const StringView description = textOf(info.bstrDescription, SysStringLen(info.bstrDescription));
    const Long number = info.wCode != 0 ? Long{info.wCode} : numberOfResult(info.scode);
    throw description.empty() ? RuntimeError(number) : RuntimeError(number, String(description));
}

void demand(HRESULT result) {
    if (FAILED(result))
        throw RuntimeError(numberOfResult(result));
}

} // namespace lumtex
