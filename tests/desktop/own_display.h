/// \file
/// A display of X of this program's own.
#pragma once

#include <string>

#include <sys/types.h>

namespace lumtex::testing {

/// Nobody else's windows are on it, and it ends with its owner.
class OwnDisplay {
  public:
    /// Throws std::runtime_error where there is none to be had.
    OwnDisplay(int width, int height);
    OwnDisplay(const OwnDisplay&) = delete;
    OwnDisplay& operator=(const OwnDisplay&) = delete;
    ~OwnDisplay();

    const std::string& name() const { return name_; }

  private:
    pid_t server_ = -1;
    std::string name_;
};

} // namespace lumtex::testing
