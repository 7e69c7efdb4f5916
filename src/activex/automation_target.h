/// \file
/// What stands behind a dual interface.
#pragma once

#include "activex/spare_text.h"
#include "automation/call_by_name.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// An object of a public class on its own thread.
class AutomationTarget {
  public:
    AutomationTarget() = default;
    AutomationTarget(const AutomationTarget&) = delete;
    AutomationTarget& operator=(const AutomationTarget&) = delete;
    virtual ~AutomationTarget() = default;

    virtual const automation::ClassDescription& description() const = 0;
    /// The object, ready for calls.
    virtual automation::CallByName byName() = 0;
    /// For the texts of its calls.
    SpareText& spareText() { return spareText_; }

    /// Calls from any other thread are refused: hosts hand such calls over by the rules of apartments.
    bool onOwnThread() const { return GetCurrentThreadId() == thread_; }

  private:
    DWORD thread_ = GetCurrentThreadId();
    SpareText spareText_;
};

} // namespace lumtex::win32
