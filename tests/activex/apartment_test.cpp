/// Other threads of the program.
#include "placed_control.h"

#include <functional>

namespace lumtex::testing {
namespace {

struct Job {
    DWORD apartment;
    const std::function<void()>& work;
};

DWORD WINAPI run(void* argument) {
    const Job& job = *static_cast<const Job*>(argument);
    CoInitializeEx(nullptr, job.apartment);
    job.work();
    CoUninitialize();
    return 0;
}

/// Runs `work` on a thread of its own while this one goes on with its messages.
void elsewhere(DWORD apartment, const std::function<void()>& work) {
    Job job{apartment, work};
    HANDLE thread = CreateThread(nullptr, 0, run, &job, 0, nullptr);
    ASSERT_NE(thread, nullptr);
    while (MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
    }
    CloseHandle(thread);
}

class Apartment : public PlacedControl {
  protected:
    /// The list, packed for one other apartment.
    IStream* packed() {
        IStream* stream = nullptr;
        EXPECT_EQ(CoMarshalInterThreadInterfaceInStream(IID_IDispatch, dispatch.get(), &stream), S_OK);
        return stream;
    }
    static win32::ComRef<IDispatch> unpacked(IStream* stream) {
        win32::ComRef<IDispatch> list;
        CoGetInterfaceAndReleaseStream(stream, IID_IDispatch, reinterpret_cast<void**>(list.out()));
        return list;
    }
};

TEST_F(Apartment, CallsOfAnotherOneAreHandedOver) {
    fill(2, {u"a,b"});
    for (const DWORD kind : {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED}) {
        IStream* const stream = packed();
        HRESULT added = E_FAIL;
        Variant text;
        HRESULT assigned = E_FAIL;
        elsewhere(kind, [&] {
            const auto list = unpacked(stream);
            if (!list)
                return;
            added = invoke(list.get(), L"RowsAdd", DISPATCH_METHOD, {Long{-1}, u",", u"far,away"}).result;
            text = invoke(list.get(), L"ItemText", DISPATCH_PROPERTYGET, {Long{1}, Long{2}}).value;
            assigned =
                invoke(list.get(), L"ItemText", DISPATCH_PROPERTYPUT, {Long{1}, Long{1}, u"changed"}).result;
        });
        EXPECT_EQ(added, S_OK);
        EXPECT_EQ(assigned, S_OK);
        EXPECT_EQ(text, Variant(u"b"));
    }
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{3}));
    EXPECT_EQ(get(L"ItemText", {Long{1}, Long{1}}), Variant(u"changed"));
}

