/// \file
/// The triangle that marks the sorted column.
#pragma once

#include "platform/surface.h"

namespace lumtex::drawing {

/// `direction` 0 points down and is five pixels tall, 1 points up and is one taller; any other value leaves
/// all points at the origin.
void DrawArrow(Surface& surface, Byte direction, Single x, Single y);

} // namespace lumtex::drawing
