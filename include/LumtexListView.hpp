// LumtexListView for hosts in C++17 or later: classes over LumtexListView.h. Made from the tables in src/automation by
// scripts/reference; do not edit.
#pragma once

#include "LumtexListView.h"
#include "LumtexListViewValues.hpp"

// A property is read by its name and written by let or set and its name: RowHeight(), letRowHeight(300),
// setItemIcon(1, 1, picture). Every call may throw Failure.

namespace LumtexListView {

/// An owner-drawn list of rows and columns.
class lmListView {
  public:
    /// One that a container has made. Throws Failure for an object of another class.
    explicit lmListView(IUnknown* object) {
        demand(object->QueryInterface(IID__lmListView, face_.anyPlace()), "lmListView");
    }
    /// A new one, by registry or manifest. Throws Failure where the component is not found.
    static lmListView make() {
        Ref<_lmListView> made;
        demand(CoCreateInstance(CLSID_lmListView, nullptr, CLSCTX_INPROC_SERVER, IID__lmListView, made.anyPlace()), "lmListView");
        return lmListView(made);
    }
    /// The table of functions below.
    _lmListView* face() const { return face_; }

    /// Appends a column, and an empty cell to every row. The width is in twips; a colour of 0 is black.
    void ColumnsAdd(const Value& aText, IPictureDisp* aIcon = nullptr, IPictureDisp* aIconHover = nullptr, IPictureDisp* aIconDown = nullptr, cColumnHeaderAlign aAlignment = cColumnLeft, float aWidth = 1000, bool aAllowSorting = false, OLE_COLOR aForeColor = 0, const Text& aKey = L"", const Text& aTag = L"", OLE_COLOR aForeColorHover = 0, OLE_COLOR aForeColorDown = 0) {
        demand(face_->ColumnsAdd(aText.get(), aIcon, aIconHover, aIconDown, aAlignment, aWidth, aAllowSorting ? VARIANT_TRUE : VARIANT_FALSE, aForeColor, aKey.get(), aTag.get(), aForeColorHover, aForeColorDown), "ColumnsAdd");
    }
    /// Removes all columns. Rows keep their cells, so clear the rows first for an empty list.
    void ColumnsClear() {
        demand(face_->ColumnsClear(), "ColumnsClear");
    }
    /// Checks the scroll bars and repaints. The columns stay: a single column cannot be removed.
    void ColumnsRemove(const Value& Index) {
        demand(face_->ColumnsRemove(Index.get()), "ColumnsRemove");
    }
    /// The number of columns.
    long ColumnsCount() const {
        long result{};
        demand(face_->get_ColumnsCount(&result), "ColumnsCount");
        return result;
    }
    /// Inserts a row before the 0-based place, or appends it where that is out of range, and writes back the place it took. The texts are split at the separator, without quoting. A list without columns takes no rows.
    void RowsAdd(Changing<Value> aIndex = -1, const Text& aSplit = L",", const Text& aItemTexts = {}) {
        demand(face_->RowsAdd(aIndex.place(), aSplit.get(), aItemTexts.get()), "RowsAdd");
    }
    /// Removes the row with the 1-based number. A number out of range removes nothing and is not reported. The host gets its turn after each row that moves up.
    void RowsRemove(Changing<Value> Index) {
        demand(face_->RowsRemove(Index.place()), "RowsRemove");
    }
    /// Removes all selected rows and paints once at the end.
    void RowsSelectedRemove() {
        demand(face_->RowsSelectedRemove(), "RowsSelectedRemove");
    }
    /// Removes all rows. ListIndex and NewIndex keep their numbers.
    void RowsClear() {
        demand(face_->RowsClear(), "RowsClear");
    }
    /// The number of rows.
    long RowsCount() const {
        long result{};
        demand(face_->get_RowsCount(&result), "RowsCount");
        return result;
    }
    /// The number of selected rows, counted anew.
    long RowSelectedCount() {
        long result{};
        demand(face_->RowSelectedCount(&result), "RowSelectedCount");
        return result;
    }
    /// True for whatever is no number, and for every index once the list has had a row.
    bool WrongIndex(const Value& Index) {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->WrongIndex(Index.get(), &result), "WrongIndex");
        return result != VARIANT_FALSE;
    }
    /// True for whatever is no number, and for every index once the list has had a column.
    bool WrongColumnIndex(const Value& Index) {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->WrongColumnIndex(Index.get(), &result), "WrongColumnIndex");
        return result != VARIANT_FALSE;
    }
    /// The 0-based place of the row last added. It is not corrected when rows move or go.
    long NewIndex() const {
        long result{};
        demand(face_->get_NewIndex(&result), "NewIndex");
        return result;
    }
    /// The current row, 0-based; -1 for none. A number that no enabled row has is refused with ErrorWrongIndex. Reading gives the host its turn once.
    long ListIndex() const {
        long result{};
        demand(face_->get_ListIndex(&result), "ListIndex");
        return result;
    }
    /// The current row, 0-based; -1 for none. A number that no enabled row has is refused with ErrorWrongIndex. Reading gives the host its turn once.
    void letListIndex(long value) {
        demand(face_->put_ListIndex(value), "ListIndex");
    }
    /// The current row, 1-based; 0 for none. Assigning also scrolls to the row.
    long RowIndex() const {
        long result{};
        demand(face_->get_RowIndex(&result), "RowIndex");
        return result;
    }
    /// The current row, 1-based; 0 for none. Assigning also scrolls to the row.
    void letRowIndex(long value) {
        demand(face_->put_RowIndex(value), "RowIndex");
    }
    /// The first row shown, 0-based.
    long TopIndex() const {
        long result{};
        demand(face_->get_TopIndex(&result), "TopIndex");
        return result;
    }
    /// The first row shown, 0-based.
    void letTopIndex(long value) {
        demand(face_->put_TopIndex(value), "TopIndex");
    }
    /// Decides anew which scroll bars are needed, and how far they reach.
    void CheckScroll() {
        demand(face_->CheckScroll(), "CheckScroll");
    }
    /// Paints the whole control, whatever AutoRedraw says.
    void Redraw() {
        demand(face_->Redraw(), "Redraw");
    }
    /// Erases the picture, not the content, which comes back with the next paint.
    void ClearListView() {
        demand(face_->ClearListView(), "ClearListView");
    }
    /// Closes the in-place editor and drops what was typed.
    void StopEdit() {
        demand(face_->StopEdit(), "StopEdit");
    }
    /// The number of the control's window.
    long hwnd() const {
        long result{};
        demand(face_->get_hwnd(&result), "hwnd");
        return result;
    }
    /// The number of the in-place editor's window.
    long hwndEdit() const {
        long result{};
        demand(face_->get_hwndEdit(&result), "hwndEdit");
        return result;
    }
    /// Opens the in-place editor where the cell was painted last, with its whole text selected. Scrolls first where the row is out of view. No permission is asked for.
    void SetEdit(const Value& Row, const Value& Column) {
        demand(face_->SetEdit(Row.get(), Column.get()), "SetEdit");
    }
    /// The 1-based column under the last press or release; -1 for none.
    long ColumnIndex() const {
        long result{};
        demand(face_->get_ColumnIndex(&result), "ColumnIndex");
        return result;
    }
    /// Orders the rows by the texts of a column and raises SortDone. -1 drops the sort mark, which repaints. Without a mode nothing is ordered.
    void Sort(Changing<long> Column, Changing<cSortMode> SortMode = static_cast<cSortMode>(0), Changing<cSortType> SortType = cSortText) {
        demand(face_->Sort(Column.place(), SortMode.place(), SortType.place()), "Sort");
    }
    /// The 1-based column of the last sort; -1 for none.
    long SortColumnIndex() const {
        long result{};
        demand(face_->get_SortColumnIndex(&result), "SortColumnIndex");
        return result;
    }
    /// Looks for the first cell whose text, or tag behind "<itemtag>", matches a pattern. Columns and rows are "*" or a list such as "1,3-5,"; a lone number needs its comma. The answer counts places in these lists.
    FindResults FindItem(Changing<Text> sFind, Changing<cFindBegin> cBegin = cFindContinue, Changing<cFindCompare> cCompare = cFindBinary, Changing<Text> sColumns = L"*", Changing<Text> sRows = L"*") {
        FindResults result{};
        demand(face_->FindItem(sFind.place(), cBegin.place(), cCompare.place(), sColumns.place(), sRows.place(), &result), "FindItem");
        return result;
    }
    /// Makes the columns with these numbers as wide as the widest text painted in them, or as their header; without a number all of them.
    void AutoColumnSize(const Values& lColumns = {}) {
        demand(face_->AutoColumnSize(lColumns.get()), "AutoColumnSize");
    }
    /// Writes the texts of all cells, and on demand their looks, tags and icons, to a file. A file of that name is deleted first. A failure is reported; the result is True even then.
    bool ContentSave(const Text& sFilename, bool bSaveItemProperties = false) {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->ContentSave(sFilename.get(), bSaveItemProperties ? VARIANT_TRUE : VARIANT_FALSE, &result), "ContentSave");
        return result != VARIANT_FALSE;
    }
    /// Clears the rows and fills the list from such a file; the columns stay. Where there is no file the result is False, and nothing is changed. Any other failure is reported, and the result is True.
    bool ContentInput(const Text& sFilename, bool bReadItemPropertiesIfExists = false) {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->ContentInput(sFilename.get(), bReadItemPropertiesIfExists ? VARIANT_TRUE : VARIANT_FALSE, &result), "ContentInput");
        return result != VARIANT_FALSE;
    }
    /// Shows the about box and returns once it was closed.
    void About() {
        demand(face_->About(), "About");
    }
    /// Font of new cells. A clone is kept, and existing cells keep theirs.
    Ref<IFontDisp> DefaultItemFont() const {
        Ref<IFontDisp> result;
        demand(face_->get_DefaultItemFont(result.place()), "DefaultItemFont");
        return result;
    }
    /// Font of new cells. A clone is kept, and existing cells keep theirs.
    void setDefaultItemFont(IFontDisp* value) {
        demand(face_->putref_DefaultItemFont(value), "DefaultItemFont");
    }
    /// Text colour of new cells. Existing cells keep theirs.
    OLE_COLOR DefaultItemForeColor() const {
        OLE_COLOR result{};
        demand(face_->get_DefaultItemForeColor(&result), "DefaultItemForeColor");
        return result;
    }
    /// Text colour of new cells. Existing cells keep theirs.
    void letDefaultItemForeColor(OLE_COLOR value) {
        demand(face_->put_DefaultItemForeColor(value), "DefaultItemForeColor");
    }
    /// Background of the list.
    OLE_COLOR BackColor() const {
        OLE_COLOR result{};
        demand(face_->get_BackColor(&result), "BackColor");
        return result;
    }
    /// Background of the list.
    void letBackColor(OLE_COLOR value) {
        demand(face_->put_BackColor(value), "BackColor");
    }
    /// Background of the list while the control is disabled.
    OLE_COLOR BackColorDisabled() const {
        OLE_COLOR result{};
        demand(face_->get_BackColorDisabled(&result), "BackColorDisabled");
        return result;
    }
    /// Background of the list while the control is disabled.
    void letBackColorDisabled(OLE_COLOR value) {
        demand(face_->put_BackColorDisabled(value), "BackColorDisabled");
    }
    /// Whether the control takes presses and keys. The scroll bars follow.
    bool Enabled() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_Enabled(&result), "Enabled");
        return result != VARIANT_FALSE;
    }
    /// Whether the control takes presses and keys. The scroll bars follow.
    void letEnabled(bool value) {
        demand(face_->put_Enabled(value ? VARIANT_TRUE : VARIANT_FALSE), "Enabled");
    }
    /// Whether assigning ListIndex raises Click before the index changes.
    bool ClickOnIndexChange() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ClickOnIndexChange(&result), "ClickOnIndexChange");
        return result != VARIANT_FALSE;
    }
    /// Whether assigning ListIndex raises Click before the index changes.
    void letClickOnIndexChange(bool value) {
        demand(face_->put_ClickOnIndexChange(value ? VARIANT_TRUE : VARIANT_FALSE), "ClickOnIndexChange");
    }
    /// Scheme of headers, selection and border. Any but cCustom is handed on to ScrollColorStyle.
    cColorStyle ColorStyle() const {
        cColorStyle result{};
        demand(face_->get_ColorStyle(&result), "ColorStyle");
        return result;
    }
    /// Scheme of headers, selection and border. Any but cCustom is handed on to ScrollColorStyle.
    void letColorStyle(cColorStyle value) {
        demand(face_->put_ColorStyle(value), "ColorStyle");
    }
    /// Colour of the border in the custom scheme.
    OLE_COLOR BorderColor() const {
        OLE_COLOR result{};
        demand(face_->get_BorderColor(&result), "BorderColor");
        return result;
    }
    /// Colour of the border in the custom scheme.
    void letBorderColor(OLE_COLOR value) {
        demand(face_->put_BorderColor(value), "BorderColor");
    }
    /// cCheckBoxes shows check boxes in the columns with ColumnCheckBoxes. What they show is ItemChecked. A press at the place of a box changes that even where none is drawn.
    cListViewStyle Style() const {
        cListViewStyle result{};
        demand(face_->get_Style(&result), "Style");
        return result;
    }
    /// cCheckBoxes shows check boxes in the columns with ColumnCheckBoxes. What they show is ItemChecked. A press at the place of a box changes that even where none is drawn.
    void letStyle(cListViewStyle value) {
        demand(face_->put_Style(value), "Style");
    }
    /// Whether the selection covers all columns or the first alone.
    bool FullRowSelect() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_FullRowSelect(&result), "FullRowSelect");
        return result != VARIANT_FALSE;
    }
    /// Whether the selection covers all columns or the first alone.
    void letFullRowSelect(bool value) {
        demand(face_->put_FullRowSelect(value ? VARIANT_TRUE : VARIANT_FALSE), "FullRowSelect");
    }
    /// Whether a second press opens the in-place editor, in cells that allow it too. A double click asks the cell alone.
    bool AllowEdit() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_AllowEdit(&result), "AllowEdit");
        return result != VARIANT_FALSE;
    }
    /// Whether a second press opens the in-place editor, in cells that allow it too. A double click asks the cell alone.
    void letAllowEdit(bool value) {
        demand(face_->put_AllowEdit(value ? VARIANT_TRUE : VARIANT_FALSE), "AllowEdit");
    }
    /// Background of selected cells in the custom scheme.
    OLE_COLOR ValueColor() const {
        OLE_COLOR result{};
        demand(face_->get_ValueColor(&result), "ValueColor");
        return result;
    }
    /// Background of selected cells in the custom scheme.
    void letValueColor(OLE_COLOR value) {
        demand(face_->put_ValueColor(value), "ValueColor");
    }
    /// Whether a border is drawn.
    bool BorderVisible() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_BorderVisible(&result), "BorderVisible");
        return result != VARIANT_FALSE;
    }
    /// Whether a border is drawn.
    void letBorderVisible(bool value) {
        demand(face_->put_BorderVisible(value ? VARIANT_TRUE : VARIANT_FALSE), "BorderVisible");
    }
    /// Kept for the host in pixels; painting does not use it.
    float IndentTop() const {
        float result{};
        demand(face_->get_IndentTop(&result), "IndentTop");
        return result;
    }
    /// Kept for the host in pixels; painting does not use it.
    void letIndentTop(float value) {
        demand(face_->put_IndentTop(value), "IndentTop");
    }
    /// Kept for the host in pixels; painting does not use it.
    float IndentLeft() const {
        float result{};
        demand(face_->get_IndentLeft(&result), "IndentLeft");
        return result;
    }
    /// Kept for the host in pixels; painting does not use it.
    void letIndentLeft(float value) {
        demand(face_->put_IndentLeft(value), "IndentLeft");
    }
    /// Kept for the host in pixels; painting does not use it.
    float IndentRight() const {
        float result{};
        demand(face_->get_IndentRight(&result), "IndentRight");
        return result;
    }
    /// Kept for the host in pixels; painting does not use it.
    void letIndentRight(float value) {
        demand(face_->put_IndentRight(value), "IndentRight");
    }
    /// Kept for the host in pixels; painting does not use it.
    float IndentBottom() const {
        float result{};
        demand(face_->get_IndentBottom(&result), "IndentBottom");
        return result;
    }
    /// Kept for the host in pixels; painting does not use it.
    void letIndentBottom(float value) {
        demand(face_->put_IndentBottom(value), "IndentBottom");
    }
    /// Pixels between icon and text.
    float DistPicText() const {
        float result{};
        demand(face_->get_DistPicText(&result), "DistPicText");
        return result;
    }
    /// Pixels between icon and text.
    void letDistPicText(float value) {
        demand(face_->put_DistPicText(value), "DistPicText");
    }
    /// Whether a change of the content checks the scroll bars. Switching it on checks them at once.
    bool AutoCheckScroll() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_AutoCheckScroll(&result), "AutoCheckScroll");
        return result != VARIANT_FALSE;
    }
    /// Whether a change of the content checks the scroll bars. Switching it on checks them at once.
    void letAutoCheckScroll(bool value) {
        demand(face_->put_AutoCheckScroll(value ? VARIANT_TRUE : VARIANT_FALSE), "AutoCheckScroll");
    }
    /// Whether a change repaints at once. Switch it off around bulk changes; switching it on repaints.
    bool AutoRedraw() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_AutoRedraw(&result), "AutoRedraw");
        return result != VARIANT_FALSE;
    }
    /// Whether a change repaints at once. Switch it off around bulk changes; switching it on repaints.
    void letAutoRedraw(bool value) {
        demand(face_->put_AutoRedraw(value ? VARIANT_TRUE : VARIANT_FALSE), "AutoRedraw");
    }
    /// Kept for the host; painting does not use it.
    bool IconSelect() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_IconSelect(&result), "IconSelect");
        return result != VARIANT_FALSE;
    }
    /// Kept for the host; painting does not use it.
    void letIconSelect(bool value) {
        demand(face_->put_IconSelect(value ? VARIANT_TRUE : VARIANT_FALSE), "IconSelect");
    }
    /// Width of cell icons in pixels, for columns added later.
    float IconW() const {
        float result{};
        demand(face_->get_IconW(&result), "IconW");
        return result;
    }
    /// Width of cell icons in pixels, for columns added later.
    void letIconW(float value) {
        demand(face_->put_IconW(value), "IconW");
    }
    /// Height of cell icons in pixels, for columns added later.
    float IconH() const {
        float result{};
        demand(face_->get_IconH(&result), "IconH");
        return result;
    }
    /// Height of cell icons in pixels, for columns added later.
    void letIconH(float value) {
        demand(face_->put_IconH(value), "IconH");
    }
    /// Width of header icons in pixels.
    float ColumnIconW() const {
        float result{};
        demand(face_->get_ColumnIconW(&result), "ColumnIconW");
        return result;
    }
    /// Width of header icons in pixels.
    void letColumnIconW(float value) {
        demand(face_->put_ColumnIconW(value), "ColumnIconW");
    }
    /// Height of header icons in pixels.
    float ColumnIconH() const {
        float result{};
        demand(face_->get_ColumnIconH(&result), "ColumnIconH");
        return result;
    }
    /// Height of header icons in pixels.
    void letColumnIconH(float value) {
        demand(face_->put_ColumnIconH(value), "ColumnIconH");
    }
    /// Scheme of the scroll bars.
    cScrollColorStyle ScrollColorStyle() const {
        cScrollColorStyle result{};
        demand(face_->get_ScrollColorStyle(&result), "ScrollColorStyle");
        return result;
    }
    /// Scheme of the scroll bars.
    void letScrollColorStyle(cScrollColorStyle value) {
        demand(face_->put_ScrollColorStyle(value), "ScrollColorStyle");
    }
    /// Whether lines are drawn between cells.
    bool GridLines() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_GridLines(&result), "GridLines");
        return result != VARIANT_FALSE;
    }
    /// Whether lines are drawn between cells.
    void letGridLines(bool value) {
        demand(face_->put_GridLines(value ? VARIANT_TRUE : VARIANT_FALSE), "GridLines");
    }
    /// Colour of the lines between cells.
    OLE_COLOR GridLineColor() const {
        OLE_COLOR result{};
        demand(face_->get_GridLineColor(&result), "GridLineColor");
        return result;
    }
    /// Colour of the lines between cells.
    void letGridLineColor(OLE_COLOR value) {
        demand(face_->put_GridLineColor(value), "GridLineColor");
    }
    /// Whether several rows can be selected.
    bool MultiSelect() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_MultiSelect(&result), "MultiSelect");
        return result != VARIANT_FALSE;
    }
    /// Whether several rows can be selected.
    void letMultiSelect(bool value) {
        demand(face_->put_MultiSelect(value ? VARIANT_TRUE : VARIANT_FALSE), "MultiSelect");
    }
    /// Whether the headers are left out.
    bool HideColumnHeaders() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_HideColumnHeaders(&result), "HideColumnHeaders");
        return result != VARIANT_FALSE;
    }
    /// Whether the headers are left out.
    void letHideColumnHeaders(bool value) {
        demand(face_->put_HideColumnHeaders(value ? VARIANT_TRUE : VARIANT_FALSE), "HideColumnHeaders");
    }
    /// Pixels above the text of a header; the header grows by as many.
    long ColumnTextY() const {
        long result{};
        demand(face_->get_ColumnTextY(&result), "ColumnTextY");
        return result;
    }
    /// Pixels above the text of a header; the header grows by as many.
    void letColumnTextY(long value) {
        demand(face_->put_ColumnTextY(value), "ColumnTextY");
    }
    /// Whether a pressed header moves its text by a pixel.
    bool MoveColumnTextAtDown() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_MoveColumnTextAtDown(&result), "MoveColumnTextAtDown");
        return result != VARIANT_FALSE;
    }
    /// Whether a pressed header moves its text by a pixel.
    void letMoveColumnTextAtDown(bool value) {
        demand(face_->put_MoveColumnTextAtDown(value ? VARIANT_TRUE : VARIANT_FALSE), "MoveColumnTextAtDown");
    }
    /// Font of all headers. A clone is kept.
    Ref<IFontDisp> DefaultColumnFont() const {
        Ref<IFontDisp> result;
        demand(face_->get_DefaultColumnFont(result.place()), "DefaultColumnFont");
        return result;
    }
    /// Font of all headers. A clone is kept.
    void setDefaultColumnFont(IFontDisp* value) {
        demand(face_->putref_DefaultColumnFont(value), "DefaultColumnFont");
    }
    /// Text colour of the design view alone. Headers are drawn in ColumnForeColor.
    OLE_COLOR DefaultColumnForeColor() const {
        OLE_COLOR result{};
        demand(face_->get_DefaultColumnForeColor(&result), "DefaultColumnForeColor");
        return result;
    }
    /// Text colour of the design view alone. Headers are drawn in ColumnForeColor.
    void letDefaultColumnForeColor(OLE_COLOR value) {
        demand(face_->put_DefaultColumnForeColor(value), "DefaultColumnForeColor");
    }
    /// Twips of free space behind the last column, where the columns reach past the right edge.
    float EmptyColumnFieldWidth() const {
        float result{};
        demand(face_->get_EmptyColumnFieldWidth(&result), "EmptyColumnFieldWidth");
        return result;
    }
    /// Twips of free space behind the last column, where the columns reach past the right edge.
    void letEmptyColumnFieldWidth(float value) {
        demand(face_->put_EmptyColumnFieldWidth(value), "EmptyColumnFieldWidth");
    }
    /// Background of headers in the custom scheme.
    OLE_COLOR ColumnBackColor() const {
        OLE_COLOR result{};
        demand(face_->get_ColumnBackColor(&result), "ColumnBackColor");
        return result;
    }
    /// Background of headers in the custom scheme.
    void letColumnBackColor(OLE_COLOR value) {
        demand(face_->put_ColumnBackColor(value), "ColumnBackColor");
    }
    /// Background of the header under the pointer in the custom scheme.
    OLE_COLOR ColumnHoverColor() const {
        OLE_COLOR result{};
        demand(face_->get_ColumnHoverColor(&result), "ColumnHoverColor");
        return result;
    }
    /// Background of the header under the pointer in the custom scheme.
    void letColumnHoverColor(OLE_COLOR value) {
        demand(face_->put_ColumnHoverColor(value), "ColumnHoverColor");
    }
    /// Background of the pressed header in the custom scheme.
    OLE_COLOR ColumnDownColor() const {
        OLE_COLOR result{};
        demand(face_->get_ColumnDownColor(&result), "ColumnDownColor");
        return result;
    }
    /// Background of the pressed header in the custom scheme.
    void letColumnDownColor(OLE_COLOR value) {
        demand(face_->put_ColumnDownColor(value), "ColumnDownColor");
    }
    /// Whether rows are as high as the default font, and from the first icon or check box shown on as high as their content needs; else RowHeight.
    bool RowsDynamic() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_RowsDynamic(&result), "RowsDynamic");
        return result != VARIANT_FALSE;
    }
    /// Whether rows are as high as the default font, and from the first icon or check box shown on as high as their content needs; else RowHeight.
    void letRowsDynamic(bool value) {
        demand(face_->put_RowsDynamic(value ? VARIANT_TRUE : VARIANT_FALSE), "RowsDynamic");
    }
    /// Height of a row in twips, where RowsDynamic is False.
    float RowHeight() const {
        float result{};
        demand(face_->get_RowHeight(&result), "RowHeight");
        return result;
    }
    /// Height of a row in twips, where RowsDynamic is False.
    void letRowHeight(float value) {
        demand(face_->put_RowHeight(value), "RowHeight");
    }
    /// Trough of the scroll bars in the custom scheme.
    OLE_COLOR ScrollBackColor() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollBackColor(&result), "ScrollBackColor");
        return result;
    }
    /// Trough of the scroll bars in the custom scheme.
    void letScrollBackColor(OLE_COLOR value) {
        demand(face_->put_ScrollBackColor(value), "ScrollBackColor");
    }
    /// Arrows of the scroll bars in the custom scheme.
    OLE_COLOR ScrollArrows() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollArrows(&result), "ScrollArrows");
        return result;
    }
    /// Arrows of the scroll bars in the custom scheme.
    void letScrollArrows(OLE_COLOR value) {
        demand(face_->put_ScrollArrows(value), "ScrollArrows");
    }
    /// Arrow buttons of the scroll bars in the custom scheme.
    OLE_COLOR ScrollButtons() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollButtons(&result), "ScrollButtons");
        return result;
    }
    /// Arrow buttons of the scroll bars in the custom scheme.
    void letScrollButtons(OLE_COLOR value) {
        demand(face_->put_ScrollButtons(value), "ScrollButtons");
    }
    /// Thumbs of the scroll bars in the custom scheme.
    OLE_COLOR ScrollBar() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollBar(&result), "ScrollBar");
        return result;
    }
    /// Thumbs of the scroll bars in the custom scheme.
    void letScrollBar(OLE_COLOR value) {
        demand(face_->put_ScrollBar(value), "ScrollBar");
    }
    /// Arrows while pressed, in the custom scheme.
    OLE_COLOR ScrollArrowsDown() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollArrowsDown(&result), "ScrollArrowsDown");
        return result;
    }
    /// Arrows while pressed, in the custom scheme.
    void letScrollArrowsDown(OLE_COLOR value) {
        demand(face_->put_ScrollArrowsDown(value), "ScrollArrowsDown");
    }
    /// Arrow buttons while pressed, in the custom scheme.
    OLE_COLOR ScrollButtonsDown() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollButtonsDown(&result), "ScrollButtonsDown");
        return result;
    }
    /// Arrow buttons while pressed, in the custom scheme.
    void letScrollButtonsDown(OLE_COLOR value) {
        demand(face_->put_ScrollButtonsDown(value), "ScrollButtonsDown");
    }
    /// Thumbs while pressed, in the custom scheme.
    OLE_COLOR ScrollBarDown() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollBarDown(&result), "ScrollBarDown");
        return result;
    }
    /// Thumbs while pressed, in the custom scheme.
    void letScrollBarDown(OLE_COLOR value) {
        demand(face_->put_ScrollBarDown(value), "ScrollBarDown");
    }
    /// Arrows under the pointer, in the custom scheme.
    OLE_COLOR ScrollArrowsHover() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollArrowsHover(&result), "ScrollArrowsHover");
        return result;
    }
    /// Arrows under the pointer, in the custom scheme.
    void letScrollArrowsHover(OLE_COLOR value) {
        demand(face_->put_ScrollArrowsHover(value), "ScrollArrowsHover");
    }
    /// Arrow buttons under the pointer, in the custom scheme.
    OLE_COLOR ScrollButtonsHover() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollButtonsHover(&result), "ScrollButtonsHover");
        return result;
    }
    /// Arrow buttons under the pointer, in the custom scheme.
    void letScrollButtonsHover(OLE_COLOR value) {
        demand(face_->put_ScrollButtonsHover(value), "ScrollButtonsHover");
    }
    /// Thumbs under the pointer, in the custom scheme.
    OLE_COLOR ScrollBarHover() const {
        OLE_COLOR result{};
        demand(face_->get_ScrollBarHover(&result), "ScrollBarHover");
        return result;
    }
    /// Thumbs under the pointer, in the custom scheme.
    void letScrollBarHover(OLE_COLOR value) {
        demand(face_->put_ScrollBarHover(value), "ScrollBarHover");
    }
    /// Colour of the header area behind the last column in the custom scheme.
    OLE_COLOR EmptyColumnFieldColor() const {
        OLE_COLOR result{};
        demand(face_->get_EmptyColumnFieldColor(&result), "EmptyColumnFieldColor");
        return result;
    }
    /// Colour of the header area behind the last column in the custom scheme.
    void letEmptyColumnFieldColor(OLE_COLOR value) {
        demand(face_->put_EmptyColumnFieldColor(value), "EmptyColumnFieldColor");
    }
    /// What the wheel moves: the view, the current row, or nothing.
    cWheelFunction WheelFunction() const {
        cWheelFunction result{};
        demand(face_->get_WheelFunction(&result), "WheelFunction");
        return result;
    }
    /// What the wheel moves: the view, the current row, or nothing.
    void letWheelFunction(cWheelFunction value) {
        demand(face_->put_WheelFunction(value), "WheelFunction");
    }
    /// Rows by which one wheel event scrolls the view, however far the wheel was turned.
    long WheelScrollLines() const {
        long result{};
        demand(face_->get_WheelScrollLines(&result), "WheelScrollLines");
        return result;
    }
    /// Rows by which one wheel event scrolls the view, however far the wheel was turned.
    void letWheelScrollLines(long value) {
        demand(face_->put_WheelScrollLines(value), "WheelScrollLines");
    }
    /// Whether a selected cell without a picture of its own for that shows its plain icon.
    bool DefaultIconSelectedIsIcon() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_DefaultIconSelectedIsIcon(&result), "DefaultIconSelectedIsIcon");
        return result != VARIANT_FALSE;
    }
    /// Whether a selected cell without a picture of its own for that shows its plain icon.
    void letDefaultIconSelectedIsIcon(bool value) {
        demand(face_->put_DefaultIconSelectedIsIcon(value ? VARIANT_TRUE : VARIANT_FALSE), "DefaultIconSelectedIsIcon");
    }
    /// Rows that one press of an arrow button of the vertical bar moves. A number below 1 is dropped.
    long ScrollButtonJumpLines() const {
        long result{};
        demand(face_->get_ScrollButtonJumpLines(&result), "ScrollButtonJumpLines");
        return result;
    }
    /// Rows that one press of an arrow button of the vertical bar moves. A number below 1 is dropped.
    void letScrollButtonJumpLines(long value) {
        demand(face_->put_ScrollButtonJumpLines(value), "ScrollButtonJumpLines");
    }
    /// Vertical place of the text in rows added later. The host is not told of the change.
    cTextPosition TextPositionDefault() const {
        cTextPosition result{};
        demand(face_->get_TextPositionDefault(&result), "TextPositionDefault");
        return result;
    }
    /// Vertical place of the text in rows added later. The host is not told of the change.
    void letTextPositionDefault(cTextPosition value) {
        demand(face_->put_TextPositionDefault(value), "TextPositionDefault");
    }
    /// Whether cell icons are drawn.
    bool DrawItemIcons() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_DrawItemIcons(&result), "DrawItemIcons");
        return result != VARIANT_FALSE;
    }
    /// Whether cell icons are drawn.
    void letDrawItemIcons(bool value) {
        demand(face_->put_DrawItemIcons(value ? VARIANT_TRUE : VARIANT_FALSE), "DrawItemIcons");
    }
    /// Whether header icons are drawn.
    bool DrawColumnIcons() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_DrawColumnIcons(&result), "DrawColumnIcons");
        return result != VARIANT_FALSE;
    }
    /// Whether header icons are drawn.
    void letDrawColumnIcons(bool value) {
        demand(face_->put_DrawColumnIcons(value ? VARIANT_TRUE : VARIANT_FALSE), "DrawColumnIcons");
    }
    /// Picture in the lower right corner of the list, at its own size.
    Ref<IPictureDisp> BackgroundPicture() const {
        Ref<IPictureDisp> result;
        demand(face_->get_BackgroundPicture(result.place()), "BackgroundPicture");
        return result;
    }
    /// Picture in the lower right corner of the list, at its own size.
    void setBackgroundPicture(IPictureDisp* value) {
        demand(face_->putref_BackgroundPicture(value), "BackgroundPicture");
    }
    /// Strip of 16 x 3 pixels for the bar of the header under the pointer, in the blue and the silver scheme alone; Nothing for the built-in one.
    Ref<IPictureDisp> Skin() const {
        Ref<IPictureDisp> result;
        demand(face_->get_Skin(result.place()), "Skin");
        return result;
    }
    /// Strip of 16 x 3 pixels for the bar of the header under the pointer, in the blue and the silver scheme alone; Nothing for the built-in one.
    void setSkin(IPictureDisp* value) {
        demand(face_->putref_Skin(value), "Skin");
    }
    /// Whether columns keep their widths under the mouse.
    bool FixColumns() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_FixColumns(&result), "FixColumns");
        return result != VARIANT_FALSE;
    }
    /// Whether columns keep their widths under the mouse.
    void letFixColumns(bool value) {
        demand(face_->put_FixColumns(value ? VARIANT_TRUE : VARIANT_FALSE), "FixColumns");
    }
    /// Kept for the host; it has no visible effect, and ItemOver is never raised.
    bool CheckMouseOver() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_CheckMouseOver(&result), "CheckMouseOver");
        return result != VARIANT_FALSE;
    }
    /// Kept for the host; it has no visible effect, and ItemOver is never raised.
    void letCheckMouseOver(bool value) {
        demand(face_->put_CheckMouseOver(value ? VARIANT_TRUE : VARIANT_FALSE), "CheckMouseOver");
    }
    /// Kept for the host; the list never starts a drag by itself.
    long OLEDragMode() const {
        long result{};
        demand(face_->get_OLEDragMode(&result), "OLEDragMode");
        return result;
    }
    /// Kept for the host; the list never starts a drag by itself.
    void letOLEDragMode(long value) {
        demand(face_->put_OLEDragMode(value), "OLEDragMode");
    }
    /// 1 takes what is dragged over the list, with OLEDragOver and OLEDragDrop; any other number takes nothing.
    long OLEDropMode() const {
        long result{};
        demand(face_->get_OLEDropMode(&result), "OLEDropMode");
        return result;
    }
    /// 1 takes what is dragged over the list, with OLEDragOver and OLEDragDrop; any other number takes nothing.
    void letOLEDropMode(long value) {
        demand(face_->put_OLEDropMode(value), "OLEDropMode");
    }
    /// Whether rows take turns with two background colours, in place of those of their cells.
    bool AutoRowColor() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_AutoRowColor(&result), "AutoRowColor");
        return result != VARIANT_FALSE;
    }
    /// Whether rows take turns with two background colours, in place of those of their cells.
    void letAutoRowColor(bool value) {
        demand(face_->put_AutoRowColor(value ? VARIANT_TRUE : VARIANT_FALSE), "AutoRowColor");
    }
    /// Background of every other row, from the first on.
    OLE_COLOR RowColorFirst() const {
        OLE_COLOR result{};
        demand(face_->get_RowColorFirst(&result), "RowColorFirst");
        return result;
    }
    /// Background of every other row, from the first on.
    void letRowColorFirst(OLE_COLOR value) {
        demand(face_->put_RowColorFirst(value), "RowColorFirst");
    }
    /// Background of the rows between.
    OLE_COLOR RowColorSecond() const {
        OLE_COLOR result{};
        demand(face_->get_RowColorSecond(&result), "RowColorSecond");
        return result;
    }
    /// Background of the rows between.
    void letRowColorSecond(OLE_COLOR value) {
        demand(face_->put_RowColorSecond(value), "RowColorSecond");
    }
    /// While True, every cell has a black background, selected or not. The focus plays no part.
    bool HideSelection() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_HideSelection(&result), "HideSelection");
        return result != VARIANT_FALSE;
    }
    /// While True, every cell has a black background, selected or not. The focus plays no part.
    void letHideSelection(bool value) {
        demand(face_->put_HideSelection(value ? VARIANT_TRUE : VARIANT_FALSE), "HideSelection");
    }
    /// Assigning an object with RecordCount, fields, MoveFirst, MoveNext and EOF takes its fields as columns and its records as rows, once. A comma in a value splits it. RecordCount not above 0 changes nothing and repaints nothing.
    Ref<IDispatch> Recordset() const {
        Ref<IDispatch> result;
        demand(face_->get_Recordset(result.place()), "Recordset");
        return result;
    }
    /// Assigning an object with RecordCount, fields, MoveFirst, MoveNext and EOF takes its fields as columns and its records as rows, once. A comma in a value splits it. RecordCount not above 0 changes nothing and repaints nothing.
    void setRecordset(IDispatch* value) {
        demand(face_->putref_Recordset(value), "Recordset");
    }
    /// Text of the header.
    std::wstring ColumnText(const Value& Index) const {
        Text result;
        demand(face_->get_ColumnText(Index.get(), result.place()), "ColumnText");
        return result.str();
    }
    /// Text of the header.
    void letColumnText(const Value& Index, const Text& value) {
        demand(face_->put_ColumnText(Index.get(), value.get()), "ColumnText");
    }
    /// Icon of the header.
    Ref<IPictureDisp> ColumnIcon(const Value& Index) const {
        Ref<IPictureDisp> result;
        demand(face_->get_ColumnIcon(Index.get(), result.place()), "ColumnIcon");
        return result;
    }
    /// Icon of the header.
    void setColumnIcon(const Value& Index, IPictureDisp* value) {
        demand(face_->putref_ColumnIcon(Index.get(), value), "ColumnIcon");
    }
    /// Icon of the header while the pointer is over it.
    Ref<IPictureDisp> ColumnIconHover(const Value& Index) const {
        Ref<IPictureDisp> result;
        demand(face_->get_ColumnIconHover(Index.get(), result.place()), "ColumnIconHover");
        return result;
    }
    /// Icon of the header while the pointer is over it.
    void setColumnIconHover(const Value& Index, IPictureDisp* value) {
        demand(face_->putref_ColumnIconHover(Index.get(), value), "ColumnIconHover");
    }
    /// Icon of the header while it is pressed.
    Ref<IPictureDisp> ColumnIconDown(const Value& Index) const {
        Ref<IPictureDisp> result;
        demand(face_->get_ColumnIconDown(Index.get(), result.place()), "ColumnIconDown");
        return result;
    }
    /// Icon of the header while it is pressed.
    void setColumnIconDown(const Value& Index, IPictureDisp* value) {
        demand(face_->putref_ColumnIconDown(Index.get(), value), "ColumnIconDown");
    }
    /// Left edge of the header in twips. Goes stale when a column before it is resized by code.
    float ColumnLeft(const Value& Index) const {
        float result{};
        demand(face_->get_ColumnLeft(Index.get(), &result), "ColumnLeft");
        return result;
    }
    /// Width in twips. The columns to the right keep their ColumnLeft.
    float ColumnWidth(const Value& Index) const {
        float result{};
        demand(face_->get_ColumnWidth(Index.get(), &result), "ColumnWidth");
        return result;
    }
    /// Width in twips. The columns to the right keep their ColumnLeft.
    void letColumnWidth(const Value& Index, float value) {
        demand(face_->put_ColumnWidth(Index.get(), value), "ColumnWidth");
    }
    /// Text that the control keeps for the host.
    std::wstring ColumnTag(const Value& Index) const {
        Text result;
        demand(face_->get_ColumnTag(Index.get(), result.place()), "ColumnTag");
        return result.str();
    }
    /// Text that the control keeps for the host.
    void letColumnTag(const Value& Index, const Text& value) {
        demand(face_->put_ColumnTag(Index.get(), value.get()), "ColumnTag");
    }
    /// Text that the control keeps for the host. No column is found by it.
    std::wstring ColumnKey(const Value& Index) const {
        Text result;
        demand(face_->get_ColumnKey(Index.get(), result.place()), "ColumnKey");
        return result.str();
    }
    /// Text that the control keeps for the host. No column is found by it.
    void letColumnKey(const Value& Index, const Text& value) {
        demand(face_->put_ColumnKey(Index.get(), value.get()), "ColumnKey");
    }
    /// Place of the header text. Cells have their own ItemAlignment.
    cColumnHeaderAlign ColumnAlignment(const Value& Index) const {
        cColumnHeaderAlign result{};
        demand(face_->get_ColumnAlignment(Index.get(), &result), "ColumnAlignment");
        return result;
    }
    /// Place of the header text. Cells have their own ItemAlignment.
    void letColumnAlignment(const Value& Index, cColumnHeaderAlign value) {
        demand(face_->put_ColumnAlignment(Index.get(), value), "ColumnAlignment");
    }
    /// Place of the header icon.
    cColumnHeaderAlign ColumnIconAlignment(const Value& Index) const {
        cColumnHeaderAlign result{};
        demand(face_->get_ColumnIconAlignment(Index.get(), &result), "ColumnIconAlignment");
        return result;
    }
    /// Place of the header icon.
    void letColumnIconAlignment(const Value& Index, cColumnHeaderAlign value) {
        demand(face_->put_ColumnIconAlignment(Index.get(), value), "ColumnIconAlignment");
    }
    /// Colour of the header text.
    OLE_COLOR ColumnForeColor(const Value& Index) const {
        OLE_COLOR result{};
        demand(face_->get_ColumnForeColor(Index.get(), &result), "ColumnForeColor");
        return result;
    }
    /// Colour of the header text.
    void letColumnForeColor(const Value& Index, OLE_COLOR value) {
        demand(face_->put_ColumnForeColor(Index.get(), value), "ColumnForeColor");
    }
    /// Colour of the header text while the pointer is over it.
    OLE_COLOR ColumnForeColorHover(const Value& Index) const {
        OLE_COLOR result{};
        demand(face_->get_ColumnForeColorHover(Index.get(), &result), "ColumnForeColorHover");
        return result;
    }
    /// Colour of the header text while the pointer is over it.
    void letColumnForeColorHover(const Value& Index, OLE_COLOR value) {
        demand(face_->put_ColumnForeColorHover(Index.get(), value), "ColumnForeColorHover");
    }
    /// Colour of the header text while the header is pressed.
    OLE_COLOR ColumnForeColorDown(const Value& Index) const {
        OLE_COLOR result{};
        demand(face_->get_ColumnForeColorDown(Index.get(), &result), "ColumnForeColorDown");
        return result;
    }
    /// Colour of the header text while the header is pressed.
    void letColumnForeColorDown(const Value& Index, OLE_COLOR value) {
        demand(face_->put_ColumnForeColorDown(Index.get(), value), "ColumnForeColorDown");
    }
    /// Whether a click on the header sorts.
    bool ColumnAllowSorting(const Value& Index) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ColumnAllowSorting(Index.get(), &result), "ColumnAllowSorting");
        return result != VARIANT_FALSE;
    }
    /// Whether a click on the header sorts.
    void letColumnAllowSorting(const Value& Index, bool value) {
        demand(face_->put_ColumnAllowSorting(Index.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ColumnAllowSorting");
    }
    /// Whether the cells of the column show check boxes, where Style is cCheckBoxes.
    bool ColumnCheckBoxes(const Value& Index) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ColumnCheckBoxes(Index.get(), &result), "ColumnCheckBoxes");
        return result != VARIANT_FALSE;
    }
    /// Whether the cells of the column show check boxes, where Style is cCheckBoxes.
    void letColumnCheckBoxes(const Value& Index, bool value) {
        demand(face_->put_ColumnCheckBoxes(Index.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ColumnCheckBoxes");
    }
    /// Whether cell icons are scaled to the icon size of the column.
    bool ColumnAdjustItemIcons(const Value& Index) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ColumnAdjustItemIcons(Index.get(), &result), "ColumnAdjustItemIcons");
        return result != VARIANT_FALSE;
    }
    /// Whether cell icons are scaled to the icon size of the column.
    void letColumnAdjustItemIcons(const Value& Index, bool value) {
        demand(face_->put_ColumnAdjustItemIcons(Index.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ColumnAdjustItemIcons");
    }
    /// True for any icon height but 0. Assigning stores 0 or -1; the real height comes from IconH as the column is added.
    bool ColumnItemIconH(const Value& Index) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ColumnItemIconH(Index.get(), &result), "ColumnItemIconH");
        return result != VARIANT_FALSE;
    }
    /// True for any icon height but 0. Assigning stores 0 or -1; the real height comes from IconH as the column is added.
    void letColumnItemIconH(const Value& Index, bool value) {
        demand(face_->put_ColumnItemIconH(Index.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ColumnItemIconH");
    }
    /// True for any icon width but 0. Assigning stores 0 or -1; the real width comes from IconW as the column is added.
    bool ColumnItemIconW(const Value& Index) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ColumnItemIconW(Index.get(), &result), "ColumnItemIconW");
        return result != VARIANT_FALSE;
    }
    /// True for any icon width but 0. Assigning stores 0 or -1; the real width comes from IconW as the column is added.
    void letColumnItemIconW(const Value& Index, bool value) {
        demand(face_->put_ColumnItemIconW(Index.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ColumnItemIconW");
    }
    /// Whether the row can be chosen. Assigning enables or disables its cells too.
    bool RowEnabled(const Value& Index) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_RowEnabled(Index.get(), &result), "RowEnabled");
        return result != VARIANT_FALSE;
    }
    /// Whether the row can be chosen. Assigning enables or disables its cells too.
    void letRowEnabled(const Value& Index, bool value) {
        demand(face_->put_RowEnabled(Index.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "RowEnabled");
    }
    /// Whether the row is selected. Selecting scrolls to a row out of view, and without MultiSelect drops the other rows. ListIndex does not follow.
    bool RowSelected(const Value& Index) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_RowSelected(Index.get(), &result), "RowSelected");
        return result != VARIANT_FALSE;
    }
    /// Whether the row is selected. Selecting scrolls to a row out of view, and without MultiSelect drops the other rows. ListIndex does not follow.
    void letRowSelected(const Value& Index, bool value) {
        demand(face_->put_RowSelected(Index.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "RowSelected");
    }
    /// Check mark that the control keeps for the host. Nothing shows it: boxes stand in columns with ColumnCheckBoxes alone, and what they show is ItemChecked.
    bool RowChecked(const Value& Index) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_RowChecked(Index.get(), &result), "RowChecked");
        return result != VARIANT_FALSE;
    }
    /// Check mark that the control keeps for the host. Nothing shows it: boxes stand in columns with ColumnCheckBoxes alone, and what they show is ItemChecked.
    void letRowChecked(const Value& Index, bool value) {
        demand(face_->put_RowChecked(Index.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "RowChecked");
    }
    /// Vertical place of the text in the row. Without effect while RowsDynamic is True.
    cTextPosition TextPosition(const Value& Index) const {
        cTextPosition result{};
        demand(face_->get_TextPosition(Index.get(), &result), "TextPosition");
        return result;
    }
    /// Vertical place of the text in the row. Without effect while RowsDynamic is True.
    void letTextPosition(const Value& Index, cTextPosition value) {
        demand(face_->put_TextPosition(Index.get(), value), "TextPosition");
    }
    /// Whether the text is bold.
    bool ItemFontBold(const Value& Row, const Value& Column) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ItemFontBold(Row.get(), Column.get(), &result), "ItemFontBold");
        return result != VARIANT_FALSE;
    }
    /// Whether the text is bold.
    void letItemFontBold(const Value& Row, const Value& Column, bool value) {
        demand(face_->put_ItemFontBold(Row.get(), Column.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ItemFontBold");
    }
    /// Whether the text is italic.
    bool ItemFontItalic(const Value& Row, const Value& Column) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ItemFontItalic(Row.get(), Column.get(), &result), "ItemFontItalic");
        return result != VARIANT_FALSE;
    }
    /// Whether the text is italic.
    void letItemFontItalic(const Value& Row, const Value& Column, bool value) {
        demand(face_->put_ItemFontItalic(Row.get(), Column.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ItemFontItalic");
    }
    /// Whether the text is underlined.
    bool ItemFontUnderline(const Value& Row, const Value& Column) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ItemFontUnderline(Row.get(), Column.get(), &result), "ItemFontUnderline");
        return result != VARIANT_FALSE;
    }
    /// Whether the text is underlined.
    void letItemFontUnderline(const Value& Row, const Value& Column, bool value) {
        demand(face_->put_ItemFontUnderline(Row.get(), Column.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ItemFontUnderline");
    }
    /// Whether the text is struck through.
    bool ItemFontStrikethrough(const Value& Row, const Value& Column) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ItemFontStrikethrough(Row.get(), Column.get(), &result), "ItemFontStrikethrough");
        return result != VARIANT_FALSE;
    }
    /// Whether the text is struck through.
    void letItemFontStrikethrough(const Value& Row, const Value& Column, bool value) {
        demand(face_->put_ItemFontStrikethrough(Row.get(), Column.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ItemFontStrikethrough");
    }
    /// Size of the text in points.
    float ItemFontSize(const Value& Row, const Value& Column) const {
        float result{};
        demand(face_->get_ItemFontSize(Row.get(), Column.get(), &result), "ItemFontSize");
        return result;
    }
    /// Size of the text in points.
    void letItemFontSize(const Value& Row, const Value& Column, float value) {
        demand(face_->put_ItemFontSize(Row.get(), Column.get(), value), "ItemFontSize");
    }
    /// Typeface of the text.
    std::wstring ItemFontName(const Value& Row, const Value& Column) const {
        Text result;
        demand(face_->get_ItemFontName(Row.get(), Column.get(), result.place()), "ItemFontName");
        return result.str();
    }
    /// Typeface of the text.
    void letItemFontName(const Value& Row, const Value& Column, const Text& value) {
        demand(face_->put_ItemFontName(Row.get(), Column.get(), value.get()), "ItemFontName");
    }
    /// Colour of the text.
    OLE_COLOR ItemForeColor(const Value& Row, const Value& Column) const {
        OLE_COLOR result{};
        demand(face_->get_ItemForeColor(Row.get(), Column.get(), &result), "ItemForeColor");
        return result;
    }
    /// Colour of the text.
    void letItemForeColor(const Value& Row, const Value& Column, OLE_COLOR value) {
        demand(face_->put_ItemForeColor(Row.get(), Column.get(), value), "ItemForeColor");
    }
    /// Background of the cell, or "def" for none of its own. AutoRowColor goes before it.
    Value ItemBackColor(const Value& Row, const Value& Column) const {
        Value result;
        demand(face_->get_ItemBackColor(Row.get(), Column.get(), result.place()), "ItemBackColor");
        return result;
    }
    /// Background of the cell, or "def" for none of its own. AutoRowColor goes before it.
    void letItemBackColor(const Value& Row, const Value& Column, const Value& value) {
        demand(face_->put_ItemBackColor(Row.get(), Column.get(), value.get()), "ItemBackColor");
    }
    /// Colour of the text while selected, or "def" for white.
    Value ItemForeColorSelect(const Value& Row, const Value& Column) const {
        Value result;
        demand(face_->get_ItemForeColorSelect(Row.get(), Column.get(), result.place()), "ItemForeColorSelect");
        return result;
    }
    /// Colour of the text while selected, or "def" for white.
    void letItemForeColorSelect(const Value& Row, const Value& Column, const Value& value) {
        demand(face_->put_ItemForeColorSelect(Row.get(), Column.get(), value.get()), "ItemForeColorSelect");
    }
    /// Background while selected, or "def" for the colour of the scheme.
    Value ItemBackColorSelect(const Value& Row, const Value& Column) const {
        Value result;
        demand(face_->get_ItemBackColorSelect(Row.get(), Column.get(), result.place()), "ItemBackColorSelect");
        return result;
    }
    /// Background while selected, or "def" for the colour of the scheme.
    void letItemBackColorSelect(const Value& Row, const Value& Column, const Value& value) {
        demand(face_->put_ItemBackColorSelect(Row.get(), Column.get(), value.get()), "ItemBackColorSelect");
    }
    /// Colour of the text while disabled. A number: "def" fails.
    Value ItemForeColorDis(const Value& Row, const Value& Column) const {
        Value result;
        demand(face_->get_ItemForeColorDis(Row.get(), Column.get(), result.place()), "ItemForeColorDis");
        return result;
    }
    /// Colour of the text while disabled. A number: "def" fails.
    void letItemForeColorDis(const Value& Row, const Value& Column, const Value& value) {
        demand(face_->put_ItemForeColorDis(Row.get(), Column.get(), value.get()), "ItemForeColorDis");
    }
    /// Background while disabled. A number: "def" fails.
    Value ItemBackColorDis(const Value& Row, const Value& Column) const {
        Value result;
        demand(face_->get_ItemBackColorDis(Row.get(), Column.get(), result.place()), "ItemBackColorDis");
        return result;
    }
    /// Background while disabled. A number: "def" fails.
    void letItemBackColorDis(const Value& Row, const Value& Column, const Value& value) {
        demand(face_->put_ItemBackColorDis(Row.get(), Column.get(), value.get()), "ItemBackColorDis");
    }
    /// Value that the control keeps for the host.
    Value ItemTag(const Value& Row, const Value& Column) const {
        Value result;
        demand(face_->get_ItemTag(Row.get(), Column.get(), result.place()), "ItemTag");
        return result;
    }
    /// Value that the control keeps for the host.
    void letItemTag(const Value& Row, const Value& Column, const Value& value) {
        demand(face_->put_ItemTag(Row.get(), Column.get(), value.get()), "ItemTag");
    }
    /// Whether the cell is enabled. Shown by the next paint.
    bool ItemEnabled(const Value& Row, const Value& Column) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ItemEnabled(Row.get(), Column.get(), &result), "ItemEnabled");
        return result != VARIANT_FALSE;
    }
    /// Whether the cell is enabled. Shown by the next paint.
    void letItemEnabled(const Value& Row, const Value& Column, bool value) {
        demand(face_->put_ItemEnabled(Row.get(), Column.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ItemEnabled");
    }
    /// Icon of the cell.
    Ref<IPictureDisp> ItemIcon(const Value& Row, const Value& Column) const {
        Ref<IPictureDisp> result;
        demand(face_->get_ItemIcon(Row.get(), Column.get(), result.place()), "ItemIcon");
        return result;
    }
    /// Icon of the cell.
    void setItemIcon(const Value& Row, const Value& Column, IPictureDisp* value) {
        demand(face_->putref_ItemIcon(Row.get(), Column.get(), value), "ItemIcon");
    }
    /// Icon of the cell while selected.
    Ref<IPictureDisp> ItemIconSelected(const Value& Row, const Value& Column) const {
        Ref<IPictureDisp> result;
        demand(face_->get_ItemIconSelected(Row.get(), Column.get(), result.place()), "ItemIconSelected");
        return result;
    }
    /// Icon of the cell while selected.
    void setItemIconSelected(const Value& Row, const Value& Column, IPictureDisp* value) {
        demand(face_->putref_ItemIconSelected(Row.get(), Column.get(), value), "ItemIconSelected");
    }
    /// Whether the cell may be edited in place. A double click opens the editor, AllowEdit a second press too.
    bool ItemAllowEdit(const Value& Row, const Value& Column) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ItemAllowEdit(Row.get(), Column.get(), &result), "ItemAllowEdit");
        return result != VARIANT_FALSE;
    }
    /// Whether the cell may be edited in place. A double click opens the editor, AllowEdit a second press too.
    void letItemAllowEdit(const Value& Row, const Value& Column, bool value) {
        demand(face_->put_ItemAllowEdit(Row.get(), Column.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ItemAllowEdit");
    }
    /// Check mark of the cell. The count of its column follows; no event is raised.
    bool ItemChecked(const Value& Row, const Value& Column) const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_ItemChecked(Row.get(), Column.get(), &result), "ItemChecked");
        return result != VARIANT_FALSE;
    }
    /// Check mark of the cell. The count of its column follows; no event is raised.
    void letItemChecked(const Value& Row, const Value& Column, bool value) {
        demand(face_->put_ItemChecked(Row.get(), Column.get(), value ? VARIANT_TRUE : VARIANT_FALSE), "ItemChecked");
    }
    /// Place of the text.
    cItemAlign ItemAlignment(const Value& Row, const Value& Column) const {
        cItemAlign result{};
        demand(face_->get_ItemAlignment(Row.get(), Column.get(), &result), "ItemAlignment");
        return result;
    }
    /// Place of the text.
    void letItemAlignment(const Value& Row, const Value& Column, cItemAlign value) {
        demand(face_->put_ItemAlignment(Row.get(), Column.get(), value), "ItemAlignment");
    }
    /// Place of the icon.
    cItemAlign ItemIconAlignment(const Value& Row, const Value& Column) const {
        cItemAlign result{};
        demand(face_->get_ItemIconAlignment(Row.get(), Column.get(), &result), "ItemIconAlignment");
        return result;
    }
    /// Place of the icon.
    void letItemIconAlignment(const Value& Row, const Value& Column, cItemAlign value) {
        demand(face_->put_ItemIconAlignment(Row.get(), Column.get(), value), "ItemIconAlignment");
    }
    /// Text of the cell.
    std::wstring ItemText(const Value& Row, const Value& Column) const {
        Text result;
        demand(face_->get_ItemText(Row.get(), Column.get(), result.place()), "ItemText");
        return result.str();
    }
    /// Text of the cell.
    void letItemText(const Value& Row, const Value& Column, const Text& value) {
        demand(face_->put_ItemText(Row.get(), Column.get(), value.get()), "ItemText");
    }
    /// Text that the control keeps for the host. The list never shows it; screen readers speak it.
    std::wstring ItemToolTip(const Value& Row, const Value& Column) const {
        Text result;
        demand(face_->get_ItemToolTip(Row.get(), Column.get(), result.place()), "ItemToolTip");
        return result.str();
    }
    /// Text that the control keeps for the host. The list never shows it; screen readers speak it.
    void letItemToolTip(const Value& Row, const Value& Column, const Text& value) {
        demand(face_->put_ItemToolTip(Row.get(), Column.get(), value.get()), "ItemToolTip");
    }
    /// Width of the text in pixels, as the last paint measured it; 0 for a cell never painted.
    float ItemTextWidth(const Value& Row, const Value& Column) const {
        float result{};
        demand(face_->get_ItemTextWidth(Row.get(), Column.get(), &result), "ItemTextWidth");
        return result;
    }
    /// Control of the host that is shown over the cell. One with a window becomes a child of the list. A failure while it is assigned raises ListViewError and is then reported.
    Ref<IDispatch> ItemObject(const Value& Row, const Value& Column) const {
        Ref<IDispatch> result;
        demand(face_->get_ItemObject(Row.get(), Column.get(), result.place()), "ItemObject");
        return result;
    }
    /// Control of the host that is shown over the cell. One with a window becomes a child of the list. A failure while it is assigned raises ListViewError and is then reported.
    void setItemObject(const Value& Row, const Value& Column, IDispatch* value) {
        demand(face_->putref_ItemObject(Row.get(), Column.get(), value), "ItemObject");
    }
    /// Checked cells of a column; of all columns for a number that no column has.
    long ItemsCheckedCount(long Column = 0) {
        long result{};
        demand(face_->ItemsCheckedCount(Column, &result), "ItemsCheckedCount");
        return result;
    }

  private:
    Ref<_lmListView> face_;
};

