/// Bringing saved settings back.
#include "model/list_view.h"

namespace lumtex {

void lmListView::UserControl_ReadProperties(const PropertyBag& bag) {
    Procedure p = procedure(u"UserControl_ReadProperties");
    takeContainersFont();
    recogniseProgram();
    // A value that cannot be used is reported, and reading goes on with the next key.
    const auto read = [&](StringView key, const Variant& byDefault, auto assign) {
        p.step([&] { assign(bag.ReadProperty(key, byDefault)); });
    };
    const Single rowHeight = scaleY(window_->surface(), 16, pixels, twips);

    p.step([&] { paint_.paintBusy = true; });
    // clang-format off
    read(u"DefaultItemFont", lblFont, [&](const Variant& v) { setDefaultItemFont(v.toFont()); });
    read(u"DefaultItemForeColor", OLE_COLOR{0}, [&](const Variant& v) { letDefaultItemForeColor(v.toColor()); });
    read(u"BackColor", OLE_COLOR{white}, [&](const Variant& v) { letBackColor(v.toColor()); });
    read(u"BackColorDisabled", OLE_COLOR{white}, [&](const Variant& v) { letBackColorDisabled(v.toColor()); });
    read(u"Enabled", true, [&](const Variant& v) { letEnabled(v.toBoolean()); });
    read(u"ClickOnIndexChange", false, [&](const Variant& v) { letClickOnIndexChange(v.toBoolean()); });
    read(u"ColorStyle", Long{cXPBlue}, [&](const Variant& v) { letColorStyle(static_cast<cColorStyle>(v.toLong())); });
    read(u"BorderColor", OLE_COLOR{0}, [&](const Variant& v) { letBorderColor(v.toColor()); });
    read(u"Style", Long{cDefault}, [&](const Variant& v) { letStyle(static_cast<cListViewStyle>(v.toLong())); });
    read(u"FullRowSelect", true, [&](const Variant& v) { letFullRowSelect(v.toBoolean()); });
    read(u"AllowEdit", false, [&](const Variant& v) { letAllowEdit(v.toBoolean()); });
    read(u"ValueColor", OLE_COLOR{0xFF0000}, [&](const Variant& v) { letValueColor(v.toColor()); });
    read(u"BorderVisible", true, [&](const Variant& v) { letBorderVisible(v.toBoolean()); });
    read(u"IndentTop", Single{3}, [&](const Variant& v) { letIndentTop(v.toSingle()); });
    read(u"IndentLeft", Single{3}, [&](const Variant& v) { letIndentLeft(v.toSingle()); });
    read(u"IndentRight", Single{3}, [&](const Variant& v) { letIndentRight(v.toSingle()); });
    read(u"IndentBottom", Single{3}, [&](const Variant& v) { letIndentBottom(v.toSingle()); });
    read(u"DistPicText", Single{2}, [&](const Variant& v) { letDistPicText(v.toSingle()); });
    read(u"AutoCheckScroll", true, [&](const Variant& v) { letAutoCheckScroll(v.toBoolean()); });
    read(u"IconSelect", true, [&](const Variant& v) { letIconSelect(v.toBoolean()); });
    read(u"IconW", Single{16}, [&](const Variant& v) { letIconW(v.toSingle()); });
    read(u"IconH", Single{16}, [&](const Variant& v) { letIconH(v.toSingle()); });
    read(u"ColumnIconW", Single{16}, [&](const Variant& v) { letColumnIconW(v.toSingle()); });
    read(u"ColumnIconH", Single{16}, [&](const Variant& v) { letColumnIconH(v.toSingle()); });
    read(u"ScrollColorStyle", Long{cXPScrollBlue}, [&](const Variant& v) { letScrollColorStyle(static_cast<cScrollColorStyle>(v.toLong())); });
    read(u"GridLines", false, [&](const Variant& v) { letGridLines(v.toBoolean()); });
    read(u"GridLineColor", OLE_COLOR{0xC0C0C0}, [&](const Variant& v) { letGridLineColor(v.toColor()); });
    read(u"MultiSelect", false, [&](const Variant& v) { letMultiSelect(v.toBoolean()); });
    read(u"HideColumnHeaders", false, [&](const Variant& v) { letHideColumnHeaders(v.toBoolean()); });
    read(u"ColumnTextY", Long{2}, [&](const Variant& v) { letColumnTextY(v.toLong()); });
    read(u"MoveColumnTextAtDown", false, [&](const Variant& v) { letMoveColumnTextAtDown(v.toBoolean()); });
    read(u"DefaultColumnFont", lblFont, [&](const Variant& v) { setDefaultColumnFont(v.toFont()); });
    read(u"DefaultColumnForeColor", OLE_COLOR{0}, [&](const Variant& v) { letDefaultColumnForeColor(v.toColor()); });
    read(u"EmptyColumnFieldWidth", Single{0}, [&](const Variant& v) { letEmptyColumnFieldWidth(v.toSingle()); });
    read(u"ColumnBackColor", OLE_COLOR{buttonFace}, [&](const Variant& v) { letColumnBackColor(v.toColor()); });
    read(u"ColumnDownColor", OLE_COLOR{buttonFace}, [&](const Variant& v) { letColumnDownColor(v.toColor()); });
    read(u"ColumnHoverColor", OLE_COLOR{buttonFace}, [&](const Variant& v) { letColumnHoverColor(v.toColor()); });
    read(u"RowsDynamic", true, [&](const Variant& v) { letRowsDynamic(v.toBoolean()); });
    read(u"RowHeight", rowHeight, [&](const Variant& v) { letRowHeight(v.toSingle()); });
    read(u"AutoRedraw", true, [&](const Variant& v) { letAutoRedraw(v.toBoolean()); });
    read(u"ScrollBackColor", OLE_COLOR{buttonFace}, [&](const Variant& v) { letScrollBackColor(v.toColor()); });
    read(u"ScrollArrows", OLE_COLOR{0}, [&](const Variant& v) { letScrollArrows(v.toColor()); });
    read(u"ScrollButtons", OLE_COLOR{buttonFace}, [&](const Variant& v) { letScrollButtons(v.toColor()); });
    read(u"ScrollBar", OLE_COLOR{buttonFace}, [&](const Variant& v) { letScrollBar(v.toColor()); });
    read(u"ScrollArrowsDown", OLE_COLOR{0}, [&](const Variant& v) { letScrollArrowsDown(v.toColor()); });
    read(u"ScrollButtonsDown", OLE_COLOR{buttonFace}, [&](const Variant& v) { letScrollButtonsDown(v.toColor()); });
    read(u"ScrollBarDown", OLE_COLOR{buttonFace}, [&](const Variant& v) { letScrollBarDown(v.toColor()); });
    read(u"ScrollArrowsHover", OLE_COLOR{0}, [&](const Variant& v) { letScrollArrowsHover(v.toColor()); });
    read(u"ScrollButtonsHover", OLE_COLOR{buttonFace}, [&](const Variant& v) { letScrollButtonsHover(v.toColor()); });
    read(u"ScrollBarHover", OLE_COLOR{buttonFace}, [&](const Variant& v) { letScrollBarHover(v.toColor()); });
    read(u"EmptyColumnFieldColor", OLE_COLOR{buttonFace}, [&](const Variant& v) { letEmptyColumnFieldColor(v.toColor()); });
    read(u"WheelFunction", Long{cWheelScroll}, [&](const Variant& v) { letWheelFunction(static_cast<cWheelFunction>(v.toLong())); });
    read(u"DefaultIconSelectedIsIcon", true, [&](const Variant& v) { letDefaultIconSelectedIsIcon(v.toBoolean()); });
    read(u"WheelScrollLines", Long{1}, [&](const Variant& v) { letWheelScrollLines(v.toLong()); });
    read(u"ScrollButtonJumpLines", defaultJumpLines(), [&](const Variant& v) { letScrollButtonJumpLines(v.toLong()); });
    read(u"TextPositionDefault", Long{cTextPosCenter}, [&](const Variant& v) { letTextPositionDefault(static_cast<cTextPosition>(v.toLong())); });
    read(u"DrawItemIcons", true, [&](const Variant& v) { letDrawItemIcons(v.toBoolean()); });
    read(u"DrawColumnIcons", true, [&](const Variant& v) { letDrawColumnIcons(v.toBoolean()); });
    read(u"BackgroundPicture", PictureRef{}, [&](const Variant& v) { setBackgroundPicture(v.toPicture()); });
    read(u"Skin", PictureRef{}, [&](const Variant& v) { setSkin(v.toPicture()); });
    read(u"FixColumns", false, [&](const Variant& v) { letFixColumns(v.toBoolean()); });
    read(u"CheckMouseOver", false, [&](const Variant& v) { letCheckMouseOver(v.toBoolean()); });
    read(u"OLEDropMode", Integer{0}, [&](const Variant& v) { letOLEDropMode(v.toInteger()); });
    read(u"OLEDragMode", Integer{0}, [&](const Variant& v) { letOLEDragMode(v.toInteger()); });
    read(u"AutoRowColor", false, [&](const Variant& v) { letAutoRowColor(v.toBoolean()); });
    read(u"RowColorFirst", OLE_COLOR{white}, [&](const Variant& v) { letRowColorFirst(v.toColor()); });
    read(u"RowColorSecond", OLE_COLOR{white}, [&](const Variant& v) { letRowColorSecond(v.toColor()); });
    read(u"HideSelection", false, [&](const Variant& v) { letHideSelection(v.toBoolean()); });
    read(u"AllowItemMoving", false, [&](const Variant& v) { letAllowItemMoving(v.toBoolean()); });
    // clang-format on
    p.step([&] { paint_.paintBusy = false; });

    RowsClear();
    ColumnsClear();
    letListIndex(-1);
    selection_.selectionAnchor = -1;
    headerPress_.pressedColumn = -1;
    headerPress_.hoverColumn = -1;
    sort_.sortColumn = -1;
    sort_.sortAscending = 1;
    selection_.selectOnIndexSet = true;
    edit_.lastClickColumn = -1;
    move_.moveTargetRow = -1;
    p.step([&] { tmrMouseIn->letEnabled(false); });
    p.step([&] { tmrMouseAction->letEnabled(false); });
    if (!designMode()) {
        Wheel1->lethWndCapture(hwnd());
        Wheel1->EnableWheel();
    }
    Redraw();
}

} // namespace lumtex
