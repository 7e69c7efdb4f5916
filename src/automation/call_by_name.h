/// \file
/// The public classes reached by member names at run time.
#pragma once

#include "automation/argument_list.h"
#include "automation/class_table.h"
#include "guards/error.h"
#include "model/list_view.h"

#include <optional>

namespace lumtex::automation {

/// The member of that name, whatever its case; none if there is no such member.
const Member* findMember(const ClassDescription& of, StringView name);
/// The member with that dispatch number; none if there is no such member.
const Member* findMember(const ClassDescription& of, Long number);

/// One object of a public class, as a script or another late-bound caller sees it.
///
/// Arguments are converted to the types of the interface. One that is `Missing`, or left out at the end,
/// takes its default; what the control writes into by-reference arguments is found in the span afterwards.
/// Throws RuntimeError 438 for an unknown name, or one that cannot be used that way; 449 for an argument that
/// is needed, 450 for one too many; and what a conversion throws. The control itself reports its failures in
/// its own way and returns. The object must outlive this.
class CallByName {
  public:
    explicit CallByName(lmListView& list) : CallByName(listViewClass(), &list) {}
    explicit CallByName(SpEv& helper) : CallByName(spEvClass(), &helper) {}
    explicit CallByName(Error& error) : CallByName(errorClass(), &error) {}

    const ClassDescription& description() const { return class_; }

    Variant get(StringView name, std::span<Variant> arguments = {});
    /// Assigns a value. A reference is assigned with `set` alone, and only a reference.
    void let(StringView name, std::span<Variant> arguments, Variant value);
    void set(StringView name, std::span<Variant> arguments, Variant value);
    Variant call(StringView name, std::span<Variant> arguments = {});

    /// How the caller writes numbers and dates; arguments are converted by it. Null: as the control does.
    /// Must outlive the calls.
    void letCallersLocale(const Locale* locale) { callers_ = locale; }

    // The same with a member of the class that was looked up before.

    Variant get(const Member& member, std::span<Variant> arguments);
    void let(const Member& member, std::span<Variant> arguments, Variant value);
    void set(const Member& member, std::span<Variant> arguments, Variant value);
    Variant call(const Member& member, std::span<Variant> arguments);

    // The same with arguments that nobody else has, one for each parameter: they serve where they lie. Of an
    // assignment the value comes last. One that is `Missing` is so again when the call has ended.

    Variant get(const Member& member, ArgumentList& own);
    void let(const Member& member, ArgumentList& own);
    void set(const Member& member, ArgumentList& own);
    Variant call(const Member& member, ArgumentList& own);

  private:
    CallByName(const ClassDescription& description, void* object) : class_(description), object_(object) {}

    const Member& needMember(StringView name) const;
    Variant invoke(const Member& member,
                   Member::Invoke entry,
                   std::span<Variant> arguments,
                   std::optional<Variant> value);
    Variant invoke(const Member& member, Member::Invoke entry, ArgumentList& own);

    const ClassDescription& class_;
    void* object_;
    const Locale* callers_ = nullptr;
};

} // namespace lumtex::automation
