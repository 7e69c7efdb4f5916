/// The control-level properties.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::DefaultItemFont, &lmListView::setDefaultItemFont>(
        u"DefaultItemFont",
        Repaint::asAutoRedraw,
        {u"Font of new cells. A clone is kept, and existing cells keep theirs.",
         u"Schriftart neuer Zellen. Eine Kopie wird aufbewahrt; vorhandene Zellen behalten ihre "
         u"Schriftart."}),
    property<&lmListView::DefaultItemForeColor, &lmListView::letDefaultItemForeColor>(
        u"DefaultItemForeColor",
        Repaint::asAutoRedraw,
        {u"Text colour of new cells. Existing cells keep theirs.",
         u"Textfarbe neuer Zellen. Vorhandene Zellen behalten ihre Farbe."}),
    property<&lmListView::BackColor, &lmListView::letBackColor>(
        u"BackColor", Repaint::always, {u"Background of the list.", u"Hintergrundfarbe der Liste."}),
    property<&lmListView::BackColorDisabled, &lmListView::letBackColorDisabled>(
        u"BackColorDisabled",
        Repaint::always,
        {u"Background of the list while the control is disabled.",
         u"Hintergrundfarbe der Liste, solange das Steuerelement deaktiviert ist."}),
    property<&lmListView::Enabled, &lmListView::letEnabled>(
        u"Enabled",
        Repaint::always,
        {u"Whether the control takes presses and keys. The scroll bars follow.",
         u"Gibt an, ob das Steuerelement auf Maus und Tastatur reagiert. Die Bildlaufleisten folgen."}),
    property<&lmListView::ClickOnIndexChange, &lmListView::letClickOnIndexChange>(
        u"ClickOnIndexChange",
        Repaint::never,
        {u"Whether assigning ListIndex raises Click before the index changes.",
         u"Gibt an, ob eine Zuweisung an ListIndex Click auslöst, bevor sich der Index ändert."}),
    property<&lmListView::ColorStyle, &lmListView::letColorStyle>(
        u"ColorStyle",
        Repaint::asAutoRedraw,
        {u"Scheme of headers, selection and border. Any but cCustom is handed on to ScrollColorStyle.",
         u"Farbschema der Spaltenköpfe, der Auswahl und des Rahmens. Jeder Wert außer cCustom wird an "
         u"ScrollColorStyle weitergegeben."}),
    property<&lmListView::BorderColor, &lmListView::letBorderColor>(
        u"BorderColor",
        Repaint::always,
        {u"Colour of the border in the custom scheme.", u"Farbe des Rahmens im benutzerdefinierten Schema."}),
    property<&lmListView::Style, &lmListView::letStyle>(
        u"Style",
        Repaint::asAutoRedraw,
        {u"cCheckBoxes shows check boxes in the columns with ColumnCheckBoxes. What they show is "
         u"ItemChecked.",
         u"cCheckBoxes zeigt Kontrollkästchen in den Spalten mit ColumnCheckBoxes. Sie zeigen ItemChecked."}),
    property<&lmListView::FullRowSelect, &lmListView::letFullRowSelect>(
        u"FullRowSelect",
        Repaint::asAutoRedraw,
        {u"Whether the selection covers all columns or the first alone.",
         u"Gibt an, ob die Auswahl alle Spalten umfasst oder nur die erste."}),
    property<&lmListView::AllowEdit, &lmListView::letAllowEdit>(
        u"AllowEdit",
        Repaint::never,
        {u"Whether a second press opens the in-place editor, in cells that allow it too.",
         u"Gibt an, ob ein zweites Drücken das Eingabefeld öffnet; die Zelle muss es ebenfalls erlauben."}),
    property<&lmListView::ValueColor, &lmListView::letValueColor>(
        u"ValueColor",
        Repaint::asAutoRedraw,
        {u"Background of selected cells in the custom scheme.",
         u"Hintergrundfarbe ausgewählter Zellen im benutzerdefinierten Schema."}),
    property<&lmListView::BorderVisible, &lmListView::letBorderVisible>(
        u"BorderVisible",
        Repaint::asAutoRedraw,
        {u"Whether a border is drawn.", u"Gibt an, ob ein Rahmen gezeichnet wird."}),
    property<&lmListView::IndentTop, &lmListView::letIndentTop>(
        u"IndentTop",
        Repaint::asAutoRedraw,
        {u"Kept for the host in pixels; painting does not use it.",
         u"Wird in Pixeln für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    property<&lmListView::IndentLeft, &lmListView::letIndentLeft>(
        u"IndentLeft",
        Repaint::asAutoRedraw,
        {u"Kept for the host in pixels; painting does not use it.",
         u"Wird in Pixeln für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    property<&lmListView::IndentRight, &lmListView::letIndentRight>(
        u"IndentRight",
        Repaint::asAutoRedraw,
        {u"Kept for the host in pixels; painting does not use it.",
         u"Wird in Pixeln für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    property<&lmListView::IndentBottom, &lmListView::letIndentBottom>(
        u"IndentBottom",
        Repaint::asAutoRedraw,
        {u"Kept for the host in pixels; painting does not use it.",
         u"Wird in Pixeln für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    property<&lmListView::DistPicText, &lmListView::letDistPicText>(
        u"DistPicText",
        Repaint::asAutoRedraw,
        {u"Pixels between icon and text.", u"Abstand zwischen Symbol und Text in Pixeln."}),
    property<&lmListView::AutoCheckScroll, &lmListView::letAutoCheckScroll>(
        u"AutoCheckScroll",
        Repaint::never,
        {u"Whether a change of the content checks the scroll bars. Switching it on checks them at once.",
         u"Gibt an, ob eine Änderung des Inhalts die Bildlaufleisten prüft. Das Einschalten prüft sie "
         u"sofort."}),
    property<&lmListView::AutoRedraw, &lmListView::letAutoRedraw>(
        u"AutoRedraw",
        Repaint::always,
        {u"Whether a change repaints at once. Switch it off around bulk changes; switching it on repaints.",
         u"Gibt an, ob eine Änderung sofort neu zeichnet. Für viele Änderungen hintereinander abzuschalten; "
         u"das Einschalten zeichnet neu."}),
    property<&lmListView::IconSelect, &lmListView::letIconSelect>(
        u"IconSelect",
        Repaint::asAutoRedraw,
        {u"Kept for the host; painting does not use it.",
         u"Wird für das Programm aufbewahrt; das Zeichnen benutzt den Wert nicht."}),
    property<&lmListView::IconW, &lmListView::letIconW>(
        u"IconW",
        Repaint::asAutoRedraw,
        {u"Width of cell icons in pixels, for columns added later.",
         u"Breite der Zellensymbole in Pixeln, für später hinzugefügte Spalten."}),
    property<&lmListView::IconH, &lmListView::letIconH>(
        u"IconH",
        Repaint::asAutoRedraw,
        {u"Height of cell icons in pixels, for columns added later.",
         u"Höhe der Zellensymbole in Pixeln, für später hinzugefügte Spalten."}),
    property<&lmListView::ColumnIconW, &lmListView::letColumnIconW>(
        u"ColumnIconW",
        Repaint::asAutoRedraw,
        {u"Width of header icons in pixels.", u"Breite der Symbole in Spaltenköpfen in Pixeln."}),
    property<&lmListView::ColumnIconH, &lmListView::letColumnIconH>(
        u"ColumnIconH",
        Repaint::asAutoRedraw,
        {u"Height of header icons in pixels.", u"Höhe der Symbole in Spaltenköpfen in Pixeln."}),
    property<&lmListView::ScrollColorStyle, &lmListView::letScrollColorStyle>(
        u"ScrollColorStyle",
        Repaint::never,
        {u"Scheme of the scroll bars.", u"Farbschema der Bildlaufleisten."}),
    property<&lmListView::GridLines, &lmListView::letGridLines>(
        u"GridLines",
        Repaint::asAutoRedraw,
        {u"Whether lines are drawn between cells.",
         u"Gibt an, ob Linien zwischen den Zellen gezeichnet werden."}),
    property<&lmListView::GridLineColor, &lmListView::letGridLineColor>(
        u"GridLineColor",
        Repaint::asAutoRedraw,
        {u"Colour of the lines between cells.", u"Farbe der Linien zwischen den Zellen."}),
    property<&lmListView::MultiSelect, &lmListView::letMultiSelect>(
        u"MultiSelect",
        Repaint::never,
        {u"Whether several rows can be selected.", u"Gibt an, ob mehrere Zeilen ausgewählt werden können."}),
    property<&lmListView::HideColumnHeaders, &lmListView::letHideColumnHeaders>(
        u"HideColumnHeaders",
        Repaint::asAutoRedraw,
        {u"Whether the headers are left out.", u"Gibt an, ob die Spaltenköpfe entfallen."}),
    property<&lmListView::ColumnTextY, &lmListView::letColumnTextY>(
        u"ColumnTextY",
        Repaint::asAutoRedraw,
        {u"Pixels above the text of a header; the header grows by as many.",
         u"Pixel über dem Text eines Spaltenkopfs; um so viele wird der Kopf höher."}),
    property<&lmListView::MoveColumnTextAtDown, &lmListView::letMoveColumnTextAtDown>(
        u"MoveColumnTextAtDown",
        Repaint::never,
        {u"Whether a pressed header moves its text by a pixel.",
         u"Gibt an, ob ein gedrückter Spaltenkopf seinen Text um ein Pixel verschiebt."}),
    property<&lmListView::DefaultColumnFont, &lmListView::setDefaultColumnFont>(
        u"DefaultColumnFont",
        Repaint::asAutoRedraw,
        {u"Font of all headers. A clone is kept.",
         u"Schriftart aller Spaltenköpfe. Eine Kopie wird aufbewahrt."}),
    property<&lmListView::DefaultColumnForeColor, &lmListView::letDefaultColumnForeColor>(
        u"DefaultColumnForeColor",
        Repaint::asAutoRedraw,
        {u"Text colour of the design view alone. Headers are drawn in ColumnForeColor.",
         u"Textfarbe allein in der Entwurfsansicht. Spaltenköpfe werden in ColumnForeColor gezeichnet."}),
    property<&lmListView::EmptyColumnFieldWidth, &lmListView::letEmptyColumnFieldWidth>(
        u"EmptyColumnFieldWidth",
        Repaint::asAutoRedraw,
        {u"Twips of free space behind the last column, where the columns reach past the right edge.",
         u"Freier Raum hinter der letzten Spalte in Twips, wenn die Spalten über den rechten Rand "
         u"hinausreichen."}),
    property<&lmListView::ColumnBackColor, &lmListView::letColumnBackColor>(
        u"ColumnBackColor",
        Repaint::asAutoRedraw,
        {u"Background of headers in the custom scheme.",
         u"Hintergrundfarbe der Spaltenköpfe im benutzerdefinierten Schema."}),
    property<&lmListView::ColumnHoverColor, &lmListView::letColumnHoverColor>(
        u"ColumnHoverColor",
        Repaint::asAutoRedraw,
        {u"Background of the header under the pointer in the custom scheme.",
         u"Hintergrundfarbe des Spaltenkopfs unter dem Mauszeiger im benutzerdefinierten Schema."}),
    property<&lmListView::ColumnDownColor, &lmListView::letColumnDownColor>(
        u"ColumnDownColor",
        Repaint::asAutoRedraw,
        {u"Background of the pressed header in the custom scheme.",
         u"Hintergrundfarbe des gedrückten Spaltenkopfs im benutzerdefinierten Schema."}),
    property<&lmListView::RowsDynamic, &lmListView::letRowsDynamic>(
        u"RowsDynamic",
        Repaint::asAutoRedraw,
        {u"Whether each row is as high as its content needs, or RowHeight.",
         u"Gibt an, ob jede Zeile so hoch ist, wie ihr Inhalt es braucht, oder so hoch wie RowHeight."}),
    property<&lmListView::RowHeight, &lmListView::letRowHeight>(
        u"RowHeight",
        Repaint::asAutoRedraw,
        {u"Height of a row in twips, where RowsDynamic is False.",
         u"Höhe einer Zeile in Twips, wenn RowsDynamic False ist."}),
    property<&lmListView::ScrollBackColor, &lmListView::letScrollBackColor>(
        u"ScrollBackColor",
        Repaint::asAutoRedraw,
        {u"Trough of the scroll bars in the custom scheme.",
         u"Farbe der Laufbahn der Bildlaufleisten im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollArrows, &lmListView::letScrollArrows>(
        u"ScrollArrows",
        Repaint::asAutoRedraw,
        {u"Arrows of the scroll bars in the custom scheme.",
         u"Farbe der Pfeile der Bildlaufleisten im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollButtons, &lmListView::letScrollButtons>(
        u"ScrollButtons",
        Repaint::asAutoRedraw,
        {u"Arrow buttons of the scroll bars in the custom scheme.",
         u"Farbe der Pfeilschaltflächen der Bildlaufleisten im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollBar, &lmListView::letScrollBar>(
        u"ScrollBar",
        Repaint::asAutoRedraw,
        {u"Thumbs of the scroll bars in the custom scheme.",
         u"Farbe der Bildlauffelder im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollArrowsDown, &lmListView::letScrollArrowsDown>(
        u"ScrollArrowsDown",
        Repaint::asAutoRedraw,
        {u"Arrows while pressed, in the custom scheme.",
         u"Farbe gedrückter Pfeile im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollButtonsDown, &lmListView::letScrollButtonsDown>(
        u"ScrollButtonsDown",
        Repaint::asAutoRedraw,
        {u"Arrow buttons while pressed, in the custom scheme.",
         u"Farbe gedrückter Pfeilschaltflächen im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollBarDown, &lmListView::letScrollBarDown>(
        u"ScrollBarDown",
        Repaint::asAutoRedraw,
        {u"Thumbs while pressed, in the custom scheme.",
         u"Farbe gedrückter Bildlauffelder im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollArrowsHover, &lmListView::letScrollArrowsHover>(
        u"ScrollArrowsHover",
        Repaint::asAutoRedraw,
        {u"Arrows under the pointer, in the custom scheme.",
         u"Farbe der Pfeile unter dem Mauszeiger im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollButtonsHover, &lmListView::letScrollButtonsHover>(
        u"ScrollButtonsHover",
        Repaint::asAutoRedraw,
        {u"Arrow buttons under the pointer, in the custom scheme.",
         u"Farbe der Pfeilschaltflächen unter dem Mauszeiger im benutzerdefinierten Schema."}),
    property<&lmListView::ScrollBarHover, &lmListView::letScrollBarHover>(
        u"ScrollBarHover",
        Repaint::asAutoRedraw,
        {u"Thumbs under the pointer, in the custom scheme.",
         u"Farbe der Bildlauffelder unter dem Mauszeiger im benutzerdefinierten Schema."}),
    property<&lmListView::EmptyColumnFieldColor, &lmListView::letEmptyColumnFieldColor>(
        u"EmptyColumnFieldColor",
        Repaint::asAutoRedraw,
        {u"Colour of the header area behind the last column in the custom scheme.",
         u"Farbe des Kopfbereichs hinter der letzten Spalte im benutzerdefinierten Schema."}),
    property<&lmListView::WheelFunction, &lmListView::letWheelFunction>(
        u"WheelFunction",
        Repaint::never,
        {u"What the wheel moves: the view, the current row, or nothing.",
         u"Bestimmt, was das Mausrad bewegt: die Ansicht, die aktuelle Zeile oder nichts."}),
    property<&lmListView::WheelScrollLines, &lmListView::letWheelScrollLines>(
        u"WheelScrollLines",
        Repaint::never,
        {u"Rows by which one wheel event scrolls the view, however far the wheel was turned.",
         u"Anzahl der Zeilen, um die ein Mausradereignis die Ansicht bewegt, gleich wie weit das Rad gedreht "
         u"wurde."}),
    property<&lmListView::DefaultIconSelectedIsIcon, &lmListView::letDefaultIconSelectedIsIcon>(
        u"DefaultIconSelectedIsIcon",
        Repaint::asAutoRedraw,
        {u"Whether a selected cell without a picture of its own for that shows its plain icon.",
         u"Gibt an, ob eine ausgewählte Zelle ohne eigenes Bild dafür ihr gewöhnliches Symbol zeigt."}),
    property<&lmListView::ScrollButtonJumpLines, &lmListView::letScrollButtonJumpLines>(
        u"ScrollButtonJumpLines",
        Repaint::never,
        {u"Rows that one press of an arrow button of the vertical bar moves. A number below 1 is dropped.",
         u"Anzahl der Zeilen, um die ein Druck auf eine Pfeilschaltfläche der senkrechten Leiste die Ansicht "
         u"bewegt. Werte unter 1 werden verworfen."}),
    property<&lmListView::TextPositionDefault, &lmListView::letTextPositionDefault>(
        u"TextPositionDefault",
        Repaint::asAutoRedraw,
        {u"Vertical place of the text in rows added later. The host is not told of the change.",
         u"Senkrechte Lage des Texts in später hinzugefügten Zeilen. Dem Container wird die Änderung nicht "
         u"gemeldet."}),
    property<&lmListView::DrawItemIcons, &lmListView::letDrawItemIcons>(
        u"DrawItemIcons",
        Repaint::always,
        {u"Whether cell icons are drawn.", u"Gibt an, ob Zellensymbole gezeichnet werden."}),
    property<&lmListView::DrawColumnIcons, &lmListView::letDrawColumnIcons>(
        u"DrawColumnIcons",
        Repaint::always,
        {u"Whether header icons are drawn.", u"Gibt an, ob Symbole in Spaltenköpfen gezeichnet werden."}),
    property<&lmListView::BackgroundPicture, &lmListView::setBackgroundPicture>(
        u"BackgroundPicture",
        Repaint::always,
        {u"Picture in the lower right corner of the list, at its own size.",
         u"Bild in der rechten unteren Ecke der Liste, in seiner eigenen Größe."}),
    property<&lmListView::Skin, &lmListView::setSkin>(
        u"Skin",
        Repaint::always,
        {u"Strip of 16 x 3 pixels for the bar of the header under the pointer, in the blue and the silver "
         u"scheme alone; Nothing for the built-in one.",
         u"Streifen von 16 x 3 Pixeln für den Balken des Spaltenkopfs unter dem Mauszeiger, nur im blauen "
         u"und im silbernen Schema; Nothing für den eingebauten."}),
    property<&lmListView::FixColumns, &lmListView::letFixColumns>(
        u"FixColumns",
        Repaint::never,
        {u"Whether columns keep their widths under the mouse.",
         u"Gibt an, ob sich die Spaltenbreiten mit der Maus nicht ändern lassen."}),
    property<&lmListView::CheckMouseOver, &lmListView::letCheckMouseOver>(
        u"CheckMouseOver",
        Repaint::never,
        {u"Kept for the host; it has no visible effect.",
         u"Wird für das Programm aufbewahrt; der Wert hat keine sichtbare Wirkung."}),
    property<&lmListView::OLEDragMode, &lmListView::letOLEDragMode>(
        u"OLEDragMode",
        Repaint::never,
        {u"Kept for the host; the list never starts a drag by itself.",
         u"Wird für das Programm aufbewahrt; die Liste beginnt von sich aus nie ein Ziehen."}),
    property<&lmListView::OLEDropMode, &lmListView::letOLEDropMode>(
        u"OLEDropMode",
        Repaint::never,
        {u"Whether the control takes drops.",
         u"Gibt an, ob sich etwas auf dem Steuerelement ablegen lässt."}),
    property<&lmListView::AutoRowColor, &lmListView::letAutoRowColor>(
        u"AutoRowColor",
        Repaint::asAutoRedraw,
        {u"Whether rows take turns with two background colours, in place of those of their cells.",
         u"Gibt an, ob die Zeilen zwischen zwei Hintergrundfarben wechseln, die an die Stelle derer ihrer "
         u"Zellen treten."}),
    property<&lmListView::RowColorFirst, &lmListView::letRowColorFirst>(
        u"RowColorFirst",
        Repaint::asAutoRedraw,
        {u"Background of every other row, from the first on.",
         u"Hintergrundfarbe jeder zweiten Zeile, von der ersten an."}),
    property<&lmListView::RowColorSecond, &lmListView::letRowColorSecond>(
        u"RowColorSecond",
        Repaint::asAutoRedraw,
        {u"Background of the rows between.", u"Hintergrundfarbe der Zeilen dazwischen."}),
    property<&lmListView::HideSelection, &lmListView::letHideSelection>(
        u"HideSelection",
        Repaint::asAutoRedraw,
        {u"While True, every cell has a black background, selected or not. The focus plays no part.",
         u"Solange True, ist der Hintergrund jeder Zelle schwarz, ob ausgewählt oder nicht. Der Fokus spielt "
         u"keine Rolle."}),
    hidden(property<&lmListView::Recordset, &lmListView::setRecordset>(
        u"Recordset",
        Repaint::always,
        {u"Assigning an object with RecordCount, fields, MoveFirst, MoveNext and EOF takes its fields as "
         u"columns and its records as rows, once. A comma in a value splits it. RecordCount not above 0 "
         u"changes nothing and repaints nothing.",
         u"Die Zuweisung eines Objekts mit RecordCount, fields, MoveFirst, MoveNext und EOF übernimmt "
         u"einmalig dessen Felder als Spalten und dessen Datensätze als Zeilen. Ein Komma teilt einen Wert. "
         u"Ist RecordCount nicht größer als 0, ändert sich nichts, und nichts wird gezeichnet."})),
});

} // namespace

std::span<const Member> propertyMembers() {
    return members;
}

} // namespace lumtex
