#include "content_fixture.h"
#include "values/variant_conversion.h"

namespace lumtex::testing {
namespace {

using ContentInput = ContentFixture;

std::string oneCell(const std::string& text, const CellProperties& properties) {
    return ContentBytes().header(1, 1, true).text(text).raw(properties.bytes());
}

TEST_F(ContentInput, TextsComeColumnByColumn) {
    addColumns({30, 30, 30});
    addRows(5, u"old,old,old");
    const std::string bytes =
        ContentBytes().header(2, 3, false).text("a1").text("a2").text("b1").text("b2").text("c1").text("c2");
    EXPECT_TRUE(load(bytes, false));
    EXPECT_EQ(texts(), "a1 b1 c1|a2 b2 c2");
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentInput, AnEmptyListClearsTheRowsAndSucceeds) {
    addColumns({30});
    addRows(3);
    EXPECT_TRUE(load(ContentBytes().header(0, 0, false), false));
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(list.ColumnsCount(), 1);
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentInput, TheRowsGoOnceTheWholeHeaderWasRead) {
    addColumns({30});
    addRows(3);
    Long rowsInReport = 0;
    desktop.runtime().whileBoxIsOpen = [&] {
        rowsInReport = list.RowsCount();
        desktop.runtime().whileBoxIsOpen = nullptr;
    };
    load(ContentBytes().integer(275).number(0).number(0).byte(1), false);
    EXPECT_EQ(rowsInReport, 3) << "the flag behind the counts is cut in half";
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(takeReports(), "62 ContentInput\n");
}

TEST_F(ContentInput, AMissingFileReturnsFalseAndKeepsTheRows) {
    addColumns({30});
    addRows(3, u"x");
    EXPECT_EQ(paintsOf([&] { EXPECT_FALSE(load(true)); }), 0);
    EXPECT_FALSE(list.ContentInput(u""));
    EXPECT_FALSE(list.ContentInput(u"/nowhere/list.dat"));
    EXPECT_EQ(texts(), "x|x|x");
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentInput, ACellColourDefComesBackAsTheTextDef) {
    addColumns({30});
    addRows(1);
    ASSERT_EQ(saved(true), oneCell("", {}));
    ASSERT_TRUE(load(true));
    EXPECT_EQ(list.ItemBackColor(1, 1), Variant(u"def"));
    EXPECT_EQ(list.ItemForeColorSelect(1, 1), Variant(u"def"));
    EXPECT_EQ(list.ItemBackColorSelect(1, 1), Variant(u"def"));
}

TEST_F(ContentInput, AllFieldsComeFromTheFileWithPropertiesWanted) {
    addColumns({30});
    CellProperties cell;
    cell.enabled = false;
    cell.italic = cell.strikethrough = true;
    cell.fontSize = 12.5F;
    cell.fontName = "Arial";
    cell.allowEdit = true;
    cell.alignment = 2;
    cell.tag = "mark";
    cell.foreColor = 0x112233;
    cell.foreColorSelect = 0x223344;
    cell.foreColorDis = 0x334455;
    cell.backColor = 0x445566;
    cell.backColorSelect = 0x80000005U;
    cell.backColorDis = 0x667788;
    cell.iconAlignment = 200;
    cell.icon = CellProperties::image(iconImage(0));
    cell.iconSelected = CellProperties::image(bitmapImage());
    EXPECT_TRUE(load(oneCell("text", cell), true));
    EXPECT_EQ(takeReports(), "");
    EXPECT_EQ(list.ItemText(1, 1), u"text");
    EXPECT_FALSE(list.ItemEnabled(1, 1));
    EXPECT_FALSE(list.ItemFontBold(1, 1));
    EXPECT_TRUE(list.ItemFontItalic(1, 1));
    EXPECT_FALSE(list.ItemFontUnderline(1, 1));
    EXPECT_TRUE(list.ItemFontStrikethrough(1, 1));
    EXPECT_EQ(list.ItemFontSize(1, 1), 12.5F);
    EXPECT_EQ(list.ItemFontName(1, 1), u"Arial");
    EXPECT_TRUE(list.ItemAllowEdit(1, 1));
    EXPECT_EQ(list.ItemAlignment(1, 1), 2);
    EXPECT_EQ(list.ItemTag(1, 1), Variant(u"mark"));
    EXPECT_EQ(list.ItemForeColor(1, 1), 0x112233U);
    EXPECT_EQ(list.ItemForeColorSelect(1, 1), Variant(Long{0x223344}));
    EXPECT_EQ(list.ItemForeColorDis(1, 1), Variant(Long{0x334455}));
    EXPECT_EQ(list.ItemBackColor(1, 1), Variant(Long{0x445566}));
    EXPECT_EQ(list.ItemBackColorSelect(1, 1), Variant(OLE_COLOR{0x80000005U}));
    EXPECT_EQ(list.ItemBackColorDis(1, 1), Variant(Long{0x667788}));
    EXPECT_EQ(list.ItemIconAlignment(1, 1), 200);
    EXPECT_EQ(list.ItemIcon(1, 1)->bitmap(), iconPixels(0));
    EXPECT_EQ(list.ItemIconSelected(1, 1)->bitmap(), bitmapPixels());
}

TEST_F(ContentInput, AnyNumberButZeroIsTrueAndAnyPresentByteButOneIsNoPicture) {
    addColumns({30});
    std::string bytes = oneCell("x", {});
    bytes[10] = '\x02'; // with properties
    bytes[11] = '\x00';
    const std::size_t enabled = 12 + 4 + 1;
    bytes[enabled] = '\x00';
    bytes[enabled + 1] = '\x01';
    bytes[bytes.size() - 2] = '\x02';
    bytes[bytes.size() - 1] = '\xFF';
    EXPECT_TRUE(load(bytes, true));
    EXPECT_TRUE(list.ItemEnabled(1, 1));
    EXPECT_EQ(list.ItemIcon(1, 1), nullptr);
    EXPECT_EQ(list.ItemIconSelected(1, 1), nullptr);
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentInput, ATagOfANumberComesBackAsText) {
    addColumns({30});
    addRows(1);
    list.letItemTag(1, 1, Long{12});
    CellProperties cell;
    cell.tag = "12";
    EXPECT_EQ(saved(true), oneCell("", cell));
    load(true);
    EXPECT_EQ(list.ItemTag(1, 1), Variant(u"12"));
}

/// A colour field that takes no "def" keeps what the new cell had.
TEST_F(ContentInput, DefForAColourThatMustBeANumberIsReportedAndSkipped) {
    list.letDefaultItemForeColor(0x123456);
    addColumns({30});
    CellProperties cell;
    cell.foreColor = cell.foreColorDis = cell.backColorDis = 999999999;
    EXPECT_TRUE(load(oneCell("x", cell), true));
    EXPECT_EQ(takeReports(), "13 ContentInput\n13 ItemForeColorDis\n13 ItemBackColorDis\n");
    EXPECT_EQ(list.ItemForeColor(1, 1), 0x123456U);
    EXPECT_EQ(list.ItemForeColorDis(1, 1), Variant(grayText));
    EXPECT_EQ(list.ItemBackColorDis(1, 1), Variant(buttonFace));
}

/// What a cell has after a load without properties, and whether a new cell has it too.
struct DefaultValue {
    const char* accessor;
    std::function<Variant(lmListView&)> read;
    Variant value;
    bool differsFromNewCell;
};

template <class Get>
std::function<Variant(lmListView&)> reading(Get get) {
    return [get](lmListView& list) -> Variant { return toVariant((list.*get)(1, 1)); };
}

// Wanted: cells are editable where the list is, though new cells are not.
// Wanted: the tag is the empty text, though that of a new cell is Empty.
// Wanted: black text, whatever DefaultItemForeColor says.
std::vector<DefaultValue> defaultValues() {
    const Variant def(u"def");
    return {
        {"ItemEnabled", reading(&lmListView::ItemEnabled), true, false},
        {"ItemFontBold", reading(&lmListView::ItemFontBold), true, false},
        {"ItemFontItalic", reading(&lmListView::ItemFontItalic), true, false},
        {"ItemFontUnderline", reading(&lmListView::ItemFontUnderline), false, false},
        {"ItemFontStrikethrough", reading(&lmListView::ItemFontStrikethrough), true, false},
        {"ItemFontSize", reading(&lmListView::ItemFontSize), 11.25F, false},
        {"ItemFontName", reading(&lmListView::ItemFontName), u"Tahoma", false},
        {"ItemAllowEdit", reading(&lmListView::ItemAllowEdit), true, true},
        {"ItemAlignment", reading(&lmListView::ItemAlignment), Long{0}, false},
        {"ItemTag", reading(&lmListView::ItemTag), u"", true},
        {"ItemForeColor", reading(&lmListView::ItemForeColor), Long{0}, true},
        {"ItemForeColorSelect", reading(&lmListView::ItemForeColorSelect), def, false},
        {"ItemForeColorDis", reading(&lmListView::ItemForeColorDis), OLE_COLOR{0x80000011U}, false},
        {"ItemBackColor", reading(&lmListView::ItemBackColor), def, false},
        {"ItemBackColorSelect", reading(&lmListView::ItemBackColorSelect), def, false},
        {"ItemBackColorDis", reading(&lmListView::ItemBackColorDis), OLE_COLOR{0x8000000FU}, false},
        {"ItemIconAlignment", reading(&lmListView::ItemIconAlignment), Long{0}, false},
        {"ItemIcon", reading(&lmListView::ItemIcon), PictureRef(), false},
        {"ItemIconSelected", reading(&lmListView::ItemIconSelected), PictureRef(), false},
    };
}

class LoadWithoutProperties : public ContentFixture {
  protected:
    LoadWithoutProperties() {
        addColumns({30});
        list.setDefaultItemFont(std::make_shared<Font>(FontSpec{u"Tahoma", 11.25F, true, true, false, true}));
        list.letAllowEdit(true);
        list.letDefaultItemForeColor(0xABCDEF);
    }

