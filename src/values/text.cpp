#include "values/text.h"

#include "values/unit_blocks.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr StringView blanks = u" \t\n\v\f\r\u00A0";

constexpr char16_t lowerCase(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

constexpr bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

void appendUtf8(std::string& target, char32_t point) {
    const auto put = [&](char32_t byte) { target.push_back(static_cast<char>(byte)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | (point >> 6U));
        put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        put(0xE0 | (point >> 12U));
        put(0x80 | ((point >> 6U) & 0x3F));
        put(0x80 | (point & 0x3F));
    } else {
        put(0xF0 | (point >> 18U));
        put(0x80 | ((point >> 12U) & 0x3F));
        put(0x80 | ((point >> 6U) & 0x3F));
        put(0x80 | (point & 0x3F));
    }
}

void appendUtf16(String& target, char32_t point) {
    if (point < 0x10000) {
        target.push_back(static_cast<char16_t>(point));
    } else {
        target.push_back(static_cast<char16_t>(0xD7C0 + (point >> 10U)));
        target.push_back(static_cast<char16_t>(0xDC00 + (point & 0x3FFU)));
    }
}

/// What a first byte announces: how many bytes follow, and which second bytes are allowed. The bounds shut
/// out overlong forms, surrogates, and points past U+10FFFF.
struct Lead {
    int following;
    char32_t bits;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
};

constexpr Lead leadOf(unsigned char byte) {
    if (byte < 0x80)
        return {0, byte};
    if (byte >= 0xC2 && byte <= 0xDF)
        return {1, byte & 0x1FU};
    if (byte >= 0xE0 && byte <= 0xEF)
        return {2,
                byte & 0x0FU,
                static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
    if (byte >= 0xF0 && byte <= 0xF4)
        return {3,
                byte & 0x07U,
                static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
    return {-1, 0};
}

} // namespace

std::string toUtf8(StringView text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        if (isHighSurrogate(unit) && i + 1 < text.size() && isLowSurrogate(text[i + 1]))
            appendUtf8(bytes, 0x10000 + ((unit - 0xD800) << 10U) + (text[++i] - 0xDC00U));
        else
            appendUtf8(bytes, isHighSurrogate(unit) || isLowSurrogate(unit) ? replacement : unit);
    }
    return bytes;
}

String fromUtf8(std::string_view text) {
    String units;
    appendFromUtf8(units, text);
    return units;
}

void appendFromUtf8(String& target, std::string_view text) {
    const std::size_t before = target.size();
    // Most texts are plain ASCII from end to end, or nearly so.
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    if (bitsOf(bytes, text.size()) < 0x80) {
        target.resize(before + text.size());
        copyUnits(bytes, text.size(), target.data() + before);
        return;
    }
    const auto plain = static_cast<std::size_t>(
        std::find_if(text.begin(), text.end(), [](char byte) { return static_cast<signed char>(byte) < 0; }) -
        text.begin());
    target.reserve(std::max(target.capacity(), before + text.size()));
    target.resize(before + plain);
    copyUnits(bytes, plain, target.data() + before);
    for (std::size_t i = plain; i < text.size();) {
        const Lead lead = leadOf(static_cast<unsigned char>(text[i++]));
        char32_t point = lead.bits;
        bool good = lead.following >= 0;
        for (int n = 0; good && n < lead.following; ++n) {
            const auto byte = i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
            const bool fits = n == 0 ? byte >= lead.low && byte <= lead.high : byte >= 0x80 && byte <= 0xBF;
            if (fits) {
                point = (point << 6U) | (byte & 0x3FU);
                ++i;
            } else {
                good = false;
            }
        }
        appendUtf16(target, good ? point : replacement);
    }
}

StringView trimmed(StringView text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == StringView::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool sameName(StringView a, StringView b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char16_t x, char16_t y) {
        return lowerCase(x) == lowerCase(y);
    });
}

} // namespace lumtex
