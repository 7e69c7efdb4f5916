/// \file
/// The cells of one row.
#pragma once

#include "records/list_view_item.h"

#include <cstddef>
#include <utility>

namespace lumtex {

/// A reference to an ordered collection of cells. Copies share the collection, so a cell added through one
/// shows in all. A default one refers to nothing, which reads as an empty collection.
///
/// The cells lie in one block behind their header, so that a row is one allocation.
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

    std::size_t count() const;
    bool sharesWith(const Items& other) const { return block() == other.block(); }

    /// `index` counts from 0 and must lie below `count`.
    ListViewItem& operator[](std::size_t index);
    const ListViewItem& operator[](std::size_t index) const;

    /// Appends a cell, which every holder of the collection sees. Grows where there is no room left. Where it
    /// throws, no cell was added.
    void append(StringView text, const StyleLease& style);

    /// The cells of the same place in two collections change places, rare fields included. Both must have it.
    void exchangeCell(std::size_t index, Items& other);

    /// The rare fields of a cell; null while it has none.
    const CellExtras* extras(std::size_t index) const;
    /// The same, made on demand.
    CellExtras& needExtras(std::size_t index);

    /// The tag of a cell, Empty while it has none.
    Variant tag(std::size_t index) const;
    void letTag(std::size_t index, const Variant& tag);

  private:
    struct Block;

    /// The block that holds the cells now; a block that grew leaves its successor's address behind.
    Block* block() const;
    static Block* shared(Block* block);
    static void release(Block* block);
    static Block* allocate(std::size_t capacity);
    Block* grow(std::size_t capacity);

    mutable Block* block_ = nullptr;
};

} // namespace lumtex
