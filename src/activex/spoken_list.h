/// \file
/// The list as the system's programs for people who cannot see ask for it.
#pragma once

#include "accessibility/accessible_list.h"
#include "activex/com_guard.h"
#include "activex/uia_library.h"
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
    /// Pixels of the screen; none for what does not show.
    std::optional<Rect> place(const accessibility::Element& element) const;
    /// The innermost element at a pixel of the screen; nothing outside the list.
    accessibility::Element at(LONG x, LONG y) const;
    /// Runs `body`, a call of the object `self` that gives an HRESULT; `whenEnded` for a list that has ended.
    /// Calls from a wrong thread are refused.
    template <class Body>
    HRESULT entered(IUnknown& self, HRESULT whenEnded, Body&& body) noexcept {
        if (GetCurrentThreadId() != thread)
            return RPC_E_WRONG_THREAD;
        if (hasEnded())
            return whenEnded;
        // Host code in an act may let go of the control, and of the object.
        const ComRef<IUnknown> alive(outer);
        const ComRef<IUnknown> kept(&self);
        return guarded(std::forward<Body>(body));
    }

    accessibility::AccessibleList list;
    IUnknown* outer; ///< not counted; there as long as the list
    HWND handle = nullptr;
    DWORD thread = GetCurrentThreadId();
    const UiaLibrary* uia = nullptr; ///< null until a program asked for the list by it
};

/// Tells the system what changes in the list, from its making on. Where nobody hears such events the system
/// sorts that out by itself.
class ListSpeaker {
  public:
    using FindUia = const UiaLibrary* (*)();

    /// List and control must outlive it, or be ended before. `findUia` gives null where there is no UI
    /// Automation, and is not called before somebody asks for that.
    ListSpeaker(lmListView& list, IUnknown& control, FindUia findUia = systemsUiaLibrary);
    ListSpeaker(const ListSpeaker&) = delete;
    ListSpeaker& operator=(const ListSpeaker&) = delete;
    ~ListSpeaker() { tellEnd(); }

    /// The answer to WM_GETOBJECT; 0 for what is left to the system.
    LRESULT answer(WPARAM wParam, LPARAM lParam);
    /// The keyboard came to the list.
    void tellFocus() const;
    /// The list is about to go, or its window is.
    void tellEnd() const;

  private:
    std::shared_ptr<SpokenList> spoken_;
    FindUia findUia_;
};

/// The number by which an event names an element below the list: that of its row, or one below 0 for what
/// lies in none; 0 for the list.
LONG eventNumberOf(const accessibility::Element& element);
/// The other way round; nothing for a number that names nothing.
accessibility::Element elementOfNumber(const accessibility::AccessibleList& list, LONG number);

} // namespace lumtex::win32
