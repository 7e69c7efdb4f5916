/// \file
/// One tip window of the platform, and the tools that it shows tips for.
#pragma once

#include "guards/procedure.h"
#include "platform/runtime.h"
#include "platform/tip_platform.h"
#include "values/references/object.h"

#include <memory>
#include <optional>

namespace lumtex::tips {

/// Holds one tool per control. Controls are objects of the host: what has a `hwnd` can have a tip, and its
/// `Container`, if it has one, is the window in which the tip lies.
///
/// Before `Create` has succeeded, and for a control without a window, every operation does nothing and
/// returns False, 0 or the empty text. Runtime and platform must outlive it.
class lmToolTip {
  public:
    lmToolTip(Runtime& runtime, TipPlatform& platform) : runtime_(runtime), platform_(platform) {}
    lmToolTip(const lmToolTip&) = delete;
    lmToolTip& operator=(const lmToolTip&) = delete;

    /// Makes the window, owned by the window of `Parent`, unless there is one already. False if `Parent` is
    /// neither a form nor the surface of a control, or the platform gives no window.
    bool Create(const ObjectRef& Parent);

    /// False if the control has a tool already.
    bool AddTool(const ObjectRef& Control, StringView Text);
    bool RemoveTool(const ObjectRef& Control);
    Integer ToolCount() const;
    /// Empty for a control without a tool. Setting it makes no tool.
    String ToolText(const ObjectRef& Control);
    void letToolText(const ObjectRef& Control, StringView text);

    OLE_COLOR BackColor() const;
    void letBackColor(OLE_COLOR color);
    /// Gives no stored colour, and turns the text of the tips black.
    OLE_COLOR ForeColor();
    void letForeColor(OLE_COLOR color);
    /// Milliseconds. `Which` is one of `TipDelay`; only its two lowest bits count.
    Long DelayTime(Long Which) const;
    void letDelayTime(Long Which, Long milliseconds);
    /// Pixels; `Side` is 0 left, 1 top, 2 right, 3 bottom.
    Long Margin(Long Side) const;
    void letMargin(Long Side, Long margin);
    /// Pixels, -1 for no limit, which is also what a width below 1 means.
    Integer MaxTipWidth() const;
    void letMaxTipWidth(Integer width);

    WindowHandle hwnd() const { return window_ ? window_->hWnd() : 0; }

  private:
    Procedure procedure(StringView name) const;
    /// The tool of a window, with up to `textRoom` code units of its text.
    std::optional<TipTool> GetToolInfo(WindowHandle Id, std::size_t textRoom = 0) const;
    static bool IsWindow(const ObjectRef& Obj);
    void keepLongest(StringView text);

    Runtime& runtime_;
    TipPlatform& platform_;
    std::unique_ptr<TipWindow> window_;
    std::size_t longestText_ = 0; ///< of all texts so far, with a closing zero; as much is read back
};

} // namespace lumtex::tips
