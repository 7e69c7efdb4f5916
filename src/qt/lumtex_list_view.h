/// \file
/// The list as a widget. Made from the tables in src/automation by scripts/reference; do not edit.
#pragma once

// clang-format off

#include "qt/list_widget.h"

/// An owner-drawn list of rows and columns.
/// See docs/reference for units and index bases. A signal's references travel back to the list, in direct connections.
class LumtexListView : public lumtex::qt::ListWidget {
    Q_OBJECT
    Q_PROPERTY(int ColumnsCount READ ColumnsCount DESIGNABLE false STORED false)
    Q_PROPERTY(int RowsCount READ RowsCount DESIGNABLE false STORED false)
    Q_PROPERTY(int NewIndex READ NewIndex DESIGNABLE false STORED false)
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex DESIGNABLE false STORED false)
    Q_PROPERTY(int RowIndex READ RowIndex WRITE setRowIndex DESIGNABLE false STORED false)
    Q_PROPERTY(int TopIndex READ TopIndex WRITE setTopIndex DESIGNABLE false STORED false)
    Q_PROPERTY(int hwnd READ hwnd DESIGNABLE false STORED false)
    Q_PROPERTY(int hwndEdit READ hwndEdit DESIGNABLE false STORED false)
    Q_PROPERTY(int ColumnIndex READ ColumnIndex DESIGNABLE false STORED false)
    Q_PROPERTY(int SortColumnIndex READ SortColumnIndex DESIGNABLE false STORED false)
    Q_PROPERTY(QFont DefaultItemFont READ DefaultItemFont WRITE setDefaultItemFont RESET resetDefaultItemFont NOTIFY DefaultItemFontChanged)
    Q_PROPERTY(QColor DefaultItemForeColor READ DefaultItemForeColor WRITE setDefaultItemForeColor RESET resetDefaultItemForeColor NOTIFY DefaultItemForeColorChanged)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor RESET resetBackColor NOTIFY BackColorChanged)
    Q_PROPERTY(QColor BackColorDisabled READ BackColorDisabled WRITE setBackColorDisabled RESET resetBackColorDisabled NOTIFY BackColorDisabledChanged)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled RESET resetEnabled NOTIFY EnabledChanged)
    Q_PROPERTY(bool ClickOnIndexChange READ ClickOnIndexChange WRITE setClickOnIndexChange RESET resetClickOnIndexChange NOTIFY ClickOnIndexChangeChanged)
    Q_PROPERTY(cColorStyle ColorStyle READ ColorStyle WRITE setColorStyle RESET resetColorStyle NOTIFY ColorStyleChanged)
    Q_PROPERTY(QColor BorderColor READ BorderColor WRITE setBorderColor RESET resetBorderColor NOTIFY BorderColorChanged)
    Q_PROPERTY(cListViewStyle Style READ Style WRITE setStyle RESET resetStyle NOTIFY StyleChanged)
    Q_PROPERTY(bool FullRowSelect READ FullRowSelect WRITE setFullRowSelect RESET resetFullRowSelect NOTIFY FullRowSelectChanged)
    Q_PROPERTY(bool AllowEdit READ AllowEdit WRITE setAllowEdit RESET resetAllowEdit NOTIFY AllowEditChanged)
    Q_PROPERTY(QColor ValueColor READ ValueColor WRITE setValueColor RESET resetValueColor NOTIFY ValueColorChanged)
    Q_PROPERTY(bool BorderVisible READ BorderVisible WRITE setBorderVisible RESET resetBorderVisible NOTIFY BorderVisibleChanged)
    Q_PROPERTY(double IndentTop READ IndentTop WRITE setIndentTop RESET resetIndentTop NOTIFY IndentTopChanged)
    Q_PROPERTY(double IndentLeft READ IndentLeft WRITE setIndentLeft RESET resetIndentLeft NOTIFY IndentLeftChanged)
    Q_PROPERTY(double IndentRight READ IndentRight WRITE setIndentRight RESET resetIndentRight NOTIFY IndentRightChanged)
    Q_PROPERTY(double IndentBottom READ IndentBottom WRITE setIndentBottom RESET resetIndentBottom NOTIFY IndentBottomChanged)
    Q_PROPERTY(double DistPicText READ DistPicText WRITE setDistPicText RESET resetDistPicText NOTIFY DistPicTextChanged)
    Q_PROPERTY(bool AutoCheckScroll READ AutoCheckScroll WRITE setAutoCheckScroll RESET resetAutoCheckScroll NOTIFY AutoCheckScrollChanged)
    Q_PROPERTY(bool AutoRedraw READ AutoRedraw WRITE setAutoRedraw RESET resetAutoRedraw NOTIFY AutoRedrawChanged)
    Q_PROPERTY(bool IconSelect READ IconSelect WRITE setIconSelect RESET resetIconSelect NOTIFY IconSelectChanged)
    Q_PROPERTY(double IconW READ IconW WRITE setIconW RESET resetIconW NOTIFY IconWChanged)
    Q_PROPERTY(double IconH READ IconH WRITE setIconH RESET resetIconH NOTIFY IconHChanged)
    Q_PROPERTY(double ColumnIconW READ ColumnIconW WRITE setColumnIconW RESET resetColumnIconW NOTIFY ColumnIconWChanged)
    Q_PROPERTY(double ColumnIconH READ ColumnIconH WRITE setColumnIconH RESET resetColumnIconH NOTIFY ColumnIconHChanged)
    Q_PROPERTY(cScrollColorStyle ScrollColorStyle READ ScrollColorStyle WRITE setScrollColorStyle RESET resetScrollColorStyle NOTIFY ScrollColorStyleChanged)
    Q_PROPERTY(bool GridLines READ GridLines WRITE setGridLines RESET resetGridLines NOTIFY GridLinesChanged)
    Q_PROPERTY(QColor GridLineColor READ GridLineColor WRITE setGridLineColor RESET resetGridLineColor NOTIFY GridLineColorChanged)
    Q_PROPERTY(bool MultiSelect READ MultiSelect WRITE setMultiSelect RESET resetMultiSelect NOTIFY MultiSelectChanged)
    Q_PROPERTY(bool HideColumnHeaders READ HideColumnHeaders WRITE setHideColumnHeaders RESET resetHideColumnHeaders NOTIFY HideColumnHeadersChanged)
    Q_PROPERTY(int ColumnTextY READ ColumnTextY WRITE setColumnTextY RESET resetColumnTextY NOTIFY ColumnTextYChanged)
    Q_PROPERTY(bool MoveColumnTextAtDown READ MoveColumnTextAtDown WRITE setMoveColumnTextAtDown RESET resetMoveColumnTextAtDown NOTIFY MoveColumnTextAtDownChanged)
    Q_PROPERTY(QFont DefaultColumnFont READ DefaultColumnFont WRITE setDefaultColumnFont RESET resetDefaultColumnFont NOTIFY DefaultColumnFontChanged)
    Q_PROPERTY(QColor DefaultColumnForeColor READ DefaultColumnForeColor WRITE setDefaultColumnForeColor RESET resetDefaultColumnForeColor NOTIFY DefaultColumnForeColorChanged)
    Q_PROPERTY(double EmptyColumnFieldWidth READ EmptyColumnFieldWidth WRITE setEmptyColumnFieldWidth RESET resetEmptyColumnFieldWidth NOTIFY EmptyColumnFieldWidthChanged)
    Q_PROPERTY(QColor ColumnBackColor READ ColumnBackColor WRITE setColumnBackColor RESET resetColumnBackColor NOTIFY ColumnBackColorChanged)
    Q_PROPERTY(QColor ColumnHoverColor READ ColumnHoverColor WRITE setColumnHoverColor RESET resetColumnHoverColor NOTIFY ColumnHoverColorChanged)
    Q_PROPERTY(QColor ColumnDownColor READ ColumnDownColor WRITE setColumnDownColor RESET resetColumnDownColor NOTIFY ColumnDownColorChanged)
    Q_PROPERTY(bool RowsDynamic READ RowsDynamic WRITE setRowsDynamic RESET resetRowsDynamic NOTIFY RowsDynamicChanged)
    Q_PROPERTY(double RowHeight READ RowHeight WRITE setRowHeight RESET resetRowHeight NOTIFY RowHeightChanged)
    Q_PROPERTY(QColor ScrollBackColor READ ScrollBackColor WRITE setScrollBackColor RESET resetScrollBackColor NOTIFY ScrollBackColorChanged)
    Q_PROPERTY(QColor ScrollArrows READ ScrollArrows WRITE setScrollArrows RESET resetScrollArrows NOTIFY ScrollArrowsChanged)
    Q_PROPERTY(QColor ScrollButtons READ ScrollButtons WRITE setScrollButtons RESET resetScrollButtons NOTIFY ScrollButtonsChanged)
    Q_PROPERTY(QColor ScrollBar READ ScrollBar WRITE setScrollBar RESET resetScrollBar NOTIFY ScrollBarChanged)
    Q_PROPERTY(QColor ScrollArrowsDown READ ScrollArrowsDown WRITE setScrollArrowsDown RESET resetScrollArrowsDown NOTIFY ScrollArrowsDownChanged)
    Q_PROPERTY(QColor ScrollButtonsDown READ ScrollButtonsDown WRITE setScrollButtonsDown RESET resetScrollButtonsDown NOTIFY ScrollButtonsDownChanged)
    Q_PROPERTY(QColor ScrollBarDown READ ScrollBarDown WRITE setScrollBarDown RESET resetScrollBarDown NOTIFY ScrollBarDownChanged)
    Q_PROPERTY(QColor ScrollArrowsHover READ ScrollArrowsHover WRITE setScrollArrowsHover RESET resetScrollArrowsHover NOTIFY ScrollArrowsHoverChanged)
    Q_PROPERTY(QColor ScrollButtonsHover READ ScrollButtonsHover WRITE setScrollButtonsHover RESET resetScrollButtonsHover NOTIFY ScrollButtonsHoverChanged)
    Q_PROPERTY(QColor ScrollBarHover READ ScrollBarHover WRITE setScrollBarHover RESET resetScrollBarHover NOTIFY ScrollBarHoverChanged)
    Q_PROPERTY(QColor EmptyColumnFieldColor READ EmptyColumnFieldColor WRITE setEmptyColumnFieldColor RESET resetEmptyColumnFieldColor NOTIFY EmptyColumnFieldColorChanged)
    Q_PROPERTY(cWheelFunction WheelFunction READ WheelFunction WRITE setWheelFunction RESET resetWheelFunction NOTIFY WheelFunctionChanged)
    Q_PROPERTY(int WheelScrollLines READ WheelScrollLines WRITE setWheelScrollLines RESET resetWheelScrollLines NOTIFY WheelScrollLinesChanged)
    Q_PROPERTY(bool DefaultIconSelectedIsIcon READ DefaultIconSelectedIsIcon WRITE setDefaultIconSelectedIsIcon RESET resetDefaultIconSelectedIsIcon NOTIFY DefaultIconSelectedIsIconChanged)
    Q_PROPERTY(int ScrollButtonJumpLines READ ScrollButtonJumpLines WRITE setScrollButtonJumpLines RESET resetScrollButtonJumpLines NOTIFY ScrollButtonJumpLinesChanged)
    Q_PROPERTY(cTextPosition TextPositionDefault READ TextPositionDefault WRITE setTextPositionDefault RESET resetTextPositionDefault NOTIFY TextPositionDefaultChanged)
    Q_PROPERTY(bool DrawItemIcons READ DrawItemIcons WRITE setDrawItemIcons RESET resetDrawItemIcons NOTIFY DrawItemIconsChanged)
    Q_PROPERTY(bool DrawColumnIcons READ DrawColumnIcons WRITE setDrawColumnIcons RESET resetDrawColumnIcons NOTIFY DrawColumnIconsChanged)
    Q_PROPERTY(QPixmap BackgroundPicture READ BackgroundPicture WRITE setBackgroundPicture RESET resetBackgroundPicture NOTIFY BackgroundPictureChanged)
    Q_PROPERTY(QPixmap Skin READ Skin WRITE setSkin RESET resetSkin NOTIFY SkinChanged)
    Q_PROPERTY(bool FixColumns READ FixColumns WRITE setFixColumns RESET resetFixColumns NOTIFY FixColumnsChanged)
    Q_PROPERTY(bool CheckMouseOver READ CheckMouseOver WRITE setCheckMouseOver RESET resetCheckMouseOver NOTIFY CheckMouseOverChanged)
    Q_PROPERTY(int OLEDragMode READ OLEDragMode WRITE setOLEDragMode RESET resetOLEDragMode NOTIFY OLEDragModeChanged)
    Q_PROPERTY(int OLEDropMode READ OLEDropMode WRITE setOLEDropMode RESET resetOLEDropMode NOTIFY OLEDropModeChanged)
    Q_PROPERTY(bool AutoRowColor READ AutoRowColor WRITE setAutoRowColor RESET resetAutoRowColor NOTIFY AutoRowColorChanged)
    Q_PROPERTY(QColor RowColorFirst READ RowColorFirst WRITE setRowColorFirst RESET resetRowColorFirst NOTIFY RowColorFirstChanged)
    Q_PROPERTY(QColor RowColorSecond READ RowColorSecond WRITE setRowColorSecond RESET resetRowColorSecond NOTIFY RowColorSecondChanged)
    Q_PROPERTY(bool HideSelection READ HideSelection WRITE setHideSelection RESET resetHideSelection NOTIFY HideSelectionChanged)
    Q_PROPERTY(QObject* Recordset READ Recordset WRITE setRecordset DESIGNABLE false STORED false)
    Q_PROPERTY(bool AllowItemMoving READ AllowItemMoving WRITE setAllowItemMoving RESET resetAllowItemMoving NOTIFY AllowItemMovingChanged)

  public:
    /// Scheme of headers, selection and border.
    enum cColorStyle {
        cXPBlue = 0,
        cXPSilver = 1,
        cXPOlive = 2,
        cCustom = 99,
    };
    Q_ENUM(cColorStyle)
    /// Scheme of the scroll bars.
    enum cScrollColorStyle {
        cXPScrollBlue = 0,
        cXPScrollSilver = 1,
        cXPScrollOlive = 2,
        cScrollCustom = 99,
    };
    Q_ENUM(cScrollColorStyle)
    /// What the mouse wheel moves.
    enum cWheelFunction {
        cWheelScroll = 0,
        cWheelListIndex = 1,
        cWheelOff = 2,
    };
    Q_ENUM(cWheelFunction)
    /// Whether the list may show check boxes.
    enum cListViewStyle {
        cDefault = 0,
        cCheckBoxes = 1,
    };
    Q_ENUM(cListViewStyle)
    /// Place of text or icon in a header.
    enum cColumnHeaderAlign {
        cColumnLeft = 0,
        cColumnCenter = 1,
        cColumnRight = 2,
    };
    Q_ENUM(cColumnHeaderAlign)
    /// Place of text or icon in a cell.
    enum cItemAlign {
        cItemLeft = 0,
        cItemCenter = 1,
        cItemRight = 2,
    };
    Q_ENUM(cItemAlign)
    /// Vertical place of the text in its row.
    enum cTextPosition {
        cTextPosTop = 0,
        cTextPosCenter = 1,
        cTextPosBottom = 2,
    };
    Q_ENUM(cTextPosition)
    /// Order of a sort.
    enum cSortMode {
        cAscending = 1,
        cDescending = 2,
    };
    Q_ENUM(cSortMode)
    /// What the texts of a sorted column are compared as.
    enum cSortType {
        cSortText = 0,
        cSortNumeric = 1,
        cSortDate = 2,
    };
    Q_ENUM(cSortType)
    /// Where a search starts.
    enum cFindBegin {
        cFindStart = 0,
        cFindContinue = 1,
    };
    Q_ENUM(cFindBegin)
    /// How a search compares letters.
    enum cFindCompare {
        cFindBinary = 0,
        cFindText = 1,
    };
    Q_ENUM(cFindCompare)

    Q_INVOKABLE explicit LumtexListView(QWidget* parent = nullptr);
    LumtexListView(QWidget* parent, const lumtex::qt::WorldFactory& makeWorld);
    ~LumtexListView() override;

    using QWidget::setStyle; // beside the list's own one

    /// Appends a column, and an empty cell to every row. The width is in twips; a colour of 0 is black.
    Q_INVOKABLE void ColumnsAdd(const QVariant& aText, const QPixmap& aIcon = {}, const QPixmap& aIconHover = {}, const QPixmap& aIconDown = {}, cColumnHeaderAlign aAlignment = cColumnLeft, double aWidth = 1000, bool aAllowSorting = false, QColor aForeColor = QColor(0, 0, 0), const QString& aKey = QString(), const QString& aTag = QString(), QColor aForeColorHover = QColor(0, 0, 0), QColor aForeColorDown = QColor(0, 0, 0));
    /// Removes all columns. Rows keep their cells, so clear the rows first for an empty list.
    Q_INVOKABLE void ColumnsClear();
    /// Checks the scroll bars and repaints. The columns stay: a single column cannot be removed.
    Q_INVOKABLE void ColumnsRemove(const QVariant& Index);
    /// The number of columns.
    int ColumnsCount() const;
    /// Inserts a row before the 0-based place, or appends it where that is out of range, and writes back the place it took. The texts are split at the separator, without quoting. A list without columns takes no rows.
    Q_INVOKABLE void RowsAdd(const QVariant& aIndex = -1, const QString& aSplit = QStringLiteral(","), const QString& aItemTexts = {});
    /// Removes the row with the 1-based number. A number out of range removes nothing and is not reported. The host gets its turn after each row that moves up.
    Q_INVOKABLE void RowsRemove(const QVariant& Index);
    /// Removes all selected rows and paints once at the end.
    Q_INVOKABLE void RowsSelectedRemove();
    /// Removes all rows. ListIndex and NewIndex keep their numbers.
    Q_INVOKABLE void RowsClear();
    /// The number of rows.
    int RowsCount() const;
    /// The number of selected rows, counted anew.
    Q_INVOKABLE int RowSelectedCount();
    /// True for whatever is no number, and for every index once the list has had a row.
    Q_INVOKABLE bool WrongIndex(const QVariant& Index);
    /// True for whatever is no number, and for every index once the list has had a column.
    Q_INVOKABLE bool WrongColumnIndex(const QVariant& Index);
    /// The 0-based place of the row last added. It is not corrected when rows move or go.
    int NewIndex() const;
    /// The current row, 0-based; -1 for none. A number that no enabled row has is refused with ErrorWrongIndex. Reading gives the host its turn once.
    int ListIndex() const;
    void setListIndex(int value);
    /// The current row, 1-based; 0 for none. Assigning also scrolls to the row.
    int RowIndex() const;
    void setRowIndex(int value);
    /// The first row shown, 0-based.
    int TopIndex() const;
    void setTopIndex(int value);
    /// Decides anew which scroll bars are needed, and how far they reach.
    Q_INVOKABLE void CheckScroll();
    /// Paints the whole control, whatever AutoRedraw says.
    Q_INVOKABLE void Redraw();
    /// Erases the picture, not the content, which comes back with the next paint.
    Q_INVOKABLE void ClearListView();
    /// Closes the in-place editor and drops what was typed.
    Q_INVOKABLE void StopEdit();
    /// The number of the control's window.
    int hwnd() const;
    /// The number of the in-place editor's window.
    int hwndEdit() const;
    /// Opens the in-place editor where the cell was painted last, with its whole text selected. Scrolls first where the row is out of view. No permission is asked for.
    Q_INVOKABLE void SetEdit(const QVariant& Row, const QVariant& Column);
    /// The 1-based column under the last press or release; -1 for none.
    int ColumnIndex() const;
    /// Orders the rows by the texts of a column and raises SortDone. -1 drops the sort mark, which repaints. Without a mode nothing is ordered.
    Q_INVOKABLE void Sort(int Column, cSortMode SortMode = {}, cSortType SortType = cSortText);
    /// The 1-based column of the last sort; -1 for none.
    int SortColumnIndex() const;
    /// Looks for the first cell whose text, or tag behind "<itemtag>", matches a pattern. Columns and rows are "*" or a list such as "1,3-5,"; a lone number needs its comma. The answer counts places in these lists.
    Q_INVOKABLE QVariantMap FindItem(const QString& sFind, cFindBegin cBegin = cFindContinue, cFindCompare cCompare = cFindBinary, const QString& sColumns = QStringLiteral("*"), const QString& sRows = QStringLiteral("*"));
    /// Makes the columns with these numbers as wide as the widest text painted in them, or as their header; without a number all of them.
    Q_INVOKABLE void AutoColumnSize(const QVariantList& lColumns = {});
    /// Writes the texts of all cells, and on demand their looks, tags and icons, to a file. A file of that name is deleted first. A failure is reported; the result is True even then.
    Q_INVOKABLE bool ContentSave(const QString& sFilename, bool bSaveItemProperties = false);
    /// Clears the rows and fills the list from such a file; the columns stay. Where there is no file the result is False, and nothing is changed. Any other failure is reported, and the result is True.
    Q_INVOKABLE bool ContentInput(const QString& sFilename, bool bReadItemPropertiesIfExists = false);
    /// Shows the about box and returns once it was closed.
    Q_INVOKABLE void About();
    /// Font of new cells. A clone is kept, and existing cells keep theirs.
    QFont DefaultItemFont() const;
    void setDefaultItemFont(const QFont& value);
    void resetDefaultItemFont();
    /// Text colour of new cells. Existing cells keep theirs.
    QColor DefaultItemForeColor() const;
    void setDefaultItemForeColor(QColor value);
    void resetDefaultItemForeColor();
    /// Background of the list.
    QColor BackColor() const;
    void setBackColor(QColor value);
    void resetBackColor();
    /// Background of the list while the control is disabled.
    QColor BackColorDisabled() const;
    void setBackColorDisabled(QColor value);
    void resetBackColorDisabled();
    /// Whether the control takes presses and keys. The scroll bars follow.
    bool Enabled() const;
    void setEnabled(bool value);
    void resetEnabled();
    /// Whether assigning ListIndex raises Click before the index changes.
    bool ClickOnIndexChange() const;
    void setClickOnIndexChange(bool value);
    void resetClickOnIndexChange();
    /// Scheme of headers, selection and border. Any but cCustom is handed on to ScrollColorStyle.
    cColorStyle ColorStyle() const;
    void setColorStyle(cColorStyle value);
    void resetColorStyle();
    /// Colour of the border in the custom scheme.
    QColor BorderColor() const;
    void setBorderColor(QColor value);
    void resetBorderColor();
    /// cCheckBoxes shows check boxes in the columns with ColumnCheckBoxes. What they show is ItemChecked. A press at the place of a box changes that even where none is drawn.
    cListViewStyle Style() const;
    void setStyle(cListViewStyle value);
    void resetStyle();
    /// Whether the selection covers all columns or the first alone.
    bool FullRowSelect() const;
    void setFullRowSelect(bool value);
    void resetFullRowSelect();
    /// Whether a second press opens the in-place editor, in cells that allow it too. A double click asks the cell alone.
    bool AllowEdit() const;
    void setAllowEdit(bool value);
    void resetAllowEdit();
    /// Background of selected cells in the custom scheme.
    QColor ValueColor() const;
    void setValueColor(QColor value);
    void resetValueColor();
    /// Whether a border is drawn.
    bool BorderVisible() const;
    void setBorderVisible(bool value);
    void resetBorderVisible();
    /// Kept for the host in pixels; painting does not use it.
    double IndentTop() const;
    void setIndentTop(double value);
    void resetIndentTop();
    /// Kept for the host in pixels; painting does not use it.
    double IndentLeft() const;
    void setIndentLeft(double value);
    void resetIndentLeft();
    /// Kept for the host in pixels; painting does not use it.
    double IndentRight() const;
    void setIndentRight(double value);
    void resetIndentRight();
    /// Kept for the host in pixels; painting does not use it.
    double IndentBottom() const;
    void setIndentBottom(double value);
    void resetIndentBottom();
    /// Pixels between icon and text.
    double DistPicText() const;
    void setDistPicText(double value);
    void resetDistPicText();
    /// Whether a change of the content checks the scroll bars. Switching it on checks them at once.
    bool AutoCheckScroll() const;
    void setAutoCheckScroll(bool value);
    void resetAutoCheckScroll();
    /// Whether a change repaints at once. Switch it off around bulk changes; switching it on repaints.
    bool AutoRedraw() const;
    void setAutoRedraw(bool value);
    void resetAutoRedraw();
    /// Kept for the host; painting does not use it.
    bool IconSelect() const;
    void setIconSelect(bool value);
    void resetIconSelect();
    /// Width of cell icons in pixels, for columns added later.
    double IconW() const;
    void setIconW(double value);
    void resetIconW();
    /// Height of cell icons in pixels, for columns added later.
    double IconH() const;
    void setIconH(double value);
    void resetIconH();
    /// Width of header icons in pixels.
    double ColumnIconW() const;
    void setColumnIconW(double value);
    void resetColumnIconW();
    /// Height of header icons in pixels.
    double ColumnIconH() const;
    void setColumnIconH(double value);
    void resetColumnIconH();
    /// Scheme of the scroll bars.
    cScrollColorStyle ScrollColorStyle() const;
    void setScrollColorStyle(cScrollColorStyle value);
    void resetScrollColorStyle();
    /// Whether lines are drawn between cells.
    bool GridLines() const;
    void setGridLines(bool value);
    void resetGridLines();
    /// Colour of the lines between cells.
    QColor GridLineColor() const;
    void setGridLineColor(QColor value);
    void resetGridLineColor();
    /// Whether several rows can be selected.
    bool MultiSelect() const;
    void setMultiSelect(bool value);
    void resetMultiSelect();
    /// Whether the headers are left out.
    bool HideColumnHeaders() const;
    void setHideColumnHeaders(bool value);
    void resetHideColumnHeaders();
    /// Pixels above the text of a header; the header grows by as many.
    int ColumnTextY() const;
    void setColumnTextY(int value);
    void resetColumnTextY();
    /// Whether a pressed header moves its text by a pixel.
    bool MoveColumnTextAtDown() const;
    void setMoveColumnTextAtDown(bool value);
    void resetMoveColumnTextAtDown();
    /// Font of all headers. A clone is kept.
    QFont DefaultColumnFont() const;
    void setDefaultColumnFont(const QFont& value);
    void resetDefaultColumnFont();
    /// Text colour of the design view alone. Headers are drawn in ColumnForeColor.
    QColor DefaultColumnForeColor() const;
    void setDefaultColumnForeColor(QColor value);
    void resetDefaultColumnForeColor();
    /// Twips of free space behind the last column, where the columns reach past the right edge.
    double EmptyColumnFieldWidth() const;
    void setEmptyColumnFieldWidth(double value);
    void resetEmptyColumnFieldWidth();
    /// Background of headers in the custom scheme.
    QColor ColumnBackColor() const;
    void setColumnBackColor(QColor value);
    void resetColumnBackColor();
    /// Background of the header under the pointer in the custom scheme.
    QColor ColumnHoverColor() const;
    void setColumnHoverColor(QColor value);
    void resetColumnHoverColor();
    /// Background of the pressed header in the custom scheme.
    QColor ColumnDownColor() const;
    void setColumnDownColor(QColor value);
    void resetColumnDownColor();
    /// Whether rows are as high as the default font, and from the first icon or check box shown on as high as their content needs; else RowHeight.
    bool RowsDynamic() const;
    void setRowsDynamic(bool value);
    void resetRowsDynamic();
    /// Height of a row in twips, where RowsDynamic is False.
    double RowHeight() const;
    void setRowHeight(double value);
    void resetRowHeight();
    /// Trough of the scroll bars in the custom scheme.
    QColor ScrollBackColor() const;
    void setScrollBackColor(QColor value);
    void resetScrollBackColor();
    /// Arrows of the scroll bars in the custom scheme.
    QColor ScrollArrows() const;
    void setScrollArrows(QColor value);
    void resetScrollArrows();
    /// Arrow buttons of the scroll bars in the custom scheme.
    QColor ScrollButtons() const;
    void setScrollButtons(QColor value);
    void resetScrollButtons();
    /// Thumbs of the scroll bars in the custom scheme.
    QColor ScrollBar() const;
    void setScrollBar(QColor value);
    void resetScrollBar();
    /// Arrows while pressed, in the custom scheme.
    QColor ScrollArrowsDown() const;
    void setScrollArrowsDown(QColor value);
    void resetScrollArrowsDown();
    /// Arrow buttons while pressed, in the custom scheme.
    QColor ScrollButtonsDown() const;
    void setScrollButtonsDown(QColor value);
    void resetScrollButtonsDown();
    /// Thumbs while pressed, in the custom scheme.
    QColor ScrollBarDown() const;
    void setScrollBarDown(QColor value);
    void resetScrollBarDown();
    /// Arrows under the pointer, in the custom scheme.
    QColor ScrollArrowsHover() const;
    void setScrollArrowsHover(QColor value);
    void resetScrollArrowsHover();
    /// Arrow buttons under the pointer, in the custom scheme.
    QColor ScrollButtonsHover() const;
    void setScrollButtonsHover(QColor value);
    void resetScrollButtonsHover();
    /// Thumbs under the pointer, in the custom scheme.
    QColor ScrollBarHover() const;
    void setScrollBarHover(QColor value);
    void resetScrollBarHover();
    /// Colour of the header area behind the last column in the custom scheme.
    QColor EmptyColumnFieldColor() const;
    void setEmptyColumnFieldColor(QColor value);
    void resetEmptyColumnFieldColor();
    /// What the wheel moves: the view, the current row, or nothing.
    cWheelFunction WheelFunction() const;
    void setWheelFunction(cWheelFunction value);
    void resetWheelFunction();
    /// Rows by which one wheel event scrolls the view, however far the wheel was turned.
    int WheelScrollLines() const;
    void setWheelScrollLines(int value);
    void resetWheelScrollLines();
    /// Whether a selected cell without a picture of its own for that shows its plain icon.
    bool DefaultIconSelectedIsIcon() const;
    void setDefaultIconSelectedIsIcon(bool value);
    void resetDefaultIconSelectedIsIcon();
    /// Rows that one press of an arrow button of the vertical bar moves. A number below 1 is dropped.
    int ScrollButtonJumpLines() const;
    void setScrollButtonJumpLines(int value);
    void resetScrollButtonJumpLines();
    /// Vertical place of the text in rows added later. The host is not told of the change.
    cTextPosition TextPositionDefault() const;
    void setTextPositionDefault(cTextPosition value);
    void resetTextPositionDefault();
    /// Whether cell icons are drawn.
    bool DrawItemIcons() const;
    void setDrawItemIcons(bool value);
    void resetDrawItemIcons();
    /// Whether header icons are drawn.
    bool DrawColumnIcons() const;
    void setDrawColumnIcons(bool value);
    void resetDrawColumnIcons();
    /// Picture in the lower right corner of the list, at its own size.
    QPixmap BackgroundPicture() const;
    void setBackgroundPicture(const QPixmap& value);
    void resetBackgroundPicture();
    /// Strip of 16 x 3 pixels for the bar of the header under the pointer, in the blue and the silver scheme alone; Nothing for the built-in one.
    QPixmap Skin() const;
    void setSkin(const QPixmap& value);
    void resetSkin();
    /// Whether columns keep their widths under the mouse.
    bool FixColumns() const;
    void setFixColumns(bool value);
    void resetFixColumns();
    /// Kept for the host; it has no visible effect, and ItemOver is never raised.
    bool CheckMouseOver() const;
    void setCheckMouseOver(bool value);
    void resetCheckMouseOver();
    /// Kept for the host; the list never starts a drag by itself.
    int OLEDragMode() const;
    void setOLEDragMode(int value);
    void resetOLEDragMode();
    /// 1 takes what is dragged over the list, with OLEDragOver and OLEDragDrop; any other number takes nothing.
    int OLEDropMode() const;
    void setOLEDropMode(int value);
    void resetOLEDropMode();
    /// Whether rows take turns with two background colours, in place of those of their cells.
    bool AutoRowColor() const;
    void setAutoRowColor(bool value);
    void resetAutoRowColor();
    /// Background of every other row, from the first on.
    QColor RowColorFirst() const;
    void setRowColorFirst(QColor value);
    void resetRowColorFirst();
    /// Background of the rows between.
    QColor RowColorSecond() const;
    void setRowColorSecond(QColor value);
    void resetRowColorSecond();
    /// While True, every cell has a black background, selected or not. The focus plays no part.
    bool HideSelection() const;
    void setHideSelection(bool value);
    void resetHideSelection();
    /// Assigning an object with RecordCount, fields, MoveFirst, MoveNext and EOF takes its fields as columns and its records as rows, once. A comma in a value splits it. RecordCount not above 0 changes nothing and repaints nothing.
    QObject* Recordset() const;
    void setRecordset(QObject* value);
    /// Text of the header.
    Q_INVOKABLE QString ColumnText(const QVariant& Index) const;
    Q_INVOKABLE void setColumnText(const QVariant& Index, const QString& value);
    /// Icon of the header.
    Q_INVOKABLE QPixmap ColumnIcon(const QVariant& Index) const;
    Q_INVOKABLE void setColumnIcon(const QVariant& Index, const QPixmap& value);
    /// Icon of the header while the pointer is over it.
    Q_INVOKABLE QPixmap ColumnIconHover(const QVariant& Index) const;
    Q_INVOKABLE void setColumnIconHover(const QVariant& Index, const QPixmap& value);
    /// Icon of the header while it is pressed.
    Q_INVOKABLE QPixmap ColumnIconDown(const QVariant& Index) const;
    Q_INVOKABLE void setColumnIconDown(const QVariant& Index, const QPixmap& value);
    /// Left edge of the header in twips. Goes stale when a column before it is resized by code.
    Q_INVOKABLE double ColumnLeft(const QVariant& Index) const;
    /// Width in twips. The columns to the right keep their ColumnLeft.
    Q_INVOKABLE double ColumnWidth(const QVariant& Index) const;
    Q_INVOKABLE void setColumnWidth(const QVariant& Index, double value);
    /// Text that the control keeps for the host.
    Q_INVOKABLE QString ColumnTag(const QVariant& Index) const;
    Q_INVOKABLE void setColumnTag(const QVariant& Index, const QString& value);
    /// Text that the control keeps for the host. No column is found by it.
    Q_INVOKABLE QString ColumnKey(const QVariant& Index) const;
    Q_INVOKABLE void setColumnKey(const QVariant& Index, const QString& value);
    /// Place of the header text. Cells have their own ItemAlignment.
    Q_INVOKABLE cColumnHeaderAlign ColumnAlignment(const QVariant& Index) const;
    Q_INVOKABLE void setColumnAlignment(const QVariant& Index, cColumnHeaderAlign value);
    /// Place of the header icon.
    Q_INVOKABLE cColumnHeaderAlign ColumnIconAlignment(const QVariant& Index) const;
    Q_INVOKABLE void setColumnIconAlignment(const QVariant& Index, cColumnHeaderAlign value);
    /// Colour of the header text.
    Q_INVOKABLE QColor ColumnForeColor(const QVariant& Index) const;
    Q_INVOKABLE void setColumnForeColor(const QVariant& Index, QColor value);
    /// Colour of the header text while the pointer is over it.
    Q_INVOKABLE QColor ColumnForeColorHover(const QVariant& Index) const;
    Q_INVOKABLE void setColumnForeColorHover(const QVariant& Index, QColor value);
    /// Colour of the header text while the header is pressed.
    Q_INVOKABLE QColor ColumnForeColorDown(const QVariant& Index) const;
    Q_INVOKABLE void setColumnForeColorDown(const QVariant& Index, QColor value);
    /// Whether a click on the header sorts.
    Q_INVOKABLE bool ColumnAllowSorting(const QVariant& Index) const;
    Q_INVOKABLE void setColumnAllowSorting(const QVariant& Index, bool value);
    /// Whether the cells of the column show check boxes, where Style is cCheckBoxes.
    Q_INVOKABLE bool ColumnCheckBoxes(const QVariant& Index) const;
    Q_INVOKABLE void setColumnCheckBoxes(const QVariant& Index, bool value);
    /// Whether cell icons are scaled to the icon size of the column.
    Q_INVOKABLE bool ColumnAdjustItemIcons(const QVariant& Index) const;
    Q_INVOKABLE void setColumnAdjustItemIcons(const QVariant& Index, bool value);
    /// True for any icon height but 0. Assigning stores 0 or -1; the real height comes from IconH as the column is added.
    Q_INVOKABLE bool ColumnItemIconH(const QVariant& Index) const;
    Q_INVOKABLE void setColumnItemIconH(const QVariant& Index, bool value);
    /// True for any icon width but 0. Assigning stores 0 or -1; the real width comes from IconW as the column is added.
    Q_INVOKABLE bool ColumnItemIconW(const QVariant& Index) const;
    Q_INVOKABLE void setColumnItemIconW(const QVariant& Index, bool value);
    /// Whether the row can be chosen. Assigning enables or disables its cells too.
    Q_INVOKABLE bool RowEnabled(const QVariant& Index) const;
    Q_INVOKABLE void setRowEnabled(const QVariant& Index, bool value);
    /// Whether the row is selected. Selecting scrolls to a row out of view, and without MultiSelect drops the other rows. ListIndex does not follow.
    Q_INVOKABLE bool RowSelected(const QVariant& Index) const;
    Q_INVOKABLE void setRowSelected(const QVariant& Index, bool value);
    /// Check mark that the control keeps for the host. Nothing shows it: boxes stand in columns with ColumnCheckBoxes alone, and what they show is ItemChecked.
    Q_INVOKABLE bool RowChecked(const QVariant& Index) const;
    Q_INVOKABLE void setRowChecked(const QVariant& Index, bool value);
    /// Vertical place of the text in the row. Without effect while RowsDynamic is True.
    Q_INVOKABLE cTextPosition TextPosition(const QVariant& Index) const;
    Q_INVOKABLE void setTextPosition(const QVariant& Index, cTextPosition value);
    /// Whether the text is bold.
    Q_INVOKABLE bool ItemFontBold(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemFontBold(const QVariant& Row, const QVariant& Column, bool value);
    /// Whether the text is italic.
    Q_INVOKABLE bool ItemFontItalic(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemFontItalic(const QVariant& Row, const QVariant& Column, bool value);
    /// Whether the text is underlined.
    Q_INVOKABLE bool ItemFontUnderline(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemFontUnderline(const QVariant& Row, const QVariant& Column, bool value);
    /// Whether the text is struck through.
    Q_INVOKABLE bool ItemFontStrikethrough(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemFontStrikethrough(const QVariant& Row, const QVariant& Column, bool value);
    /// Size of the text in points.
    Q_INVOKABLE double ItemFontSize(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemFontSize(const QVariant& Row, const QVariant& Column, double value);
    /// Typeface of the text.
    Q_INVOKABLE QString ItemFontName(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemFontName(const QVariant& Row, const QVariant& Column, const QString& value);
    /// Colour of the text.
    Q_INVOKABLE QColor ItemForeColor(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemForeColor(const QVariant& Row, const QVariant& Column, QColor value);
    /// Background of the cell, or "def" for none of its own. AutoRowColor goes before it.
    Q_INVOKABLE QVariant ItemBackColor(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemBackColor(const QVariant& Row, const QVariant& Column, const QVariant& value);
    /// Colour of the text while selected, or "def" for white.
    Q_INVOKABLE QVariant ItemForeColorSelect(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemForeColorSelect(const QVariant& Row, const QVariant& Column, const QVariant& value);
    /// Background while selected, or "def" for the colour of the scheme.
    Q_INVOKABLE QVariant ItemBackColorSelect(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemBackColorSelect(const QVariant& Row, const QVariant& Column, const QVariant& value);
    /// Colour of the text while disabled. A number: "def" fails.
    Q_INVOKABLE QVariant ItemForeColorDis(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemForeColorDis(const QVariant& Row, const QVariant& Column, const QVariant& value);
    /// Background while disabled. A number: "def" fails.
    Q_INVOKABLE QVariant ItemBackColorDis(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemBackColorDis(const QVariant& Row, const QVariant& Column, const QVariant& value);
    /// Value that the control keeps for the host.
    Q_INVOKABLE QVariant ItemTag(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemTag(const QVariant& Row, const QVariant& Column, const QVariant& value);
    /// Whether the cell is enabled. Shown by the next paint.
    Q_INVOKABLE bool ItemEnabled(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemEnabled(const QVariant& Row, const QVariant& Column, bool value);
    /// Icon of the cell.
    Q_INVOKABLE QPixmap ItemIcon(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemIcon(const QVariant& Row, const QVariant& Column, const QPixmap& value);
    /// Icon of the cell while selected.
    Q_INVOKABLE QPixmap ItemIconSelected(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemIconSelected(const QVariant& Row, const QVariant& Column, const QPixmap& value);
    /// Whether the cell may be edited in place. A double click opens the editor, AllowEdit a second press too.
    Q_INVOKABLE bool ItemAllowEdit(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemAllowEdit(const QVariant& Row, const QVariant& Column, bool value);
    /// Check mark of the cell. The count of its column follows; no event is raised.
    Q_INVOKABLE bool ItemChecked(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemChecked(const QVariant& Row, const QVariant& Column, bool value);
    /// Place of the text.
    Q_INVOKABLE cItemAlign ItemAlignment(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemAlignment(const QVariant& Row, const QVariant& Column, cItemAlign value);
    /// Place of the icon.
    Q_INVOKABLE cItemAlign ItemIconAlignment(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemIconAlignment(const QVariant& Row, const QVariant& Column, cItemAlign value);
    /// Text of the cell.
    Q_INVOKABLE QString ItemText(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemText(const QVariant& Row, const QVariant& Column, const QString& value);
    /// Text that the control keeps for the host. The list never shows it; screen readers speak it.
    Q_INVOKABLE QString ItemToolTip(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemToolTip(const QVariant& Row, const QVariant& Column, const QString& value);
    /// Width of the text in pixels, as the last paint measured it; 0 for a cell never painted.
    Q_INVOKABLE double ItemTextWidth(const QVariant& Row, const QVariant& Column) const;
    /// Control of the host that is shown over the cell. One with a window becomes a child of the list. A failure while it is assigned raises ListViewError and is then reported.
    Q_INVOKABLE QObject* ItemObject(const QVariant& Row, const QVariant& Column) const;
    Q_INVOKABLE void setItemObject(const QVariant& Row, const QVariant& Column, QObject* value);
    /// Checked cells of a column; of all columns for a number that no column has.
    Q_INVOKABLE int ItemsCheckedCount(int Column = 0);
    /// Whether the user drags the current row to another place, instead of selecting rows.
    bool AllowItemMoving() const;
    void setAllowItemMoving(bool value);
    void resetAllowItemMoving();

  Q_SIGNALS:
    /// The list was clicked, or, with ClickOnIndexChange, its current row is about to change.
    void Click();
    /// The list was clicked twice. ItemDblClick follows where a cell was pressed before.
    void DblClick();
    /// A press is about to change a check mark. Cancel keeps it.
    void ItemCheck(int Row, int Column, bool NewValue, bool& Cancel);
    /// A press has changed a check mark.
    void ItemChecked(int Row, int Column, bool NewValue);
    /// A mouse button was let go. The position is in pixels.
    void MouseUp(short& Button, short& Shift, float& X, float& Y);
    /// The mouse moved over the list, or with a button held anywhere. The position is in pixels.
    void MouseMove(short& Button, short& Shift, float& X, float& Y);
    /// A mouse button was pressed; ItemDown came before. The position is in pixels.
    void MouseDown(short& Button, short& Shift, float& X, float& Y);
    /// A header was clicked. Where the column allows it, a sort as text follows.
    void ColumnClick(int& Column);
    /// The list was scrolled up or down with the thumb or the wheel. Scrolling sideways is not told.
    void Scroll();
    /// A key went down.
    void KeyDown(short& KeyCode, short& Shift);
    /// A key gave a character.
    void KeyPress(short& KeyAscii);
    /// A key was let go.
    void KeyUp(short& KeyCode, short& Shift);
    /// Never raised: the list starts no drag.
    void OLECompleteDrag(int& Effect);
    /// Something was dropped on the list. Effect answers what became of it.
    void OLEDragDrop(QObject* Data, int& Effect, short& Button, short& Shift, float& X, float& Y);
    /// Something is dragged over the list: State 0 enters, 1 leaves, 2 moves. Effect answers what a drop would do.
    void OLEDragOver(QObject* Data, int& Effect, short& Button, short& Shift, float& X, float& Y, short& State);
    /// Never raised: the list starts no drag.
    void OLEGiveFeedback(int& Effect, bool& DefaultCursors);
    /// Never raised: the list starts no drag.
    void OLESetData(QObject* Data, short& DataFormat);
    /// Never raised: the list starts no drag.
    void OLEStartDrag(QObject* Data, int& AllowedEffects);
    /// ListIndex was assigned a number that no enabled row has. Index counts from 0; changing it changes nothing.
    void ErrorWrongIndex(QVariant& Index);
    /// A sort has ended.
    void SortDone();
    /// A paint, or the assignment of an embedded object, failed. Other failures are reported alone.
    void ListViewError(const QString& eSub, int eNumber, const QString& eDescription);
    /// A cell was pressed and let go.
    void ItemClick(int Row, int Column);
    /// The cell pressed last was clicked twice. The editor follows where the cell allows it.
    void ItemDblClick(int Row, int Column);
    /// A cell was pressed.
    void ItemDown(int Row, int Column);
    /// A button was let go over a cell, the pressed one or another.
    void ItemUp(int Row, int Column);
    /// The editor has written into a cell, even the same text.
    void ItemChanged(int Row, int Column, const QString& NewValue);
    /// Never raised.
    void ItemOver(int Row, int Column, bool bOverItem);
    void DefaultItemFontChanged();
    void DefaultItemForeColorChanged();
    void BackColorChanged();
    void BackColorDisabledChanged();
    void EnabledChanged();
    void ClickOnIndexChangeChanged();
    void ColorStyleChanged();
    void BorderColorChanged();
    void StyleChanged();
    void FullRowSelectChanged();
    void AllowEditChanged();
    void ValueColorChanged();
    void BorderVisibleChanged();
    void IndentTopChanged();
    void IndentLeftChanged();
    void IndentRightChanged();
    void IndentBottomChanged();
    void DistPicTextChanged();
    void AutoCheckScrollChanged();
    void AutoRedrawChanged();
    void IconSelectChanged();
    void IconWChanged();
    void IconHChanged();
    void ColumnIconWChanged();
    void ColumnIconHChanged();
    void ScrollColorStyleChanged();
    void GridLinesChanged();
    void GridLineColorChanged();
    void MultiSelectChanged();
    void HideColumnHeadersChanged();
    void ColumnTextYChanged();
    void MoveColumnTextAtDownChanged();
    void DefaultColumnFontChanged();
    void DefaultColumnForeColorChanged();
    void EmptyColumnFieldWidthChanged();
    void ColumnBackColorChanged();
    void ColumnHoverColorChanged();
    void ColumnDownColorChanged();
    void RowsDynamicChanged();
    void RowHeightChanged();
    void ScrollBackColorChanged();
    void ScrollArrowsChanged();
    void ScrollButtonsChanged();
    void ScrollBarChanged();
    void ScrollArrowsDownChanged();
    void ScrollButtonsDownChanged();
    void ScrollBarDownChanged();
    void ScrollArrowsHoverChanged();
    void ScrollButtonsHoverChanged();
    void ScrollBarHoverChanged();
    void EmptyColumnFieldColorChanged();
    void WheelFunctionChanged();
    void WheelScrollLinesChanged();
    void DefaultIconSelectedIsIconChanged();
    void ScrollButtonJumpLinesChanged();
    void TextPositionDefaultChanged();
    void DrawItemIconsChanged();
    void DrawColumnIconsChanged();
    void BackgroundPictureChanged();
    void SkinChanged();
    void FixColumnsChanged();
    void CheckMouseOverChanged();
    void OLEDragModeChanged();
    void OLEDropModeChanged();
    void AutoRowColorChanged();
    void RowColorFirstChanged();
    void RowColorSecondChanged();
    void HideSelectionChanged();
    void AllowItemMovingChanged();
};
