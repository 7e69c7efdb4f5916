/// The keys of the bag, each with the default that stands in for it.
#include "list_fixture.h"
#include "nosy_bag.h"
#include "variant_printing.h"

namespace lumtex::testing {
namespace {

struct Key {
    StringView name;
    Variant byDefault;
};

/// In the order in which they are read; those of fonts and pictures have an object, or none.
const std::vector<Key>& keyTable() {
    constexpr Long face = -2147483633; // 0x8000000F
    constexpr Long black = 0;
    constexpr Long white = 0xFFFFFF;
    static const std::vector<Key> table = {
        {u"DefaultItemFont", {}},
        {u"DefaultItemForeColor", black},
        {u"BackColor", white},
        {u"BackColorDisabled", white},
        {u"Enabled", true},
        {u"ClickOnIndexChange", false},
        {u"ColorStyle", Long{0}},
        {u"BorderColor", black},
        {u"Style", Long{0}},
        {u"FullRowSelect", true},
        {u"AllowEdit", false},
        {u"ValueColor", Long{0xFF0000}},
        {u"BorderVisible", true},
        {u"IndentTop", Single{3}},
        {u"IndentLeft", Single{3}},
        {u"IndentRight", Single{3}},
        {u"IndentBottom", Single{3}},
        {u"DistPicText", Single{2}},
        {u"AutoCheckScroll", true},
        {u"IconSelect", true},
        {u"IconW", Single{16}},
        {u"IconH", Single{16}},
        {u"ColumnIconW", Single{16}},
        {u"ColumnIconH", Single{16}},
        {u"ScrollColorStyle", Long{0}},
        {u"GridLines", false},
        {u"GridLineColor", Long{0xC0C0C0}},
        {u"MultiSelect", false},
        {u"HideColumnHeaders", false},
        {u"ColumnTextY", Long{2}},
        {u"MoveColumnTextAtDown", false},
        {u"DefaultColumnFont", {}},
        {u"DefaultColumnForeColor", black},
        {u"EmptyColumnFieldWidth", Single{0}},
        {u"ColumnBackColor", face},
        {u"ColumnDownColor", face},
        {u"ColumnHoverColor", face},
        {u"RowsDynamic", true},
        {u"RowHeight", Single{240}}, // 16 pixels of 15 twips
        {u"AutoRedraw", true},
        {u"ScrollBackColor", face},
        {u"ScrollArrows", black},
        {u"ScrollButtons", face},
        {u"ScrollBar", face},
        {u"ScrollArrowsDown", black},
        {u"ScrollButtonsDown", face},
        {u"ScrollBarDown", face},
        {u"ScrollArrowsHover", black},
        {u"ScrollButtonsHover", face},
        {u"ScrollBarHover", face},
        {u"EmptyColumnFieldColor", face},
        {u"WheelFunction", Long{0}},
        {u"DefaultIconSelectedIsIcon", true},
        {u"WheelScrollLines", Long{1}},
        {u"ScrollButtonJumpLines", Long{1}},
        {u"TextPositionDefault", Long{1}},
        {u"DrawItemIcons", true},
        {u"DrawColumnIcons", true},
        {u"BackgroundPicture", PictureRef()},
        {u"Skin", PictureRef()},
        {u"FixColumns", false},
        {u"CheckMouseOver", false},
        {u"OLEDropMode", Long{0}},
        {u"OLEDragMode", Long{0}},
        {u"AutoRowColor", false},
        {u"RowColorFirst", white},
        {u"RowColorSecond", white},
        {u"HideSelection", false},
        {u"AllowItemMoving", false},
    };
    return table;
}

/// "16", "True", "nothing" for no picture; fonts are told apart from pictures only.
std::string shown(const Variant& value) {
    if (value.isObject())
        return value.toFont() != nullptr ? "font" : "nothing";
    return toUtf8(value.toText());
}

/// Notes what is asked for.
class AskedBag final : public PropertyBag {
  public:
    Variant ReadProperty(StringView name, const Variant& defaultValue) const override {
        asked.push_back({name, defaultValue});
        return defaultValue;
    }
    void WriteProperty(StringView, const Variant&, const Variant&) override {}
    mutable std::vector<Key> asked;
};

class PropertyKeys : public ListFixture {};

TEST_F(PropertyKeys, AreReadInTheirOrderWithTheirDefaults) {
    const AskedBag bag;
    list.UserControl_ReadProperties(bag);
    ASSERT_EQ(bag.asked.size(), keyTable().size());
    for (std::size_t i = 0; i < keyTable().size(); ++i) {
        const Key& key = keyTable()[i];
        EXPECT_EQ(bag.asked[i].name, key.name);
        EXPECT_EQ(shown(bag.asked[i].byDefault), key.byDefault.isEmpty() ? "font" : shown(key.byDefault))
            << toUtf8(key.name);
    }
}

TEST_F(PropertyKeys, GiveTheListTheirDefaultsWhereTheBagHasNone) {
    list.UserControl_ReadProperties(MemoryPropertyBag());
    NosyBag bag;
    list.UserControl_WriteProperties(bag);
    ASSERT_EQ(bag.names.size(), keyTable().size());
    for (const Key& key : keyTable()) {
        const auto found = std::find(bag.names.begin(), bag.names.end(), key.name);
        ASSERT_NE(found, bag.names.end()) << toUtf8(key.name);
        const auto i = static_cast<std::size_t>(found - bag.names.begin());
        const std::string expected = key.byDefault.isEmpty() ? "font" : shown(key.byDefault);
        EXPECT_EQ(shown(bag.values[i]), expected) << toUtf8(key.name);
        EXPECT_EQ(shown(bag.defaults[i]), expected) << toUtf8(key.name);
    }
}

} // namespace
} // namespace lumtex::testing
