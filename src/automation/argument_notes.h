/// \file
/// What the arguments of members and events mean, for the reference.
#pragma once

#include "automation/event_table.h"
#include "automation/member.h"

namespace lumtex::automation {

/// From where a number counts rows or columns.
enum class CountsFrom : Byte { nowhere, zero, one };

/// One sentence or more in Markdown, and the base of an index.
struct ArgumentNote {
    StringView of;   ///< the member or event; empty: all that have no note of their own for such an argument
    StringView name; ///< of the argument
    CountsFrom base = CountsFrom::nowhere;
    const char* text = ""; ///< follows what `base` says; in an event, also what a change of the argument does
};

/// Null where the tables say nothing, which a test does not let pass.
const ArgumentNote* noteOn(const Member& member, const Parameter& parameter);
const ArgumentNote* noteOn(const EventDescription& event, const EventArgument& argument);

/// Where the number counts from that a property or a method gives.
CountsFrom baseOf(const Member& member);

} // namespace lumtex::automation
