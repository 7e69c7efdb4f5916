/// \file
/// The public enumerations as data.
#pragma once

#include "helpers/sp_ev.h"
#include "records/enumerations.h"
#include "words/phrase.h"

#include <array>
#include <span>

namespace lumtex::automation {

struct Enumerator {
    StringView name;
    Long number;
};

struct Enumeration {
    static constexpr std::size_t mostEnumerators = 4;

    StringView name;
    words::Phrase help;
    std::array<Enumerator, mostEnumerators> entries;
    std::size_t count;

    constexpr std::span<const Enumerator> enumerators() const { return {entries.data(), count}; }
};

/// In the order in which type libraries list them. Values are not checked anywhere: any number is stored.
// clang-format off
constexpr auto enumerationTable = std::to_array<Enumeration>({
    {u"cColorStyle", words::phrase(u"enumeration", u"cColorStyle"), {{{u"cXPBlue", cXPBlue}, {u"cXPSilver", cXPSilver}, {u"cXPOlive", cXPOlive}, {u"cCustom", cCustom}}}, 4},
    {u"cScrollColorStyle", words::phrase(u"enumeration", u"cScrollColorStyle"), {{{u"cXPScrollBlue", cXPScrollBlue}, {u"cXPScrollSilver", cXPScrollSilver}, {u"cXPScrollOlive", cXPScrollOlive}, {u"cScrollCustom", cScrollCustom}}}, 4},
    {u"cWheelFunction", words::phrase(u"enumeration", u"cWheelFunction"), {{{u"cWheelScroll", cWheelScroll}, {u"cWheelListIndex", cWheelListIndex}, {u"cWheelOff", cWheelOff}}}, 3},
    {u"cListViewStyle", words::phrase(u"enumeration", u"cListViewStyle"), {{{u"cDefault", cDefault}, {u"cCheckBoxes", cCheckBoxes}}}, 2},
    {u"cColumnHeaderAlign", words::phrase(u"enumeration", u"cColumnHeaderAlign"), {{{u"cColumnLeft", cColumnLeft}, {u"cColumnCenter", cColumnCenter}, {u"cColumnRight", cColumnRight}}}, 3},
    {u"cItemAlign", words::phrase(u"enumeration", u"cItemAlign"), {{{u"cItemLeft", cItemLeft}, {u"cItemCenter", cItemCenter}, {u"cItemRight", cItemRight}}}, 3},
    {u"cTextPosition", words::phrase(u"enumeration", u"cTextPosition"), {{{u"cTextPosTop", cTextPosTop}, {u"cTextPosCenter", cTextPosCenter}, {u"cTextPosBottom", cTextPosBottom}}}, 3},
    {u"cSortMode", words::phrase(u"enumeration", u"cSortMode"), {{{u"cAscending", cAscending}, {u"cDescending", cDescending}}}, 2},
    {u"cSortType", words::phrase(u"enumeration", u"cSortType"), {{{u"cSortText", cSortText}, {u"cSortNumeric", cSortNumeric}, {u"cSortDate", cSortDate}}}, 3},
    {u"cFindBegin", words::phrase(u"enumeration", u"cFindBegin"), {{{u"cFindStart", cFindStart}, {u"cFindContinue", cFindContinue}}}, 2},
    {u"cFindCompare", words::phrase(u"enumeration", u"cFindCompare"), {{{u"cFindBinary", cFindBinary}, {u"cFindText", cFindText}}}, 2},
    {u"cActiveXPTheme", words::phrase(u"enumeration", u"cActiveXPTheme"), {{{u"styleBlue", styleBlue}, {u"styleSilver", styleSilver}, {u"styleOlive", styleOlive}, {u"styleClassic", styleClassic}}}, 4},
    {u"cMouseButton", words::phrase(u"enumeration", u"cMouseButton"), {{{u"mouseNone", mouseNone}, {u"mouseLeft", mouseLeft}, {u"mouseRight", mouseRight}, {u"mouseMiddle", mouseMiddle}}}, 4},
});
// clang-format on

} // namespace lumtex::automation
