/// \file
/// The component's type library, written from the tables.
#pragma once

#include <string>

namespace lumtex {

/// The source of the type library in the interface definition language: enumerations, the record, a dual
/// interface for each public class with an entry for each get, let or set and call, the event interface, and
/// the classes themselves.
std::string typeLibrarySource();

} // namespace lumtex
