#include "platform/property_bag.h"
#include "values/color.h"

#include <limits>

#include <gtest/gtest.h>

namespace lumtex {
namespace {

String namesIn(const MemoryPropertyBag& bag) {
    String names;
    for (const MemoryPropertyBag::Entry& entry : bag.entries())
        names += entry.name + u" ";
    return names;
}

TEST(PropertyBag, GivesTheDefaultForWhatIsNotThere) {
    const MemoryPropertyBag bag;
    EXPECT_EQ(bag.ReadProperty(u"RowHeight", Long{300}), Variant(Long{300}));
}

TEST(PropertyBag, GivesBackWhatWasWritten) {
    MemoryPropertyBag bag;
    bag.WriteProperty(u"RowHeight", Long{400}, Long{300});
    bag.WriteProperty(u"Caption", u"", u"List");
    EXPECT_EQ(bag.ReadProperty(u"RowHeight", Long{300}), Variant(Long{400}));
    EXPECT_EQ(bag.ReadProperty(u"Caption", u"List"), Variant(u""));
}

TEST(PropertyBag, NamesCompareWithoutRegardToCase) {
    MemoryPropertyBag bag;
    bag.WriteProperty(u"RowHeight", Long{400}, Long{300});
    bag.WriteProperty(u"ROWHEIGHT", Long{500}, Long{300});
    EXPECT_EQ(bag.ReadProperty(u"rowheight", Long{300}), Variant(Long{500}));
    EXPECT_EQ(namesIn(bag), u"RowHeight ");
}

TEST(PropertyBag, LeavesOutWhatEqualsItsDefault) {
    MemoryPropertyBag bag;
    bag.WriteProperty(u"RowHeight", Long{300}, Long{300});
    EXPECT_TRUE(bag.entries().empty());
    bag.WriteProperty(u"RowHeight", Long{400}, Long{300});
    bag.WriteProperty(u"RowHeight", Long{300}, Long{300});
    EXPECT_TRUE(bag.entries().empty());
}

TEST(PropertyBag, KeepsTheOrderOfFirstWriting) {
    MemoryPropertyBag bag;
    bag.WriteProperty(u"b", Long{1}, Long{0});
    bag.WriteProperty(u"a", Long{1}, Long{0});
    bag.WriteProperty(u"b", Long{2}, Long{0});
    EXPECT_EQ(namesIn(bag), u"b a ");
    bag.WriteProperty(u"b", Long{0}, Long{0});
    bag.WriteProperty(u"b", Long{3}, Long{0});
    EXPECT_EQ(namesIn(bag), u"a b ");
}

TEST(PropertyBag, ComparesNumbersByValueAndAllElseByKind) {
    const FontRef font = std::make_shared<Font>(FontSpec{});
    struct Row {
        const char* name;
        Variant value;
        Variant defaultValue;
        bool leftOut;
    };
    const Row rows[] = {
        {"two kinds of number", Integer{5}, 5.0, true},
        {"a colour and its Long", buttonFace, -2147483633.0, true},
        {"a Boolean and its number", true, Integer{-1}, true},
        {"other numbers", Integer{5}, 5.5, false},
        {"the same text", u"a", u"a", true},
        {"text in other case", u"a", u"A", false},
        {"a number and its text", Long{1}, u"1", false},
        {"Empty and Empty", {}, {}, true},
        {"Empty and zero", {}, Long{0}, false},
        {"Empty and no text", {}, u"", false},
        {"a date and its number", Date{1}, 1.0, false},
        {"the same object", font, font, true},
        {"an equal font", font, std::make_shared<Font>(FontSpec{}), true},
        {"another font", font, std::make_shared<Font>(FontSpec{.Name = u"", .Size = 8}), false},
        {"no picture and no object", PictureRef(), ObjectRef(), true},
        {"an object and none", font, FontRef(), false},
        {"no picture and Empty", PictureRef(), {}, false},
        {"not a number", std::numeric_limits<Double>::quiet_NaN(), 0.0, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        MemoryPropertyBag bag;
        bag.WriteProperty(u"P", row.value, row.defaultValue);
        EXPECT_EQ(bag.entries().empty(), row.leftOut);
    }
}

} // namespace
} // namespace lumtex
