/// \file
/// The public classes of the component.
#pragma once

#include "automation/member_index.h"
#include "automation/member_table.h"

namespace lumtex::automation {

struct ClassDescription {
    StringView name;
    words::Phrase help;
    std::span<const Member> members;
    MemberIndex index; ///< of `members`
};

const ClassDescription& listViewClass();
const ClassDescription& spEvClass();
const ClassDescription& errorClass();

/// Of the whole library, whose name stands in lists of libraries.
inline constexpr words::Phrase libraryHelp = words::phrase(u"library", u"LumtexListView");

/// What designers offer first: the property that they select, and the event that a double click writes a
/// handler for.
inline constexpr StringView firstProperty = u"ColorStyle";
inline constexpr StringView firstEvent = u"ItemClick";

/// All of them: the control first, then the classes that hosts create beside it.
std::span<const ClassDescription> classTable();

} // namespace lumtex::automation
