/// \file
/// The program that the process runs.
#pragma once

#include "platform/files.h"
#include "platform/program.h"

namespace lumtex {

/// Found by a walk over all processes; empty if they cannot be listed, or our own is not among them,
/// or its path is longer than 255 code units.
String CurrentExePath(const Program& program, const Files& files);

} // namespace lumtex
