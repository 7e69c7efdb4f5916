#include "values/runtime_error.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

struct Row {
    Long number;
    StringView description;
};

constexpr StringView unknown = u"Application-defined or object-defined error";

constexpr Row rows[] = {
    {5, u"Invalid procedure call or argument"},
    {6, u"Overflow"},
    {7, u"Out of memory"},
    {9, u"Subscript out of range"},
    {11, u"Division by zero"},
    {13, u"Type mismatch"},
    {28, u"Out of stack space"},
    {52, u"Bad file name or number"},
    {53, u"File not found"},
    {54, u"Bad file mode"},
    {55, u"File already open"},
    {57, u"Device I/O error"},
    {58, u"File already exists"},
    {61, u"Disk full"},
    {62, u"Input past end of file"},
    {68, u"Device unavailable"},
    {70, u"Permission denied"},
    {71, u"Disk not ready"},
    {75, u"Path/File access error"},
    {76, u"Path not found"},
    {91, u"Object variable or With block variable not set"},
    {93, u"Invalid pattern string"},
    {94, u"Invalid use of Null"},
    {321, u"Invalid file format"},
    {380, u"Invalid property value"},
    {424, u"Object required"},
    {429, u"ActiveX component can't create object"},
    {430, u"Class does not support Automation or does not support expected interface"},
    {438, u"Object doesn't support this property or method"},
    {448, u"Named argument not found"},
    {449, u"Argument not optional"},
    {450, u"Wrong number of arguments or invalid property assignment"},
    {457, u"This key is already associated with an element of this collection"},
    {461, u"Method or data member not found"},
    {481, u"Invalid picture"},
    {0, unknown},
    {-1, unknown},
    {482, unknown},
    {2147483647, unknown},
    {-2147483647 - 1, unknown},
};

TEST(RuntimeError, EachNumberHasItsText) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.number);
        EXPECT_EQ(errorDescription(row.number), row.description);
        const RuntimeError error(row.number);
        EXPECT_EQ(error.number(), row.number);
        EXPECT_EQ(error.description(), row.description);
    }
}

TEST(RuntimeError, AnObjectMayBringItsOwnText) {
    const RuntimeError error(1001, u"Min darf nicht gr\u00F6\u00DFer sein als Max!");
    EXPECT_EQ(error.number(), 1001);
    EXPECT_EQ(error.description(), u"Min darf nicht gr\u00F6\u00DFer sein als Max!");
    EXPECT_STREQ(error.what(),
                 "Min darf nicht gr\xC3\xB6\xC3\x9F"
                 "er sein als Max!");
}

} // namespace
} // namespace lumtex
