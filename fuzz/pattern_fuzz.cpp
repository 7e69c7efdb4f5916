/// Patterns and notations of searches: no input may crash, and a pattern gives one answer for a text however
/// its units are stored.
#include "fuzz_input.h"
#include "ordering/like_pattern.h"
#include "ordering/number_list.h"
#include "values/runtime_error.h"

#include <algorithm>
#include <vector>

namespace {

using namespace lumtex;
using fuzz::require;

void tryPattern(StringView text, StringView pattern, ordering::LikePattern::Letters letters) {
    try {
        const ordering::LikePattern ready(pattern, letters);
        const std::vector<unsigned char> bytes(text.begin(), text.end());
        require(ready.matches(text) == ready.matches(std::span<const unsigned char>(bytes)));
    } catch (const RuntimeError& error) {
        require(error.number() == ErrorNumber::invalidPatternString);
    }
}

void tryNotation(StringView spec) {
    constexpr Long limit = 50;
    const ordering::FindNotation notation = ordering::readFindNotation(spec, limit);
    const std::size_t shown = std::min<std::size_t>(notation.numbers.size(), 100);
    for (std::size_t i = 0; i < shown; ++i) {
        try {
            require(notation.numbers.at(i) <= limit);
        } catch (const RuntimeError& error) {
            require(error.number() == ErrorNumber::typeMismatch);
        }
    }
}

} // namespace

/// The first byte says how many of the others are the pattern; the rest is the text.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size == 0)
        return 0;
    const String units(data + 1, data + size);
    const std::size_t cut = data[0] % size;
    const StringView pattern = StringView(units).substr(0, cut);
    const StringView text = StringView(units).substr(cut);
    tryPattern(text, pattern, ordering::LikePattern::byUnit);
    tryPattern(text, pattern, ordering::LikePattern::folded);
    tryNotation(units);
    return 0;
}
