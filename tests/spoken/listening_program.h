/// \file
/// Another program that asks a window of this one, and what it answers.
#pragma once

#include "activex/placed_control.h"

#include <string>
#include <vector>

namespace lumtex::testing {

/// Runs until it ends, is waited for, or a minute is over.
class ListeningProgram {
  public:
    /// `arguments` follow the window.
    ListeningProgram(HWND window, const std::string& arguments);
    ListeningProgram(const ListeningProgram&) = delete;
    ListeningProgram& operator=(const ListeningProgram&) = delete;
    ~ListeningProgram();

    /// Deals with the messages of this program meanwhile. False if `handle` was not signalled in time.
    static bool waitFor(HANDLE handle);
    /// The lines that the program wrote until its end.
    std::vector<std::string> lines();

  private:
    std::wstring path_; ///< of the file that it writes into
    HANDLE process_ = nullptr;
};

} // namespace lumtex::testing
