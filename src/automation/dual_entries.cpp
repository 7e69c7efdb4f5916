/// The functions that early-bound callers reach.
#include "automation/generated_files.h"
#include "automation/interface_types.h"
#include "values/text.h"

namespace lumtex::automation {

namespace {

const char* forwarderOf(InterfaceEntry::Kind kind) {
    switch (kind) {
    case InterfaceEntry::Kind::get:
        return "getBy";
    case InterfaceEntry::Kind::let:
        return "letBy";
    case InterfaceEntry::Kind::set:
        return "setBy";
    case InterfaceEntry::Kind::call:
        break;
    }
    return "callBy";
}

/// An enumeration has the size of a Long, a list comes as an array, and a record is one of
/// the component's own.
std::string codeType(const TypeInfo& type) {
    if (type.code == TypeCode::enumeration)
        return "long";
    if (type.code == TypeCode::variantList)
        return "SAFEARRAY*";
    if (type.code == TypeCode::record)
        return interfaceType(type) + "Record";
    return interfaceType(type);
}

std::string entryText(const InterfaceEntry& entry) {
    const bool called = entry.kind == InterfaceEntry::Kind::call;
    std::string arguments = std::to_string(entry.member->number);
    if (givesResult(entry))
        arguments += ", result";
    else if (called)
        arguments += ", noResult";
    for (const Parameter& parameter : entry.member->parameters())
        arguments += ", " + toUtf8(parameter.name);
    if (!givesResult(entry) && !called)
        arguments += ", value";
    return entrySignature(entry, codeType) + " { return " + forwarderOf(entry.kind) + "(" + arguments +
           "); }\n";
}

} // namespace

std::string dualEntries(const ClassDescription& description) {
    std::string text = "// Made from the tables in src/automation by scripts/reference; do not edit.\n";
    for (const InterfaceEntry& entry : interfaceEntries(description.members))
        text += entryText(entry);
    return text;
}

} // namespace lumtex::automation
