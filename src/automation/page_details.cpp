/// The texts.
#include "automation/page_details.h"

#include <algorithm>
#include <array>

namespace lumtex::automation {

namespace {

struct Details {
    std::string_view page;
    std::string_view text;
};

constexpr auto all = std::to_array<Details>({
    {"FindItem", R"(
## Patterns

The whole text of a cell must match, so `*` stands at both ends of a pattern for something in the middle.

| in the pattern | matches |
|---|---|
| `*` | any run of characters, the empty one too |
| `?` | one character |
| `#` | one digit, 0 to 9 |
| `[abc]`, `[a-z]` | one character of the list, in which a hyphen between two makes a range |
| `[!abc]` | one character that is not in the list |
| `[*]`, `[?]`, `[#]`, `[[]` | that very character |
| anything else | itself |

A pattern whose list does not end, or whose range runs backwards, is reported as error 93. With `cFindBinary` the
case of letters counts, with `cFindText` it does not.

A pattern that begins with `<itemtag>`, in letters of any case, looks at the tags of cells instead of their texts, by
what stands behind it: `<itemtag>a*`.

## Columns and rows

| text | stands for |
|---|---|
| `*` | all, as many as there were when the text was first used |
| `1,3` | 1 and 3 |
| `3,` | 3 alone; a lone `3` loses its last digit and stands for nothing, and `12` for 1 |
| `2-5` | 2 to 5 |
| `2-*` | 2 to the last |
| `1,4-6` | 1, 4, 5 and 6 |

They are searched in the order of the text, rows outside, columns inside. A number that is too high is left out, and so is
a range from a number to itself or backwards. A text that is no number ends the search with nothing found.

What was read once is kept while the text stays the same: after rows were added, `*` still means the old count, until
another text was used in between.

## The answer

`FindRow` and `FindColumn` count places in these lists, from 1. For `*` they are the numbers of the cell; a search
of the rows `5,7` that hits row 7 answers 2.

With `cFindContinue`, which is what a call without `cBegin` means, the search goes on behind the last hit, and it starts
in each further row at the column behind that hit, so cells can be left out. It does not begin again at the
top. For the first hit of a new question say `cFindStart`.
)"},
    {"Sort", R"(
## What is compared

| type | key |
|---|---|
| `cSortText` | the text in lower case, by the codes of its characters |
| `cSortNumeric` | the number that the text stands for, as the user writes numbers |
| `cSortDate` | the date that the text stands for, as the user writes dates |

A text that is no number or date, an empty one too, is reported. The order of rows with equal keys is not kept: two or
three of them come out reversed, more of them mixed; [sort by a column whose keys differ](../cookbook.md#sort-by-two-columns)
where it matters. A sort paints nothing by itself, so call `Redraw` behind it. `ListIndex`, `NewIndex`
and `TopIndex` keep their numbers, so the current row is another one afterwards, while rows take their
selection with them.
)"},
    {"RowsAdd", R"(
A separator cannot be protected: a text with a comma in it needs another separator, or `ItemText` afterwards.
)"},
    {"Events", R"(
## Arguments by reference

What a handler writes into such an argument goes back to the list. In most events that changes nothing; the tables say so
for each. These are the ones that count:

| event | argument | what a change does |
|---|---|---|
| `ItemCheck` | `Cancel` | True keeps the check mark |
| `KeyDown` | `KeyCode` | the list takes this key instead; 0 for none |
| `MouseMove` | `Button`, `X`, `Y` | the list takes the pointer to be there, with these buttons down |
| `MouseUp` | `Y` | which row `ItemUp` and `ItemClick` tell |
| `OLEDragOver`, `OLEDragDrop` | `Effect` | the answer to the source |
)"},
});

struct Quoted {
    std::string_view page;
    std::string_view example;
};

constexpr auto quoted = std::to_array<Quoted>({
    {"ColumnsAdd", "fill_a_list"},
    {"RowsAdd", "fill_a_list"},
    {"AutoRedraw", "many_rows"},
    {"AutoCheckScroll", "many_rows"},
    {"ItemAlignment", "numbers_to_the_right"},
    {"ColumnAlignment", "numbers_to_the_right"},
    {"AutoRowColor", "rows_in_two_colours"},
    {"ItemFontBold", "a_cell_that_stands_out"},
    {"ItemForeColor", "a_cell_that_stands_out"},
    {"ItemBackColor", "a_cell_that_stands_out"},
    {"GridLines", "grid_lines"},
    {"RowHeight", "higher_rows"},
    {"TextPosition", "higher_rows"},
    {"ColorStyle", "own_colours"},
    {"ItemIcon", "icons"},
    {"Style", "check_boxes"},
    {"ItemChecked", "check_boxes"},
    {"ItemsCheckedCount", "check_boxes"},
    {"RowSelected", "select_several_rows"},
    {"MultiSelect", "select_several_rows"},
    {"RowsSelectedRemove", "remove_selected_rows"},
    {"Sort", "sort_by_number"},
    {"FindItem", "find_a_text"},
    {"ItemTag", "find_by_tag"},
    {"ItemAllowEdit", "edit_in_place"},
    {"ContentSave", "save_and_load"},
    {"ContentInput", "save_and_load"},
    {"AutoColumnSize", "fit_columns"},
    {"Recordset", "import_a_query"},
});

} // namespace

std::string_view detailsOf(std::string_view page) {
    const auto* const found = std::ranges::find(all, page, &Details::page);
    return found == all.end() ? std::string_view() : found->text;
}

std::string_view exampleOf(std::string_view page) {
    const auto* const found = std::ranges::find(quoted, page, &Quoted::page);
    return found == quoted.end() ? std::string_view() : found->example;
}

} // namespace lumtex::automation
