/// \file
/// The control's events as data: names, arguments, and how each argument travels.
#pragma once

#include "automation/type_info.h"
#include "model/list_view_events.h"
#include "words/phrase.h"

#include <array>
#include <span>

namespace lumtex::automation {

struct EventArgument {
    StringView name;
    TypeInfo type;
    bool byReference;

    bool operator==(const EventArgument&) const = default;
};

struct EventDescription {
    static constexpr std::size_t mostArguments = 7;

    StringView name;
    words::Phrase help;
    std::array<EventArgument, mostArguments> entries;
    std::size_t count;

    constexpr std::span<const EventArgument> arguments() const { return {entries.data(), count}; }
};

namespace detail {

template <class... Arguments, class... Names>
constexpr EventDescription
describe(void (lmListViewEvents::*)(Arguments...), StringView name, Names... names) {
    static_assert(sizeof...(Arguments) == sizeof...(Names), "every argument has a name");
    return {name,
            words::phrase(u"event", name),
            {EventArgument{names, typeOf<Arguments>(), travelsBack<Arguments>}...},
            sizeof...(Arguments)};
}

} // namespace detail

inline constexpr words::Phrase eventsHelp = words::phrase(u"library", u"events");

/// In the order of the event interface. Types and directions come from the handlers themselves.
// clang-format off
constexpr auto eventTable = std::to_array<EventDescription>({
    detail::describe(&lmListViewEvents::Click, u"Click"),
    detail::describe(&lmListViewEvents::DblClick, u"DblClick"),
    detail::describe(&lmListViewEvents::ItemCheck, u"ItemCheck", u"Row", u"Column", u"NewValue", u"Cancel"),
    detail::describe(&lmListViewEvents::ItemChecked, u"ItemChecked", u"Row", u"Column", u"NewValue"),
    detail::describe(&lmListViewEvents::MouseUp, u"MouseUp", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::MouseMove, u"MouseMove", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::MouseDown, u"MouseDown", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::ColumnClick, u"ColumnClick", u"Column"),
    detail::describe(&lmListViewEvents::Scroll, u"Scroll"),
    detail::describe(&lmListViewEvents::KeyDown, u"KeyDown", u"KeyCode", u"Shift"),
    detail::describe(&lmListViewEvents::KeyPress, u"KeyPress", u"KeyAscii"),
    detail::describe(&lmListViewEvents::KeyUp, u"KeyUp", u"KeyCode", u"Shift"),
    detail::describe(&lmListViewEvents::OLECompleteDrag, u"OLECompleteDrag", u"Effect"),
    detail::describe(&lmListViewEvents::OLEDragDrop, u"OLEDragDrop", u"Data", u"Effect", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::OLEDragOver, u"OLEDragOver", u"Data", u"Effect", u"Button", u"Shift", u"X", u"Y", u"State"),
    detail::describe(&lmListViewEvents::OLEGiveFeedback, u"OLEGiveFeedback", u"Effect", u"DefaultCursors"),
    detail::describe(&lmListViewEvents::OLESetData, u"OLESetData", u"Data", u"DataFormat"),
    detail::describe(&lmListViewEvents::OLEStartDrag, u"OLEStartDrag", u"Data", u"AllowedEffects"),
    detail::describe(&lmListViewEvents::ErrorWrongIndex, u"ErrorWrongIndex", u"Index"),
    detail::describe(&lmListViewEvents::SortDone, u"SortDone"),
    detail::describe(&lmListViewEvents::ListViewError, u"ListViewError", u"eSub", u"eNumber", u"eDescription"),
    detail::describe(&lmListViewEvents::ItemClick, u"ItemClick", u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemDblClick, u"ItemDblClick", u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemDown, u"ItemDown", u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemUp, u"ItemUp", u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemChanged, u"ItemChanged", u"Row", u"Column", u"NewValue"),
    detail::describe(&lmListViewEvents::ItemOver, u"ItemOver", u"Row", u"Column", u"bOverItem"),
});
// clang-format on

} // namespace lumtex::automation
