#include "allocation_counter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::int64_t> count{0};

} // namespace

std::int64_t allocations() {
    return count;
}

// In a file of their own, where no caller sees that they are made of malloc and free.
void* operator new(std::size_t size) {
    ++count;
    if (void* memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
