#include "bars/scroll_colors.h"
#include "list_fixture.h"
#include "model/property_table.h"

#include <map>

namespace lumtex::testing {

using Setters = ListFixture;

namespace {

constexpr Single sixteenPixels = 240; // twips

/// A new instance, as a host makes it.
struct Fresh {
    headless::Desktop desktop{testFonts()};
    TestHost host;
    RecordingEvents events;
    lmListView list{desktop, host, events};
};

struct StartValue {
    const char16_t* name;
    std::function<Variant(lmListView&)> read;
    Variant value;
};

template <class T>
Variant number(T value) {
    if constexpr (std::is_enum_v<T>)
        return static_cast<Long>(value);
    else
        return value;
}

/// In the order in which they are assigned. `AllowItemMoving` has no public accessor.
const std::vector<StartValue>& startValues() {
#define PLAIN(name, value)                                                                                   \
    {                                                                                                        \
        u## #name, [](lmListView& list) { return number(list.name()); }, number(value)                       \
    }
    static const std::vector<StartValue> values = {
        {u"DefaultItemFont", [](lmListView& list) { return list.DefaultItemFont()->spec.Name; }, u"Verdana"},
        PLAIN(DefaultItemForeColor, OLE_COLOR{0}),
        PLAIN(BackColor, OLE_COLOR{0xFFFFFF}),
        PLAIN(BackColorDisabled, OLE_COLOR{0xFFFFFF}),
        PLAIN(Enabled, true),
        PLAIN(ClickOnIndexChange, false),
        PLAIN(ColorStyle, cXPBlue),
        PLAIN(BorderColor, OLE_COLOR{0}),
        PLAIN(Style, cDefault),
        PLAIN(FullRowSelect, true),
        PLAIN(AllowEdit, false),
        PLAIN(ValueColor, OLE_COLOR{0xFF0000}),
        PLAIN(BorderVisible, true),
        PLAIN(IndentTop, 3.0F),
        PLAIN(IndentLeft, 3.0F),
        PLAIN(IndentRight, 3.0F),
        PLAIN(IndentBottom, 3.0F),
        PLAIN(DistPicText, 2.0F),
        PLAIN(AutoCheckScroll, true),
        PLAIN(IconSelect, true),
        PLAIN(IconW, 16.0F),
        PLAIN(IconH, 16.0F),
        PLAIN(ColumnIconW, 16.0F),
        PLAIN(ColumnIconH, 16.0F),
        PLAIN(ListIndex, Long{-1}),
        PLAIN(ScrollColorStyle, cXPScrollBlue),
        PLAIN(GridLines, false),
        PLAIN(GridLineColor, OLE_COLOR{0xC0C0C0}),
        PLAIN(EmptyColumnFieldColor, OLE_COLOR{0x8000000F}),
        PLAIN(MultiSelect, false),
        PLAIN(HideColumnHeaders, false),
        PLAIN(ColumnTextY, Long{2}),
        PLAIN(MoveColumnTextAtDown, false),
        {u"DefaultColumnFont", [](lmListView& list) { return list.DefaultColumnFont()->spec.Size; }, 9.75F},
        PLAIN(DefaultColumnForeColor, OLE_COLOR{0}),
        PLAIN(EmptyColumnFieldWidth, 0.0F),
        PLAIN(ColumnBackColor, OLE_COLOR{0x8000000F}),
        PLAIN(ColumnDownColor, OLE_COLOR{0x8000000F}),
        PLAIN(ColumnHoverColor, OLE_COLOR{0x8000000F}),
        PLAIN(RowsDynamic, true),
        PLAIN(RowHeight, sixteenPixels),
        PLAIN(AutoRedraw, true),
        PLAIN(ScrollBackColor, OLE_COLOR{0x8000000F}),
        PLAIN(ScrollArrows, OLE_COLOR{0}),
        PLAIN(ScrollButtons, OLE_COLOR{0x8000000F}),
        PLAIN(ScrollBar, OLE_COLOR{0x8000000F}),
        PLAIN(ScrollArrowsDown, OLE_COLOR{0}),
        PLAIN(ScrollButtonsDown, OLE_COLOR{0x8000000F}),
        PLAIN(ScrollBarDown, OLE_COLOR{0x8000000F}),
        PLAIN(ScrollArrowsHover, OLE_COLOR{0}),
        PLAIN(ScrollButtonsHover, OLE_COLOR{0x8000000F}),
        PLAIN(ScrollBarHover, OLE_COLOR{0x8000000F}),
        PLAIN(WheelFunction, cWheelScroll),
        PLAIN(DefaultIconSelectedIsIcon, true),
        PLAIN(WheelScrollLines, Long{1}),
        PLAIN(ScrollButtonJumpLines, Long{1}),
        PLAIN(TextPositionDefault, cTextPosCenter),
        PLAIN(DrawItemIcons, true),
        PLAIN(DrawColumnIcons, true),
        PLAIN(FixColumns, false),
        PLAIN(CheckMouseOver, false),
        PLAIN(OLEDropMode, Long{0}),
        PLAIN(OLEDragMode, Long{0}),
        PLAIN(HideSelection, false),
    };
#undef PLAIN
    return values;
}

} // namespace

TEST(NewInstance, HasItsStartValues) {
    Fresh fresh;
    fresh.list.UserControl_InitProperties();
    for (const StartValue& start : startValues())
        EXPECT_EQ(start.read(fresh.list).toText(), start.value.toText()) << toUtf8(start.name);
}

TEST(NewInstance, IsAssignedInTheStatedOrderThroughTheSetters) {
    Fresh fresh;
    fresh.list.UserControl_InitProperties();
    std::vector<String> expected;
    for (const StartValue& start : startValues()) {
        if (StringView(start.name) == u"ColorStyle")
            expected.emplace_back(u"ScrollColorStyle"); // carried along by the style
        if (StringView(start.name) != u"TextPositionDefault")
            expected.emplace_back(start.name);
    }
    expected.emplace_back(u"AllowItemMoving");
    EXPECT_EQ(fresh.host.changed, expected);
}

TEST(NewInstance, FiveFieldsStartAtZero) {
    Fresh fresh;
    fresh.list.UserControl_InitProperties();
    EXPECT_FALSE(fresh.list.AutoRowColor());
    EXPECT_EQ(fresh.list.RowColorFirst(), 0U);
    EXPECT_EQ(fresh.list.RowColorSecond(), 0U);
    EXPECT_EQ(fresh.list.BackgroundPicture(), nullptr);
    EXPECT_EQ(fresh.list.Skin(), nullptr);
}

TEST(NewInstance, PaintsNothingUntilTheFirstResize) {
    Fresh fresh;
    const auto& window = static_cast<headless::HeadlessWindow&>(fresh.list.window());
    fresh.list.UserControl_InitProperties();
    EXPECT_EQ(window.presented(), 0);
    fresh.list.window().place(0, 0, 100, 100);
    EXPECT_EQ(window.presented(), 1);
}

TEST(NewInstance, HasTheSizeOfTheDesign) {
    Fresh fresh;
    EXPECT_EQ(fresh.list.window().Width(), 309);
    EXPECT_EQ(fresh.list.window().Height(), 260);
}

TEST(NewInstance, TakesTheContainersFont) {
    Fresh fresh;
    fresh.host.font = std::make_shared<Font>(FontSpec{.Name = u"DejaVu Sans Mono", .Size = 12, .Bold = true});
    fresh.list.UserControl_InitProperties();
    EXPECT_EQ(fresh.list.DefaultItemFont()->spec, fresh.host.font->spec);
    EXPECT_EQ(fresh.list.DefaultColumnFont()->spec, fresh.host.font->spec);
    EXPECT_NE(fresh.list.DefaultItemFont(), fresh.host.font) << "a copy";
}

struct NameRule {
    const char16_t* exeName;
    Long jumpLines;
    Single inset;
};

TEST(NewInstance, OneProgramIsKnownByItsName) {
    for (const NameRule& rule : {NameRule{u"qrdmph", 4, 3},
                                 {u"QRDmph", 4, 3},
                                 {u"qrdmph1", 1, 0},
                                 {u"", 1, 0},
                                 {u"LumtexListView", 1, 0}}) {
        Fresh fresh;
        fresh.desktop.runtime().componentInfo.exeName = rule.exeName;
        fresh.list.UserControl_InitProperties();
        EXPECT_EQ(fresh.list.ScrollButtonJumpLines(), rule.jumpLines) << toUtf8(rule.exeName);
        EXPECT_EQ(ListViewInspector(fresh.list).topInset(), rule.inset) << toUtf8(rule.exeName);
    }
}

namespace {

/// Assigns something else to a property.
struct Change {
    StringView name;
    std::function<void(lmListView&)> assign;
};

#define FLIP(name)                                                                                           \
    {                                                                                                        \
        u## #name, [](lmListView& list) { list.let##name(!list.name()); }                                    \
    }
#define RAISE(name)                                                                                          \
    {                                                                                                        \
        u## #name, [](lmListView& list) {                                                                    \
            using Type = decltype(list.name());                                                              \
            list.let##name(static_cast<Type>(list.name() + 1));                                              \
        }                                                                                                    \
    }

const std::vector<Change>& plainChanges() {
    static const std::vector<Change> changes = {
        RAISE(ColumnTextY),
        FLIP(HideColumnHeaders),
        RAISE(DefaultItemForeColor),
        RAISE(DefaultColumnForeColor),
        RAISE(Style),
        FLIP(FullRowSelect),
        FLIP(HideSelection),
        FLIP(AutoRowColor),
        RAISE(RowColorFirst),
        RAISE(RowColorSecond),
        RAISE(ValueColor),
        FLIP(IconSelect),
        FLIP(BorderVisible),
        RAISE(IndentTop),
        RAISE(IndentLeft),
        RAISE(IndentRight),
        RAISE(IndentBottom),
        RAISE(DistPicText),
        RAISE(EmptyColumnFieldWidth),
        RAISE(EmptyColumnFieldColor),
        RAISE(IconW),
        RAISE(IconH),
        RAISE(ColumnIconW),
        RAISE(ColumnIconH),
        FLIP(GridLines),
        RAISE(GridLineColor),
        RAISE(ColumnBackColor),
        RAISE(ColumnHoverColor),
        RAISE(ColumnDownColor),
        RAISE(RowHeight),
        FLIP(DefaultIconSelectedIsIcon),
        FLIP(MoveColumnTextAtDown),
        FLIP(ClickOnIndexChange),
        FLIP(AllowEdit),
        {u"AllowItemMoving", [](lmListView& list) { ListViewInspector(list).letAllowItemMoving(true); }},
        FLIP(CheckMouseOver),
        FLIP(FixColumns),
        RAISE(OLEDragMode),
        FLIP(MultiSelect),
        RAISE(WheelFunction),
        RAISE(WheelScrollLines),
        RAISE(BackColor),
        RAISE(BackColorDisabled),
        RAISE(BorderColor),
        FLIP(DrawItemIcons),
        FLIP(DrawColumnIcons),
        {u"BackgroundPicture",
         [](lmListView& list) { list.setBackgroundPicture(std::make_shared<BitmapPicture>(Bitmap(2, 2))); }},
        RAISE(ScrollBackColor),
        RAISE(ScrollArrows),
        RAISE(ScrollButtons),
        RAISE(ScrollBar),
        RAISE(ScrollArrowsDown),
        RAISE(ScrollButtonsDown),
        RAISE(ScrollBarDown),
        RAISE(ScrollArrowsHover),
        RAISE(ScrollButtonsHover),
        RAISE(ScrollBarHover),
    };
    return changes;
}

#undef FLIP
#undef RAISE

After afterOf(StringView name) {
    std::optional<After> after;
    forEachProperty<readingOrder>([&](const auto& row) {
        if (row.name == name)
            after = row.after;
    });
    return after.value();
}

} // namespace

