/// \file
/// One tip window of the platform, and the tools that it shows tips for.
#pragma once

#include "guards/procedure.h"
#include "platform/runtime.h"
#include "platform/tip_platform.h"
#include "values/references/object.h"

namespace lumtex {

/// Holds one tool per control. Controls are objects of the host: what has a `hwnd` can have a tip, and its
/// `Container`, where it has one, is the window in which the tip lies.
///
/// Before `Create` has succeeded, and for a control without a window, every operation does nothing and
/// returns False, 0 or the empty text. Runtime and platform must outlive it.
class lmToolTip {
  public:
    lmToolTip(Runtime& runtime, TipPlatform& platform) : runtime_(runtime), platform_(platform) {}
    lmToolTip(const lmToolTip&) = delete;
    lmToolTip& operator=(const lmToolTip&) = delete;
    ~lmToolTip() { Class_Terminate(); }

    /// Makes the window, owned by that of `Parent`, unless there is one already. False if `Parent` is
    /// neither a form nor the surface of a control, or the platform gives no window.
    bool Create(const ObjectRef& Parent);

    /// False if the control has a tool already.
    bool AddTool(const ObjectRef& Control, StringView Text);
    bool RemoveTool(const ObjectRef& Control);
    Integer ToolCount();
    /// Empty for a control without a tool. Setting it makes none.
    String ToolText(const ObjectRef& Control);
    void letToolText(const ObjectRef& Control, StringView text);

    OLE_COLOR BackColor();
    void letBackColor(OLE_COLOR color);
    /// Gives no stored colour, and turns the text of the tips black.
    OLE_COLOR ForeColor();
    void letForeColor(OLE_COLOR color);
    /// Milliseconds. `Which` is one of `TipDelay`; only its two lowest bits count.
    Long DelayTime(Long Which);
    void letDelayTime(Long Which, Long milliseconds);
    /// Pixels; `Side` is 0 left, 1 top, 2 right, 3 bottom.
    Long Margin(Long Side);
    void letMargin(Long Side, Long margin);
    /// Pixels, -1 for no limit, which is also what a width below 1 means.
    Integer MaxTipWidth();
    void letMaxTipWidth(Integer width);

    WindowHandle hwnd() const { return window_; }

  private:
    void Class_Terminate();
    Procedure procedure(StringView name) const;
    bool GetToolInfo(WindowHandle Id, ToolInfo& Record, bool WantText);
    static bool IsWindow(const ObjectRef& Obj);
    Long send(TipMessage message, Long wParam = 0, Long lParam = 0);

    Runtime& runtime_;
    TipPlatform& platform_;
    WindowHandle window_ = 0;
    Long longestText_ = 0; ///< of all texts so far, with a closing zero; sizes the buffer for reading back
};

} // namespace lumtex
