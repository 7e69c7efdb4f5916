/// \file
/// The same list in all its looks.
#pragma once

#include "list_builder.h"
#include "worlds/headless/desktop.h"

#include <string>
#include <vector>

namespace lumtex::gallery {

struct Scene {
    std::string name; ///< "blue-grid"
    Bitmap picture;
};

/// Every style with every look: plain, grid lines, selection, disabled cells, mixed fonts, both bars; style
/// by style. The list is left in the last of them.
std::vector<Scene> renderScenes(headless::Desktop& desktop, lmListView& list);

/// All scenes side by side at half their size, one row a style, with their names.
Bitmap contactSheet(headless::Desktop& desktop, const std::vector<Scene>& scenes);

} // namespace lumtex::gallery
