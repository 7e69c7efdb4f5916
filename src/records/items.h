/// \file
/// The cells of one row.
#pragma once

#include "records/list_view_item.h"
#include "values/prefetching.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace lumtex {

/// A reference to an ordered collection of cells. Copies share the collection, so a cell added through one
/// shows in all. A default one refers to nothing, which reads as an empty collection.
///
/// The cells lie in one block behind their header, and the block in a slab with those of other rows.
class Items {
  public:
    Items() = default;
    /// An empty collection with room for `capacity` cells.
    static Items create(std::size_t capacity);

    /// Throws std::length_error for some millions of copies.
    Items(const Items& other);
    Items(Items&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    Items& operator=(const Items& other) {
        Items copy(other);
        std::swap(block_, copy.block_);
        return *this;
    }
    /// Leaves `other` with what was here, so that rows move without a look at their cells.
    Items& operator=(Items&& other) noexcept {
        std::swap(block_, other.block_);
        return *this;
    }
    ~Items();

    std::size_t count() const {
        const Block* current = block();
        return current != nullptr ? current->count : 0;
    }
    bool sharesWith(const Items& other) const { return block() == other.block(); }

    /// `index` counts from 0 and must lie below `count`.
    ListViewItem& operator[](std::size_t index) { return block()->cells()[index]; }
    const ListViewItem& operator[](std::size_t index) const { return block()->cells()[index]; }

    /// Has the machine fetch a cell that is about to be looked at, whether it is there or not.
    LUMTEX_PREFETCHING void prefetch(std::size_t index) const {
        __builtin_prefetch(block_);
        // The end of its text: the start lies in the same line, or in the one with the header.
        __builtin_prefetch(reinterpret_cast<const char*>(block_) + sizeof(Block) +
                           index * sizeof(ListViewItem) + sizeof(CompactText) - 1);
    }

    /// Appends a cell, which every holder of the collection sees. Grows where there is no room left. Where it
    /// throws, no cell was added.
    void append(StringView text, const StyleLease& style);

    /// The cells of the same place in two collections change places, rare fields included. Both must have it.
    void exchangeCell(std::size_t index, Items& other);

    /// The rare fields of a cell; null while it has none.
    const CellExtras* extras(std::size_t index) const;
    /// The same, made on demand; then cells may move in memory.
    CellExtras& needExtras(std::size_t index);

    /// The tag of a cell, Empty while it has none.
    Variant tag(std::size_t index) const;
    void letTag(std::size_t index, const Variant& tag);

  private:
    using Extras = std::vector<std::unique_ptr<CellExtras>>;

    /// Header of a row's cells. A block whose cells moved to a larger one stays, as a signpost, until its
    /// last holder has followed.
    struct Block {
        static constexpr std::size_t mostCells = (std::size_t{1} << 20U) - 1;
        static constexpr std::size_t pointerSize = sizeof(void*);
        static constexpr std::size_t mostReferences = (std::size_t{1} << 22U) - 1;

        // Eight bytes in all, since every row has one. A record is held more than once while it is moved,
        // and for good where host code took rows away meanwhile.
        std::uint64_t references : 22 = 1;
        std::uint64_t moved : 1 = 0;
        std::uint64_t hasExtras : 1 = 0; ///< there is room for a pointer to them behind the cells
        std::uint64_t count : 20 = 0;
        std::uint64_t capacity : 20 = 0;

        ListViewItem* cells() { return std::launder(reinterpret_cast<ListViewItem*>(this + 1)); }
        /// Owned; null while no cell has any.
        Extras* extras() const { return hasExtras != 0 ? pointerAt<Extras>(capacity) : nullptr; }
        void letExtras(Extras* extras) { letPointerAt(capacity, extras); }
        /// Once moved, where the cells were; holds one reference.
        Block* successor() const { return pointerAt<Block>(0); }
        void letSuccessor(Block* successor) { letPointerAt(0, successor); }

      private:
        /// Behind so many cells.
        template <class T>
        T* pointerAt(std::size_t cells) const {
            T* pointer = nullptr;
            std::memcpy(&pointer, placeBehind(cells), pointerSize);
            return pointer;
        }
        template <class T>
        void letPointerAt(std::size_t cells, T* pointer) {
            std::memcpy(const_cast<char*>(placeBehind(cells)), &pointer, pointerSize);
        }
        const char* placeBehind(std::size_t cells) const {
            return reinterpret_cast<const char*>(this + 1) + cells * sizeof(ListViewItem);
        }
    };
    static_assert(sizeof(Block) == 8 && alignof(ListViewItem) <= alignof(Block));

    /// The block that holds the cells now; a block that grew leaves its successor's address behind.
    Block* block() const { return block_ != nullptr && block_->moved != 0 ? followed() : block_; }
    Block* followed() const;
    static Block* shared(Block* block);
    static void release(Block* block);
    static std::size_t sizeOf(std::size_t capacity, bool hasExtras);
    static Block* allocate(std::size_t capacity, bool hasExtras);
    Block* moveTo(std::size_t capacity, bool hasExtras);

    mutable Block* block_ = nullptr;
};

} // namespace lumtex
