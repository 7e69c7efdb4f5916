/// Members that work on the list as a whole.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr auto rowsAdd =
    static_cast<void (lmListView::*)(Variant&, StringView, std::optional<StringView>)>(&lmListView::RowsAdd);
constexpr auto rowsRemove = static_cast<void (lmListView::*)(Variant&)>(&lmListView::RowsRemove);

constexpr auto findItem =
    static_cast<FindResults (lmListView::*)(StringView, cFindBegin, cFindCompare, String&, String&)>(
        &lmListView::FindItem);
constexpr auto autoColumnSize =
    static_cast<void (lmListView::*)(std::span<const Variant>)>(&lmListView::AutoColumnSize);

constexpr auto members = std::to_array<Member>({
    method<&lmListView::ColumnsAdd>(
        1,
        u"ColumnsAdd",
        Repaint::asAutoRedraw,
        {u"Appends a column, and an empty cell to every row. The width is in twips; a colour of 0 is black.",
         u"Hängt eine Spalte an und jeder Zeile eine leere Zelle. Die Breite ist in Twips angegeben; die "
         u"Farbe 0 ist Schwarz."},
        {u"aText",
         orNothing(u"aIcon"),
         orNothing(u"aIconHover"),
         orNothing(u"aIconDown"),
         orNumber(u"aAlignment", cColumnLeft),
         orNumber(u"aWidth", 1000),
         orFalse(u"aAllowSorting"),
         orNumber(u"aForeColor", 0),
         orText(u"aKey", u""),
         orText(u"aTag", u""),
         orNumber(u"aForeColorHover", 0),
         orNumber(u"aForeColorDown", 0)}),
    method<&lmListView::ColumnsClear>(
        2,
        u"ColumnsClear",
        Repaint::asAutoRedraw,
        {u"Removes all columns. Rows keep their cells, so clear the rows first for an empty list.",
         u"Entfernt alle Spalten. Die Zeilen behalten ihre Zellen; für eine leere Liste sind daher zuerst "
         u"die Zeilen zu entfernen."}),
    method<&lmListView::ColumnsRemove>(
        3,
        u"ColumnsRemove",
        Repaint::asAutoRedraw,
        {u"Checks the scroll bars and repaints. The columns stay: a single column cannot be removed.",
         u"Prüft die Bildlaufleisten und zeichnet neu. Die Spalten bleiben: Eine einzelne Spalte lässt sich "
         u"nicht entfernen."},
        {u"Index"}),
    readOnly<&lmListView::ColumnsCount>(
        4, u"ColumnsCount", {u"The number of columns.", u"Anzahl der Spalten."}),
    method<rowsAdd>(
        5,
        u"RowsAdd",
        Repaint::asAutoRedraw,
        {u"Inserts a row before the 0-based place, or appends it where that is out of range, and writes back "
         u"the place it took. The texts are split at the separator, without quoting. A list without columns "
         u"takes no rows.",
         u"Fügt eine Zeile vor der ab 0 gezählten Stelle ein oder hängt sie an, wenn es diese Stelle nicht "
         u"gibt, und schreibt die eingenommene Stelle zurück. Die Texte werden am Trennzeichen geteilt; "
         u"Anführungszeichen schützen nicht davor. Eine Liste ohne Spalten nimmt keine Zeilen auf."},
        {orNumber(u"aIndex", -1), orText(u"aSplit", u","), orMissing(u"aItemTexts")}),
    method<rowsRemove>(
        6,
        u"RowsRemove",
        Repaint::asAutoRedraw,
        {u"Removes the row with the 1-based number. A number out of range removes nothing and is not "
         u"reported. The host gets its turn after each row that moves up.",
         u"Entfernt die Zeile mit der ab 1 gezählten Nummer. Eine Nummer außerhalb der Liste entfernt nichts "
         u"und wird nicht gemeldet. Nach jeder Zeile, die aufrückt, kommt das Programm an die Reihe."},
        {u"Index"}),
    method<&lmListView::RowsSelectedRemove>(
        7,
        u"RowsSelectedRemove",
        Repaint::always,
        {u"Removes all selected rows and paints once at the end.",
         u"Entfernt alle ausgewählten Zeilen und zeichnet am Ende einmal neu."}),
    method<&lmListView::RowsClear>(8,
                                   u"RowsClear",
                                   Repaint::asAutoRedraw,
                                   {u"Removes all rows. ListIndex and NewIndex keep their numbers.",
                                    u"Entfernt alle Zeilen. ListIndex und NewIndex behalten ihre Werte."}),
    readOnly<&lmListView::RowsCount>(9, u"RowsCount", {u"The number of rows.", u"Anzahl der Zeilen."}),
    method<&lmListView::RowSelectedCount>(10,
                                          u"RowSelectedCount",
                                          Repaint::never,
                                          {u"The number of selected rows, counted anew.",
                                           u"Anzahl der ausgewählten Zeilen; bei jedem Aufruf neu gezählt."}),
    method<&lmListView::WrongIndex>(
        11,
        u"WrongIndex",
        Repaint::never,
        {u"True for whatever is no number, and for every index once the list has had a row.",
         u"True für alles, was keine Zahl ist, und für jeden Index, sobald die Liste einmal eine Zeile "
         u"hatte."},
        {u"Index"}),
    method<&lmListView::WrongColumnIndex>(
        12,
        u"WrongColumnIndex",
        Repaint::never,
        {u"True for whatever is no number, and for every index once the list has had a column.",
         u"True für alles, was keine Zahl ist, und für jeden Index, sobald die Liste einmal eine Spalte "
         u"hatte."},
        {u"Index"}),
    readOnly<&lmListView::NewIndex>(
        13,
        u"NewIndex",
        {u"The 0-based place of the row last added. It is not corrected when rows move or go.",
         u"Ab 0 gezählte Stelle der zuletzt hinzugefügten Zeile. Sie wird nicht berichtigt, wenn Zeilen "
         u"wandern oder entfernt werden."}),
    property<&lmListView::ListIndex, &lmListView::letListIndex>(
        14,
        u"ListIndex",
        Repaint::asAutoRedraw,
        {u"The current row, 0-based; -1 for none. A number that no enabled row has is refused with "
         u"ErrorWrongIndex. Reading gives the host its turn once.",
         u"Die aktuelle Zeile, ab 0 gezählt; -1 für keine. Eine Nummer, die keine aktivierte Zeile hat, wird "
         u"mit ErrorWrongIndex abgelehnt. Beim Lesen kommt das Programm einmal an die Reihe."}),
    property<&lmListView::RowIndex, &lmListView::letRowIndex>(
        15,
        u"RowIndex",
        Repaint::asAutoRedraw,
        {u"The current row, 1-based; 0 for none. Assigning also scrolls to the row.",
         u"Die aktuelle Zeile, ab 1 gezählt; 0 für keine. Eine Zuweisung rollt die Liste auch zu dieser "
         u"Zeile."}),
    property<&lmListView::TopIndex, &lmListView::letTopIndex>(
        16,
        u"TopIndex",
        Repaint::asAutoRedraw,
        {u"The first row shown, 0-based.", u"Die oberste sichtbare Zeile, ab 0 gezählt."}),
    method<&lmListView::CheckScroll>(
        17,
        u"CheckScroll",
        Repaint::never,
        {u"Decides anew which scroll bars are needed, and how far they reach.",
         u"Ermittelt neu, welche Bildlaufleisten nötig sind und wie weit sie reichen."}),
    method<&lmListView::Redraw>(18,
                                u"Redraw",
                                Repaint::always,
                                {u"Paints the whole control, whatever AutoRedraw says.",
                                 u"Zeichnet das ganze Steuerelement neu, unabhängig von AutoRedraw."}),
    method<&lmListView::ClearListView>(
        19,
        u"ClearListView",
        Repaint::never,
        {u"Erases the picture, not the content, which comes back with the next paint.",
         u"Löscht das Bild, nicht den Inhalt; dieser erscheint beim nächsten Zeichnen wieder."}),
    method<&lmListView::StopEdit>(20,
                                  u"StopEdit",
                                  Repaint::never,
                                  {u"Closes the in-place editor and drops what was typed.",
                                   u"Schließt das Eingabefeld und verwirft die Eingabe."}),
    readOnly<&lmListView::hwnd>(
        21, u"hwnd", {u"The number of the control's window.", u"Fensternummer (Handle) des Steuerelements."}),
    readOnly<&lmListView::hwndEdit>(
        22,
        u"hwndEdit",
        {u"The number of the in-place editor's window.", u"Fensternummer (Handle) des Eingabefelds."}),
    method<&lmListView::SetEdit>(
        23,
        u"SetEdit",
        Repaint::never,
        {u"Opens the in-place editor where the cell was painted last, with its whole text selected. Scrolls "
         u"first where the row is out of view. No permission is asked for.",
         u"Öffnet das Eingabefeld an der Stelle, an der die Zelle zuletzt gezeichnet wurde; der ganze Text "
         u"ist markiert. Eine Zeile außerhalb des sichtbaren Bereichs wird zuvor herangerollt. AllowEdit und "
         u"ItemAllowEdit werden nicht beachtet."},
        {u"Row", u"Column"}),
    readOnly<&lmListView::ColumnIndex>(
        24,
        u"ColumnIndex",
        {u"The 1-based column under the last press or release; -1 for none.",
         u"Ab 1 gezählte Spalte unter dem letzten Drücken oder Loslassen einer Maustaste; -1 für keine."}),
    method<&lmListView::Sort>(
        25,
        u"Sort",
        Repaint::never,
        {u"Orders the rows by the texts of a column and raises SortDone. -1 drops the sort mark, which "
         u"repaints. Without a mode nothing is ordered.",
         u"Ordnet die Zeilen nach den Texten einer Spalte und löst SortDone aus. -1 entfernt die "
         u"Sortiermarke und zeichnet neu. Ohne Reihenfolge wird nichts geordnet."},
        {byReference(u"Column"),
         byReference(orNumber(u"SortMode", 0)),
         byReference(orNumber(u"SortType", cSortText))}),
    readOnly<&lmListView::SortColumnIndex>(26,
                                           u"SortColumnIndex",
                                           {u"The 1-based column of the last sort; -1 for none.",
                                            u"Ab 1 gezählte Spalte der letzten Sortierung; -1 für keine."}),
    method<findItem>(27,
                     u"FindItem",
                     Repaint::never,
                     {u"Looks for the first cell whose text, or tag behind \"<itemtag>\", matches a pattern. "
                      u"Columns and rows are \"*\" or a list such as \"1,3-5,\"; a lone number needs its "
                      u"comma. The answer counts places in these lists.",
                      u"Sucht die erste Zelle, deren Text (nach \"<itemtag>\" deren Tag) einem Muster "
                      u"entspricht. Spalten und Zeilen sind \"*\" oder eine Liste wie \"1,3-5,\"; eine "
                      u"einzelne Zahl braucht ihr Komma. Das Ergebnis zählt die Stellen in diesen Listen."},
                     {byReference(u"sFind"),
                      byReference(orNumber(u"cBegin", cFindContinue)),
                      byReference(orNumber(u"cCompare", cFindBinary)),
                      orText(u"sColumns", u"*"),
                      orText(u"sRows", u"*")}),
    method<autoColumnSize>(28,
                           u"AutoColumnSize",
                           Repaint::always,
                           {u"Makes the columns with these numbers as wide as the widest text painted in "
                            u"them, or as their header; without a number all of them.",
                            u"Macht die Spalten mit diesen Nummern so breit wie den breitesten darin "
                            u"gezeichneten Text oder ihre Überschrift; ohne Nummer alle Spalten."},
                           {anyNumberOf(u"lColumns")}),
    method<&lmListView::ContentSave>(
        29,
        u"ContentSave",
        Repaint::never,
        {u"Writes the texts of all cells, and on demand their looks, tags and icons, to a file. A file of "
         u"that name is deleted first. A failure is reported; the result is True even then.",
         u"Schreibt die Texte aller Zellen und auf Wunsch ihr Aussehen, ihre Tags und Symbole in eine Datei. "
         u"Eine Datei dieses Namens wird zuvor gelöscht. Ein Fehler wird gemeldet; das Ergebnis ist auch "
         u"dann True."},
        {u"sFilename", orFalse(u"bSaveItemProperties")}),
    method<&lmListView::ContentInput>(
        30,
        u"ContentInput",
        Repaint::always,
        {u"Clears the rows and fills the list from such a file; the columns stay. Where there is no file the "
         u"result is False, and nothing is changed. Any other failure is reported, and the result is True.",
         u"Leert die Zeilen und füllt die Liste aus einer solchen Datei; die Spalten bleiben. Fehlt die "
         u"Datei, ist das Ergebnis False, und nichts ändert sich. Jeder andere Fehler wird gemeldet, und das "
         u"Ergebnis ist True."},
        {u"sFilename", orFalse(u"bReadItemPropertiesIfExists")}),
    method<&lmListView::About>(-552,
                               u"About",
                               Repaint::never,
                               {u"Shows the about box and returns once it was closed.",
                                u"Zeigt das Infofenster und kehrt zurück, sobald es geschlossen wurde."}),
});

} // namespace

std::span<const Member> listMembers() {
    return members;
}

} // namespace lumtex::automation
