/// Where elements lie on the surface, as the last pass left it.
#include "accessibility/accessible_list.h"
#include "accessibility/list_reader.h"
#include "drawing/picture_size.h"
#include "interaction/cell_editor.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

#include <algorithm>

namespace lumtex::accessibility {

namespace {

/// Pixels of the surface, before they are rounded.
struct Span {
    Single low = 0;
    Single high = 0;
};

/// Reads places off a list; no rectangle is cut to what shows of it but by `clipped`.
class Places {
  public:
    explicit Places(ListViewCore& core)
        : reader_(core), core_(core), pass_(core.painting->lastPass()), surface_(core.listWindow->surface()) {
    }

    Rect list() const { return {0, 0, surface_.scaleWidth(), surface_.scaleHeight()}; }

    /// What headers and bars leave of the list.
    Rect body() const {
        Rect rect = list();
        rect.Top = pass_.headerHeight;
        if (core_.scroller->vertical().Visible())
            rect.Right = std::min(rect.Right, roundToLong(core_.scroller->vertical().Left()));
        if (core_.scroller->horizontal().Visible())
            rect.Bottom = std::min(rect.Bottom, roundToLong(core_.scroller->horizontal().Top()));
        return rect;
    }
    Rect band() const {
        Rect rect = list();
        rect.Bottom = pass_.headerHeight;
        if (core_.scroller->vertical().Visible())
            rect.Right = std::min(rect.Right, roundToLong(core_.scroller->vertical().Left()));
        return rect;
    }

    std::optional<Span> column(Long column) const {
        Single left = pass_.firstColumnX;
        for (Long each = pass_.firstColumn + 1; each <= reader_.columns(); ++each) {
            const Single width = core_.painting->columnWidthInPixels(each - 1);
            if (each == column)
                return Span{left, left + width};
            left += width;
        }
        return std::nullopt;
    }
    Long columnAt(Long x) const {
        Single left = pass_.firstColumnX;
        for (Long each = pass_.firstColumn + 1; each <= reader_.columns(); ++each) {
            const Single right = left + core_.painting->columnWidthInPixels(each - 1);
            if (static_cast<Single>(x) >= left && static_cast<Single>(x) < right)
                return each;
            left = right;
        }
        return 0;
    }

    std::optional<Span> row(Long row) const {
        if (row - 1 < pass_.firstRow || row - 1 > pass_.lastRow || row > reader_.rows())
            return std::nullopt;
        const RowRecord& record = reader_.row(row);
        return Span{record.Top, record.Top + record.Height};
    }
    Long rowAt(Long y) const {
        const Long last = std::min(pass_.lastRow + 1, reader_.rows());
        for (Long each = std::max(pass_.firstRow + 1, Long{1}); each <= last; ++each) {
            const auto span = row(each);
            if (span && static_cast<Single>(y) >= span->low && static_cast<Single>(y) < span->high)
                return each;
        }
        return 0;
    }

    Rect bar(const Element& element) const {
        const bars::ScrollBar& bar = reader_.bar(element);
        return around(bar.Left(), bar.Top(), bar.Width(), bar.Height());
    }
    Rect partOfBar(const Element& element) const {
        const bars::ScrollBar& bar = reader_.bar(element);
        const Window& part = partWindow(element);
        return around(bar.Left() + part.Left(), bar.Top() + part.Top(), part.Width(), part.Height());
    }
    const Window& partWindow(const Element& element) const {
        const bars::ScrollBar& bar = reader_.bar(element);
        return element.kind == Kind::thumb      ? bar.thumb()
               : element.kind == Kind::lowArrow ? bar.lowArrow()
                                                : bar.highArrow();
    }
    bool shows(const Element& element) const {
        return element.kind != Kind::thumb || reader_.bar(element).thumb().Visible();
    }

    Rect editor() const {
        const CellEditor::Area& area = core_.editor->area();
        return around(area.left, area.top, area.width, area.height);
    }

    /// Where the cell's paint puts the picture of its box.
    Rect checkBox(const Element& element, const Span& column, const Span& row) const {
        const Picture& picture = *core_.painting->artwork().img[1];
        const Long width = drawing::GetPictureWidth(surface_, picture);
        const Long height = drawing::GetPictureHeight(surface_, picture);
        constexpr Single inset = 5;
        Single left = column.low + inset;
        const cItemAlign alignment = reader_.cell(element).style().IconAlignment;
        if (alignment == cItemRight)
            left = column.high - inset - static_cast<Single>(width);
        else if (alignment == cItemCenter)
            left = (column.high - column.low - static_cast<Single>(width)) / 2 + column.low;
        Long top = roundToLong(row.low);
        const Properties& properties = core_.properties;
        if (!properties.RowsDynamic) {
            const Single rowHeight = scaleY(surface_, properties.RowHeight, Unit::twips, Unit::pixels);
            // Wanted: IconH counts here for a check box too.
            top = roundToLong((rowHeight - properties.IconH) / 2 + row.low + 1);
        }
        const Long x = roundToLong(left);
        return {x, top, x + width, top + height};
    }

