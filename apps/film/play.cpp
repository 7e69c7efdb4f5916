#include "play.h"

#include "platform/keys.h"

#include <array>

namespace lumtex::film {

namespace {

using namespace std::chrono_literals;

constexpr Single width = 520;  // pixels
constexpr Single height = 296; // pixels

// Pixels of the list's own, where the user aims.
constexpr Single overHeaders = 9;
constexpr Single overBar = 511;
constexpr Single firstRow = 33; // the middle of the uppermost row
constexpr Single rowStep = 17;

/// Name, symbol, what it is at 20 degrees, number.
constexpr std::array<const char16_t*, 36> elements = {{
    u"Hydrogen,H,gas,1",      u"Helium,He,gas,2",      u"Lithium,Li,solid,3",    u"Beryllium,Be,solid,4",
    u"Boron,B,solid,5",       u"Carbon,C,solid,6",     u"Nitrogen,N,gas,7",      u"Oxygen,O,gas,8",
    u"Fluorine,F,gas,9",      u"Neon,Ne,gas,10",       u"Sodium,Na,solid,11",    u"Magnesium,Mg,solid,12",
    u"Aluminium,Al,solid,13", u"Silicon,Si,solid,14",  u"Phosphorus,P,solid,15", u"Sulfur,S,solid,16",
    u"Chlorine,Cl,gas,17",    u"Argon,Ar,gas,18",      u"Potassium,K,solid,19",  u"Calcium,Ca,solid,20",
    u"Scandium,Sc,solid,21",  u"Titanium,Ti,solid,22", u"Vanadium,V,solid,23",   u"Chromium,Cr,solid,24",
    u"Manganese,Mn,solid,25", u"Iron,Fe,solid,26",     u"Cobalt,Co,solid,27",    u"Nickel,Ni,solid,28",
    u"Copper,Cu,solid,29",    u"Zinc,Zn,solid,30",     u"Gallium,Ga,solid,31",   u"Germanium,Ge,solid,32",
    u"Arsenic,As,solid,33",   u"Selenium,Se,solid,34", u"Bromine,Br,liquid,35",  u"Krypton,Kr,gas,36",
}};

} // namespace

Play::Play(std::shared_ptr<raster::FontLibrary> fonts) : desktop_(std::move(fonts)) {
    fill();
    acts_ = {{"hover", [this] { hover(); }},
             {"sort", [this] { sort(); }},
             {"select", [this] { select(); }},
             {"scroll", [this] { scroll(); }},
             {"edit", [this] { edit(); }}};
}

void Play::fill() {
    list_.UserControl_ReadProperties(MemoryPropertyBag{}); // no saved settings
    list_.letAutoRedraw(false);
    list_.window().place(0, 0, width, height);
    list_.letStyle(cCheckBoxes);
    list_.letMultiSelect(true);
    list_.letAllowEdit(true);
    list_.ColumnsAdd(u"Element", nullptr, nullptr, nullptr, cColumnLeft, 2700);
    list_.ColumnsAdd(u"Symbol", nullptr, nullptr, nullptr, cColumnCenter, 1350);
    list_.ColumnsAdd(u"At 20 \u00B0C", nullptr, nullptr, nullptr, cColumnLeft, 2085);
    list_.ColumnsAdd(u"Number", nullptr, nullptr, nullptr, cColumnRight, 1350);
    list_.letColumnCheckBoxes(1, true);
    for (Long column = 1; column <= list_.ColumnsCount(); ++column)
        list_.letColumnAllowSorting(column, true);
    for (const char16_t* element : elements)
        list_.RowsAdd(-1, u",", element);
    for (Long row = 1; row <= list_.RowsCount(); ++row) {
        list_.letItemAllowEdit(row, 1, true);
        list_.letItemAlignment(row, 2, cItemCenter);
        list_.letItemAlignment(row, 4, cItemRight);
    }
    list_.letAutoRedraw(true);
    list_.CheckScroll();
    list_.Redraw();
    desktop_.run();
    desktop_.move(list_.window(), 330, 150);
}

Single Play::middleOf(StringView element) {
    Long row = 1;
    while (list_.ItemText(row, 1) != element)
        ++row;
    return firstRow + rowStep * static_cast<Single>(row - 1 - list_.TopIndex());
}

void Play::hover() {
    camera_.say(u"A header under the pointer lights up");
    hand_.goTo(280, overHeaders);
    hand_.goTo(90, overHeaders);
}

void Play::sort() {
    camera_.say(u"A click sorts, and another one the other way round");
    hand_.click(90, overHeaders);
    hand_.click(90, overHeaders);
}

void Play::select() {
    camera_.say(u"A click selects a row; Shift and a click, all up to another");
    hand_.click(120, middleOf(u"Arsenic"));
    desktop_.keyDown(keys::shift);
    hand_.click(140, middleOf(u"Carbon"));
    desktop_.keyUp(keys::shift);
}

void Play::scroll() {
    camera_.say(u"The wheel scrolls, and so does the bar");
    hand_.wheel(-3);
    hand_.drag(overBar, 100, overBar, 117);
}

void Play::edit() {
    camera_.say(u"A second click on a cell opens the editor");
    hand_.click(150, middleOf(u"Sulfur"));
    hand_.click(150, middleOf(u"Sulfur"));
    hand_.type(u"Sulphur"); // over the old text, which is selected at first
    hand_.key(keys::enter);
    camera_.film(600ms);
}

} // namespace lumtex::film
