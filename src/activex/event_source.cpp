/// Raising events.
#include "activex/event_source.h"

#include "worlds/win32/com_error.h"

#include <array>
#include <tuple>

#include <dispex.h>

namespace lumtex::win32 {

namespace {

/// Objects of script languages can be extended by their hosts.
ReferenceForm formFor(IDispatch* sink) {
    return queryFor<IDispatchEx>(sink) ? ReferenceForm::variant : ReferenceForm::typed;
}

/// Arguments travel from the last to the first. One by reference is taken back even from a sink that failed.
template <class... Arguments, std::size_t... places>
void tell(IDispatch* sink,
          DISPID number,
          std::index_sequence<places...> /*all*/,
          const Arguments&... arguments) {
    [[maybe_unused]] const ReferenceForm form = formFor(sink);
    std::tuple<EventSlot<Arguments>...> slots{Passed<Arguments>{arguments, form}...};
    constexpr std::size_t count = sizeof...(Arguments);
    std::array<VARIANT, count + 1> reversed{std::get<count - 1 - places>(slots).asArgument()...};
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(count), 0};
    CallDetails details;
    OwnedVARIANT result;
    sink->Invoke(number,
                 IID_NULL,
                 LOCALE_USER_DEFAULT,
                 DISPATCH_METHOD,
                 &parameters,
                 result.out(),
                 details.out(),
                 nullptr);
    (std::get<places>(slots).takeBack(), ...);
}

} // namespace

template <class... Arguments>
void EventSource::raise(DISPID number, const Arguments&... arguments) noexcept {
    if (frozen_ > 0)
        return;
    try {
        for (const ComRef<IUnknown>& sink : point_.sinks()) {
            try {
                if (const auto dispatch = sink.as<IDispatch>())
                    tell(dispatch.get(), number, std::index_sequence_for<Arguments...>{}, arguments...);
            } catch (const RuntimeError&) {
                // What a sink left in an argument cannot be used: the control goes on with its own.
                continue;
            }
        }
    } catch (const std::bad_alloc&) {
        return;
    }
}

void EventSource::Click() {
    raise(1);
}
void EventSource::DblClick() {
    raise(2);
}
void EventSource::ItemCheck(Long Row, Long Column, bool NewValue, bool& Cancel) {
    raise(3, Row, Column, NewValue, byReference(Cancel));
}
void EventSource::ItemChecked(Long Row, Long Column, bool NewValue) {
    raise(4, Row, Column, NewValue);
}
void EventSource::MouseUp(Integer& Button, Integer& Shift, Single& X, Single& Y) {
    raise(5, byReference(Button), byReference(Shift), byReference(X), byReference(Y));
}
void EventSource::MouseMove(Integer& Button, Integer& Shift, Single& X, Single& Y) {
    raise(6, byReference(Button), byReference(Shift), byReference(X), byReference(Y));
}
void EventSource::MouseDown(Integer& Button, Integer& Shift, Single& X, Single& Y) {
    raise(7, byReference(Button), byReference(Shift), byReference(X), byReference(Y));
}
void EventSource::ColumnClick(Long& Column) {
    raise(8, byReference(Column));
}
void EventSource::Scroll() {
    raise(9);
}
void EventSource::KeyDown(Integer& KeyCode, Integer& Shift) {
    raise(10, byReference(KeyCode), byReference(Shift));
}
void EventSource::KeyPress(Integer& KeyAscii) {
    raise(11, byReference(KeyAscii));
}
void EventSource::KeyUp(Integer& KeyCode, Integer& Shift) {
    raise(12, byReference(KeyCode), byReference(Shift));
}
void EventSource::OLECompleteDrag(Long& Effect) {
    raise(13, byReference(Effect));
}
void EventSource::OLEDragDrop(
    DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) {
    raise(14,
          byReference(Data),
          byReference(Effect),
          byReference(Button),
          byReference(Shift),
          byReference(X),
          byReference(Y));
}
void EventSource::OLEDragOver(
    DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y, Integer& State) {
    raise(15,
          byReference(Data),
          byReference(Effect),
          byReference(Button),
          byReference(Shift),
          byReference(X),
          byReference(Y),
          byReference(State));
}
void EventSource::OLEGiveFeedback(Long& Effect, bool& DefaultCursors) {
    raise(16, byReference(Effect), byReference(DefaultCursors));
}
void EventSource::OLESetData(DragData& Data, Integer& DataFormat) {
    raise(17, byReference(Data), byReference(DataFormat));
}
void EventSource::OLEStartDrag(DragData& Data, Long& AllowedEffects) {
    raise(18, byReference(Data), byReference(AllowedEffects));
}
void EventSource::ErrorWrongIndex(Variant& Index) {
    raise(19, byReference(Index));
}
void EventSource::SortDone() {
    raise(20);
}
void EventSource::ListViewError(const String& eSub, Long eNumber, const String& eDescription) {
    raise(21, eSub, eNumber, eDescription);
}
void EventSource::ItemClick(Long Row, Long Column) {
    raise(22, Row, Column);
}
void EventSource::ItemDblClick(Long Row, Long Column) {
    raise(23, Row, Column);
}
void EventSource::ItemDown(Long Row, Long Column) {
    raise(24, Row, Column);
}
void EventSource::ItemUp(Long Row, Long Column) {
    raise(25, Row, Column);
}
void EventSource::ItemChanged(Long Row, Long Column, const String& NewValue) {
    raise(26, Row, Column, NewValue);
}
void EventSource::ItemOver(Long Row, Long Column, bool bOverItem) {
    raise(27, Row, Column, bOverItem);
}

} // namespace lumtex::win32
