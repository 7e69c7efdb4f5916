/// \file
/// The pointer's shape over a window, as a cursor of the system.
#pragma once

#include "values/references/picture.h"
#include "worlds/win32/owned.h"

namespace lumtex::win32 {

/// Shapes are the classic numbers: 0 and 1 the arrow, 2 cross, 3 I-beam, 5 and 15 all directions, 6 to 9 two
/// of them, 10 up, 11 hourglass, 12 no drop, 13 arrow with hourglass, 14 arrow with question mark, 99 the
/// icon. Anything else, and 99 without an icon, is the arrow.
class PointerShape {
  public:
    PointerShape() = default;
    PointerShape(const PointerShape&) = delete;
    PointerShape& operator=(const PointerShape&) = delete;
    ~PointerShape();

    CursorShape shape() const { return shape_; }
    void letShape(CursorShape shape) { shape_ = shape; }
    const PictureRef& icon() const { return icon_; }
    /// Its middle is the point that points.
    void setIcon(PictureRef icon);

    HCURSOR cursor() const;

  private:
    void dropCursor();

    CursorShape shape_ = CursorShape::standard;
    PictureRef icon_;
    OwnedIcon iconCursor_; ///< null if the icon could not be made into one
};

} // namespace lumtex::win32
