#include "error_number.h"
#include "ordering/number_list.h"

namespace lumtex::ordering {
namespace {

std::string listed(const FindNotation& notation) {
    if (!notation.valid)
        return "not a specification";
    std::string text = notation.empty ? "nothing to cut" : "";
    for (std::size_t i = 0; i < notation.numbers.size(); ++i)
        text += (i > 0 ? " " : "") + std::to_string(notation.numbers.at(i));
    return text;
}

struct Row {
    const char* name;
    StringView spec;
    const char* numbers; ///< with a limit of 20
};

constexpr Row table[] = {
    {"all", u"*", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20"},
    {"a number with its comma", u"3,", "3"},
    {"two numbers", u"1,3", "1 3"},
    {"order and duplicates stay", u"3,1,3,1", "3 1 3 1"},
    {"a range", u"2-4", "2 3 4"},
    {"a range to the end", u"18-*", "18 19 20"},
    {"a range among numbers", u"9,2-4,1", "9 2 3 4 1"},
    {"a range downwards", u"4-2", "nothing to cut"},
    {"a range to itself", u"2-2", "nothing to cut"},
    {"the last one to the end", u"20-*", "nothing to cut"},
    {"a range past the limit", u"2-21", "nothing to cut"},
    {"a range from zero", u"0-2", "0 1 2"},
    {"a range without a start", u"-2", "nothing to cut"},
    {"a range without an end", u"2-", "nothing to cut"},
    {"parts behind the second are ignored", u"2-4-x", "2 3 4"},
    {"an asterisk is no start", u"*-4", "nothing to cut"},
    {"an asterisk is no item", u"*,2", "2"},
    {"words among numbers", u"one,2,three-4", "2"},
    {"numbers past the limit are dropped", u"21,20,4000000000", "20"},
    {"zero stays", u"0,1", "0 1"},
    {"empty items", u",,2,,", "2"},
    {"commas alone", u",", "nothing to cut"},
    {"blanks around a number", u" 2 , 3", "2 3"},
    {"fractions round to even", u"1.5,2.5,0.5-2.5", "2 2 0 1 2"},
    {"a lone digit", u"3", ""},
    {"a lone number of two digits", u"12", "1"},
    {"a lone number with a blank behind", u"7 ", "7"},
    {"a lone number past the limit", u"21", "nothing to cut"},
    {"a lone word", u"x", "not a specification"},
    {"nothing", u"", "not a specification"},
    {"a number too large", u"1e999", "not a specification"},
};

TEST(FindNotation, ReadsTheTable) {
    for (const Row& row : table)
        EXPECT_EQ(listed(readFindNotation(row.spec, 20)), row.numbers) << row.name;
}

TEST(FindNotation, NothingIsAllOfNothing) {
    EXPECT_EQ(listed(readFindNotation(u"*", 0)), "nothing to cut");
    EXPECT_EQ(listed(readFindNotation(u"0", 0)), "");
}

TEST(FindNotation, AllOfTwoBillionRowsTakesNoRoom) {
    const FindNotation all = readFindNotation(u"*", 2147483647);
    EXPECT_EQ(all.numbers.size(), 2147483647U);
    EXPECT_EQ(all.numbers.at(2147483646), 2147483647);
    const FindNotation wide = readFindNotation(u"&H80000000-2147483647,5", 2147483647);
    EXPECT_EQ(wide.numbers.size(), 4294967297U);
    EXPECT_EQ(wide.numbers.at(4294967295U), 2147483647);
    EXPECT_EQ(wide.numbers.at(4294967296U), 5);
}

TEST(NumberList, APlacePastTheEndIsASubscriptOutOfRange) {
    NumberList list;
    EXPECT_EQ(errorNumberOf([&] { list.at(0); }), 9);
    list.append(3, 4);
    EXPECT_EQ(list.at(1), 4);
    EXPECT_EQ(errorNumberOf([&] { list.at(2); }), 9);
}

TEST(NumberList, WhatTheCutSpoiledIsATypeMismatch) {
    const FindNotation spoiled = readFindNotation(u"&H1", 20);
    ASSERT_EQ(spoiled.numbers.size(), 1U);
    EXPECT_EQ(errorNumberOf([&] { spoiled.numbers.at(0); }), 13);
}

} // namespace
} // namespace lumtex::ordering
