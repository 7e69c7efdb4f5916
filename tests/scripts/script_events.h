/// \file
/// Events of a control on their way to the functions of a script.
#pragma once

#include "values/types.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/windows_api.h"

#include <map>

namespace lumtex::testing {

/// Connects a control to functions named after its events: "list_" and "ItemCheck" make "list_ItemCheck". An
/// event without a function is let go.
///
/// A script that writes into an argument by reference changes the control's, because each of them comes as a
/// reference to a Variant, whatever the control gives: script languages lose what they write through any
/// other.
class ScriptEvents final : public IDispatch {
  public:
    /// `control` raises the events of its class's default source; `script` has the functions. Throws
    /// RuntimeError for an object that raises none.
    ScriptEvents(IUnknown* control, win32::ComRef<IDispatch> script, String prefix);
    ScriptEvents(const ScriptEvents&) = delete;
    ScriptEvents& operator=(const ScriptEvents&) = delete;
    /// Disconnects. The object must not be held by anyone else then.
    ~ScriptEvents();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override { return --references_; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE
    GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number,
                                     REFIID iid,
                                     LCID locale,
                                     WORD kind,
                                     DISPPARAMS* parameters,
                                     VARIANT* result,
                                     EXCEPINFO* details,
                                     UINT* wrongArgument) override;

  private:
    void readNames(IUnknown* control);

    GUID source_{};
    std::map<DISPID, String> names_;
    win32::ComRef<IDispatch> script_;
    String prefix_;
    win32::ComRef<IConnectionPoint> point_;
    DWORD cookie_ = 0;
    ULONG references_ = 1;
};

} // namespace lumtex::testing
