/// The setters that do no more than `setterTable` says, one line each.
#include "model/list_view.h"

namespace lumtex {

template <class T>
void lmListView::store(Property property, T& field, T value) {
    const auto& [name, setterClass] = setterOf(property);
    Procedure p = procedure(name);
    p.step([&] { field = std::move(value); });
    p.step([&, name = name] { host_.PropertyChanged(name); });
    switch (setterClass) {
    case SetterClass::checkForRedraw:
        CheckForRedraw();
        break;
    case SetterClass::redraw:
        Redraw();
        break;
    case SetterClass::toScrollBars:
        CheckProperty();
        break;
    case SetterClass::storeOnly:
    case SetterClass::special:
        break;
    }
}

// clang-format off
void lmListView::letDefaultItemForeColor(OLE_COLOR value) { store(Property::DefaultItemForeColor, properties_.DefaultItemForeColor, value); }
void lmListView::letBackColor(OLE_COLOR value) { store(Property::BackColor, properties_.BackColor, value); }
void lmListView::letBackColorDisabled(OLE_COLOR value) { store(Property::BackColorDisabled, properties_.BackColorDisabled, value); }
void lmListView::letClickOnIndexChange(bool value) { store(Property::ClickOnIndexChange, properties_.ClickOnIndexChange, value); }
void lmListView::letBorderColor(OLE_COLOR value) { store(Property::BorderColor, properties_.BorderColor, value); }
void lmListView::letStyle(cListViewStyle value) { store(Property::Style, properties_.Style, value); }
void lmListView::letFullRowSelect(bool value) { store(Property::FullRowSelect, properties_.FullRowSelect, value); }
void lmListView::letAllowEdit(bool value) { store(Property::AllowEdit, properties_.AllowEdit, value); }
void lmListView::letValueColor(OLE_COLOR value) { store(Property::ValueColor, properties_.ValueColor, value); }
void lmListView::letBorderVisible(bool value) { store(Property::BorderVisible, properties_.BorderVisible, value); }
void lmListView::letIndentTop(Single value) { store(Property::IndentTop, properties_.IndentTop, value); }
void lmListView::letIndentLeft(Single value) { store(Property::IndentLeft, properties_.IndentLeft, value); }
void lmListView::letIndentRight(Single value) { store(Property::IndentRight, properties_.IndentRight, value); }
void lmListView::letIndentBottom(Single value) { store(Property::IndentBottom, properties_.IndentBottom, value); }
void lmListView::letDistPicText(Single value) { store(Property::DistPicText, properties_.DistPicText, value); }
void lmListView::letIconSelect(bool value) { store(Property::IconSelect, properties_.IconSelect, value); }
void lmListView::letIconW(Single value) { store(Property::IconW, properties_.IconW, value); }
void lmListView::letIconH(Single value) { store(Property::IconH, properties_.IconH, value); }
void lmListView::letColumnIconW(Single value) { store(Property::ColumnIconW, properties_.ColumnIconW, value); }
void lmListView::letColumnIconH(Single value) { store(Property::ColumnIconH, properties_.ColumnIconH, value); }
void lmListView::letGridLines(bool value) { store(Property::GridLines, properties_.GridLines, value); }
void lmListView::letGridLineColor(OLE_COLOR value) { store(Property::GridLineColor, properties_.GridLineColor, value); }
void lmListView::letMultiSelect(bool value) { store(Property::MultiSelect, properties_.MultiSelect, value); }
void lmListView::letHideColumnHeaders(bool value) { store(Property::HideColumnHeaders, properties_.HideColumnHeaders, value); }
void lmListView::letColumnTextY(Long value) { store(Property::ColumnTextY, properties_.ColumnTextY, value); }
void lmListView::letMoveColumnTextAtDown(bool value) { store(Property::MoveColumnTextAtDown, properties_.MoveColumnTextAtDown, value); }
void lmListView::letDefaultColumnForeColor(OLE_COLOR value) { store(Property::DefaultColumnForeColor, properties_.DefaultColumnForeColor, value); }
void lmListView::letEmptyColumnFieldWidth(Single value) { store(Property::EmptyColumnFieldWidth, properties_.EmptyColumnFieldWidth, value); }
void lmListView::letColumnBackColor(OLE_COLOR value) { store(Property::ColumnBackColor, properties_.ColumnBackColor, value); }
void lmListView::letColumnHoverColor(OLE_COLOR value) { store(Property::ColumnHoverColor, properties_.ColumnHoverColor, value); }
void lmListView::letColumnDownColor(OLE_COLOR value) { store(Property::ColumnDownColor, properties_.ColumnDownColor, value); }
void lmListView::letRowHeight(Single value) { store(Property::RowHeight, properties_.RowHeight, value); }
void lmListView::letScrollBackColor(OLE_COLOR value) { store(Property::ScrollBackColor, properties_.ScrollBackColor, value); }
void lmListView::letScrollArrows(OLE_COLOR value) { store(Property::ScrollArrows, properties_.ScrollArrows, value); }
void lmListView::letScrollButtons(OLE_COLOR value) { store(Property::ScrollButtons, properties_.ScrollButtons, value); }
void lmListView::letScrollBar(OLE_COLOR value) { store(Property::ScrollBar, properties_.ScrollBar, value); }
void lmListView::letScrollArrowsDown(OLE_COLOR value) { store(Property::ScrollArrowsDown, properties_.ScrollArrowsDown, value); }
void lmListView::letScrollButtonsDown(OLE_COLOR value) { store(Property::ScrollButtonsDown, properties_.ScrollButtonsDown, value); }
void lmListView::letScrollBarDown(OLE_COLOR value) { store(Property::ScrollBarDown, properties_.ScrollBarDown, value); }
void lmListView::letScrollArrowsHover(OLE_COLOR value) { store(Property::ScrollArrowsHover, properties_.ScrollArrowsHover, value); }
void lmListView::letScrollButtonsHover(OLE_COLOR value) { store(Property::ScrollButtonsHover, properties_.ScrollButtonsHover, value); }
void lmListView::letScrollBarHover(OLE_COLOR value) { store(Property::ScrollBarHover, properties_.ScrollBarHover, value); }
void lmListView::letEmptyColumnFieldColor(OLE_COLOR value) { store(Property::EmptyColumnFieldColor, properties_.EmptyColumnFieldColor, value); }
void lmListView::letWheelFunction(cWheelFunction value) { store(Property::WheelFunction, properties_.WheelFunction, value); }
void lmListView::letWheelScrollLines(Long value) { store(Property::WheelScrollLines, properties_.WheelScrollLines, value); }
void lmListView::letDefaultIconSelectedIsIcon(bool value) { store(Property::DefaultIconSelectedIsIcon, properties_.DefaultIconSelectedIsIcon, value); }
void lmListView::letDrawItemIcons(bool value) { store(Property::DrawItemIcons, properties_.DrawItemIcons, value); }
void lmListView::letDrawColumnIcons(bool value) { store(Property::DrawColumnIcons, properties_.DrawColumnIcons, value); }
void lmListView::setBackgroundPicture(PictureRef picture) { store(Property::BackgroundPicture, properties_.BackgroundPicture, std::move(picture)); }
void lmListView::letFixColumns(bool value) { store(Property::FixColumns, properties_.FixColumns, value); }
void lmListView::letCheckMouseOver(bool value) { store(Property::CheckMouseOver, properties_.CheckMouseOver, value); }
void lmListView::letOLEDragMode(Integer value) { store(Property::OLEDragMode, properties_.OLEDragMode, value); }
void lmListView::letAutoRowColor(bool value) { store(Property::AutoRowColor, properties_.AutoRowColor, value); }
void lmListView::letRowColorFirst(OLE_COLOR value) { store(Property::RowColorFirst, properties_.RowColorFirst, value); }
void lmListView::letRowColorSecond(OLE_COLOR value) { store(Property::RowColorSecond, properties_.RowColorSecond, value); }
void lmListView::letHideSelection(bool value) { store(Property::HideSelection, properties_.HideSelection, value); }
void lmListView::letAllowItemMoving(bool value) { store(Property::AllowItemMoving, properties_.AllowItemMoving, value); }
// clang-format on

} // namespace lumtex
