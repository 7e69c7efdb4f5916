/// \file
/// The list as the system's programs for people who cannot see ask for it.
#pragma once

#include "accessibility/accessible_list.h"
#include "worlds/win32/com_ref.h"

#include <memory>

namespace lumtex::win32 {

/// What all elements of one control share. It may outlive the control, whose list then answers for nothing.
struct SpokenList {
    SpokenList(lmListView& spoken, IUnknown& control) : list(spoken), outer(&control) {}

    /// Null once the list has ended or lost its window.
    HWND window() const;
    bool hasEnded() const { return list.hasEnded(); }
    /// Whether the keyboard is the list's, or its editor's.
    bool hasKeyboard() const;

    accessibility::AccessibleList list;
    IUnknown* outer; ///< not counted; there as long as the list
    HWND handle = nullptr;
    DWORD thread = GetCurrentThreadId();
};

/// Tells the system what changes in the list, from its making on. Where nobody hears such events the system
/// sorts that out by itself.
class ListSpeaker {
  public:
    /// Both must outlive it, or be ended before.
    ListSpeaker(lmListView& list, IUnknown& control);

    /// The answer to WM_GETOBJECT; 0 for what is left to the system.
    LRESULT answer(WPARAM wParam, LPARAM lParam);
    /// The keyboard came to the list.
    void tellFocus() const;

  private:
    std::shared_ptr<SpokenList> spoken_;
};

/// The number by which an event names an element below the list: that of its row, or one below 0 for what
/// lies in none; 0 for the list.
LONG eventNumberOf(const accessibility::Element& element);
/// The other way round; nothing for a number that names nothing.
accessibility::Element elementOfNumber(const accessibility::AccessibleList& list, LONG number);

} // namespace lumtex::win32
