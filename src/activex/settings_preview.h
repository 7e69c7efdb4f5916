/// \file
/// A small list that shows what settings look like before they are applied.
#pragma once

#include "automation/member.h"
#include "values/variant.h"
#include "worlds/win32/com_ref.h"

namespace lumtex::win32 {

class ListControl;

/// A control of its own, in no container, with a few sample rows; it raises nothing to anybody. Each call but
/// the making lets the program's events through, in which the preview may be let go: whoever calls holds it.
class SettingsPreview {
  public:
    /// Throws RuntimeError 7.
    SettingsPreview();

    /// Once: takes over the settings of `edited`, where that one saves them in a stream; else those of a new
    /// list. `size` in pixels.
    void fill(IUnknown* edited, SIZE size);

    /// `value` fits the property.
    void let(const automation::Member& property, const Variant& value);
    /// Paints it into `bounds`, stretched where these are of another size.
    void draw(HDC target, const RECT& bounds);

  private:
    ComRef<IUnknown> control_;
    ListControl& list_; ///< the same
};

} // namespace lumtex::win32
