/// \file
/// The system's own text box, with its owner asked about each character.
#pragma once

#include "platform/text_box.h"
#include "worlds/win32/gdi_font.h"
#include "worlds/win32/win32_window.h"

#include <memory>

namespace lumtex::win32 {

/// Places are rounded to whole pixels as those of windows are. Its system window may go before it, as with a
/// Win32Window.
class Win32TextBox final : public TextBox {
  public:
    /// Throws RuntimeError 7 if the system gives no window.
    Win32TextBox(Win32World& world, Win32Window& parent, TextBoxClient& client);
    ~Win32TextBox() override;

    WindowHandle hWnd() const override { return fromHWND(hwnd_); }
    Single Left() const { return static_cast<Single>(left_); }
    Single Top() const { return static_cast<Single>(top_); }
    Single Width() const { return static_cast<Single>(width_); }
    Single Height() const { return static_cast<Single>(height_); }
    void letLeft(Single left) override;
    void letTop(Single top) override;
    void letWidth(Single width) override;
    void letHeight(Single height) override;
    bool Visible() const override { return visible_; }
    /// Hiding it passes on its focus.
    void letVisible(bool visible) override;
    void letTabStop(bool tabStop) override;
    const FontSpec& font() const override { return font_; }
    void setFont(const FontSpec& font) override;
    OLE_COLOR ForeColor() const { return foreColor_; }
    void letForeColor(OLE_COLOR color) override;
    String Text() const override;
    /// The caret goes to the start.
    void letText(StringView text) override;
    Long SelStart() const;
    Long SelLength() const;
    /// Both keep within the text. A new start selects nothing.
    void letSelStart(Long start) override;
    void letSelLength(Long length) override;
    void setFocus() override;

    void loseParent() { parent_ = nullptr; }

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    /// Empty: the system's box deals with the message. Afterwards the box may be gone.
    std::optional<LRESULT> answer(const WindowMessage& message);
    std::optional<LRESULT> character(const WindowMessage& message);
    void place();
    Long length() const;

    Win32World& world_;
    Win32Window* parent_;
    TextBoxClient& client_;
    HWND hwnd_ = nullptr;
    WNDPROC boxProcedure_ = nullptr;
    std::shared_ptr<const GdiFont> gdiFont_;
    Long left_ = 0;
    Long top_ = 0;
    Long width_ = 0;
    Long height_ = 0;
    bool visible_ = false;
    bool tabStop_ = false;
    FontSpec font_;
    OLE_COLOR foreColor_ = black;
};

} // namespace lumtex::win32
