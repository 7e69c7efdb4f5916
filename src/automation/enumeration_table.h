/// \file
/// The public enumerations as data.
#pragma once

#include "helpers/sp_ev.h"
#include "model/help.h"
#include "records/enumerations.h"

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
    Help help;
    std::array<Enumerator, mostEnumerators> entries;
    std::size_t count;

    constexpr std::span<const Enumerator> enumerators() const { return {entries.data(), count}; }
};

/// In the order in which type libraries list them. Values are not checked anywhere: any number is stored.
// clang-format off
constexpr auto enumerationTable = std::to_array<Enumeration>({
    {u"cColorStyle", {u"Scheme of headers, selection and border.", u"Farbschema der Spaltenköpfe, der Auswahl und des Rahmens."}, {{{u"cXPBlue", cXPBlue}, {u"cXPSilver", cXPSilver}, {u"cXPOlive", cXPOlive}, {u"cCustom", cCustom}}}, 4},
    {u"cScrollColorStyle", {u"Scheme of the scroll bars.", u"Farbschema der Bildlaufleisten."}, {{{u"cXPScrollBlue", cXPScrollBlue}, {u"cXPScrollSilver", cXPScrollSilver}, {u"cXPScrollOlive", cXPScrollOlive}, {u"cScrollCustom", cScrollCustom}}}, 4},
    {u"cWheelFunction", {u"What the mouse wheel moves.", u"Was das Mausrad bewegt."}, {{{u"cWheelScroll", cWheelScroll}, {u"cWheelListIndex", cWheelListIndex}, {u"cWheelOff", cWheelOff}}}, 3},
    {u"cListViewStyle", {u"Whether the list may show check boxes.", u"Ob die Liste Kontrollkästchen zeigen kann."}, {{{u"cDefault", cDefault}, {u"cCheckBoxes", cCheckBoxes}}}, 2},
    {u"cColumnHeaderAlign", {u"Place of text or icon in a header.", u"Lage von Text oder Symbol im Spaltenkopf."}, {{{u"cColumnLeft", cColumnLeft}, {u"cColumnCenter", cColumnCenter}, {u"cColumnRight", cColumnRight}}}, 3},
    {u"cItemAlign", {u"Place of text or icon in a cell.", u"Lage von Text oder Symbol in einer Zelle."}, {{{u"cItemLeft", cItemLeft}, {u"cItemCenter", cItemCenter}, {u"cItemRight", cItemRight}}}, 3},
    {u"cTextPosition", {u"Vertical place of the text in its row.", u"Senkrechte Lage des Texts in seiner Zeile."}, {{{u"cTextPosTop", cTextPosTop}, {u"cTextPosCenter", cTextPosCenter}, {u"cTextPosBottom", cTextPosBottom}}}, 3},
    {u"cSortMode", {u"Order of a sort.", u"Reihenfolge einer Sortierung."}, {{{u"cAscending", cAscending}, {u"cDescending", cDescending}}}, 2},
    {u"cSortType", {u"What the texts of a sorted column are compared as.", u"Als was die Texte einer sortierten Spalte verglichen werden."}, {{{u"cSortText", cSortText}, {u"cSortNumeric", cSortNumeric}, {u"cSortDate", cSortDate}}}, 3},
    {u"cFindBegin", {u"Where a search starts.", u"Wo eine Suche beginnt."}, {{{u"cFindStart", cFindStart}, {u"cFindContinue", cFindContinue}}}, 2},
    {u"cFindCompare", {u"How a search compares letters.", u"Wie eine Suche Buchstaben vergleicht."}, {{{u"cFindBinary", cFindBinary}, {u"cFindText", cFindText}}}, 2},
    {u"cActiveXPTheme", {u"Colour scheme of the user's desktop.", u"Farbschema des Desktops."}, {{{u"styleBlue", styleBlue}, {u"styleSilver", styleSilver}, {u"styleOlive", styleOlive}, {u"styleClassic", styleClassic}}}, 4},
    {u"cMouseButton", {u"Mouse button that is down.", u"Gedrückte Maustaste."}, {{{u"mouseNone", mouseNone}, {u"mouseLeft", mouseLeft}, {u"mouseRight", mouseRight}, {u"mouseMiddle", mouseMiddle}}}, 4},
});
// clang-format on

} // namespace lumtex::automation
