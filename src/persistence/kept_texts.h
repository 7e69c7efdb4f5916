/// \file
/// What a content file gets later, kept until its turn comes.
#pragma once

#include "values/types.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace lumtex {

/// The records of whole columns, as they go to the file: for each column those of the rows from the first one
/// on, without a gap. Columns and rows count from 1.
class KeptTexts {
  public:
    struct Limits {
        std::size_t memory = std::size_t{128} << 20U; ///< bytes in all
        std::size_t block = std::size_t{32} << 10U;   ///< bytes that a column takes at a time
        /// Bytes of a record on average, at most: to keep longer ones takes longer than another walk.
        std::size_t meanRecord = 40;
        Long leastRows = 512; ///< fewer are soon walked over
    };
    /// Records that lie side by side.
    struct Stretch {
        std::span<const Byte> bytes;
        Long records = 0;
    };

    explicit KeptTexts(const Limits& limits) : limits_(limits) {}

    /// Gets ready for so many columns, if keeping is worth it. Throws std::bad_alloc.
    void begin(Long rows, Long columns);
    /// Nothing is kept any more, and nothing will be.
    void giveUp() { columns_.clear(); }

    /// Keeps the record of that cell, which `write` puts into room of `size` bytes, and says how many these
    /// became. False, with nothing kept, if it is not the next one of its column, or if there is no room or
    /// it is not worth it: then no further one of the column is kept on this walk.
    template <class Write>
    bool keep(Long row, Long column, std::size_t size, Write write) {
        if (static_cast<std::size_t>(column) > columns_.size())
            return false;
        Column& kept = at(column);
        if (kept.rows != row - 1 ||
            (size > static_cast<std::size_t>(kept.end - kept.place) && !grow(kept, size)))
            return false;
        kept.place += write(kept.place);
        kept.rows = row;
        return true;
    }

    /// Those of the column that go to the file next; none if no more are kept. They stay where they are until
    /// they are `gone`, or given up.
    Stretch next(Long column) {
        return static_cast<std::size_t>(column) <= columns_.size() ? next(at(column)) : Stretch();
    }
    /// The first ones of these went to the file.
    void gone(Long column, const Stretch& part);

  private:
    struct Block {
        std::unique_ptr<Byte[]> bytes;
        Byte* end = nullptr; ///< of its records, once another block follows
        Long lastRow = 0;    ///< of which it holds the record, once another block follows
    };
    struct Column {
        Byte* place = nullptr; ///< for the next record, in the last block
        Byte* end = nullptr;   ///< of that block
        Long rows = 0;         ///< up to this one all were kept
        Long rowsGone = 0;     ///< up to this one all went
        std::vector<Block> blocks;
        std::size_t firstBlock = 0; ///< the one that goes next
        Byte* first = nullptr;      ///< what goes next of it
    };

    static Stretch next(Column& kept) { return kept.rowsGone < kept.rows ? waiting(kept) : Stretch(); }
    static Stretch waiting(Column& kept);
    /// Says in its last block how far that is filled.
    static void settle(Column& kept);
    Column& at(Long column) { return columns_[static_cast<std::size_t>(column) - 1]; }
    bool grow(Column& kept, std::size_t size);
    bool hasLongRecords(const Column& kept) const;

    Limits limits_;
    std::size_t memory_ = 0; ///< bytes of all blocks
    std::vector<Column> columns_;
};

} // namespace lumtex