    void expectDefaults() {
        EXPECT_EQ(takeReports(), "");
        for (const DefaultValue& row : defaultValues())
            EXPECT_EQ(row.read(list), row.value) << row.accessor;
        list.RowsAdd();
        list.RowsRemove(1);
        for (const DefaultValue& row : defaultValues())
            EXPECT_EQ(row.read(list) != row.value, row.differsFromNewCell) << row.accessor;
    }

    CellProperties unlikeAnyDefault() const {
        CellProperties cell;
        cell.enabled = false;
        cell.underline = true;
        cell.alignment = cell.iconAlignment = 1;
        cell.tag = "tag";
        cell.foreColorSelect = cell.foreColorDis = cell.backColor = cell.backColorSelect = 1;
        cell.backColorDis = 2;
        cell.icon = cell.iconSelected = CellProperties::image("none at all");
        return cell;
    }
};

TEST_F(LoadWithoutProperties, EachAccessorHasItsValueOfTheTable) {
    EXPECT_TRUE(load(ContentBytes().header(1, 1, false).text("x"), false));
    expectDefaults();
}

// A list that paints after each statement is filled value by value, others record by record.
TEST_F(LoadWithoutProperties, EachAccessorHasTheSameValueInDesignMode) {
    host.userMode = false;
    EXPECT_TRUE(load(ContentBytes().header(1, 1, false).text("x"), false));
    expectDefaults();
}

TEST_F(LoadWithoutProperties, AFileWithoutPropertiesTakesTheSameValuesThoughTheyAreWanted) {
    EXPECT_TRUE(load(ContentBytes().header(1, 1, false).text("x"), true));
    expectDefaults();
}

TEST_F(LoadWithoutProperties, ThoseOfTheFileAreReadAndDropped) {
    EXPECT_TRUE(load(oneCell("x", unlikeAnyDefault()), false));
    expectDefaults();
    list.ColumnsAdd(u"");
    const std::string bytes = ContentBytes()
                                  .header(1, 2, true)
                                  .text("a")
                                  .raw(unlikeAnyDefault().bytes())
                                  .text("b")
                                  .raw(unlikeAnyDefault().bytes());
    EXPECT_TRUE(load(bytes, false));
    EXPECT_EQ(texts(), "a b");
    EXPECT_EQ(takeReports(), "");
}

TEST_F(LoadWithoutProperties, CellsAreNotEditableWhereTheListIsNot) {
    list.letAllowEdit(false);
    load(ContentBytes().header(1, 1, false).text("x"), false);
    EXPECT_FALSE(list.ItemAllowEdit(1, 1));
}

TEST_F(LoadWithoutProperties, FontsBecomeTheDefaultFontAsItIsThen) {
    addRows(1, u"text");
    list.letItemFontName(1, 1, u"Arial");
    list.letItemFontBold(1, 1, false);
    save(true);
    list.setDefaultItemFont(std::make_shared<Font>(FontSpec{u"Verdana", 7, false, false, true, false}));
    load(false);
    EXPECT_EQ(list.ItemText(1, 1), u"text");
    EXPECT_EQ(list.ItemFontName(1, 1), u"Verdana");
    EXPECT_EQ(list.ItemFontSize(1, 1), 7);
    EXPECT_TRUE(list.ItemFontUnderline(1, 1));
}

TEST_F(LoadWithoutProperties, AListWithoutADefaultFontReportsEachFieldOfIt) {
    inside.properties().DefaultItemFont = nullptr;
    load(ContentBytes().header(1, 1, false).text("x"), false);
    std::string all;
    for (const char* field : {"91 EmptyItem\n", "91 ContentInput\n"})
        for (int i = 0; i < 6; ++i)
            all += field;
    EXPECT_EQ(takeReports(), all + "91 Redraw\n");
    EXPECT_EQ(list.ItemText(1, 1), u"x");
}

TEST_F(ContentInput, ACheckedCellComesBackUncheckedAndNothingIsCounted) {
    addColumns({30, 30});
    addRows(2);
    list.letItemChecked(1, 1, true);
    list.letItemChecked(2, 2, true);
    list.letRowChecked(1, true);
    list.letRowEnabled(2, false);
    save(true);
    load(true);
    EXPECT_FALSE(list.ItemChecked(1, 1));
    EXPECT_FALSE(list.ItemChecked(2, 2));
    EXPECT_EQ(list.ItemsCheckedCount(), 0);
    EXPECT_FALSE(list.RowChecked(1));
    EXPECT_TRUE(list.RowEnabled(2));
}

TEST_F(ContentInput, WhatTheFileDoesNotHoldIsAsInANewCell) {
    addColumns({30});
    addRows(1);
    list.letItemToolTip(1, 1, u"tip");
    save(true);
    load(true);
    EXPECT_EQ(list.ItemToolTip(1, 1), u"");
    EXPECT_EQ(list.ItemObject(1, 1), nullptr);
}

// Wanted: a file of any version is read as if it were of this one.
TEST_F(ContentInput, TheVersionIsIgnored) {
    addColumns({30});
    EXPECT_TRUE(load(ContentBytes().integer(-7).number(1).number(1).flag(false).text("x"), false));
    EXPECT_EQ(texts(), "x");
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentInput, PaintsOnceAtTheEndWhateverAutoRedrawSays) {
    addColumns({30});
    save(false);
    for (const bool automatic : {true, false}) {
        list.letAutoRedraw(automatic);
        EXPECT_EQ(paintsOf([&] { load(ContentBytes().header(2, 1, false).text("x").text("y"), false); }), 1);
        EXPECT_EQ(list.AutoRedraw(), automatic);
    }
}

TEST_F(ContentInput, TheBarsAreCheckedOnceAtTheEndWhateverAutoCheckScrollSays) {
    addColumns({30});
    for (const bool automatic : {true, false}) {
        list.letAutoCheckScroll(automatic);
        ContentBytes bytes;
        bytes.header(100, 1, false);
        for (int i = 0; i < 100; ++i)
            bytes.text("x");
        load(bytes, false);
        EXPECT_EQ(inside.vertical().Tag, u"True");
        EXPECT_EQ(list.AutoCheckScroll(), automatic);
        list.RowsClear();
        list.CheckScroll();
        EXPECT_EQ(inside.vertical().Tag, u"False");
    }
}

TEST_F(ContentInput, TheBarsAreCheckedBeforeThePaint) {
    addColumns({30});
    std::vector<String> tags;
    desktop.onYield([&] { tags.push_back(inside.vertical().Tag); });
    inside.vertical().Tag = u"";
    load(ContentBytes().header(2, 1, false).text("x").text("y"), false);
    ASSERT_FALSE(tags.empty()) << "a paint yields";
    EXPECT_EQ(tags.front(), u"True");
}

TEST_F(ContentInput, InDesignModeEveryStatementPaints) {
    host.userMode = false;
    addColumns({30});
    const std::string bytes = ContentBytes().header(1, 1, false).text("x");
    // Clearing, adding, the text, all of the look but the flag and the tag, and the end.
    EXPECT_EQ(paintsOf([&] { load(bytes, false); }), 1 + 1 + 1 + 17 + 1);
    EXPECT_EQ(texts(), "x");
    EXPECT_EQ(list.ItemTag(1, 1), Variant(u""));
}

TEST_F(ContentInput, SurplusColumnsFailCellByCellAndKeepTheReaderInStep) {
    addColumns({30});
    const std::string bytes =
        ContentBytes().header(2, 3, false).text("a1").text("a2").text("b1").text("b2").text("c1").text("c2");
    EXPECT_TRUE(load(bytes, false));
    EXPECT_EQ(texts(), "a1|a2");
    const std::string reports = takeReports();
    EXPECT_EQ(std::count(reports.begin(), reports.end(), '\n'), 4 * 20);
    EXPECT_EQ(reports.substr(0, 11), "9 ItemText\n");
}

TEST_F(ContentInput, AListWithoutColumnsTakesNoRowsAndEveryAssignmentFails) {
    EXPECT_TRUE(load(ContentBytes().header(2, 1, false).text("a").text("b"), false));
    EXPECT_EQ(list.RowsCount(), 0);
    const std::string reports = takeReports();
    EXPECT_EQ(std::count(reports.begin(), reports.end(), '\n'), 2 * 20);
}

TEST_F(ContentInput, AFileWithFewerColumnsLeavesTheOthersEmpty) {
    addColumns({30, 30});
    EXPECT_TRUE(load(ContentBytes().header(1, 1, false).text("a"), false));
    EXPECT_EQ(texts(), "a ");
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentInput, TextsLongerThanTheReadersBufferComeWhole) {
    addColumns({30});
    std::string text;
    for (int i = 0; i < 200'000; ++i)
        text += static_cast<char>('a' + i % 26);
    CellProperties cell;
    cell.tag = text + "tag";
    ASSERT_TRUE(load(oneCell(text, cell), true));
    EXPECT_EQ(toUtf8(list.ItemText(1, 1)), text);
    EXPECT_EQ(list.ItemTag(1, 1), Variant(fromUtf8(text + "tag")));
    EXPECT_EQ(saved(true), oneCell(text, cell));
    ASSERT_TRUE(load(false));
    EXPECT_EQ(toUtf8(list.ItemText(1, 1)), text);
    EXPECT_EQ(takeReports(), "");
}

} // namespace
} // namespace lumtex::testing
