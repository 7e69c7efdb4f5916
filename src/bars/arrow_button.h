/// \file
/// The button at the end of a bar, which repeats while it is held.
#pragma once

#include "bars/arrow.h"
#include "bars/hover.h"
#include "bars/scroll_artwork.h"
#include "guards/procedure.h"
#include "platform/world.h"

#include <functional>
#include <memory>

namespace lumtex::bars {

/// `VBtnUp`, `VBtnDown`, `VBtnLeft` and `VBtnRight` in one. Always of the size of its first picture.
class ArrowButton final : public UserControl {
  public:
    /// Milliseconds: the first wait, which only shortens the rhythm, and the rhythm.
    static constexpr Long firstInterval = 250;
    static constexpr Long repeatInterval = 100;

    /// `step` is the one event, `ValueUp` or `ValueDown`: at once with the press, again after both intervals,
    /// then at each repeat for as long as the pointer is over the button.
    /// `life` belongs to the control around it.
    ArrowButton(
        World& world, Window& parent, Arrow arrow, std::function<void()> step, ControlLife* life = nullptr);

    // Each repaints.

    /// Colour style: 0 blue, 1 silver, 2 olive, 99 custom. Not checked; painting reports one without
    /// pictures.
    Long C() const { return c_; }
    void letC(Long style);
    /// The custom style has no disabled look.
    bool En() const { return en_; }
    void letEn(bool enabled);
    /// Colours of the custom style.
    const ArrowColors& colors() const { return colors_; }
    void letColor(OLE_COLOR ArrowColors::*role, OLE_COLOR color);

    Window& window() { return *window_; }
    const Window& window() const { return *window_; }

    /// A press and a release that the bar makes for a press in its trough. The pointer is over the trough
    /// then, so that the repeat goes by the place at which the pointer left the button last.
    void UC_MDown();
    void UC_MUp();

    void UserControl_MouseDown(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseMove(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseUp(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_Resize() override;

  private:
    friend class ScrollInspector; ///< how tests look inside

    Procedure procedure(StringView name) const;
    void Timer1_Timer();
    void RedrawButton();
    void paintCustom(Procedure& p);

    World& world_;
    ControlLife* life_;
    const ArrowTraits& traits_;
    std::function<void()> step_;
    const ButtonArtwork& img_;
    std::unique_ptr<Window> window_;
    std::unique_ptr<Timer> Timer1;
    Hover hover_;
    Single lastX_ = 0; ///< pixels of the button; the last move over it
    Single lastY_ = 0;
    Long c_ = 0;
    bool en_ = true;
    ArrowColors colors_;
};

} // namespace lumtex::bars
