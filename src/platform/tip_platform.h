/// \file
/// The platform's class of tip windows, reached by its public messages.
#pragma once

#include "platform/window.h"
#include "values/geometry.h"
#include "values/types.h"

#include <optional>

namespace lumtex {

/// The messages of the class, in their 8-bit text forms.
enum TipMessage : Long {
    ttmSetDelayTime = 1027,    ///< wParam: which time, lParam: milliseconds
    ttmAddTool = 1028,         ///< ToolInfo; the reply is not 0 if it was added
    ttmDelTool = 1029,         ///< ToolInfo, by owner and id
    ttmUpdateTipText = 1036,   ///< ToolInfo, by owner and id
    ttmGetToolCount = 1037,    ///< the reply is the count
    ttmEnumTools = 1038,       ///< wParam: index from 0; fills a ToolInfo; the reply is not 0 if there is one
    ttmSetTipBackColor = 1043, ///< wParam: colour
    ttmSetTipTextColor = 1044, ///< wParam: colour; the reply says nothing of the colour
    ttmGetDelayTime = 1045,    ///< wParam: which time; the reply is in milliseconds
    ttmGetTipBackColor = 1046, ///< the reply is the colour
    ttmSetMaxTipWidth = 1048,  ///< lParam: pixels, -1 for no limit
    ttmGetMaxTipWidth = 1049,  ///< the reply is in pixels, -1 for no limit
    ttmSetMargin = 1050,       ///< Rect of four margins in pixels
    ttmGetMargin = 1051,       ///< fills a Rect
};

/// What `DelayTime` can be asked for.
enum TipDelay : Long {
    tipDelayAutomatic = 0, ///< set alone: all three from one number
    tipDelayReshow = 1,    ///< from one tool's tip to the next one's
    tipDelayAutoPop = 2,   ///< how long a tip stays up
    tipDelayInitial = 3,   ///< until a tip comes up
};

/// One tool of a tip window: what has a tip, and its text.
struct ToolInfo {
    Long size = 0;          ///< bytes of the platform's record
    Long flags = 0;         ///< 1: `id` is a window; 16: the class watches that window's mouse itself
    WindowHandle owner = 0; ///< the window in which the tool lies
    WindowHandle id = 0;
    /// On the way in the text. On the way out a buffer, filled up to its size, with a closing zero where the
    /// text ends before that; none if the caller does not want the text.
    std::optional<String> text;
};

/// How a tip window is made; it has no title, menu, place or size.
struct TipWindowForm {
    Long extendedStyle = 0;
    StringView className;
    Long style = 0;
    WindowHandle owner = 0;
};

/// A backend without such a class answers the same messages on top of the tips that it has. None of these
/// throws; a handle that names no tip window is answered with 0.
class TipPlatform {
  public:
    TipPlatform() = default;
    TipPlatform(const TipPlatform&) = delete;
    TipPlatform& operator=(const TipPlatform&) = delete;
    virtual ~TipPlatform() = default;

    /// Whether a window is a form or the surface of a control, and no other kind of window.
    virtual bool isFormOrSurface(WindowHandle window) const = 0;

    virtual void initCommonControls() = 0;
    /// 0 if the window could not be made.
    virtual WindowHandle createWindow(const TipWindowForm& form) = 0;
    virtual void destroyWindow(WindowHandle tips) = 0;

    virtual Long send(WindowHandle tips, TipMessage message, Long wParam, Long lParam) = 0;
    virtual Long send(WindowHandle tips, TipMessage message, Long wParam, ToolInfo& tool) = 0;
    virtual Long send(WindowHandle tips, TipMessage message, Long wParam, Rect& margins) = 0;
};

} // namespace lumtex
