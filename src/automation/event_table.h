/// \file
/// The control's events as data: names, arguments, and how each argument travels.
#pragma once

#include "automation/type_info.h"
#include "model/help.h"
#include "model/list_view_events.h"

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
    Help help;
    std::array<EventArgument, mostArguments> entries;
    std::size_t count;

    constexpr std::span<const EventArgument> arguments() const { return {entries.data(), count}; }
};

namespace detail {

template <class... Arguments, class... Names>
constexpr EventDescription
describe(void (lmListViewEvents::*)(Arguments...), StringView name, Help help, Names... names) {
    static_assert(sizeof...(Arguments) == sizeof...(Names), "every argument has a name");
    return {name,
            help,
            {EventArgument{names, typeOf<Arguments>(), travelsBack<Arguments>}...},
            sizeof...(Arguments)};
}

} // namespace detail

inline constexpr Help eventsHelp{u"Events of lmListView.", u"Ereignisse von lmListView."};

/// In the order of the event interface. Types and directions come from the handlers themselves.
// clang-format off
constexpr auto eventTable = std::to_array<EventDescription>({
    detail::describe(&lmListViewEvents::Click, u"Click", {u"The list was clicked, or, with ClickOnIndexChange, its current row is about to change.", u"Die Liste wurde angeklickt, oder ihre aktuelle Zeile ändert sich gleich (mit ClickOnIndexChange)."}),
    detail::describe(&lmListViewEvents::DblClick, u"DblClick", {u"The list was clicked twice. ItemDblClick follows where a cell was pressed before.", u"Die Liste wurde doppelt angeklickt. Wurde zuvor eine Zelle gedrückt, folgt ItemDblClick."}),
    detail::describe(&lmListViewEvents::ItemCheck, u"ItemCheck", {u"A press is about to change a check mark. Cancel keeps it.", u"Ein Mausdruck ändert gleich ein Häkchen. Cancel verhindert es."}, u"Row", u"Column", u"NewValue", u"Cancel"),
    detail::describe(&lmListViewEvents::ItemChecked, u"ItemChecked", {u"A press has changed a check mark.", u"Ein Mausdruck hat ein Häkchen geändert."}, u"Row", u"Column", u"NewValue"),
    detail::describe(&lmListViewEvents::MouseUp, u"MouseUp", {u"A mouse button was let go. The position is in pixels.", u"Eine Maustaste wurde losgelassen. Die Position ist in Pixeln angegeben."}, u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::MouseMove, u"MouseMove", {u"The mouse moved over the list, or with a button held anywhere. The position is in pixels.", u"Die Maus wurde über der Liste bewegt oder, mit gehaltener Taste, irgendwo. Die Position ist in Pixeln angegeben."}, u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::MouseDown, u"MouseDown", {u"A mouse button was pressed; ItemDown came before. The position is in pixels.", u"Eine Maustaste wurde gedrückt; ItemDown ging voraus. Die Position ist in Pixeln angegeben."}, u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::ColumnClick, u"ColumnClick", {u"A header was clicked. Where the column allows it, a sort as text follows.", u"Ein Spaltenkopf wurde angeklickt. Erlaubt es die Spalte, folgt eine Sortierung als Text."}, u"Column"),
    detail::describe(&lmListViewEvents::Scroll, u"Scroll", {u"The list was scrolled up or down with the thumb or the wheel. Scrolling sideways is not told.", u"Die Liste wurde mit dem Bildlauffeld oder dem Mausrad auf- oder abwärts gerollt. Seitliches Rollen wird nicht gemeldet."}),
    detail::describe(&lmListViewEvents::KeyDown, u"KeyDown", {u"A key went down.", u"Eine Taste wurde gedrückt."}, u"KeyCode", u"Shift"),
    detail::describe(&lmListViewEvents::KeyPress, u"KeyPress", {u"A key gave a character.", u"Eine Taste ergab ein Zeichen."}, u"KeyAscii"),
    detail::describe(&lmListViewEvents::KeyUp, u"KeyUp", {u"A key was let go.", u"Eine Taste wurde losgelassen."}, u"KeyCode", u"Shift"),
    detail::describe(&lmListViewEvents::OLECompleteDrag, u"OLECompleteDrag", {u"Never raised: the list starts no drag.", u"Wird nie ausgelöst: Die Liste beginnt kein Ziehen."}, u"Effect"),
    detail::describe(&lmListViewEvents::OLEDragDrop, u"OLEDragDrop", {u"Something was dropped on the list. Effect answers what became of it.", u"Etwas wurde auf der Liste abgelegt. Effect beantwortet, was daraus wurde."}, u"Data", u"Effect", u"Button", u"Shift", u"X", u"Y"),
    detail::describe(&lmListViewEvents::OLEDragOver, u"OLEDragOver", {u"Something is dragged over the list: State 0 enters, 1 leaves, 2 moves. Effect answers what a drop would do.", u"Etwas wird über die Liste gezogen: State 0 betritt sie, 1 verlässt sie, 2 bewegt sich. Effect beantwortet, was ein Ablegen bewirkte."}, u"Data", u"Effect", u"Button", u"Shift", u"X", u"Y", u"State"),
    detail::describe(&lmListViewEvents::OLEGiveFeedback, u"OLEGiveFeedback", {u"Never raised: the list starts no drag.", u"Wird nie ausgelöst: Die Liste beginnt kein Ziehen."}, u"Effect", u"DefaultCursors"),
    detail::describe(&lmListViewEvents::OLESetData, u"OLESetData", {u"Never raised: the list starts no drag.", u"Wird nie ausgelöst: Die Liste beginnt kein Ziehen."}, u"Data", u"DataFormat"),
    detail::describe(&lmListViewEvents::OLEStartDrag, u"OLEStartDrag", {u"Never raised: the list starts no drag.", u"Wird nie ausgelöst: Die Liste beginnt kein Ziehen."}, u"Data", u"AllowedEffects"),
    detail::describe(&lmListViewEvents::ErrorWrongIndex, u"ErrorWrongIndex", {u"ListIndex was assigned a number that no enabled row has. Index counts from 0; changing it changes nothing.", u"ListIndex wurde eine Nummer zugewiesen, die keine aktivierte Zeile hat. Index zählt ab 0; ihn zu ändern bewirkt nichts."}, u"Index"),
    detail::describe(&lmListViewEvents::SortDone, u"SortDone", {u"A sort has ended.", u"Eine Sortierung ist beendet."}),
    detail::describe(&lmListViewEvents::ListViewError, u"ListViewError", {u"A paint, or the assignment of an embedded object, failed. Other failures are reported alone.", u"Das Zeichnen oder das Zuweisen eines eingebetteten Objekts ist fehlgeschlagen. Andere Fehler werden nur gemeldet."}, u"eSub", u"eNumber", u"eDescription"),
    detail::describe(&lmListViewEvents::ItemClick, u"ItemClick", {u"A cell was pressed and let go.", u"Eine Zelle wurde gedrückt und losgelassen."}, u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemDblClick, u"ItemDblClick", {u"The cell pressed last was clicked twice. The editor follows where the cell allows it.", u"Die zuletzt gedrückte Zelle wurde doppelt angeklickt. Erlaubt es die Zelle, folgt das Eingabefeld."}, u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemDown, u"ItemDown", {u"A cell was pressed.", u"Eine Zelle wurde gedrückt."}, u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemUp, u"ItemUp", {u"A button was let go over a cell, the pressed one or another.", u"Eine Maustaste wurde über einer Zelle losgelassen, der gedrückten oder einer anderen."}, u"Row", u"Column"),
    detail::describe(&lmListViewEvents::ItemChanged, u"ItemChanged", {u"The editor has written into a cell, even the same text.", u"Das Eingabefeld hat in eine Zelle geschrieben, und sei es denselben Text."}, u"Row", u"Column", u"NewValue"),
    detail::describe(&lmListViewEvents::ItemOver, u"ItemOver", {u"Never raised.", u"Wird nie ausgelöst."}, u"Row", u"Column", u"bOverItem"),
});
// clang-format on

} // namespace lumtex::automation
