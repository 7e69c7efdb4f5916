/// \file
/// The layers of the tree, from src/layers.txt, which says how its lines are to be read.
#pragma once

#include "source_tree.h"

namespace lumtex::source {

/// A library, and what its files may include.
struct Layer {
    std::string name;
    std::vector<std::string> folders; ///< below src
    std::vector<std::string> below;   ///< names of layers
    bool seesSystem = false;          ///< headers of other libraries and of systems
};

/// The layers in the order of the table.
std::vector<Layer> layersOf(const SourceFile& table);

/// What is wrong with the table itself: a layer that stands on none above it, a folder that two have.
std::vector<Finding> faultsOf(const SourceFile& table);

/// The layer of a file below src; null if its folder has none.
const Layer* layerOf(const std::vector<Layer>& layers, const std::string& path);

/// The includes of `file` that its layer does not reach.
std::vector<Finding> outOfReach(const std::vector<Layer>& layers, const SourceFile& file);

} // namespace lumtex::source
