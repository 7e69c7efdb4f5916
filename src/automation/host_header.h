/// \file
/// The public interface as a header for hosts in C++.
#pragma once

#include <string>

namespace lumtex {

/// Enumerations, the record, the interfaces with each entry and its help, and the numbers of the events, in a
/// namespace of their own. It stands on the system's headers alone.
std::string hostHeader();

} // namespace lumtex