/// Helper calls for host programs: files, sound, the active theme, the mouse.
class SpEv {
  public:
    /// One that a container has made. Throws Failure for an object of another class.
    explicit SpEv(IUnknown* object) {
        demand(object->QueryInterface(IID__SpEv, face_.anyPlace()), "SpEv");
    }
    /// A new one, by registry or manifest. Throws Failure where the component is not found.
    static SpEv make() {
        Ref<_SpEv> made;
        demand(CoCreateInstance(CLSID_SpEv, nullptr, CLSCTX_INPROC_SERVER, IID__SpEv, made.anyPlace()), "SpEv");
        return SpEv(made);
    }
    /// The table of functions below.
    _SpEv* face() const { return face_; }

    /// The whole of a text file; the empty text where it cannot be read.
    std::wstring TextRead(const Text& Filename) {
        Text result;
        demand(face_->TextRead(Filename.get(), result.place()), "TextRead");
        return result.str();
    }
    /// Replaces a file by a text, without a line end behind it.
    void TextSave(const Text& Filename, const Text& Text) {
        demand(face_->TextSave(Filename.get(), Text.get()), "TextSave");
    }
    /// Starts a sound file and returns at once; silent where it cannot be played.
    void PlayMusic(const Text& Filename) {
        demand(face_->PlayMusic(Filename.get()), "PlayMusic");
    }
    /// Replaces a file by one line for each entry of a list box. At most 32,768 entries are written.
    void ListSave(IDispatch* List, const Text& Filename, const Text& TextBeforeListText = L"", const Text& TextAfterListText = L"") {
        demand(face_->ListSave(List, Filename.get(), TextBeforeListText.get(), TextAfterListText.get()), "ListSave");
    }
    /// Adds each line of a file to a list box, which is not cleared before.
    void ListRead(IDispatch* List, const Text& Filename) {
        demand(face_->ListRead(List, Filename.get()), "ListRead");
    }
    /// Whether a file or folder is found. The last part may hold wild cards.
    bool FileExists(const Text& sFile) {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->FileExists(sFile.get(), &result), "FileExists");
        return result != VARIANT_FALSE;
    }
    /// The colour scheme of the desktop; styleClassic where no theme is active.
    cActiveXPTheme ActiveXPTheme() {
        cActiveXPTheme result{};
        demand(face_->ActiveXPTheme(&result), "ActiveXPTheme");
        return result;
    }
    /// The button that is down, left before right before middle. The middle one gives 4, not mouseMiddle.
    cMouseButton MouseButtonPressed() {
        cMouseButton result{};
        demand(face_->MouseButtonPressed(&result), "MouseButtonPressed");
        return result;
    }

  private:
    Ref<_SpEv> face_;
};

