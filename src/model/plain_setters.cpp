/// The setters that do no more than `setterTable` says, one line each.
#include "model/list_view_properties.h"
#include "render/painting.h"
#include "scroll/scroller.h"

namespace lumtex {

template <class T>
void ListViewProperties::store(Property property, T& field, ValueOf<T> value) {
    Procedure p = procedure(setterOf(property).name);
    p.step([&] { field = std::move(value); });
    propertyStored(property, p);
}

void ListViewProperties::propertyStored(Property property, Procedure& p) {
    const auto& [name, setterClass] = setterOf(property);
    p.step([&, name = name] { host().PropertyChanged(name); });
    switch (setterClass) {
    case SetterClass::checkForRedraw:
        CheckForRedraw();
        break;
    case SetterClass::redraw:
        painting->Redraw();
        break;
    case SetterClass::toScrollBars:
        scroller->CheckProperty();
        break;
    case SetterClass::storeOnly:
    case SetterClass::special:
        break;
    }
}

// clang-format off
void ListViewProperties::letDefaultItemForeColor(OLE_COLOR value) { store(Property::DefaultItemForeColor, properties.DefaultItemForeColor, value); }
void ListViewProperties::letBackColor(OLE_COLOR value) { store(Property::BackColor, properties.BackColor, value); }
void ListViewProperties::letBackColorDisabled(OLE_COLOR value) { store(Property::BackColorDisabled, properties.BackColorDisabled, value); }
void ListViewProperties::letClickOnIndexChange(bool value) { store(Property::ClickOnIndexChange, properties.ClickOnIndexChange, value); }
void ListViewProperties::letBorderColor(OLE_COLOR value) { store(Property::BorderColor, properties.BorderColor, value); }
void ListViewProperties::letStyle(cListViewStyle value) { store(Property::Style, properties.Style, value); }
void ListViewProperties::letFullRowSelect(bool value) { store(Property::FullRowSelect, properties.FullRowSelect, value); }
void ListViewProperties::letAllowEdit(bool value) { store(Property::AllowEdit, properties.AllowEdit, value); }
void ListViewProperties::letValueColor(OLE_COLOR value) { store(Property::ValueColor, properties.ValueColor, value); }
void ListViewProperties::letBorderVisible(bool value) { store(Property::BorderVisible, properties.BorderVisible, value); }
void ListViewProperties::letIndentTop(Single value) { store(Property::IndentTop, properties.IndentTop, value); }
void ListViewProperties::letIndentLeft(Single value) { store(Property::IndentLeft, properties.IndentLeft, value); }
void ListViewProperties::letIndentRight(Single value) { store(Property::IndentRight, properties.IndentRight, value); }
void ListViewProperties::letIndentBottom(Single value) { store(Property::IndentBottom, properties.IndentBottom, value); }
void ListViewProperties::letDistPicText(Single value) { store(Property::DistPicText, properties.DistPicText, value); }
void ListViewProperties::letIconSelect(bool value) { store(Property::IconSelect, properties.IconSelect, value); }
void ListViewProperties::letIconW(Single value) { store(Property::IconW, properties.IconW, value); }
void ListViewProperties::letIconH(Single value) { store(Property::IconH, properties.IconH, value); }
void ListViewProperties::letColumnIconW(Single value) { store(Property::ColumnIconW, properties.ColumnIconW, value); }
void ListViewProperties::letColumnIconH(Single value) { store(Property::ColumnIconH, properties.ColumnIconH, value); }
void ListViewProperties::letGridLines(bool value) { store(Property::GridLines, properties.GridLines, value); }
void ListViewProperties::letGridLineColor(OLE_COLOR value) { store(Property::GridLineColor, properties.GridLineColor, value); }
void ListViewProperties::letMultiSelect(bool value) { store(Property::MultiSelect, properties.MultiSelect, value); }
void ListViewProperties::letHideColumnHeaders(bool value) { store(Property::HideColumnHeaders, properties.HideColumnHeaders, value); }
void ListViewProperties::letColumnTextY(Long value) { store(Property::ColumnTextY, properties.ColumnTextY, value); }
void ListViewProperties::letMoveColumnTextAtDown(bool value) { store(Property::MoveColumnTextAtDown, properties.MoveColumnTextAtDown, value); }
void ListViewProperties::letDefaultColumnForeColor(OLE_COLOR value) { store(Property::DefaultColumnForeColor, properties.DefaultColumnForeColor, value); }
void ListViewProperties::letEmptyColumnFieldWidth(Single value) { store(Property::EmptyColumnFieldWidth, properties.EmptyColumnFieldWidth, value); }
void ListViewProperties::letColumnBackColor(OLE_COLOR value) { store(Property::ColumnBackColor, properties.ColumnBackColor, value); }
void ListViewProperties::letColumnHoverColor(OLE_COLOR value) { store(Property::ColumnHoverColor, properties.ColumnHoverColor, value); }
void ListViewProperties::letColumnDownColor(OLE_COLOR value) { store(Property::ColumnDownColor, properties.ColumnDownColor, value); }
void ListViewProperties::letRowHeight(Single value) { store(Property::RowHeight, properties.RowHeight, value); }
void ListViewProperties::letScrollBackColor(OLE_COLOR value) { store(Property::ScrollBackColor, properties.ScrollBackColor, value); }
void ListViewProperties::letScrollArrows(OLE_COLOR value) { store(Property::ScrollArrows, properties.ScrollArrows, value); }
void ListViewProperties::letScrollButtons(OLE_COLOR value) { store(Property::ScrollButtons, properties.ScrollButtons, value); }
void ListViewProperties::letScrollBar(OLE_COLOR value) { store(Property::ScrollBar, properties.ScrollBar, value); }
void ListViewProperties::letScrollArrowsDown(OLE_COLOR value) { store(Property::ScrollArrowsDown, properties.ScrollArrowsDown, value); }
void ListViewProperties::letScrollButtonsDown(OLE_COLOR value) { store(Property::ScrollButtonsDown, properties.ScrollButtonsDown, value); }
void ListViewProperties::letScrollBarDown(OLE_COLOR value) { store(Property::ScrollBarDown, properties.ScrollBarDown, value); }
void ListViewProperties::letScrollArrowsHover(OLE_COLOR value) { store(Property::ScrollArrowsHover, properties.ScrollArrowsHover, value); }
void ListViewProperties::letScrollButtonsHover(OLE_COLOR value) { store(Property::ScrollButtonsHover, properties.ScrollButtonsHover, value); }
void ListViewProperties::letScrollBarHover(OLE_COLOR value) { store(Property::ScrollBarHover, properties.ScrollBarHover, value); }
void ListViewProperties::letEmptyColumnFieldColor(OLE_COLOR value) { store(Property::EmptyColumnFieldColor, properties.EmptyColumnFieldColor, value); }
void ListViewProperties::letWheelFunction(cWheelFunction value) { store(Property::WheelFunction, properties.WheelFunction, value); }
void ListViewProperties::letWheelScrollLines(Long value) { store(Property::WheelScrollLines, properties.WheelScrollLines, value); }
void ListViewProperties::letDefaultIconSelectedIsIcon(bool value) { store(Property::DefaultIconSelectedIsIcon, properties.DefaultIconSelectedIsIcon, value); }
void ListViewProperties::letDrawItemIcons(bool value) { store(Property::DrawItemIcons, properties.DrawItemIcons, value); }
void ListViewProperties::letDrawColumnIcons(bool value) { store(Property::DrawColumnIcons, properties.DrawColumnIcons, value); }
void ListViewProperties::setBackgroundPicture(PictureRef picture) { store(Property::BackgroundPicture, properties.BackgroundPicture, std::move(picture)); }
void ListViewProperties::letFixColumns(bool value) { store(Property::FixColumns, properties.FixColumns, value); }
void ListViewProperties::letCheckMouseOver(bool value) { store(Property::CheckMouseOver, properties.CheckMouseOver, value); }
void ListViewProperties::letOLEDragMode(Long value) { store(Property::OLEDragMode, properties.OLEDragMode, value); }
void ListViewProperties::letAutoRowColor(bool value) { store(Property::AutoRowColor, properties.AutoRowColor, value); }
void ListViewProperties::letRowColorFirst(OLE_COLOR value) { store(Property::RowColorFirst, properties.RowColorFirst, value); }
void ListViewProperties::letRowColorSecond(OLE_COLOR value) { store(Property::RowColorSecond, properties.RowColorSecond, value); }
void ListViewProperties::letHideSelection(bool value) { store(Property::HideSelection, properties.HideSelection, value); }
void ListViewProperties::letAllowItemMoving(bool value) { store(Property::AllowItemMoving, properties.AllowItemMoving, value); }
// clang-format on

} // namespace lumtex
