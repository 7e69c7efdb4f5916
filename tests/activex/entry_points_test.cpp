/// What the system calls in the component.
#include "component.h"

namespace lumtex::testing {
namespace {

struct ComApartment {
    ComApartment() { CoInitialize(nullptr); }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment() { CoUninitialize(); }
};

class EntryPoints : public ::testing::Test {
  protected:
    ComApartment apartment;
    Component component;
};

TEST_F(EntryPoints, AreExportedByName) {
    ASSERT_NE(component.module(), nullptr);
    for (const char* name :
         {"DllGetClassObject", "DllCanUnloadNow", "DllRegisterServer", "DllUnregisterServer", "DllInstall"})
        EXPECT_NE(component.function<void*>(name), nullptr) << name;
}

TEST_F(EntryPoints, MakeEachPublicClass) {
    for (const char* name : {"lmListView", "SpEv", "Error"})
        EXPECT_TRUE(component.make(name).as<IDispatch>()) << name;
}

TEST_F(EntryPoints, KnowNoOtherClass) {
    void* found = &component;
    EXPECT_EQ(component.classObject(IID_IDispatch, IID_IClassFactory, &found), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(component.classObject(win32::guidOf("SpEv"), IID_IClassFactory, nullptr), E_POINTER);
}

/// The host's object around a control: the control's interfaces are its own.
class Outer final : public IUnknown {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        if (!IsEqualIID(iid, IID_IUnknown))
            return inner->QueryInterface(iid, found);
        *found = static_cast<IUnknown*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }

    ULONG references = 1;
    win32::ComRef<IUnknown> inner;
};

TEST_F(EntryPoints, AControlCanLiveInsideTheHostsObject) {
    {
        Outer outer;
        outer.inner = component.make("lmListView", &outer);
        {
            const auto dispatch = win32::queryFor<IDispatch>(static_cast<IUnknown*>(&outer));
            ASSERT_TRUE(dispatch);
            EXPECT_EQ(outer.references, 2U);
            EXPECT_EQ(dispatch.as<IUnknown>().get(), &outer);
            EXPECT_EQ(invoke(dispatch.get(), L"RowsCount", DISPATCH_PROPERTYGET).value, Variant(Long{0}));
        }
        EXPECT_EQ(outer.references, 1U);
    }
    EXPECT_TRUE(component.canUnload());
}

TEST_F(EntryPoints, OnlyTheControlCanLiveInside) {
    Outer outer;
    win32::ComRef<IClassFactory> factory;
    ASSERT_EQ(component.classObject(
                  win32::guidOf("SpEv"), IID_IClassFactory, reinterpret_cast<void**>(factory.out())),
              S_OK);
    void* made = nullptr;
    EXPECT_EQ(factory->CreateInstance(&outer, IID_IUnknown, &made), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(made, nullptr);
}

} // namespace
} // namespace lumtex::testing
