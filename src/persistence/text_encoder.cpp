#include "persistence/text_encoder.h"

#include "values/unit_blocks.h"

#include <type_traits>

namespace lumtex {

void TextEncoder::encodeOther(const CompactText& text, Byte* target) {
    const bool copied = text.visit([&]<class Units>(const Units& units) {
        if constexpr (std::is_same_v<Units, StringView>)
            return false;
        else
            return copyUnits(units.data(), units.size(), target) < upperHalf;
    });
    if (copied)
        return;
    text.copyTo(scratch_);
    locale_.toAnsi(scratch_, {target, scratch_.size()});
}

} // namespace lumtex
