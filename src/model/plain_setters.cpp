/// The setters that do no more than `setterTable` says, one line each.
#include "model/list_view.h"

namespace lumtex {

template <class T>
void ListViewProperties::store(Property property, T& field, ValueOf<T> value) {
    Procedure p = procedure(setterOf(property).name);
    p.step([&] { field = std::move(value); });
    propertyStored(property, p);
}

void lmListView::propertyStored(Property property, Procedure& p) {
    const auto& [name, setterClass] = setterOf(property);
    p.step([&, name = name] { host_->PropertyChanged(name); });
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
void ListViewProperties::letDefaultItemForeColor(OLE_COLOR value) { store(Property::DefaultItemForeColor, properties_.DefaultItemForeColor, value); }
void ListViewProperties::letBackColor(OLE_COLOR value) { store(Property::BackColor, properties_.BackColor, value); }
void ListViewProperties::letBackColorDisabled(OLE_COLOR value) { store(Property::BackColorDisabled, properties_.BackColorDisabled, value); }
void ListViewProperties::letClickOnIndexChange(bool value) { store(Property::ClickOnIndexChange, properties_.ClickOnIndexChange, value); }
void ListViewProperties::letBorderColor(OLE_COLOR value) { store(Property::BorderColor, properties_.BorderColor, value); }
void ListViewProperties::letStyle(cListViewStyle value) { store(Property::Style, properties_.Style, value); }
void ListViewProperties::letFullRowSelect(bool value) { store(Property::FullRowSelect, properties_.FullRowSelect, value); }
void ListViewProperties::letAllowEdit(bool value) { store(Property::AllowEdit, properties_.AllowEdit, value); }
void ListViewProperties::letValueColor(OLE_COLOR value) { store(Property::ValueColor, properties_.ValueColor, value); }
void ListViewProperties::letBorderVisible(bool value) { store(Property::BorderVisible, properties_.BorderVisible, value); }
void ListViewProperties::letIndentTop(Single value) { store(Property::IndentTop, properties_.IndentTop, value); }
void ListViewProperties::letIndentLeft(Single value) { store(Property::IndentLeft, properties_.IndentLeft, value); }
void ListViewProperties::letIndentRight(Single value) { store(Property::IndentRight, properties_.IndentRight, value); }
void ListViewProperties::letIndentBottom(Single value) { store(Property::IndentBottom, properties_.IndentBottom, value); }
void ListViewProperties::letDistPicText(Single value) { store(Property::DistPicText, properties_.DistPicText, value); }
void ListViewProperties::letIconSelect(bool value) { store(Property::IconSelect, properties_.IconSelect, value); }
void ListViewProperties::letIconW(Single value) { store(Property::IconW, properties_.IconW, value); }
void ListViewProperties::letIconH(Single value) { store(Property::IconH, properties_.IconH, value); }
void ListViewProperties::letColumnIconW(Single value) { store(Property::ColumnIconW, properties_.ColumnIconW, value); }
void ListViewProperties::letColumnIconH(Single value) { store(Property::ColumnIconH, properties_.ColumnIconH, value); }
void ListViewProperties::letGridLines(bool value) { store(Property::GridLines, properties_.GridLines, value); }
void ListViewProperties::letGridLineColor(OLE_COLOR value) { store(Property::GridLineColor, properties_.GridLineColor, value); }
void ListViewProperties::letMultiSelect(bool value) { store(Property::MultiSelect, properties_.MultiSelect, value); }
void ListViewProperties::letHideColumnHeaders(bool value) { store(Property::HideColumnHeaders, properties_.HideColumnHeaders, value); }
void ListViewProperties::letColumnTextY(Long value) { store(Property::ColumnTextY, properties_.ColumnTextY, value); }
void ListViewProperties::letMoveColumnTextAtDown(bool value) { store(Property::MoveColumnTextAtDown, properties_.MoveColumnTextAtDown, value); }
void ListViewProperties::letDefaultColumnForeColor(OLE_COLOR value) { store(Property::DefaultColumnForeColor, properties_.DefaultColumnForeColor, value); }
void ListViewProperties::letEmptyColumnFieldWidth(Single value) { store(Property::EmptyColumnFieldWidth, properties_.EmptyColumnFieldWidth, value); }
void ListViewProperties::letColumnBackColor(OLE_COLOR value) { store(Property::ColumnBackColor, properties_.ColumnBackColor, value); }
void ListViewProperties::letColumnHoverColor(OLE_COLOR value) { store(Property::ColumnHoverColor, properties_.ColumnHoverColor, value); }
void ListViewProperties::letColumnDownColor(OLE_COLOR value) { store(Property::ColumnDownColor, properties_.ColumnDownColor, value); }
void ListViewProperties::letRowHeight(Single value) { store(Property::RowHeight, properties_.RowHeight, value); }
void ListViewProperties::letScrollBackColor(OLE_COLOR value) { store(Property::ScrollBackColor, properties_.ScrollBackColor, value); }
void ListViewProperties::letScrollArrows(OLE_COLOR value) { store(Property::ScrollArrows, properties_.ScrollArrows, value); }
void ListViewProperties::letScrollButtons(OLE_COLOR value) { store(Property::ScrollButtons, properties_.ScrollButtons, value); }
void ListViewProperties::letScrollBar(OLE_COLOR value) { store(Property::ScrollBar, properties_.ScrollBar, value); }
void ListViewProperties::letScrollArrowsDown(OLE_COLOR value) { store(Property::ScrollArrowsDown, properties_.ScrollArrowsDown, value); }
void ListViewProperties::letScrollButtonsDown(OLE_COLOR value) { store(Property::ScrollButtonsDown, properties_.ScrollButtonsDown, value); }
void ListViewProperties::letScrollBarDown(OLE_COLOR value) { store(Property::ScrollBarDown, properties_.ScrollBarDown, value); }
void ListViewProperties::letScrollArrowsHover(OLE_COLOR value) { store(Property::ScrollArrowsHover, properties_.ScrollArrowsHover, value); }
void ListViewProperties::letScrollButtonsHover(OLE_COLOR value) { store(Property::ScrollButtonsHover, properties_.ScrollButtonsHover, value); }
void ListViewProperties::letScrollBarHover(OLE_COLOR value) { store(Property::ScrollBarHover, properties_.ScrollBarHover, value); }
void ListViewProperties::letEmptyColumnFieldColor(OLE_COLOR value) { store(Property::EmptyColumnFieldColor, properties_.EmptyColumnFieldColor, value); }
void ListViewProperties::letWheelFunction(cWheelFunction value) { store(Property::WheelFunction, properties_.WheelFunction, value); }
void ListViewProperties::letWheelScrollLines(Long value) { store(Property::WheelScrollLines, properties_.WheelScrollLines, value); }
void ListViewProperties::letDefaultIconSelectedIsIcon(bool value) { store(Property::DefaultIconSelectedIsIcon, properties_.DefaultIconSelectedIsIcon, value); }
void ListViewProperties::letDrawItemIcons(bool value) { store(Property::DrawItemIcons, properties_.DrawItemIcons, value); }
void ListViewProperties::letDrawColumnIcons(bool value) { store(Property::DrawColumnIcons, properties_.DrawColumnIcons, value); }
void ListViewProperties::setBackgroundPicture(PictureRef picture) { store(Property::BackgroundPicture, properties_.BackgroundPicture, std::move(picture)); }
void ListViewProperties::letFixColumns(bool value) { store(Property::FixColumns, properties_.FixColumns, value); }
void ListViewProperties::letCheckMouseOver(bool value) { store(Property::CheckMouseOver, properties_.CheckMouseOver, value); }
void ListViewProperties::letOLEDragMode(Long value) { store(Property::OLEDragMode, properties_.OLEDragMode, value); }
void ListViewProperties::letAutoRowColor(bool value) { store(Property::AutoRowColor, properties_.AutoRowColor, value); }
void ListViewProperties::letRowColorFirst(OLE_COLOR value) { store(Property::RowColorFirst, properties_.RowColorFirst, value); }
void ListViewProperties::letRowColorSecond(OLE_COLOR value) { store(Property::RowColorSecond, properties_.RowColorSecond, value); }
void ListViewProperties::letHideSelection(bool value) { store(Property::HideSelection, properties_.HideSelection, value); }
void ListViewProperties::letAllowItemMoving(bool value) { store(Property::AllowItemMoving, properties_.AllowItemMoving, value); }
// clang-format on

} // namespace lumtex
