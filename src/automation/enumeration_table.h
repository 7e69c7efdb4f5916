/// \file
/// The public enumerations as data.
#pragma once

#include "model/enumerations.h"
#include "services/sp_ev.h"

#include <array>
#include <span>

namespace lumtex {

struct Enumerator {
    StringView name;
    Long number;
};

struct Enumeration {
    static constexpr std::size_t mostEnumerators = 4;

    StringView name;
    StringView help; ///< one line
    std::array<Enumerator, mostEnumerators> slots;
    std::size_t count;

    constexpr std::span<const Enumerator> enumerators() const { return {slots.data(), count}; }
};

/// In the order in which type libraries list them. Values are not checked anywhere: any number is stored.
// clang-format off
constexpr auto enumerationTable = std::to_array<Enumeration>({
    {u"cColorStyle", u"Scheme of headers and selection.", {{{u"cXPBlue", cXPBlue}, {u"cXPSilver", cXPSilver}, {u"cXPOlive", cXPOlive}, {u"cCustom", cCustom}}}, 4},
    {u"cScrollColorStyle", u"Scheme of the scroll bars.", {{{u"cXPScrollBlue", cXPScrollBlue}, {u"cXPScrollSilver", cXPScrollSilver}, {u"cXPScrollOlive", cXPScrollOlive}, {u"cScrollCustom", cScrollCustom}}}, 4},
    {u"cWheelFunction", u"What the mouse wheel moves.", {{{u"cWheelScroll", cWheelScroll}, {u"cWheelListIndex", cWheelListIndex}, {u"cWheelOff", cWheelOff}}}, 3},
    {u"cListViewStyle", u"Whether rows show check boxes.", {{{u"cDefault", cDefault}, {u"cCheckBoxes", cCheckBoxes}}}, 2},
    {u"cColumnHeaderAlign", u"Place of text or icon in a header.", {{{u"cColumnLeft", cColumnLeft}, {u"cColumnCenter", cColumnCenter}, {u"cColumnRight", cColumnRight}}}, 3},
    {u"cItemAlign", u"Place of text or icon in a cell.", {{{u"cItemLeft", cItemLeft}, {u"cItemCenter", cItemCenter}, {u"cItemRight", cItemRight}}}, 3},
    {u"cTextPosition", u"Vertical place of the text in its row.", {{{u"cTextPosTop", cTextPosTop}, {u"cTextPosCenter", cTextPosCenter}, {u"cTextPosBottom", cTextPosBottom}}}, 3},
    {u"cSortMode", u"Order of a sort.", {{{u"cAscending", cAscending}, {u"cDescending", cDescending}}}, 2},
    {u"cSortType", u"What the texts of a sorted column are compared as.", {{{u"cSortText", cSortText}, {u"cSortNumeric", cSortNumeric}, {u"cSortDate", cSortDate}}}, 3},
    {u"cFindBegin", u"Where a search starts.", {{{u"cFindStart", cFindStart}, {u"cFindContinue", cFindContinue}}}, 2},
    {u"cFindCompare", u"How a search compares letters.", {{{u"cFindBinary", cFindBinary}, {u"cFindText", cFindText}}}, 2},
    {u"cActiveXPTheme", u"Colour scheme of the user's desktop.", {{{u"styleBlue", styleBlue}, {u"styleSilver", styleSilver}, {u"styleOlive", styleOlive}, {u"styleClassic", styleClassic}}}, 4},
    {u"cMouseButton", u"Mouse button that is down.", {{{u"mouseNone", mouseNone}, {u"mouseLeft", mouseLeft}, {u"mouseRight", mouseRight}, {u"mouseMiddle", mouseMiddle}}}, 4},
});
// clang-format on

} // namespace lumtex
