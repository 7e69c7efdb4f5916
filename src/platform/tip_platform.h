/// \file
/// Tips: short texts that come up over what they explain.
#pragma once

#include "platform/window.h"
#include "values/geometry.h"
#include "values/types.h"

#include <memory>
#include <optional>

namespace lumtex {

/// The times of a tip window.
enum class TipDelay : Long {
    automatic = 0, ///< set alone: all three from one number
    reshow = 1,    ///< from one tool's tip to the next one's
    autoPop = 2,   ///< how long a tip stays up
    initial = 3,   ///< until a tip comes up
};

/// What has a tip: a window, known by its own handle and the handle of the window in which it lies.
struct TipTool {
    WindowHandle owner = 0;
    WindowHandle id = 0;
    String text;
};

/// One window of tips, and the tools that it shows tips for. Owned by whoever had it made.
class TipWindow {
  public:
    TipWindow() = default;
    TipWindow(const TipWindow&) = delete;
    TipWindow& operator=(const TipWindow&) = delete;
    virtual ~TipWindow() = default;

    virtual WindowHandle hWnd() const = 0;

    /// False if the platform refuses.
    virtual bool add(const TipTool& tool) = 0;
    /// Acts on the tool with this owner and id, as the other functions do; without one nothing happens.
    virtual void remove(const TipTool& tool) = 0;
    virtual void setText(const TipTool& tool) = 0;
    virtual Long toolCount() const = 0;
    /// By index from 0, with up to `textRoom` code units of its text; empty if there is no such tool.
    virtual std::optional<TipTool> tool(Long index, std::size_t textRoom) const = 0;

    virtual OLE_COLOR backColor() const = 0;
    virtual void setBackColor(OLE_COLOR color) = 0;
    /// Returns the platform's reply, which says nothing of any colour.
    virtual OLE_COLOR setTextColor(OLE_COLOR color) = 0;
    /// Milliseconds.
    virtual Long delay(TipDelay which) const = 0;
    virtual void setDelay(TipDelay which, Long milliseconds) = 0;
    /// Pixels on the four sides of the text.
    virtual Rect margins() const = 0;
    virtual void setMargins(const Rect& margins) = 0;
    /// Pixels, -1 for no limit.
    virtual Long maxWidth() const = 0;
    virtual void setMaxWidth(Long width) = 0;
};

/// Makes tip windows.
class TipPlatform {
  public:
    TipPlatform() = default;
    TipPlatform(const TipPlatform&) = delete;
    TipPlatform& operator=(const TipPlatform&) = delete;
    virtual ~TipPlatform() = default;

    /// Whether a window is a form or the surface of a control, and no other kind of window.
    virtual bool isFormOrSurface(WindowHandle window) const = 0;
    /// A tip also comes up while its form is not the active one. Null if the window could not be made.
    virtual std::unique_ptr<TipWindow> createTipWindow(WindowHandle owner) = 0;
};

} // namespace lumtex
