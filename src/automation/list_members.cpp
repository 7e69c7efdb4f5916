/// Members that work on the list as a whole.
#include "automation/describe_member.h"
#include "automation/member_table.h"

namespace lumtex {

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
        u"ColumnsAdd",
        Repaint::asAutoRedraw,
        u"Appends a column, and an empty cell to every row. The width is in twips; a colour of 0 is black.",
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
        u"ColumnsClear",
        Repaint::asAutoRedraw,
        u"Removes all columns. Rows keep their cells, so clear the rows first for an empty list."),
    method<&lmListView::ColumnsRemove>(
        u"ColumnsRemove",
        Repaint::asAutoRedraw,
        u"Checks the scroll bars and repaints. The columns stay: a single column cannot be removed.",
        {u"Index"}),
    readOnly<&lmListView::ColumnsCount>(u"ColumnsCount", u"The number of columns."),
    method<rowsAdd>(
        u"RowsAdd",
        Repaint::asAutoRedraw,
        u"Inserts a row before the 0-based place, or appends it where that is out of range, and writes back "
        u"the place it took. The texts are split at the separator, without quoting. A list without columns "
        u"takes no rows.",
        {orNumber(u"aIndex", -1), orText(u"aSplit", u","), orMissing(u"aItemTexts")}),
    method<rowsRemove>(
        u"RowsRemove",
        Repaint::asAutoRedraw,
        u"Removes the row with the 1-based number. A number out of range removes nothing and is not "
        u"reported. The host gets its turn after each row that moves up.",
        {u"Index"}),
    method<&lmListView::RowsSelectedRemove>(
        u"RowsSelectedRemove", Repaint::always, u"Removes all selected rows and paints once at the end."),
    method<&lmListView::RowsClear>(
        u"RowsClear", Repaint::asAutoRedraw, u"Removes all rows. ListIndex and NewIndex keep their numbers."),
    readOnly<&lmListView::RowsCount>(u"RowsCount", u"The number of rows."),
    method<&lmListView::RowSelectedCount>(
        u"RowSelectedCount", Repaint::never, u"The number of selected rows, counted anew."),
    method<&lmListView::WrongIndex>(
        u"WrongIndex",
        Repaint::never,
        u"True for whatever is no number, and for every index once the list has had a row.",
        {u"Index"}),
    method<&lmListView::WrongColumnIndex>(
        u"WrongColumnIndex",
        Repaint::never,
        u"True for whatever is no number, and for every index once the list has had a column.",
        {u"Index"}),
    readOnly<&lmListView::NewIndex>(
        u"NewIndex", u"The 0-based place of the row last added. It is not corrected when rows move or go."),
    property<&lmListView::ListIndex, &lmListView::letListIndex>(
        u"ListIndex",
        Repaint::asAutoRedraw,
        u"The current row, 0-based; -1 for none. A number that no enabled row has is refused with "
        u"ErrorWrongIndex. Reading gives the host its turn once."),
    property<&lmListView::RowIndex, &lmListView::letRowIndex>(
        u"RowIndex",
        Repaint::asAutoRedraw,
        u"The current row, 1-based; 0 for none. Assigning also scrolls to the row."),
    property<&lmListView::TopIndex, &lmListView::letTopIndex>(
        u"TopIndex", Repaint::asAutoRedraw, u"The first row shown, 0-based."),
    method<&lmListView::CheckScroll>(u"CheckScroll",
                                     Repaint::never,
                                     u"Decides anew which scroll bars are needed, and how far they reach."),
    method<&lmListView::Redraw>(
        u"Redraw", Repaint::always, u"Paints the whole control, whatever AutoRedraw says."),
    method<&lmListView::ClearListView>(
        u"ClearListView",
        Repaint::never,
        u"Erases the picture, not the content, which comes back with the next paint."),
    method<&lmListView::StopEdit>(
        u"StopEdit", Repaint::never, u"Closes the in-place editor and drops what was typed."),
    readOnly<&lmListView::hwnd>(u"hwnd", u"The number of the control's window."),
    readOnly<&lmListView::hwndEdit>(u"hwndEdit", u"The number of the in-place editor's window."),
    method<&lmListView::SetEdit>(
        u"SetEdit",
        Repaint::asAutoRedraw,
        u"Opens the in-place editor over a cell, with the whole text selected. No permission is asked for.",
        {u"Row", u"Column"}),
    readOnly<&lmListView::ColumnIndex>(u"ColumnIndex",
                                       u"The 1-based column under the last press or release; -1 for none."),
    method<&lmListView::Sort>(u"Sort",
                              Repaint::never,
                              u"Orders the rows by the texts of a column and raises SortDone. -1 drops the "
                              u"sort mark, which repaints. "
                              u"Without a mode nothing is ordered.",
                              {byReference(u"Column"),
                               byReference(orNumber(u"SortMode", 0)),
                               byReference(orNumber(u"SortType", cSortText))}),
    readOnly<&lmListView::SortColumnIndex>(u"SortColumnIndex",
                                           u"The 1-based column of the last sort; -1 for none."),
    method<findItem>(u"FindItem",
                     Repaint::never,
                     u"Looks for the first cell whose text, or tag behind \"<itemtag>\", matches a pattern. "
                     u"Columns and rows are "
                     u"\"*\" or a list such as \"1,3-5,\"; a lone number needs its comma. The answer counts "
                     u"places in these lists.",
                     {byReference(u"sFind"),
                      byReference(orNumber(u"cBegin", cFindContinue)),
                      byReference(orNumber(u"cCompare", cFindBinary)),
                      orText(u"sColumns", u"*"),
                      orText(u"sRows", u"*")}),
    method<autoColumnSize>(u"AutoColumnSize",
                           Repaint::always,
                           u"Makes the columns with these numbers as wide as the widest text painted in "
                           u"them, or as their header; "
                           u"without a number all of them.",
                           {anyNumberOf(u"lColumns")}),
    method<&lmListView::ContentSave>(u"ContentSave",
                                     Repaint::never,
                                     u"Writes the texts of all cells, and on demand their looks, tags and "
                                     u"icons, to a file. A file of that "
                                     u"name is deleted first. Returns True; failures are reported.",
                                     {u"sFilename", orFalse(u"bSaveItemProperties")}),
    method<&lmListView::ContentInput>(
        u"ContentInput",
        Repaint::always,
        u"Clears the rows and fills the list from such a file; the columns stay. Returns False, with nothing "
        u"changed, where there is no file.",
        {u"sFilename", orFalse(u"bReadItemPropertiesIfExists")}),
    method<&lmListView::About>(
        u"About", Repaint::never, u"Shows the about box and returns once it was closed."),
});

} // namespace

std::span<const Member> listMembers() {
    return members;
}

} // namespace lumtex
