#include "list_fixture.h"
#include "nosy_bag.h"
#include "variant_printing.h"

namespace lumtex::testing {
namespace {

class WriteProperties : public ListFixture {
  protected:
    /// The names in the order in which a list asks for them.
    std::vector<String> namesRead() {
        class AskedBag final : public PropertyBag {
          public:
            Variant ReadProperty(StringView name, const Variant& defaultValue) const override {
                names.emplace_back(name);
                return defaultValue;
            }
            void WriteProperty(StringView, const Variant&, const Variant&) override {}
            mutable std::vector<String> names;
        };
        const AskedBag bag;
        list.UserControl_ReadProperties(bag);
        return bag.names;
    }
};

TEST_F(WriteProperties, OfAListThatWasReadFromAnEmptyBagWritesNothing) {
    list.UserControl_ReadProperties(MemoryPropertyBag());
    MemoryPropertyBag bag;
    list.UserControl_WriteProperties(bag);
    EXPECT_TRUE(bag.entries().empty());
    list.letRowHeight(list.RowHeight() + 15);
    list.UserControl_WriteProperties(bag);
    ASSERT_EQ(bag.entries().size(), 1U);
    EXPECT_EQ(bag.entries().front().name, u"RowHeight");
}

TEST_F(WriteProperties, AnUntouchedFontFollowsTheContainerAtEachLoad) {
    MemoryPropertyBag bag;
    list.UserControl_ReadProperties(bag);
    list.UserControl_WriteProperties(bag);
    host.font = std::make_shared<Font>(FontSpec{.Name = u"Other", .Size = 20});
    list.UserControl_ReadProperties(bag);
    EXPECT_EQ(list.DefaultItemFont()->spec, host.font->spec);
    EXPECT_EQ(list.DefaultColumnFont()->spec, host.font->spec);
    FontRef own = list.DefaultItemFont()->Clone();
    own->spec.Bold = true;
    list.setDefaultItemFont(own);
    list.UserControl_WriteProperties(bag);
    ASSERT_EQ(bag.entries().size(), 1U);
    EXPECT_EQ(bag.entries().front().name, u"DefaultItemFont");
    host.font = std::make_shared<Font>(FontSpec{.Name = u"Third", .Size = 9});
    list.UserControl_ReadProperties(bag);
    EXPECT_EQ(list.DefaultItemFont()->spec, own->spec);
    EXPECT_EQ(list.DefaultColumnFont()->spec, host.font->spec);
}

TEST_F(WriteProperties, WritesTheKeysThatAreReadWithTheSameDefaults) {
    const std::vector<String> read = namesRead();
    EXPECT_EQ(read.size(), 69U);
    NosyBag bag;
    list.UserControl_WriteProperties(bag);
    EXPECT_EQ(std::set<String>(bag.names.begin(), bag.names.end()),
              std::set<String>(read.begin(), read.end()));
    ASSERT_EQ(bag.names.size(), 69U);
    for (std::size_t i = 0; i < bag.names.size(); ++i) {
        if (!bag.values[i].isObject()) {
            EXPECT_EQ(bag.values[i].toText(), bag.defaults[i].toText()) << toUtf8(bag.names[i]);
        }
    }
}

// Wanted: one key is written earlier than it is read.
TEST_F(WriteProperties, AutoRedrawIsWrittenBehindTheEmptyFieldsWidth) {
    std::vector<String> expected = namesRead();
    std::erase(expected, u"AutoRedraw");
    expected.insert(std::ranges::find(expected, u"EmptyColumnFieldWidth") + 1, u"AutoRedraw");
    NosyBag bag;
    list.UserControl_WriteProperties(bag);
    EXPECT_EQ(bag.names, expected);
}

TEST_F(WriteProperties, WhatWasWrittenIsReadBack) {
    list.letBackColor(0x123456);
    list.letColorStyle(cCustom);
    list.letScrollColorStyle(cXPScrollOlive);
    list.letRowHeight(450);
    list.letAutoRedraw(false);
    list.letOLEDragMode(2);
    list.letTextPositionDefault(cTextPosBottom);
    inside.letAllowItemMoving(true);
    list.setDefaultItemFont(std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 20, .Bold = true}));
    const PictureRef skin = std::make_shared<BitmapPicture>(Bitmap(16, 3));
    list.setSkin(skin);
    MemoryPropertyBag bag;
    list.UserControl_WriteProperties(bag);

    lmListView other{desktop, host, events};
    other.UserControl_ReadProperties(bag);
    EXPECT_EQ(other.BackColor(), 0x123456U);
    EXPECT_EQ(other.ColorStyle(), cCustom);
    EXPECT_EQ(other.ScrollColorStyle(), cXPScrollOlive);
    EXPECT_EQ(other.RowHeight(), 450);
    EXPECT_FALSE(other.AutoRedraw());
    EXPECT_EQ(other.OLEDragMode(), 2);
    EXPECT_EQ(other.TextPositionDefault(), cTextPosBottom);
    EXPECT_EQ(other.DefaultItemFont()->spec, list.DefaultItemFont()->spec);
    EXPECT_EQ(other.Skin(), skin);
    MemoryPropertyBag again;
    other.UserControl_WriteProperties(again);
    EXPECT_EQ(again.ReadProperty(u"AllowItemMoving", false), Variant(true));
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(WriteProperties, AKeyThatTheBagRefusesIsReportedAndTheOthersFollow) {
    NosyBag bag;
    bag.refused = u"GridLines";
    list.UserControl_WriteProperties(bag);
    EXPECT_EQ(lastReport(), "7 UserControl_WriteProperties");
    EXPECT_EQ(bag.names.size(), 69U);
}

TEST_F(WriteProperties, ContentIsNeverSaved) {
    addColumns({50});
    addRows(3, u"a");
    list.letListIndex(1);
    NosyBag bag;
    list.UserControl_WriteProperties(bag);
    for (const char16_t* name : {u"ListIndex", u"TopIndex", u"NewIndex", u"Recordset"})
        EXPECT_EQ(std::ranges::count(bag.names, String(name)), 0);
}

} // namespace
} // namespace lumtex::testing
