#include "samples/told_program.h"

namespace lumtex::testing {

namespace {

constexpr DWORD listsTurn = 150; // milliseconds, several looks of the list at the mouse

struct Search {
    DWORD process;
    std::wstring windowClass;
    HWND found = nullptr;
};

BOOL CALLBACK compare(HWND window, LPARAM address) {
    Search& search = *reinterpret_cast<Search*>(address);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    wchar_t windowClass[64] = L"";
    GetClassNameW(window, windowClass, 64);
    if (owner != search.process || windowClass != search.windowClass || IsWindowVisible(window) == FALSE)
        return TRUE;
    search.found = window;
    return FALSE;
}

} // namespace

ToldProgram::ToldProgram(const std::wstring& path, const std::wstring& words) {
    std::wstring line = L'"' + path + L"\" " + words;
    STARTUPINFOW how{};
    how.cb = sizeof(how);
    if (CreateProcessW(
            path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &process_) ==
        FALSE)
        throw std::runtime_error("the program does not start");
}

ToldProgram::~ToldProgram() {
    TerminateProcess(process_.hProcess, 99);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

HWND ToldProgram::window(const wchar_t* windowClass) const {
    Search search{process_.dwProcessId, windowClass};
    until([&] {
        EnumWindows(compare, reinterpret_cast<LPARAM>(&search));
        return search.found != nullptr;
    });
    return search.found;
}

DWORD ToldProgram::exitCode() const {
    DWORD code = 99;
    if (WaitForSingleObject(process_.hProcess, 30000) == WAIT_OBJECT_0)
        GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

std::wstring wholeTitle(HWND window) {
    std::wstring title(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    title.resize(
        static_cast<std::size_t>(GetWindowTextW(window, title.data(), static_cast<int>(title.size()))));
    return title;
}

HWND listIn(HWND window) {
    return GetWindow(GetWindow(window, GW_CHILD), GW_CHILD);
}

void ListUser::click(LONG x, LONG y) {
    goTo(x, y);
    hands_.press(leftButton, 0);
    Sleep(listsTurn);
    hands_.release(leftButton, 0);
    Sleep(listsTurn);
}

void ListUser::doubleClick(LONG x, LONG y) {
    // Another program asks at its own time what makes two presses one.
    constexpr UINT usualWidth = 4;
    SystemParametersInfoW(SPI_SETDOUBLECLKWIDTH, usualWidth, nullptr, 0);
    click(x, y);
    hands_.press(leftButton, 0);
    Sleep(listsTurn);
    hands_.release(leftButton, 0);
    Sleep(listsTurn);
    SystemParametersInfoW(SPI_SETDOUBLECLKWIDTH, 0, nullptr, 0);
}

void ListUser::press(Integer key) {
    hands_.keyDown(key);
    hands_.keyUp(key);
    Sleep(listsTurn);
}

void ListUser::wheel(Long rotation) {
    hands_.wheel(rotation, 0);
    Sleep(listsTurn);
}

COLORREF ListUser::color(LONG x, LONG y) const {
    const POINT point = onScreen(x, y);
    HDC screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, point.x, point.y);
    ReleaseDC(nullptr, screen);
    return color;
}

bool ListUser::shows(COLORREF wanted) const {
    RECT inside{};
    GetClientRect(list_, &inside);
    const POINT corner = onScreen(0, 0);
    HDC screen = GetDC(nullptr);
    HDC copy = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, inside.right, inside.bottom);
    HGDIOBJ before = SelectObject(copy, bitmap);
    BitBlt(copy, 0, 0, inside.right, inside.bottom, screen, corner.x, corner.y, SRCCOPY);
    bool found = false;
    for (LONG y = 0; y < inside.bottom && !found; ++y)
        for (LONG x = 0; x < inside.right && !found; ++x)
            found = GetPixel(copy, x, y) == wanted;
    SelectObject(copy, before);
    DeleteObject(bitmap);
    DeleteDC(copy);
    ReleaseDC(nullptr, screen);
    return found;
}

void ListUser::goTo(LONG x, LONG y) {
    hands_.move(onScreen(x + 1, y), 0);
    hands_.move(onScreen(x, y), 0);
    Sleep(listsTurn);
}

POINT ListUser::onScreen(LONG x, LONG y) const {
    POINT point{x, y};
    ClientToScreen(list_, &point);
    return point;
}

} // namespace lumtex::testing