TEST_F(Apartment, DirectCallsFromAnotherThreadAreRefusedOnEachInterface) {
    const auto inPlace = control.as<IOleInPlaceObject>();
    const auto active = control.as<IOleInPlaceActiveObject>();
    const auto oleControl = control.as<IOleControl>();
    const auto view = control.as<IViewObject2>();
    const auto data = control.as<IDataObject>();
    const auto bag = control.as<IPersistPropertyBag>();
    const auto stream = control.as<IPersistStreamInit>();
    const auto storage = control.as<IPersistStorage>();
    const auto quick = control.as<IQuickActivate>();
    const auto points = control.as<IConnectionPointContainer>();
    MapBag values;
    SIZEL extent{};
    RECT place{0, 0, 10, 10};
    MSG message{};
    FORMATETC format{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    STGMEDIUM medium{};
    QACONTAINER from{};
    from.cbSize = sizeof(from);
    QACONTROL to{};
    to.cbSize = sizeof(to);
    EventSink sink;
    const win32::ComRef<IConnectionPoint> point = eventPointOf(control);
    std::vector<HRESULT> results;
    elsewhere(COINIT_APARTMENTTHREADED, [&] {
        DWORD cookie = 0;
        win32::ComRef<IEnumConnectionPoints> all;
        results = {
            invoke(dispatch.get(), DISPID{9}, DISPATCH_PROPERTYGET, {}).result,
            object->SetClientSite(&container),
            object->DoVerb(OLEIVERB_SHOW, nullptr, &container, 0, nullptr, nullptr),
            object->Close(OLECLOSE_NOSAVE),
            object->SetExtent(DVASPECT_CONTENT, &extent),
            object->GetExtent(DVASPECT_CONTENT, &extent),
            oleControl->OnAmbientPropertyChange(DISPID_UNKNOWN),
            oleControl->FreezeEvents(TRUE),
            inPlace->SetObjectRects(&place, nullptr),
            inPlace->InPlaceDeactivate(),
            inPlace->UIDeactivate(),
            active->TranslateAccelerator(&message),
            view->SetAdvise(DVASPECT_CONTENT, 0, nullptr),
            view->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent),
            data->GetData(&format, &medium),
            bag->InitNew(),
            bag->Load(&values, nullptr),
            bag->Save(&values, TRUE, TRUE),
            stream->InitNew(),
            storage->SaveCompleted(nullptr),
            quick->QuickActivate(&from, &to),
            points->EnumConnectionPoints(all.out()),
            point->Advise(&sink, &cookie),
            point->Unadvise(1),
        };
    });
    for (std::size_t i = 0; i < results.size(); ++i)
        EXPECT_EQ(results[i], RPC_E_WRONG_THREAD) << i;
    EXPECT_EQ(results.size(), 24U);
    EXPECT_EQ(stream->InitNew(), S_OK) << "none of them had an effect";
    EXPECT_EQ(container.references, 1U);
}

/// Notes on which thread it ends.
class Witness final : public IDispatch {
  public:
    explicit Witness(DWORD& thread) : thread_(thread) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        const bool known = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch);
        *found = known ? this : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        if (--references_ == 0)
            thread_ = GetCurrentThreadId();
        return references_;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE
    Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return DISP_E_MEMBERNOTFOUND;
    }

  private:
    DWORD& thread_;
    ULONG references_ = 1;
};

TEST_F(Apartment, TheEndComesOnTheControlsOwnThreadWhoeverLetsGoLast) {
    for (int round = 0; round < 20; ++round) {
        DWORD endedOn = 0;
        Witness witness(endedOn);
        win32::ComRef<IUnknown> made = component.make("lmListView");
        IUnknown* const list = made.get();
        list->AddRef();
        made = {};
        {
            const win32::ComRef<IDispatch> other = win32::ComRef<IUnknown>(list).as<IDispatch>();
            ASSERT_TRUE(other);
            invoke(other.get(), L"ColumnsAdd", DISPATCH_METHOD, {u"a"});
            invoke(other.get(), L"RowsAdd", DISPATCH_METHOD, {Long{-1}, u",", u"x"});
            invoke(other.get(), L"ItemForeColor", DISPATCH_PROPERTYPUT, {Long{1}, Long{1}, Long{round + 77}});
            VARIANT arguments[3]{};
            arguments[0].vt = VT_DISPATCH;
            arguments[0].pdispVal = &witness;
            arguments[1].vt = VT_I4;
            arguments[1].lVal = 1;
            arguments[2] = arguments[1];
            DISPID put = DISPID_PROPERTYPUT;
            DISPPARAMS parameters{arguments, &put, 3, 1};
            ASSERT_EQ(other->Invoke(idOf(other.get(), L"ItemObject"),
                                    IID_NULL,
                                    LOCALE_USER_DEFAULT,
                                    DISPATCH_PROPERTYPUTREF,
                                    &parameters,
                                    nullptr,
                                    nullptr,
                                    nullptr),
                      S_OK);
        }
        witness.Release();
        ASSERT_EQ(endedOn, 0U);
        ULONG left = 1;
        elsewhere(COINIT_MULTITHREADED, [&] { left = list->Release(); });
        EXPECT_EQ(left, 0U);
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
        EXPECT_EQ(endedOn, GetCurrentThreadId());
    }
}

} // namespace
} // namespace lumtex::testing
