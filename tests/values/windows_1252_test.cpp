#include "values/windows_1252.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

TEST(Windows1252, EveryByteComesBackFromItsCodeUnit) {
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(toWindows1252(fromWindows1252(static_cast<Byte>(byte))), byte);
}

TEST(Windows1252, TheUpperControlsAreSignsOfTheirOwn) {
    EXPECT_EQ(fromWindows1252(0x80), u'\u20AC');
    EXPECT_EQ(fromWindows1252(0x85), u'\u2026');
    EXPECT_EQ(fromWindows1252(0x99), u'\u2122');
    EXPECT_EQ(fromWindows1252(0x9F), u'\u0178');
    EXPECT_EQ(fromWindows1252(0x81), u'\u0081');
    EXPECT_EQ(fromWindows1252(0xE4), u'ä');
}

TEST(Windows1252, WhatItLacksBecomesAQuestionMark) {
    for (const char16_t unit :
         {u'\u0080', u'\u0100', u'\u03A9', u'\uFFFD', char16_t{0xD83D}, char16_t{0xDE00}})
        EXPECT_EQ(toWindows1252(unit), '?');
}

} // namespace
} // namespace lumtex
