/// \file
/// A host's handler of events that a test can look into.
#pragma once

#include "component.h"

#include <functional>
#include <map>

namespace lumtex::testing {

/// Counts itself, yet lives as long as the test holds it.
class EventSink final : public IDispatch {
  public:
    /// What the handler of an event does with its arguments, the first one first.
    using Handler = std::function<void(std::span<VARIANT*> arguments)>;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        *found = nullptr;
        const bool events = IsEqualIID(iid, win32::guidOf("__lmListView"));
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IDispatch) && !events)
            return E_NOINTERFACE;
        *found = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** /*info*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(
        REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/, LCID /*locale*/, DISPID* /*ids*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id,
                                     REFIID /*iid*/,
                                     LCID /*locale*/,
                                     WORD /*kind*/,
                                     DISPPARAMS* parameters,
                                     VARIANT* /*result*/,
                                     EXCEPINFO* /*details*/,
                                     UINT* /*wrongArgument*/) override {
        raised.push_back(id);
        std::vector<VARIANT*> arguments;
        for (UINT i = parameters->cArgs; i > 0; --i)
            arguments.push_back(&parameters->rgvarg[i - 1]);
        if (const auto handler = handlers.find(id); handler != handlers.end())
            handler->second(arguments);
        return S_OK;
    }

    ULONG references = 1;
    std::vector<DISPID> raised;
    std::map<DISPID, Handler> handlers;
};

inline win32::ComRef<IConnectionPoint> eventPointOf(const win32::ComRef<IUnknown>& control) {
    win32::ComRef<IConnectionPoint> point;
    win32::demand(control.as<IConnectionPointContainer>()->FindConnectionPoint(win32::guidOf("__lmListView"),
                                                                               point.out()));
    return point;
}

} // namespace lumtex::testing
