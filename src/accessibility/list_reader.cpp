#include "accessibility/list_reader.h"

#include "interaction/cell_editor.h"
#include "scroll/scroller.h"

#include <algorithm>

namespace lumtex::accessibility {

Long ListReader::cells(Long number) const {
    if (number < 1 || number > rows())
        return 0;
    return std::min(columns(), static_cast<Long>(row(number).items.count()));
}

bool ListReader::hasCheckBox(Long number) const {
    return core_.properties.Style == cCheckBoxes && number >= 1 && number <= columns() &&
           column(number).CheckBoxes;
}

bars::ScrollBar& ListReader::bar(const Element& element) const {
    if (element.horizontal)
        return core_.scroller->horizontal();
    return core_.scroller->vertical();
}

bool ListReader::exists(const Element& element) const {
    switch (element.kind) {
    case Kind::nothing:
        return false;
    case Kind::list:
        return true;
    case Kind::row:
        return element.row >= 1 && element.row <= rows();
    case Kind::cell:
        return element.column >= 1 && element.column <= cells(element.row);
    case Kind::checkBox:
        return element.column >= 1 && element.column <= cells(element.row) && hasCheckBox(element.column);
    case Kind::headers:
        return hasHeaders();
    case Kind::header:
        return hasHeaders() && element.column >= 1 && element.column <= columns();
    case Kind::verticalBar:
    case Kind::horizontalBar:
    case Kind::lowArrow:
    case Kind::thumb:
    case Kind::highArrow:
        return bar(element).Visible();
    case Kind::editor:
        return core_.editor->isOpen();
    }
    return false;
}

Long ListReader::currentRow() const {
    const Long index = core_.properties.ListIndex;
    return index >= 0 && index < rows() ? index + 1 : 0;
}

bool ListReader::isEnabled(const Element& element) const {
    return core_.properties.Enabled && row(element.row).Enabled && cell(element).style().Enabled;
}

} // namespace lumtex::accessibility