TEST(SetterTable, EveryPlainSetterIsTested) {
    std::map<After, std::size_t> rows;
    forEachProperty<readingOrder>([&](const auto& row) { ++rows[row.after]; });
    EXPECT_EQ(rows[After::checkForRedraw], 31U);
    EXPECT_EQ(rows[After::store], 10U);
    EXPECT_EQ(rows[After::redraw], 6U);
    EXPECT_EQ(rows[After::toScrollBars], 10U);
    EXPECT_EQ(plainChanges().size(), 31U + 10U + 6U + 10U);
}

TEST_F(Setters, StoreTellTheHostAndRepaintByTheirClass) {
    addColumns({50});
    for (const Change& change : plainChanges()) {
        const After after = afterOf(change.name);
        for (const bool autoRedraw : {true, false}) {
            list.letAutoRedraw(autoRedraw);
            host.changed.clear();
            const int paints = paintsOf([&] { change.assign(list); });
            int expected = 0;
            if (after == After::redraw)
                expected = 1;
            else if (after != After::store)
                expected = autoRedraw ? 1 : 0;
            EXPECT_EQ(paints, expected) << toUtf8(change.name) << " with AutoRedraw " << autoRedraw;
            EXPECT_EQ(host.changed, std::vector<String>{String(change.name)});
        }
    }
}

