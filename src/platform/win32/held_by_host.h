/// \file
/// How many of our objects others may still call.
#pragma once

namespace lumtex {

/// A part of each object that a host, or the system, can hold longer than the control it came from.
class HeldByHost {
  public:
    HeldByHost() noexcept;
    HeldByHost(const HeldByHost&) = delete;
    HeldByHost& operator=(const HeldByHost&) = delete;
    ~HeldByHost();
};

/// Those of all threads. The code must stay in memory while there are any.
long objectsHeldByHosts() noexcept;

} // namespace lumtex
