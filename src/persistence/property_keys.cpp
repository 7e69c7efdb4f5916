/// The 69 keys of the property bag, in the order in which they are read.
#include "persistence/property_keys.h"

namespace lumtex {

namespace {

template <auto get, auto let>
PropertyKey bagKey(StringView name, Variant byDefault) {
    using Value = std::remove_cvref_t<std::invoke_result_t<decltype(get), const lmListView&>>;
    return {name,
            std::move(byDefault),
            [](const lmListView& list) { return toVariant((list.*get)()); },
            [](lmListView& list, const Variant& value) { (list.*let)(fromVariant<Value>(value)); }};
}

} // namespace

std::vector<PropertyKey> lmListView::propertyKeys() const {
    const Single rowHeight = scaleY(listWindow->surface(), defaultRowHeight, pixels, twips);
    // clang-format off
    return {
        bagKey<&lmListView::DefaultItemFont, &lmListView::setDefaultItemFont>(u"DefaultItemFont", lblFont),
        bagKey<&lmListView::DefaultItemForeColor, &lmListView::letDefaultItemForeColor>(u"DefaultItemForeColor", OLE_COLOR{0}),
        bagKey<&lmListView::BackColor, &lmListView::letBackColor>(u"BackColor", OLE_COLOR{white}),
        bagKey<&lmListView::BackColorDisabled, &lmListView::letBackColorDisabled>(u"BackColorDisabled", OLE_COLOR{white}),
        bagKey<&lmListView::Enabled, &lmListView::letEnabled>(u"Enabled", true),
        bagKey<&lmListView::ClickOnIndexChange, &lmListView::letClickOnIndexChange>(u"ClickOnIndexChange", false),
        bagKey<&lmListView::ColorStyle, &lmListView::letColorStyle>(u"ColorStyle", Long{cXPBlue}),
        bagKey<&lmListView::BorderColor, &lmListView::letBorderColor>(u"BorderColor", OLE_COLOR{0}),
        bagKey<&lmListView::Style, &lmListView::letStyle>(u"Style", Long{cDefault}),
        bagKey<&lmListView::FullRowSelect, &lmListView::letFullRowSelect>(u"FullRowSelect", true),
        bagKey<&lmListView::AllowEdit, &lmListView::letAllowEdit>(u"AllowEdit", false),
        bagKey<&lmListView::ValueColor, &lmListView::letValueColor>(u"ValueColor", OLE_COLOR{0xFF0000}),
        bagKey<&lmListView::BorderVisible, &lmListView::letBorderVisible>(u"BorderVisible", true),
        bagKey<&lmListView::IndentTop, &lmListView::letIndentTop>(u"IndentTop", Single{3}),
        bagKey<&lmListView::IndentLeft, &lmListView::letIndentLeft>(u"IndentLeft", Single{3}),
        bagKey<&lmListView::IndentRight, &lmListView::letIndentRight>(u"IndentRight", Single{3}),
        bagKey<&lmListView::IndentBottom, &lmListView::letIndentBottom>(u"IndentBottom", Single{3}),
        bagKey<&lmListView::DistPicText, &lmListView::letDistPicText>(u"DistPicText", Single{2}),
        bagKey<&lmListView::AutoCheckScroll, &lmListView::letAutoCheckScroll>(u"AutoCheckScroll", true),
        bagKey<&lmListView::IconSelect, &lmListView::letIconSelect>(u"IconSelect", true),
        bagKey<&lmListView::IconW, &lmListView::letIconW>(u"IconW", Single{16}),
        bagKey<&lmListView::IconH, &lmListView::letIconH>(u"IconH", Single{16}),
        bagKey<&lmListView::ColumnIconW, &lmListView::letColumnIconW>(u"ColumnIconW", Single{16}),
        bagKey<&lmListView::ColumnIconH, &lmListView::letColumnIconH>(u"ColumnIconH", Single{16}),
        bagKey<&lmListView::ScrollColorStyle, &lmListView::letScrollColorStyle>(u"ScrollColorStyle", Long{cXPScrollBlue}),
        bagKey<&lmListView::GridLines, &lmListView::letGridLines>(u"GridLines", false),
        bagKey<&lmListView::GridLineColor, &lmListView::letGridLineColor>(u"GridLineColor", OLE_COLOR{0xC0C0C0}),
        bagKey<&lmListView::MultiSelect, &lmListView::letMultiSelect>(u"MultiSelect", false),
        bagKey<&lmListView::HideColumnHeaders, &lmListView::letHideColumnHeaders>(u"HideColumnHeaders", false),
        bagKey<&lmListView::ColumnTextY, &lmListView::letColumnTextY>(u"ColumnTextY", Long{2}),
        bagKey<&lmListView::MoveColumnTextAtDown, &lmListView::letMoveColumnTextAtDown>(u"MoveColumnTextAtDown", false),
        bagKey<&lmListView::DefaultColumnFont, &lmListView::setDefaultColumnFont>(u"DefaultColumnFont", lblFont),
        bagKey<&lmListView::DefaultColumnForeColor, &lmListView::letDefaultColumnForeColor>(u"DefaultColumnForeColor", OLE_COLOR{0}),
        bagKey<&lmListView::EmptyColumnFieldWidth, &lmListView::letEmptyColumnFieldWidth>(u"EmptyColumnFieldWidth", Single{0}),
        bagKey<&lmListView::ColumnBackColor, &lmListView::letColumnBackColor>(u"ColumnBackColor", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::ColumnDownColor, &lmListView::letColumnDownColor>(u"ColumnDownColor", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::ColumnHoverColor, &lmListView::letColumnHoverColor>(u"ColumnHoverColor", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::RowsDynamic, &lmListView::letRowsDynamic>(u"RowsDynamic", true),
        bagKey<&lmListView::RowHeight, &lmListView::letRowHeight>(u"RowHeight", rowHeight),
        bagKey<&lmListView::AutoRedraw, &lmListView::letAutoRedraw>(u"AutoRedraw", true),
        bagKey<&lmListView::ScrollBackColor, &lmListView::letScrollBackColor>(u"ScrollBackColor", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::ScrollArrows, &lmListView::letScrollArrows>(u"ScrollArrows", OLE_COLOR{0}),
        bagKey<&lmListView::ScrollButtons, &lmListView::letScrollButtons>(u"ScrollButtons", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::ScrollBar, &lmListView::letScrollBar>(u"ScrollBar", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::ScrollArrowsDown, &lmListView::letScrollArrowsDown>(u"ScrollArrowsDown", OLE_COLOR{0}),
        bagKey<&lmListView::ScrollButtonsDown, &lmListView::letScrollButtonsDown>(u"ScrollButtonsDown", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::ScrollBarDown, &lmListView::letScrollBarDown>(u"ScrollBarDown", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::ScrollArrowsHover, &lmListView::letScrollArrowsHover>(u"ScrollArrowsHover", OLE_COLOR{0}),
        bagKey<&lmListView::ScrollButtonsHover, &lmListView::letScrollButtonsHover>(u"ScrollButtonsHover", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::ScrollBarHover, &lmListView::letScrollBarHover>(u"ScrollBarHover", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::EmptyColumnFieldColor, &lmListView::letEmptyColumnFieldColor>(u"EmptyColumnFieldColor", OLE_COLOR{buttonFace}),
        bagKey<&lmListView::WheelFunction, &lmListView::letWheelFunction>(u"WheelFunction", Long{cWheelScroll}),
        bagKey<&lmListView::DefaultIconSelectedIsIcon, &lmListView::letDefaultIconSelectedIsIcon>(u"DefaultIconSelectedIsIcon", true),
        bagKey<&lmListView::WheelScrollLines, &lmListView::letWheelScrollLines>(u"WheelScrollLines", Long{1}),
        bagKey<&lmListView::ScrollButtonJumpLines, &lmListView::letScrollButtonJumpLines>(u"ScrollButtonJumpLines", defaultJumpLines()),
        bagKey<&lmListView::TextPositionDefault, &lmListView::letTextPositionDefault>(u"TextPositionDefault", Long{cTextPosCenter}),
        bagKey<&lmListView::DrawItemIcons, &lmListView::letDrawItemIcons>(u"DrawItemIcons", true),
        bagKey<&lmListView::DrawColumnIcons, &lmListView::letDrawColumnIcons>(u"DrawColumnIcons", true),
        bagKey<&lmListView::BackgroundPicture, &lmListView::setBackgroundPicture>(u"BackgroundPicture", PictureRef{}),
        bagKey<&lmListView::Skin, &lmListView::setSkin>(u"Skin", PictureRef{}),
        bagKey<&lmListView::FixColumns, &lmListView::letFixColumns>(u"FixColumns", false),
        bagKey<&lmListView::CheckMouseOver, &lmListView::letCheckMouseOver>(u"CheckMouseOver", false),
        bagKey<&lmListView::OLEDropMode, &lmListView::letOLEDropMode>(u"OLEDropMode", Integer{0}),
        bagKey<&lmListView::OLEDragMode, &lmListView::letOLEDragMode>(u"OLEDragMode", Integer{0}),
        bagKey<&lmListView::AutoRowColor, &lmListView::letAutoRowColor>(u"AutoRowColor", false),
        bagKey<&lmListView::RowColorFirst, &lmListView::letRowColorFirst>(u"RowColorFirst", OLE_COLOR{white}),
        bagKey<&lmListView::RowColorSecond, &lmListView::letRowColorSecond>(u"RowColorSecond", OLE_COLOR{white}),
        bagKey<&lmListView::HideSelection, &lmListView::letHideSelection>(u"HideSelection", false),
        bagKey<&lmListView::AllowItemMoving, &lmListView::letAllowItemMoving>(u"AllowItemMoving", false),
    };
    // clang-format on
}

} // namespace lumtex
