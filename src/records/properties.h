/// \file
/// The stored values of the control-level properties, in declared order.
#pragma once

#include "guards/held.h"
#include "records/enumerations.h"
#include "values/references/font.h"
#include "values/references/picture.h"

namespace lumtex {

/// The height of a row on a new instance, in pixels; the property itself holds twips.
constexpr Single defaultRowHeight = 16;

/// Everything starts at zero; `UserControl_InitProperties` gives the values of a new instance. What hosts see
/// of each, and what setting it does, stands with its setter.
struct Properties {
    Held<FontRef> DefaultItemFont;
    OLE_COLOR DefaultItemForeColor = 0;
    OLE_COLOR BackColor = 0;
    OLE_COLOR BackColorDisabled = 0;
    bool Enabled = false;
    bool ClickOnIndexChange = false;
    Long ListIndex = 0; ///< 0-based; -1 for none
    cColorStyle ColorStyle = cXPBlue;
    OLE_COLOR BorderColor = 0;
    cListViewStyle Style = cDefault;
    bool FullRowSelect = false;
    bool AllowEdit = false;
    OLE_COLOR ValueColor = 0; ///< selection colour of the custom style
    bool BorderVisible = false;
    Single IndentTop = 0;    ///< pixels; stored, without effect on painting
    Single IndentLeft = 0;   ///< pixels; stored, without effect on painting
    Single IndentRight = 0;  ///< pixels; stored, without effect on painting
    Single IndentBottom = 0; ///< pixels; stored, without effect on painting
    Single DistPicText = 0;  ///< pixels between icon and text
    bool AutoCheckScroll = false;
    bool AutoRedraw = false;
    bool IconSelect = false; ///< stored, without effect on painting
    Single IconW = 0;        ///< pixels
    Single IconH = 0;        ///< pixels
    Single ColumnIconW = 0;  ///< pixels
    Single ColumnIconH = 0;  ///< pixels
    cScrollColorStyle ScrollColorStyle = cXPScrollBlue;
    bool GridLines = false;
    OLE_COLOR GridLineColor = 0;
    bool MultiSelect = false;
    Long NewIndex = 0; ///< 0-based
    bool HideColumnHeaders = false;
    Long ColumnTextY = 0; ///< pixels
    bool MoveColumnTextAtDown = false;
    Held<FontRef> DefaultColumnFont;
    OLE_COLOR DefaultColumnForeColor = 0;
    Single EmptyColumnFieldWidth = 0; ///< twips
    OLE_COLOR ColumnBackColor = 0;
    OLE_COLOR ColumnHoverColor = 0;
    OLE_COLOR ColumnDownColor = 0;
    bool RowsDynamic = false;
    Single RowHeight = 0; ///< twips
    OLE_COLOR ScrollBackColor = 0;
    OLE_COLOR ScrollArrows = 0;
    OLE_COLOR ScrollButtons = 0;
    OLE_COLOR ScrollBar = 0;
    OLE_COLOR ScrollArrowsDown = 0;
    OLE_COLOR ScrollButtonsDown = 0;
    OLE_COLOR ScrollBarDown = 0;
    OLE_COLOR ScrollArrowsHover = 0;
    OLE_COLOR ScrollButtonsHover = 0;
    OLE_COLOR ScrollBarHover = 0;
    OLE_COLOR EmptyColumnFieldColor = 0;
    cWheelFunction WheelFunction = cWheelScroll;
    Long WheelScrollLines = 0;
    bool DefaultIconSelectedIsIcon = false;
    Long ScrollButtonJumpLines = 0;
    cTextPosition TextPositionDefault = cTextPosTop;
    bool DrawItemIcons = false;
    bool DrawColumnIcons = false;
    Held<PictureRef> BackgroundPicture;
    Held<PictureRef> Skin;
    bool FixColumns = false;
    bool CheckMouseOver = false;
    Long OLEDragMode = 0;
    Long OLEDropMode = 0;
    bool AutoRowColor = false;
    OLE_COLOR RowColorFirst = 0;
    OLE_COLOR RowColorSecond = 0;
    bool HideSelection = false;
    bool AllowItemMoving = false;
};

} // namespace lumtex
