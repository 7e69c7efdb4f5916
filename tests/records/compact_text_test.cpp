/// A text comes out as it went in, wherever it lies and whatever it is stored from.
#include "records/compact_text.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// Texts of each length around the sizes in which units are copied, one unit of which may differ.
template <class Check>
void forTexts(Check check) {
    for (std::size_t size = 0; size <= 40; ++size) {
        String text;
        for (std::size_t i = 0; i < size; ++i)
            text += static_cast<char16_t>(u'a' + i % 26);
        check(text);
        for (std::size_t i = 0; i < size; ++i) {
            for (const char16_t other : {u'\u007F', u'\u0080', u'\u00FF', u'\u0100', u'\uFFFF'}) {
                String changed = text;
                changed[i] = other;
                check(changed);
            }
        }
    }
}

bool isWide(const String& text) {
    return std::any_of(text.begin(), text.end(), [](char16_t unit) { return unit > 0xFF; });
}

TEST(CompactText, GivesBackEveryText) {
    forTexts([](const String& text) {
        const CompactText compact(text);
        ASSERT_EQ(compact.toString(), text);
        ASSERT_EQ(compact.size(), text.size());
        ASSERT_EQ(compact.isWide(), isWide(text));
    });
}

TEST(CompactText, TakesBytesAsUnits) {
    forTexts([](const String& text) {
        if (isWide(text))
            return;
        const std::vector<unsigned char> bytes(text.begin(), text.end());
        ASSERT_EQ(CompactText(std::span(bytes)).toString(), text);
    });
}

} // namespace
} // namespace lumtex::testing
