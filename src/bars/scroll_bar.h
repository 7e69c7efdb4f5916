/// \file
/// The list's own scroll bars: a range of whole numbers, a value in it, and a trough with a thumb.
#pragma once

#include "bars/arrow_button.h"
#include "bars/bar_traits.h"
#include "bars/scroll_thumb.h"
#include "guards/procedure.h"
#include "platform/property_bag.h"
#include "platform/world.h"

#include <functional>
#include <memory>

namespace lumtex::about {
class LumtexAbout;
} // namespace lumtex::about

namespace lumtex::bars {

/// Both bars are one class over an axis; `lmVScroll` and `lmHScroll` name the two, and BarTraits tells them
/// apart. "Low" is the end at the top or the left.
///
/// Positions and sizes are pixels of the parent's surface. The breadth is the breadth of an arrow button,
/// whatever is asked for. A bar is created hidden; its owner calls one of the two `UserControl_...Properties`
/// entry points before it is shown, and listens to two events.
class ScrollBar : public UserControl {
  public:
    struct Events {
        std::function<void()> change; ///< an action has ended, or an arrow has stepped
        std::function<void()> scroll; ///< the value has moved during a drag
        std::function<void(StringView name)> propertyChanged = [](StringView /*name*/) {};
    };

    /// `life` belongs to the control around it.
    ScrollBar(
        World& world, Window& parent, const BarTraits& traits, Events events, ControlLife* life = nullptr);

    // Each setter calls `propertyChanged`; all but the three step widths repaint.

    Long Min() const { return min_; }
    /// A value above `Max` is refused with a message box. `Value` stays, in the new range or not.
    void letMin(Long value);
    Long Max() const { return max_; }
    /// A value below `Min` is refused with a message box. `Value` stays, in the new range or not.
    void letMax(Long value);
    Long Value() const { return value_; }
    /// Neither clamps nor raises an event.
    void letValue(Long value);
    bool Gradient() const { return gradient_; }
    void letGradient(bool gradient);
    /// The trough in the custom style.
    OLE_COLOR BackColor() const { return backColor_; }
    void letBackColor(OLE_COLOR color);
    /// 0 blue, 1 silver, 2 olive, 99 custom.
    Long ColorStyle() const { return colorStyle_; }
    void letColorStyle(Long style);
    /// Whether the value follows the thumb already during a drag.
    bool ActiveScrolling() const { return activeScrolling_; }
    void letActiveScrolling(bool active);
    /// Kept and saved, and read by nothing else: a step of the trough is a step of its arrow.
    Long SmallChange() const { return smallChange_; }
    void letSmallChange(Long change);
    Long LargeChange() const { return largeChange_; }
    void letLargeChange(Long change);
    bool Enabled() const { return enabled_; }
    void letEnabled(bool enabled);

    /// Takes over the ten scroll colours, each with its default if the bag has none.
    void SetNewProperty(const PropertyBag& bag);

    /// A new bar without saved state.
    void UserControl_InitProperties();
    /// A saved bar. A range whose ends come in the wrong order is refused with a message box.
    void UserControl_ReadProperties(const PropertyBag& bag);
    void UserControl_WriteProperties(PropertyBag& bag) const;

    /// Shows the about box and returns at once.
    void About();

    Single Left() const { return window_->Left(); }
    Single Top() const { return window_->Top(); }
    Single Width() const { return window_->Width(); }
    Single Height() const { return window_->Height(); }
    void move(Single left, Single top) { window_->place(left, top, Width(), Height()); }
    void letWidth(Single width) { window_->place(Left(), Top(), width, Height()); }
    void letHeight(Single height) { window_->place(Left(), Top(), Width(), height); }
    bool Visible() const { return window_->Visible(); }
    void letVisible(bool visible) { window_->letVisible(visible); }
    Window& window() { return *window_; }
    const Window& lowArrow() const { return low_.window(); }
    const Window& highArrow() const { return high_.window(); }
    const Window& thumb() const { return thumb_.window(); }

    // Without the mouse

    /// A press on an arrow, and its release.
    void pressLow() { stepLow(); }
    void pressHigh() { stepHigh(); }
    /// A drag of the thumb to a value, which is brought into the range, and its release.
    void drag(Long value);

    /// The owner's decision that the bar is needed: "True" or "False"; empty before the first.
    String Tag;

    void UserControl_MouseDown(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseUp(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_Resize() override;
    void UserControl_Show() override;

  protected:
    /// Rows that an arrow of the vertical bar steps over.
    Long jumpLines() const { return jumpLines_; }
    void letJumpLines(Long lines);

  private:
    friend class ScrollInspector; ///< how tests look inside

    struct SavedProperty;
    std::span<const SavedProperty> savedProperties() const;

    Procedure procedure(StringView name) const;
    template <class T>
    void store(Procedure& p, T& field, T value, StringView name);

    // Layout and painting (bar_layout.cpp)

    void layOut();
    void ÜberprüfeHeight(); ///< `ÜberprüfeWidth` in the horizontal bar
    Double GetIMX() const;  ///< never 0
    bool thumbReachedPress() const;
    void placeThumb(Procedure& p);
    void paintTrough();
    void Redraw();

    // What the mouse does (bar_actions.cpp)

    enum class Move : Byte { mousedown, mousemove, mouseup };

    void thumbMouseDown(Integer Button, Single X, Single Y);
    void thumbMouseMove(Integer Button, Single X, Single Y);
    void thumbMouseUp();
    void MoveScroll(Move action, Integer button, Single position);
    void ÜberprüfeValue();
    void stepLow();
    void stepHigh();
    void press(ArrowButton& button, Single position, Long direction);

    World& world_;
    ControlLife* life_;
    const BarTraits& traits_;
    AlongAxis axis_;
    Events events_;

    Long min_ = 0;
    Long max_ = 100;
    Long value_ = 0;
    bool gradient_ = true;
    OLE_COLOR backColor_ = white;
    Long colorStyle_ = 0;
    bool activeScrolling_ = true;
    Long smallChange_ = 1;
    Long largeChange_ = 1;
    Long jumpLines_ = 4;
    bool enabled_ = true;

    bool dragging_ = false;
    Long dragAnchor_ = 0;      ///< pixels of the thumb, along the bar: where it was pressed
    Double IMX_ = 0;           ///< pixels of thumb travel for one unit of `Value`
    Single thumbLength_ = 0;   ///< pixels, before the lower limit
    Single pressPos_ = 0;      ///< pixels along the bar: where the trough was pressed
    bool pressActive_ = false; ///< a press in the trough is held
    Long pressDir_ = 0;        ///< side of that press, by BarTraits; 0 for none

    std::unique_ptr<Window> window_;
    ScrollThumb thumb_;
    ArrowButton low_;
    ArrowButton high_;
    std::shared_ptr<about::LumtexAbout> about_;
};

class lmVScroll final : public ScrollBar {
  public:
    lmVScroll(World& world, Window& parent, Events events, ControlLife* life = nullptr)
        : ScrollBar(world, parent, verticalBar, std::move(events), life) {}

    Long ScrollButtonJumpLines() const { return jumpLines(); }
    void letScrollButtonJumpLines(Long lines) { letJumpLines(lines); }
};

class lmHScroll final : public ScrollBar {
  public:
    lmHScroll(World& world, Window& parent, Events events, ControlLife* life = nullptr)
        : ScrollBar(world, parent, horizontalBar, std::move(events), life) {}
};

} // namespace lumtex::bars
