/// \file
/// The public interface of the control, described once.
#pragma once

#include "automation/member.h"

#include <span>

namespace lumtex::automation {

/// All properties and methods, in order of their groups: list, properties, columns, rows, cells. Calls by
/// name, the reference pages and the tests are made from it. A new public member gets its line in the file
/// of its group, and a dispatch number that was never used.
std::span<const Member> memberTable();

std::span<const Member> listMembers();
std::span<const Member> propertyMembers();
std::span<const Member> columnMembers();
std::span<const Member> rowMembers();
std::span<const Member> itemMembers();

/// The members of the classes beside the control, see class_table.h.
std::span<const Member> spEvMembers();
std::span<const Member> errorMembers();

} // namespace lumtex::automation
