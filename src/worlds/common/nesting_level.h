/// \file
/// How deep calls are nested.
#pragma once

namespace lumtex::worlds {

/// Counts one level for as long as it lives, even if an exception ends it. `depth` must outlive it.
class NestingLevel {
  public:
    explicit NestingLevel(int& depth) : depth_(depth) { ++depth_; }
    NestingLevel(const NestingLevel&) = delete;
    NestingLevel& operator=(const NestingLevel&) = delete;
    ~NestingLevel() { --depth_; }

  private:
    int& depth_;
};

} // namespace lumtex::worlds
