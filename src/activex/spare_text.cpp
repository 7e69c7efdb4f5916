#include "activex/spare_text.h"

#include <utility>

namespace lumtex::win32 {

namespace {

/// In units. The memory of a longer text is worth more elsewhere than the time to get it.
constexpr std::size_t mostKept = 4096;

/// Of a Variant that holds one.
String& textIn(Variant& value) {
    return const_cast<String&>(*value.text());
}

} // namespace

Variant SpareText::copyOf(StringView text) {
    if (text.size() <= String().capacity())
        return text;
    Variant copy = std::move(kept_);
    textIn(copy).assign(text);
    return copy;
}

void SpareText::takeFrom(std::span<Variant> arguments) noexcept {
    for (Variant& argument : arguments)
        if (argument.isString() && textIn(argument).capacity() > textIn(kept_).capacity() &&
            textIn(argument).capacity() <= mostKept)
            kept_ = std::move(argument);
}

} // namespace lumtex::win32
