/// \file
/// The control reached by member names at run time.
#pragma once

#include "automation/member.h"

#include <vector>

namespace lumtex {

/// The member of that name, whatever its case; none where there is no such member.
const Member* findMember(StringView name);
/// The member with that dispatch number; none where there is no such member.
const Member* findMember(Long number);

/// One list, as a script or another late-bound caller sees it.
///
/// Arguments are converted to the types of the interface. One that is `Missing`, or left out at the end,
/// takes its default; what the control writes into by-reference arguments is found in the span afterwards.
/// Throws RuntimeError 438 for an unknown name, or one that cannot be used that way; 449 for an argument that
/// is needed, 450 for one too many; and what a conversion throws. The control itself reports its failures in
/// its own way and returns. The list must outlive this.
class CallByName {
  public:
    explicit CallByName(lmListView& list) : list_(list) {}

    Variant get(StringView name, std::span<Variant> arguments = {});
    /// Assigns a value. A reference is assigned with `set` alone, and only a reference.
    void let(StringView name, std::span<Variant> arguments, const Variant& value);
    void set(StringView name, std::span<Variant> arguments, const Variant& value);
    Variant call(StringView name, std::span<Variant> arguments = {});

  private:
    Variant
    invoke(const Member& member, Member::Invoke entry, std::span<Variant> arguments, const Variant* value);

    lmListView& list_;
};

} // namespace lumtex
