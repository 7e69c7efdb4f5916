/// \file
/// The properties in a record of a content file, one row each, in the order of the file.
#pragma once

#include "model/list_view.h"
#include "records/cell_style.h"

#include <tuple>
#include <type_traits>

namespace lumtex {

/// Where a cell keeps a property that it shares with all cells of its style.
template <auto member>
struct InStyle {
    static constexpr bool ofFont = false;
    static auto& of(auto& style) { return style.*member; }
};
template <auto member>
struct InFont {
    static constexpr bool ofFont = true;
    static auto& of(auto& style) { return style.font.*member; }
};
/// What few cells have.
struct TheTag {
    static constexpr bool ofFont = false;
};
struct AnIcon {
    static constexpr bool ofFont = false;
};

/// A property with its public accessors. Its form in the file follows from its type: a Boolean is an Integer,
/// a text has its length in front, an alignment is a Byte, a colour a Long, a picture a Byte that says
/// whether there is one.
template <auto getter, auto letter, class Kept>
struct ContentField {
    using Place = Kept;
    using Value = std::
        invoke_result_t<decltype(getter), lmListView&, const Variant& /*Row*/, const Variant& /*Column*/>;

    static constexpr auto get = getter;
    static constexpr auto let = letter;
    static constexpr bool isTag = std::is_same_v<Place, TheTag>;
    static constexpr bool isIcon = std::is_same_v<Place, AnIcon>;
    static constexpr bool isOfFont = Place::ofFont;
    static constexpr bool isInStyle = !isTag && !isIcon;
    static constexpr bool isColor =
        isInStyle && (std::is_same_v<Value, Variant> || std::is_same_v<Value, OLE_COLOR>);
    static constexpr bool isText = isTag || std::is_same_v<Value, String>;
};

// clang-format off
using ContentFields = std::tuple<
    ContentField<&lmListView::ItemEnabled, &lmListView::letItemEnabled, InStyle<&CellStyle::Enabled>>,
    ContentField<&lmListView::ItemFontBold, &lmListView::letItemFontBold, InFont<&FontSpec::Bold>>,
    ContentField<&lmListView::ItemFontItalic, &lmListView::letItemFontItalic, InFont<&FontSpec::Italic>>,
    ContentField<&lmListView::ItemFontUnderline, &lmListView::letItemFontUnderline, InFont<&FontSpec::Underline>>,
    ContentField<&lmListView::ItemFontStrikethrough, &lmListView::letItemFontStrikethrough, InFont<&FontSpec::Strikethrough>>,
    ContentField<&lmListView::ItemFontSize, &lmListView::letItemFontSize, InFont<&FontSpec::Size>>,
    ContentField<&lmListView::ItemFontName, &lmListView::letItemFontName, InFont<&FontSpec::Name>>,
    ContentField<&lmListView::ItemAllowEdit, &lmListView::letItemAllowEdit, InStyle<&CellStyle::AllowEdit>>,
    ContentField<&lmListView::ItemAlignment, &lmListView::letItemAlignment, InStyle<&CellStyle::Alignment>>,
    ContentField<&lmListView::ItemTag, &lmListView::letItemTag, TheTag>,
    ContentField<&lmListView::ItemForeColor, &lmListView::letItemForeColor, InStyle<&CellStyle::ForeColor>>,
    ContentField<&lmListView::ItemForeColorSelect, &lmListView::letItemForeColorSelect, InStyle<&CellStyle::ForeColorSelect>>,
    ContentField<&lmListView::ItemForeColorDis, &lmListView::letItemForeColorDis, InStyle<&CellStyle::ForeColorDis>>,
    ContentField<&lmListView::ItemBackColor, &lmListView::letItemBackColor, InStyle<&CellStyle::BackColor>>,
    ContentField<&lmListView::ItemBackColorSelect, &lmListView::letItemBackColorSelect, InStyle<&CellStyle::BackColorSelect>>,
    ContentField<&lmListView::ItemBackColorDis, &lmListView::letItemBackColorDis, InStyle<&CellStyle::BackColorDis>>,
    ContentField<&lmListView::ItemIconAlignment, &lmListView::letItemIconAlignment, InStyle<&CellStyle::IconAlignment>>,
    ContentField<&lmListView::ItemIcon, &lmListView::setItemIcon, AnIcon>,
    ContentField<&lmListView::ItemIconSelected, &lmListView::setItemIconSelected, AnIcon>>;
// clang-format on

/// Calls `visit` with each field in turn.
template <class Visit>
void forEachContentField(Visit visit) {
    std::apply([&](auto... field) { (visit(field), ...); }, ContentFields{});
}

} // namespace lumtex
