#include "persistence/save_texts.h"

#include "guards/failure_of.h"

#include <algorithm>

namespace lumtex {

namespace {

/// Bytes of the first of these records.
std::size_t sizeOfFirst(std::span<const Byte> records) {
    return textLengthSize + static_cast<std::size_t>(content::loadNumber<Long>(records.data()));
}

} // namespace

SaveTexts::SaveTexts(ListViewCore& core,
                     Procedure& procedure,
                     content::ContentWriter& file,
                     Long rows,
                     Long columns,
                     const KeptTexts::Limits& limits)
    : cells_(core), p_(procedure), file_(file), columns_(columns), kept_(limits),
      encoder_(core.runtime().locale()) {
    // Without memory nothing is kept.
    static_cast<void>(ignoringErrors([&] { kept_.begin(rows, columns); }));
}

Long SaveTexts::write(Long row, Long column) {
    if (const KeptTexts::Stretch stretch = kept_.next(column); stretch.records > 0)
        return writeKept(column, stretch);
    const Items* cells = cells_.cellsOf(row, column);
    if (cells != nullptr && ignoringErrors([&] {
            cells_.prefetch(row, column);
            if (column != idleColumn_ && !keep(*cells, row, column + 1))
                idleColumn_ = column;
            writeText((*cells)[static_cast<std::size_t>(column) - 1].text());
        }))
        return 1;
    kept_.giveUp();
    return 0;
}

Long SaveTexts::writeKept(Long column, const KeptTexts::Stretch& stretch) {
    const KeptTexts::Stretch part = partAtHand(stretch);
    if (part.records == 0) {
        const KeptTexts::Stretch one{stretch.bytes.first(sizeOfFirst(stretch.bytes)), 1};
        if (writeByStatements(one.bytes.subspan(textLengthSize)))
            kept_.gone(column, one);
        else
            kept_.giveUp();
        return 1;
    }
    std::copy(part.bytes.begin(), part.bytes.end(), file_.roomAtHand(part.bytes.size()));
    file_.taken(part.bytes.size());
    kept_.gone(column, part);
    return part.records;
}

KeptTexts::Stretch SaveTexts::partAtHand(const KeptTexts::Stretch& stretch) {
    if (file_.roomAtHand(stretch.bytes.size()) != nullptr)
        return stretch;
    std::size_t size = 0;
    Long records = 0;
    for (;; ++records) {
        const std::size_t further = size + sizeOfFirst(stretch.bytes.subspan(size));
        if (file_.roomAtHand(further) == nullptr)
            return {stretch.bytes.first(size), records};
        size = further;
    }
}

bool SaveTexts::keep(const Items& cells, Long row, Long firstColumn) {
    const Long last = std::min(columns_, static_cast<Long>(cells.count()));
    bool any = false;
    for (Long column = firstColumn; column <= last; ++column) {
        const CompactText& text = cells[static_cast<std::size_t>(column) - 1].text();
        const auto encode = [&](Byte* place) {
            const std::size_t size = text.size();
            content::storeNumber(place, static_cast<Long>(size));
            encoder_.encode(text, place + textLengthSize);
            return textLengthSize + size;
        };
        if (!kept_.keep(row, column, textLengthSize + TextEncoder::roomFor(text), encode))
            continue;
        any = true;
        // A line of the cache holds nearly three cells.
        if ((column - firstColumn) % 3 == 2)
            cells_.prefetch(row, column);
    }
    return any;
}

void SaveTexts::writeText(const CompactText& text) {
    if (Byte* const place = file_.roomAtHand(textLengthSize + TextEncoder::roomFor(text))) {
        content::storeNumber(place, static_cast<Long>(text.size()));
        encoder_.encode(text, place + textLengthSize);
        file_.taken(textLengthSize + text.size());
        return;
    }
    scratch_.resize(TextEncoder::roomFor(text));
    encoder_.encode(text, scratch_.data());
    if (!writeByStatements(std::span(scratch_).first(text.size())))
        kept_.giveUp();
}

bool SaveTexts::writeByStatements(std::span<const Byte> text) {
    const bool hasLength = p_.step([&] { file_.put(static_cast<Long>(text.size())); });
    const bool hasText = p_.step([&] { file_.putBytes(text); });
    return hasLength && hasText;
}

} // namespace lumtex
