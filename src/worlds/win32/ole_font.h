/// \file
/// Fonts of hosts, and ours as hosts see them.
#pragma once

#include "values/references/font.h"
#include "worlds/win32/com_ref.h"

namespace lumtex::win32 {

/// The font object of a host as one of ours: follows every change that the host makes to it. The same object
/// gives the same font each time, and one that `toIFont` made gives the font that it was made for. Null for
/// null and for an object that is no font.
FontRef fontFrom(IFontDisp* font);

/// What a host gets to see of a font: the object that it came from, or one made for it, whose changes show in
/// `font`. As long as somebody holds that, the same font gives it each time. Null for null. Throws
/// RuntimeError 7 if it cannot be made.
ComRef<IFontDisp> toIFont(const FontRef& font);

} // namespace lumtex::win32
