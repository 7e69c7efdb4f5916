/// \file
/// A repair of the database objects that come with the system.
#pragma once

#include "values/types.h"

#include <filesystem>

namespace lumtex::testing {

/// Wine's database objects look for version 1.0 of a type library that stands in their file as 2.8. While one
/// of these lives, a copy that says 1.0 is registered. Changes nothing where that version is known.
class AdoTypeLibrary {
  public:
    AdoTypeLibrary();
    AdoTypeLibrary(const AdoTypeLibrary&) = delete;
    AdoTypeLibrary& operator=(const AdoTypeLibrary&) = delete;
    ~AdoTypeLibrary();

  private:
    std::filesystem::path copy_; ///< empty where nothing was registered
};

} // namespace lumtex::testing
