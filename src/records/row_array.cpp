#include "records/row_array.h"

#include "values/side_by_side.h"

#include <algorithm>
#include <new>
#include <utility>

namespace lumtex {

namespace {

/// So many rows before its turn a row is fetched.
constexpr std::size_t ahead = 16;

} // namespace

RowArray::Chunk RowArray::makeChunk(std::size_t rows) {
    return {std::make_unique<RowRecord[]>(rows)};
}

/// Just behind the last place of that chunk that has a row.
std::size_t RowArray::endOf(std::size_t chunk) const {
    return std::min(before_ + size_ - (chunk << chunkBits), chunkSize);
}

/// Whether fewer chunks lie in front of that row's than behind. The first way needs chunks of full size.
bool RowArray::isNearerToFront(std::size_t position) const {
    const std::size_t inFront = chunkIndexOf(position);
    return inFront < chunkIndexOf(size_ - 1) - inFront;
}

/// Gives False where there is no memory.
bool RowArray::makeRoomInFront() noexcept {
    if (before_ != 0)
        return true;
    if (chunkIndexOf(size_ - 1) + 1 == chunks_.size()) {
        try {
            chunks_.push_back(makeChunk(chunkSize));
        } catch (const std::bad_alloc&) {
            return false;
        }
    }
    std::rotate(chunks_.begin(), chunks_.end() - 1, chunks_.end());
    before_ = chunkSize;
    return true;
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
    } else if (before_ + size_ == room()) {
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

/// Rows between the places `from` and `hole` move towards the hole, which comes to `from`.
void RowArray::moveUpWithin(Chunk& chunk, std::size_t from, std::size_t hole) noexcept {
    for (std::size_t i = hole; i > from; --i)
        slotIn(chunk, i) = std::move(slotIn(chunk, i - 1));
}

/// Rows between the places `hole` and `end` move towards the hole, which comes to the last place.
void RowArray::moveDownWithin(Chunk& chunk, std::size_t hole, std::size_t end) noexcept {
    for (std::size_t i = hole; i + 1 < end; ++i)
        slotIn(chunk, i) = std::move(slotIn(chunk, i + 1));
}

void RowArray::moveLastTo(std::size_t position) noexcept {
    if (position == size_ - 1)
        return;
    RowRecord row = std::exchange(back(), RowRecord());
    if (isNearerToFront(position) && makeRoomInFront())
        openFromFront(position);
    else
        openFromBack(position);
    put(position, std::move(row));
}

/// Rows in front of `position` move into the free place in front of the first one.
void RowArray::openFromFront(std::size_t position) noexcept {
    --before_;
    const std::size_t target = chunkIndexOf(position);
    for (std::size_t i = 0; i < target; ++i) {
        turnUp(chunks_[i]);
        put(chunks_[i], mask_, std::move(slotIn(chunks_[i + 1], 0)));
    }
    Chunk& chunk = chunks_[target];
    const std::size_t place = (before_ + position) & mask_;
    const std::size_t hole = firstOf(target);
    if (place - hole < chunkSize / 2) {
        moveDownWithin(chunk, hole, place + 1);
    } else {
        turnUp(chunk);
        moveUpWithin(chunk, place, mask_);
    }
}

/// Rows from `position` on move into the place of the last one, which is free.
void RowArray::openFromBack(std::size_t position) noexcept {
    const std::size_t target = chunkIndexOf(position);
    for (std::size_t i = chunkIndexOf(size_ - 1); i > target; --i) {
        turnDown(chunks_[i]);
        put(chunks_[i], 0, std::move(slotIn(chunks_[i - 1], mask_)));
    }
    // The slot behind the chunk's last row is free, which in a ring is also the one in front of its first.
    Chunk& chunk = chunks_[target];
    const std::size_t place = (before_ + position) & mask_;
    const std::size_t first = firstOf(target);
    const std::size_t last = endOf(target) - 1;
    if (place - first < (last - first) / 2) {
        turnDown(chunk);
        moveDownWithin(chunk, first, place + 1);
    } else {
        moveUpWithin(chunk, place, last);
    }
}

void RowArray::remove(std::size_t position) noexcept {
    const RowRecord gone = std::exchange((*this)[position], RowRecord());
    if (isNearerToFront(position))
        closeFromFront(position);
    else
        closeFromBack(position);
    --size_;
}

/// Rows in front of `position` move towards it.
void RowArray::closeFromFront(std::size_t position) noexcept {
    const std::size_t target = chunkIndexOf(position);
    Chunk& chunk = chunks_[target];
    const std::size_t place = (before_ + position) & mask_;
    const std::size_t first = firstOf(target);
    if (place - first < chunkSize / 2) {
        moveUpWithin(chunk, first, place);
        slotIn(chunk, first) = RowRecord();
    } else {
        moveDownWithin(chunk, place, chunkSize);
        slotIn(chunk, mask_) = RowRecord();
        turnDown(chunk);
    }
    for (std::size_t i = target; i > 0; --i) {
        put(chunks_[i], 0, std::exchange(slotIn(chunks_[i - 1], mask_), RowRecord()));
        turnDown(chunks_[i - 1]);
    }
    if (++before_ < chunkSize)
        return;
    before_ = 0;
    chunks_.front().hasHeights = false;
    std::rotate(chunks_.begin(), chunks_.begin() + 1, chunks_.end());
}

/// Rows behind `position` move towards it.
void RowArray::closeFromBack(std::size_t position) noexcept {
    const std::size_t target = chunkIndexOf(position);
    Chunk& chunk = chunks_[target];
    const std::size_t place = (before_ + position) & mask_;
    const std::size_t first = firstOf(target);
    const std::size_t last = endOf(target) - 1;
    if (place - first < (last - first) / 2) {
        moveUpWithin(chunk, first, place);
        slotIn(chunk, first) = RowRecord();
        turnUp(chunk);
    } else {
        moveDownWithin(chunk, place, last + 1);
        slotIn(chunk, last) = RowRecord();
    }
    const std::size_t lastChunk = chunkIndexOf(size_ - 1);
    for (std::size_t i = target + 1; i <= lastChunk; ++i) {
        put(chunks_[i - 1], mask_, std::exchange(slotIn(chunks_[i], 0), RowRecord()));
        turnUp(chunks_[i]);
    }
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
            put(ordered[chunkIndexOf(i)], before_ + i, std::move((*this)[sources[i]]));
        }
    };
    if (handsFor(sources.size()) == Hands::two) {
        const std::size_t middle = (chunkIndexOf(size_ / 2) << chunkBits) - before_;
        sideBySide([&] { fill(0, middle); }, [&] { fill(middle, sources.size()); });
    } else {
        fill(0, sources.size());
    }
    chunks_ = std::move(ordered);
}

void RowArray::swap(std::size_t one, std::size_t other) noexcept {
    RowRecord row = std::move((*this)[one]);
    put(one, std::move((*this)[other]));
    put(other, std::move(row));
}

void RowArray::copy(std::size_t from, std::size_t position) noexcept {
    put(position, (*this)[from]);
}

std::size_t RowArray::nextWithHeight(std::size_t position) const noexcept {
    while (position < size_ && !chunks_[chunkIndexOf(position)].hasHeights)
        position = ((chunkIndexOf(position) + 1) << chunkBits) - before_;
    return std::min(position, size_);
}

void RowArray::clear() noexcept {
    const std::size_t kept = std::min(before_ + size_, mask_ + 1);
    size_ = 0;
    if (chunks_.empty())
        return;
    for (std::size_t i = std::exchange(before_, 0); i < kept; ++i)
        slotIn(chunks_.front(), i) = RowRecord();
    chunks_.front().hasHeights = false;
    chunks_.resize(1);
}

void RowArray::release() noexcept {
    const std::vector<Chunk> gone = std::exchange(chunks_, {});
    size_ = 0;
    before_ = 0;
    mask_ = 0;
}

} // namespace lumtex
