/// Events by name.
#include "scripts/script_events.h"

#include "values/text.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/variant_bridge.h"

#include <cstring>
#include <deque>
#include <vector>

#include <ocidl.h>

namespace lumtex::testing {

namespace {

/// An argument as scripts take it. What they write goes back with `takeBack`.
class ScriptArgument {
  public:
    explicit ScriptArgument(VARIANT& given) : given_(given) {
        if (V_ISBYREF(&given))
            win32::demand(VariantCopyInd(held_.out(), &given));
    }

    VARIANT passed() {
        if (!V_ISBYREF(&given_))
            return given_;
        VARIANT reference;
        VariantInit(&reference);
        V_VT(&reference) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&reference) = &held_.get();
        return reference;
    }

    /// What does not convert to the control's type is dropped.
    void takeBack() {
        if (!V_ISBYREF(&given_))
            return;
        if (V_VT(&given_) == (VT_BYREF | VT_VARIANT)) {
            VariantCopy(V_VARIANTREF(&given_), &held_.get());
            return;
        }
        const auto type = static_cast<VARTYPE>(V_VT(&given_) & ~VT_BYREF);
        if (FAILED(VariantChangeType(&held_.get(), &held_.get(), 0, type)))
            return;
        switch (type) {
        case VT_BOOL:
        case VT_I2:
            *V_I2REF(&given_) = V_I2(&held_.get());
            break;
        case VT_I4:
        case VT_R4:
            std::memcpy(V_BYREF(&given_), &V_I4(&held_.get()), sizeof(LONG));
            break;
        case VT_DISPATCH:
            std::swap(*V_DISPATCHREF(&given_), V_DISPATCH(&held_.get()));
            break;
        default:
            break;
        }
    }

  private:
    VARIANT& given_;
    win32::OwnedVARIANT held_;
};

} // namespace

ScriptEvents::ScriptEvents(IUnknown* control, win32::ComRef<IDispatch> script, String prefix)
    : script_(std::move(script)), prefix_(std::move(prefix)) {
    readNames(control);
    const auto points = win32::queryFor<IConnectionPointContainer>(control);
    win32::demand(points ? S_OK : E_NOINTERFACE);
    win32::demand(points->FindConnectionPoint(source_, point_.out()));
    win32::demand(point_->Advise(this, &cookie_));
}

ScriptEvents::~ScriptEvents() {
    point_->Unadvise(cookie_);
}

/// The library of the control's class tells the number of each event.
void ScriptEvents::readNames(IUnknown* control) {
    const auto info = win32::queryFor<IProvideClassInfo2>(control);
    win32::demand(info ? S_OK : E_NOINTERFACE);
    win32::demand(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source_));
    win32::ComRef<ITypeInfo> classInfo;
    win32::demand(info->GetClassInfo(classInfo.out()));
    win32::ComRef<ITypeLib> library;
    UINT index = 0;
    win32::demand(classInfo->GetContainingTypeLib(library.out(), &index));
    win32::ComRef<ITypeInfo> events;
    win32::demand(library->GetTypeInfoOfGuid(source_, events.out()));
    TYPEATTR* attributes = nullptr;
    win32::demand(events->GetTypeAttr(&attributes));
    const UINT count = attributes->cFuncs;
    events->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
        FUNCDESC* function = nullptr;
        win32::demand(events->GetFuncDesc(i, &function));
        const DISPID number = function->memid;
        events->ReleaseFuncDesc(function);
        BSTR name = nullptr;
        UINT found = 0;
        win32::demand(events->GetNames(number, &name, 1, &found));
        names_.emplace(number, String(win32::viewBSTR(name)));
        SysFreeString(name);
    }
}

HRESULT ScriptEvents::QueryInterface(REFIID iid, void** found) {
    *found = nullptr;
    if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IDispatch) && !IsEqualIID(iid, source_))
        return E_NOINTERFACE;
    *found = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

HRESULT ScriptEvents::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

HRESULT ScriptEvents::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) {
    *info = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT
ScriptEvents::GetIDsOfNames(
    REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/, LCID /*locale*/, DISPID* /*ids*/) {
    return DISP_E_UNKNOWNNAME;
}

HRESULT ScriptEvents::Invoke(DISPID number,
                             REFIID /*iid*/,
                             LCID locale,
                             WORD /*kind*/,
                             DISPPARAMS* parameters,
                             VARIANT* /*result*/,
                             EXCEPINFO* /*details*/,
                             UINT* /*wrongArgument*/) {
    const auto event = names_.find(number);
    if (event == names_.end())
        return DISP_E_MEMBERNOTFOUND;
    const String function = prefix_ + event->second;
    auto* name = const_cast<wchar_t*>(win32::wide(function));
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(script_->GetIDsOfNames(IID_NULL, &name, 1, locale, &id)))
        return S_OK;
    std::deque<ScriptArgument> arguments;
    std::vector<VARIANT> passed;
    for (UINT i = 0; i < parameters->cArgs; ++i)
        passed.push_back(arguments.emplace_back(parameters->rgvarg[i]).passed());
    DISPPARAMS forScript{passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
    win32::CallDetails details;
    win32::OwnedVARIANT result;
    // The host has noted a failure already.
    script_->Invoke(id, IID_NULL, locale, DISPATCH_METHOD, &forScript, result.out(), details.out(), nullptr);
    for (ScriptArgument& argument : arguments)
        argument.takeBack();
    return S_OK;
}

} // namespace lumtex::testing
