#include "painted_list.h"

namespace lumtex::testing {

/// Two columns of 60 pixels; rows of 20 pixels start at 25, below the headers.
class ListCell : public PaintedList {
  protected:
    ListCell() {
        addColumns({60, 60});
        addRows(2, u"a,b");
    }

    /// Operations of the first row's first cell, from its first one up to its text.
    Lines firstCell() {
        Lines cell;
        bool inCell = false;
        for (const std::string& line : repaint()) {
            if (inCell)
                cell.push_back(line);
            if (line.rfind("Line 120,22", 0) == 0)
                inCell = true;
            if (inCell && line.rfind("Text 'a'", 0) == 0 && line.substr(line.size() - 3, 1) != "4")
                break;
        }
        return cell;
    }
    /// The fill of cell (`row`, `column`), counted from 1, or an empty text.
    std::string fillOf(int row, int column) {
        const std::string at =
            "Fill " + std::to_string((column - 1) * 60) + "," + std::to_string(26 + (row - 1) * 20) + "-";
        const Lines fills = repainted(at);
        return fills.empty() ? "" : fills[0].substr(fills[0].rfind(' ') + 1);
    }
    /// The colour that the text of cell (`row`, `column`) is drawn in.
    std::string textColorOf(int row, int column) {
        std::string color;
        int cell = 0;
        for (const std::string& line : repaint()) {
            if (line.rfind("ForeColor ", 0) == 0)
                color = line.substr(10);
            if ((line.rfind("Text 'a'", 0) == 0 || line.rfind("Text 'b'", 0) == 0) &&
                line.ends_with(" 40000") && ++cell == (row - 1) * 2 + column)
                return color;
        }
        return "not painted";
    }
};

TEST_F(ListCell, ItsOperationsStandInOrder) {
    list.letItemBackColor(1, 1, Long{0x123456});
    list.letItemForeColor(1, 1, 0x654321);
    EXPECT_EQ(firstCell(),
              (Lines{"Fill 0,26-59,45 123456",
                     "ForeColor 654321",
                     "Font Verdana 9.75",
                     "ForeColor 654321",
                     "Text 'a' 5,25-57,45 40400",
                     "Text 'a' 5,26-57,45 40000"}));
}

TEST_F(ListCell, ADefaultBackgroundIsNotFilled) {
    EXPECT_EQ(fillOf(1, 1), "");
}

TEST_F(ListCell, ASelectedRowHasTheStylesSelectionColour) {
    list.letRowSelected(1, true);
    EXPECT_EQ(fillOf(1, 1), "C56A31");
    EXPECT_EQ(fillOf(1, 2), "C56A31");
    EXPECT_EQ(textColorOf(1, 1), "FFFFFF");
    list.letColorStyle(cXPOlive);
    EXPECT_EQ(fillOf(1, 1), "70A093");
    list.letItemBackColorSelect(1, 1, Long{0x111111});
    list.letItemForeColorSelect(1, 1, Long{0x222222});
    EXPECT_EQ(fillOf(1, 1), "111111");
    EXPECT_EQ(textColorOf(1, 1), "222222");
}

TEST_F(ListCell, ADisabledItemInASelectedRowHasNoSelectionLook) {
    const PictureRef icon = plainPicture(3, 3);
    const PictureRef selectedIcon = plainPicture(5, 5, 0xFFFF0000U);
    list.setItemIcon(1, 1, icon);
    list.setItemIconSelected(1, 1, selectedIcon);
    list.letItemEnabled(1, 1, false);
    list.letRowSelected(1, true);
    EXPECT_EQ(fillOf(1, 1), "8000000F");
    EXPECT_EQ(textColorOf(1, 1), "80000011");
    list.Redraw();
    EXPECT_EQ(pixel(10, 34), 0x00FF00U) << "Icon, not IconSelected";
}

TEST_F(ListCell, WithoutFullRowSelectOnlyTheFirstColumnShowsSelectionButEveryIconDoes) {
    list.letFullRowSelect(false);
    list.letRowSelected(1, true);
    list.setItemIcon(1, 2, plainPicture(3, 3));
    list.setItemIconSelected(1, 2, plainPicture(3, 3, 0xFFFF0000U));
    EXPECT_EQ(fillOf(1, 1), "C56A31");
    EXPECT_EQ(fillOf(1, 2), "");
    EXPECT_EQ(textColorOf(1, 2), "0");
    list.Redraw();
    // Wanted: the picture follows the row's selection in every column, also where the text colour does not.
    EXPECT_EQ(pixel(70, 34), 0xFF0000U);
}

TEST_F(ListCell, RowColoursAlternateFromTheFirstRowAndYieldToSelection) {
    list.letAutoRowColor(true);
    list.letRowColorFirst(0x111111);
    list.letRowColorSecond(0x222222);
    list.letItemBackColor(1, 1, Long{0x999999});
    EXPECT_EQ(fillOf(1, 1), "111111") << "the item's own colour is ignored";
    EXPECT_EQ(fillOf(2, 1), "222222");
    list.letRowSelected(2, true);
    EXPECT_EQ(fillOf(2, 1), "C56A31");
    EXPECT_EQ(fillOf(1, 2), "111111");
}

// Wanted: with HideSelection no colour is chosen, and the one that a pass starts with is black.
TEST_F(ListCell, HideSelectionGivesEveryCellABlackBackground) {
    list.letHideSelection(true);
    list.letItemBackColor(1, 1, Long{0x123456});
    for (const auto& [row, column] : {std::pair{1, 1}, {1, 2}, {2, 1}, {2, 2}})
        EXPECT_EQ(fillOf(row, column), "0") << row << "," << column;
}

TEST_F(ListCell, AColourThatIsNoNumberIsReportedAndEndsThePass) {
    list.letItemBackColor(1, 1, u"blue");
    repaint();
    ASSERT_EQ(desktop.runtime().boxes.size(), 1U);
    EXPECT_NE(toUtf8(desktop.runtime().boxes[0].text).find("Error no.: 13\r\n"), std::string::npos);
    EXPECT_NE(toUtf8(desktop.runtime().boxes[0].text).find("0/Redraw"), std::string::npos);
    EXPECT_TRUE(says(inside.painting(), "held=yes"));
    EXPECT_TRUE(drawn().lines("Text 'a'").empty());
}

TEST_F(ListCell, UnderTheSilentFlagAFailingStatementIsSkipped) {
    list.letItemBackColor(1, 1, u"blue");
    Error().letSilentError(true);
    EXPECT_EQ(fillOf(1, 1), "0") << "the colour that the pass started with";
    EXPECT_TRUE(says(inside.painting(), "held=no"));
    EXPECT_EQ(drawn().lines("Text 'a'").size(), 4U) << "measured and painted, in both rows";
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

struct AlignmentCase {
    cItemAlign alignment;
    const char* format;
};

TEST_F(ListCell, AlignmentBecomesFormatBitsAndAnUnknownOneKeepsTheLast) {
    for (const AlignmentCase& row :
         {AlignmentCase{cItemLeft, "40000"}, {cItemCenter, "40001"}, {cItemRight, "40002"}}) {
        list.letItemAlignment(1, 1, row.alignment);
        list.letItemAlignment(1, 2, static_cast<cItemAlign>(7));
        repaint();
        EXPECT_TRUE(drawn().lines("Text 'a'")[1].ends_with(row.format));
        EXPECT_TRUE(drawn().lines("Text 'b'")[1].ends_with(row.format)) << "keeps the previous cell's";
    }
}

TEST_F(ListCell, DynamicRowsCentreASingleLineAndIgnoreTextPosition) {
    list.letRowsDynamic(true);
    list.letTextPosition(1, cTextPosBottom);
    const Lines texts = repainted("Text 'a'");
    ASSERT_EQ(texts.size(), 2U) << "no measuring";
    EXPECT_EQ(texts[0], "Text 'a' 5,25-57,42 40024");
}

struct PositionCase {
    const char* name;
    cTextPosition position;
    const char* text;
    const char* rect;
};

TEST_F(ListCell, FixedRowsPlaceTheTextByTextPosition) {
    list.letRowHeight(60 * 15);
    const PositionCase table[] = {
        {"top", cTextPosTop, "a", "5,25-57,85"},
        {"centre", cTextPosCenter, "a", "5,46-57,85"},
        {"bottom", cTextPosBottom, "a", "5,68-57,85"},
    };
    for (const PositionCase& row : table) {
        list.letTextPosition(1, row.position);
        EXPECT_EQ(repainted("Text 'a'")[1], std::string("Text 'a' ") + row.rect + " 40000") << row.name;
    }
}

TEST_F(ListCell, ATextOfTwoLinesIsCentredAsABlock) {
    list.letRowHeight(60 * 15);
    list.letItemText(1, 1, u"a\r\nb");
    list.letTextPosition(1, cTextPosCenter);
    EXPECT_EQ(repainted("Text 'a\r\nb'")[1], "Text 'a\r\nb' 5,38-57,85 40000") << "(60 - 34) / 2 below 25";
}

TEST_F(ListCell, ATextTallerThanItsRowStartsAtTheRowsTop) {
    list.letItemText(1, 1, u"a\nb\nc");
    for (const cTextPosition position : {cTextPosCenter, cTextPosBottom}) {
        list.letTextPosition(1, position);
        EXPECT_EQ(repainted("Text 'a\nb\nc'")[1], "Text 'a\nb\nc' 5,25-57,45 40000");
    }
}

TEST_F(ListCell, TheKnownProgramLowersATextAtTheTop) {
    desktop.runtime().componentInfo.exeName = u"Qrdmph";
    list.UserControl_InitProperties();
    list.letRowsDynamic(false);
    list.letRowHeight(300);
    list.letBorderVisible(false);
    list.letTextPosition(1, cTextPosTop);
    EXPECT_EQ(repainted("Text 'a'")[1].substr(0, 13), "Text 'a' 5,28");
}

TEST_F(ListCell, TheTextsWidthIsStored) {
    repaint();
    EXPECT_EQ(list.ItemTextWidth(1, 1), window().surface().textWidth(u"a"));
}

struct CellIcon {
    const char* name;
    cItemAlign text;
    cItemAlign icon;
    const char* rect;
    const char* picture;
};

TEST_F(ListCell, IconsStandByTheirAlignmentAndMakeRoomAtTheSameSide) {
    list.setItemIcon(1, 1, plainPicture(32, 32));
    const CellIcon table[] = {
        {"both left", cItemLeft, cItemLeft, "23,26-57,45", "5,28"},
        {"both right", cItemRight, cItemRight, "5,26-39,45", "39,28"},
        {"opposite", cItemLeft, cItemRight, "5,26-57,45", "39,28"},
        {"icon in the middle", cItemLeft, cItemCenter, "5,26-57,45", "22,28"},
    };
    for (const CellIcon& row : table) {
        list.letItemAlignment(1, 1, row.text);
        list.letItemIconAlignment(1, 1, row.icon);
        const std::string text = repainted("Text 'a'")[1];
        EXPECT_EQ(text.substr(9, text.rfind(' ') - 9), row.rect) << row.name;
        EXPECT_EQ(drawn().lines("Picture"), Lines{std::string("Picture ") + row.picture + " 16x16"})
            << row.name;
    }
}

TEST_F(ListCell, AnIconThatIsNotAdjustedKeepsItsOwnSize) {
    list.setItemIcon(1, 1, plainPicture(32, 32));
    list.letColumnAdjustItemIcons(1, false);
    EXPECT_EQ(repainted("Picture"), Lines{"Picture 5,28"});
}

TEST_F(ListCell, TheIconComesAfterTheTextAndLiesOverIt) {
    list.setItemIcon(1, 1, plainPicture(4, 4));
    const Lines& log = repaint();
    const auto text = std::find_if(log.begin(), log.end(), [](const std::string& line) {
        return line.rfind("Text 'a'", 0) == 0 && line.ends_with("40000");
    });
    ASSERT_NE(text, log.end());
    EXPECT_EQ((text + 1)->substr(0, 7), "Picture");
}

TEST_F(ListCell, DrawItemIconsFalseHidesThem) {
    list.setItemIcon(1, 1, plainPicture(4, 4));
    list.letDrawItemIcons(false);
    EXPECT_TRUE(repainted("Picture").empty());
}

TEST_F(ListCell, ASelectedRowWithoutASelectedIconShowsTheIconOnlyByDefault) {
    list.setItemIcon(1, 1, plainPicture(4, 4));
    list.letRowSelected(1, true);
    EXPECT_EQ(repainted("Picture").size(), 1U);
    list.letDefaultIconSelectedIsIcon(false);
    EXPECT_TRUE(repainted("Picture").empty());
}

TEST_F(ListCell, CheckBoxesPaintAtTheirOwnSizeWhateverIconsDo) {
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(1, true);
    list.letDrawItemIcons(false);
    inside.columns()[0]->ItemIconW = 40;
    EXPECT_EQ(repainted("Picture"), (Lines{"Picture 5,28", "Picture 5,48"}));
    // Wanted: a check box takes the room of an icon, not its own 13 pixels.
    EXPECT_EQ(drawn().lines("Text 'a'")[1], "Text 'a' 23,26-57,45 40000");
    EXPECT_EQ(pixel(5, 28), 0x185284U);
    EXPECT_EQ(pixel(17, 40), 0x185284U) << "13 by 13";
    EXPECT_NE(pixel(18, 40), 0x185284U);
}

TEST_F(ListCell, CheckBoxPicturesFollowCheckedAndEnabled) {
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(1, true);
    const auto middle = [&] {
        list.Redraw();
        return pixel(5 + 4, 28 + 7);
    };
    EXPECT_EQ(middle(), 0xEFEFEFU) << "unchecked";
    list.letItemChecked(1, 1, true);
    EXPECT_EQ(middle(), 0x21A521U) << "checked";
    list.letItemEnabled(1, 1, false);
    EXPECT_EQ(middle(), 0xCECEBDU) << "checked and disabled";
    list.letItemChecked(1, 1, false);
    EXPECT_EQ(middle(), 0xFFFFFFU) << "unchecked and disabled";
}

TEST_F(ListCell, ColumnsWithoutCheckBoxesShowTheirIconsInCheckBoxStyle) {
    list.letStyle(cCheckBoxes);
    list.setItemIcon(1, 2, plainPicture(4, 4));
    EXPECT_EQ(repainted("Picture"), Lines{"Picture 65,28 16x16"});
}

// Wanted: IconH counts here for a check box too.
TEST_F(ListCell, ACheckBoxIsCentredOnTheIconHeightWhereverTheTextIs) {
    list.letRowHeight(60 * 15);
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(1, true);
    list.letTextPosition(1, cTextPosBottom);
    EXPECT_EQ(repainted("Picture")[0], "Picture 5,48") << "(60 - 16) / 2 + 25 + 1";
    EXPECT_EQ(drawn().lines("Text 'a'")[1], "Text 'a' 23,68-57,85 40000");
}

TEST_F(ListCell, ACheckBoxInTheMiddleOrAtTheRightUsesItsOwnWidth) {
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(1, true);
    list.letItemIconAlignment(1, 1, cItemRight);
    list.letItemIconAlignment(2, 1, cItemCenter);
    EXPECT_EQ(repainted("Picture"), (Lines{"Picture 42,28", "Picture 23.5,48"}));
}

// Wanted: no shift and no inset in the middle.
TEST_F(ListCell, TheShiftOfThePressedLastHeaderReachesTheCells) {
    list.letMoveColumnTextAtDown(true);
    inside.letPressedColumn(1);
    mouseAt(70, 5, leftButton);
    list.setItemIcon(1, 1, plainPicture(4, 4));
    list.setItemIcon(1, 2, plainPicture(4, 4));
    list.letItemIconAlignment(1, 2, cItemCenter);
    EXPECT_EQ(repainted("Picture"), (Lines{"Picture 6,28 16x16", "Picture 82,28 16x16"}))
        << "not in the middle";
    EXPECT_EQ(drawn().lines("Text 'a'")[1], "Text 'a' 24,26-57,45 40000");
}

TEST_F(ListCell, TheOpenEditorFollowsItsSelectedRow) {
    list.letRowSelected(2, true);
    inside.editor().letVisible(true);
    list.Redraw();
    EXPECT_EQ(inside.editor().Top(), 46) << "one pixel below the row's top";
    inside.editor().letVisible(false);
    inside.editor().letTop(0);
    list.Redraw();
    EXPECT_EQ(inside.editor().Top(), 0);
}

TEST_F(ListCell, AnItemWithAnObjectShowsNoTextAndMeasuresNone) {
    const auto object = TestObject::control(120);
    list.setItemObject(1, 1, object);
    repaint();
    EXPECT_EQ(drawn().lines("Text 'a'").size(), 2U) << "the second row's alone";
    EXPECT_EQ(list.ItemTextWidth(1, 1), 0);
    // Top: 26 pixels in twips, plus half of what the row leaves free.
    EXPECT_EQ(object->log, (Lines{"Visible=True", "Move 0 472.5 885"}));
}

TEST_F(ListCell, WithDynamicRowsAnObjectIsPlacedByTheCellsHeight) {
    list.letRowsDynamic(true);
    const auto object = TestObject::control(120);
    list.setItemObject(1, 1, object);
    repaint();
    EXPECT_EQ(object->log, (Lines{"Visible=True", "Move 0 450 885"})) << "390 + (240 - 120) / 2";
}

// Wanted: the parent's scale is asked for and then not used; the target is always twips.
TEST_F(ListCell, TheParentsScaleModeDoesNotMatter) {
    const auto parent = std::make_shared<TestObject>();
    parent->properties[u"ScaleMode"] = Long{3};
    const auto object = TestObject::control(120);
    object->properties[u"Parent"] = ObjectRef(parent);
    list.setItemObject(1, 1, object);
    repaint();
    EXPECT_EQ(object->log.back(), "Move 0 472.5 885");
}

TEST_F(ListCell, AnObjectThatCannotMoveIsReported) {
    const auto object = TestObject::control(120);
    object->methods.clear();
    list.setItemObject(1, 1, object);
    repaint();
    ASSERT_EQ(desktop.runtime().boxes.size(), 1U);
    EXPECT_NE(toUtf8(desktop.runtime().boxes[0].text).find("Error no.: 438"), std::string::npos);
}

TEST_F(ListCell, ObjectsOutOfViewAreHidden) {
    addRows(8, u"a,b");
    std::vector<std::shared_ptr<TestObject>> objects;
    for (Long row = 1; row <= 10; ++row) {
        objects.push_back(TestObject::control(120));
        list.setItemObject(row, 1, objects.back());
        objects.back()->properties[u"Visible"] = true;
    }
    inside.vertical().letValue(2);
    list.Redraw();
    // Rows 3 to 6 are painted: their tops are 25, 45, 65 and 85.
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const bool shown = i >= 2 && i <= 5;
        EXPECT_EQ(objects[i]->log.front(), shown ? "Visible=True" : "Visible=False") << i;
    }
}

TEST_F(ListCell, AnObjectWithoutVisibleIsPassedOverWhenHiding) {
    list.setItemObject(1, 1, std::make_shared<TestObject>());
    inside.vertical().letValue(1);
    repaint();
    EXPECT_TRUE(desktop.runtime().boxes.empty());
    EXPECT_TRUE(says(inside.painting(), "held=no"));
}

TEST_F(ListCell, AHostThatEmptiesTheListWhileItsObjectIsShownDoesNoHarm) {
    const auto object = TestObject::control(120);
    object->onPut = [&] {
        inside.clearRows();
        inside.clearColumns();
    };
    list.setItemObject(1, 1, object);
    Error().letSilentError(true);
    repaint();
    EXPECT_EQ(list.RowsCount(), 0);
}

} // namespace lumtex::testing
