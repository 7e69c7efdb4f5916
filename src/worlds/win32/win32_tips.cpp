#include "worlds/win32/win32_tips.h"

#include "worlds/win32/ansi_text.h"
#include "worlds/win32/win32_window.h"

#include <algorithm>

#include <commctrl.h>

namespace lumtex::win32 {

namespace {

/// A tool as the class knows it, in the oldest form, which every version takes.
struct ToolRecord {
    explicit ToolRecord(const TipTool& tool) : text(ansiFrom(tool.text)) {
        info.cbSize = TTTOOLINFOA_V1_SIZE;
        info.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        info.hwnd = toHWND(tool.owner);
        info.uId = static_cast<UINT_PTR>(static_cast<INT_PTR>(tool.id));
        info.lpszText = text.data();
    }
    ToolRecord(const ToolRecord&) = delete;
    ToolRecord& operator=(const ToolRecord&) = delete;

    LPARAM parameter() { return reinterpret_cast<LPARAM>(&info); }

    std::string text;
    TTTOOLINFOA info{};
};

class Win32TipWindow final : public TipWindow {
  public:
    explicit Win32TipWindow(HWND window) : window_(window) {}
    ~Win32TipWindow() override { DestroyWindow(window_); }

    WindowHandle hWnd() const override { return fromHWND(window_); }

    bool add(const TipTool& tool) override {
        ToolRecord record(tool);
        return send(TTM_ADDTOOLA, 0, record.parameter()) != 0;
    }
    void remove(const TipTool& tool) override {
        ToolRecord record(tool);
        send(TTM_DELTOOLA, 0, record.parameter());
    }
    void setText(const TipTool& tool) override {
        ToolRecord record(tool);
        send(TTM_UPDATETIPTEXTA, 0, record.parameter());
    }
    Long toolCount() const override { return static_cast<Long>(send(TTM_GETTOOLCOUNT)); }
    std::optional<TipTool> tool(Long index, std::size_t textRoom) const override;

    OLE_COLOR backColor() const override { return static_cast<OLE_COLOR>(send(TTM_GETTIPBKCOLOR)); }
    void setBackColor(OLE_COLOR color) override { send(TTM_SETTIPBKCOLOR, color); }
    OLE_COLOR setTextColor(OLE_COLOR color) override {
        return static_cast<OLE_COLOR>(send(TTM_SETTIPTEXTCOLOR, color));
    }
    Long delay(TipDelay which) const override {
        return static_cast<Long>(send(TTM_GETDELAYTIME, static_cast<WPARAM>(which)));
    }
    void setDelay(TipDelay which, Long milliseconds) override {
        send(TTM_SETDELAYTIME, static_cast<WPARAM>(which), MAKELPARAM(milliseconds, 0));
    }
    Rect margins() const override {
        RECT record{};
        send(TTM_GETMARGIN, 0, reinterpret_cast<LPARAM>(&record));
        return {record.left, record.top, record.right, record.bottom};
    }
    void setMargins(const Rect& margins) override {
        const RECT record{margins.Left, margins.Top, margins.Right, margins.Bottom};
        send(TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(&record));
    }
    Long maxWidth() const override { return static_cast<Long>(send(TTM_GETMAXTIPWIDTH)); }
    void setMaxWidth(Long width) override { send(TTM_SETMAXTIPWIDTH, 0, width); }

  private:
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(window_, message, wParam, lParam);
    }

    HWND window_;
};

std::optional<TipTool> Win32TipWindow::tool(Long index, std::size_t textRoom) const {
    ToolRecord record({});
    // The class has no limit for what it writes, so it writes where there is room for all that it takes in.
    constexpr std::size_t longestTip = 0x10000;
    record.text.assign(textRoom > 0 ? std::max(longestTip, textRoom + 1) : 0, '\0');
    record.info.lpszText = textRoom > 0 ? record.text.data() : nullptr;
    if (send(TTM_ENUMTOOLSA, static_cast<WPARAM>(index), record.parameter()) == 0)
        return std::nullopt;
    const String whole = textFromAnsi(record.text.c_str());
    return TipTool{.owner = fromHWND(record.info.hwnd),
                   .id = static_cast<WindowHandle>(record.info.uId),
                   .text = whole.substr(0, textRoom)};
}

} // namespace

bool Win32Tips::isFormOrSurface(WindowHandle handle) const {
    HWND window = toHWND(handle);
    if (!IsWindow(window))
        return false;
    return Win32Window::of(window) != nullptr || GetAncestor(window, GA_ROOT) == window;
}

std::unique_ptr<TipWindow> Win32Tips::createTipWindow(WindowHandle owner) {
    InitCommonControls();
    HWND window = CreateWindowExW(0,
                                  TOOLTIPS_CLASSW,
                                  nullptr,
                                  TTS_ALWAYSTIP,
                                  0,
                                  0,
                                  0,
                                  0,
                                  toHWND(owner),
                                  nullptr,
                                  world_.instance(),
                                  nullptr);
    if (window == nullptr)
        return nullptr;
    return std::make_unique<Win32TipWindow>(window);
}

} // namespace lumtex::win32
