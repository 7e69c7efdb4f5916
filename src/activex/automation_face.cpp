/// Late-bound calls and type information.
#include "activex/automation_face.h"

#include "activex/dispatch_call.h"
#include "activex/module.h"

namespace lumtex::win32 {

HRESULT AutomationFace::GetTypeInfoCount(UINT* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 1;
    return S_OK;
}

HRESULT AutomationFace::GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) {
    if (info == nullptr)
        return E_POINTER;
    *info = nullptr;
    if (index != 0)
        return DISP_E_BADINDEX;
    return guarded([&] {
        *info = typeInfoOf(interfaceId_).detach();
        return S_OK;
    });
}

HRESULT
AutomationFace::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) {
    if (!IsEqualIID(iid, IID_NULL))
        return DISP_E_UNKNOWNINTERFACE;
    if (names == nullptr || ids == nullptr || count == 0)
        return E_INVALIDARG;
    return guarded([&] { return idsOfNames(target_.description(), {names, count}, {ids, count}); });
}

HRESULT AutomationFace::Invoke(DISPID number,
                               REFIID iid,
                               LCID locale,
                               WORD kind,
                               DISPPARAMS* parameters,
                               VARIANT* result,
                               EXCEPINFO* details,
                               UINT* wrongArgument) {
    if (!IsEqualIID(iid, IID_NULL))
        return DISP_E_UNKNOWNINTERFACE;
    // The object may be let go in the call.
    const ComRef<IUnknown> alive(&outer());
    return invokeMember(target_, {number, kind, locale, parameters, result, details, wrongArgument});
}

const automation::Member& AutomationFace::memberOf(Long number) const {
    const automation::Member* const member = automation::findMember(target_.description(), number);
    if (member == nullptr)
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return *member;
}

HRESULT AutomationFace::told(const RuntimeError& error) const noexcept {
    tellErrorInfo(error, interfaceId_);
    return automationResult(error);
}

} // namespace lumtex::win32
