/// What a bar saves, and the colours that it takes over.
#include "bar_fixture.h"

namespace lumtex::testing {

using Inside = bars::ScrollInspector;
using BarSettings = BothBars;
INSTANTIATE_TEST_SUITE_P(Axes,
                         BarSettings,
                         ::testing::Values(bars::Axis::vertical, bars::Axis::horizontal),
                         axisName);

/// Notes each key in the order in which it is used.
class NotingBag final : public PropertyBag {
  public:
    Variant ReadProperty(StringView name, const Variant& defaultValue) const override {
        used.push_back(toUtf8(name) + "=" + toUtf8(defaultValue.toText()));
        return inner.ReadProperty(name, defaultValue);
    }
    void WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) override {
        used.push_back(toUtf8(name) + "=" + toUtf8(defaultValue.toText()));
        inner.WriteProperty(name, value, defaultValue);
    }

    mutable Lines used;
    MemoryPropertyBag inner;
};

Lines keysOf(bool vertical) {
    Lines keys{"Min=0",
               "Max=100",
               "Value=0",
               "Gradient=True",
               "ColorStyle=0",
               "ActiveScrolling=True",
               "LargeChange=1",
               "SmallChange=1",
               "Enabled=True",
               "BackColor=16777215"};
    if (vertical)
        keys.emplace_back("ScrollButtonJumpLines=4");
    return keys;
}

TEST_P(BarSettings, AreReadAndWrittenInOneOrderWithTheirDefaults) {
    NotingBag bag;
    bar().UserControl_WriteProperties(bag);
    EXPECT_EQ(bag.used, keysOf(isVertical()));
    EXPECT_EQ(bag.inner.entries().size(), 1U) << "Max alone differs from its default";
    bag.used.clear();
    bar().UserControl_ReadProperties(bag);
    EXPECT_EQ(bag.used, keysOf(isVertical()));
    EXPECT_EQ(bar().Max(), 50);
}

TEST_P(BarSettings, ComeBackFromTheBag) {
    bar().letMax(300);
    bar().letMin(20);
    bar().letValue(25);
    bar().letGradient(false);
    bar().letColorStyle(2);
    bar().letActiveScrolling(false);
    bar().letLargeChange(12);
    bar().letSmallChange(3);
    bar().letEnabled(false);
    bar().letBackColor(0xABCDEF);
    MemoryPropertyBag bag;
    bar().UserControl_WriteProperties(bag);
    OneBar second(GetParam());
    second.bar().UserControl_InitProperties();
    second.bar().UserControl_ReadProperties(bag);
    MemoryPropertyBag again;
    second.bar().UserControl_WriteProperties(again);
    EXPECT_EQ(again.entries().size(), 10U);
    ASSERT_EQ(again.entries().size(), bag.entries().size());
    for (std::size_t i = 0; i < bag.entries().size(); ++i) {
        EXPECT_EQ(again.entries()[i].name, bag.entries()[i].name);
        EXPECT_EQ(again.entries()[i].value, bag.entries()[i].value);
    }
    EXPECT_EQ(second.boxes(), 0U);
}

TEST_P(BarSettings, ARangeIsCheckedAsItArrives) {
    MemoryPropertyBag bag;
    bag.WriteProperty(u"Min", Long{150}, Long{0});
    bag.WriteProperty(u"Max", Long{300}, Long{100});
    bar().UserControl_InitProperties();
    bar().UserControl_ReadProperties(bag);
    EXPECT_EQ(bar().Min(), 0) << "150 is above the Max that holds then";
    EXPECT_EQ(bar().Max(), 300);
    ASSERT_EQ(boxes(), 1U);
    EXPECT_EQ(desktop.runtime().boxes[0].text, u"Min darf nicht größer sein als Max!");
}

TEST_P(BarSettings, AnUnusableValueIsReportedAndTheNextKeyIsRead) {
    MemoryPropertyBag bag;
    bag.WriteProperty(u"Max", u"much", Long{100});
    bag.WriteProperty(u"Value", Long{7}, Long{0});
    bar().UserControl_ReadProperties(bag);
    EXPECT_EQ(boxes(), 1U);
    EXPECT_EQ(bar().Value(), 7);
}

TEST_P(BarSettings, OfANewBarAreTheDefaults) {
    bar().letEnabled(false);
    bar().letValue(9);
    bar().UserControl_InitProperties();
    MemoryPropertyBag bag;
    bar().UserControl_WriteProperties(bag);
    EXPECT_TRUE(bag.entries().empty());
}

TEST_P(BarSettings, TheTenColoursAreReadInTheirOrderWithTheirDefaults) {
    NotingBag bag;
    bar().SetNewProperty(bag);
    const Lines buttons{"ScrollArrows=0",
                        "ScrollArrowsDown=0",
                        "ScrollArrowsHover=0",
                        "ScrollButtons=-2147483633",
                        "ScrollButtonsDown=-2147483633",
                        "ScrollButtonsHover=-2147483633"};
    Lines expected{"ScrollBackColor=16777215",
                   "ScrollBar=-2147483633",
                   "ScrollBarDown=-2147483633",
                   "ScrollBarHover=-2147483633"};
    for (int button = 0; button < 2; ++button)
        expected.insert(expected.end(), buttons.begin(), buttons.end());
    EXPECT_TRUE(sameLog(bag.used, expected));
}

TEST_P(BarSettings, TheTenColoursReachThumbAndBothButtons) {
    const auto color = [](Long number) { return static_cast<OLE_COLOR>(number); };
    MemoryPropertyBag bag;
    Long number = 0;
    for (const char16_t* key : {u"ScrollBackColor",
                                u"ScrollBar",
                                u"ScrollBarDown",
                                u"ScrollBarHover",
                                u"ScrollArrows",
                                u"ScrollArrowsDown",
                                u"ScrollArrowsHover",
                                u"ScrollButtons",
                                u"ScrollButtonsDown",
                                u"ScrollButtonsHover"})
        bag.WriteProperty(key, ++number, Long{0});
    bar().SetNewProperty(bag);
    EXPECT_EQ(bar().BackColor(), color(1));
    EXPECT_EQ(thumb().Bar(), color(2));
    EXPECT_EQ(thumb().BarDown(), color(3));
    EXPECT_EQ(thumb().BarHover(), color(4));
    for (bars::ArrowButton* button : {&low(), &high()}) {
        EXPECT_EQ(button->colors().Arrow, color(5));
        EXPECT_EQ(button->colors().ArrowDown, color(6));
        EXPECT_EQ(button->colors().ArrowHover, color(7));
        EXPECT_EQ(button->colors().Button, color(8));
        EXPECT_EQ(button->colors().ButtonDown, color(9));
        EXPECT_EQ(button->colors().ButtonHover, color(10));
    }
}

} // namespace lumtex::testing
