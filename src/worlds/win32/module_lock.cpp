#include "worlds/win32/module_lock.h"

#include <atomic>

namespace lumtex::win32 {

namespace {

std::atomic<long> locks{0};

} // namespace

ModuleLock::ModuleLock() noexcept {
    ++locks;
}

ModuleLock::~ModuleLock() {
    --locks;
}

long moduleLocks() noexcept {
    return locks;
}

} // namespace lumtex::win32
