/// \file
/// One change of the list, as it is told.
#pragma once

#include "accessibility/element.h"

#include <functional>

namespace lumtex::accessibility {

enum class ChangeKind : Byte {
    focus,            ///< `element` has it now
    selected,         ///< the only selected row on the screen
    selectionAdded,   ///< one more
    selectionRemoved, ///< one less
    selectionChanged, ///< several at once; of the list
    name,             ///< the text of a cell or of a header
    value,            ///< the place of a bar, the text of the open editor
    state,            ///< a check mark, or whether the list is enabled
    rowsAdded,        ///< of the list; `count` of them
    rowsRemoved,      ///< of the list; `count` of them
    columnsChanged,   ///< of the list: columns came or went
    contents,         ///< of the list: the texts of many cells at once
    sorted,           ///< of the list, by the column of `element`'s header where it has one
    scrolled,         ///< of a bar
    shown,            ///< the editor, a bar, the headers
    hidden,
};

struct Change {
    ChangeKind kind = ChangeKind::focus;
    Element element;
    Long count = 0;

    bool operator==(const Change&) const = default;
};

using ChangeListener = std::function<void(const Change&)>;

} // namespace lumtex::accessibility
