/// \file
/// The rows of a list in memory.
#pragma once

#include "records/row_record.h"
#include "values/prefetching.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace lumtex {

/// A place that goes from row to row.
template <class Array, class Row>
class RowPlace {
  public:
    RowPlace(Array& rows, std::size_t position) : rows_(&rows), position_(position) {}

    Row& operator*() const { return (*rows_)[position_]; }
    RowPlace& operator++() {
        ++position_;
        return *this;
    }
    bool operator==(const RowPlace&) const = default;

  private:
    Array* rows_;
    std::size_t position_;
};

/// An array of rows, in which one at the front comes and goes about as fast as one at the end.
///
/// The rows lie in chunks of one size, each of them a ring: where a row comes in, its own chunk makes room,
/// and every chunk on the way to the nearer end of the array takes in one row at one side and hands one on at
/// the other, which moves that row alone. All chunks are full but for the first places of the first one and
/// the last places of those at the end. Positions count from 0 and are in range. A change moves rows, and
/// nobody keeps a reference to one over it.
class RowArray {
  public:
    RowArray() = default;
    RowArray(const RowArray&) = delete;
    RowArray& operator=(const RowArray&) = delete;
    ~RowArray() = default;

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    RowRecord& operator[](std::size_t position) { return *slotOf(position); }
    const RowRecord& operator[](std::size_t position) const { return *slotOf(position); }
    RowRecord& back() { return *slotOf(size_ - 1); }
    /// Has the machine fetch a cell that is about to be looked at; `position` may lie behind the last.
    LUMTEX_PREFETCHING void prefetch(std::size_t position, std::size_t cell) const {
        if (position < size_)
            slotOf(position)->items.prefetch(cell);
    }

    auto begin() { return RowPlace<RowArray, RowRecord>(*this, 0); }
    auto end() { return RowPlace<RowArray, RowRecord>(*this, size_); }
    auto begin() const { return RowPlace<const RowArray, const RowRecord>(*this, 0); }
    auto end() const { return RowPlace<const RowArray, const RowRecord>(*this, size_); }

    /// A row without cells behind the last. Throws std::bad_alloc and is as it was then.
    void append();
    void dropLast() noexcept;
    /// Those from `position` on move down by one. Where the front is nearer it may take room there, and does
    /// without where there is no memory.
    void moveLastTo(std::size_t position) noexcept;
    /// Those behind `position` move up by one.
    void remove(std::size_t position) noexcept;
    /// Asks `verdict` about each row from `position` on: a row goes away, or moves up to those that stayed.
    /// Where it says `leave`, that row and those behind it move up unasked. Gives the position of the first
    /// row that was not asked about. `verdict` must not touch the array.
    enum class Verdict : unsigned char { stay, go, leave };
    template <class Judge>
    std::size_t sweep(std::size_t position, Judge verdict);
    /// Row `sources[i]` goes to position `i`; each row is named once. Throws std::bad_alloc and is as it was
    /// then.
    void reorder(std::span<const std::uint32_t> sources);
    void swap(std::size_t one, std::size_t other) noexcept;
    /// The row at `position` becomes like another one, and shares its cells.
    void copy(std::size_t from, std::size_t position) noexcept;

    /// Whoever gives a row a height says so here.
    void noteHeight(std::size_t position) noexcept { chunkOf(position).hasHeights = true; }
    /// The first row from `position` on, which may lie behind the last, that may have a height; behind the
    /// last if none does.
    std::size_t nextWithHeight(std::size_t position) const noexcept;
    /// Keeps the room for the first row, so that an emptied list needs no memory.
    void clear() noexcept;
    void release() noexcept;

  private:
    /// Slots without a row hold an empty record.
    struct Chunk {
        std::unique_ptr<RowRecord[]> rows;
        std::size_t head = 0;    ///< the slot of its first row
        bool hasHeights = false; ///< or had rows with one
    };

    static constexpr std::size_t chunkBits = 10;
    static constexpr std::size_t chunkSize = std::size_t{1} << chunkBits;
    static constexpr std::size_t firstRoom = 4;

    static Chunk makeChunk(std::size_t rows);
    std::size_t chunkIndexOf(std::size_t position) const { return (before_ + position) >> chunkBits; }
    Chunk& chunkOf(std::size_t position) { return chunks_[chunkIndexOf(position)]; }
    void put(std::size_t position, RowRecord row) noexcept {
        put(chunkOf(position), before_ + position, std::move(row));
    }
    /// Into the slot of a place; whole rows go in nowhere else.
    void put(Chunk& chunk, std::size_t place, RowRecord row) noexcept {
        chunk.hasHeights = chunk.hasHeights || row.Height != 0;
        slotIn(chunk, place) = std::move(row);
    }
    std::size_t room() const { return chunks_.size() * (mask_ + 1); }
    /// A place counts from the first one of the chunk, or of any chunk before it.
    RowRecord& slotIn(const Chunk& chunk, std::size_t place) const {
        return chunk.rows[(chunk.head + place) & mask_];
    }
    RowRecord* slotOf(std::size_t position) const {
        return &slotIn(chunks_[chunkIndexOf(position)], before_ + position);
    }
    void growFirst();
    /// The first place of a chunk that has a row.
    std::size_t firstOf(std::size_t chunk) const { return chunk == 0 ? before_ : 0; }
    std::size_t endOf(std::size_t chunk) const;
    bool isNearerToFront(std::size_t position) const;
    bool makeRoomInFront() noexcept;
    void turnUp(Chunk& chunk) const noexcept { chunk.head = (chunk.head + 1) & mask_; }
    void turnDown(Chunk& chunk) const noexcept { chunk.head = (chunk.head + mask_) & mask_; }
    void moveUpWithin(Chunk& chunk, std::size_t from, std::size_t hole) noexcept;
    void moveDownWithin(Chunk& chunk, std::size_t hole, std::size_t end) noexcept;
    void openFromFront(std::size_t position) noexcept;
    void openFromBack(std::size_t position) noexcept;
    void closeFromFront(std::size_t position) noexcept;
    void closeFromBack(std::size_t position) noexcept;

    std::vector<Chunk> chunks_;
    std::size_t size_ = 0;
    std::size_t before_ = 0; ///< places of the first chunk in front of its rows, fewer than a whole chunk
    std::size_t mask_ =
        0; ///< slots of a chunk less 1; a chunk that is the only one may have fewer than the others
};

template <class Judge>
std::size_t RowArray::sweep(std::size_t position, Judge verdict) {
    std::size_t stayed = position;
    const auto moveUp = [&](std::size_t from) {
        if (from != stayed)
            put(stayed, std::exchange((*this)[from], RowRecord()));
        ++stayed;
    };
    std::size_t asked = position;
    for (; asked < size_; ++asked) {
        const Verdict judged = verdict(std::as_const(*this)[asked]);
        if (judged == Verdict::leave)
            break;
        if (judged == Verdict::go)
            (*this)[asked] = RowRecord();
        else
            moveUp(asked);
    }
    const std::size_t unasked = stayed;
    if (stayed != asked) {
        for (; asked < size_; ++asked)
            moveUp(asked);
        size_ = stayed;
    }
    return unasked;
}

} // namespace lumtex