/// The switch that silences all error reports of the process.
class Error {
  public:
    /// One that a container has made. Throws Failure for an object of another class.
    explicit Error(IUnknown* object) {
        demand(object->QueryInterface(IID__Error, face_.anyPlace()), "Error");
    }
    /// A new one, by registry or manifest. Throws Failure where the component is not found.
    static Error make() {
        Ref<_Error> made;
        demand(CoCreateInstance(CLSID_Error, nullptr, CLSCTX_INPROC_SERVER, IID__Error, made.anyPlace()), "Error");
        return Error(made);
    }
    /// The table of functions below.
    _Error* face() const { return face_; }

    /// While True, a failing statement is skipped without a report, in all lists of the process.
    bool SilentError() const {
        VARIANT_BOOL result = VARIANT_FALSE;
        demand(face_->get_SilentError(&result), "SilentError");
        return result != VARIANT_FALSE;
    }
    /// While True, a failing statement is skipped without a report, in all lists of the process.
    void letSilentError(bool value) {
        demand(face_->put_SilentError(value ? VARIANT_TRUE : VARIANT_FALSE), "SilentError");
    }

  private:
    Ref<_Error> face_;
};

/// What a host hears of: it overrides what it wants to know. References go back to the list. What a handler
/// throws ends there, and the list goes on.
class lmListViewEvents {
  public:
    virtual ~lmListViewEvents() = default;

