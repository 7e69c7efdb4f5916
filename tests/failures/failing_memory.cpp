#include "failures/failing_memory.h"

#include <cstdlib>
#include <new>

namespace {

struct Shortage {
    bool armed = false;
    bool counting = false; ///< whether `counts` runs
    bool onwards = false;
    long remaining = 0;
    long failed = 0;
    bool (*counts)(const void* context) = nullptr;
    const void* context = nullptr;
};
Shortage shortage;

bool fails() {
    if (!shortage.armed || shortage.counting)
        return false;
    shortage.counting = true;
    const bool counted = shortage.counts(shortage.context);
    shortage.counting = false;
    if (!counted || --shortage.remaining > 0 || (shortage.remaining < 0 && !shortage.onwards))
        return false;
    ++shortage.failed;
    return true;
}

void* request(std::size_t size) noexcept {
    return fails() ? nullptr : std::malloc(size != 0 ? size : 1);
}

} // namespace

void* operator new(std::size_t size) {
    if (void* memory = request(size))
        return memory;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return request(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return request(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace lumtex::testing {

void FailingMemory::arm(long n, Which which, bool (*counts)(const void* context), const void* context) {
    shortage = {true, false, which == Which::allFromThere, n, 0, counts, context};
}

long FailingMemory::disarm() {
    shortage.armed = false;
    return shortage.failed;
}

} // namespace lumtex::testing
