/// \file
/// The guide line in the world of Qt; its window paints it over its surface.
#pragma once

#include "platform/guide_line.h"
#include "worlds/qt/qt_window.h"

namespace lumtex::qt {

class QtGuideLine final : public GuideLine {
  public:
    explicit QtGuideLine(QtWindow& parent);
    ~QtGuideLine() override;

    void place(Single x, Single height) override;
    bool Visible() const { return visible_; }
    void letVisible(bool visible) override;

    /// Whole pixels; a coordinate that is no 32-bit number counts as 0.
    Point from() const;
    Point to() const;
    void loseParent() { parent_ = nullptr; }

  private:
    QtWindow* parent_;
    Single x_ = 0;
    Single height_ = 0;
    bool visible_ = false;
};

} // namespace lumtex::qt
