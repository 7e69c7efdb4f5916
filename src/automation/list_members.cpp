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
    method<&lmListView::ColumnsAdd>(1,
                                    u"ColumnsAdd",
                                    Repaint::asAutoRedraw,
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
    method<&lmListView::ColumnsClear>(2, u"ColumnsClear", Repaint::asAutoRedraw),
    method<&lmListView::ColumnsRemove>(3, u"ColumnsRemove", Repaint::asAutoRedraw, {u"Index"}),
    readOnly<&lmListView::ColumnsCount>(4, u"ColumnsCount"),
    method<rowsAdd>(5,
                    u"RowsAdd",
                    Repaint::asAutoRedraw,
                    {orNumber(u"aIndex", -1), orText(u"aSplit", u","), orMissing(u"aItemTexts")}),
    method<rowsRemove>(6, u"RowsRemove", Repaint::asAutoRedraw, {u"Index"}),
    method<&lmListView::RowsSelectedRemove>(7, u"RowsSelectedRemove", Repaint::always),
    method<&lmListView::RowsClear>(8, u"RowsClear", Repaint::asAutoRedraw),
    readOnly<&lmListView::RowsCount>(9, u"RowsCount"),
    method<&lmListView::RowSelectedCount>(10, u"RowSelectedCount", Repaint::never),
    method<&lmListView::WrongIndex>(11, u"WrongIndex", Repaint::never, {u"Index"}),
    method<&lmListView::WrongColumnIndex>(12, u"WrongColumnIndex", Repaint::never, {u"Index"}),
    readOnly<&lmListView::NewIndex>(13, u"NewIndex"),
    property<&lmListView::ListIndex, &lmListView::letListIndex>(14, u"ListIndex", Repaint::asAutoRedraw),
    property<&lmListView::RowIndex, &lmListView::letRowIndex>(15, u"RowIndex", Repaint::asAutoRedraw),
    property<&lmListView::TopIndex, &lmListView::letTopIndex>(16, u"TopIndex", Repaint::asAutoRedraw),
    method<&lmListView::CheckScroll>(17, u"CheckScroll", Repaint::never),
    method<&lmListView::Redraw>(18, u"Redraw", Repaint::always),
    method<&lmListView::ClearListView>(19, u"ClearListView", Repaint::never),
    method<&lmListView::StopEdit>(20, u"StopEdit", Repaint::never),
    readOnly<&lmListView::hwnd>(21, u"hwnd"),
    readOnly<&lmListView::hwndEdit>(22, u"hwndEdit"),
    method<&lmListView::SetEdit>(23, u"SetEdit", Repaint::never, {u"Row", u"Column"}),
    readOnly<&lmListView::ColumnIndex>(24, u"ColumnIndex"),
    method<&lmListView::Sort>(25,
                              u"Sort",
                              Repaint::never,
                              {byReference(u"Column"),
                               byReference(orNumber(u"SortMode", 0)),
                               byReference(orNumber(u"SortType", cSortText))}),
    readOnly<&lmListView::SortColumnIndex>(26, u"SortColumnIndex"),
    method<findItem>(27,
                     u"FindItem",
                     Repaint::never,
                     {byReference(u"sFind"),
                      byReference(orNumber(u"cBegin", cFindContinue)),
                      byReference(orNumber(u"cCompare", cFindBinary)),
                      orText(u"sColumns", u"*"),
                      orText(u"sRows", u"*")}),
    method<autoColumnSize>(28, u"AutoColumnSize", Repaint::always, {anyNumberOf(u"lColumns")}),
    method<&lmListView::ContentSave>(
        29, u"ContentSave", Repaint::never, {u"sFilename", orFalse(u"bSaveItemProperties")}),
    method<&lmListView::ContentInput>(
        30, u"ContentInput", Repaint::always, {u"sFilename", orFalse(u"bReadItemPropertiesIfExists")}),
    method<&lmListView::About>(-552, u"About", Repaint::never),
});

} // namespace

std::span<const Member> listMembers() {
    return members;
}

} // namespace lumtex::automation