    /// The list was clicked, or, with ClickOnIndexChange, its current row is about to change.
    virtual void Click() {}
    /// The list was clicked twice. ItemDblClick follows where a cell was pressed before.
    virtual void DblClick() {}
    /// A press is about to change a check mark. Cancel keeps it.
    virtual void ItemCheck([[maybe_unused]] long Row, [[maybe_unused]] long Column, [[maybe_unused]] bool NewValue, [[maybe_unused]] bool& Cancel) {}
    /// A press has changed a check mark.
    virtual void ItemChecked([[maybe_unused]] long Row, [[maybe_unused]] long Column, [[maybe_unused]] bool NewValue) {}
    /// A mouse button was let go. The position is in pixels.
    virtual void MouseUp([[maybe_unused]] short& Button, [[maybe_unused]] short& Shift, [[maybe_unused]] float& X, [[maybe_unused]] float& Y) {}
    /// The mouse moved over the list, or with a button held anywhere. The position is in pixels.
    virtual void MouseMove([[maybe_unused]] short& Button, [[maybe_unused]] short& Shift, [[maybe_unused]] float& X, [[maybe_unused]] float& Y) {}
    /// A mouse button was pressed; ItemDown came before. The position is in pixels.
    virtual void MouseDown([[maybe_unused]] short& Button, [[maybe_unused]] short& Shift, [[maybe_unused]] float& X, [[maybe_unused]] float& Y) {}
    /// A header was clicked. Where the column allows it, a sort as text follows.
    virtual void ColumnClick([[maybe_unused]] long& Column) {}
    /// The list was scrolled up or down with the thumb or the wheel. Scrolling sideways is not told.
    virtual void Scroll() {}
    /// A key went down.
    virtual void KeyDown([[maybe_unused]] short& KeyCode, [[maybe_unused]] short& Shift) {}
    /// A key gave a character.
    virtual void KeyPress([[maybe_unused]] short& KeyAscii) {}
    /// A key was let go.
    virtual void KeyUp([[maybe_unused]] short& KeyCode, [[maybe_unused]] short& Shift) {}
    /// Never raised: the list starts no drag.
    virtual void OLECompleteDrag([[maybe_unused]] long& Effect) {}
    /// Something was dropped on the list. Effect answers what became of it.
    virtual void OLEDragDrop([[maybe_unused]] IDispatch* Data, [[maybe_unused]] long& Effect, [[maybe_unused]] short& Button, [[maybe_unused]] short& Shift, [[maybe_unused]] float& X, [[maybe_unused]] float& Y) {}
    /// Something is dragged over the list: State 0 enters, 1 leaves, 2 moves. Effect answers what a drop would do.
    virtual void OLEDragOver([[maybe_unused]] IDispatch* Data, [[maybe_unused]] long& Effect, [[maybe_unused]] short& Button, [[maybe_unused]] short& Shift, [[maybe_unused]] float& X, [[maybe_unused]] float& Y, [[maybe_unused]] short& State) {}
    /// Never raised: the list starts no drag.
    virtual void OLEGiveFeedback([[maybe_unused]] long& Effect, [[maybe_unused]] bool& DefaultCursors) {}
    /// Never raised: the list starts no drag.
    virtual void OLESetData([[maybe_unused]] IDispatch* Data, [[maybe_unused]] short& DataFormat) {}
    /// Never raised: the list starts no drag.
    virtual void OLEStartDrag([[maybe_unused]] IDispatch* Data, [[maybe_unused]] long& AllowedEffects) {}
    /// ListIndex was assigned a number that no enabled row has. Index counts from 0; changing it changes nothing.
    virtual void ErrorWrongIndex([[maybe_unused]] VARIANT& Index) {}
    /// A sort has ended.
    virtual void SortDone() {}
    /// A paint, or the assignment of an embedded object, failed. Other failures are reported alone.
    virtual void ListViewError([[maybe_unused]] const std::wstring& eSub, [[maybe_unused]] long eNumber, [[maybe_unused]] const std::wstring& eDescription) {}
    /// A cell was pressed and let go.
    virtual void ItemClick([[maybe_unused]] long Row, [[maybe_unused]] long Column) {}
    /// The cell pressed last was clicked twice. The editor follows where the cell allows it.
    virtual void ItemDblClick([[maybe_unused]] long Row, [[maybe_unused]] long Column) {}
    /// A cell was pressed.
    virtual void ItemDown([[maybe_unused]] long Row, [[maybe_unused]] long Column) {}
    /// A button was let go over a cell, the pressed one or another.
    virtual void ItemUp([[maybe_unused]] long Row, [[maybe_unused]] long Column) {}
    /// The editor has written into a cell, even the same text.
    virtual void ItemChanged([[maybe_unused]] long Row, [[maybe_unused]] long Column, [[maybe_unused]] const std::wstring& NewValue) {}
    /// Never raised.
    virtual void ItemOver([[maybe_unused]] long Row, [[maybe_unused]] long Column, [[maybe_unused]] bool bOverItem) {}
};

