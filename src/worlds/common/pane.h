/// \file
/// What windows and text boxes are in a world that keeps its own tree of them: a place in a tree that takes
/// input.
#pragma once

#include "platform/window.h"
#include "values/bitmap.h"
#include "values/geometry.h"

#include <vector>

namespace lumtex::worlds {

class WindowTree;

/// One node of the tree. Later children lie above earlier ones. Places are whole pixels of the parent, those
/// of a pane without one are pixels of the desktop.
///
/// Whoever delivers input must not touch the pane afterwards: a handler may destroy it. Look it up again by
/// its handle, which is never given twice.
class Pane {
  public:
    Pane(WindowTree& tree, Pane* parent);
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;
    /// Takes the pane out of the tree. What still lies in it stays behind, hidden and without a parent.
    virtual ~Pane();

    WindowHandle handle() const { return handle_; }
    Pane* parent() const { return parent_; }
    /// Lowest first.
    const std::vector<Pane*>& children() const { return children_; }
    const Rect& area() const { return area_; }
    /// The pane that it lies in, at any depth, and that lies in none.
    Pane& outermost();
    /// The left upper corner on the desktop.
    Point origin() const;
    /// For a pane without a parent: where the place is, on the desktop, that its own place counts from.
    Point base() const { return base_; }
    void letBase(Point base) { base_ = base; }
    /// A point of the desktop in pixels of this pane.
    Point fromDesktop(Point point) const;
    /// Covers this point of the desktop, with no parent cutting it off there.
    bool covers(Point onDesktop) const;
    /// Is `outer` itself, or lies in it at any depth.
    bool isWithin(const Pane& outer) const;
    /// Visible and enabled, and so is all that it lies in.
    bool takesInput() const;
    /// The pane that has the keyboard after a press on this one: itself, or the one that it is a part of.
    const Pane& keyWindow() const;
    bool isVisible() const { return visible_; }
    bool isEnabled() const { return enabled_; }
    /// A text box, which edits by itself what its window does not take.
    virtual bool isBox() const { return false; }

    /// The pane's own pixels, without its children.
    virtual Bitmap picture() const = 0;

    // Input, in pixels of the pane

    virtual void mouseDown(Integer button, Integer shift, Point at) = 0;
    virtual void doubleClick(Point at) = 0;
    virtual void mouseMove(Integer buttons, Integer shift, Point at) = 0;
    virtual void mouseUp(Integer button, Integer shift, Point at) = 0;
    virtual void click() = 0;
    virtual void keyDown(Integer keyCode, Integer shift) = 0;
    virtual void character(Integer unit) = 0;
    virtual void keyUp(Integer keyCode, Integer shift) = 0;
    virtual void gotFocus() = 0;
    /// `toOther`: another pane gets it. Otherwise nobody does, as when the user goes to another program.
    virtual void lostFocus(bool toOther) = 0;
    /// False: not for this pane, but for the one around it.
    virtual bool wheel(Long rotation, Integer shift, Point at) = 0;
    /// The paint that was asked for has come.
    virtual void paint() = 0;

  protected:
    /// Sizes are not negative. A pane that reaches past the numbers ends at the last one.
    void letArea(Point corner, Long width, Long height);

    bool visible_ = false;
    bool enabled_ = true;
    bool takesKeys_ = true; ///< off: the parent has the keys for both

  private:
    friend class WindowTree;

    WindowTree& tree_;
    WindowHandle handle_;
    Pane* parent_;
    std::vector<Pane*> children_;
    Rect area_;
    Point base_;
};

} // namespace lumtex::worlds
