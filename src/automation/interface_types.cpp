/// Types and order of a table of functions.
#include "automation/interface_types.h"

#include "platform/text.h"

namespace lumtex {

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

} // namespace lumtex
