/// The cells of a row stay with all who hold them, wherever they move in memory.
#include "records/items.h"
#include "records/row_array.h"

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class Cells : public ::testing::Test {
  protected:
    Items make(std::size_t count, StringView text) {
        Items items = Items::create(count);
        for (std::size_t i = 0; i < count; ++i)
            items.append(text, style);
        return items;
    }
    static std::string says(const Items& items) {
        std::string said;
        for (std::size_t i = 0; i < items.count(); ++i) {
            const CellExtras* const rare = items.extras(i);
            const String text = items[i].Text();
            said += std::string(text.begin(), text.end()) + (rare != nullptr ? "+" : "") +
                    std::string(rare != nullptr ? rare->ToolTip.size() : 0, 't') + " ";
        }
        return said;
    }

    StyleLease style{CellStyle{}};
};

TEST_F(Cells, WithRareFieldsAreSeenByEachHolder) {
    for (const std::size_t count : {1U, 5U, 30U}) {
        Items items = make(count, u"a text outside of its cell");
        const Items before = items;
        items.needExtras(count - 1).ToolTip = u"tip";
        const Items after = items;
        EXPECT_EQ(says(before), says(items));
        EXPECT_TRUE(before.sharesWith(after));
        ASSERT_NE(before.extras(count - 1), nullptr);
        EXPECT_EQ(before.extras(count - 1)->ToolTip, u"tip");
        EXPECT_EQ(before.extras(count), nullptr);
    }
}

TEST_F(Cells, ThatCameLaterHaveRareFieldsToo) {
    Items items = make(2, u"x");
    const Items holder = items;
    items.needExtras(0).ToolTip = u"t";
    items.append(u"y", style);
    items.needExtras(2).ToolTip = u"tt";
    EXPECT_EQ(says(holder), "x+t x y+tt ");
}

TEST_F(Cells, GrowFromNone) {
    std::vector<Items> rows;
    for (int i = 0; i < 10; ++i)
        rows.push_back(Items::create(0));
    const std::vector<Items> holders = rows;
    for (Items& items : rows) {
        items.append(u"a", style);
        items.append(u"b", style);
    }
    for (const Items& items : holders)
        EXPECT_EQ(says(items), "a b ");
}

TEST_F(Cells, OutliveTheirRow) {
    std::optional<RowArray> rows(std::in_place);
    for (int i = 0; i < 2000; ++i) {
        rows->append();
        rows->back().items = make(5, u"sixteen letters.");
    }
    rows->operator[](7).items.needExtras(1).ToolTip = u"t";
    const Items plain = rows->operator[](1999).items;
    const Items rare = rows->operator[](7).items;
    rows.reset();
    EXPECT_EQ(says(rare),
              "sixteen letters. sixteen letters.+t sixteen letters. sixteen letters. sixteen letters. ");
    EXPECT_EQ(says(plain),
              "sixteen letters. sixteen letters. sixteen letters. sixteen letters. sixteen letters. ");
}

} // namespace
} // namespace lumtex::testing
