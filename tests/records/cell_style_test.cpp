/// The table of styles that cells share.
#include "records/cell_style.h"
#include "values/color.h"

#include <optional>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

constexpr OLE_COLOR red = 0x0000FF;

FontSpec fontOf(Single size) {
    return {.Name = u"Verdana", .Size = size};
}

TEST(CellStyles, CellsOfOneLookShareAHandle) {
    CellStyle style;
    style.ForeColor = red;
    const StyleLease one(style);
    const StyleLease other(style);
    EXPECT_EQ(one.handle(), other.handle());
    style.Alignment = cItemRight;
    EXPECT_NE(StyleLease(style).handle(), one.handle());
}

TEST(CellStyles, ANewCellIsAsPlainAsAStyleThatNobodyChanged) {
    CellStyle style;
    style.ForeColor = red;
    style.font = fontOf(12);
    const StyleLease plain(style);
    const StyleLease first(red, fontOf(12));
    const StyleLease second(red, fontOf(12));
    EXPECT_EQ(first.handle(), plain.handle());
    EXPECT_EQ(second.handle(), plain.handle());
}

TEST(CellStyles, ANewCellFollowsColorAndFont) {
    const StyleLease before(red, fontOf(12));
    const StyleLease larger(red, fontOf(13));
    const StyleLease darker(black, fontOf(13));
    const CellStyles& styles = CellStyles::ofThread();
    EXPECT_EQ(styles[before.handle()].font.Size, 12);
    EXPECT_EQ(styles[larger.handle()].font.Size, 13);
    EXPECT_EQ(styles[larger.handle()].ForeColor, red);
    EXPECT_EQ(styles[darker.handle()].ForeColor, black);
}

TEST(CellStyles, TheLookOfNewCellsMayGoAndItsHandleBeGivenToAnother) {
    std::optional<StyleLease> ofNewCells;
    ofNewCells.emplace(red, fontOf(12));
    const StyleHandle handle = ofNewCells->handle();
    ofNewCells.reset();
    CellStyle other;
    other.ForeColor = red;
    other.font = fontOf(12);
    other.AllowEdit = true;
    const StyleLease successor(other);
    ASSERT_EQ(successor.handle(), handle);
    const StyleLease again(red, fontOf(12));
    EXPECT_NE(again.handle(), handle);
    EXPECT_FALSE(CellStyles::ofThread()[again.handle()].AllowEdit);
}

TEST(CellStyles, AShareKeepsAStyle) {
    std::optional<StyleLease> lease;
    lease.emplace(red, fontOf(12));
    const StyleHandle shared = lease->share();
    lease.reset();
    EXPECT_EQ(CellStyles::ofThread()[shared].ForeColor, red);
    CellStyles::ofThread().release(shared);
}

} // namespace
} // namespace lumtex::testing
