/// \file
/// The manifest by which programs use the component without registering it.
#pragma once

#include <string>

namespace lumtex {

/// The text of LumtexListView.manifest, which lies beside the component: classes with their program
/// identifiers, the type library, and how calls to its interfaces travel between threads. A program names the
/// assembly "LumtexListView" in a manifest of its own. The assembly's version is that of the type library, so
/// that a newer component of the same interface fits the programs that stand.
std::string sideBySideManifest();

} // namespace lumtex
