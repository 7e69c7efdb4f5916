/// What an element is called, what it holds, and what it would do.
#include "accessibility/accessible_list.h"
#include "accessibility/list_reader.h"
#include "guards/failure_of.h"
#include "interaction/cell_editor.h"
#include "scroll/scroller.h"
#include "values/text.h"
#include "words/phrase.h"

namespace lumtex::accessibility {

namespace {

String numberText(Long number) {
    return fromUtf8(std::to_string(number));
}

/// From 1, or 0: the first column that shows and has a text here.
Long namingColumn(const ListReader& reader, Long row) {
    for (Long column = 1; column <= reader.cells(row); ++column)
        if (reader.column(column).Width > 0 && !reader.cell(cellElement(row, column)).text().empty())
            return column;
    return 0;
}

String toolTip(const ListReader& reader, const Element& cell) {
    const CellExtras* extras = reader.row(cell.row).items.extras(static_cast<std::size_t>(cell.column) - 1);
    return extras != nullptr ? extras->ToolTip : String{};
}

/// A cell without a text is called by its tip.
String nameOfCell(const ListReader& reader, const Element& cell) {
    String text = reader.cell(cell).Text();
    return text.empty() ? toolTip(reader, cell) : text;
}

String nameOfRow(const ListReader& reader, Long row) {
    const Long column = namingColumn(reader, row);
    return column != 0 ? reader.cell(cellElement(row, column)).Text() : String{};
}

/// "Country: Portugal; Since: 1143" for the columns behind the one that names the row.
String describeRow(const ListReader& reader, Long row) {
    const Long naming = namingColumn(reader, row);
    String words;
    for (Long column = 1; column <= reader.cells(row); ++column) {
        const ListViewItem& cell = reader.cell(cellElement(row, column));
        if (column == naming || reader.column(column).Width <= 0 || cell.text().empty())
            continue;
        if (!words.empty())
            words += u"; ";
        const String& header = reader.column(column).Text;
        if (!header.empty())
            words += header + u": ";
        words += cell.Text();
    }
    return words;
}

/// A box is called by the text beside it, or else by its column.
String nameOfBox(const ListReader& reader, const Element& box) {
    String text = nameOfCell(reader, box);
    return text.empty() ? reader.column(box.column).Text : text;
}

String nameOfEditor(const ListReader& reader) {
    const Long column = reader.core().editor->lastClickColumn() + 1;
    return column >= 1 && column <= reader.columns() ? reader.column(column).Text : String{};
}

/// Words of the product itself, in the language of the system's user.
String spoken(const ListReader& reader, words::Phrase phrase) {
    return String(phrase.in(reader.core().world().runtime().locale().language()));
}

consteval words::Phrase word(StringView name) {
    return words::phrase(u"spoken", name);
}

words::Phrase nameOfPart(const Element& part) {
    switch (part.kind) {
    case Kind::lowArrow:
        return part.horizontal ? word(u"columnLeft") : word(u"lineUp");
    case Kind::highArrow:
        return part.horizontal ? word(u"columnRight") : word(u"lineDown");
    default:
        return word(u"position");
    }
}

} // namespace

String AccessibleList::name(const Element& element) const {
    if (!exists(element))
        return {};
    const ListReader reader(*core_);
    switch (element.kind) {
    case Kind::nothing:
        return {};
    case Kind::list: {
        String name;
        ignoringErrors([&] { name = core_->host().extenderName(); });
        return name;
    }
    case Kind::row:
        return nameOfRow(reader, element.row);
    case Kind::cell:
        return nameOfCell(reader, element);
    case Kind::checkBox:
        return nameOfBox(reader, element);
    case Kind::headers:
        return spoken(reader, word(u"headers"));
    case Kind::header:
        return reader.column(element.column).Text;
    case Kind::verticalBar:
        return spoken(reader, word(u"vertical"));
    case Kind::horizontalBar:
        return spoken(reader, word(u"horizontal"));
    case Kind::lowArrow:
    case Kind::thumb:
    case Kind::highArrow:
        return spoken(reader, nameOfPart(element));
    case Kind::editor:
        return nameOfEditor(reader);
    }
    return {};
}

String AccessibleList::value(const Element& element) const {
    if (!exists(element))
        return {};
    const ListReader reader(*core_);
    switch (element.kind) {
    case Kind::cell:
        return reader.cell(element).Text();
    case Kind::editor: {
        String text;
        ignoringErrors([&] { text = core_->editor->text(); });
        return text;
    }
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return numberText(reader.bar(element).Value());
    default:
        return {};
    }
}

String AccessibleList::description(const Element& element) const {
    if (!exists(element))
        return {};
    const ListReader reader(*core_);
    switch (element.kind) {
    case Kind::row:
        return describeRow(reader, element.row);
    case Kind::cell:
        return reader.column(element.column).Text;
    case Kind::header: {
        const States state = states(element);
        return (state & sortedUp) != 0     ? spoken(reader, word(u"sortedAscending"))
               : (state & sortedDown) != 0 ? spoken(reader, word(u"sortedDescending"))
                                           : String{};
    }
    default:
        return {};
    }
}

String AccessibleList::help(const Element& element) const {
    if (!exists(element) || element.kind != Kind::cell)
        return {};
    return toolTip(ListReader(*core_), element);
}

String AccessibleList::kind(const Element& element) const {
    return exists(element) && element.kind == Kind::cell ? spoken(ListReader(*core_), word(u"cell"))
                                                         : String{};
}

String AccessibleList::action(const Element& element) const {
    const States state = states(element);
    if ((state & (gone | unavailable)) != 0)
        return {};
    const ListReader reader(*core_);
    switch (element.kind) {
    case Kind::row:
        return spoken(reader, word(u"select"));
    case Kind::cell:
        return spoken(reader, (state & editable) != 0 ? word(u"edit") : word(u"press"));
    case Kind::checkBox:
        return spoken(reader, (state & checked) != 0 ? word(u"uncheck") : word(u"check"));
    case Kind::header:
        return spoken(reader, reader.column(element.column).AllowSorting ? word(u"sort") : word(u"press"));
    case Kind::lowArrow:
    case Kind::highArrow:
        return spoken(reader, word(u"press"));
    default:
        return {};
    }
}

/// The list has no other keys than the arrows, and the editor none but Enter.
String AccessibleList::keys(const Element& element) const {
    if (!exists(element))
        return {};
    switch (element.kind) {
    case Kind::row:
        return spoken(ListReader(*core_), word(u"keysOfRows"));
    case Kind::editor:
        return spoken(ListReader(*core_), word(u"keyOfTheEditor"));
    default:
        return {};
    }
}

} // namespace lumtex::accessibility
