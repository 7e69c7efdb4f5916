#include "values/case_mapping.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

struct Row {
    const char* name;
    char16_t unit;
    char16_t lower;
    char16_t fold;
};

constexpr Row table[] = {
    {"a capital", u'A', u'a', u'a'},
    {"the last capital", u'Z', u'z', u'z'},
    {"a small letter", u'z', u'z', u'z'},
    {"behind the capitals", u'[', u'[', u'['},
    {"a digit", u'7', u'7', u'7'},
    {"zero", u'\0', u'\0', u'\0'},
    {"an umlaut", u'\u00DC', u'\u00FC', u'\u00FC'},
    {"the multiplication sign among capitals", u'\u00D7', u'\u00D7', u'\u00D7'},
    {"sharp s", u'\u00DF', u'\u00DF', u'\u00DF'},
    {"capital sharp s", u'\u1E9E', u'\u00DF', u'\u00DF'},
    {"a pair beside each other", u'\u0100', u'\u0101', u'\u0101'},
    {"the other of the pair", u'\u0101', u'\u0101', u'\u0101'},
    {"I with a dot", u'\u0130', u'i', u'\u0130'},
    {"the micro sign", u'\u00B5', u'\u00B5', u'\u03BC'},
    {"final sigma", u'\u03C2', u'\u03C2', u'\u03C3'},
    {"Cyrillic", u'\u0416', u'\u0436', u'\u0436'},
    {"Cherokee folds to its capitals", u'\uAB70', u'\uAB70', u'\u13A0'},
    {"a Cherokee capital", u'\u13A0', u'\uAB70', u'\u13A0'},
    {"the Kelvin sign", u'\u212A', u'k', u'k'},
    {"full width", u'\uFF21', u'\uFF41', u'\uFF41'},
    {"a surrogate", 0xD801, 0xD801, 0xD801},
    {"the last unit", 0xFFFF, 0xFFFF, 0xFFFF},
};

TEST(CaseMapping, ReadsTheTable) {
    for (const Row& row : table) {
        EXPECT_EQ(lowerCase(row.unit), row.lower) << row.name;
        EXPECT_EQ(foldCase(row.unit), row.fold) << row.name;
    }
}

TEST(CaseMapping, MapsAsManyUnitsAsTheStandardLists) {
    int lowered = 0;
    int folded = 0;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const auto from = static_cast<char16_t>(unit);
        lowered += lowerCase(from) != from ? 1 : 0;
        folded += foldCase(from) != from ? 1 : 0;
        EXPECT_EQ(lowerCase(lowerCase(from)), lowerCase(from)) << unit;
        EXPECT_EQ(foldCase(foldCase(from)), foldCase(from)) << unit;
        EXPECT_TRUE(unit > 255 || lowerCase(from) < 256) << unit;
        EXPECT_TRUE(unit > 255 || lowerCase(from) == lowerCaseOfByte(static_cast<unsigned char>(unit)))
            << unit;
    }
    EXPECT_EQ(lowered, 1173);
    EXPECT_EQ(folded, 1194);
}

/// FNV-1a over what all units map to, low byte first.
std::uint64_t fingerprintOf(const CaseMapping& mapping) {
    std::uint64_t fingerprint = 0xCBF29CE484222325U;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const unsigned mapped = mapping(static_cast<char16_t>(unit));
        for (const unsigned byte : {mapped & 0xFFU, mapped >> 8U})
            fingerprint = (fingerprint ^ byte) * 0x100000001B3U;
    }
    return fingerprint;
}

// Computed apart from this code, from the character database of Python 3.11, which is of the same version.
TEST(CaseMapping, MapsEachUnitAsTheStandardDoes) {
    EXPECT_EQ(fingerprintOf(lowerCase), 0x9C8AD38EAF2BC829U);
    EXPECT_EQ(fingerprintOf(foldCase), 0xE4A30AEAE011D775U);
}

} // namespace
} // namespace lumtex
