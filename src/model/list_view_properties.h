/// \file
/// The control-level properties: what a host reads and assigns.
#pragma once

#include "guards/procedure.h"
#include "model/setter_table.h"
#include "records/properties.h"

namespace lumtex {

/// Stores the values and says which one was stored; what follows from it is the control's business. Values
/// are not checked. Fonts are cloned on the way in.
class ListViewProperties {
  public:
    ListViewProperties() = default;
    ListViewProperties(const ListViewProperties&) = delete;
    ListViewProperties& operator=(const ListViewProperties&) = delete;
    virtual ~ListViewProperties() = default;

    FontRef DefaultItemFont() const { return properties_.DefaultItemFont; }
    virtual void setDefaultItemFont(const FontRef& font) = 0;
    OLE_COLOR DefaultItemForeColor() const { return properties_.DefaultItemForeColor; }
    void letDefaultItemForeColor(OLE_COLOR value);
    OLE_COLOR BackColor() const { return properties_.BackColor; }
    void letBackColor(OLE_COLOR value);
    OLE_COLOR BackColorDisabled() const { return properties_.BackColorDisabled; }
    void letBackColorDisabled(OLE_COLOR value);
    bool Enabled() const { return properties_.Enabled; }
    virtual void letEnabled(bool value) = 0;
    bool ClickOnIndexChange() const { return properties_.ClickOnIndexChange; }
    void letClickOnIndexChange(bool value);
    cColorStyle ColorStyle() const { return properties_.ColorStyle; }
    virtual void letColorStyle(cColorStyle value) = 0;
    OLE_COLOR BorderColor() const { return properties_.BorderColor; }
    void letBorderColor(OLE_COLOR value);
    cListViewStyle Style() const { return properties_.Style; }
    void letStyle(cListViewStyle value);
    bool FullRowSelect() const { return properties_.FullRowSelect; }
    void letFullRowSelect(bool value);
    bool AllowEdit() const { return properties_.AllowEdit; }
    void letAllowEdit(bool value);
    OLE_COLOR ValueColor() const { return properties_.ValueColor; }
    void letValueColor(OLE_COLOR value);
    bool BorderVisible() const { return properties_.BorderVisible; }
    void letBorderVisible(bool value);
    Single IndentTop() const { return properties_.IndentTop; }
    void letIndentTop(Single value);
    Single IndentLeft() const { return properties_.IndentLeft; }
    void letIndentLeft(Single value);
    Single IndentRight() const { return properties_.IndentRight; }
    void letIndentRight(Single value);
    Single IndentBottom() const { return properties_.IndentBottom; }
    void letIndentBottom(Single value);
    Single DistPicText() const { return properties_.DistPicText; }
    void letDistPicText(Single value);
    bool AutoCheckScroll() const { return properties_.AutoCheckScroll; }
    virtual void letAutoCheckScroll(bool value) = 0;
    bool AutoRedraw() const { return properties_.AutoRedraw; }
    virtual void letAutoRedraw(bool value) = 0;
    bool IconSelect() const { return properties_.IconSelect; }
    void letIconSelect(bool value);
    Single IconW() const { return properties_.IconW; }
    void letIconW(Single value);
    Single IconH() const { return properties_.IconH; }
    void letIconH(Single value);
    Single ColumnIconW() const { return properties_.ColumnIconW; }
    void letColumnIconW(Single value);
    Single ColumnIconH() const { return properties_.ColumnIconH; }
    void letColumnIconH(Single value);
    cScrollColorStyle ScrollColorStyle() const { return properties_.ScrollColorStyle; }
    virtual void letScrollColorStyle(cScrollColorStyle value) = 0;
    bool GridLines() const { return properties_.GridLines; }
    void letGridLines(bool value);
    OLE_COLOR GridLineColor() const { return properties_.GridLineColor; }
    void letGridLineColor(OLE_COLOR value);
    bool MultiSelect() const { return properties_.MultiSelect; }
    void letMultiSelect(bool value);
    bool HideColumnHeaders() const { return properties_.HideColumnHeaders; }
    void letHideColumnHeaders(bool value);
    Long ColumnTextY() const { return properties_.ColumnTextY; }
    void letColumnTextY(Long value);
    bool MoveColumnTextAtDown() const { return properties_.MoveColumnTextAtDown; }
    void letMoveColumnTextAtDown(bool value);
    FontRef DefaultColumnFont() const { return properties_.DefaultColumnFont; }
    virtual void setDefaultColumnFont(const FontRef& font) = 0;
    OLE_COLOR DefaultColumnForeColor() const { return properties_.DefaultColumnForeColor; }
    void letDefaultColumnForeColor(OLE_COLOR value);
    Single EmptyColumnFieldWidth() const { return properties_.EmptyColumnFieldWidth; }
    void letEmptyColumnFieldWidth(Single value);
    OLE_COLOR ColumnBackColor() const { return properties_.ColumnBackColor; }
    void letColumnBackColor(OLE_COLOR value);
    OLE_COLOR ColumnHoverColor() const { return properties_.ColumnHoverColor; }
    void letColumnHoverColor(OLE_COLOR value);
    OLE_COLOR ColumnDownColor() const { return properties_.ColumnDownColor; }
    void letColumnDownColor(OLE_COLOR value);
    bool RowsDynamic() const { return properties_.RowsDynamic; }
    virtual void letRowsDynamic(bool value) = 0;
    Single RowHeight() const { return properties_.RowHeight; }
    void letRowHeight(Single value);
    OLE_COLOR ScrollBackColor() const { return properties_.ScrollBackColor; }
    void letScrollBackColor(OLE_COLOR value);
    OLE_COLOR ScrollArrows() const { return properties_.ScrollArrows; }
    void letScrollArrows(OLE_COLOR value);
    OLE_COLOR ScrollButtons() const { return properties_.ScrollButtons; }
    void letScrollButtons(OLE_COLOR value);
    OLE_COLOR ScrollBar() const { return properties_.ScrollBar; }
    void letScrollBar(OLE_COLOR value);
    OLE_COLOR ScrollArrowsDown() const { return properties_.ScrollArrowsDown; }
    void letScrollArrowsDown(OLE_COLOR value);
    OLE_COLOR ScrollButtonsDown() const { return properties_.ScrollButtonsDown; }
    void letScrollButtonsDown(OLE_COLOR value);
    OLE_COLOR ScrollBarDown() const { return properties_.ScrollBarDown; }
    void letScrollBarDown(OLE_COLOR value);
    OLE_COLOR ScrollArrowsHover() const { return properties_.ScrollArrowsHover; }
    void letScrollArrowsHover(OLE_COLOR value);
    OLE_COLOR ScrollButtonsHover() const { return properties_.ScrollButtonsHover; }
    void letScrollButtonsHover(OLE_COLOR value);
    OLE_COLOR ScrollBarHover() const { return properties_.ScrollBarHover; }
    void letScrollBarHover(OLE_COLOR value);
    OLE_COLOR EmptyColumnFieldColor() const { return properties_.EmptyColumnFieldColor; }
    void letEmptyColumnFieldColor(OLE_COLOR value);
    cWheelFunction WheelFunction() const { return properties_.WheelFunction; }
    void letWheelFunction(cWheelFunction value);
    Long WheelScrollLines() const { return properties_.WheelScrollLines; }
    void letWheelScrollLines(Long value);
    bool DefaultIconSelectedIsIcon() const { return properties_.DefaultIconSelectedIsIcon; }
    void letDefaultIconSelectedIsIcon(bool value);
    Long ScrollButtonJumpLines() const { return properties_.ScrollButtonJumpLines; }
    virtual void letScrollButtonJumpLines(Long value) = 0;
    cTextPosition TextPositionDefault() const { return properties_.TextPositionDefault; }
    virtual void letTextPositionDefault(cTextPosition value) = 0;
    bool DrawItemIcons() const { return properties_.DrawItemIcons; }
    void letDrawItemIcons(bool value);
    bool DrawColumnIcons() const { return properties_.DrawColumnIcons; }
    void letDrawColumnIcons(bool value);
    PictureRef BackgroundPicture() const { return properties_.BackgroundPicture; }
    void setBackgroundPicture(PictureRef picture);
    PictureRef Skin() const { return properties_.Skin; }
    virtual void setSkin(PictureRef picture) = 0;
    bool FixColumns() const { return properties_.FixColumns; }
    void letFixColumns(bool value);
    bool CheckMouseOver() const { return properties_.CheckMouseOver; }
    void letCheckMouseOver(bool value);
    Long OLEDragMode() const { return properties_.OLEDragMode; }
    void letOLEDragMode(Long value);
    Long OLEDropMode() const { return properties_.OLEDropMode; }
    virtual void letOLEDropMode(Long value) = 0;
    bool AutoRowColor() const { return properties_.AutoRowColor; }
    void letAutoRowColor(bool value);
    OLE_COLOR RowColorFirst() const { return properties_.RowColorFirst; }
    void letRowColorFirst(OLE_COLOR value);
    OLE_COLOR RowColorSecond() const { return properties_.RowColorSecond; }
    void letRowColorSecond(OLE_COLOR value);
    bool HideSelection() const { return properties_.HideSelection; }
    void letHideSelection(bool value);

  protected:
    /// A plain setter stored its value; the rest stands in `setterTable`.
    virtual void propertyStored(Property property, Procedure& p) = 0;
    virtual Procedure procedure(StringView name) const = 0;

    // Reached by the property bag alone.
    bool AllowItemMoving() const { return properties_.AllowItemMoving; }
    void letAllowItemMoving(bool value);

    Properties properties_;

  private:
    template <class T>
    void store(Property property, T& field, ValueOf<T> value);
};

} // namespace lumtex
