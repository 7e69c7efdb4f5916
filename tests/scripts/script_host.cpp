/// The engine of a language, and the site that it talks to.
#include "scripts/script_host.h"

#include "values/runtime_error.h"
#include "values/text.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/object_bridge.h"
#include "worlds/win32/variant_bridge.h"

namespace lumtex::testing {

namespace {

std::string describe(int line, int column, const String& text) {
    return "line " + std::to_string(line) + ", column " + std::to_string(column) + ": " + toUtf8(text);
}

const wchar_t* programIdOf(ScriptLanguage language) {
    return language == ScriptLanguage::vbScript ? L"VBScript" : L"JScript";
}

ScriptFailure failureFrom(IActiveScriptError& error) {
    win32::CallDetails details;
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    error.GetExceptionInfo(details.out());
    error.GetSourcePosition(&context, &line, &column);
    const Long number = win32::numberOfResult(details.get().scode);
    String text(win32::viewBSTR(details.get().bstrDescription));
    // Engines leave the text out where a call was refused.
    if (text.empty())
        text = errorDescription(number);
    return {number, static_cast<int>(line) + 1, static_cast<int>(column) + 1, text};
}

} // namespace

ScriptFailure::ScriptFailure(Long errorNumber, int atLine, int atColumn, const String& told)
    : std::runtime_error(describe(atLine, atColumn, told)), number(errorNumber), line(atLine),
      column(atColumn), text(told) {}

/// Lives as long as the host, whatever the engine thinks.
class ScriptHost::Site final : public IActiveScriptSite {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        *found = nullptr;
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, __uuidof(IActiveScriptSite)))
            return E_NOINTERFACE;
        *found = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetLCID(LCID* locale) override {
        *locale = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name,
                                          DWORD what,
                                          IUnknown** object,
                                          ITypeInfo** type) override {
        if (type != nullptr)
            *type = nullptr;
        const auto found = items.find(String(win32::textOf(name)));
        if (found == items.end() || (what & SCRIPTINFO_IUNKNOWN) == 0)
            return TYPE_E_ELEMENTNOTFOUND;
        *object = win32::ComRef<IDispatch>(found->second).detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR* /*version*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT* /*result*/,
                                                const EXCEPINFO* /*details*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE /*state*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override {
        failures.push_back(failureFrom(*error));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

    std::map<String, win32::ComRef<IDispatch>> items;
    std::vector<ScriptFailure> failures;
};

ScriptHost::ScriptHost(ScriptLanguage language) : site_(std::make_unique<Site>()) {
    win32::demand(CoInitialize(nullptr));
    CLSID classId{};
    win32::demand(CLSIDFromProgID(programIdOf(language), &classId));
    void* made = nullptr;
    win32::demand(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript), &made));
    script_ = win32::ComRef<IActiveScript>::adopting(static_cast<IActiveScript*>(made));
    parse_ = script_.as<IActiveScriptParse>();
    win32::demand(parse_->InitNew());
    win32::demand(script_->SetScriptSite(site_.get()));
    win32::demand(script_->SetScriptState(SCRIPTSTATE_STARTED));
}

ScriptHost::~ScriptHost() {
    script_->Close();
    parse_ = {};
    script_ = {};
    site_.reset();
    CoUninitialize();
}

void ScriptHost::add(StringView name, const ObjectRef& object) {
    add(name, win32::toIDispatch(object));
}

void ScriptHost::add(StringView name, win32::ComRef<IDispatch> object) {
    const String item(name);
    site_->items[item] = std::move(object);
    win32::demand(script_->AddNamedItem(win32::wide(item), SCRIPTITEM_ISVISIBLE));
}

void ScriptHost::run(StringView source) {
    site_->failures.clear();
    win32::CallDetails details;
    const String text(source);
    const HRESULT result = parse_->ParseScriptText(
        win32::wide(text), nullptr, nullptr, nullptr, 0, 0, SCRIPTTEXT_ISVISIBLE, nullptr, details.out());
    if (FAILED(result) && !site_->failures.empty())
        throw ScriptFailure(site_->failures.back());
    win32::demand(result);
}

win32::ComRef<IDispatch> ScriptHost::dispatch() const {
    win32::ComRef<IDispatch> dispatch;
    win32::demand(script_->GetScriptDispatch(nullptr, dispatch.out()));
    return dispatch;
}

ObjectRef ScriptHost::object() const {
    return win32::objectFrom(dispatch().get());
}

const std::vector<ScriptFailure>& ScriptHost::failures() const {
    return site_->failures;
}

} // namespace lumtex::testing
