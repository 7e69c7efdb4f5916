// A list of tasks to tick off, by the classes of LumtexListView.hpp: defaults, texts of the language,
// handlers by name.
//
// In this folder, with one compiler or another:
//
// clang-format off
//   x86_64-w64-mingw32-g++ -std=c++17 -mwindows -static -I../../include tasks.cpp -o tasks.exe -lole32 -loleaut32 -luuid
//   cl /std:c++17 /EHsc /I..\..\include tasks.cpp /link /subsystem:windows user32.lib ole32.lib oleaut32.lib uuid.lib
//   clang-cl /std:c++17 /EHsc /I..\..\include tasks.cpp /link /subsystem:windows user32.lib ole32.lib oleaut32.lib uuid.lib
// clang-format on
//
// Nothing needs to be registered: put LumtexListView.ocx and LumtexListView.manifest beside the program, of
// its width.
#include "LumtexListView.hpp"

#include <string>

namespace {

using namespace LumtexListView;

/// The program's window: it is the handler of its list's events, too.
class Tasks : private lmListViewEvents {
  public:
    Tasks(HWND window, IUnknown* control) : window_(window), list_(control), connection_(list_, *this) {
        list_.letAutoRedraw(false);
        list_.letGridLines(true);
        list_.letRowsDynamic(false);
        list_.letRowHeight(300); // twips
        list_.letStyle(cCheckBoxes);
        list_.ColumnsAdd(L"Task", nullptr, nullptr, nullptr, cColumnLeft, 3000);
        list_.ColumnsAdd(L"Until");
        list_.letColumnCheckBoxes(1, true);
        for (const wchar_t* row : {L"Read the notes,Monday", L"Write a program,Tuesday", L"Ship it,Friday"})
            list_.RowsAdd(-1, L",", row);
        list_.letItemChecked(1, 1, true);
        list_.letAutoRedraw(true);
        list_.Redraw();
        tellHowMany();
    }

  private:
    /// What is read stays read.
    void ItemCheck(long Row, long, bool, bool& Cancel) override { Cancel = Row == 1; }
    void ItemChecked(long, long, bool) override { tellHowMany(); }

    void tellHowMany() {
        const std::wstring title = L"Tasks: " + std::to_wstring(list_.ItemsCheckedCount(1)) + L" of " +
                                   std::to_wstring(list_.RowsCount()) + L" done";
        SetWindowTextW(window_, title.c_str());
    }

    HWND window_;
    lmListView list_;
    Connection connection_; // ends first
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

HWND windowOf(const wchar_t* className, const wchar_t* text, DWORD style, HWND parent) {
    return CreateWindowW(
        className, text, style, 100, 100, 400, 240, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
}

/// The container that every Windows has: a window of its class makes the control that its text names.
Ref<IUnknown> controlIn(HWND host) {
    const auto controlOf = reinterpret_cast<HRESULT(WINAPI*)(HWND, IUnknown**)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"atl.dll"), "AtlAxGetControl")));
    Ref<IUnknown> control;
    demand(controlOf(host, control.place()), "AtlAxGetControl");
    return control;
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

void show() {
    const auto start = reinterpret_cast<BOOL(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"atl.dll"), "AtlAxWinInit")));
    start();
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"Tasks";
    RegisterClassW(&windowClass);
    const HWND window = windowOf(L"Tasks", L"Tasks", WS_OVERLAPPEDWINDOW, nullptr);
    const HWND host =
        windowOf(L"AtlAxWin", L"LumtexListView.lmListView", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, window);
    const Tasks tasks(window, controlIn(host));
    ShowWindow(window, SW_SHOW);
    SetFocus(host);
    runMessages(host);
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    if (FAILED(OleInitialize(nullptr)))
        return 1;
    int status = 0;
    try {
        show();
    } catch (const Failure& failure) {
        MessageBoxA(nullptr, failure.what(), "Tasks", MB_OK);
        status = 1;
    }
    OleUninitialize();
    return status;
}
