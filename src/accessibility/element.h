/// \file
/// What the list consists of, for those who cannot see it.
#pragma once

#include "values/types.h"

namespace lumtex::accessibility {

enum class Kind : Byte {
    nothing,
    list,
    row,
    cell,
    checkBox,
    headers, ///< the band of all headers
    header,
    verticalBar,
    horizontalBar,
    lowArrow, ///< at the top or the left end of a bar
    thumb,
    highArrow,
    editor,
};

/// Names one thing in the list. A plain value: it stays what it is when rows come and go, so that row 5 is
/// whichever row stands fifth, and may name what is not there.
struct Element {
    Kind kind = Kind::nothing;
    Long row = 0;            ///< from 1, of a row, a cell and a check box
    Long column = 0;         ///< from 1, of a header, a cell and a check box
    bool horizontal = false; ///< the bar of an arrow and a thumb

    bool operator==(const Element&) const = default;
};

constexpr Element nothing{};
constexpr Element theList{Kind::list};
constexpr Element theHeaders{Kind::headers};
constexpr Element theEditor{Kind::editor};
constexpr Element verticalBar{Kind::verticalBar};
constexpr Element horizontalBar{Kind::horizontalBar, 0, 0, true};
constexpr Element rowElement(Long row) {
    return {Kind::row, row};
}
constexpr Element cellElement(Long row, Long column) {
    return {Kind::cell, row, column};
}
constexpr Element checkBoxElement(Long row, Long column) {
    return {Kind::checkBox, row, column};
}
constexpr Element headerElement(Long column) {
    return {Kind::header, 0, column};
}

/// What is true of an element; a set of bits.
enum State : Long {
    gone = 1 << 0,        ///< is not there, or no more; nothing else is true of it then
    unavailable = 1 << 1, ///< does nothing: the list or the cell is disabled
    invisible = 1 << 2,   ///< would not show anywhere, as a column without width
    offscreen = 1 << 3,   ///< has no place on the surface now, but can be scrolled to
    focusable = 1 << 4,
    focused = 1 << 5, ///< where the keys go, once the list has the keyboard
    selectable = 1 << 6,
    multiSelectable = 1 << 7,
    selected = 1 << 8,
    checkable = 1 << 9,
    checked = 1 << 10,
    editable = 1 << 11, ///< its text may be changed by `setValue`
    sortedUp = 1 << 12, ///< the column that the rows were last sorted by
    sortedDown = 1 << 13,
    hot = 1 << 14, ///< under the pointer
    pressed = 1 << 15,
};
using States = Long;

enum class Direction : Byte { parent, firstChild, lastChild, next, previous, up, down, left, right };

} // namespace lumtex::accessibility
