/// \file
/// One of the system's script languages, for tests that need objects of a real host.
#pragma once

#include "platform/object.h"
#include "platform/runtime_error.h"
#include "platform/win32/com_error.h"
#include "platform/win32/com_ref.h"
#include "platform/win32/object_bridge.h"

#include <memory>

#include <activscp.h>

namespace lumtex::testing {

/// Runs scripts in one global namespace. Throws RuntimeError where the language is missing or a script fails.
class ScriptEngine {
  public:
    /// "VBScript" or "JScript".
    explicit ScriptEngine(const wchar_t* language) {
        demand(CoInitialize(nullptr));
        CLSID classId{};
        demand(CLSIDFromProgID(language, &classId));
        void* made = nullptr;
        demand(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript), &made));
        script_ = ComRef<IActiveScript>::adopting(static_cast<IActiveScript*>(made));
        parse_ = script_.as<Parse>();
        demand(parse_->InitNew());
        demand(script_->SetScriptSite(&site_));
        demand(script_->SetScriptState(SCRIPTSTATE_STARTED));
    }
    ScriptEngine(const ScriptEngine&) = delete;
    ScriptEngine& operator=(const ScriptEngine&) = delete;
    ~ScriptEngine() {
        script_->Close();
        parse_ = {};
        script_ = {};
        CoUninitialize();
    }

    void run(const String& source) {
        EXCEPINFO details{};
        demand(parse_->ParseScriptText(
            wide(source), nullptr, nullptr, nullptr, 0, 1, SCRIPTTEXT_ISVISIBLE, nullptr, &details));
    }

    /// What scripts define at their outermost level.
    ObjectRef object() {
        ComRef<IDispatch> dispatch;
        demand(script_->GetScriptDispatch(nullptr, dispatch.out()));
        return objectFrom(dispatch.get());
    }

  private:
    using Parse = IActiveScriptParse;

    /// Lives as long as the engine, whatever the script thinks.
    class Site final : public IActiveScriptSite {
      public:
        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
            if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, __uuidof(IActiveScriptSite))) {
                *found = nullptr;
                return E_NOINTERFACE;
            }
            *found = this;
            return S_OK;
        }
        ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
        ULONG STDMETHODCALLTYPE Release() override { return 1; }
        HRESULT STDMETHODCALLTYPE GetLCID(LCID* locale) override {
            *locale = LOCALE_USER_DEFAULT;
            return S_OK;
        }
        HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR, DWORD, IUnknown**, ITypeInfo**) override {
            return TYPE_E_ELEMENTNOTFOUND;
        }
        HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override {
            return S_OK;
        }
        HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
        HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError*) override { return S_OK; }
        HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
        HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }
    };

    Site site_;
    ComRef<IActiveScript> script_;
    ComRef<Parse> parse_;
};

} // namespace lumtex::testing
