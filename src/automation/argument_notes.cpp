/// The notes themselves.
#include "automation/argument_notes.h"

#include <algorithm>

namespace lumtex::automation {

namespace {

constexpr auto fromZero = CountsFrom::zero;
constexpr auto fromOne = CountsFrom::one;
constexpr auto noIndex = CountsFrom::nowhere;

// clang-format off
constexpr auto notesOnMembers = std::to_array<ArgumentNote>({
    {u"", u"Index", fromOne, "A number, or a text that converts to one."},
    {u"", u"Row", fromOne, "A number, or a text that converts to one."},
    {u"", u"Column", fromOne, "A number; any text fails."},
    {u"", u"Filename", noIndex, "Path of the file."},

    {u"ColumnsAdd", u"aText", noIndex, "Text of the header; whatever converts to a text."},
    {u"ColumnsAdd", u"aIcon", noIndex, "Icon of the header."},
    {u"ColumnsAdd", u"aIconHover", noIndex, "Its icon while the pointer is over it; Nothing for none."},
    {u"ColumnsAdd", u"aIconDown", noIndex, "Its icon while it is pressed; Nothing for none."},
    {u"ColumnsAdd", u"aAlignment", noIndex, "Place of the text in the header; cells do not take it on."},
    {u"ColumnsAdd", u"aWidth", noIndex, "Twips."},
    {u"ColumnsAdd", u"aAllowSorting", noIndex, "Whether a click on the header sorts."},
    {u"ColumnsAdd", u"aForeColor", noIndex, "Colour of the header text; 0 is black."},
    {u"ColumnsAdd", u"aKey", noIndex, "Kept for the host; no column is found by it."},
    {u"ColumnsAdd", u"aTag", noIndex, "Kept for the host."},
    {u"ColumnsAdd", u"aForeColorHover", noIndex, "Colour of the header text while the pointer is over it; 0 is black."},
    {u"ColumnsAdd", u"aForeColorDown", noIndex, "Colour of the header text while it is pressed; 0 is black."},
    {u"ColumnsRemove", u"Index", noIndex, "Read by nothing, for no column goes."},

    {u"RowsAdd", u"aIndex", fromZero, "Place of the new row; one out of range appends. By reference: a place out of range is replaced by the one that the row took."},
    {u"RowsAdd", u"aSplit", noIndex, "Separator of the texts, of any length; an empty one separates nothing."},
    {u"RowsAdd", u"aItemTexts", noIndex, "Texts of the cells from the first column on. Columns without a text stay empty, and texts without a column are dropped."},
    {u"RowsRemove", u"Index", fromOne, "A number, or a text that converts to one. By reference, and left as it is."},
    {u"WrongIndex", u"Index", noIndex, "Whatever the host likes to ask about."},
    {u"WrongColumnIndex", u"Index", noIndex, "Whatever the host likes to ask about."},

    {u"Sort", u"Column", fromOne, "-1 drops the sort mark. By reference, and left as it is."},
    {u"Sort", u"SortMode", noIndex, "The direction. By reference, and left as it is."},
    {u"Sort", u"SortType", noIndex, "What the texts are compared as. By reference, and left as it is."},

    {u"FindItem", u"sFind", noIndex, "The [pattern](#patterns). By reference, and left as it is."},
    {u"FindItem", u"cBegin", noIndex, "Whether the search starts anew or goes on behind the last hit. By reference, and left as it is."},
    {u"FindItem", u"cCompare", noIndex, "Whether the case of letters counts; any other number finds nothing. By reference, and left as it is."},
    {u"FindItem", u"sColumns", fromOne, "The [columns](#columns-and-rows) to search. By reference: an empty text is replaced by \"*\"."},
    {u"FindItem", u"sRows", fromOne, "The [rows](#columns-and-rows) to search. By reference: an empty text is replaced by \"*\"."},

    {u"AutoColumnSize", u"lColumns", fromOne, "Any number of columns, each an argument of its own; none for all columns."},
    {u"ContentSave", u"sFilename", noIndex, "Path of the file."},
    {u"ContentSave", u"bSaveItemProperties", noIndex, "Whether looks, tags and icons are written too."},
    {u"ContentInput", u"sFilename", noIndex, "Path of the file."},
    {u"ContentInput", u"bReadItemPropertiesIfExists", noIndex, "Whether looks, tags and icons are taken over, where the file has them. Else each cell has the look of a new one, but black text, and may be edited where AllowEdit is True."},
    {u"ItemsCheckedCount", u"Column", fromOne, "A number that no column has stands for all columns."},

    {u"TextSave", u"Text", noIndex, "All that the file holds afterwards."},
    {u"ListSave", u"List", noIndex, "A list box: an object with ListCount and List."},
    {u"ListSave", u"TextBeforeListText", noIndex, "Put before each entry."},
    {u"ListSave", u"TextAfterListText", noIndex, "Put behind each entry."},
    {u"ListRead", u"List", noIndex, "A list box: an object with AddItem."},
    {u"FileExists", u"sFile", noIndex, "A path; its last part may hold `*` and `?`."},
});

constexpr auto notesOnEvents = std::to_array<ArgumentNote>({
    {u"", u"Row", fromOne, ""},
    {u"", u"Column", fromOne, ""},
    {u"", u"Button", noIndex, "1 left, 2 right, 4 middle. A change does nothing."},
    {u"", u"Shift", noIndex, "Sum of 1 for Shift, 2 for Control and 4 for Alt. A change does nothing."},
    {u"", u"X", noIndex, "Pixels from the left edge of the list. A change does nothing."},
    {u"", u"Y", noIndex, "Pixels from the upper edge of the list. A change does nothing."},
    {u"", u"KeyCode", noIndex, "Number of the key, as Windows counts keys. A change does nothing."},
    {u"", u"Data", noIndex, "What is dragged: an object with GetFormat, GetData and Files. A change does nothing."},

    {u"ItemCheck", u"NewValue", noIndex, "What the mark would become."},
    {u"ItemCheck", u"Cancel", noIndex, "False. True keeps the mark as it is, and ItemChecked does not follow."},
    {u"ItemChecked", u"NewValue", noIndex, "What the mark is now."},

    {u"MouseMove", u"Button", noIndex, "Sum of 1 for left, 2 for right and 4 for middle; 0 for none. What a handler leaves there counts: the list drags by it while it is 1."},
    {u"MouseMove", u"X", noIndex, "Pixels from the left edge of the list. What a handler leaves there is where the list takes the pointer to be."},
    {u"MouseMove", u"Y", noIndex, "Pixels from the upper edge of the list. What a handler leaves there is where the list takes the pointer to be."},
    {u"MouseUp", u"Y", noIndex, "Pixels from the upper edge of the list. What a handler leaves there decides which row ItemUp and ItemClick tell."},

    {u"ColumnClick", u"Column", fromOne, "A change does nothing: the clicked column is sorted."},
    {u"KeyDown", u"KeyCode", noIndex, "Number of the key, as Windows counts keys. What a handler leaves there is the key that the list takes: 0 keeps an arrow key from it."},
    {u"KeyPress", u"KeyAscii", noIndex, "The character. A change does nothing."},

    {u"OLECompleteDrag", u"Effect", noIndex, "The event is never raised."},
    {u"OLEGiveFeedback", u"Effect", noIndex, "The event is never raised."},
    {u"OLEGiveFeedback", u"DefaultCursors", noIndex, "The event is never raised."},
    {u"OLESetData", u"Data", noIndex, "The event is never raised."},
    {u"OLESetData", u"DataFormat", noIndex, "The event is never raised."},
    {u"OLEStartDrag", u"Data", noIndex, "The event is never raised."},
    {u"OLEStartDrag", u"AllowedEffects", noIndex, "The event is never raised."},
    {u"OLEDragDrop", u"Effect", noIndex, "What the source allows: sum of 1 for a copy, 2 for a move and 4 for a link. What a handler leaves there is the answer; 0 refuses."},
    {u"OLEDragOver", u"Effect", noIndex, "What the source allows: sum of 1 for a copy, 2 for a move and 4 for a link. What a handler leaves there is the answer; 0 refuses."},
    {u"OLEDragOver", u"State", noIndex, "0 enters, 1 leaves, 2 moves. A change does nothing."},

    {u"ErrorWrongIndex", u"Index", fromZero, "The number that was refused. A change does nothing."},
    {u"ListViewError", u"eSub", noIndex, "The procedure that failed."},
    {u"ListViewError", u"eNumber", noIndex, "The number of the error."},
    {u"ListViewError", u"eDescription", noIndex, "The text of the error."},
    {u"ItemChanged", u"NewValue", noIndex, "The text that was typed."},
    {u"ItemOver", u"bOverItem", noIndex, "The event is never raised."},
});
// clang-format on

/// Names of members that give the number of a row or a column.
struct CountingMember {
    StringView name;
    CountsFrom base;
};
constexpr auto countingMembers = std::to_array<CountingMember>({
    {u"ListIndex", fromZero},
    {u"NewIndex", fromZero},
    {u"TopIndex", fromZero},
    {u"RowIndex", fromOne},
    {u"ColumnIndex", fromOne},
    {u"SortColumnIndex", fromOne},
    {u"FindItem", fromOne},
});

template <class Notes>
const ArgumentNote* find(const Notes& notes, StringView of, StringView name) {
    const ArgumentNote* general = nullptr;
    for (const ArgumentNote& note : notes) {
        if (note.name != name)
            continue;
        if (note.of == of)
            return &note;
        if (note.of.empty())
            general = &note;
    }
    return general;
}

} // namespace

const ArgumentNote* noteOn(const Member& member, const Parameter& parameter) {
    return find(notesOnMembers, member.name, parameter.name);
}

const ArgumentNote* noteOn(const EventDescription& event, const EventArgument& argument) {
    return find(notesOnEvents, event.name, argument.name);
}

CountsFrom baseOf(const Member& member) {
    const auto* const found = std::ranges::find(countingMembers, member.name, &CountingMember::name);
    return found == countingMembers.end() ? CountsFrom::nowhere : found->base;
}

} // namespace lumtex::automation
