/// Which element stands below, beside and above which.
#include "accessibility/accessible_list.h"
#include "accessibility/list_reader.h"
#include "interaction/cell_editor.h"

#include <array>

namespace lumtex::accessibility {

namespace {

/// Behind the rows, in this order, as far as they are there.
constexpr std::array<Element, 4> besidesRows{theHeaders, verticalBar, horizontalBar, theEditor};
constexpr Long partsOfBar = 3;

constexpr Element partOfBar(const Element& bar, Long number) {
    constexpr std::array<Kind, partsOfBar> parts{Kind::lowArrow, Kind::thumb, Kind::highArrow};
    if (number < 1 || number > partsOfBar)
        return nothing;
    return {parts[static_cast<std::size_t>(number) - 1], 0, 0, bar.horizontal};
}

Long countBesidesRows(const ListReader& reader) {
    Long count = 0;
    for (const Element& element : besidesRows)
        count += reader.exists(element) ? 1 : 0;
    return count;
}

Element besideRows(const ListReader& reader, Long number) {
    for (const Element& element : besidesRows)
        if (reader.exists(element) && --number == 0)
            return element;
    return nothing;
}

Long numberBesideRows(const ListReader& reader, const Element& sought) {
    Long number = reader.rows();
    for (const Element& element : besidesRows) {
        number += reader.exists(element) ? 1 : 0;
        if (element == sought)
            return number;
    }
    return 0;
}

} // namespace

bool AccessibleList::exists(const Element& element) const {
    return core_ != nullptr && ListReader(*core_).exists(element);
}

Long AccessibleList::rowCount() const {
    return core_ != nullptr ? ListReader(*core_).rows() : 0;
}

Long AccessibleList::columnCount() const {
    return core_ != nullptr ? ListReader(*core_).columns() : 0;
}

Long AccessibleList::nextSelected(Long row) const {
    if (core_ == nullptr || row < 0)
        return 0;
    const ListReader reader(*core_);
    for (Long next = row + 1; next <= reader.rows(); ++next)
        if (reader.row(next).Selected)
            return next;
    return 0;
}

Long AccessibleList::childCount(const Element& element) const {
    if (!exists(element))
        return 0;
    const ListReader reader(*core_);
    switch (element.kind) {
    case Kind::list:
        return reader.rows() + countBesidesRows(reader);
    case Kind::row:
        return reader.cells(element.row);
    case Kind::cell:
        return reader.hasCheckBox(element.column) ? 1 : 0;
    case Kind::headers:
        return reader.columns();
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return partsOfBar;
    default:
        return 0;
    }
}

Element AccessibleList::child(const Element& element, Long number) const {
    if (number < 1 || number > childCount(element))
        return nothing;
    const ListReader reader(*core_);
    switch (element.kind) {
    case Kind::list:
        return number <= reader.rows() ? rowElement(number) : besideRows(reader, number - reader.rows());
    case Kind::row:
        return cellElement(element.row, number);
    case Kind::cell:
        return checkBoxElement(element.row, element.column);
    case Kind::headers:
        return headerElement(number);
    default:
        return partOfBar(element, number);
    }
}

Long AccessibleList::numberOf(const Element& element) const {
    if (!exists(element))
        return 0;
    switch (element.kind) {
    case Kind::row:
        return element.row;
    case Kind::cell:
    case Kind::header:
        return element.column;
    case Kind::checkBox:
    case Kind::lowArrow:
        return 1;
    case Kind::thumb:
        return 2;
    case Kind::highArrow:
        return partsOfBar;
    default:
        return numberBesideRows(ListReader(*core_), element);
    }
}

Element AccessibleList::parent(const Element& element) const {
    switch (element.kind) {
    case Kind::nothing:
    case Kind::list:
        return nothing;
    case Kind::cell:
        return rowElement(element.row);
    case Kind::checkBox:
        return cellElement(element.row, element.column);
    case Kind::header:
        return theHeaders;
    case Kind::lowArrow:
    case Kind::thumb:
    case Kind::highArrow:
        return element.horizontal ? horizontalBar : verticalBar;
    default:
        return theList;
    }
}

Element AccessibleList::navigate(const Element& element, Direction direction) const {
    if (!exists(element))
        return nothing;
    const Element above = parent(element);
    const Long number = numberOf(element);
    const bool across = element.kind == Kind::cell || element.kind == Kind::header;
    switch (direction) {
    case Direction::parent:
        return above;
    case Direction::firstChild:
        return child(element, 1);
    case Direction::lastChild:
        return child(element, childCount(element));
    case Direction::next:
        return child(above, number + 1);
    case Direction::previous:
        return child(above, number - 1);
    case Direction::left:
        return across ? child(above, number - 1) : nothing;
    case Direction::right:
        return across ? child(above, number + 1) : nothing;
    case Direction::up:
    case Direction::down:
        break;
    }
    const Long row = element.row + (direction == Direction::down ? 1 : -1);
    if (element.kind == Kind::cell || element.kind == Kind::row) {
        const Element beside{element.kind, row, element.column};
        return exists(beside) ? beside : nothing;
    }
    return nothing;
}

Element AccessibleList::focus() const {
    if (core_ == nullptr)
        return nothing;
    const ListReader reader(*core_);
    if (reader.exists(theEditor))
        return theEditor;
    const Long row = reader.currentRow();
    return row != 0 ? rowElement(row) : theList;
}

} // namespace lumtex::accessibility
