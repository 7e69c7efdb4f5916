/// Members that read and write one field of a row.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::RowEnabled, &lmListView::letRowEnabled>(
        300,
        u"RowEnabled",
        Repaint::asAutoRedraw,
        {u"Whether the row can be chosen. Assigning enables or disables its cells too.",
         u"Gibt an, ob die Zeile gewählt werden kann. Eine Zuweisung aktiviert oder deaktiviert auch ihre "
         u"Zellen."},
        {u"Index"}),
    property<&lmListView::RowSelected, &lmListView::letRowSelected>(
        301,
        u"RowSelected",
        Repaint::asAutoRedraw,
        {u"Whether the row is selected. Selecting scrolls to a row out of view, and without MultiSelect "
         u"drops the other rows. ListIndex does not follow.",
         u"Gibt an, ob die Zeile ausgewählt ist. Das Auswählen rollt zu einer Zeile außerhalb des sichtbaren "
         u"Bereichs und hebt ohne MultiSelect die Auswahl der anderen auf. ListIndex folgt nicht."},
        {u"Index"}),
    property<&lmListView::RowChecked, &lmListView::letRowChecked>(
        302,
        u"RowChecked",
        Repaint::asAutoRedraw,
        {u"Check mark that the control keeps for the host. Nothing shows it: boxes stand in columns with "
         u"ColumnCheckBoxes alone, and what they show is ItemChecked.",
         u"Häkchen, das das Steuerelement für das Programm aufbewahrt. Nichts zeigt es an: Kontrollkästchen "
         u"stehen nur in Spalten mit ColumnCheckBoxes, und sie zeigen ItemChecked."},
        {u"Index"}),
    property<&lmListView::TextPosition, &lmListView::letTextPosition>(
        303,
        u"TextPosition",
        Repaint::asAutoRedraw,
        {u"Vertical place of the text in the row. Without effect while RowsDynamic is True.",
         u"Senkrechte Lage des Texts in der Zeile. Ohne Wirkung, solange RowsDynamic True ist."},
        {u"Index"}),
});

} // namespace

std::span<const Member> rowMembers() {
    return members;
}

} // namespace lumtex::automation
