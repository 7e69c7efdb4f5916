// The smallest program with a list: a window, five rows, and a click that is heard. In this folder:
//
// clang-format off
//   x86_64-w64-mingw32-g++ -std=c++17 -mwindows -static -I../../include minimal.cpp -o minimal.exe -lole32 -loleaut32 -luuid
//   cl /std:c++17 /EHsc /I..\..\include minimal.cpp /link /subsystem:windows user32.lib ole32.lib oleaut32.lib uuid.lib
// clang-format on
#include "LumtexListView.hpp"

using namespace LumtexListView;

template <class Function>
Function fromAtl(const char* name) {
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"atl.dll"), name)));
}

struct Events : lmListViewEvents {
    explicit Events(HWND itsWindow) : window(itsWindow) {}
    void ItemClick(long Row, long) override { // rows and columns count from 1, here as in every call
        SetWindowTextW(window, (L"Row " + std::to_wstring(Row)).c_str());
    }
    HWND window;
};

void show() {
    fromAtl<BOOL(WINAPI*)()>("AtlAxWinInit")(); // the container that every Windows has
    HWND window = CreateWindowW(
        L"AtlAxWin", L"", WS_OVERLAPPEDWINDOW, 100, 100, 360, 200, nullptr, nullptr, nullptr, nullptr);
    lmListView list = lmListView::make();
    loadUsualSettings(list.face()); // from then on the wheel turns it
    Ref<IUnknown> container;
    const auto attach = fromAtl<HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**)>("AtlAxAttachControl");
    demand(attach(list.face(), window, container.place()), "AtlAxAttachControl");
    list.ColumnsAdd(L"City", nullptr, nullptr, nullptr, cColumnLeft, 2400); // twips: 15 a pixel
    list.ColumnsAdd(L"Country", nullptr, nullptr, nullptr, cColumnLeft, 2400);
    for (auto row : {L"Lisbon,Portugal", L"Oslo,Norway", L"Quito,Ecuador", L"Hanoi,Vietnam", L"Lima,Peru"})
        list.RowsAdd(-1, L",", row); // -1: behind the last one
    Events events(window);
    const Connection connection(list, events); // ends before the handlers do
    SetWindowTextW(window, L"Cities");
    ShowWindow(window, SW_SHOW);
    for (MSG message; IsWindow(window) && GetMessageW(&message, nullptr, 0, 0) > 0;) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    OleInitialize(nullptr);
    try {
        show();
    } catch (const Failure& failure) {
        MessageBoxA(nullptr, failure.what(), "Cities", MB_OK);
        return 1;
    }
    OleUninitialize();
    return 0;
}
