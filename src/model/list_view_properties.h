/// \file
/// The control-level properties: what a host reads and assigns.
#pragma once

#include "model/list_view_core.h"
#include "model/setter_table.h"

namespace lumtex {

/// Values are not checked. Fonts are cloned on the way in.
class ListViewProperties : protected ListViewCore {
  public:
    FontRef DefaultItemFont() const { return properties.DefaultItemFont; }
    void setDefaultItemFont(const FontRef& font);
    OLE_COLOR DefaultItemForeColor() const { return properties.DefaultItemForeColor; }
    void letDefaultItemForeColor(OLE_COLOR value);
    OLE_COLOR BackColor() const { return properties.BackColor; }
    void letBackColor(OLE_COLOR value);
    OLE_COLOR BackColorDisabled() const { return properties.BackColorDisabled; }
    void letBackColorDisabled(OLE_COLOR value);
    bool Enabled() const { return properties.Enabled; }
    void letEnabled(bool value);
    bool ClickOnIndexChange() const { return properties.ClickOnIndexChange; }
    void letClickOnIndexChange(bool value);
    cColorStyle ColorStyle() const { return properties.ColorStyle; }
    void letColorStyle(cColorStyle value);
    OLE_COLOR BorderColor() const { return properties.BorderColor; }
    void letBorderColor(OLE_COLOR value);
    cListViewStyle Style() const { return properties.Style; }
    void letStyle(cListViewStyle value);
    bool FullRowSelect() const { return properties.FullRowSelect; }
    void letFullRowSelect(bool value);
    bool AllowEdit() const { return properties.AllowEdit; }
    void letAllowEdit(bool value);
    OLE_COLOR ValueColor() const { return properties.ValueColor; }
    void letValueColor(OLE_COLOR value);
    bool BorderVisible() const { return properties.BorderVisible; }
    void letBorderVisible(bool value);
    Single IndentTop() const { return properties.IndentTop; }
    void letIndentTop(Single value);
    Single IndentLeft() const { return properties.IndentLeft; }
    void letIndentLeft(Single value);
    Single IndentRight() const { return properties.IndentRight; }
    void letIndentRight(Single value);
    Single IndentBottom() const { return properties.IndentBottom; }
    void letIndentBottom(Single value);
    Single DistPicText() const { return properties.DistPicText; }
    void letDistPicText(Single value);
    bool AutoCheckScroll() const { return properties.AutoCheckScroll; }
    void letAutoCheckScroll(bool value);
    bool AutoRedraw() const { return properties.AutoRedraw; }
    void letAutoRedraw(bool value);
    bool IconSelect() const { return properties.IconSelect; }
    void letIconSelect(bool value);
    Single IconW() const { return properties.IconW; }
    void letIconW(Single value);
    Single IconH() const { return properties.IconH; }
    void letIconH(Single value);
    Single ColumnIconW() const { return properties.ColumnIconW; }
    void letColumnIconW(Single value);
    Single ColumnIconH() const { return properties.ColumnIconH; }
    void letColumnIconH(Single value);
    cScrollColorStyle ScrollColorStyle() const { return properties.ScrollColorStyle; }
    void letScrollColorStyle(cScrollColorStyle value);
    bool GridLines() const { return properties.GridLines; }
    void letGridLines(bool value);
    OLE_COLOR GridLineColor() const { return properties.GridLineColor; }
    void letGridLineColor(OLE_COLOR value);
    bool MultiSelect() const { return properties.MultiSelect; }
    void letMultiSelect(bool value);
    bool HideColumnHeaders() const { return properties.HideColumnHeaders; }
    void letHideColumnHeaders(bool value);
    Long ColumnTextY() const { return properties.ColumnTextY; }
    void letColumnTextY(Long value);
    bool MoveColumnTextAtDown() const { return properties.MoveColumnTextAtDown; }
    void letMoveColumnTextAtDown(bool value);
    FontRef DefaultColumnFont() const { return properties.DefaultColumnFont; }
    void setDefaultColumnFont(const FontRef& font);
    OLE_COLOR DefaultColumnForeColor() const { return properties.DefaultColumnForeColor; }
    void letDefaultColumnForeColor(OLE_COLOR value);
    Single EmptyColumnFieldWidth() const { return properties.EmptyColumnFieldWidth; }
    void letEmptyColumnFieldWidth(Single value);
    OLE_COLOR ColumnBackColor() const { return properties.ColumnBackColor; }
    void letColumnBackColor(OLE_COLOR value);
    OLE_COLOR ColumnHoverColor() const { return properties.ColumnHoverColor; }
    void letColumnHoverColor(OLE_COLOR value);
    OLE_COLOR ColumnDownColor() const { return properties.ColumnDownColor; }
    void letColumnDownColor(OLE_COLOR value);
    bool RowsDynamic() const { return properties.RowsDynamic; }
    void letRowsDynamic(bool value);
    Single RowHeight() const { return properties.RowHeight; }
    void letRowHeight(Single value);
    OLE_COLOR ScrollBackColor() const { return properties.ScrollBackColor; }
    void letScrollBackColor(OLE_COLOR value);
    OLE_COLOR ScrollArrows() const { return properties.ScrollArrows; }
    void letScrollArrows(OLE_COLOR value);
    OLE_COLOR ScrollButtons() const { return properties.ScrollButtons; }
    void letScrollButtons(OLE_COLOR value);
    OLE_COLOR ScrollBar() const { return properties.ScrollBar; }
    void letScrollBar(OLE_COLOR value);
    OLE_COLOR ScrollArrowsDown() const { return properties.ScrollArrowsDown; }
    void letScrollArrowsDown(OLE_COLOR value);
    OLE_COLOR ScrollButtonsDown() const { return properties.ScrollButtonsDown; }
    void letScrollButtonsDown(OLE_COLOR value);
    OLE_COLOR ScrollBarDown() const { return properties.ScrollBarDown; }
    void letScrollBarDown(OLE_COLOR value);
    OLE_COLOR ScrollArrowsHover() const { return properties.ScrollArrowsHover; }
    void letScrollArrowsHover(OLE_COLOR value);
    OLE_COLOR ScrollButtonsHover() const { return properties.ScrollButtonsHover; }
    void letScrollButtonsHover(OLE_COLOR value);
    OLE_COLOR ScrollBarHover() const { return properties.ScrollBarHover; }
    void letScrollBarHover(OLE_COLOR value);
    OLE_COLOR EmptyColumnFieldColor() const { return properties.EmptyColumnFieldColor; }
    void letEmptyColumnFieldColor(OLE_COLOR value);
    cWheelFunction WheelFunction() const { return properties.WheelFunction; }
    void letWheelFunction(cWheelFunction value);
    Long WheelScrollLines() const { return properties.WheelScrollLines; }
    void letWheelScrollLines(Long value);
    bool DefaultIconSelectedIsIcon() const { return properties.DefaultIconSelectedIsIcon; }
    void letDefaultIconSelectedIsIcon(bool value);
    Long ScrollButtonJumpLines() const { return properties.ScrollButtonJumpLines; }
    void letScrollButtonJumpLines(Long value);
    cTextPosition TextPositionDefault() const { return properties.TextPositionDefault; }
    void letTextPositionDefault(cTextPosition value);
    bool DrawItemIcons() const { return properties.DrawItemIcons; }
    void letDrawItemIcons(bool value);
    bool DrawColumnIcons() const { return properties.DrawColumnIcons; }
    void letDrawColumnIcons(bool value);
    PictureRef BackgroundPicture() const { return properties.BackgroundPicture; }
    void setBackgroundPicture(PictureRef picture);
    PictureRef Skin() const { return properties.Skin; }
    void setSkin(PictureRef picture);
    bool FixColumns() const { return properties.FixColumns; }
    void letFixColumns(bool value);
    bool CheckMouseOver() const { return properties.CheckMouseOver; }
    void letCheckMouseOver(bool value);
    Long OLEDragMode() const { return properties.OLEDragMode; }
    void letOLEDragMode(Long value);
    Long OLEDropMode() const { return properties.OLEDropMode; }
    void letOLEDropMode(Long value);
    bool AutoRowColor() const { return properties.AutoRowColor; }
    void letAutoRowColor(bool value);
    OLE_COLOR RowColorFirst() const { return properties.RowColorFirst; }
    void letRowColorFirst(OLE_COLOR value);
    OLE_COLOR RowColorSecond() const { return properties.RowColorSecond; }
    void letRowColorSecond(OLE_COLOR value);
    bool HideSelection() const { return properties.HideSelection; }
    void letHideSelection(bool value);

  protected:
    using ListViewCore::ListViewCore;

    // Reached by the property bag alone.
    bool AllowItemMoving() const { return properties.AllowItemMoving; }
    void letAllowItemMoving(bool value);

  private:
    void propertyStored(Property property, Procedure& p);
    void storeFont(Property property, Held<FontRef>& field, const FontRef& font);
    template <class T>
    void store(Property property, T& field, ValueOf<T> value);
};

} // namespace lumtex
