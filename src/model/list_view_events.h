/// \file
/// The 27 events of the control, in the order of their interface.
#pragma once

#include "platform/user_control.h"
#include "values/types.h"
#include "values/variant.h"

namespace lumtex {

/// The host's side of the control. Rows and columns count from 1; positions are pixels. Arguments that are
/// references travel back to the control. A handler may call the control, but must not throw.
class lmListViewEvents {
  public:
    lmListViewEvents() = default;
    lmListViewEvents(const lmListViewEvents&) = delete;
    lmListViewEvents& operator=(const lmListViewEvents&) = delete;
    virtual ~lmListViewEvents() = default;

    virtual void Click() {}
    virtual void DblClick() {}
    virtual void ItemCheck(Long /*Row*/, Long /*Column*/, bool /*NewValue*/, bool& /*Cancel*/) {}
    virtual void ItemChecked(Long /*Row*/, Long /*Column*/, bool /*NewValue*/) {}
    virtual void MouseUp(Integer& /*Button*/, Integer& /*Shift*/, Single& /*X*/, Single& /*Y*/) {}
    virtual void MouseMove(Integer& /*Button*/, Integer& /*Shift*/, Single& /*X*/, Single& /*Y*/) {}
    virtual void MouseDown(Integer& /*Button*/, Integer& /*Shift*/, Single& /*X*/, Single& /*Y*/) {}
    virtual void ColumnClick(Long& /*Column*/) {}
    virtual void Scroll() {}
    virtual void KeyDown(Integer& /*KeyCode*/, Integer& /*Shift*/) {}
    virtual void KeyPress(Integer& /*KeyAscii*/) {}
    virtual void KeyUp(Integer& /*KeyCode*/, Integer& /*Shift*/) {}
    virtual void OLECompleteDrag(Long& /*Effect*/) {}
    virtual void OLEDragDrop(DragData& /*Data*/,
                             Long& /*Effect*/,
                             Integer& /*Button*/,
                             Integer& /*Shift*/,
                             Single& /*X*/,
                             Single& /*Y*/) {}
    virtual void OLEDragOver(DragData& /*Data*/,
                             Long& /*Effect*/,
                             Integer& /*Button*/,
                             Integer& /*Shift*/,
                             Single& /*X*/,
                             Single& /*Y*/,
                             Integer& /*State*/) {}
    virtual void OLEGiveFeedback(Long& /*Effect*/, bool& /*DefaultCursors*/) {}
    virtual void OLESetData(DragData& /*Data*/, Integer& /*DataFormat*/) {}
    virtual void OLEStartDrag(DragData& /*Data*/, Long& /*AllowedEffects*/) {}
    virtual void ErrorWrongIndex(Variant& /*Index*/) {}
    virtual void SortDone() {}
    virtual void ListViewError(const String& /*eSub*/, Long /*eNumber*/, const String& /*eDescription*/) {}
    virtual void ItemClick(Long /*Row*/, Long /*Column*/) {}
    virtual void ItemDblClick(Long /*Row*/, Long /*Column*/) {}
    virtual void ItemDown(Long /*Row*/, Long /*Column*/) {}
    virtual void ItemUp(Long /*Row*/, Long /*Column*/) {}
    virtual void ItemChanged(Long /*Row*/, Long /*Column*/, const String& /*NewValue*/) {}
    virtual void ItemOver(Long /*Row*/, Long /*Column*/, bool /*bOverItem*/) {}
};

} // namespace lumtex
