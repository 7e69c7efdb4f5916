/// Types, order and signatures of a table of functions.
#include "automation/interface_types.h"

#include "automation/enumeration_table.h"
#include "values/text.h"

namespace lumtex::automation {

namespace {

const char* prefixOf(InterfaceEntry::Kind kind) {
    switch (kind) {
    case InterfaceEntry::Kind::get:
        return "get_";
    case InterfaceEntry::Kind::let:
        return "put_";
    case InterfaceEntry::Kind::set:
        return "putref_";
    case InterfaceEntry::Kind::call:
        break;
    }
    return "";
}

} // namespace

std::string interfaceType(const TypeInfo& type) {
    switch (type.code) {
    case TypeCode::none:
        return "void";
    case TypeCode::boolean:
        return "VARIANT_BOOL";
    case TypeCode::integer:
        return "short";
    case TypeCode::longInteger:
        return "long";
    case TypeCode::single:
        return "float";
    case TypeCode::string:
        return "BSTR";
    case TypeCode::variant:
        return "VARIANT";
    case TypeCode::color:
        return "OLE_COLOR";
    case TypeCode::picture:
        return "IPictureDisp*";
    case TypeCode::font:
        return "IFontDisp*";
    case TypeCode::object:
        return "IDispatch*";
    case TypeCode::variantList:
        return "SAFEARRAY(VARIANT)";
    case TypeCode::enumeration:
    case TypeCode::record:
        break;
    }
    return toUtf8(type.name);
}

std::string enumeratorText(const TypeInfo& type, Double number, std::string_view otherwise) {
    for (const Enumeration& enumeration : enumerationTable)
        for (const Enumerator& enumerator : enumeration.enumerators())
            if (enumeration.name == type.name && static_cast<Double>(enumerator.number) == number)
                return toUtf8(enumerator.name);
    return std::string(otherwise);
}

bool givesResult(const InterfaceEntry& entry) {
    using enum InterfaceEntry::Kind;
    return entry.kind == get || (entry.kind == call && entry.member->type.code != TypeCode::none);
}

std::string entryName(const InterfaceEntry& entry) {
    return prefixOf(entry.kind) + toUtf8(entry.member->name);
}

std::string entrySignature(const InterfaceEntry& entry, std::string (*typeText)(const TypeInfo&)) {
    const Member& member = *entry.member;
    std::string parameters;
    const auto add = [&](const std::string& type, const std::string& name) {
        parameters += (parameters.empty() ? "" : ", ") + type + " " + name;
    };
    for (const Parameter& parameter : member.parameters())
        add(typeText(parameter.type) + (parameter.byReference ? "*" : ""), toUtf8(parameter.name));
    if (givesResult(entry))
        add(typeText(member.type) + "*", "result");
    else if (entry.kind != InterfaceEntry::Kind::call)
        add(typeText(member.type), "value");
    return "virtual HRESULT STDMETHODCALLTYPE " + entryName(entry) + "(" + parameters + ")";
}

std::vector<InterfaceEntry> interfaceEntries(std::span<const Member> members) {
    using enum InterfaceEntry::Kind;
    std::vector<InterfaceEntry> entries;
    for (const Member& member : members) {
        if (member.get != nullptr)
            entries.push_back({&member, get});
        if (member.let != nullptr)
            entries.push_back({&member, member.isReference() ? set : let});
        if (member.call != nullptr)
            entries.push_back({&member, call});
    }
    return entries;
}

} // namespace lumtex::automation
