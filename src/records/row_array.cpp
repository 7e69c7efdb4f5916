#include "records/row_array.h"

#include "values/side_by_side.h"

#include <algorithm>
#include <utility>

namespace lumtex {

namespace {

/// So many rows before its turn a row is fetched.
constexpr std::size_t ahead = 16;

} // namespace

RowArray::Chunk RowArray::makeChunk(std::size_t rows) {
    return {std::make_unique<RowRecord[]>(rows)};
}

/// Of the rows that are there, how many lie in that chunk.
std::size_t RowArray::rowsIn(std::size_t chunk) const {
    return std::min(size_ - (chunk << chunkBits), chunkSize);
}

/// Doubles the only chunk there is, so that short lists take little.
void RowArray::growFirst() {
    Chunk larger = makeChunk(2 * room());
    larger.hasHeights = chunks_.front().hasHeights;
    for (std::size_t i = 0; i < size_; ++i)
        larger.rows[i] = std::move((*this)[i]);
    mask_ = 2 * room() - 1;
    chunks_.front() = std::move(larger);
}

void RowArray::append() {
    if (chunks_.empty()) {
        chunks_.push_back(makeChunk(firstRoom));
        mask_ = firstRoom - 1;
    } else if (size_ == room()) {
        if (room() < chunkSize)
            growFirst();
        else
            chunks_.push_back(makeChunk(chunkSize));
    }
    ++size_;
}

void RowArray::dropLast() noexcept {
    const RowRecord gone = std::exchange(back(), RowRecord());
    --size_;
}

void RowArray::moveLastTo(std::size_t position) noexcept {
    if (position == size_ - 1)
        return;
    RowRecord row = std::exchange(back(), RowRecord());
    const std::size_t target = position >> chunkBits;
    for (std::size_t i = (size_ - 1) >> chunkBits; i > target; --i) {
        Chunk& chunk = chunks_[i];
        chunk.head = (chunk.head + mask_) & mask_;
        put(chunk, 0, std::move(slotIn(chunks_[i - 1], mask_)));
    }
    // The slot behind the chunk's last row is free, which in a ring is also the one in front of its first.
    Chunk& chunk = chunks_[target];
    const std::size_t place = position & mask_;
    const std::size_t last = rowsIn(target) - 1;
    if (place < last / 2) {
        chunk.head = (chunk.head + mask_) & mask_;
        for (std::size_t i = 0; i < place; ++i)
            slotIn(chunk, i) = std::move(slotIn(chunk, i + 1));
    } else {
        for (std::size_t i = last; i > place; --i)
            slotIn(chunk, i) = std::move(slotIn(chunk, i - 1));
    }
    put(chunk, place, std::move(row));
}

void RowArray::remove(std::size_t position) noexcept {
    const RowRecord gone = std::exchange((*this)[position], RowRecord());
    const std::size_t target = position >> chunkBits;
    Chunk& chunk = chunks_[target];
    const std::size_t place = position & mask_;
    const std::size_t last = rowsIn(target) - 1;
    if (place < last / 2) {
        for (std::size_t i = place; i > 0; --i)
            slotIn(chunk, i) = std::move(slotIn(chunk, i - 1));
        slotIn(chunk, 0) = RowRecord();
        chunk.head = (chunk.head + 1) & mask_;
    } else {
        for (std::size_t i = place; i < last; ++i)
            slotIn(chunk, i) = std::move(slotIn(chunk, i + 1));
        slotIn(chunk, last) = RowRecord();
    }
    const std::size_t lastChunk = (size_ - 1) >> chunkBits;
    for (std::size_t i = target + 1; i <= lastChunk; ++i) {
        Chunk& behind = chunks_[i];
        put(chunks_[i - 1], mask_, std::exchange(slotIn(behind, 0), RowRecord()));
        behind.head = (behind.head + 1) & mask_;
    }
    --size_;
}

void RowArray::reorder(std::span<const std::uint32_t> sources) {
    std::vector<Chunk> ordered;
    ordered.reserve(chunks_.size());
    for (std::size_t i = 0; i < chunks_.size(); ++i)
        ordered.push_back(makeChunk(mask_ + 1));
    // Each row is moved once, so that two threads may fill chunks of their own.
    const auto fill = [&](std::size_t first, std::size_t end) {
        for (std::size_t i = first; i < end; ++i) {
            if (i + ahead < end)
                __builtin_prefetch(slotOf(sources[i + ahead]));
            put(ordered[i >> chunkBits], i, std::move((*this)[sources[i]]));
        }
    };
    if (handsFor(sources.size()) == Hands::two) {
        const std::size_t middle = (chunks_.size() / 2) << chunkBits;
        sideBySide([&] { fill(0, middle); }, [&] { fill(middle, sources.size()); });
    } else {
        fill(0, sources.size());
    }
    chunks_ = std::move(ordered);
}

void RowArray::swap(std::size_t one, std::size_t other) noexcept {
    RowRecord row = std::move((*this)[one]);
    put(chunkOf(one), one, std::move((*this)[other]));
    put(chunkOf(other), other, std::move(row));
}

void RowArray::copy(std::size_t from, std::size_t position) noexcept {
    put(chunkOf(position), position, (*this)[from]);
}

std::size_t RowArray::nextWithHeight(std::size_t position) const noexcept {
    while (position < size_ && !chunks_[position >> chunkBits].hasHeights)
        position = ((position >> chunkBits) + 1) << chunkBits;
    return std::min(position, size_);
}

void RowArray::clear() noexcept {
    const std::size_t kept = std::min(size_, mask_ + 1);
    size_ = 0;
    if (chunks_.empty())
        return;
    for (std::size_t i = 0; i < kept; ++i)
        slotIn(chunks_.front(), i) = RowRecord();
    chunks_.front().hasHeights = false;
    chunks_.resize(1);
}

void RowArray::release() noexcept {
    const std::vector<Chunk> gone = std::exchange(chunks_, {});
    size_ = 0;
    mask_ = 0;
}

} // namespace lumtex
