#include "persistence/kept_texts.h"

#include "guards/failure_of.h"

#include <algorithm>

namespace lumtex {

void KeptTexts::begin(Long rows, Long columns) {
    if (rows >= limits_.leastRows && columns > 1)
        columns_.resize(static_cast<std::size_t>(columns));
}

void KeptTexts::settle(Column& kept) {
    if (kept.blocks.empty())
        return;
    kept.blocks.back().end = kept.place;
    kept.blocks.back().lastRow = kept.rows;
}

bool KeptTexts::grow(Column& kept, std::size_t size) {
    if (size > limits_.block || limits_.block > limits_.memory - memory_ || hasLongRecords(kept))
        return false;
    settle(kept);
    // Without memory the records are read when their turn comes.
    return ignoringErrors([&] {
        Block block;
        block.bytes = std::make_unique_for_overwrite<Byte[]>(limits_.block);
        kept.blocks.push_back(std::move(block));
        memory_ += limits_.block;
        kept.place = kept.blocks.back().bytes.get();
        kept.end = kept.place + limits_.block;
        if (kept.blocks.size() == 1)
            kept.first = kept.place;
    });
}

bool KeptTexts::hasLongRecords(const Column& kept) const {
    const std::size_t bytes = kept.blocks.size() * limits_.block;
    return bytes > static_cast<std::size_t>(kept.rows) * limits_.meanRecord;
}

KeptTexts::Stretch KeptTexts::waiting(Column& kept) {
    settle(kept);
    const Block& block = kept.blocks[kept.firstBlock];
    return {{kept.first, block.end}, block.lastRow - kept.rowsGone};
}

void KeptTexts::gone(Long column, const Stretch& part) {
    Column& kept = at(column);
    Block& block = kept.blocks[kept.firstBlock];
    kept.first += part.bytes.size();
    kept.rowsGone += part.records;
    if (kept.rowsGone < block.lastRow)
        return;
    memory_ -= limits_.block;
    block.bytes.reset();
    ++kept.firstBlock;
    if (kept.firstBlock < kept.blocks.size())
        kept.first = kept.blocks[kept.firstBlock].bytes.get();
}

} // namespace lumtex
