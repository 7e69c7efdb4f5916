/// \file
/// The list's own scroll bars: a range of whole numbers, a value in it, and a trough with a thumb.
#pragma once

#include "platform/property_bag.h"
#include "platform/world.h"

#include <functional>
#include <memory>

namespace lumtex {

/// Both bars are one class over an axis; `lmVScroll` and `lmHScroll` name the two.
///
/// The breadth is that of an arrow button. Positions and sizes are pixels of the parent's surface. Setting
/// `Value` neither clamps nor raises an event.
class ScrollBar : public UserControl {
  public:
    enum class Axis : Byte { vertical, horizontal };

    struct Events {
        std::function<void()> change; ///< an action has ended, or an arrow has stepped
        std::function<void()> scroll; ///< the value has moved during a drag
    };

    ScrollBar(World& world, Window& parent, Axis axis, Events events);

    Long Min() const { return min_; }
    /// A value above `Max` is refused with a message box.
    void letMin(Long value);
    Long Max() const { return max_; }
    /// A value below `Min` is refused with a message box.
    void letMax(Long value);
    Long Value() const { return value_; }
    void letValue(Long value);
    Long ColorStyle() const { return colorStyle_; }
    void letColorStyle(Long style);
    bool Enabled() const { return enabled_; }
    void letEnabled(bool enabled);
    /// Rows that an arrow of the vertical bar steps over.
    Long ScrollButtonJumpLines() const { return scrollButtonJumpLines_; }
    void letScrollButtonJumpLines(Long lines) { scrollButtonJumpLines_ = lines; }
    /// Takes over the ten scroll colours.
    void SetNewProperty(const PropertyBag& bag);

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

    /// The owner's decision that the bar is needed: "True" or "False"; empty before the first.
    String Tag;

    void UserControl_Resize() override;

    /// Colours of buttons and thumb; 0xBBGGRR.
    struct Scheme {
        OLE_COLOR face;
        OLE_COLOR frame;
        OLE_COLOR arrow;
    };

  private:
    /// A stretch along the bar's length, in pixels.
    struct Span {
        Single start;
        Single length;
    };

    void Redraw();
    Span thumb() const;
    void box(Span along, const Scheme& scheme);
    void arrow(Span button, bool towardsEnd, const Scheme& scheme);

    World& world_;
    Axis axis_;
    Events events_;
    Long min_ = 0;
    Long max_ = 100;
    Long value_ = 0;
    Long colorStyle_ = 0;
    Long scrollButtonJumpLines_ = 4;
    bool enabled_ = true;
    OLE_COLOR backColor_ = white;
    std::unique_ptr<Window> window_;
};

class lmVScroll final : public ScrollBar {
  public:
    lmVScroll(World& world, Window& parent, Events events)
        : ScrollBar(world, parent, Axis::vertical, std::move(events)) {}
};

class lmHScroll final : public ScrollBar {
  public:
    lmHScroll(World& world, Window& parent, Events events)
        : ScrollBar(world, parent, Axis::horizontal, std::move(events)) {}
};

} // namespace lumtex
