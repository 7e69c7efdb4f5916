/// \file
/// How many of our objects others may still call.
#pragma once

namespace lumtex::win32 {

/// Keeps our code in memory. Every object that a host or the system can hold has one, for it may outlive the
/// control it came from; and so has each lock of the host.
class ModuleLock {
  public:
    ModuleLock() noexcept;
    ModuleLock(const ModuleLock& /*other*/) noexcept : ModuleLock() {}
    ModuleLock& operator=(const ModuleLock&) = default;
    ~ModuleLock();
};

/// Those of all threads. The code must stay in memory while there are any.
long moduleLocks() noexcept;

} // namespace lumtex::win32
