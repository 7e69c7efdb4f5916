/// \file
/// What the programs in this folder share: a window that a list fills, and what it does between two events.
/// It stands on atl.dll, the container that every Windows has.
#pragma once

#include "LumtexListView.hpp"

#include <deque>
#include <exception>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <shellapi.h>

namespace program {

/// A window that a list fills. A program derives from it and overrides the events that it wants to hear of.
class ListWindow : protected LumtexListView::lmListViewEvents {
  public:
    ListWindow(const ListWindow&) = delete;
    ListWindow& operator=(const ListWindow&) = delete;
    virtual ~ListWindow() {
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
        DestroyWindow(window_);
    }

    /// Until its user closes it. Throws what was thrown by work of `later` or `tick`.
    void show() {
        constexpr UINT forwardMessage = 0x37F; // WM_FORWARDMSG: the container offers keys to the control
        ShowWindow(window_, SW_SHOW);
        SetFocus(host_);
        MSG message;
        while (GetMessageW(&message, nullptr, 0, 0) > 0) {
            if (SendMessageW(host_, forwardMessage, 0, reinterpret_cast<LPARAM>(&message)) != 0)
                continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (failure_ != nullptr)
            std::rethrow_exception(failure_);
    }

  protected:
    /// The name is its title at first. Width and height are pixels, the frame among them. Throws Failure
    /// where the component is not found.
    ListWindow(const wchar_t* name, int width, int height)
        : window_(makeWindow(name, width, height)), host_(makeHost(window_)), list(listIn(host_)),
          connection_(list, *this) {
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }

    void letTitle(const std::wstring& title) { SetWindowTextW(window_, title.c_str()); }
    /// Does the work when the event that runs now is over. In the middle of one the list still needs its
    /// rows: after ItemDblClick it asks whether the cell may be edited.
    void later(std::function<void()> work) {
        waiting_.push_back(std::move(work));
        PostMessageW(window_, WM_APP, 0, 0);
    }
    /// Calls `tick` once the time has passed, and again each time.
    void tickEvery(UINT milliseconds) { SetTimer(window_, 1, milliseconds, nullptr); }
    virtual void tick() {}
    /// Of the list, in pixels.
    long height() const {
        RECT inside;
        GetClientRect(host_, &inside);
        return inside.bottom;
    }

  private:
    HWND window_;
    HWND host_;

  protected:
    LumtexListView::lmListView list;

  private:
    template <class Function>
    static Function fromAtl(const char* name) {
        return reinterpret_cast<Function>(
            reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"atl.dll"), name)));
    }
    static HWND makeWindow(const wchar_t* name, int width, int height) {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = procedure;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
        windowClass.lpszClassName = name;
        RegisterClassW(&windowClass);
        return CreateWindowW(name,
                             name,
                             WS_OVERLAPPEDWINDOW,
                             100,
                             100,
                             width,
                             height,
                             nullptr,
                             nullptr,
                             windowClass.hInstance,
                             nullptr);
    }
    static HWND makeHost(HWND window) {
        fromAtl<BOOL(WINAPI*)()>("AtlAxWinInit")();
        RECT inside;
        GetClientRect(window, &inside);
        return CreateWindowW(L"AtlAxWin",
                             L"",
                             WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                             0,
                             0,
                             inside.right,
                             inside.bottom,
                             window,
                             nullptr,
                             nullptr,
                             nullptr);
    }
    static LumtexListView::lmListView listIn(HWND host) {
        LumtexListView::lmListView made = LumtexListView::lmListView::make();
        LumtexListView::loadUsualSettings(made.face());
        LumtexListView::Ref<IUnknown> container;
        const auto attach = fromAtl<HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**)>("AtlAxAttachControl");
        LumtexListView::demand(attach(made.face(), host, container.place()), "AtlAxAttachControl");
        return made;
    }

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM longer) noexcept {
        auto* self = reinterpret_cast<ListWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        switch (message) {
        case WM_SIZE:
            MoveWindow(GetWindow(window, GW_CHILD), 0, 0, LOWORD(longer), HIWORD(longer), TRUE);
            return 0;
        case WM_TIMER:
            if (self != nullptr && self->waiting_.empty())
                self->waiting_.push_back([self] { self->tick(); });
            [[fallthrough]];
        case WM_APP:
            if (self != nullptr)
                self->work();
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window, message, wide, longer);
        }
    }
    /// One after the other: the list lets messages through in the middle of a call, and this one among them.
    void work() {
        if (std::exchange(isWorking_, true))
            return;
        try {
            for (; !waiting_.empty(); waiting_.pop_front())
                waiting_.front()();
        } catch (...) {
            waiting_.clear();
            failure_ = std::current_exception();
            PostQuitMessage(1);
        }
        isWorking_ = false;
    }

    LumtexListView::Connection connection_;
    std::deque<std::function<void()>> waiting_;
    std::exception_ptr failure_;
    bool isWorking_ = false;
};

inline std::wstring fromUtf8(const std::string& bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0'); // never more units than bytes
    text.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), size)));
    return text;
}

/// As a cell shows it: one & marks the letter behind it, two of them stand for one.
inline std::wstring shown(const std::wstring& text) {
    std::wstring result;
    for (const wchar_t c : text)
        result.append(c == L'&' ? 2 : 1, c);
    return result;
}

/// The words behind the program's name on its command line.
inline std::vector<std::wstring> words() {
    int count = 0;
    wchar_t** all = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> result(all + 1, all + count);
    LocalFree(all);
    return result;
}

/// Calls the body of a program, and tells what it throws in a box with this title. The program's status.
template <class Body>
int run(const char* title, Body body) {
    if (FAILED(OleInitialize(nullptr)))
        return 1;
    int status = 0;
    try {
        body();
    } catch (const std::exception& failure) {
        MessageBoxA(nullptr, failure.what(), title, MB_OK);
        status = 1;
    }
    OleUninitialize();
    return status;
}

} // namespace program
