/// \file
/// The rows of a list in pieces that several threads read.
#pragma once

#include "values/side_by_side.h"

#include <cstddef>

namespace lumtex::ordering {

constexpr std::size_t mostPieces = 2;

/// Rows from `first` on, and before `end`; both positions count from 0.
struct Piece {
    std::size_t number; ///< below `mostPieces`
    std::size_t first;
    std::size_t end;
};

/// Hands `read` all rows, in one piece or in one for each of two threads. Throws what `read` throws.
template <class Read>
void forEachPiece(std::size_t rows, Hands hands, Read read) {
    if (hands == Hands::one) {
        read(Piece{0, 0, rows});
        return;
    }
    const std::size_t middle = rows / 2;
    sideBySide([&] { read(Piece{0, 0, middle}); }, [&] { read(Piece{1, middle, rows}); });
}

} // namespace lumtex::ordering