TEST_F(Setters, GridLinesWaitForAutoRedrawAndBackColorDoesNot) {
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { list.letGridLines(true); }), 0);
    EXPECT_EQ(paintsOf([&] { list.letBackColor(0x123456); }), 1);
}

TEST_F(Setters, InDesignModeEveryChangeIsPainted) {
    host.userMode = false;
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { list.letGridLines(true); }), 1);
}

TEST_F(Setters, ASchemeCarriesTheBarsAlong) {
    list.letColorStyle(cXPSilver);
    EXPECT_EQ(list.ScrollColorStyle(), cXPScrollSilver);
    EXPECT_EQ(inside.vertical().ColorStyle(), 1);
    EXPECT_EQ(inside.horizontal().ColorStyle(), 1);
}

TEST_F(Setters, TheCustomStyleLeavesTheBarsAlone) {
    list.letColorStyle(cXPOlive);
    list.letColorStyle(cCustom);
    EXPECT_EQ(list.ScrollColorStyle(), cXPScrollOlive);
    list.letScrollColorStyle(cScrollCustom);
    EXPECT_EQ(inside.vertical().ColorStyle(), 99);
}

TEST_F(Setters, CustomBarsLeaveTheListBlue) {
    list.letScrollColorStyle(cScrollCustom);
    EXPECT_EQ(list.ColorStyle(), cXPBlue);
}

