#include "list_fixture.h"

namespace lumtex::testing {

using ReadProperties = ListFixture;

TEST_F(ReadProperties, AnEmptyBagGivesTheValuesOfANewInstanceButForTwoColours) {
    host.changed.clear();
    list.UserControl_ReadProperties(MemoryPropertyBag());
    EXPECT_EQ(list.BackColor(), 0xFFFFFFU);
    EXPECT_EQ(list.RowHeight(), 240);
    EXPECT_EQ(list.TextPositionDefault(), cTextPosCenter);
    EXPECT_EQ(list.ScrollButtonJumpLines(), 1);
    EXPECT_EQ(list.RowColorFirst(), 0xFFFFFFU);
    EXPECT_EQ(list.RowColorSecond(), 0xFFFFFFU);
    // 69 keys, one of which does not tell the host, and two more lines: the bars' style and the index at the
    // end.
    EXPECT_EQ(host.changed.size(), 69U - 1 + 2);
    EXPECT_EQ(host.changed.front(), u"DefaultItemFont");
    EXPECT_EQ(host.changed.back(), u"ListIndex");
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(ReadProperties, TheArraysExistAndTheStateIsIdle) {
    inside.letPressedColumn(4);
    list.UserControl_ReadProperties(MemoryPropertyBag());
    EXPECT_TRUE(inside.ArrDim(Long{0}));
    EXPECT_TRUE(inside.ArrDim(Long{1}));
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(list.ColumnsCount(), 0);
    EXPECT_TRUE(says(inside.header(), "pressed=none hover=none"));
    EXPECT_TRUE(says(inside.sort(), "column=none up=1"));
    EXPECT_TRUE(says(inside.selection(), "anchor=none selects=yes scrolls=no"));
}

TEST_F(ReadProperties, ASavedListLoadsEmpty) {
    addColumns({50});
    addRows(2, u"a");
    list.UserControl_ReadProperties(MemoryPropertyBag());
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(list.ColumnsCount(), 0);
}

TEST_F(ReadProperties, WithoutAScrollStyleTheBarsEndAtItsDefault) {
    MemoryPropertyBag bag;
    bag.WriteProperty(u"ColorStyle", Long{2}, Long{0});
    list.UserControl_ReadProperties(bag);
    EXPECT_EQ(list.ColorStyle(), cXPOlive);
    EXPECT_EQ(list.ScrollColorStyle(), cXPScrollBlue);
}

TEST_F(ReadProperties, AnUnusableValueIsReportedAndReadingGoesOn) {
    MemoryPropertyBag bag;
    bag.WriteProperty(u"IconW", u"wide", Long{0});
    bag.WriteProperty(u"IconH", Long{24}, Long{0});
    list.UserControl_ReadProperties(bag);
    EXPECT_EQ(lastReport(), "13 UserControl_ReadProperties");
    EXPECT_EQ(list.IconH(), 24);
    EXPECT_EQ(list.IconW(), 16) << "stays as it was";
}

TEST_F(ReadProperties, AnUnusableValueOfAnyKeyIsReportedOnceAndAllKeysAreRead) {
    /// Gives what its key cannot be, for one of the keys.
    class SpoiltBag final : public PropertyBag {
      public:
        Variant ReadProperty(StringView name, const Variant& defaultValue) const override {
            const bool spoilt = asked++ == spoiltKey;
            if (spoilt)
                spoiltName = name;
            return !spoilt ? defaultValue : defaultValue.isObject() ? Variant(Long{1}) : Variant(u"unusable");
        }
        void WriteProperty(StringView, const Variant&, const Variant&) override {}

        std::size_t spoiltKey = 0;
        mutable std::size_t asked = 0;
        mutable String spoiltName;
    };
    constexpr std::size_t keys = 69;
    for (std::size_t key = 0; key < keys; ++key) {
        SpoiltBag bag;
        bag.spoiltKey = key;
        list.UserControl_ReadProperties(bag);
        EXPECT_EQ(bag.asked, keys);
        EXPECT_EQ(reportCount(), key + 1) << toUtf8(bag.spoiltName);
        EXPECT_EQ(lastReport(), "13 UserControl_ReadProperties") << toUtf8(bag.spoiltName);
    }
}

TEST_F(ReadProperties, PaintsWhenAllIsRead) {
    // Once for the cleared rows, once for the cleared columns, once at the end.
    EXPECT_EQ(paintsOf([&] { list.UserControl_ReadProperties(MemoryPropertyBag()); }), 3);
}

} // namespace lumtex::testing
