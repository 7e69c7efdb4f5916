/// Members that read and write one field of a cell.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr auto members = std::to_array<Member>({
    property<&lmListView::ItemFontBold, &lmListView::letItemFontBold>(
        400,
        u"ItemFontBold",
        Repaint::asAutoRedraw,
        {u"Whether the text is bold.", u"Gibt an, ob der Text fett ist."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemFontItalic, &lmListView::letItemFontItalic>(
        401,
        u"ItemFontItalic",
        Repaint::asAutoRedraw,
        {u"Whether the text is italic.", u"Gibt an, ob der Text kursiv ist."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemFontUnderline, &lmListView::letItemFontUnderline>(
        402,
        u"ItemFontUnderline",
        Repaint::asAutoRedraw,
        {u"Whether the text is underlined.", u"Gibt an, ob der Text unterstrichen ist."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemFontStrikethrough, &lmListView::letItemFontStrikethrough>(
        403,
        u"ItemFontStrikethrough",
        Repaint::asAutoRedraw,
        {u"Whether the text is struck through.", u"Gibt an, ob der Text durchgestrichen ist."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemFontSize, &lmListView::letItemFontSize>(
        404,
        u"ItemFontSize",
        Repaint::asAutoRedraw,
        {u"Size of the text in points.", u"Schriftgrad des Texts in Punkt."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemFontName, &lmListView::letItemFontName>(
        405,
        u"ItemFontName",
        Repaint::asAutoRedraw,
        {u"Typeface of the text.", u"Schriftart des Texts."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemForeColor, &lmListView::letItemForeColor>(
        406,
        u"ItemForeColor",
        Repaint::asAutoRedraw,
        {u"Colour of the text.", u"Farbe des Texts."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemBackColor, &lmListView::letItemBackColor>(
        407,
        u"ItemBackColor",
        Repaint::asAutoRedraw,
        {u"Background of the cell, or \"def\" for none of its own. AutoRowColor goes before it.",
         u"Hintergrundfarbe der Zelle oder \"def\" für keine eigene. AutoRowColor geht vor."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemForeColorSelect, &lmListView::letItemForeColorSelect>(
        408,
        u"ItemForeColorSelect",
        Repaint::asAutoRedraw,
        {u"Colour of the text while selected, or \"def\" for white.",
         u"Textfarbe im ausgewählten Zustand oder \"def\" für Weiß."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemBackColorSelect, &lmListView::letItemBackColorSelect>(
        409,
        u"ItemBackColorSelect",
        Repaint::asAutoRedraw,
        {u"Background while selected, or \"def\" for the colour of the scheme.",
         u"Hintergrundfarbe im ausgewählten Zustand oder \"def\" für die Farbe des Schemas."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemForeColorDis, &lmListView::letItemForeColorDis>(
        410,
        u"ItemForeColorDis",
        Repaint::asAutoRedraw,
        {u"Colour of the text while disabled. A number: \"def\" fails.",
         u"Textfarbe im deaktivierten Zustand. Eine Zahl: \"def\" schlägt fehl."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemBackColorDis, &lmListView::letItemBackColorDis>(
        411,
        u"ItemBackColorDis",
        Repaint::asAutoRedraw,
        {u"Background while disabled. A number: \"def\" fails.",
         u"Hintergrundfarbe im deaktivierten Zustand. Eine Zahl: \"def\" schlägt fehl."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemTag, &lmListView::letItemTag>(
        412,
        u"ItemTag",
        Repaint::never,
        {u"Value that the control keeps for the host.",
         u"Wert, den das Steuerelement für das Programm aufbewahrt."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemEnabled, &lmListView::letItemEnabled>(
        413,
        u"ItemEnabled",
        Repaint::never,
        {u"Whether the cell is enabled. Shown by the next paint.",
         u"Gibt an, ob die Zelle aktiviert ist. Erst das nächste Zeichnen zeigt es."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemIcon, &lmListView::setItemIcon>(414,
                                                              u"ItemIcon",
                                                              Repaint::asAutoRedraw,
                                                              {u"Icon of the cell.", u"Symbol der Zelle."},
                                                              {u"Row", u"Column"}),
    property<&lmListView::ItemIconSelected, &lmListView::setItemIconSelected>(
        415,
        u"ItemIconSelected",
        Repaint::asAutoRedraw,
        {u"Icon of the cell while selected.", u"Symbol der Zelle im ausgewählten Zustand."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemAllowEdit, &lmListView::letItemAllowEdit>(
        416,
        u"ItemAllowEdit",
        Repaint::asAutoRedraw,
        {u"Whether the cell may be edited in place. A double click opens the editor, AllowEdit a second "
         u"press too.",
         u"Gibt an, ob sich die Zelle im Eingabefeld bearbeiten lässt. Ein Doppelklick öffnet es, mit "
         u"AllowEdit auch ein zweites Drücken."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemChecked, &lmListView::letItemChecked>(
        417,
        u"ItemChecked",
        Repaint::asAutoRedraw,
        {u"Check mark of the cell. The count of its column follows; no event is raised.",
         u"Häkchen der Zelle. Die Zählung ihrer Spalte folgt; kein Ereignis wird ausgelöst."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemAlignment, &lmListView::letItemAlignment>(
        418,
        u"ItemAlignment",
        Repaint::asAutoRedraw,
        {u"Place of the text.", u"Ausrichtung des Texts."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemIconAlignment, &lmListView::letItemIconAlignment>(
        419,
        u"ItemIconAlignment",
        Repaint::asAutoRedraw,
        {u"Place of the icon.", u"Ausrichtung des Symbols."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemText, &lmListView::letItemText>(420,
                                                              u"ItemText",
                                                              Repaint::asAutoRedraw,
                                                              {u"Text of the cell.", u"Text der Zelle."},
                                                              {u"Row", u"Column"}),
    property<&lmListView::ItemToolTip, &lmListView::letItemToolTip>(
        421,
        u"ItemToolTip",
        Repaint::asAutoRedraw,
        {u"Text that the control keeps for the host. The list never shows it; screen readers speak it.",
         u"Text, den das Steuerelement für das Programm aufbewahrt. Die Liste zeigt ihn nie an; "
         u"Vorleseprogramme sprechen ihn."},
        {u"Row", u"Column"}),
    readOnly<&lmListView::ItemTextWidth>(
        422,
        u"ItemTextWidth",
        {u"Width of the text in pixels, as the last paint measured it; 0 for a cell never painted.",
         u"Breite des Texts in Pixeln, wie das letzte Zeichnen sie gemessen hat; 0 für eine nie gezeichnete "
         u"Zelle."},
        {u"Row", u"Column"}),
    property<&lmListView::ItemObject, &lmListView::setItemObject>(
        423,
        u"ItemObject",
        Repaint::asAutoRedraw,
        {u"Control of the host that is shown over the cell. One with a window becomes a child of the list. A "
         u"failure while it is assigned raises ListViewError and is then reported.",
         u"Steuerelement des Programms, das über der Zelle angezeigt wird. Eines mit Fenster wird der Liste "
         u"untergeordnet. Ein Fehler beim Zuweisen löst ListViewError aus und wird danach gemeldet."},
        {u"Row", u"Column"}),
    method<&lmListView::ItemsCheckedCount>(
        424,
        u"ItemsCheckedCount",
        Repaint::never,
        {u"Checked cells of a column; of all columns for a number that no column has.",
         u"Anzahl der Zellen mit Häkchen in einer Spalte; in allen Spalten bei einer Nummer, die keine "
         u"Spalte hat."},
        {orNumber(u"Column", 0)}),
});

} // namespace

std::span<const Member> itemMembers() {
    return members;
}

} // namespace lumtex::automation
