#include "worlds/win32/com_error.h"

namespace lumtex::win32 {

namespace {

struct NumberOfResult {
    HRESULT result;
    ErrorNumber number;
};

constexpr NumberOfResult numbers[] = {
    {DISP_E_UNKNOWNNAME, ErrorNumber::objectDoesNotSupportMember},
    {DISP_E_MEMBERNOTFOUND, ErrorNumber::objectDoesNotSupportMember},
    {DISP_E_UNKNOWNINTERFACE, ErrorNumber::objectDoesNotSupportMember},
    {DISP_E_TYPEMISMATCH, ErrorNumber::typeMismatch},
    {DISP_E_BADVARTYPE, ErrorNumber::typeMismatch},
    {DISP_E_OVERFLOW, ErrorNumber::overflow},
    {DISP_E_DIVBYZERO, ErrorNumber::divisionByZero},
    {DISP_E_BADINDEX, ErrorNumber::subscriptOutOfRange},
    {DISP_E_BADPARAMCOUNT, ErrorNumber::wrongNumberOfArguments},
    {DISP_E_PARAMNOTOPTIONAL, ErrorNumber::argumentNotOptional},
    {E_OUTOFMEMORY, ErrorNumber::outOfMemory},
    {E_INVALIDARG, ErrorNumber::invalidProcedureCall},
    {E_NOINTERFACE, ErrorNumber::objectDoesNotSupportMember},
    {E_NOTIMPL, ErrorNumber::objectDoesNotSupportMember},
    {CLASS_E_CLASSNOTAVAILABLE, ErrorNumber::cannotCreateObject},
    {REGDB_E_CLASSNOTREG, ErrorNumber::cannotCreateObject},
    {CO_E_CLASSSTRING, ErrorNumber::cannotCreateObject},
};

/// The last of the numbers that the facility of controls carries.
constexpr Long lastNumber = 0xFFFF;

} // namespace

Long numberOfResult(HRESULT result) {
    if (HRESULT_FACILITY(result) == FACILITY_CONTROL)
        return HRESULT_CODE(result);
    for (const NumberOfResult& known : numbers) {
        if (known.result == result)
            return numberOf(known.number);
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

} // namespace lumtex::win32
