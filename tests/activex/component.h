/// \file
/// The component as a host gets it: a module that is loaded, factories, late-bound calls.
#pragma once

#include "activex/guid.h"
#include "values/text.h"
#include "windows/box_watch.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/object_bridge.h"
#include "worlds/win32/variant_bridge.h"

#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// The module, loaded from beside the test program. Nothing is registered.
class Component {
  public:
    Component() : module_(LoadLibraryW(L"LumtexListView.ocx")) {
        getClassObject_ = function<GetClassObject>("DllGetClassObject");
        canUnloadNow_ = function<CanUnloadNow>("DllCanUnloadNow");
        install_ = function<Install>("DllInstall");
    }
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    ~Component() { FreeLibrary(module_); }

    HMODULE module() const { return module_; }
    /// None where the module is missing, or does not export the name.
    template <class F>
    F function(const char* name) const {
        return reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

    HRESULT classObject(const GUID& classId, REFIID iid, void** found) const {
        return getClassObject_(classId, iid, found);
    }
    bool canUnload() const { return canUnloadNow_() == S_OK; }
    HRESULT install(bool on) const { return install_(on ? TRUE : FALSE, L"user"); }

    /// A new object of the class; throws RuntimeError where it cannot be made.
    win32::ComRef<IUnknown> make(std::string_view className, IUnknown* outer = nullptr) const {
        win32::ComRef<IClassFactory> factory;
        win32::demand(classObject(
            win32::guidOf(className), IID_IClassFactory, reinterpret_cast<void**>(factory.out())));
        win32::ComRef<IUnknown> object;
        win32::demand(factory->CreateInstance(outer, IID_IUnknown, reinterpret_cast<void**>(object.out())));
        return object;
    }

  private:
    using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
    using CanUnloadNow = HRESULT(WINAPI*)();
    using Install = HRESULT(WINAPI*)(BOOL, LPCWSTR);

    HMODULE module_;
    GetClassObject getClassObject_ = nullptr;
    CanUnloadNow canUnloadNow_ = nullptr;
    Install install_ = nullptr;
};

/// A late-bound call that says what came of it. Arguments in the order of the parameters.
struct Called {
    HRESULT result = E_FAIL;
    Variant value;
    UINT wrongArgument = 99;
};

inline DISPID idOf(IDispatch* object, const wchar_t* name) {
    DISPID id = DISPID_UNKNOWN;
    auto* changeable = const_cast<wchar_t*>(name);
    object->GetIDsOfNames(IID_NULL, &changeable, 1, LOCALE_USER_DEFAULT, &id);
    return id;
}

inline Called invoke(IDispatch* object, DISPID id, WORD kind, std::vector<VARIANT> arguments) {
    std::reverse(arguments.begin(), arguments.end());
    DISPID assigned = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
        parameters.rgdispidNamedArgs = &assigned;
        parameters.cNamedArgs = 1;
    }
    Called called;
    win32::OwnedVARIANT value;
    win32::CallDetails details;
    called.result = object->Invoke(id,
                                   IID_NULL,
                                   LOCALE_USER_DEFAULT,
                                   kind,
                                   &parameters,
                                   value.out(),
                                   details.out(),
                                   &called.wrongArgument);
    called.value = win32::fromVARIANT(value.get());
    return called;
}

/// The same with our own values, which outlive the call.
inline Called
invoke(IDispatch* object, const wchar_t* name, WORD kind, const std::vector<Variant>& arguments = {}) {
    std::vector<win32::OwnedVARIANT> held;
    std::vector<VARIANT> plain;
    for (const Variant& argument : arguments) {
        held.push_back(win32::toVARIANT(argument));
        plain.push_back(held.back().get());
    }
    return invoke(object, idOf(object, name), kind, plain);
}

/// A list without a container, reached as scripts reach it. Reports are silenced.
class ListFixture : public ::testing::Test {
  protected:
    ListFixture() {
        CoInitialize(nullptr);
        silence(true);
    }
    ~ListFixture() override {
        silence(false);
        dispatch = {};
        control = {};
        CoUninitialize();
    }

    Variant get(const wchar_t* name, const std::vector<Variant>& arguments = {}) {
        const Called called = invoke(dispatch.get(), name, DISPATCH_PROPERTYGET, arguments);
        EXPECT_EQ(called.result, S_OK) << toUtf8(win32::textOf(name));
        return called.value;
    }
    HRESULT let(const wchar_t* name, const std::vector<Variant>& argumentsAndValue) {
        return invoke(dispatch.get(), name, DISPATCH_PROPERTYPUT, argumentsAndValue).result;
    }
    Called call(const wchar_t* name, const std::vector<Variant>& arguments = {}) {
        return invoke(dispatch.get(), name, DISPATCH_METHOD, arguments);
    }
    /// Columns of 1500 twips.
    void fill(int columns, std::initializer_list<const char16_t*> rows) {
        for (int i = 0; i < columns; ++i)
            ASSERT_EQ(call(L"ColumnsAdd", {u"column"}).result, S_OK);
        for (const char16_t* texts : rows)
            ASSERT_EQ(call(L"RowsAdd", {Long{-1}, u",", texts}).result, S_OK);
    }

    void silence(bool on) const {
        const win32::ComRef<IUnknown> error = component.make("Error");
        invoke(error.as<IDispatch>().get(), L"SilentError", DISPATCH_PROPERTYPUT, {on});
    }

    BoxWatch watch;
    Component component;
    win32::ComRef<IUnknown> control = component.make("lmListView");
    win32::ComRef<IDispatch> dispatch = control.as<IDispatch>();
};

inline VARIANT referenceTo(VARIANT& value) {
    VARIANT reference;
    VariantInit(&reference);
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &value;
    return reference;
}

} // namespace lumtex::testing
