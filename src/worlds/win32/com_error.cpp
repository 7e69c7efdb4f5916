#include "worlds/win32/com_error.h"

#include <utility>

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

String taken(BSTR& text) {
    String copy(textOf(text, SysStringLen(text)));
    SysFreeString(std::exchange(text, nullptr));
    return copy;
}

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

void throwCallFailure(HRESULT result, EXCEPINFO& details) {
    if (result != DISP_E_EXCEPTION)
        throw RuntimeError(numberOfResult(result));
    if (details.pfnDeferredFillIn != nullptr)
        details.pfnDeferredFillIn(&details);
    const String description = taken(details.bstrDescription);
    freeTexts(details);
    const Long number = details.wCode != 0 ? Long{details.wCode} : numberOfResult(details.scode);
    throw description.empty() ? RuntimeError(number) : RuntimeError(number, description);
}

void freeTexts(EXCEPINFO& details) {
    for (BSTR* text : {&details.bstrDescription, &details.bstrSource, &details.bstrHelpFile})
        SysFreeString(std::exchange(*text, nullptr));
}

void demand(HRESULT result) {
    if (FAILED(result))
        throw RuntimeError(numberOfResult(result));
}

} // namespace lumtex
