#include "support/error_number.h"
#include "values/rounding.h"

#include <cmath>
#include <limits>

namespace lumtex {
namespace {

struct Row {
    const char* name;
    Double value;
    Long rounded;
};

constexpr Row toLongRows[] = {
    {"a half goes down to an even number", 2.5, 2},
    {"a half goes up to an even number", 3.5, 4},
    {"a half above zero gives zero", 0.5, 0},
    {"a half below zero gives zero", -0.5, 0},
    {"one and a half below zero gives minus two", -1.5, -2},
    {"two and a half below zero gives minus two", -2.5, -2},
    {"just below a half", 2.4999999999999996, 2},
    {"just above a half", 2.5000000000000004, 3},
    {"the largest number below a half", 0.49999999999999994, 0},
    {"the largest Long", 2147483647.0, 2147483647},
    {"the largest Long with a rest that rounds away", 2147483647.4, 2147483647},
    {"the smallest Long", -2147483648.0, std::numeric_limits<Long>::min()},
    {"a half below the smallest Long comes back to it", -2147483648.5, std::numeric_limits<Long>::min()},
};

TEST(Rounding, TiesGoToTheEvenNumber) {
    for (const Row& row : toLongRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(roundToLong(row.value), row.rounded);
    }
}

TEST(Rounding, WhatDoesNotFitOverflows) {
    const Double infinite = std::numeric_limits<Double>::infinity();
    for (const Double value :
         {2147483647.5, -2147483649.0, 1e300, -1e300, infinite, -infinite, std::nan("")}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(errorNumberOf([&] { roundToLong(value); }), ErrorNumber::overflow);
        EXPECT_EQ(errorNumberOf([&] { roundToInteger(value); }), ErrorNumber::overflow);
        EXPECT_EQ(errorNumberOf([&] { roundToByte(value); }), ErrorNumber::overflow);
    }
}

TEST(Rounding, EachKindHasItsOwnBounds) {
    EXPECT_EQ(roundToInteger(32767.4), 32767);
    EXPECT_EQ(roundToInteger(-32768.5), -32768);
    EXPECT_EQ(errorNumberOf([] { roundToInteger(32767.5); }), ErrorNumber::overflow);
    EXPECT_EQ(errorNumberOf([] { roundToInteger(-32769); }), ErrorNumber::overflow);
    EXPECT_EQ(roundToByte(255.4), 255);
    EXPECT_EQ(roundToByte(-0.5), 0);
    EXPECT_EQ(errorNumberOf([] { roundToByte(255.5); }), ErrorNumber::overflow);
    EXPECT_EQ(errorNumberOf([] { roundToByte(-0.6); }), ErrorNumber::overflow);
}

} // namespace
} // namespace lumtex
