// LumtexListView for hosts in C++. Made from the tables in src/automation by scripts/reference; do not edit.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>

namespace LumtexListView {

inline constexpr GUID LIBID_LumtexListView = {0x5bdc0d33, 0x3317, 0x4cd2, {0xb5, 0xd2, 0x93, 0x24, 0xde, 0x4d, 0x04, 0x3f}};
inline constexpr GUID CLSID_lmListView = {0xe49f72c4, 0x95ca, 0x4e64, {0x87, 0x60, 0x58, 0x8f, 0x61, 0xe9, 0x1f, 0x54}};
inline constexpr GUID IID__lmListView = {0x391c9172, 0x2dce, 0x4dc1, {0xbe, 0x64, 0xa0, 0x93, 0x28, 0x2d, 0x8b, 0x6c}};
inline constexpr GUID CLSID_SpEv = {0xea504454, 0xca3c, 0x4669, {0xbe, 0x1f, 0x8e, 0x68, 0xa8, 0x81, 0xa5, 0x7e}};
inline constexpr GUID IID__SpEv = {0xb4132963, 0xa031, 0x4a99, {0xa4, 0x6b, 0xb6, 0xbc, 0x85, 0x21, 0x5d, 0x94}};
inline constexpr GUID CLSID_Error = {0x18a65bbd, 0x7353, 0x4048, {0xbe, 0x6c, 0x56, 0x0d, 0xf6, 0x1d, 0xa5, 0xd1}};
inline constexpr GUID IID__Error = {0x7006c0f3, 0x9697, 0x492e, {0xa8, 0x1b, 0xc6, 0x10, 0x34, 0xae, 0x07, 0x2f}};
inline constexpr GUID DIID_lmListViewEvents = {0xe32982d6, 0xd13a, 0x41ee, {0xb8, 0xad, 0x83, 0x19, 0xc0, 0xaa, 0xd1, 0xce}};

/// Scheme of headers, selection and border.
enum cColorStyle : long {
    cXPBlue = 0,
    cXPSilver = 1,
    cXPOlive = 2,
    cCustom = 99,
};

/// Scheme of the scroll bars.
enum cScrollColorStyle : long {
    cXPScrollBlue = 0,
    cXPScrollSilver = 1,
    cXPScrollOlive = 2,
    cScrollCustom = 99,
};

/// What the mouse wheel moves.
enum cWheelFunction : long {
    cWheelScroll = 0,
    cWheelListIndex = 1,
    cWheelOff = 2,
};

/// Whether the list may show check boxes.
enum cListViewStyle : long {
    cDefault = 0,
    cCheckBoxes = 1,
};

/// Place of text or icon in a header.
enum cColumnHeaderAlign : long {
    cColumnLeft = 0,
    cColumnCenter = 1,
    cColumnRight = 2,
};

/// Place of text or icon in a cell.
enum cItemAlign : long {
    cItemLeft = 0,
    cItemCenter = 1,
    cItemRight = 2,
};

/// Vertical place of the text in its row.
enum cTextPosition : long {
    cTextPosTop = 0,
    cTextPosCenter = 1,
    cTextPosBottom = 2,
};

/// Order of a sort.
enum cSortMode : long {
    cAscending = 1,
    cDescending = 2,
};

/// What the texts of a sorted column are compared as.
enum cSortType : long {
    cSortText = 0,
    cSortNumeric = 1,
    cSortDate = 2,
};

/// Where a search starts.
enum cFindBegin : long {
    cFindStart = 0,
    cFindContinue = 1,
};

/// How a search compares letters.
enum cFindCompare : long {
    cFindBinary = 0,
    cFindText = 1,
};

/// Colour scheme of the user's desktop.
enum cActiveXPTheme : long {
    styleBlue = 1,
    styleSilver = 2,
    styleOlive = 3,
    styleClassic = 4,
};

/// Mouse button that is down.
enum cMouseButton : long {
    mouseNone = 0,
    mouseLeft = 1,
    mouseRight = 2,
    mouseMiddle = 3,
};

/// What FindItem found. Row and column count from 1 in the lists that were searched.
struct FindResults {
    VARIANT_BOOL FindSuccessful;
    long FindRow;
    long FindColumn;
};

/// An owner-drawn list of rows and columns.
struct _lmListView : IDispatch {
    /// Appends a column, and an empty cell to every row. The width is in twips; a colour of 0 is black.
    virtual HRESULT STDMETHODCALLTYPE ColumnsAdd(VARIANT aText, IPictureDisp* aIcon, IPictureDisp* aIconHover, IPictureDisp* aIconDown, cColumnHeaderAlign aAlignment, float aWidth, VARIANT_BOOL aAllowSorting, OLE_COLOR aForeColor, BSTR aKey, BSTR aTag, OLE_COLOR aForeColorHover, OLE_COLOR aForeColorDown) = 0;
    /// Removes all columns. Rows keep their cells, so clear the rows first for an empty list.
    virtual HRESULT STDMETHODCALLTYPE ColumnsClear() = 0;
    /// Checks the scroll bars and repaints. The columns stay: a single column cannot be removed.
    virtual HRESULT STDMETHODCALLTYPE ColumnsRemove(VARIANT Index) = 0;
    /// The number of columns.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnsCount(long* result) = 0;
    /// Inserts a row before the 0-based place, or appends it where that is out of range, and writes back the place it took. The texts are split at the separator, without quoting. A list without columns takes no rows.
    virtual HRESULT STDMETHODCALLTYPE RowsAdd(VARIANT* aIndex, BSTR aSplit, BSTR aItemTexts) = 0;
    /// Removes the row with the 1-based number. A number out of range removes nothing and is not reported. The host gets its turn after each row that moves up.
    virtual HRESULT STDMETHODCALLTYPE RowsRemove(VARIANT* Index) = 0;
    /// Removes all selected rows and paints once at the end.
    virtual HRESULT STDMETHODCALLTYPE RowsSelectedRemove() = 0;
    /// Removes all rows. ListIndex and NewIndex keep their numbers.
    virtual HRESULT STDMETHODCALLTYPE RowsClear() = 0;
    /// The number of rows.
    virtual HRESULT STDMETHODCALLTYPE get_RowsCount(long* result) = 0;
    /// The number of selected rows, counted anew.
    virtual HRESULT STDMETHODCALLTYPE RowSelectedCount(long* result) = 0;
    /// True for whatever is no number, and for every index once the list has had a row.
    virtual HRESULT STDMETHODCALLTYPE WrongIndex(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// True for whatever is no number, and for every index once the list has had a column.
    virtual HRESULT STDMETHODCALLTYPE WrongColumnIndex(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// The 0-based place of the row last added. It is not corrected when rows move or go.
    virtual HRESULT STDMETHODCALLTYPE get_NewIndex(long* result) = 0;
    /// The current row, 0-based; -1 for none. A number that no enabled row has is refused with ErrorWrongIndex. Reading gives the host its turn once.
    virtual HRESULT STDMETHODCALLTYPE get_ListIndex(long* result) = 0;
    /// The current row, 0-based; -1 for none. A number that no enabled row has is refused with ErrorWrongIndex. Reading gives the host its turn once.
    virtual HRESULT STDMETHODCALLTYPE put_ListIndex(long value) = 0;
    /// The current row, 1-based; 0 for none. Assigning also scrolls to the row.
    virtual HRESULT STDMETHODCALLTYPE get_RowIndex(long* result) = 0;
    /// The current row, 1-based; 0 for none. Assigning also scrolls to the row.
    virtual HRESULT STDMETHODCALLTYPE put_RowIndex(long value) = 0;
    /// The first row shown, 0-based.
    virtual HRESULT STDMETHODCALLTYPE get_TopIndex(long* result) = 0;
    /// The first row shown, 0-based.
    virtual HRESULT STDMETHODCALLTYPE put_TopIndex(long value) = 0;
    /// Decides anew which scroll bars are needed, and how far they reach.
    virtual HRESULT STDMETHODCALLTYPE CheckScroll() = 0;
    /// Paints the whole control, whatever AutoRedraw says.
    virtual HRESULT STDMETHODCALLTYPE Redraw() = 0;
    /// Erases the picture, not the content, which comes back with the next paint.
    virtual HRESULT STDMETHODCALLTYPE ClearListView() = 0;
    /// Closes the in-place editor and drops what was typed.
    virtual HRESULT STDMETHODCALLTYPE StopEdit() = 0;
    /// The number of the control's window.
    virtual HRESULT STDMETHODCALLTYPE get_hwnd(long* result) = 0;
    /// The number of the in-place editor's window.
    virtual HRESULT STDMETHODCALLTYPE get_hwndEdit(long* result) = 0;
    /// Opens the in-place editor where the cell was painted last, with its whole text selected. Scrolls first where the row is out of view. No permission is asked for.
    virtual HRESULT STDMETHODCALLTYPE SetEdit(VARIANT Row, VARIANT Column) = 0;
    /// The 1-based column under the last press or release; -1 for none.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnIndex(long* result) = 0;
    /// Orders the rows by the texts of a column and raises SortDone. -1 drops the sort mark, which repaints. Without a mode nothing is ordered.
    virtual HRESULT STDMETHODCALLTYPE Sort(long* Column, cSortMode* SortMode, cSortType* SortType) = 0;
    /// The 1-based column of the last sort; -1 for none.
    virtual HRESULT STDMETHODCALLTYPE get_SortColumnIndex(long* result) = 0;
    /// Looks for the first cell whose text, or tag behind "<itemtag>", matches a pattern. Columns and rows are "*" or a list such as "1,3-5,"; a lone number needs its comma. The answer counts places in these lists.
    virtual HRESULT STDMETHODCALLTYPE FindItem(BSTR* sFind, cFindBegin* cBegin, cFindCompare* cCompare, BSTR* sColumns, BSTR* sRows, FindResults* result) = 0;
    /// Makes the columns with these numbers as wide as the widest text painted in them, or as their header; without a number all of them.
    virtual HRESULT STDMETHODCALLTYPE AutoColumnSize(SAFEARRAY* lColumns) = 0;
    /// Writes the texts of all cells, and on demand their looks, tags and icons, to a file. A file of that name is deleted first. A failure is reported; the result is True even then.
    virtual HRESULT STDMETHODCALLTYPE ContentSave(BSTR sFilename, VARIANT_BOOL bSaveItemProperties, VARIANT_BOOL* result) = 0;
    /// Clears the rows and fills the list from such a file; the columns stay. Where there is no file the result is False, and nothing is changed. Any other failure is reported, and the result is True.
    virtual HRESULT STDMETHODCALLTYPE ContentInput(BSTR sFilename, VARIANT_BOOL bReadItemPropertiesIfExists, VARIANT_BOOL* result) = 0;
    /// Shows the about box and returns once it was closed.
    virtual HRESULT STDMETHODCALLTYPE About() = 0;
    /// Font of new cells. A clone is kept, and existing cells keep theirs.
    virtual HRESULT STDMETHODCALLTYPE get_DefaultItemFont(IFontDisp** result) = 0;
    /// Font of new cells. A clone is kept, and existing cells keep theirs.
    virtual HRESULT STDMETHODCALLTYPE putref_DefaultItemFont(IFontDisp* value) = 0;
    /// Text colour of new cells. Existing cells keep theirs.
    virtual HRESULT STDMETHODCALLTYPE get_DefaultItemForeColor(OLE_COLOR* result) = 0;
    /// Text colour of new cells. Existing cells keep theirs.
    virtual HRESULT STDMETHODCALLTYPE put_DefaultItemForeColor(OLE_COLOR value) = 0;
    /// Background of the list.
    virtual HRESULT STDMETHODCALLTYPE get_BackColor(OLE_COLOR* result) = 0;
    /// Background of the list.
    virtual HRESULT STDMETHODCALLTYPE put_BackColor(OLE_COLOR value) = 0;
    /// Background of the list while the control is disabled.
    virtual HRESULT STDMETHODCALLTYPE get_BackColorDisabled(OLE_COLOR* result) = 0;
    /// Background of the list while the control is disabled.
    virtual HRESULT STDMETHODCALLTYPE put_BackColorDisabled(OLE_COLOR value) = 0;
    /// Whether the control takes presses and keys. The scroll bars follow.
    virtual HRESULT STDMETHODCALLTYPE get_Enabled(VARIANT_BOOL* result) = 0;
    /// Whether the control takes presses and keys. The scroll bars follow.
    virtual HRESULT STDMETHODCALLTYPE put_Enabled(VARIANT_BOOL value) = 0;
    /// Whether assigning ListIndex raises Click before the index changes.
    virtual HRESULT STDMETHODCALLTYPE get_ClickOnIndexChange(VARIANT_BOOL* result) = 0;
    /// Whether assigning ListIndex raises Click before the index changes.
    virtual HRESULT STDMETHODCALLTYPE put_ClickOnIndexChange(VARIANT_BOOL value) = 0;
    /// Scheme of headers, selection and border. Any but cCustom is handed on to ScrollColorStyle.
    virtual HRESULT STDMETHODCALLTYPE get_ColorStyle(cColorStyle* result) = 0;
    /// Scheme of headers, selection and border. Any but cCustom is handed on to ScrollColorStyle.
    virtual HRESULT STDMETHODCALLTYPE put_ColorStyle(cColorStyle value) = 0;
    /// Colour of the border in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_BorderColor(OLE_COLOR* result) = 0;
    /// Colour of the border in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_BorderColor(OLE_COLOR value) = 0;
    /// cCheckBoxes shows check boxes in the columns with ColumnCheckBoxes. What they show is ItemChecked. A press at the place of a box changes that even where none is drawn.
    virtual HRESULT STDMETHODCALLTYPE get_Style(cListViewStyle* result) = 0;
    /// cCheckBoxes shows check boxes in the columns with ColumnCheckBoxes. What they show is ItemChecked. A press at the place of a box changes that even where none is drawn.
    virtual HRESULT STDMETHODCALLTYPE put_Style(cListViewStyle value) = 0;
    /// Whether the selection covers all columns or the first alone.
    virtual HRESULT STDMETHODCALLTYPE get_FullRowSelect(VARIANT_BOOL* result) = 0;
    /// Whether the selection covers all columns or the first alone.
    virtual HRESULT STDMETHODCALLTYPE put_FullRowSelect(VARIANT_BOOL value) = 0;
    /// Whether a second press opens the in-place editor, in cells that allow it too. A double click asks the cell alone.
    virtual HRESULT STDMETHODCALLTYPE get_AllowEdit(VARIANT_BOOL* result) = 0;
    /// Whether a second press opens the in-place editor, in cells that allow it too. A double click asks the cell alone.
    virtual HRESULT STDMETHODCALLTYPE put_AllowEdit(VARIANT_BOOL value) = 0;
    /// Background of selected cells in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ValueColor(OLE_COLOR* result) = 0;
    /// Background of selected cells in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ValueColor(OLE_COLOR value) = 0;
    /// Whether a border is drawn.
    virtual HRESULT STDMETHODCALLTYPE get_BorderVisible(VARIANT_BOOL* result) = 0;
    /// Whether a border is drawn.
    virtual HRESULT STDMETHODCALLTYPE put_BorderVisible(VARIANT_BOOL value) = 0;
    /// Kept for the host in pixels; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE get_IndentTop(float* result) = 0;
    /// Kept for the host in pixels; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE put_IndentTop(float value) = 0;
    /// Kept for the host in pixels; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE get_IndentLeft(float* result) = 0;
    /// Kept for the host in pixels; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE put_IndentLeft(float value) = 0;
    /// Kept for the host in pixels; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE get_IndentRight(float* result) = 0;
    /// Kept for the host in pixels; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE put_IndentRight(float value) = 0;
    /// Kept for the host in pixels; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE get_IndentBottom(float* result) = 0;
    /// Kept for the host in pixels; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE put_IndentBottom(float value) = 0;
    /// Pixels between icon and text.
    virtual HRESULT STDMETHODCALLTYPE get_DistPicText(float* result) = 0;
    /// Pixels between icon and text.
    virtual HRESULT STDMETHODCALLTYPE put_DistPicText(float value) = 0;
    /// Whether a change of the content checks the scroll bars. Switching it on checks them at once.
    virtual HRESULT STDMETHODCALLTYPE get_AutoCheckScroll(VARIANT_BOOL* result) = 0;
    /// Whether a change of the content checks the scroll bars. Switching it on checks them at once.
    virtual HRESULT STDMETHODCALLTYPE put_AutoCheckScroll(VARIANT_BOOL value) = 0;
    /// Whether a change repaints at once. Switch it off around bulk changes; switching it on repaints.
    virtual HRESULT STDMETHODCALLTYPE get_AutoRedraw(VARIANT_BOOL* result) = 0;
    /// Whether a change repaints at once. Switch it off around bulk changes; switching it on repaints.
    virtual HRESULT STDMETHODCALLTYPE put_AutoRedraw(VARIANT_BOOL value) = 0;
    /// Kept for the host; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE get_IconSelect(VARIANT_BOOL* result) = 0;
    /// Kept for the host; painting does not use it.
    virtual HRESULT STDMETHODCALLTYPE put_IconSelect(VARIANT_BOOL value) = 0;
    /// Width of cell icons in pixels, for columns added later.
    virtual HRESULT STDMETHODCALLTYPE get_IconW(float* result) = 0;
    /// Width of cell icons in pixels, for columns added later.
    virtual HRESULT STDMETHODCALLTYPE put_IconW(float value) = 0;
    /// Height of cell icons in pixels, for columns added later.
    virtual HRESULT STDMETHODCALLTYPE get_IconH(float* result) = 0;
    /// Height of cell icons in pixels, for columns added later.
    virtual HRESULT STDMETHODCALLTYPE put_IconH(float value) = 0;
    /// Width of header icons in pixels.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnIconW(float* result) = 0;
    /// Width of header icons in pixels.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnIconW(float value) = 0;
    /// Height of header icons in pixels.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnIconH(float* result) = 0;
    /// Height of header icons in pixels.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnIconH(float value) = 0;
    /// Scheme of the scroll bars.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollColorStyle(cScrollColorStyle* result) = 0;
    /// Scheme of the scroll bars.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollColorStyle(cScrollColorStyle value) = 0;
    /// Whether lines are drawn between cells.
    virtual HRESULT STDMETHODCALLTYPE get_GridLines(VARIANT_BOOL* result) = 0;
    /// Whether lines are drawn between cells.
    virtual HRESULT STDMETHODCALLTYPE put_GridLines(VARIANT_BOOL value) = 0;
    /// Colour of the lines between cells.
    virtual HRESULT STDMETHODCALLTYPE get_GridLineColor(OLE_COLOR* result) = 0;
    /// Colour of the lines between cells.
    virtual HRESULT STDMETHODCALLTYPE put_GridLineColor(OLE_COLOR value) = 0;
    /// Whether several rows can be selected.
    virtual HRESULT STDMETHODCALLTYPE get_MultiSelect(VARIANT_BOOL* result) = 0;
    /// Whether several rows can be selected.
    virtual HRESULT STDMETHODCALLTYPE put_MultiSelect(VARIANT_BOOL value) = 0;
    /// Whether the headers are left out.
    virtual HRESULT STDMETHODCALLTYPE get_HideColumnHeaders(VARIANT_BOOL* result) = 0;
    /// Whether the headers are left out.
    virtual HRESULT STDMETHODCALLTYPE put_HideColumnHeaders(VARIANT_BOOL value) = 0;
    /// Pixels above the text of a header; the header grows by as many.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnTextY(long* result) = 0;
    /// Pixels above the text of a header; the header grows by as many.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnTextY(long value) = 0;
    /// Whether a pressed header moves its text by a pixel.
    virtual HRESULT STDMETHODCALLTYPE get_MoveColumnTextAtDown(VARIANT_BOOL* result) = 0;
    /// Whether a pressed header moves its text by a pixel.
    virtual HRESULT STDMETHODCALLTYPE put_MoveColumnTextAtDown(VARIANT_BOOL value) = 0;
    /// Font of all headers. A clone is kept.
    virtual HRESULT STDMETHODCALLTYPE get_DefaultColumnFont(IFontDisp** result) = 0;
    /// Font of all headers. A clone is kept.
    virtual HRESULT STDMETHODCALLTYPE putref_DefaultColumnFont(IFontDisp* value) = 0;
    /// Text colour of the design view alone. Headers are drawn in ColumnForeColor.
    virtual HRESULT STDMETHODCALLTYPE get_DefaultColumnForeColor(OLE_COLOR* result) = 0;
    /// Text colour of the design view alone. Headers are drawn in ColumnForeColor.
    virtual HRESULT STDMETHODCALLTYPE put_DefaultColumnForeColor(OLE_COLOR value) = 0;
    /// Twips of free space behind the last column, where the columns reach past the right edge.
    virtual HRESULT STDMETHODCALLTYPE get_EmptyColumnFieldWidth(float* result) = 0;
    /// Twips of free space behind the last column, where the columns reach past the right edge.
    virtual HRESULT STDMETHODCALLTYPE put_EmptyColumnFieldWidth(float value) = 0;
    /// Background of headers in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnBackColor(OLE_COLOR* result) = 0;
    /// Background of headers in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnBackColor(OLE_COLOR value) = 0;
    /// Background of the header under the pointer in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnHoverColor(OLE_COLOR* result) = 0;
    /// Background of the header under the pointer in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnHoverColor(OLE_COLOR value) = 0;
    /// Background of the pressed header in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnDownColor(OLE_COLOR* result) = 0;
    /// Background of the pressed header in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnDownColor(OLE_COLOR value) = 0;
    /// Whether rows are as high as the default font, and from the first icon or check box shown on as high as their content needs; else RowHeight.
    virtual HRESULT STDMETHODCALLTYPE get_RowsDynamic(VARIANT_BOOL* result) = 0;
    /// Whether rows are as high as the default font, and from the first icon or check box shown on as high as their content needs; else RowHeight.
    virtual HRESULT STDMETHODCALLTYPE put_RowsDynamic(VARIANT_BOOL value) = 0;
    /// Height of a row in twips, where RowsDynamic is False.
    virtual HRESULT STDMETHODCALLTYPE get_RowHeight(float* result) = 0;
    /// Height of a row in twips, where RowsDynamic is False.
    virtual HRESULT STDMETHODCALLTYPE put_RowHeight(float value) = 0;
    /// Trough of the scroll bars in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollBackColor(OLE_COLOR* result) = 0;
    /// Trough of the scroll bars in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollBackColor(OLE_COLOR value) = 0;
    /// Arrows of the scroll bars in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollArrows(OLE_COLOR* result) = 0;
    /// Arrows of the scroll bars in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollArrows(OLE_COLOR value) = 0;
    /// Arrow buttons of the scroll bars in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollButtons(OLE_COLOR* result) = 0;
    /// Arrow buttons of the scroll bars in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollButtons(OLE_COLOR value) = 0;
    /// Thumbs of the scroll bars in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollBar(OLE_COLOR* result) = 0;
    /// Thumbs of the scroll bars in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollBar(OLE_COLOR value) = 0;
    /// Arrows while pressed, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollArrowsDown(OLE_COLOR* result) = 0;
    /// Arrows while pressed, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollArrowsDown(OLE_COLOR value) = 0;
    /// Arrow buttons while pressed, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollButtonsDown(OLE_COLOR* result) = 0;
    /// Arrow buttons while pressed, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollButtonsDown(OLE_COLOR value) = 0;
    /// Thumbs while pressed, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollBarDown(OLE_COLOR* result) = 0;
    /// Thumbs while pressed, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollBarDown(OLE_COLOR value) = 0;
    /// Arrows under the pointer, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollArrowsHover(OLE_COLOR* result) = 0;
    /// Arrows under the pointer, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollArrowsHover(OLE_COLOR value) = 0;
    /// Arrow buttons under the pointer, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollButtonsHover(OLE_COLOR* result) = 0;
    /// Arrow buttons under the pointer, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollButtonsHover(OLE_COLOR value) = 0;
    /// Thumbs under the pointer, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollBarHover(OLE_COLOR* result) = 0;
    /// Thumbs under the pointer, in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollBarHover(OLE_COLOR value) = 0;
    /// Colour of the header area behind the last column in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE get_EmptyColumnFieldColor(OLE_COLOR* result) = 0;
    /// Colour of the header area behind the last column in the custom scheme.
    virtual HRESULT STDMETHODCALLTYPE put_EmptyColumnFieldColor(OLE_COLOR value) = 0;
    /// What the wheel moves: the view, the current row, or nothing.
    virtual HRESULT STDMETHODCALLTYPE get_WheelFunction(cWheelFunction* result) = 0;
    /// What the wheel moves: the view, the current row, or nothing.
    virtual HRESULT STDMETHODCALLTYPE put_WheelFunction(cWheelFunction value) = 0;
    /// Rows by which one wheel event scrolls the view, however far the wheel was turned.
    virtual HRESULT STDMETHODCALLTYPE get_WheelScrollLines(long* result) = 0;
    /// Rows by which one wheel event scrolls the view, however far the wheel was turned.
    virtual HRESULT STDMETHODCALLTYPE put_WheelScrollLines(long value) = 0;
    /// Whether a selected cell without a picture of its own for that shows its plain icon.
    virtual HRESULT STDMETHODCALLTYPE get_DefaultIconSelectedIsIcon(VARIANT_BOOL* result) = 0;
    /// Whether a selected cell without a picture of its own for that shows its plain icon.
    virtual HRESULT STDMETHODCALLTYPE put_DefaultIconSelectedIsIcon(VARIANT_BOOL value) = 0;
    /// Rows that one press of an arrow button of the vertical bar moves. A number below 1 is dropped.
    virtual HRESULT STDMETHODCALLTYPE get_ScrollButtonJumpLines(long* result) = 0;
    /// Rows that one press of an arrow button of the vertical bar moves. A number below 1 is dropped.
    virtual HRESULT STDMETHODCALLTYPE put_ScrollButtonJumpLines(long value) = 0;
    /// Vertical place of the text in rows added later. The host is not told of the change.
    virtual HRESULT STDMETHODCALLTYPE get_TextPositionDefault(cTextPosition* result) = 0;
    /// Vertical place of the text in rows added later. The host is not told of the change.
    virtual HRESULT STDMETHODCALLTYPE put_TextPositionDefault(cTextPosition value) = 0;
    /// Whether cell icons are drawn.
    virtual HRESULT STDMETHODCALLTYPE get_DrawItemIcons(VARIANT_BOOL* result) = 0;
    /// Whether cell icons are drawn.
    virtual HRESULT STDMETHODCALLTYPE put_DrawItemIcons(VARIANT_BOOL value) = 0;
    /// Whether header icons are drawn.
    virtual HRESULT STDMETHODCALLTYPE get_DrawColumnIcons(VARIANT_BOOL* result) = 0;
    /// Whether header icons are drawn.
    virtual HRESULT STDMETHODCALLTYPE put_DrawColumnIcons(VARIANT_BOOL value) = 0;
    /// Picture in the lower right corner of the list, at its own size.
    virtual HRESULT STDMETHODCALLTYPE get_BackgroundPicture(IPictureDisp** result) = 0;
    /// Picture in the lower right corner of the list, at its own size.
    virtual HRESULT STDMETHODCALLTYPE putref_BackgroundPicture(IPictureDisp* value) = 0;
    /// Strip of 16 x 3 pixels for the bar of the header under the pointer, in the blue and the silver scheme alone; Nothing for the built-in one.
    virtual HRESULT STDMETHODCALLTYPE get_Skin(IPictureDisp** result) = 0;
    /// Strip of 16 x 3 pixels for the bar of the header under the pointer, in the blue and the silver scheme alone; Nothing for the built-in one.
    virtual HRESULT STDMETHODCALLTYPE putref_Skin(IPictureDisp* value) = 0;
    /// Whether columns keep their widths under the mouse.
    virtual HRESULT STDMETHODCALLTYPE get_FixColumns(VARIANT_BOOL* result) = 0;
    /// Whether columns keep their widths under the mouse.
    virtual HRESULT STDMETHODCALLTYPE put_FixColumns(VARIANT_BOOL value) = 0;
    /// Kept for the host; it has no visible effect, and ItemOver is never raised.
    virtual HRESULT STDMETHODCALLTYPE get_CheckMouseOver(VARIANT_BOOL* result) = 0;
    /// Kept for the host; it has no visible effect, and ItemOver is never raised.
    virtual HRESULT STDMETHODCALLTYPE put_CheckMouseOver(VARIANT_BOOL value) = 0;
    /// Kept for the host; the list never starts a drag by itself.
    virtual HRESULT STDMETHODCALLTYPE get_OLEDragMode(long* result) = 0;
    /// Kept for the host; the list never starts a drag by itself.
    virtual HRESULT STDMETHODCALLTYPE put_OLEDragMode(long value) = 0;
    /// 1 takes what is dragged over the list, with OLEDragOver and OLEDragDrop; any other number takes nothing.
    virtual HRESULT STDMETHODCALLTYPE get_OLEDropMode(long* result) = 0;
    /// 1 takes what is dragged over the list, with OLEDragOver and OLEDragDrop; any other number takes nothing.
    virtual HRESULT STDMETHODCALLTYPE put_OLEDropMode(long value) = 0;
    /// Whether rows take turns with two background colours, in place of those of their cells.
    virtual HRESULT STDMETHODCALLTYPE get_AutoRowColor(VARIANT_BOOL* result) = 0;
    /// Whether rows take turns with two background colours, in place of those of their cells.
    virtual HRESULT STDMETHODCALLTYPE put_AutoRowColor(VARIANT_BOOL value) = 0;
    /// Background of every other row, from the first on.
    virtual HRESULT STDMETHODCALLTYPE get_RowColorFirst(OLE_COLOR* result) = 0;
    /// Background of every other row, from the first on.
    virtual HRESULT STDMETHODCALLTYPE put_RowColorFirst(OLE_COLOR value) = 0;
    /// Background of the rows between.
    virtual HRESULT STDMETHODCALLTYPE get_RowColorSecond(OLE_COLOR* result) = 0;
    /// Background of the rows between.
    virtual HRESULT STDMETHODCALLTYPE put_RowColorSecond(OLE_COLOR value) = 0;
    /// While True, every cell has a black background, selected or not. The focus plays no part.
    virtual HRESULT STDMETHODCALLTYPE get_HideSelection(VARIANT_BOOL* result) = 0;
    /// While True, every cell has a black background, selected or not. The focus plays no part.
    virtual HRESULT STDMETHODCALLTYPE put_HideSelection(VARIANT_BOOL value) = 0;
    /// Assigning an object with RecordCount, fields, MoveFirst, MoveNext and EOF takes its fields as columns and its records as rows, once. A comma in a value splits it. RecordCount not above 0 changes nothing and repaints nothing.
    virtual HRESULT STDMETHODCALLTYPE get_Recordset(IDispatch** result) = 0;
    /// Assigning an object with RecordCount, fields, MoveFirst, MoveNext and EOF takes its fields as columns and its records as rows, once. A comma in a value splits it. RecordCount not above 0 changes nothing and repaints nothing.
    virtual HRESULT STDMETHODCALLTYPE putref_Recordset(IDispatch* value) = 0;
    /// Text of the header.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnText(VARIANT Index, BSTR* result) = 0;
    /// Text of the header.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnText(VARIANT Index, BSTR value) = 0;
    /// Icon of the header.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnIcon(VARIANT Index, IPictureDisp** result) = 0;
    /// Icon of the header.
    virtual HRESULT STDMETHODCALLTYPE putref_ColumnIcon(VARIANT Index, IPictureDisp* value) = 0;
    /// Icon of the header while the pointer is over it.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnIconHover(VARIANT Index, IPictureDisp** result) = 0;
    /// Icon of the header while the pointer is over it.
    virtual HRESULT STDMETHODCALLTYPE putref_ColumnIconHover(VARIANT Index, IPictureDisp* value) = 0;
    /// Icon of the header while it is pressed.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnIconDown(VARIANT Index, IPictureDisp** result) = 0;
    /// Icon of the header while it is pressed.
    virtual HRESULT STDMETHODCALLTYPE putref_ColumnIconDown(VARIANT Index, IPictureDisp* value) = 0;
    /// Left edge of the header in twips. Goes stale when a column before it is resized by code.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnLeft(VARIANT Index, float* result) = 0;
    /// Width in twips. The columns to the right keep their ColumnLeft.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnWidth(VARIANT Index, float* result) = 0;
    /// Width in twips. The columns to the right keep their ColumnLeft.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnWidth(VARIANT Index, float value) = 0;
    /// Text that the control keeps for the host.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnTag(VARIANT Index, BSTR* result) = 0;
    /// Text that the control keeps for the host.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnTag(VARIANT Index, BSTR value) = 0;
    /// Text that the control keeps for the host. No column is found by it.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnKey(VARIANT Index, BSTR* result) = 0;
    /// Text that the control keeps for the host. No column is found by it.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnKey(VARIANT Index, BSTR value) = 0;
    /// Place of the header text. Cells have their own ItemAlignment.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnAlignment(VARIANT Index, cColumnHeaderAlign* result) = 0;
    /// Place of the header text. Cells have their own ItemAlignment.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnAlignment(VARIANT Index, cColumnHeaderAlign value) = 0;
    /// Place of the header icon.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnIconAlignment(VARIANT Index, cColumnHeaderAlign* result) = 0;
    /// Place of the header icon.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnIconAlignment(VARIANT Index, cColumnHeaderAlign value) = 0;
    /// Colour of the header text.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnForeColor(VARIANT Index, OLE_COLOR* result) = 0;
    /// Colour of the header text.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnForeColor(VARIANT Index, OLE_COLOR value) = 0;
    /// Colour of the header text while the pointer is over it.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnForeColorHover(VARIANT Index, OLE_COLOR* result) = 0;
    /// Colour of the header text while the pointer is over it.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnForeColorHover(VARIANT Index, OLE_COLOR value) = 0;
    /// Colour of the header text while the header is pressed.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnForeColorDown(VARIANT Index, OLE_COLOR* result) = 0;
    /// Colour of the header text while the header is pressed.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnForeColorDown(VARIANT Index, OLE_COLOR value) = 0;
    /// Whether a click on the header sorts.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnAllowSorting(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// Whether a click on the header sorts.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnAllowSorting(VARIANT Index, VARIANT_BOOL value) = 0;
    /// Whether the cells of the column show check boxes, where Style is cCheckBoxes.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnCheckBoxes(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// Whether the cells of the column show check boxes, where Style is cCheckBoxes.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnCheckBoxes(VARIANT Index, VARIANT_BOOL value) = 0;
    /// Whether cell icons are scaled to the icon size of the column.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnAdjustItemIcons(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// Whether cell icons are scaled to the icon size of the column.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnAdjustItemIcons(VARIANT Index, VARIANT_BOOL value) = 0;
    /// True for any icon height but 0. Assigning stores 0 or -1; the real height comes from IconH as the column is added.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnItemIconH(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// True for any icon height but 0. Assigning stores 0 or -1; the real height comes from IconH as the column is added.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnItemIconH(VARIANT Index, VARIANT_BOOL value) = 0;
    /// True for any icon width but 0. Assigning stores 0 or -1; the real width comes from IconW as the column is added.
    virtual HRESULT STDMETHODCALLTYPE get_ColumnItemIconW(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// True for any icon width but 0. Assigning stores 0 or -1; the real width comes from IconW as the column is added.
    virtual HRESULT STDMETHODCALLTYPE put_ColumnItemIconW(VARIANT Index, VARIANT_BOOL value) = 0;
    /// Whether the row can be chosen. Assigning enables or disables its cells too.
    virtual HRESULT STDMETHODCALLTYPE get_RowEnabled(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// Whether the row can be chosen. Assigning enables or disables its cells too.
    virtual HRESULT STDMETHODCALLTYPE put_RowEnabled(VARIANT Index, VARIANT_BOOL value) = 0;
    /// Whether the row is selected. Selecting scrolls to a row out of view, and without MultiSelect drops the other rows. ListIndex does not follow.
    virtual HRESULT STDMETHODCALLTYPE get_RowSelected(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// Whether the row is selected. Selecting scrolls to a row out of view, and without MultiSelect drops the other rows. ListIndex does not follow.
    virtual HRESULT STDMETHODCALLTYPE put_RowSelected(VARIANT Index, VARIANT_BOOL value) = 0;
    /// Check mark that the control keeps for the host. Nothing shows it: boxes stand in columns with ColumnCheckBoxes alone, and what they show is ItemChecked.
    virtual HRESULT STDMETHODCALLTYPE get_RowChecked(VARIANT Index, VARIANT_BOOL* result) = 0;
    /// Check mark that the control keeps for the host. Nothing shows it: boxes stand in columns with ColumnCheckBoxes alone, and what they show is ItemChecked.
    virtual HRESULT STDMETHODCALLTYPE put_RowChecked(VARIANT Index, VARIANT_BOOL value) = 0;
    /// Vertical place of the text in the row. Without effect while RowsDynamic is True.
    virtual HRESULT STDMETHODCALLTYPE get_TextPosition(VARIANT Index, cTextPosition* result) = 0;
    /// Vertical place of the text in the row. Without effect while RowsDynamic is True.
    virtual HRESULT STDMETHODCALLTYPE put_TextPosition(VARIANT Index, cTextPosition value) = 0;
    /// Whether the text is bold.
    virtual HRESULT STDMETHODCALLTYPE get_ItemFontBold(VARIANT Row, VARIANT Column, VARIANT_BOOL* result) = 0;
    /// Whether the text is bold.
    virtual HRESULT STDMETHODCALLTYPE put_ItemFontBold(VARIANT Row, VARIANT Column, VARIANT_BOOL value) = 0;
    /// Whether the text is italic.
    virtual HRESULT STDMETHODCALLTYPE get_ItemFontItalic(VARIANT Row, VARIANT Column, VARIANT_BOOL* result) = 0;
    /// Whether the text is italic.
    virtual HRESULT STDMETHODCALLTYPE put_ItemFontItalic(VARIANT Row, VARIANT Column, VARIANT_BOOL value) = 0;
    /// Whether the text is underlined.
    virtual HRESULT STDMETHODCALLTYPE get_ItemFontUnderline(VARIANT Row, VARIANT Column, VARIANT_BOOL* result) = 0;
    /// Whether the text is underlined.
    virtual HRESULT STDMETHODCALLTYPE put_ItemFontUnderline(VARIANT Row, VARIANT Column, VARIANT_BOOL value) = 0;
    /// Whether the text is struck through.
    virtual HRESULT STDMETHODCALLTYPE get_ItemFontStrikethrough(VARIANT Row, VARIANT Column, VARIANT_BOOL* result) = 0;
    /// Whether the text is struck through.
    virtual HRESULT STDMETHODCALLTYPE put_ItemFontStrikethrough(VARIANT Row, VARIANT Column, VARIANT_BOOL value) = 0;
    /// Size of the text in points.
    virtual HRESULT STDMETHODCALLTYPE get_ItemFontSize(VARIANT Row, VARIANT Column, float* result) = 0;
    /// Size of the text in points.
    virtual HRESULT STDMETHODCALLTYPE put_ItemFontSize(VARIANT Row, VARIANT Column, float value) = 0;
    /// Typeface of the text.
    virtual HRESULT STDMETHODCALLTYPE get_ItemFontName(VARIANT Row, VARIANT Column, BSTR* result) = 0;
    /// Typeface of the text.
    virtual HRESULT STDMETHODCALLTYPE put_ItemFontName(VARIANT Row, VARIANT Column, BSTR value) = 0;
    /// Colour of the text.
    virtual HRESULT STDMETHODCALLTYPE get_ItemForeColor(VARIANT Row, VARIANT Column, OLE_COLOR* result) = 0;
    /// Colour of the text.
    virtual HRESULT STDMETHODCALLTYPE put_ItemForeColor(VARIANT Row, VARIANT Column, OLE_COLOR value) = 0;
    /// Background of the cell, or "def" for none of its own. AutoRowColor goes before it.
    virtual HRESULT STDMETHODCALLTYPE get_ItemBackColor(VARIANT Row, VARIANT Column, VARIANT* result) = 0;
    /// Background of the cell, or "def" for none of its own. AutoRowColor goes before it.
    virtual HRESULT STDMETHODCALLTYPE put_ItemBackColor(VARIANT Row, VARIANT Column, VARIANT value) = 0;
    /// Colour of the text while selected, or "def" for white.
    virtual HRESULT STDMETHODCALLTYPE get_ItemForeColorSelect(VARIANT Row, VARIANT Column, VARIANT* result) = 0;
    /// Colour of the text while selected, or "def" for white.
    virtual HRESULT STDMETHODCALLTYPE put_ItemForeColorSelect(VARIANT Row, VARIANT Column, VARIANT value) = 0;
    /// Background while selected, or "def" for the colour of the scheme.
    virtual HRESULT STDMETHODCALLTYPE get_ItemBackColorSelect(VARIANT Row, VARIANT Column, VARIANT* result) = 0;
    /// Background while selected, or "def" for the colour of the scheme.
    virtual HRESULT STDMETHODCALLTYPE put_ItemBackColorSelect(VARIANT Row, VARIANT Column, VARIANT value) = 0;
    /// Colour of the text while disabled. A number: "def" fails.
    virtual HRESULT STDMETHODCALLTYPE get_ItemForeColorDis(VARIANT Row, VARIANT Column, VARIANT* result) = 0;
    /// Colour of the text while disabled. A number: "def" fails.
    virtual HRESULT STDMETHODCALLTYPE put_ItemForeColorDis(VARIANT Row, VARIANT Column, VARIANT value) = 0;
    /// Background while disabled. A number: "def" fails.
    virtual HRESULT STDMETHODCALLTYPE get_ItemBackColorDis(VARIANT Row, VARIANT Column, VARIANT* result) = 0;
    /// Background while disabled. A number: "def" fails.
    virtual HRESULT STDMETHODCALLTYPE put_ItemBackColorDis(VARIANT Row, VARIANT Column, VARIANT value) = 0;
    /// Value that the control keeps for the host.
    virtual HRESULT STDMETHODCALLTYPE get_ItemTag(VARIANT Row, VARIANT Column, VARIANT* result) = 0;
    /// Value that the control keeps for the host.
    virtual HRESULT STDMETHODCALLTYPE put_ItemTag(VARIANT Row, VARIANT Column, VARIANT value) = 0;
    /// Whether the cell is enabled. Shown by the next paint.
    virtual HRESULT STDMETHODCALLTYPE get_ItemEnabled(VARIANT Row, VARIANT Column, VARIANT_BOOL* result) = 0;
    /// Whether the cell is enabled. Shown by the next paint.
    virtual HRESULT STDMETHODCALLTYPE put_ItemEnabled(VARIANT Row, VARIANT Column, VARIANT_BOOL value) = 0;
    /// Icon of the cell.
    virtual HRESULT STDMETHODCALLTYPE get_ItemIcon(VARIANT Row, VARIANT Column, IPictureDisp** result) = 0;
    /// Icon of the cell.
    virtual HRESULT STDMETHODCALLTYPE putref_ItemIcon(VARIANT Row, VARIANT Column, IPictureDisp* value) = 0;
    /// Icon of the cell while selected.
    virtual HRESULT STDMETHODCALLTYPE get_ItemIconSelected(VARIANT Row, VARIANT Column, IPictureDisp** result) = 0;
    /// Icon of the cell while selected.
    virtual HRESULT STDMETHODCALLTYPE putref_ItemIconSelected(VARIANT Row, VARIANT Column, IPictureDisp* value) = 0;
    /// Whether the cell may be edited in place. A double click opens the editor, AllowEdit a second press too.
    virtual HRESULT STDMETHODCALLTYPE get_ItemAllowEdit(VARIANT Row, VARIANT Column, VARIANT_BOOL* result) = 0;
    /// Whether the cell may be edited in place. A double click opens the editor, AllowEdit a second press too.
    virtual HRESULT STDMETHODCALLTYPE put_ItemAllowEdit(VARIANT Row, VARIANT Column, VARIANT_BOOL value) = 0;
    /// Check mark of the cell. The count of its column follows; no event is raised.
    virtual HRESULT STDMETHODCALLTYPE get_ItemChecked(VARIANT Row, VARIANT Column, VARIANT_BOOL* result) = 0;
    /// Check mark of the cell. The count of its column follows; no event is raised.
    virtual HRESULT STDMETHODCALLTYPE put_ItemChecked(VARIANT Row, VARIANT Column, VARIANT_BOOL value) = 0;
    /// Place of the text.
    virtual HRESULT STDMETHODCALLTYPE get_ItemAlignment(VARIANT Row, VARIANT Column, cItemAlign* result) = 0;
    /// Place of the text.
    virtual HRESULT STDMETHODCALLTYPE put_ItemAlignment(VARIANT Row, VARIANT Column, cItemAlign value) = 0;
    /// Place of the icon.
    virtual HRESULT STDMETHODCALLTYPE get_ItemIconAlignment(VARIANT Row, VARIANT Column, cItemAlign* result) = 0;
    /// Place of the icon.
    virtual HRESULT STDMETHODCALLTYPE put_ItemIconAlignment(VARIANT Row, VARIANT Column, cItemAlign value) = 0;
    /// Text of the cell.
    virtual HRESULT STDMETHODCALLTYPE get_ItemText(VARIANT Row, VARIANT Column, BSTR* result) = 0;
    /// Text of the cell.
    virtual HRESULT STDMETHODCALLTYPE put_ItemText(VARIANT Row, VARIANT Column, BSTR value) = 0;
    /// Text that the control keeps for the host. The list never shows it; screen readers speak it.
    virtual HRESULT STDMETHODCALLTYPE get_ItemToolTip(VARIANT Row, VARIANT Column, BSTR* result) = 0;
    /// Text that the control keeps for the host. The list never shows it; screen readers speak it.
    virtual HRESULT STDMETHODCALLTYPE put_ItemToolTip(VARIANT Row, VARIANT Column, BSTR value) = 0;
    /// Width of the text in pixels, as the last paint measured it; 0 for a cell never painted.
    virtual HRESULT STDMETHODCALLTYPE get_ItemTextWidth(VARIANT Row, VARIANT Column, float* result) = 0;
    /// Control of the host that is shown over the cell. One with a window becomes a child of the list. A failure while it is assigned raises ListViewError and is then reported.
    virtual HRESULT STDMETHODCALLTYPE get_ItemObject(VARIANT Row, VARIANT Column, IDispatch** result) = 0;
    /// Control of the host that is shown over the cell. One with a window becomes a child of the list. A failure while it is assigned raises ListViewError and is then reported.
    virtual HRESULT STDMETHODCALLTYPE putref_ItemObject(VARIANT Row, VARIANT Column, IDispatch* value) = 0;
    /// Checked cells of a column; of all columns for a number that no column has.
    virtual HRESULT STDMETHODCALLTYPE ItemsCheckedCount(long Column, long* result) = 0;
};

/// Helper calls for host programs: files, sound, the active theme, the mouse.
struct _SpEv : IDispatch {
    /// The whole of a text file; the empty text where it cannot be read.
    virtual HRESULT STDMETHODCALLTYPE TextRead(BSTR Filename, BSTR* result) = 0;
    /// Replaces a file by a text, without a line end behind it.
    virtual HRESULT STDMETHODCALLTYPE TextSave(BSTR Filename, BSTR Text) = 0;
    /// Starts a sound file and returns at once; silent where it cannot be played.
    virtual HRESULT STDMETHODCALLTYPE PlayMusic(BSTR Filename) = 0;
    /// Replaces a file by one line for each entry of a list box. At most 32,768 entries are written.
    virtual HRESULT STDMETHODCALLTYPE ListSave(IDispatch* List, BSTR Filename, BSTR TextBeforeListText, BSTR TextAfterListText) = 0;
    /// Adds each line of a file to a list box, which is not cleared before.
    virtual HRESULT STDMETHODCALLTYPE ListRead(IDispatch* List, BSTR Filename) = 0;
    /// Whether a file or folder is found. The last part may hold wild cards.
    virtual HRESULT STDMETHODCALLTYPE FileExists(BSTR sFile, VARIANT_BOOL* result) = 0;
    /// The colour scheme of the desktop; styleClassic where no theme is active.
    virtual HRESULT STDMETHODCALLTYPE ActiveXPTheme(cActiveXPTheme* result) = 0;
    /// The button that is down, left before right before middle. The middle one gives 4, not mouseMiddle.
    virtual HRESULT STDMETHODCALLTYPE MouseButtonPressed(cMouseButton* result) = 0;
};

/// The switch that silences all error reports of the process.
struct _Error : IDispatch {
    /// While True, a failing statement is skipped without a report, in all lists of the process.
    virtual HRESULT STDMETHODCALLTYPE get_SilentError(VARIANT_BOOL* result) = 0;
    /// While True, a failing statement is skipped without a report, in all lists of the process.
    virtual HRESULT STDMETHODCALLTYPE put_SilentError(VARIANT_BOOL value) = 0;
};

/// The events of lmListView by their dispatch numbers.
namespace events {

/// The list was clicked, or, with ClickOnIndexChange, its current row is about to change.
inline constexpr DISPID Click = 1; // ()
/// The list was clicked twice. ItemDblClick follows where a cell was pressed before.
inline constexpr DISPID DblClick = 2; // ()
/// A press is about to change a check mark. Cancel keeps it.
inline constexpr DISPID ItemCheck = 3; // (long Row, long Column, VARIANT_BOOL NewValue, VARIANT_BOOL* Cancel)
/// A press has changed a check mark.
inline constexpr DISPID ItemChecked = 4; // (long Row, long Column, VARIANT_BOOL NewValue)
/// A mouse button was let go. The position is in pixels.
inline constexpr DISPID MouseUp = 5; // (short* Button, short* Shift, float* X, float* Y)
/// The mouse moved over the list, or with a button held anywhere. The position is in pixels.
inline constexpr DISPID MouseMove = 6; // (short* Button, short* Shift, float* X, float* Y)
/// A mouse button was pressed; ItemDown came before. The position is in pixels.
inline constexpr DISPID MouseDown = 7; // (short* Button, short* Shift, float* X, float* Y)
/// A header was clicked. Where the column allows it, a sort as text follows.
inline constexpr DISPID ColumnClick = 8; // (long* Column)
/// The list was scrolled up or down with the thumb or the wheel. Scrolling sideways is not told.
inline constexpr DISPID Scroll = 9; // ()
/// A key went down.
inline constexpr DISPID KeyDown = 10; // (short* KeyCode, short* Shift)
/// A key gave a character.
inline constexpr DISPID KeyPress = 11; // (short* KeyAscii)
/// A key was let go.
inline constexpr DISPID KeyUp = 12; // (short* KeyCode, short* Shift)
/// Never raised: the list starts no drag.
inline constexpr DISPID OLECompleteDrag = 13; // (long* Effect)
/// Something was dropped on the list. Effect answers what became of it.
inline constexpr DISPID OLEDragDrop = 14; // (IDispatch** Data, long* Effect, short* Button, short* Shift, float* X, float* Y)
/// Something is dragged over the list: State 0 enters, 1 leaves, 2 moves. Effect answers what a drop would do.
inline constexpr DISPID OLEDragOver = 15; // (IDispatch** Data, long* Effect, short* Button, short* Shift, float* X, float* Y, short* State)
/// Never raised: the list starts no drag.
inline constexpr DISPID OLEGiveFeedback = 16; // (long* Effect, VARIANT_BOOL* DefaultCursors)
/// Never raised: the list starts no drag.
inline constexpr DISPID OLESetData = 17; // (IDispatch** Data, short* DataFormat)
/// Never raised: the list starts no drag.
inline constexpr DISPID OLEStartDrag = 18; // (IDispatch** Data, long* AllowedEffects)
/// ListIndex was assigned a number that no enabled row has. Index counts from 0; changing it changes nothing.
inline constexpr DISPID ErrorWrongIndex = 19; // (VARIANT* Index)
/// A sort has ended.
inline constexpr DISPID SortDone = 20; // ()
/// A paint, or the assignment of an embedded object, failed. Other failures are reported alone.
inline constexpr DISPID ListViewError = 21; // (BSTR eSub, long eNumber, BSTR eDescription)
/// A cell was pressed and let go.
inline constexpr DISPID ItemClick = 22; // (long Row, long Column)
/// The cell pressed last was clicked twice. The editor follows where the cell allows it.
inline constexpr DISPID ItemDblClick = 23; // (long Row, long Column)
/// A cell was pressed.
inline constexpr DISPID ItemDown = 24; // (long Row, long Column)
/// A button was let go over a cell, the pressed one or another.
inline constexpr DISPID ItemUp = 25; // (long Row, long Column)
/// The editor has written into a cell, even the same text.
inline constexpr DISPID ItemChanged = 26; // (long Row, long Column, BSTR NewValue)
/// Never raised.
inline constexpr DISPID ItemOver = 27; // (long Row, long Column, VARIANT_BOOL bOverItem)

} // namespace events

} // namespace LumtexListView
