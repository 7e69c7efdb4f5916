/// The functions that early-bound callers reach.
#include "automation/dual_entries.h"

#include "automation/interface_types.h"
#include "platform/text.h"

namespace lumtex {

namespace {

struct EntryWords {
    const char* prefix;
    const char* through;
};

EntryWords wordsOf(InterfaceEntry::Kind kind) {
    switch (kind) {
    case InterfaceEntry::Kind::get:
        return {"get_", "getBy"};
    case InterfaceEntry::Kind::let:
        return {"put_", "letBy"};
    case InterfaceEntry::Kind::set:
        return {"putref_", "setBy"};
    case InterfaceEntry::Kind::call:
        break;
    }
    return {"", "callBy"};
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
    using enum InterfaceEntry::Kind;
    const Member& member = *entry.member;
    const EntryWords words = wordsOf(entry.kind);
    std::string parameters;
    std::string arguments = std::to_string(member.number);
    const auto add = [&](const std::string& type, const std::string& name) {
        parameters += (parameters.empty() ? "" : ", ") + type + " " + name;
    };
    const bool gives = entry.kind == get || (entry.kind == call && member.type.code != TypeCode::none);
    if (gives)
        arguments += ", result";
    else if (entry.kind == call)
        arguments += ", noResult";
    for (const Parameter& parameter : member.parameters()) {
        add(codeType(parameter.type) + (parameter.byReference ? "*" : ""), toUtf8(parameter.name));
        arguments += ", " + toUtf8(parameter.name);
    }
    if (gives) {
        add(codeType(member.type) + "*", "result");
    } else if (entry.kind != call) {
        add(codeType(member.type), "value");
        arguments += ", value";
    }
    return "virtual HRESULT STDMETHODCALLTYPE " + (words.prefix + toUtf8(member.name)) + "(" + parameters +
           ") { return " + words.through + "(" + arguments + "); }\n";
}

} // namespace

std::string dualEntries(const ClassDescription& description) {
    std::string text = "// Made from the tables in src/automation by scripts/reference; do not edit.\n";
    for (const InterfaceEntry& entry : interfaceEntries(description.members))
        text += entryText(entry);
    return text;
}

} // namespace lumtex
