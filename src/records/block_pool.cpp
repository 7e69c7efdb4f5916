#include "records/block_pool.h"

#include "values/thread_state.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <new>

namespace lumtex {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool pools = false;
#elif defined(__has_feature)
constexpr bool pools = !__has_feature(address_sanitizer);
#else
constexpr bool pools = true;
#endif

/// A line of the machine's cache, so that a row of five cells lies in two of them.
constexpr std::size_t alignment = 64;
constexpr std::size_t smallestSlab = 4096;
constexpr std::size_t largestSlab = std::size_t{128} * 1024;
/// Left for what an allocator keeps with a slab, so that the two fill whole pages.
constexpr std::size_t forTheAllocator = 64;
/// A new slab adds such a part to what there is, so that little lies unused whatever the number of rows.
constexpr std::size_t growth = 16;

std::byte* aligned(std::byte* memory) {
    const auto behind = reinterpret_cast<std::uintptr_t>(memory) % alignment;
    return memory + (behind == 0 ? 0 : alignment - behind);
}

} // namespace

BlockPool::BlockPool() = default;

BlockPool& BlockPool::ofThread() {
    BlockPool*& pool = ThreadState::ofThread().blockPool;
    if (pool == nullptr)
        pool = new BlockPool;
    return *pool;
}

void* BlockPool::takeOfThread(std::size_t size) {
    if (!pools || size > largestBlock)
        return ::operator new(size);
    return ofThread().take(size);
}

void BlockPool::giveBackOfThread(void* block, std::size_t size) noexcept {
    if (!pools || size > largestBlock)
        ::operator delete(block);
    else
        ofThread().giveBack(block, size);
}

void* BlockPool::take(std::size_t size) {
    if (size > largestBlock)
        return ::operator new(size);
    const std::size_t number = shelfOf(size);
    const auto blockSize = static_cast<std::uint32_t>(number * step);
    Shelf& shelf = shelves_[number];
    Slab* const slab = shelf.withRoom != nullptr ? shelf.withRoom : addSlab(shelf, blockSize);
    std::byte* block = nullptr;
    if (slab->free != nothing) {
        block = slab->first + slab->free;
        std::memcpy(&slab->free, block, sizeof slab->free);
    } else {
        block = slab->first + slab->untouched;
        slab->untouched += blockSize;
    }
    ++shelf.inUse;
    if (++slab->inUse == slab->blocks)
        unlink(shelf, slab);
    if (slab == shelf.unused)
        shelf.unused = nullptr;
    return block;
}

void BlockPool::giveBack(void* block, std::size_t size) noexcept {
    if (size > largestBlock) {
        ::operator delete(block);
        return;
    }
    Shelf& shelf = shelves_[shelfOf(size)];
    auto* const bytes = static_cast<std::byte*>(block);
    Slab* const slab = slabOf(shelf, bytes);
    std::memcpy(bytes, &slab->free, sizeof slab->free);
    slab->free = static_cast<std::uint32_t>(bytes - slab->first);
    --shelf.inUse;
    if (slab->inUse-- == slab->blocks)
        link(shelf, slab);
    if (slab->inUse == 0) {
        if (shelf.unused != nullptr)
            drop(shelf, slab);
        else
            shelf.unused = slab;
    }
    // The others have as much room as this one.
    if (shelf.unused != nullptr &&
        (shelf.inUse == 0 || shelf.blocks - shelf.inUse >= std::size_t{2} * shelf.unused->blocks)) {
        drop(shelf, shelf.unused);
        shelf.unused = nullptr;
    }
}

BlockPool::Slab* BlockPool::addSlab(Shelf& shelf, std::uint32_t blockSize) {
    auto made = std::make_unique<Slab>();
    made->bytes = std::clamp(shelf.blocks * blockSize / growth, smallestSlab, largestSlab) - forTheAllocator;
    made->memory = std::make_unique_for_overwrite<std::byte[]>(made->bytes);
    made->first = aligned(made->memory.get());
    const auto room = static_cast<std::uint32_t>(made->memory.get() + made->bytes - made->first);
    made->blocks = room / blockSize;
    made->end = made->blocks * blockSize;
    Slab* const slab = made.get();
    shelf.slabs.insert(placeOf(shelf, slab->first), Place{slab->first, std::move(made)});
    shelf.blocks += slab->blocks;
    bytesHeld_ += slab->bytes;
    link(shelf, slab);
    return slab;
}

void BlockPool::drop(Shelf& shelf, Slab* slab) noexcept {
    unlink(shelf, slab);
    if (shelf.lastGivenTo == slab)
        shelf.lastGivenTo = nullptr;
    shelf.blocks -= slab->blocks;
    bytesHeld_ -= slab->bytes;
    shelf.slabs.erase(std::prev(placeOf(shelf, slab->first)));
}

/// The first slab that lies behind.
std::vector<BlockPool::Place>::iterator BlockPool::placeOf(Shelf& shelf, const std::byte* block) {
    return std::upper_bound(
        shelf.slabs.begin(), shelf.slabs.end(), block, [](const std::byte* sought, const Place& place) {
            return std::less<>{}(sought, place.first);
        });
}

BlockPool::Slab* BlockPool::slabOf(Shelf& shelf, const std::byte* block) {
    const auto distance = [&](const Slab& slab) {
        return reinterpret_cast<std::uintptr_t>(block) - reinterpret_cast<std::uintptr_t>(slab.first);
    };
    if (shelf.lastGivenTo == nullptr || distance(*shelf.lastGivenTo) >= shelf.lastGivenTo->end)
        shelf.lastGivenTo = std::prev(placeOf(shelf, block))->slab.get();
    return shelf.lastGivenTo;
}

void BlockPool::link(Shelf& shelf, Slab* slab) {
    slab->previous = nullptr;
    slab->next = shelf.withRoom;
    if (slab->next != nullptr)
        slab->next->previous = slab;
    shelf.withRoom = slab;
}

void BlockPool::unlink(Shelf& shelf, Slab* slab) {
    (slab->previous != nullptr ? slab->previous->next : shelf.withRoom) = slab->next;
    if (slab->next != nullptr)
        slab->next->previous = slab->previous;
}

} // namespace lumtex