namespace details {

/// Has the handler of the event with this number called.
inline void tell(lmListViewEvents& handlers, DISPID number, const DISPPARAMS& parameters) {
    switch (number) {
    case events::Click:
        return LumtexListView::tell(handlers, &lmListViewEvents::Click, parameters);
    case events::DblClick:
        return LumtexListView::tell(handlers, &lmListViewEvents::DblClick, parameters);
    case events::ItemCheck:
        return LumtexListView::tell(handlers, &lmListViewEvents::ItemCheck, parameters);
    case events::ItemChecked:
        return LumtexListView::tell(handlers, &lmListViewEvents::ItemChecked, parameters);
    case events::MouseUp:
        return LumtexListView::tell(handlers, &lmListViewEvents::MouseUp, parameters);
    case events::MouseMove:
        return LumtexListView::tell(handlers, &lmListViewEvents::MouseMove, parameters);
    case events::MouseDown:
        return LumtexListView::tell(handlers, &lmListViewEvents::MouseDown, parameters);
    case events::ColumnClick:
        return LumtexListView::tell(handlers, &lmListViewEvents::ColumnClick, parameters);
    case events::Scroll:
        return LumtexListView::tell(handlers, &lmListViewEvents::Scroll, parameters);
    case events::KeyDown:
        return LumtexListView::tell(handlers, &lmListViewEvents::KeyDown, parameters);
    case events::KeyPress:
        return LumtexListView::tell(handlers, &lmListViewEvents::KeyPress, parameters);
    case events::KeyUp:
        return LumtexListView::tell(handlers, &lmListViewEvents::KeyUp, parameters);
    case events::OLECompleteDrag:
        return LumtexListView::tell(handlers, &lmListViewEvents::OLECompleteDrag, parameters);
    case events::OLEDragDrop:
        return LumtexListView::tell(handlers, &lmListViewEvents::OLEDragDrop, parameters);
    case events::OLEDragOver:
        return LumtexListView::tell(handlers, &lmListViewEvents::OLEDragOver, parameters);
    case events::OLEGiveFeedback:
        return LumtexListView::tell(handlers, &lmListViewEvents::OLEGiveFeedback, parameters);
    case events::OLESetData:
        return LumtexListView::tell(handlers, &lmListViewEvents::OLESetData, parameters);
    case events::OLEStartDrag:
        return LumtexListView::tell(handlers, &lmListViewEvents::OLEStartDrag, parameters);
    case events::ErrorWrongIndex:
        return LumtexListView::tell(handlers, &lmListViewEvents::ErrorWrongIndex, parameters);
    case events::SortDone:
        return LumtexListView::tell(handlers, &lmListViewEvents::SortDone, parameters);
    case events::ListViewError:
        return LumtexListView::tell(handlers, &lmListViewEvents::ListViewError, parameters);
    case events::ItemClick:
        return LumtexListView::tell(handlers, &lmListViewEvents::ItemClick, parameters);
    case events::ItemDblClick:
        return LumtexListView::tell(handlers, &lmListViewEvents::ItemDblClick, parameters);
    case events::ItemDown:
        return LumtexListView::tell(handlers, &lmListViewEvents::ItemDown, parameters);
    case events::ItemUp:
        return LumtexListView::tell(handlers, &lmListViewEvents::ItemUp, parameters);
    case events::ItemChanged:
        return LumtexListView::tell(handlers, &lmListViewEvents::ItemChanged, parameters);
    case events::ItemOver:
        return LumtexListView::tell(handlers, &lmListViewEvents::ItemOver, parameters);
    default:
        throw Failure("event", DISP_E_MEMBERNOTFOUND);
    }
}

/// The sink that a list knows. It may outlive the connection in a list that is just telling an event.
class Sink final : public IDispatch {
  public:
    explicit Sink(lmListViewEvents& handlers) : handlers_(&handlers) {}
    void forget() { handlers_ = nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == DIID_lmListViewEvents;
        *object = known ? this : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE
    Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override {
        if (handlers_ == nullptr)
            return S_OK;
        // The handler may end the connection, and nothing of this object is touched behind it.
        try {
            tell(*handlers_, number, *parameters);
            return S_OK;
        } catch (const Failure& failure) {
            return failure.result();
        } catch (...) {
            return DISP_E_EXCEPTION;
        }
    }

  private:
    virtual ~Sink() = default;

    lmListViewEvents* handlers_;
    ULONG references_ = 0;
};

} // namespace details

/// Handlers hear of a list's events for as long as this lives, which is to end before they do. It may end in one of them.
class Connection {
  public:
    /// Throws Failure for an object without these events.
    Connection(IUnknown* list, lmListViewEvents& handlers) : sink_(new details::Sink(handlers)) {
        Ref<IConnectionPointContainer> points;
        demand(list->QueryInterface(IID_IConnectionPointContainer, points.anyPlace()), "Connection");
        demand(points->FindConnectionPoint(DIID_lmListViewEvents, point_.place()), "Connection");
        demand(point_->Advise(sink_, &cookie_), "Connection");
    }
    Connection(const lmListView& list, lmListViewEvents& handlers) : Connection(list.face(), handlers) {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() {
        sink_->forget();
        point_->Unadvise(cookie_);
    }

  private:
    Ref<details::Sink> sink_;
    Ref<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace LumtexListView
