/// \file
/// A window with all that lies in it, as a user sees it.
#pragma once

#include "worlds/common/pane.h"

namespace lumtex::worlds {

/// Whether text boxes are part of the picture, or shown over it by somebody else.
enum class Boxes { shown, leftOut };

/// Paints `part` of the pane, in its pixels and without right and lower edges, onto `target`, whose corner is
/// the pane's. Children lie above their parents, later ones above earlier ones; what is hidden is not
/// painted.
void composePicture(Bitmap& target, const Pane& pane, const Rect& part, Boxes boxes = Boxes::shown);

} // namespace lumtex::worlds
