/// Members that read and write one field of a column.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::ColumnText, &lmListView::letColumnText>(
        200,
        u"ColumnText",
        Repaint::asAutoRedraw,
        {u"Text of the header.", u"Text des Spaltenkopfs."},
        {u"Index"}),
    property<&lmListView::ColumnIcon, &lmListView::setColumnIcon>(
        201,
        u"ColumnIcon",
        Repaint::asAutoRedraw,
        {u"Icon of the header.", u"Symbol des Spaltenkopfs."},
        {u"Index"}),
    property<&lmListView::ColumnIconHover, &lmListView::setColumnIconHover>(
        202,
        u"ColumnIconHover",
        Repaint::asAutoRedraw,
        {u"Icon of the header while the pointer is over it.",
         u"Symbol des Spaltenkopfs, während der Mauszeiger darauf steht."},
        {u"Index"}),
    property<&lmListView::ColumnIconDown, &lmListView::setColumnIconDown>(
        203,
        u"ColumnIconDown",
        Repaint::asAutoRedraw,
        {u"Icon of the header while it is pressed.", u"Symbol des Spaltenkopfs, während er gedrückt ist."},
        {u"Index"}),
    readOnly<&lmListView::ColumnLeft>(
        204,
        u"ColumnLeft",
        {u"Left edge of the header in twips. Goes stale when a column before it is resized by code.",
         u"Linker Rand des Spaltenkopfs in Twips. Der Wert veraltet, wenn ein Programm eine Spalte davor "
         u"verbreitert oder verschmälert."},
        {u"Index"}),
    property<&lmListView::ColumnWidth, &lmListView::letColumnWidth>(
        205,
        u"ColumnWidth",
        Repaint::asAutoRedraw,
        {u"Width in twips. The columns to the right keep their ColumnLeft.",
         u"Breite in Twips. Die Spalten rechts davon behalten ihr ColumnLeft."},
        {u"Index"}),
    property<&lmListView::ColumnTag, &lmListView::letColumnTag>(
        206,
        u"ColumnTag",
        Repaint::asAutoRedraw,
        {u"Text that the control keeps for the host.",
         u"Text, den das Steuerelement für das Programm aufbewahrt."},
        {u"Index"}),
    property<&lmListView::ColumnKey, &lmListView::letColumnKey>(
        207,
        u"ColumnKey",
        Repaint::asAutoRedraw,
        {u"Text that the control keeps for the host. No column is found by it.",
         u"Text, den das Steuerelement für das Programm aufbewahrt. Keine Spalte wird darüber gefunden."},
        {u"Index"}),
    property<&lmListView::ColumnAlignment, &lmListView::letColumnAlignment>(
        208,
        u"ColumnAlignment",
        Repaint::asAutoRedraw,
        {u"Place of the header text. Cells have their own ItemAlignment.",
         u"Ausrichtung des Texts im Spaltenkopf. Die Zellen haben ihr eigenes ItemAlignment."},
        {u"Index"}),
    property<&lmListView::ColumnIconAlignment, &lmListView::letColumnIconAlignment>(
        209,
        u"ColumnIconAlignment",
        Repaint::asAutoRedraw,
        {u"Place of the header icon.", u"Ausrichtung des Symbols im Spaltenkopf."},
        {u"Index"}),
    property<&lmListView::ColumnForeColor, &lmListView::letColumnForeColor>(
        210,
        u"ColumnForeColor",
        Repaint::asAutoRedraw,
        {u"Colour of the header text.", u"Textfarbe des Spaltenkopfs."},
        {u"Index"}),
    property<&lmListView::ColumnForeColorHover, &lmListView::letColumnForeColorHover>(
        211,
        u"ColumnForeColorHover",
        Repaint::asAutoRedraw,
        {u"Colour of the header text while the pointer is over it.",
         u"Textfarbe des Spaltenkopfs, während der Mauszeiger darauf steht."},
        {u"Index"}),
    property<&lmListView::ColumnForeColorDown, &lmListView::letColumnForeColorDown>(
        212,
        u"ColumnForeColorDown",
        Repaint::asAutoRedraw,
        {u"Colour of the header text while the header is pressed.",
         u"Textfarbe des Spaltenkopfs, während er gedrückt ist."},
        {u"Index"}),
    property<&lmListView::ColumnAllowSorting, &lmListView::letColumnAllowSorting>(
        213,
        u"ColumnAllowSorting",
        Repaint::asAutoRedraw,
        {u"Whether a click on the header sorts.", u"Gibt an, ob ein Klick auf den Spaltenkopf sortiert."},
        {u"Index"}),
    property<&lmListView::ColumnCheckBoxes, &lmListView::letColumnCheckBoxes>(
        214,
        u"ColumnCheckBoxes",
        Repaint::asAutoRedraw,
        {u"Whether the cells of the column show check boxes, where Style is cCheckBoxes.",
         u"Gibt an, ob die Zellen der Spalte Kontrollkästchen zeigen, wenn Style cCheckBoxes ist."},
        {u"Index"}),
    property<&lmListView::ColumnAdjustItemIcons, &lmListView::letColumnAdjustItemIcons>(
        215,
        u"ColumnAdjustItemIcons",
        Repaint::asAutoRedraw,
        {u"Whether cell icons are scaled to the icon size of the column.",
         u"Gibt an, ob Zellensymbole auf die Symbolgröße der Spalte gebracht werden."},
        {u"Index"}),
    property<&lmListView::ColumnItemIconH, &lmListView::letColumnItemIconH>(
        216,
        u"ColumnItemIconH",
        Repaint::asAutoRedraw,
        {u"True for any icon height but 0. Assigning stores 0 or -1; the real height comes from IconH as the "
         u"column is added.",
         u"True für jede Symbolhöhe außer 0. Eine Zuweisung speichert 0 oder -1; die wirkliche Höhe stammt "
         u"aus IconH, wenn die Spalte hinzugefügt wird."},
        {u"Index"}),
    property<&lmListView::ColumnItemIconW, &lmListView::letColumnItemIconW>(
        217,
        u"ColumnItemIconW",
        Repaint::asAutoRedraw,
        {u"True for any icon width but 0. Assigning stores 0 or -1; the real width comes from IconW as the "
         u"column is added.",
         u"True für jede Symbolbreite außer 0. Eine Zuweisung speichert 0 oder -1; die wirkliche Breite "
         u"stammt aus IconW, wenn die Spalte hinzugefügt wird."},
        {u"Index"}),
});

} // namespace

std::span<const Member> columnMembers() {
    return members;
}

} // namespace lumtex::automation
