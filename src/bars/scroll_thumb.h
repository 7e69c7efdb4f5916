/// \file
/// The thumb of a bar: follows the pointer's hover and press, paints itself, and reports the mouse to its
/// bar.
#pragma once

#include "bars/axis.h"
#include "bars/hover.h"
#include "bars/scroll_artwork.h"
#include "guards/procedure.h"
#include "platform/world.h"

#include <functional>
#include <memory>

namespace lumtex::bars {

/// `VScrollBar` and `HScrollBar` in one. Knows nothing of values: the bar moves it. Keeps no settings.
class ScrollThumb final : public UserControl {
  public:
    /// Coordinates are pixels of the thumb.
    struct Events {
        std::function<void(Integer Button, Single X, Single Y)> mouseDown;
        std::function<void(Integer Button, Single X, Single Y)> mouseMove;
        std::function<void()> mouseUp;
    };

    /// `life` belongs to the control around it.
    ScrollThumb(World& world, Window& parent, Axis axis, Events events, ControlLife* life = nullptr);

    // Each repaints.

    /// Colour style: 0 blue, 1 silver, 2 olive, 99 custom. Not checked; painting reports one without
    /// pictures.
    Long C() const { return c_; }
    void letC(Long style);
    /// Enabled mark. Painting does not look at it, as the bar hides a disabled thumb.
    bool En() const { return en_; }
    void letEn(bool enabled);
    /// Colours of the custom style: normal, pressed under the pointer, pointer over the thumb.
    OLE_COLOR Bar() const { return bar_; }
    void letBar(OLE_COLOR color);
    OLE_COLOR BarDown() const { return barDown_; }
    void letBarDown(OLE_COLOR color);
    OLE_COLOR BarHover() const { return barHover_; }
    void letBarHover(OLE_COLOR color);

    Window& window() { return *window_; }
    const Window& window() const { return *window_; }

    void UserControl_MouseDown(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseMove(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseUp(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_Resize() override;

  private:
    friend class ScrollInspector; ///< how tests look inside

    Procedure procedure(StringView name) const;
    void RedrawScroll();
    void paintScheme(Procedure& p);
    void silverEdges(Procedure& p, Single w, Single h);

    World& world_;
    ControlLife* life_;
    Axis axis_;
    Events events_;
    const ThumbArtwork& img_;
    std::unique_ptr<Window> window_;
    Hover hover_;
    Byte imageIndex_ = 0; ///< from 1; the picture that the last paint chose
    Long c_ = 0;
    bool en_ = true;
    OLE_COLOR bar_ = 0;
    OLE_COLOR barDown_ = 0;
    OLE_COLOR barHover_ = 0;
};

} // namespace lumtex::bars
