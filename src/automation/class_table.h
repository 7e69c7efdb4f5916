/// \file
/// The public classes of the component.
#pragma once

#include "automation/member_table.h"

namespace lumtex {

struct ClassDescription {
    StringView name;
    StringView help; ///< one line
    std::span<const Member> members;
};

const ClassDescription& listViewClass();
const ClassDescription& spEvClass();
const ClassDescription& errorClass();

/// All of them: the control first, then the classes that hosts create beside it.
std::span<const ClassDescription> classTable();

} // namespace lumtex
