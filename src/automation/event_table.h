/// \file
/// The control's events as data: names, arguments, and how each argument travels.
#pragma once

#include "automation/type_info.h"
#include "model/list_view_events.h"

#include <array>
#include <span>

namespace lumtex {

struct EventArgument {
    StringView name;
    TypeInfo type;
    bool byReference;

    bool operator==(const EventArgument&) const = default;
};

struct EventDescription {
    static constexpr std::size_t mostArguments = 7;

    StringView name;
    StringView help; ///< one line
    std::array<EventArgument, mostArguments> slots;
    std::size_t count;

    constexpr std::span<const EventArgument> arguments() const { return {slots.data(), count}; }
};

namespace detail {

template <class... Arguments, class... Names>
constexpr EventDescription
describe(void (lmListViewEvents::*)(Arguments...), StringView name, StringView help, Names... names) {
    static_assert(sizeof...(Arguments) == sizeof...(Names), "every argument has a name");
    return {name,
            help,
            {EventArgument{names, typeOf<Arguments>(), travelsBack<Arguments>}...},
            sizeof...(Arguments)};
}

} // namespace detail

/// In the order of the event interface. Types and directions come from the handlers themselves.
// clang-format off
constexpr auto eventTable = std::to_array<EventDescription>({
    detail::describe(&lmListViewEvents::Click, u"Click", u"The list was clicked, or, with ClickOnIndexChange, its current row changed."),
    detail::describe(&lmListViewEvents::DblClick, u"DblClick", u"The list was clicked twice. ItemDblClick follows where a cell was pressed before."),
    detail::describe(&lmListViewEvents::ItemCheck, u"ItemCheck", u"A press is about to change a check mark. Cancel keeps it.", u"Row", u"Column", u"NewValue", u"Cancel"),
    detail::describe(&lmListViewEvents::ItemChecked, u"ItemChecked", u"A press has changed a check mark.", u"Row", u"Column", u"NewValue"),
    detail::describe(&lmListViewEvents::MouseUp, u"MouseUp", u"A mouse button was let go. The position is in pixels.", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::MouseMove, u"MouseMove", u"The mouse moved over the list, or with a button held anywhere. The position is in pixels.", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::MouseDown, u"MouseDown", u"A mouse button was pressed; ItemDown came before. The position is in pixels.", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::ColumnClick, u"ColumnClick", u"A header was clicked. Where the column allows it, a sort as text follows.", u"Column"),
    detail::describe(&lmListViewEvents::Scroll, u"Scroll", u"The list was scrolled up or down by hand. Scrolling sideways is not told."),
    detail::describe(&lmListViewEvents::KeyDown, u"KeyDown", u"A key went down.", u"KeyCode", u"Shift"),
    detail::describe(&lmListViewEvents::KeyPress, u"KeyPress", u"A key gave a character.", u"KeyAscii"),
    detail::describe(&lmListViewEvents::KeyUp, u"KeyUp", u"A key was let go.", u"KeyCode", u"Shift"),
    detail::describe(&lmListViewEvents::OLECompleteDrag, u"OLECompleteDrag", u"A drag that began here has ended.", u"Effect"),
    detail::describe(&lmListViewEvents::OLEDragDrop, u"OLEDragDrop", u"Something was dropped on the list. Effect answers what became of it.", u"Data", u"Effect", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::OLEDragOver, u"OLEDragOver", u"Something is dragged over the list: State 0 enters, 1 leaves, 2 moves. Effect answers what a drop would do.", u"Data", u"Effect", u"Button", u"Shift", u"X", u"Y", u"State"),
    detail::describe(&lmListViewEvents::OLEGiveFeedback, u"OLEGiveFeedback", u"A drag that began here asks for its pointer.", u"Effect", u"DefaultCursors"),
    detail::describe(&lmListViewEvents::OLESetData, u"OLESetData", u"A drag that began here asks for data that were promised.", u"Data", u"DataFormat"),
    detail::describe(&lmListViewEvents::OLEStartDrag, u"OLEStartDrag", u"A drag begins here. With OLEDragMode 2 it allows copying and moving.", u"Data", u"AllowedEffects"),
    detail::describe(&lmListViewEvents::ErrorWrongIndex, u"ErrorWrongIndex", u"A row number was refused.", u"Index"),
    detail::describe(&lmListViewEvents::SortDone, u"SortDone", u"A sort has ended."),
    detail::describe(&lmListViewEvents::ListViewError, u"ListViewError", u"A paint or an embedded object failed. Other failures are reported.", u"eSub", u"eNumber", u"eDescription"),
    detail::describe(&lmListViewEvents::ItemClick, u"ItemClick", u"A cell was pressed and let go.", u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemDblClick, u"ItemDblClick", u"The cell pressed last was clicked twice. The editor follows where the cell allows it.", u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemDown, u"ItemDown", u"A cell was pressed.", u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemUp, u"ItemUp", u"A button was let go over a cell, the pressed one or another.", u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemChanged, u"ItemChanged", u"The editor has written into a cell, even the same text.", u"Row", u"Column", u"NewValue"),
    detail::describe(&lmListViewEvents::ItemOver, u"ItemOver", u"Never raised.", u"Row", u"Column", u"bOverItem"),
});
// clang-format on

} // namespace lumtex
