/// \file
/// Memory for the cells of rows and for their longer texts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace lumtex {

/// Hands out small blocks of memory that take their size and no more: those of one size lie side by side in
/// slabs, where an allocator would put a header in front of each and round it up.
///
/// A slab that nobody uses any more goes back to the heap, except one of each size, which stays while the
/// others have little room, so that a row that comes and goes moves no slab. For the thread that made it.
class BlockPool {
  public:
    BlockPool();
    BlockPool(const BlockPool&) = delete;
    BlockPool& operator=(const BlockPool&) = delete;
    /// Every block was given back.
    ~BlockPool() = default;

    /// A block of `size` bytes, at least four, from the pool of the thread. At an address that is a multiple
    /// of 8 where `size` is one, else of 4. Throws std::bad_alloc. Under a sanitizer it is from the heap
    /// instead, so that a use after the end is found.
    static void* takeOfThread(std::size_t size);
    /// `size` is the one that the block was taken with.
    static void giveBackOfThread(void* block, std::size_t size) noexcept;

    /// The same in this pool.
    void* take(std::size_t size);
    void giveBack(void* block, std::size_t size) noexcept;

    /// Bytes of all slabs; larger blocks, which come from the heap one by one, do not count.
    std::size_t bytesHeld() const { return bytesHeld_; }

    static constexpr std::size_t largestBlock = 512;

  private:
    /// Offsets count bytes from `first`.
    struct Slab {
        std::unique_ptr<std::byte[]> memory;
        std::byte* first = nullptr;
        std::size_t bytes = 0;        ///< of `memory`
        std::uint32_t end = 0;        ///< behind the last block
        std::uint32_t untouched = 0;  ///< from here on no block was ever handed out
        std::uint32_t free = nothing; ///< a block that came back; each holds the offset of the next
        std::uint32_t blocks = 0;
        std::uint32_t inUse = 0;
        // Among the slabs that have room.
        Slab* previous = nullptr;
        Slab* next = nullptr;
    };
    struct Place {
        const std::byte* first;
        std::unique_ptr<Slab> slab;
    };
    /// All blocks of one size.
    struct Shelf {
        std::vector<Place> slabs; ///< by address
        Slab* withRoom = nullptr;
        Slab* unused = nullptr;      ///< the only slab without a block in use, if there is one
        Slab* lastGivenTo = nullptr; ///< where the next block that comes back mostly belongs, too
        std::size_t blocks = 0;
        std::size_t inUse = 0;
    };

    static constexpr std::uint32_t nothing = 0xFFFFFFFF;
    static constexpr std::size_t step = 4;

    static BlockPool& ofThread();
    static std::size_t shelfOf(std::size_t size) { return (size + step - 1) / step; }
    Slab* addSlab(Shelf& shelf, std::uint32_t blockSize);
    void drop(Shelf& shelf, Slab* slab) noexcept;
    static Slab* slabOf(Shelf& shelf, const std::byte* block);
    static std::vector<Place>::iterator placeOf(Shelf& shelf, const std::byte* block);
    static void link(Shelf& shelf, Slab* slab);
    static void unlink(Shelf& shelf, Slab* slab);

    std::array<Shelf, largestBlock / step + 1> shelves_;
    std::size_t bytesHeld_ = 0;
};

} // namespace lumtex
