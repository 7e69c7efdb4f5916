/// The type library's source.
#include "automation/call_by_name.h"
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/generated_files.h"
#include "automation/identifiers.h"
#include "automation/interface_types.h"
#include "automation/record_table.h"
#include "values/text.h"
#include "values/windows_1252.h"

#include <bit>

namespace lumtex::automation {

namespace {

/// The compiler of type libraries takes the bytes of texts as they are, and the library holds them in the
/// code page of the system, which is the German one's too.
std::string quoted(StringView text) {
    std::string result = "\"";
    for (const char16_t unit : text) {
        if (unit == u'"' || unit == u'\\')
            result += '\\';
        result += static_cast<char>(toWindows1252(unit));
    }
    return result + "\"";
}

std::string helpText(const words::Phrase& help) {
    return "helpstring(" + quoted(help.in(words::Language::german)) + ")";
}

std::string uuid(const std::string& name) {
    return "uuid(" + std::string(uuidOf(name)) + ")";
}

/// Type libraries hold no default of a colour or of a Variant. A caller who leaves
/// such an argument out passes 0 or the mark of an absent one, which mean the same to the
/// control.
std::string defaultOf(const Parameter& parameter) {
    using Kind = DefaultValue::Kind;
    const DefaultValue& value = parameter.defaultValue;
    const TypeCode type = parameter.type.code;
    if (type == TypeCode::color || type == TypeCode::variant)
        return "";
    // The compiler takes an integer alone, and stores its bits.
    if (type == TypeCode::single)
        return ", defaultvalue(" + std::to_string(std::bit_cast<Long>(static_cast<Single>(value.number))) +
               ")";
    if (value.kind == Kind::boolean || value.kind == Kind::number)
        return ", defaultvalue(" + toUtf8(textFromNumber(value.number)) + ")";
    if (value.kind == Kind::text && !parameter.byReference)
        return ", defaultvalue(" + quoted(value.text) + ")";
    // For a text by reference, too, the compiler takes an integer alone. Its bits are the mark at which the
    // build puts the text "*" (component.cmake).
    if (value.kind == Kind::text && value.text == u"*")
        return ", defaultvalue(" + std::to_string(0x47424141) + ")";
    return "";
}

std::string parameterText(const Parameter& parameter) {
    const bool list = parameter.type.code == TypeCode::variantList;
    std::string text = parameter.byReference ? "[in, out" : "[in";
    if (parameter.optional() && !list)
        text += ", optional" + defaultOf(parameter);
    return text + "] " + interfaceType(parameter.type) + (parameter.byReference ? "* " : " ") +
           toUtf8(parameter.name);
}

bool takesAnyNumber(const Member& member) {
    return member.count > 0 && member.entries[member.count - 1].type.code == TypeCode::variantList;
}

const char* attributeOf(const InterfaceEntry& entry) {
    switch (entry.kind) {
    case InterfaceEntry::Kind::get:
        return "propget, ";
    case InterfaceEntry::Kind::let:
        return "propput, ";
    case InterfaceEntry::Kind::set:
        return "propputref, ";
    case InterfaceEntry::Kind::call:
        break;
    }
    return takesAnyNumber(*entry.member) ? "vararg, " : "";
}

/// Whether designers offer the property first.
bool comesFirst(const Member& member) {
    return &member == findMember(listViewClass(), firstProperty);
}

std::string entryText(const InterfaceEntry& entry) {
    using enum InterfaceEntry::Kind;
    const Member& member = *entry.member;
    std::string text = "        [" + std::string(attributeOf(entry)) + "id(" + std::to_string(member.number) +
                       "), " + helpText(member.help) + (comesFirst(member) ? ", uidefault" : "") +
                       (member.hidden ? ", nonbrowsable]" : "]") + "\n        HRESULT " +
                       toUtf8(member.name) + "(";
    const char* separator = "";
    for (const Parameter& parameter : member.parameters()) {
        text += separator + parameterText(parameter);
        separator = ", ";
    }
    if (entry.kind == let || entry.kind == set)
        text += std::string(separator) + "[in] " + interfaceType(member.type) + " value";
    else if (member.type.code != TypeCode::none)
        text += std::string(separator) + "[out, retval] " + interfaceType(member.type) + "* result";
    return text + ");\n";
}

std::string interfaceText(const ClassDescription& description) {
    const std::string name = "_" + toUtf8(description.name);
    std::string text = "    [odl, " + uuid(name) + ", dual, oleautomation, nonextensible, hidden, " +
                       helpText(description.help) + "]\n    interface " + name + " : IDispatch {\n";
    for (const InterfaceEntry& entry : interfaceEntries(description.members))
        text += entryText(entry);
    return text + "    };\n\n";
}

/// Events are numbered in their order, from 1.
std::string eventsText() {
    std::string text = "    [" + uuid("__lmListView") + ", hidden, " + helpText(eventsHelp) +
                       "]\n    dispinterface __lmListView {\n"
                       "    properties:\n    methods:\n";
    int number = 0;
    for (const EventDescription& event : eventTable) {
        text += "        [id(" + std::to_string(++number) + "), " + helpText(event.help) +
                (event.name == firstEvent ? ", uidefault] void " : "] void ") + toUtf8(event.name) + "(";
        const char* separator = "";
        for (const EventArgument& argument : event.arguments()) {
            text += std::string(separator) + (argument.byReference ? "[in, out] " : "[in] ") +
                    interfaceType(argument.type) + (argument.byReference ? "* " : " ") +
                    toUtf8(argument.name);
            separator = ", ";
        }
        text += ");\n";
    }
    return text + "    };\n\n";
}

std::string enumerationText(const Enumeration& enumeration) {
    const std::string name = toUtf8(enumeration.name);
    std::string text =
        "    typedef [" + uuid(name) + ", " + helpText(enumeration.help) + "] enum " + name + " {\n";
    const char* separator = "";
    for (const Enumerator& enumerator : enumeration.enumerators()) {
        text += std::string(separator) + "        " + toUtf8(enumerator.name) + " = " +
                std::to_string(enumerator.number);
        separator = ",\n";
    }
    return text + "\n    } " + name + ";\n\n";
}

std::string recordText() {
    std::string text =
        "    typedef [" + uuid("FindResults") + ", " + helpText(findResultsHelp) + "] struct FindResults {\n";
    for (const RecordField& field : findResultsFields)
        text += "        " + interfaceType(field.type) + " " + toUtf8(field.name) + ";\n";
    return text + "    } FindResults;\n\n";
}

std::string classText(const ClassDescription& description) {
    const std::string name = toUtf8(description.name);
    const bool control = description.name == listViewClass().name;
    std::string text = "    [" + uuid(name) + ", " + helpText(description.help) +
                       (control ? ", control" : "") + "]\n    coclass " + name +
                       " {\n        [default] interface _" + name + ";\n";
    if (control)
        text += "        [default, source] dispinterface __" + name + ";\n";
    return text + "    };\n";
}

} // namespace

std::string typeLibrarySource() {
    std::string text = "// Made from the tables in src/automation by scripts/reference; do not edit. -*- "
                       "coding: windows-1252 -*-\n"
                       "import \"base_types.idl\";\n\n"
                       "[" +
                       uuid("LumtexListView") + ", version(" + std::to_string(typeLibraryMajor) + "." +
                       std::to_string(typeLibraryMinor) + "), " + helpText(libraryHelp) +
                       "]\n"
                       "library LumtexListView {\n    importlib(\"stdole2.tlb\");\n\n";
    for (const Enumeration& enumeration : enumerationTable)
        text += enumerationText(enumeration);
    text += recordText();
    for (const ClassDescription& description : classTable())
        text += interfaceText(description);
    text += eventsText();
    const char* separator = "";
    for (const ClassDescription& description : classTable()) {
        text += separator + classText(description);
        separator = "\n";
    }
    return text + "}\n";
}

} // namespace lumtex::automation
