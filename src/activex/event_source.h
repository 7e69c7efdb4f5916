/// \file
/// Hands the control's events to the sinks of the host.
#pragma once

#include "activex/connection_point.h"
#include "activex/event_slot.h"
#include "model/list_view_events.h"

namespace lumtex::win32 {

/// Events are numbered from 1 in the order of their table. Sinks that fail are not heard of; a sink that went
/// away meanwhile is still called. While frozen no sink is called.
class EventSource final : public lmListViewEvents {
  public:
    explicit EventSource(ConnectionPoint& point) : point_(point) {}

    /// Nested; each `freeze(true)` needs its `freeze(false)`.
    void freeze(bool frozen) { frozen_ += frozen ? 1 : frozen_ > 0 ? -1 : 0; }

    void Click() override;
    void DblClick() override;
    void ItemCheck(Long Row, Long Column, bool NewValue, bool& Cancel) override;
    void ItemChecked(Long Row, Long Column, bool NewValue) override;
    void MouseUp(Integer& Button, Integer& Shift, Single& X, Single& Y) override;
    void MouseMove(Integer& Button, Integer& Shift, Single& X, Single& Y) override;
    void MouseDown(Integer& Button, Integer& Shift, Single& X, Single& Y) override;
    void ColumnClick(Long& Column) override;
    void Scroll() override;
    void KeyDown(Integer& KeyCode, Integer& Shift) override;
    void KeyPress(Integer& KeyAscii) override;
    void KeyUp(Integer& KeyCode, Integer& Shift) override;
    void OLECompleteDrag(Long& Effect) override;
    void
    OLEDragDrop(DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) override;
    void OLEDragOver(DragData& Data,
                     Long& Effect,
                     Integer& Button,
                     Integer& Shift,
                     Single& X,
                     Single& Y,
                     Integer& State) override;
    void OLEGiveFeedback(Long& Effect, bool& DefaultCursors) override;
    void OLESetData(DragData& Data, Integer& DataFormat) override;
    void OLEStartDrag(DragData& Data, Long& AllowedEffects) override;
    void ErrorWrongIndex(Variant& Index) override;
    void SortDone() override;
    void ListViewError(const String& eSub, Long eNumber, const String& eDescription) override;
    void ItemClick(Long Row, Long Column) override;
    void ItemDblClick(Long Row, Long Column) override;
    void ItemDown(Long Row, Long Column) override;
    void ItemUp(Long Row, Long Column) override;
    void ItemChanged(Long Row, Long Column, const String& NewValue) override;
    void ItemOver(Long Row, Long Column, bool bOverItem) override;

  private:
    template <class... Arguments>
    void raise(DISPID number, const Arguments&... arguments) noexcept;

    ConnectionPoint& point_;
    int frozen_ = 0;
};

} // namespace lumtex::win32
