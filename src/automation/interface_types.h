/// \file
/// How the types of the public interface are written in interface definitions and in the table of functions.
#pragma once

#include "automation/member.h"

#include <string>
#include <string_view>
#include <vector>

namespace lumtex::automation {

/// The type of a value, "VARIANT_BOOL".
std::string interfaceType(const TypeInfo& type);

/// The name of an enumerator; `otherwise` for a number that the enumeration has not.
std::string enumeratorText(const TypeInfo& type, Double number, std::string_view otherwise);

/// One entry of a table of functions.
struct InterfaceEntry {
    enum class Kind : Byte { get, let, set, call };

    const Member* member;
    Kind kind;
};

/// Whether the entry gives a value through its last parameter.
bool givesResult(const InterfaceEntry& entry);

/// "get_X", or the name alone for a method.
std::string entryName(const InterfaceEntry& entry);

/// The entry as a virtual function of C++, without its body: "virtual HRESULT STDMETHODCALLTYPE get_X(long*
/// result)". `typeText` writes the types.
std::string entrySignature(const InterfaceEntry& entry, std::string (*typeText)(const TypeInfo&));

/// The entries in the order of the table: the members as they stand, a property's get before its let.
std::vector<InterfaceEntry> interfaceEntries(std::span<const Member> members);

} // namespace lumtex::automation
