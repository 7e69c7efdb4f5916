#include "platform/win32/held_by_host.h"

#include <atomic>

namespace lumtex {

namespace {

std::atomic<long> held{0};

} // namespace

HeldByHost::HeldByHost() noexcept {
    ++held;
}

HeldByHost::~HeldByHost() {
    --held;
}

long objectsHeldByHosts() noexcept {
    return held;
}

} // namespace lumtex