TEST_F(Setters, ScrollColorStyleDoesNotRepaint) {
    host.changed.clear();
    EXPECT_EQ(paintsOf([&] { list.letScrollColorStyle(cXPScrollOlive); }), 0);
    EXPECT_EQ(host.changed, std::vector<String>{u"ScrollColorStyle"});
}

// Wanted: a value below 1 is dropped silently.
TEST_F(Setters, AJumpBelowOneIsDroppedSilently) {
    list.letScrollButtonJumpLines(7);
    host.changed.clear();
    for (const Long lines : {Long{0}, Long{-5}})
        list.letScrollButtonJumpLines(lines);
    EXPECT_EQ(list.ScrollButtonJumpLines(), 7);
    EXPECT_EQ(inside.vertical().ScrollButtonJumpLines(), 7);
    EXPECT_TRUE(host.changed.empty());
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Setters, EnabledReachesTheWindowAndBothBarsAndRepaints) {
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { list.letEnabled(false); }), 1);
    EXPECT_FALSE(window().Enabled());
    EXPECT_FALSE(inside.vertical().Enabled());
    EXPECT_FALSE(inside.horizontal().Enabled());
}

TEST_F(Setters, AutoRedrawPaintsWhenTurnedOn) {
    EXPECT_EQ(paintsOf([&] { list.letAutoRedraw(false); }), 0);
    EXPECT_EQ(paintsOf([&] { list.letAutoRedraw(true); }), 1);
}

TEST_F(Setters, AutoCheckScrollChecksWhenTurnedOn) {
    list.letAutoCheckScroll(false);
    addColumns({50});
    addRows(3);
    EXPECT_EQ(inside.vertical().Tag, u"");
    list.letAutoCheckScroll(true);
    EXPECT_EQ(inside.vertical().Tag, u"True");
}

TEST_F(Setters, RowsDynamicChecksTheBarsAndRepaints) {
    addColumns({50});
    addRows(3);
    EXPECT_EQ(inside.vertical().Tag, u"True");
    EXPECT_EQ(paintsOf([&] { list.letRowsDynamic(false); }), 1);
    EXPECT_EQ(inside.vertical().Tag, u"False") << "three rows of 16 pixels fit";
}

TEST_F(Setters, RowsDynamicChecksTheBarsBeforeItRepaints) {
    addColumns({50});
    addRows(3);
    list.letRowsDynamic(false);
    String tagAtThePaint;
    desktop.onYield([&] { tagAtThePaint = inside.vertical().Tag; });
    list.letRowsDynamic(true);
    EXPECT_EQ(tagAtThePaint, u"True");
}

TEST_F(Setters, TheHostHearsOfADefaultFontBeforeItIsPainted) {
    std::size_t toldAtThePaint = 0;
    host.changed.clear();
    desktop.onYield([&] { toldAtThePaint = host.changed.size(); });
    list.setDefaultItemFont(std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 12}));
    EXPECT_EQ(toldAtThePaint, 1U);
}

TEST_F(Setters, AScrollColourReachesBothBars) {
    list.letScrollBackColor(0x123456);
    EXPECT_EQ(inside.vertical().BackColor(), 0x123456U);
    EXPECT_EQ(inside.horizontal().BackColor(), 0x123456U);
}

