/// The header that early-bound hosts include.
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/generated_files.h"
#include "automation/identifiers.h"
#include "automation/interface_types.h"
#include "automation/record_table.h"
#include "values/text.h"

namespace lumtex::automation {

namespace {

/// "{0x00112233, 0x4455, 0x6677, {0x88, ...}}" of "00112233-4455-6677-8899-aabbccddeeff".
std::string guidInitializer(std::string_view uuid) {
    const auto number = [&](std::size_t from, std::size_t digits) {
        return "0x" + std::string(uuid.substr(from, digits));
    };
    std::string text =
        "{" + number(0, 8) + ", " + number(9, 4) + ", " + number(14, 4) + ", {" + number(19, 2);
    for (const std::size_t from : {21, 24, 26, 28, 30, 32, 34})
        text += ", " + number(from, 2);
    return text + "}}";
}

std::string constantText(const std::string& constant, std::string_view name) {
    return "inline constexpr GUID " + constant + " = " + guidInitializer(uuidOf(name)) + ";\n";
}

std::string hostType(const TypeInfo& type) {
    return type.code == TypeCode::variantList ? "SAFEARRAY*" : interfaceType(type);
}

std::string commentText(const std::string& indent, const words::Phrase& help) {
    return indent + "/// " + toUtf8(help.in(words::Language::english)) + "\n";
}

std::string enumerationText(const Enumeration& enumeration) {
    std::string text = commentText("", enumeration.help) + "enum " + toUtf8(enumeration.name) + " : long {\n";
    for (const Enumerator& enumerator : enumeration.enumerators())
        text += "    " + toUtf8(enumerator.name) + " = " + std::to_string(enumerator.number) + ",\n";
    return text + "};\n\n";
}

std::string recordText() {
    std::string text = commentText("", findResultsHelp) + "struct FindResults {\n";
    for (const RecordField& field : findResultsFields)
        text += "    " + interfaceType(field.type) + " " + toUtf8(field.name) + ";\n";
    return text + "};\n\n";
}

std::string interfaceText(const ClassDescription& description) {
    const std::string name = "_" + toUtf8(description.name);
    std::string text = commentText("", description.help) + "struct " + name + " : IDispatch {\n";
    for (const InterfaceEntry& entry : interfaceEntries(description.members))
        text +=
            commentText("    ", entry.member->help) + "    " + entrySignature(entry, hostType) + " = 0;\n";
    return text + "};\n\n";
}

std::string eventText(const EventDescription& event, int number) {
    std::string arguments;
    for (const EventArgument& argument : event.arguments())
        arguments += (arguments.empty() ? "" : ", ") + interfaceType(argument.type) +
                     (argument.byReference ? "* " : " ") + toUtf8(argument.name);
    return commentText("", event.help) + "inline constexpr DISPID " + toUtf8(event.name) + " = " +
           std::to_string(number) + "; // (" + arguments + ")\n";
}

} // namespace

std::string hostHeader() {
    std::string text =
        "// LumtexListView for hosts in C++. Made from the tables in src/automation by scripts/reference; "
        "do not edit.\n#pragma once\n\n#include <windows.h>\n\n#include <ocidl.h>\n#include <olectl.h>\n\n"
        "namespace LumtexListView {\n\n" +
        constantText("LIBID_LumtexListView", "LumtexListView");
    for (const ClassDescription& description : classTable()) {
        const std::string name = toUtf8(description.name);
        text += constantText("CLSID_" + name, name) + constantText("IID__" + name, "_" + name);
    }
    text += constantText("DIID_lmListViewEvents", "__lmListView") + "\n";
    for (const Enumeration& enumeration : enumerationTable)
        text += enumerationText(enumeration);
    text += recordText();
    for (const ClassDescription& description : classTable())
        text += interfaceText(description);
    text += "/// The events of lmListView by their dispatch numbers.\nnamespace events {\n\n";
    int number = 0;
    for (const EventDescription& event : eventTable)
        text += eventText(event, ++number);
    return text + "\n} // namespace events\n\n} // namespace LumtexListView\n";
}

} // namespace lumtex::automation
