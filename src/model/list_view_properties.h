/// \file
/// The control-level properties: what a host reads and assigns.
#pragma once

#include "model/list_view_core.h"

namespace lumtex {

/// Values are not checked. Fonts are cloned on the way in.
class ListViewProperties : protected ListViewCore {
  public:
    FontRef DefaultItemFont() const { return properties.DefaultItemFont; }
    void setDefaultItemFont(const FontRef& font);
    OLE_COLOR DefaultItemForeColor() const { return properties.DefaultItemForeColor; }
    void letDefaultItemForeColor(OLE_COLOR value) { store(&Properties::DefaultItemForeColor, value); }
    OLE_COLOR BackColor() const { return properties.BackColor; }
    void letBackColor(OLE_COLOR value) { store(&Properties::BackColor, value); }
    OLE_COLOR BackColorDisabled() const { return properties.BackColorDisabled; }
    void letBackColorDisabled(OLE_COLOR value) { store(&Properties::BackColorDisabled, value); }
    bool Enabled() const { return properties.Enabled; }
    void letEnabled(bool value);
    bool ClickOnIndexChange() const { return properties.ClickOnIndexChange; }
    void letClickOnIndexChange(bool value) { store(&Properties::ClickOnIndexChange, value); }
    cColorStyle ColorStyle() const { return properties.ColorStyle; }
    void letColorStyle(cColorStyle value);
    OLE_COLOR BorderColor() const { return properties.BorderColor; }
    void letBorderColor(OLE_COLOR value) { store(&Properties::BorderColor, value); }
    cListViewStyle Style() const { return properties.Style; }
    void letStyle(cListViewStyle value) { store(&Properties::Style, value); }
    bool FullRowSelect() const { return properties.FullRowSelect; }
    void letFullRowSelect(bool value) { store(&Properties::FullRowSelect, value); }
    bool AllowEdit() const { return properties.AllowEdit; }
    void letAllowEdit(bool value) { store(&Properties::AllowEdit, value); }
    OLE_COLOR ValueColor() const { return properties.ValueColor; }
    void letValueColor(OLE_COLOR value) { store(&Properties::ValueColor, value); }
    bool BorderVisible() const { return properties.BorderVisible; }
    void letBorderVisible(bool value) { store(&Properties::BorderVisible, value); }
    Single IndentTop() const { return properties.IndentTop; }
    void letIndentTop(Single value) { store(&Properties::IndentTop, value); }
    Single IndentLeft() const { return properties.IndentLeft; }
    void letIndentLeft(Single value) { store(&Properties::IndentLeft, value); }
    Single IndentRight() const { return properties.IndentRight; }
    void letIndentRight(Single value) { store(&Properties::IndentRight, value); }
    Single IndentBottom() const { return properties.IndentBottom; }
    void letIndentBottom(Single value) { store(&Properties::IndentBottom, value); }
    Single DistPicText() const { return properties.DistPicText; }
    void letDistPicText(Single value) { store(&Properties::DistPicText, value); }
    bool AutoCheckScroll() const { return properties.AutoCheckScroll; }
    void letAutoCheckScroll(bool value);
    bool AutoRedraw() const { return properties.AutoRedraw; }
    void letAutoRedraw(bool value);
    bool IconSelect() const { return properties.IconSelect; }
    void letIconSelect(bool value) { store(&Properties::IconSelect, value); }
    Single IconW() const { return properties.IconW; }
    void letIconW(Single value) { store(&Properties::IconW, value); }
    Single IconH() const { return properties.IconH; }
    void letIconH(Single value) { store(&Properties::IconH, value); }
    Single ColumnIconW() const { return properties.ColumnIconW; }
    void letColumnIconW(Single value) { store(&Properties::ColumnIconW, value); }
    Single ColumnIconH() const { return properties.ColumnIconH; }
    void letColumnIconH(Single value) { store(&Properties::ColumnIconH, value); }
    cScrollColorStyle ScrollColorStyle() const { return properties.ScrollColorStyle; }
    void letScrollColorStyle(cScrollColorStyle value);
    bool GridLines() const { return properties.GridLines; }
    void letGridLines(bool value) { store(&Properties::GridLines, value); }
    OLE_COLOR GridLineColor() const { return properties.GridLineColor; }
    void letGridLineColor(OLE_COLOR value) { store(&Properties::GridLineColor, value); }
    bool MultiSelect() const { return properties.MultiSelect; }
    void letMultiSelect(bool value) { store(&Properties::MultiSelect, value); }
    bool HideColumnHeaders() const { return properties.HideColumnHeaders; }
    void letHideColumnHeaders(bool value) { store(&Properties::HideColumnHeaders, value); }
    Long ColumnTextY() const { return properties.ColumnTextY; }
    void letColumnTextY(Long value) { store(&Properties::ColumnTextY, value); }
    bool MoveColumnTextAtDown() const { return properties.MoveColumnTextAtDown; }
    void letMoveColumnTextAtDown(bool value) { store(&Properties::MoveColumnTextAtDown, value); }
    FontRef DefaultColumnFont() const { return properties.DefaultColumnFont; }
    void setDefaultColumnFont(const FontRef& font);
    OLE_COLOR DefaultColumnForeColor() const { return properties.DefaultColumnForeColor; }
    void letDefaultColumnForeColor(OLE_COLOR value) { store(&Properties::DefaultColumnForeColor, value); }
    Single EmptyColumnFieldWidth() const { return properties.EmptyColumnFieldWidth; }
    void letEmptyColumnFieldWidth(Single value) { store(&Properties::EmptyColumnFieldWidth, value); }
    OLE_COLOR ColumnBackColor() const { return properties.ColumnBackColor; }
    void letColumnBackColor(OLE_COLOR value) { store(&Properties::ColumnBackColor, value); }
    OLE_COLOR ColumnHoverColor() const { return properties.ColumnHoverColor; }
    void letColumnHoverColor(OLE_COLOR value) { store(&Properties::ColumnHoverColor, value); }
    OLE_COLOR ColumnDownColor() const { return properties.ColumnDownColor; }
    void letColumnDownColor(OLE_COLOR value) { store(&Properties::ColumnDownColor, value); }
    bool RowsDynamic() const { return properties.RowsDynamic; }
    void letRowsDynamic(bool value);
    Single RowHeight() const { return properties.RowHeight; }
    void letRowHeight(Single value) { store(&Properties::RowHeight, value); }
    OLE_COLOR ScrollBackColor() const { return properties.ScrollBackColor; }
    void letScrollBackColor(OLE_COLOR value) { store(&Properties::ScrollBackColor, value); }
    OLE_COLOR ScrollArrows() const { return properties.ScrollArrows; }
    void letScrollArrows(OLE_COLOR value) { store(&Properties::ScrollArrows, value); }
    OLE_COLOR ScrollButtons() const { return properties.ScrollButtons; }
    void letScrollButtons(OLE_COLOR value) { store(&Properties::ScrollButtons, value); }
    OLE_COLOR ScrollBar() const { return properties.ScrollBar; }
    void letScrollBar(OLE_COLOR value) { store(&Properties::ScrollBar, value); }
    OLE_COLOR ScrollArrowsDown() const { return properties.ScrollArrowsDown; }
    void letScrollArrowsDown(OLE_COLOR value) { store(&Properties::ScrollArrowsDown, value); }
    OLE_COLOR ScrollButtonsDown() const { return properties.ScrollButtonsDown; }
    void letScrollButtonsDown(OLE_COLOR value) { store(&Properties::ScrollButtonsDown, value); }
    OLE_COLOR ScrollBarDown() const { return properties.ScrollBarDown; }
    void letScrollBarDown(OLE_COLOR value) { store(&Properties::ScrollBarDown, value); }
    OLE_COLOR ScrollArrowsHover() const { return properties.ScrollArrowsHover; }
    void letScrollArrowsHover(OLE_COLOR value) { store(&Properties::ScrollArrowsHover, value); }
    OLE_COLOR ScrollButtonsHover() const { return properties.ScrollButtonsHover; }
    void letScrollButtonsHover(OLE_COLOR value) { store(&Properties::ScrollButtonsHover, value); }
    OLE_COLOR ScrollBarHover() const { return properties.ScrollBarHover; }
    void letScrollBarHover(OLE_COLOR value) { store(&Properties::ScrollBarHover, value); }
    OLE_COLOR EmptyColumnFieldColor() const { return properties.EmptyColumnFieldColor; }
    void letEmptyColumnFieldColor(OLE_COLOR value) { store(&Properties::EmptyColumnFieldColor, value); }
    cWheelFunction WheelFunction() const { return properties.WheelFunction; }
    void letWheelFunction(cWheelFunction value) { store(&Properties::WheelFunction, value); }
    Long WheelScrollLines() const { return properties.WheelScrollLines; }
    void letWheelScrollLines(Long value) { store(&Properties::WheelScrollLines, value); }
    bool DefaultIconSelectedIsIcon() const { return properties.DefaultIconSelectedIsIcon; }
    void letDefaultIconSelectedIsIcon(bool value) { store(&Properties::DefaultIconSelectedIsIcon, value); }
    Long ScrollButtonJumpLines() const { return properties.ScrollButtonJumpLines; }
    void letScrollButtonJumpLines(Long value);
    cTextPosition TextPositionDefault() const { return properties.TextPositionDefault; }
    void letTextPositionDefault(cTextPosition value);
    bool DrawItemIcons() const { return properties.DrawItemIcons; }
    void letDrawItemIcons(bool value) { store(&Properties::DrawItemIcons, value); }
    bool DrawColumnIcons() const { return properties.DrawColumnIcons; }
    void letDrawColumnIcons(bool value) { store(&Properties::DrawColumnIcons, value); }
    PictureRef BackgroundPicture() const { return properties.BackgroundPicture; }
    void setBackgroundPicture(PictureRef picture) {
        store(&Properties::BackgroundPicture, std::move(picture));
    }
    PictureRef Skin() const { return properties.Skin; }
    void setSkin(PictureRef picture);
    bool FixColumns() const { return properties.FixColumns; }
    void letFixColumns(bool value) { store(&Properties::FixColumns, value); }
    bool CheckMouseOver() const { return properties.CheckMouseOver; }
    void letCheckMouseOver(bool value) { store(&Properties::CheckMouseOver, value); }
    Long OLEDragMode() const { return properties.OLEDragMode; }
    void letOLEDragMode(Long value) { store(&Properties::OLEDragMode, value); }
    Long OLEDropMode() const { return properties.OLEDropMode; }
    void letOLEDropMode(Long value);
    bool AutoRowColor() const { return properties.AutoRowColor; }
    void letAutoRowColor(bool value) { store(&Properties::AutoRowColor, value); }
    OLE_COLOR RowColorFirst() const { return properties.RowColorFirst; }
    void letRowColorFirst(OLE_COLOR value) { store(&Properties::RowColorFirst, value); }
    OLE_COLOR RowColorSecond() const { return properties.RowColorSecond; }
    void letRowColorSecond(OLE_COLOR value) { store(&Properties::RowColorSecond, value); }
    bool HideSelection() const { return properties.HideSelection; }
    void letHideSelection(bool value) { store(&Properties::HideSelection, value); }

  protected:
    using ListViewCore::ListViewCore;

    // Reached by the property bag alone.
    bool AllowItemMoving() const { return properties.AllowItemMoving; }
    void letAllowItemMoving(bool value) { store(&Properties::AllowItemMoving, value); }

    /// Stores, tells the host, and does what the row of the field in the property table says besides.
    template <class Field>
    void store(Field Properties::*field, ValueOf<Field> value);

  private:
    friend class accessibility::ListReader;

    void storeFont(StringView name, Held<FontRef> Properties::*field, const FontRef& font);
};

} // namespace lumtex
