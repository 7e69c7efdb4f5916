/// \file
/// The control-level properties, one row each.
#pragma once

#include "model/list_view.h"
#include "model/property_row.h"
#include "values/color.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <utility>

namespace lumtex {

namespace property_table {

constexpr auto containersFont = Start::Kind::containersFont;
constexpr auto sixteenPixels = Start::Kind::sixteenPixels;
constexpr auto jumpLines = Start::Kind::jumpLines;
constexpr auto noPicture = Start::Kind::noPicture;

/// In declared order, which is that of the interface.
// clang-format off
inline constexpr auto rows = std::tuple{
    row<&lmListView::DefaultItemFont, &lmListView::setDefaultItemFont, &Properties::DefaultItemFont>(
        u"DefaultItemFont", 100, Group::appearance, After::ownCheckForRedraw, containersFont,
        {u"Font of new cells. A clone is kept, and existing cells keep theirs.",
         u"Schriftart neuer Zellen. Eine Kopie wird aufbewahrt; vorhandene Zellen behalten ihre "
         u"Schriftart."}),
    row<&lmListView::DefaultItemForeColor, &lmListView::letDefaultItemForeColor, &Properties::DefaultItemForeColor>(
        u"DefaultItemForeColor", 101, Group::appearance, After::checkForRedraw, 0,
        {u"Text colour of new cells. Existing cells keep theirs.",
         u"Textfarbe neuer Zellen. Vorhandene Zellen behalten ihre Farbe."}),
    row<&lmListView::BackColor, &lmListView::letBackColor, &Properties::BackColor>(
        u"BackColor", 102, Group::appearance, After::redraw, white,
        {u"Background of the list.", u"Hintergrundfarbe der Liste."}),
    row<&lmListView::BackColorDisabled, &lmListView::letBackColorDisabled, &Properties::BackColorDisabled>(
        u"BackColorDisabled", 103, Group::appearance, After::redraw, white,
        {u"Background of the list while the control is disabled.",
         u"Hintergrundfarbe der Liste, solange das Steuerelement deaktiviert ist."}),
    row<&lmListView::Enabled, &lmListView::letEnabled, &Properties::Enabled>(
        u"Enabled", 104, Group::behaviour, After::ownRedraw, true,
        {u"Whether the control takes presses and keys. The scroll bars follow.",
         u"Gibt an, ob das Steuerelement auf Maus und Tastatur reagiert. Die Bildlaufleisten folgen."}),
    row<&lmListView::ClickOnIndexChange, &lmListView::letClickOnIndexChange, &Properties::ClickOnIndexChange>(
        u"ClickOnIndexChange", 105, Group::behaviour, After::store, false,
        {u"Whether assigning ListIndex raises Click before the index changes.",
         u"Gibt an, ob eine Zuweisung an ListIndex Click auslöst, bevor sich der Index ändert."}),
    row<&lmListView::ColorStyle, &lmListView::letColorStyle, &Properties::ColorStyle>(
        u"ColorStyle", 106, Group::appearance, After::ownCheckForRedraw, cXPBlue,
        {u"Scheme of headers, selection and border. Any but cCustom is handed on to ScrollColorStyle.",
         u"Farbschema der Spaltenköpfe, der Auswahl und des Rahmens. Jeder Wert außer cCustom wird an "
         u"ScrollColorStyle weitergegeben."}),
    row<&lmListView::BorderColor, &lmListView::letBorderColor, &Properties::BorderColor>(
        u"BorderColor", 107, Group::appearance, After::redraw, 0,
        {u"Colour of the border in the custom scheme.", u"Farbe des Rahmens im benutzerdefinierten Schema."}),
    row<&lmListView::Style, &lmListView::letStyle, &Properties::Style>(
        u"Style", 108, Group::appearance, After::checkForRedraw, cDefault,
        {u"cCheckBoxes shows check boxes in the columns with ColumnCheckBoxes. What they show is "
         u"ItemChecked. A press at the place of a box changes that even where none is drawn.",
         u"cCheckBoxes zeigt Kontrollkästchen in den Spalten mit ColumnCheckBoxes. Sie zeigen ItemChecked. "
         u"Ein Mausdruck an der Stelle eines Kästchens ändert es auch dort, wo keines gezeichnet wird."}),
    row<&lmListView::FullRowSelect, &lmListView::letFullRowSelect, &Properties::FullRowSelect>(
        u"FullRowSelect", 109, Group::behaviour, After::checkForRedraw, true,
        {u"Whether the selection covers all columns or the first alone.",
         u"Gibt an, ob die Auswahl alle Spalten umfasst oder nur die erste."}),
    row<&lmListView::AllowEdit, &lmListView::letAllowEdit, &Properties::AllowEdit>(
        u"AllowEdit", 110, Group::data, After::store, false,
        {u"Whether a second press opens the in-place editor, in cells that allow it too. A double click asks "
         u"the cell alone.",
         u"Gibt an, ob ein zweites Drücken das Eingabefeld öffnet; die Zelle muss es ebenfalls erlauben. Ein "
         u"Doppelklick richtet sich allein nach der Zelle."}),
    row<&lmListView::ValueColor, &lmListView::letValueColor, &Properties::ValueColor>(
        u"ValueColor", 111, Group::appearance, After::checkForRedraw, 0xFF0000,
        {u"Background of selected cells in the custom scheme.",
         u"Hintergrundfarbe ausgewählter Zellen im benutzerdefinierten Schema."}),
    row<&lmListView::BorderVisible, &lmListView::letBorderVisible, &Properties::BorderVisible>(
        u"BorderVisible", 112, Group::appearance, After::checkForRedraw, true,
        {u"Whether a border is drawn.", u"Gibt an, ob ein Rahmen gezeichnet wird."}),
    row<&lmListView::IndentTop, &lmListView::letIndentTop, &Properties::IndentTop>(
        u"IndentTop", 113, Group::appearance, After::checkForRedraw, 3,
        {u"Kept for the host in pixels; painting does not use it.",
         u"Wird in Pixeln für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    row<&lmListView::IndentLeft, &lmListView::letIndentLeft, &Properties::IndentLeft>(
        u"IndentLeft", 114, Group::appearance, After::checkForRedraw, 3,
        {u"Kept for the host in pixels; painting does not use it.",
         u"Wird in Pixeln für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    row<&lmListView::IndentRight, &lmListView::letIndentRight, &Properties::IndentRight>(
        u"IndentRight", 115, Group::appearance, After::checkForRedraw, 3,
        {u"Kept for the host in pixels; painting does not use it.",
         u"Wird in Pixeln für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    row<&lmListView::IndentBottom, &lmListView::letIndentBottom, &Properties::IndentBottom>(
        u"IndentBottom", 116, Group::appearance, After::checkForRedraw, 3,
        {u"Kept for the host in pixels; painting does not use it.",
         u"Wird in Pixeln für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    row<&lmListView::DistPicText, &lmListView::letDistPicText, &Properties::DistPicText>(
        u"DistPicText", 117, Group::appearance, After::checkForRedraw, 2,
        {u"Pixels between icon and text.", u"Abstand zwischen Symbol und Text in Pixeln."}),
    row<&lmListView::AutoCheckScroll, &lmListView::letAutoCheckScroll, &Properties::AutoCheckScroll>(
        u"AutoCheckScroll", 118, Group::scrollBars, After::own, true,
        {u"Whether a change of the content checks the scroll bars. Switching it on checks them at once.",
         u"Gibt an, ob eine Änderung des Inhalts die Bildlaufleisten prüft. Das Einschalten prüft sie "
         u"sofort."}),
    row<&lmListView::AutoRedraw, &lmListView::letAutoRedraw, &Properties::AutoRedraw>(
        u"AutoRedraw", 119, Group::behaviour, After::ownRedraw, true,
        {u"Whether a change repaints at once. Switch it off around bulk changes; switching it on repaints.",
         u"Gibt an, ob eine Änderung sofort neu zeichnet. Für viele Änderungen hintereinander abzuschalten; "
         u"das Einschalten zeichnet neu."}),
    row<&lmListView::IconSelect, &lmListView::letIconSelect, &Properties::IconSelect>(
        u"IconSelect", 120, Group::appearance, After::checkForRedraw, true,
        {u"Kept for the host; painting does not use it.",
         u"Wird für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    row<&lmListView::IconW, &lmListView::letIconW, &Properties::IconW>(
        u"IconW", 121, Group::appearance, After::checkForRedraw, 16,
        {u"Width of cell icons in pixels, for columns added later.",
         u"Breite der Zellensymbole in Pixeln, für später hinzugefügte Spalten."}),
    row<&lmListView::IconH, &lmListView::letIconH, &Properties::IconH>(
        u"IconH", 122, Group::appearance, After::checkForRedraw, 16,
        {u"Height of cell icons in pixels, for columns added later.",
         u"Höhe der Zellensymbole in Pixeln, für später hinzugefügte Spalten."}),
    row<&lmListView::ColumnIconW, &lmListView::letColumnIconW, &Properties::ColumnIconW>(
        u"ColumnIconW", 123, Group::columns, After::checkForRedraw, 16,
        {u"Width of header icons in pixels.", u"Breite der Symbole in Spaltenköpfen in Pixeln."}),
    row<&lmListView::ColumnIconH, &lmListView::letColumnIconH, &Properties::ColumnIconH>(
        u"ColumnIconH", 124, Group::columns, After::checkForRedraw, 16,
        {u"Height of header icons in pixels.", u"Höhe der Symbole in Spaltenköpfen in Pixeln."}),
    row<&lmListView::ScrollColorStyle, &lmListView::letScrollColorStyle, &Properties::ScrollColorStyle>(
        u"ScrollColorStyle", 125, Group::scrollBars, After::own, cXPScrollBlue,
        {u"Scheme of the scroll bars.", u"Farbschema der Bildlaufleisten."}),
    row<&lmListView::GridLines, &lmListView::letGridLines, &Properties::GridLines>(
        u"GridLines", 126, Group::appearance, After::checkForRedraw, false,
        {u"Whether lines are drawn between cells.",
         u"Gibt an, ob Linien zwischen den Zellen gezeichnet werden."}),
    row<&lmListView::GridLineColor, &lmListView::letGridLineColor, &Properties::GridLineColor>(
        u"GridLineColor", 127, Group::appearance, After::checkForRedraw, 0xC0C0C0,
        {u"Colour of the lines between cells.", u"Farbe der Linien zwischen den Zellen."}),
    row<&lmListView::MultiSelect, &lmListView::letMultiSelect, &Properties::MultiSelect>(
        u"MultiSelect", 128, Group::behaviour, After::store, false,
        {u"Whether several rows can be selected.", u"Gibt an, ob mehrere Zeilen ausgewählt werden können."}),
    row<&lmListView::HideColumnHeaders, &lmListView::letHideColumnHeaders, &Properties::HideColumnHeaders>(
        u"HideColumnHeaders", 129, Group::columns, After::checkForRedraw, false,
        {u"Whether the headers are left out.", u"Gibt an, ob die Spaltenköpfe entfallen."}),
    row<&lmListView::ColumnTextY, &lmListView::letColumnTextY, &Properties::ColumnTextY>(
        u"ColumnTextY", 130, Group::columns, After::checkForRedraw, 2,
        {u"Pixels above the text of a header; the header grows by as many.",
         u"Pixel über dem Text eines Spaltenkopfs; um so viele wird der Kopf höher."}),
    row<&lmListView::MoveColumnTextAtDown, &lmListView::letMoveColumnTextAtDown, &Properties::MoveColumnTextAtDown>(
        u"MoveColumnTextAtDown", 131, Group::columns, After::store, false,
        {u"Whether a pressed header moves its text by a pixel.",
         u"Gibt an, ob ein gedrückter Spaltenkopf seinen Text um ein Pixel verschiebt."}),
    row<&lmListView::DefaultColumnFont, &lmListView::setDefaultColumnFont, &Properties::DefaultColumnFont>(
        u"DefaultColumnFont", 132, Group::columns, After::ownCheckForRedraw, containersFont,
        {u"Font of all headers. A clone is kept.",
         u"Schriftart aller Spaltenköpfe. Eine Kopie wird aufbewahrt."}),
    row<&lmListView::DefaultColumnForeColor, &lmListView::letDefaultColumnForeColor, &Properties::DefaultColumnForeColor>(
        u"DefaultColumnForeColor", 133, Group::columns, After::checkForRedraw, 0,
        {u"Text colour of the design view alone. Headers are drawn in ColumnForeColor.",
         u"Textfarbe allein in der Entwurfsansicht. Spaltenköpfe werden in ColumnForeColor gezeichnet."}),
    row<&lmListView::EmptyColumnFieldWidth, &lmListView::letEmptyColumnFieldWidth, &Properties::EmptyColumnFieldWidth>(
        u"EmptyColumnFieldWidth", 134, Group::columns, After::checkForRedraw, 0,
        {u"Twips of free space behind the last column, where the columns reach past the right edge.",
         u"Freier Raum hinter der letzten Spalte in Twips, wenn die Spalten über den rechten Rand "
         u"hinausreichen."}),
    row<&lmListView::ColumnBackColor, &lmListView::letColumnBackColor, &Properties::ColumnBackColor>(
        u"ColumnBackColor", 135, Group::columns, After::checkForRedraw, buttonFace,
        {u"Background of headers in the custom scheme.",
         u"Hintergrundfarbe der Spaltenköpfe im benutzerdefinierten Schema."}),
    row<&lmListView::ColumnHoverColor, &lmListView::letColumnHoverColor, &Properties::ColumnHoverColor>(
        u"ColumnHoverColor", 136, Group::columns, After::checkForRedraw, buttonFace,
        {u"Background of the header under the pointer in the custom scheme.",
         u"Hintergrundfarbe des Spaltenkopfs unter dem Mauszeiger im benutzerdefinierten Schema."}),
    row<&lmListView::ColumnDownColor, &lmListView::letColumnDownColor, &Properties::ColumnDownColor>(
        u"ColumnDownColor", 137, Group::columns, After::checkForRedraw, buttonFace,
        {u"Background of the pressed header in the custom scheme.",
         u"Hintergrundfarbe des gedrückten Spaltenkopfs im benutzerdefinierten Schema."}),
    row<&lmListView::RowsDynamic, &lmListView::letRowsDynamic, &Properties::RowsDynamic>(
        u"RowsDynamic", 138, Group::appearance, After::ownCheckForRedraw, true,
        {u"Whether rows are as high as the default font, and from the first icon or check box shown on as high "
         u"as their content needs; else RowHeight.",
         u"Gibt an, ob die Zeilen so hoch sind wie die Standardschrift und vom ersten gezeigten Symbol oder "
         u"Kontrollkästchen an so hoch, wie ihr Inhalt es braucht; sonst gilt RowHeight."}),
    row<&lmListView::RowHeight, &lmListView::letRowHeight, &Properties::RowHeight>(
        u"RowHeight", 139, Group::appearance, After::checkForRedraw, sixteenPixels,
        {u"Height of a row in twips, where RowsDynamic is False.",
         u"Höhe einer Zeile in Twips, wenn RowsDynamic False ist."}),
    row<&lmListView::ScrollBackColor, &lmListView::letScrollBackColor, &Properties::ScrollBackColor>(
        u"ScrollBackColor", 140, Group::scrollBars, After::toScrollBars, buttonFace,
        {u"Trough of the scroll bars in the custom scheme.",
         u"Farbe der Laufbahn der Bildlaufleisten im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollArrows, &lmListView::letScrollArrows, &Properties::ScrollArrows>(
        u"ScrollArrows", 141, Group::scrollBars, After::toScrollBars, 0,
        {u"Arrows of the scroll bars in the custom scheme.",
         u"Farbe der Pfeile der Bildlaufleisten im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollButtons, &lmListView::letScrollButtons, &Properties::ScrollButtons>(
        u"ScrollButtons", 142, Group::scrollBars, After::toScrollBars, buttonFace,
        {u"Arrow buttons of the scroll bars in the custom scheme.",
         u"Farbe der Pfeilschaltflächen der Bildlaufleisten im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollBar, &lmListView::letScrollBar, &Properties::ScrollBar>(
        u"ScrollBar", 143, Group::scrollBars, After::toScrollBars, buttonFace,
        {u"Thumbs of the scroll bars in the custom scheme.",
         u"Farbe der Bildlauffelder im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollArrowsDown, &lmListView::letScrollArrowsDown, &Properties::ScrollArrowsDown>(
        u"ScrollArrowsDown", 144, Group::scrollBars, After::toScrollBars, 0,
        {u"Arrows while pressed, in the custom scheme.",
         u"Farbe gedrückter Pfeile im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollButtonsDown, &lmListView::letScrollButtonsDown, &Properties::ScrollButtonsDown>(
        u"ScrollButtonsDown", 145, Group::scrollBars, After::toScrollBars, buttonFace,
        {u"Arrow buttons while pressed, in the custom scheme.",
         u"Farbe gedrückter Pfeilschaltflächen im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollBarDown, &lmListView::letScrollBarDown, &Properties::ScrollBarDown>(
        u"ScrollBarDown", 146, Group::scrollBars, After::toScrollBars, buttonFace,
        {u"Thumbs while pressed, in the custom scheme.",
         u"Farbe gedrückter Bildlauffelder im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollArrowsHover, &lmListView::letScrollArrowsHover, &Properties::ScrollArrowsHover>(
        u"ScrollArrowsHover", 147, Group::scrollBars, After::toScrollBars, 0,
        {u"Arrows under the pointer, in the custom scheme.",
         u"Farbe der Pfeile unter dem Mauszeiger im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollButtonsHover, &lmListView::letScrollButtonsHover, &Properties::ScrollButtonsHover>(
        u"ScrollButtonsHover", 148, Group::scrollBars, After::toScrollBars, buttonFace,
        {u"Arrow buttons under the pointer, in the custom scheme.",
         u"Farbe der Pfeilschaltflächen unter dem Mauszeiger im benutzerdefinierten Schema."}),
    row<&lmListView::ScrollBarHover, &lmListView::letScrollBarHover, &Properties::ScrollBarHover>(
        u"ScrollBarHover", 149, Group::scrollBars, After::toScrollBars, buttonFace,
        {u"Thumbs under the pointer, in the custom scheme.",
         u"Farbe der Bildlauffelder unter dem Mauszeiger im benutzerdefinierten Schema."}),
    row<&lmListView::EmptyColumnFieldColor, &lmListView::letEmptyColumnFieldColor, &Properties::EmptyColumnFieldColor>(
        u"EmptyColumnFieldColor", 150, Group::columns, After::checkForRedraw, buttonFace,
        {u"Colour of the header area behind the last column in the custom scheme.",
         u"Farbe des Kopfbereichs hinter der letzten Spalte im benutzerdefinierten Schema."}),
    row<&lmListView::WheelFunction, &lmListView::letWheelFunction, &Properties::WheelFunction>(
        u"WheelFunction", 151, Group::scrollBars, After::store, cWheelScroll,
        {u"What the wheel moves: the view, the current row, or nothing.",
         u"Bestimmt, was das Mausrad bewegt: die Ansicht, die aktuelle Zeile oder nichts."}),
    row<&lmListView::WheelScrollLines, &lmListView::letWheelScrollLines, &Properties::WheelScrollLines>(
        u"WheelScrollLines", 152, Group::scrollBars, After::store, 1,
        {u"Rows by which one wheel event scrolls the view, however far the wheel was turned.",
         u"Anzahl der Zeilen, um die ein Mausradereignis die Ansicht bewegt, gleich wie weit das Rad gedreht "
         u"wurde."}),
    row<&lmListView::DefaultIconSelectedIsIcon, &lmListView::letDefaultIconSelectedIsIcon, &Properties::DefaultIconSelectedIsIcon>(
        u"DefaultIconSelectedIsIcon", 153, Group::appearance, After::checkForRedraw, true,
        {u"Whether a selected cell without a picture of its own for that shows its plain icon.",
         u"Gibt an, ob eine ausgewählte Zelle ohne eigenes Bild dafür ihr gewöhnliches Symbol zeigt."}),
    row<&lmListView::ScrollButtonJumpLines, &lmListView::letScrollButtonJumpLines, &Properties::ScrollButtonJumpLines>(
        u"ScrollButtonJumpLines", 154, Group::scrollBars, After::own, jumpLines,
        {u"Rows that one press of an arrow button of the vertical bar moves. A number below 1 is dropped.",
         u"Anzahl der Zeilen, um die ein Druck auf eine Pfeilschaltfläche der senkrechten Leiste die Ansicht "
         u"bewegt. Werte unter 1 werden verworfen."}),
    row<&lmListView::TextPositionDefault, &lmListView::letTextPositionDefault, &Properties::TextPositionDefault>(
        u"TextPositionDefault", 155, Group::appearance, After::ownCheckForRedraw, cTextPosCenter,
        {u"Vertical place of the text in rows added later. The host is not told of the change.",
         u"Senkrechte Lage des Texts in später hinzugefügten Zeilen. Dem Container wird die Änderung nicht "
         u"gemeldet."}),
    row<&lmListView::DrawItemIcons, &lmListView::letDrawItemIcons, &Properties::DrawItemIcons>(
        u"DrawItemIcons", 156, Group::appearance, After::redraw, true,
        {u"Whether cell icons are drawn.", u"Gibt an, ob Zellensymbole gezeichnet werden."}),
    row<&lmListView::DrawColumnIcons, &lmListView::letDrawColumnIcons, &Properties::DrawColumnIcons>(
        u"DrawColumnIcons", 157, Group::columns, After::redraw, true,
        {u"Whether header icons are drawn.", u"Gibt an, ob Symbole in Spaltenköpfen gezeichnet werden."}),
    row<&lmListView::BackgroundPicture, &lmListView::setBackgroundPicture, &Properties::BackgroundPicture>(
        u"BackgroundPicture", 158, Group::appearance, After::redraw, noPicture,
        {u"Picture in the lower right corner of the list, at its own size.",
         u"Bild in der rechten unteren Ecke der Liste, in seiner eigenen Größe."}),
    row<&lmListView::Skin, &lmListView::setSkin, &Properties::Skin>(
        u"Skin", 159, Group::appearance, After::ownRedraw, noPicture,
        {u"Strip of 16 x 3 pixels for the bar of the header under the pointer, in the blue and the silver "
         u"scheme alone; Nothing for the built-in one.",
         u"Streifen von 16 x 3 Pixeln für den Balken des Spaltenkopfs unter dem Mauszeiger, nur im blauen "
         u"und im silbernen Schema; Nothing für den eingebauten."}),
    row<&lmListView::FixColumns, &lmListView::letFixColumns, &Properties::FixColumns>(
        u"FixColumns", 160, Group::columns, After::store, false,
        {u"Whether columns keep their widths under the mouse.",
         u"Gibt an, ob sich die Spaltenbreiten mit der Maus nicht ändern lassen."}),
    row<&lmListView::CheckMouseOver, &lmListView::letCheckMouseOver, &Properties::CheckMouseOver>(
        u"CheckMouseOver", 161, Group::behaviour, After::store, false,
        {u"Kept for the host; it has no visible effect, and ItemOver is never raised.",
         u"Wird für das Programm aufbewahrt; der Wert hat keine sichtbare Wirkung, und ItemOver wird nie "
         u"ausgelöst."}),
    row<&lmListView::OLEDragMode, &lmListView::letOLEDragMode, &Properties::OLEDragMode>(
        u"OLEDragMode", 162, Group::data, After::store, shortNumber(0),
        {u"Kept for the host; the list never starts a drag by itself.",
         u"Wird für das Programm aufbewahrt; die Liste beginnt von sich aus nie ein Ziehen."}),
    row<&lmListView::OLEDropMode, &lmListView::letOLEDropMode, &Properties::OLEDropMode>(
        u"OLEDropMode", 163, Group::data, After::own, shortNumber(0),
        {u"1 takes what is dragged over the list, with OLEDragOver and OLEDragDrop; any other number takes "
         u"nothing.",
         u"1 nimmt an, was über die Liste gezogen wird, mit OLEDragOver und OLEDragDrop; jeder andere Wert "
         u"nimmt nichts an."}),
    row<&lmListView::AutoRowColor, &lmListView::letAutoRowColor, &Properties::AutoRowColor>(
        u"AutoRowColor", 164, Group::appearance, After::checkForRedraw, onlyInBag(false),
        {u"Whether rows take turns with two background colours, in place of those of their cells.",
         u"Gibt an, ob die Zeilen zwischen zwei Hintergrundfarben wechseln, die an die Stelle derer ihrer "
         u"Zellen treten."}),
    row<&lmListView::RowColorFirst, &lmListView::letRowColorFirst, &Properties::RowColorFirst>(
        u"RowColorFirst", 165, Group::appearance, After::checkForRedraw, onlyInBag(white),
        {u"Background of every other row, from the first on.",
         u"Hintergrundfarbe jeder zweiten Zeile, von der ersten an."}),
    row<&lmListView::RowColorSecond, &lmListView::letRowColorSecond, &Properties::RowColorSecond>(
        u"RowColorSecond", 166, Group::appearance, After::checkForRedraw, onlyInBag(white),
        {u"Background of the rows between.", u"Hintergrundfarbe der Zeilen dazwischen."}),
    row<&lmListView::HideSelection, &lmListView::letHideSelection, &Properties::HideSelection>(
        u"HideSelection", 167, Group::appearance, After::checkForRedraw, false,
        {u"While True, every cell has a black background, selected or not. The focus plays no part.",
         u"Solange True, ist der Hintergrund jeder Zelle schwarz, ob ausgewählt oder nicht. Der Fokus spielt "
         u"keine Rolle."}),
    bagOnly<&Properties::AllowItemMoving>(
        u"AllowItemMoving", Group::data, After::store, false,
        {u"Whether the user drags the current row to another place, instead of selecting rows.",
         u"Ob der Benutzer die aktuelle Zeile an eine andere Stelle zieht, statt Zeilen auszuwählen."}),
};
// clang-format on

} // namespace property_table

constexpr std::size_t propertyCount = std::tuple_size_v<decltype(property_table::rows)>;

/// The property comes behind another one, instead of where the table has it.
struct MovedProperty {
    StringView name;
    StringView behind;
};

/// The places in the table of all properties, in its order but for those that are moved, one after the other.
template <std::size_t count>
constexpr std::array<std::size_t, propertyCount>
propertyOrder(const std::array<MovedProperty, count>& moved) {
    const auto names =
        std::apply([](const auto&... row) { return std::array<StringView, propertyCount>{row.name...}; },
                   property_table::rows);
    std::array<std::size_t, propertyCount> order{};
    for (std::size_t place = 0; place < propertyCount; ++place)
        order[place] = place;
    const auto of = [&](StringView name) {
        return std::find_if(
            order.begin(), order.end(), [&](std::size_t place) { return names[place] == name; });
    };
    for (const MovedProperty& each : moved) {
        const auto from = of(each.name);
        const auto behind = of(each.behind);
        if (from == order.end() || behind == order.end())
            throw "both are properties of the table";
        if (from < behind)
            std::rotate(from, from + 1, behind + 1);
        else
            std::rotate(behind + 1, from, from + 1);
    }
    return order;
}

/// The order in which saved settings are read. Those of a new list are assigned in it too, but for one.
constexpr auto readingMoves = std::to_array<MovedProperty>({
    {u"AutoRedraw", u"RowHeight"},
    {u"ColumnHoverColor", u"ColumnDownColor"},
    {u"WheelScrollLines", u"DefaultIconSelectedIsIcon"},
    {u"OLEDragMode", u"OLEDropMode"},
});

/// The same with one more.
constexpr std::array<MovedProperty, readingMoves.size() + 1> readingMovesAnd(MovedProperty last) {
    std::array<MovedProperty, readingMoves.size() + 1> moves{};
    std::copy(readingMoves.begin(), readingMoves.end(), moves.begin());
    moves.back() = last;
    return moves;
}

constexpr auto readingOrder = propertyOrder(readingMoves);

/// Calls `visit` with each row, in an order that `propertyOrder` gave.
template <const auto& order, class Visit>
void forEachProperty(Visit visit) {
    [&]<std::size_t... places>(std::index_sequence<places...>) {
        (visit(std::get<order[places]>(property_table::rows)), ...);
    }
    (std::make_index_sequence<propertyCount>{});
}

} // namespace lumtex
