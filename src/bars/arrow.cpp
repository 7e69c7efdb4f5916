#include "bars/arrow.h"

#include <array>

namespace lumtex::bars {

namespace {

// clang-format off
constexpr ArrowStroke upStrokes[] = {
    { 4,  9,  9,  4},
    { 5,  9,  9,  5},
    { 5, 10, 10,  5},
    {12,  9,  8,  5},
    {11,  9,  7,  5},
    {11, 10,  7,  6},
};
constexpr ArrowStroke downStrokes[] = {
    { 4,  7,  9, 12},
    { 5,  7,  9, 11},
    { 5,  6,  9, 10},
    {12,  7,  8, 11},
    {11,  7,  7, 11},
    {11,  6,  7, 10},
};
// Wanted: the level pair is no exact turn of the upright one.
constexpr ArrowStroke leftStrokes[] = {
    { 9,  4,  5,  8},
    { 9,  5,  5,  9},
    {10,  5,  5, 10},
    { 5,  8,  5,  8},
    { 5,  8, 11, 12},
    { 6,  9, 10, 13},
    { 8,  9, 11, 12},
};
constexpr ArrowStroke rightStrokes[] = {
    { 7,  4, 11,  8},
    { 7,  5, 11,  9},
    { 6,  5, 10,  9},
    {11,  8, 11,  8},
    { 9,  8,  5, 12},
    {10,  8,  6, 12},
    {10,  9,  6, 13},
};
// clang-format on

constexpr std::array<ArrowTraits, 4> allTraits{{
    {Arrow::up, u"VBtnUp", upStrokes},
    {Arrow::down, u"VBtnDown", downStrokes},
    {Arrow::left, u"VBtnLeft", leftStrokes},
    {Arrow::right, u"VBtnRight", rightStrokes},
}};

} // namespace

const ArrowTraits& traitsOf(Arrow arrow) {
    return allTraits[static_cast<std::size_t>(arrow)];
}

void DrawArrow(Surface& surface, const ArrowTraits& traits) {
    const OLE_COLOR color = surface.ForeColor();
    for (const ArrowStroke& stroke : traits.strokes) {
        if (stroke.isPixel())
            surface.pset(stroke.x1, stroke.y1, color);
        else
            surface.line(stroke.x1, stroke.y1, stroke.x2, stroke.y2, color);
    }
}

} // namespace lumtex::bars