// Wanted: the one setter that does not tell the host.
TEST_F(Setters, TextPositionDefaultRepaintsButDoesNotTellTheHost) {
    addColumns({50});
    addRows(1);
    host.changed.clear();
    EXPECT_EQ(paintsOf([&] { list.letTextPositionDefault(cTextPosBottom); }), 1);
    EXPECT_TRUE(host.changed.empty());
    EXPECT_EQ(list.TextPosition(1), cTextPosCenter) << "rows that exist keep theirs";
}

TEST_F(Setters, ADefaultFontIsClonedAndDoesNotReachExistingCells) {
    addColumns({50});
    addRows(1);
    const auto font = std::make_shared<Font>(FontSpec{.Name = u"DejaVu Sans", .Size = 20});
    EXPECT_EQ(paintsOf([&] { list.setDefaultItemFont(font); }), 1);
    font->spec.Size = 5;
    EXPECT_EQ(list.DefaultItemFont()->spec.Size, 20);
    EXPECT_EQ(list.ItemFontSize(1, 1), 9.75F);
    addRows(1);
    EXPECT_EQ(list.ItemFontSize(2, 1), 20);
}

TEST_F(Setters, NoFontStaysNone) {
    list.setDefaultItemFont(nullptr);
    EXPECT_EQ(list.DefaultItemFont(), nullptr);
    addColumns({50});
    addRows(1, u"a");
    EXPECT_EQ(list.ItemFontName(1, 1), u"");
}

TEST_F(Setters, SkinRepaintsWhateverAutoRedrawSays) {
    list.letAutoRedraw(false);
    host.changed.clear();
    EXPECT_EQ(paintsOf([&] { list.setSkin(nullptr); }), 1);
    EXPECT_EQ(host.changed, std::vector<String>{u"Skin"});
}

TEST_F(Setters, OLEDropModeReachesTheWindow) {
    list.letOLEDropMode(1);
    EXPECT_EQ(window().OLEDropMode(), 1);
}

TEST_F(Setters, AnyNumberIsStoredInAnEnumeration) {
    list.letColorStyle(static_cast<cColorStyle>(-7));
    list.letStyle(static_cast<cListViewStyle>(1234567));
    list.letWheelFunction(static_cast<cWheelFunction>(9));
    EXPECT_EQ(static_cast<Long>(list.ColorStyle()), -7);
    EXPECT_EQ(static_cast<Long>(list.ScrollColorStyle()), -7);
    EXPECT_EQ(static_cast<Long>(list.Style()), 1234567);
    EXPECT_EQ(static_cast<Long>(list.WheelFunction()), 9);
}

TEST_F(Setters, ClearListViewErasesThePictureAndKeepsTheContent) {
    addColumns({50});
    addRows(2, u"x");
    list.letBackColor(0x0000FF);
    list.ClearListView();
    for (Long y = 0; y < 200; y += 7) {
        for (Long x = 0; x < 300; x += 7)
            ASSERT_EQ(pixel(x, y), 0xFF0000U);
    }
    EXPECT_EQ(list.RowsCount(), 2);
    list.Redraw();
    EXPECT_NE(pixel(10, 10), 0xFF0000U);
}

// Wanted: the bag's default for ScrollBackColor differs from the list's own start value.
TEST(ScrollColors, AreWrittenInOrderWithTheirDefaults) {
    struct Expected {
        const char16_t* name;
        OLE_COLOR value;
    };
    constexpr Expected expected[] = {
        {u"ScrollBackColor", 0xFFFFFF},
        {u"ScrollArrows", 0},
        {u"ScrollButtons", 0x8000000F},
        {u"ScrollBar", 0x8000000F},
        {u"ScrollArrowsDown", 0},
        {u"ScrollButtonsDown", 0x8000000F},
        {u"ScrollBarDown", 0x8000000F},
        {u"ScrollArrowsHover", 0},
        {u"ScrollButtonsHover", 0x8000000F},
        {u"ScrollBarHover", 0x8000000F},
    };
    ASSERT_EQ(bars::scrollColors.size(), std::size(expected));
    for (std::size_t i = 0; i < bars::scrollColors.size(); ++i) {
        EXPECT_EQ(StringView(bars::scrollColors[i].name), expected[i].name);
        EXPECT_EQ(bars::scrollColors[i].bagDefault, expected[i].value) << i;
    }
}

} // namespace lumtex::testing
