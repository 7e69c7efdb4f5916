#include "content/content_colors.h"
#include "content_fixture.h"

namespace lumtex::testing {
namespace {

using ContentColors = ContentFixture;

struct Row {
    StringView text;
    Long code;
};

constexpr std::array<Row, 15> rows{{
    {u"def", 999999999},
    {u"DEF", 0xFFFFFF},
    {u"12A", 0xFFFFFF},
    {u"", 0xFFFFFF},
    {u"#FF0000", 0xFFFFFF},
    {u"red", 0xFFFFFF},
    {u"255", 255},
    {u" 255 ", 255},
    {u"&HFF", 255},
    {u"2.5", 2},
    {u"-2147483631", -2147483631},
    {u"999999999", 999999999},
    {u"4294967295", 0},
    {u"1E300", 0},
    {u"-1", -1},
}};

TEST_F(ContentColors, EachTextHasItsCode) {
    for (const Row& row : rows)
        EXPECT_EQ(content::GetCorrectColor(desktop.runtime(), row.text), row.code) << toUtf8(row.text);
    EXPECT_EQ(takeReports(), "6 GetCorrectColor\n6 GetCorrectColor\n");
}

// Wanted: no HTML colour is parsed, whatever the name says.
TEST_F(ContentColors, EachCodeButThatOfDefIsTheColour) {
    EXPECT_EQ(content::HTML2VBColor(999999999), Variant(u"def"));
    EXPECT_EQ(content::HTML2VBColor(0xFFFFFF), Variant(Long{0xFFFFFF}));
    EXPECT_EQ(content::HTML2VBColor(-2147483631), Variant(Long{-2147483631}));
    EXPECT_EQ(content::GetCorrectColor(desktop.runtime(), content::HTML2VBColor(999999999).toText()),
              999999999);
}

} // namespace
} // namespace lumtex::testing