    const ListReader& reader() const { return reader_; }

  private:
    static Rect around(Single left, Single top, Single width, Single height) {
        return {roundToLong(left), roundToLong(top), roundToLong(left + width), roundToLong(top + height)};
    }

    ListReader reader_;
    ListViewCore& core_;
    const PaintState& pass_;
    const Surface& surface_;
};

std::optional<Rect> clipped(Rect rect, const Rect& to) {
    rect = {std::max(rect.Left, to.Left),
            std::max(rect.Top, to.Top),
            std::min(rect.Right, to.Right),
            std::min(rect.Bottom, to.Bottom)};
    if (rect.Left >= rect.Right || rect.Top >= rect.Bottom)
        return std::nullopt;
    return rect;
}

Rect across(const Span& column, const Span& row) {
    return {roundToLong(column.low), roundToLong(row.low), roundToLong(column.high), roundToLong(row.high)};
}

bool contains(const std::optional<Rect>& rect, Long x, Long y) {
    return rect && x >= rect->Left && x < rect->Right && y >= rect->Top && y < rect->Bottom;
}

std::optional<Rect> placeInRows(const Places& places, ListViewCore& core, const Element& element) {
    const auto row = places.row(element.row);
    if (!row)
        return std::nullopt;
    const PaintState& pass = core.painting->lastPass();
    if (element.kind == Kind::row)
        return clipped(across({pass.firstColumnX, pass.columnsRight}, *row), places.body());
    const auto column = places.column(element.column);
    if (!column)
        return std::nullopt;
    const auto cell = clipped(across(*column, *row), places.body());
    if (element.kind == Kind::cell || !cell)
        return cell;
    return clipped(places.checkBox(element, *column, *row), *cell);
}

} // namespace

std::optional<Rect> AccessibleList::place(const Element& element) const {
    if (!exists(element) || !core_->listWindow->Visible())
        return std::nullopt;
    const Places places(*core_);
    switch (element.kind) {
    case Kind::nothing:
        return std::nullopt;
    case Kind::list:
        return clipped(places.list(), places.list());
    case Kind::row:
    case Kind::cell:
    case Kind::checkBox:
        return placeInRows(places, *core_, element);
    case Kind::headers:
        return clipped(places.band(), places.list());
    case Kind::header:
        if (const auto column = places.column(element.column))
            return clipped(across(*column, {0, static_cast<Single>(places.band().Bottom)}), places.band());
        return std::nullopt;
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return clipped(places.bar(element), places.list());
    case Kind::lowArrow:
    case Kind::thumb:
    case Kind::highArrow:
        if (!places.shows(element))
            return std::nullopt;
        return clipped(places.partOfBar(element), places.bar(element));
    case Kind::editor:
        return clipped(places.editor(), places.list());
    }
    return std::nullopt;
}

Element AccessibleList::at(Long x, Long y) const {
    if (!contains(place(theList), x, y))
        return nothing;
    // Windows of their own lie above what is painted.
    if (contains(place(theEditor), x, y))
        return theEditor;
    for (const Element& bar : {verticalBar, horizontalBar}) {
        if (!contains(place(bar), x, y))
            continue;
        for (Long number = 1; number <= childCount(bar); ++number)
            if (const Element part = child(bar, number); contains(place(part), x, y))
                return part;
        return bar;
    }
    const Places places(*core_);
    if (contains(place(theHeaders), x, y)) {
        const Element header = headerElement(places.columnAt(x));
        return exists(header) ? header : theHeaders;
    }
    const Element row = rowElement(places.rowAt(y));
    if (!contains(place(row), x, y))
        return theList;
    const Element cell = cellElement(row.row, places.columnAt(x));
    if (!exists(cell))
        return row;
    const Element box = checkBoxElement(cell.row, cell.column);
    return contains(place(box), x, y) ? box : cell;
}

WindowHandle AccessibleList::window(const Element& element) const {
    if (!exists(element))
        return 0;
    switch (element.kind) {
    case Kind::list:
        return core_->listWindow->hWnd();
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return ListReader(*core_).bar(element).window().hWnd();
    case Kind::lowArrow:
    case Kind::thumb:
    case Kind::highArrow:
        return Places(*core_).partWindow(element).hWnd();
    case Kind::editor:
        return core_->editor->hWnd();
    default:
        return 0;
    }
}

} // namespace lumtex::accessibility
