/// \file
/// Calls of the system that a test takes instead.
#pragma once

#include "worlds/win32/windows_api.h"

#include <utility>

namespace lumtex::testing {

/// While one lives, this program's calls of a function of another module go to `replacement`. `entry` is the
/// function's place in the program's table of imports, under the name that the linker gives it: `__imp_` and
/// the function's own.
template <class Function>
class ReplacedImport {
  public:
    ReplacedImport(Function*& entry, Function* replacement) : entry_(entry), former_(entry) {
        write(replacement);
    }
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;
    ~ReplacedImport() { write(former_); }

  private:
    /// The system may have locked the table.
    void write(Function* function) {
        DWORD former = 0;
        VirtualProtect(&entry_, sizeof(entry_), PAGE_READWRITE, &former);
        entry_ = function;
        VirtualProtect(&entry_, sizeof(entry_), former, &former);
    }

    Function*& entry_;
    Function* former_;
};

} // namespace lumtex::testing
