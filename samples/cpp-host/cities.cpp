// A window with a list in it: how a host in C++ places the control, fills it, and hears of its events.
//
// The container is the one that every Windows has, AtlAxWin of atl.dll. Nothing needs to be registered: the
// manifest beside the program names the component. LumtexListView.hpp, which tasks.cpp uses, is shorter to
// write; this is what lies below it. In this folder, with one compiler or another:
//
// clang-format off
//   x86_64-w64-mingw32-g++ -std=c++17 -mwindows -static -I../../include cities.cpp -o cities.exe -lole32 -loleaut32 -luuid
//   cl /std:c++17 /EHsc /I..\..\include cities.cpp /link /subsystem:windows user32.lib ole32.lib oleaut32.lib uuid.lib
//   clang-cl /std:c++17 /EHsc /I..\..\include cities.cpp /link /subsystem:windows user32.lib ole32.lib oleaut32.lib uuid.lib
// clang-format on
#include "LumtexListView.h"

#include <string>

namespace {

using namespace LumtexListView;

/// A text for the length of a call.
class Text {
  public:
    explicit Text(const wchar_t* text) : text_(SysAllocString(text)) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { SysFreeString(text_); }

    operator BSTR() const { return text_; }
    operator VARIANT() const {
        VARIANT value;
        value.vt = VT_BSTR;
        value.bstrVal = text_;
        return value;
    }

  private:
    BSTR text_;
};

/// What the list tells. Its numbers and arguments stand at the end of LumtexListView.h.
class Events final : public IDispatch {
  public:
    explicit Events(HWND window) : window_(window) {}
    virtual ~Events() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == DIID_lmListViewEvents;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    // The window outlives the control, and this object lives as long as the window.
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE
    Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override {
        // Arguments come last to first.
        const auto argument = [&](UINT number) -> const VARIANT& {
            return parameters->rgvarg[parameters->cArgs - 1 - number];
        };
        if (event == events::ItemClick) {
            const std::wstring title = L"Row " + std::to_wstring(argument(0).lVal) + L", column " +
                                       std::to_wstring(argument(1).lVal);
            SetWindowTextW(window_, title.c_str());
        } else if (event == events::ItemCheck && argument(0).lVal == 1) {
            *argument(3).pboolVal = VARIANT_TRUE; // the first city keeps its mark as it is
        }
        return S_OK;
    }

  private:
    HWND window_;
};

VARIANT number(long value) {
    VARIANT result;
    result.vt = VT_I4;
    result.lVal = value;
    return result;
}

void fill(_lmListView& list) {
    list.put_AutoRedraw(VARIANT_FALSE);
    list.put_MultiSelect(VARIANT_TRUE);
    list.put_GridLines(VARIANT_TRUE);
    list.put_RowsDynamic(VARIANT_FALSE); // rows of one height, and a scroll bar only where they need it
    list.put_RowHeight(300);             // twips
    list.put_Style(cCheckBoxes);
    for (const wchar_t* heading : {L"City", L"Country"})
        list.ColumnsAdd(Text(heading),
                        nullptr,
                        nullptr,
                        nullptr,
                        cColumnLeft,
                        2400, // twips
                        VARIANT_TRUE,
                        0,
                        Text(L""),
                        Text(L""),
                        0,
                        0);
    list.put_ColumnCheckBoxes(number(1), VARIANT_TRUE);
    for (const wchar_t* row : {L"Lisbon,Portugal", L"Oslo,Norway", L"Quito,Ecuador", L"Hanoi,Vietnam"}) {
        VARIANT atTheEnd = number(-1);
        list.RowsAdd(&atTheEnd, Text(L","), Text(row));
    }
    list.put_AutoRedraw(VARIANT_TRUE);
    list.Redraw();
}

/// The container, by its names in atl.dll.
struct Container {
    HMODULE library = LoadLibraryW(L"atl.dll");

    template <class F>
    F function(const char* name) const {
        return reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    }
    bool start() const {
        const auto initialise = function<BOOL(WINAPI*)()>("AtlAxWinInit");
        return initialise != nullptr && initialise() != FALSE;
    }
    /// The control in the container's window; the caller releases it. None where it could not be made.
    _lmListView* listIn(HWND host) const {
        const auto controlOf = function<HRESULT(WINAPI*)(HWND, IUnknown**)>("AtlAxGetControl");
        IUnknown* control = nullptr;
        if (host == nullptr || controlOf == nullptr || FAILED(controlOf(host, &control)) ||
            control == nullptr)
            return nullptr;
        void* list = nullptr;
        control->QueryInterface(IID__lmListView, &list);
        control->Release();
        return static_cast<_lmListView*>(list);
    }
};

LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wide, LPARAM longer) {
    switch (message) {
    case WM_SIZE:
        MoveWindow(GetWindow(window, GW_CHILD), 0, 0, LOWORD(longer), HIWORD(longer), TRUE);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wide, longer);
    }
}

/// Connects the sink and returns the place where it is connected; none where the control has no events.
IConnectionPoint* connect(_lmListView& list, Events& sink, DWORD& cookie) {
    void* all = nullptr;
    if (FAILED(list.QueryInterface(IID_IConnectionPointContainer, &all)))
        return nullptr;
    auto* container = static_cast<IConnectionPointContainer*>(all);
    IConnectionPoint* point = nullptr;
    container->FindConnectionPoint(DIID_lmListViewEvents, &point);
    container->Release();
    if (point != nullptr)
        point->Advise(&sink, &cookie);
    return point;
}

void runMessages(HWND host) {
    constexpr UINT forwardMessage = 0x37F; // WM_FORWARDMSG: the container offers keys to the control
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (SendMessageW(host, forwardMessage, 0, reinterpret_cast<LPARAM>(&message)) != 0)
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

int show(HINSTANCE instance) {
    const Container container;
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"Cities";
    RegisterClassW(&windowClass);
    HWND window = CreateWindowW(
        L"Cities", L"Cities", WS_OVERLAPPEDWINDOW, 100, 100, 360, 240, nullptr, nullptr, instance, nullptr);
    HWND host = nullptr;
    if (container.start())
        host = CreateWindowW(L"AtlAxWin",
                             L"LumtexListView.lmListView",
                             WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                             0,
                             0,
                             340,
                             200,
                             window,
                             nullptr,
                             instance,
                             nullptr);
    _lmListView* list = container.listIn(host);
    if (list == nullptr) {
        MessageBoxW(
            window, L"LumtexListView.ocx is neither registered nor beside this program.", L"Cities", MB_OK);
        return 1;
    }
    Events sink(window);
    DWORD cookie = 0;
    IConnectionPoint* point = connect(*list, sink, cookie);
    fill(*list);
    ShowWindow(window, SW_SHOW);
    SetFocus(host);
    runMessages(host);
    if (point != nullptr) {
        point->Unadvise(cookie);
        point->Release();
    }
    list->Release();
    return 0;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    if (FAILED(OleInitialize(nullptr)))
        return 1;
    const int status = show(instance);
    OleUninitialize();
    return status;
}
