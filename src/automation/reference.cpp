/// Pages in Markdown for people who program against the control.
#include "automation/reference.h"

#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "values/text.h"

#include <algorithm>

namespace lumtex::automation {

namespace {

struct Note {
    StringView parameter;
    TypeCode type;
    const char* text;
};

/// What parameters mean wherever they occur; the rest is told by the member's help.
constexpr auto notes = std::to_array<Note>({
    {u"Index", TypeCode::variant, "Counts from 1. A number, or a text that converts to one."},
    {u"Row", TypeCode::variant, "Counts from 1. A number, or a text that converts to one."},
    {u"Column", TypeCode::variant, "Counts from 1. A number; any text fails."},
    {u"Column", TypeCode::longInteger, "Counts from 1."},
    {u"aIndex", TypeCode::variant, "Counts from 0."},
    {u"aText", TypeCode::variant, "Text of the header; whatever converts to a text."},
    {u"aIcon", TypeCode::picture, "Icon of the header."},
    {u"aIconHover", TypeCode::picture, "Its icon while the pointer is over it; Nothing for none."},
    {u"aIconDown", TypeCode::picture, "Its icon while it is pressed; Nothing for none."},
    {u"aAlignment", TypeCode::enumeration, "Place of the text in the header; cells do not take it on."},
    {u"aWidth", TypeCode::single, "Twips."},
    {u"aAllowSorting", TypeCode::boolean, "Whether a click on the header sorts."},
    {u"aForeColor", TypeCode::color, "Colour of the header text; 0 is black."},
    {u"aKey", TypeCode::string, "Kept for the host; no column is found by it."},
    {u"aTag", TypeCode::string, "Kept for the host."},
    {u"aForeColorHover",
     TypeCode::color,
     "Colour of the header text while the pointer is over it; 0 is black."},
    {u"aForeColorDown", TypeCode::color, "Colour of the header text while it is pressed; 0 is black."},
});

std::string noteOn(const Parameter& parameter) {
    const auto* const found = std::ranges::find_if(notes, [&](const Note& note) {
        return note.parameter == parameter.name && note.type == parameter.type.code;
    });
    return found == notes.end() ? "" : found->text;
}

std::string typeText(const TypeInfo& type) {
    const std::string name = toUtf8(type.name);
    return type.code == TypeCode::enumeration ? "[" + name + "](enumerations.md)" : name;
}

std::string defaultText(const DefaultValue& value) {
    switch (value.kind) {
    case DefaultValue::Kind::required:
        return "";
    case DefaultValue::Kind::missing:
        return "left out";
    case DefaultValue::Kind::nothing:
        return "Nothing";
    case DefaultValue::Kind::boolean:
        return value.number != 0 ? "True" : "False";
    case DefaultValue::Kind::number:
        return toUtf8(textFromNumber(value.number));
    case DefaultValue::Kind::text:
        break;
    }
    return "\"" + toUtf8(value.text) + "\"";
}

const char* zeroOf(TypeCode type) {
    switch (type) {
    case TypeCode::boolean:
        return "False";
    case TypeCode::string:
        return "the empty text";
    case TypeCode::variant:
        return "Empty";
    case TypeCode::picture:
    case TypeCode::font:
    case TypeCode::object:
        return "Nothing";
    case TypeCode::record:
        return "an answer that found nothing";
    default:
        return "0";
    }
}

/// "ItemText(Row, Column)"
std::string syntaxOf(const Member& member) {
    std::string text = toUtf8(member.name);
    if (member.count == 0)
        return text;
    text += "(";
    for (const Parameter& parameter : member.parameters()) {
        if (text.back() != '(')
            text += ", ";
        const std::string name = toUtf8(parameter.name);
        const bool list = parameter.type.code == TypeCode::variantList;
        text += list ? name + "..." : parameter.optional() ? "[" + name + "]" : name;
    }
    return text + ")";
}

std::string kindOf(const Member& member) {
    if (member.isMethod())
        return member.type.code == TypeCode::none ? "Method."
                                                  : "Method, returns " + typeText(member.type) + ".";
    const std::string access = member.let == nullptr  ? "read only"
                               : member.isReference() ? "read and set"
                                                      : "read and let";
    return "Property of type " + typeText(member.type) + ", " + access + ".";
}

std::string parameterTable(const Member& member) {
    if (member.count == 0)
        return "";
    std::string text = "\n| parameter | type | default | |\n|---|---|---|---|\n";
    for (const Parameter& parameter : member.parameters()) {
        std::string note = noteOn(parameter);
        if (parameter.byReference)
            note += note.empty() ? "Written back." : " Written back.";
        text += "| `" + toUtf8(parameter.name) + "` | " + typeText(parameter.type) + " | " +
                defaultText(parameter.defaultValue) + " | " + note + " |\n";
    }
    return text;
}

std::string repaintText(const Member& member) {
    const char* what = member.isMethod() ? "The call" : "Assigning";
    if (member.repaint == Repaint::always)
        return std::string("\n") + what + " repaints, whatever `AutoRedraw` says.\n";
    if (member.repaint == Repaint::asAutoRedraw)
        return std::string("\n") + what + " repaints while `AutoRedraw` is True.\n";
    return member.let != nullptr ? "\nAssigning does not repaint.\n" : "";
}

/// These answer by rules of their own, which their help tells.
constexpr StringView neverZero[] = {u"ContentSave", u"ContentInput", u"FileExists"};

std::string failureText(const Member& member) {
    if (member.count == 0 || member.type.code == TypeCode::none)
        return "";
    if (std::ranges::find(neverZero, member.name) != std::end(neverZero))
        return "";
    if (member.isReference())
        return "\nA failure while reading is reported and yields Nothing.\n";
    return std::string("\nA failure is reported and yields ") + zeroOf(member.type.code) + ".\n";
}

std::string describe(const Member& member) {
    return "# " + toUtf8(member.name) + "\n\n    " + syntaxOf(member) + "\n\n" + kindOf(member) + "\n\n" +
           toUtf8(member.help.english) + "\n" + parameterTable(member) + repaintText(member) +
           failureText(member) + "\nDispatch number " + std::to_string(member.number) +
           (member.hidden ? ". Hidden where properties are listed for choice.\n" : ".\n");
}

/// A small class has one page for all of its members.
std::string pageOf(const ClassDescription& description) {
    std::string text = "# " + toUtf8(description.name) + "\n\n" + toUtf8(description.help.english) + "\n";
    for (const Member& member : description.members)
        text += "\n#" + describe(member);
    return text;
}

std::string eventsPage() {
    std::string text =
        "# Events\n\nIn the order of their interface. Rows and columns count from 1, positions are pixels.\n";
    for (const EventDescription& event : eventTable) {
        text += "\n## " + toUtf8(event.name) + "\n\n" + toUtf8(event.help.english) + "\n\n";
        if (event.count == 0)
            text += "No arguments.\n";
        else
            text += "| argument | type | |\n|---|---|---|\n";
        for (const EventArgument& argument : event.arguments())
            text += "| `" + toUtf8(argument.name) + "` | " + typeText(argument.type) + " | " +
                    (argument.byReference ? "by reference" : "") + " |\n";
    }
    return text;
}

std::string enumerationsPage() {
    std::string text = "# Enumerations\n\nValues are not checked: any number is stored.\n";
    for (const Enumeration& enumeration : enumerationTable) {
        text += "\n## " + toUtf8(enumeration.name) + "\n\n" + toUtf8(enumeration.help.english) +
                "\n\n| name | number |\n|---|---|\n";
        for (const Enumerator& member : enumeration.enumerators())
            text += "| `" + toUtf8(member.name) + "` | " + std::to_string(member.number) + " |\n";
    }
    return text;
}

std::string fileNameOf(const Member& member) {
    return toUtf8(member.name) + ".md";
}

std::string indexPage() {
    std::string text = "# Interface reference\n\n"
                       "Made from the tables in `src/automation` by `scripts/reference`; do not edit.\n\n"
                       "[Events](events.md), [enumerations](enumerations.md), the classes [SpEv](SpEv.md) "
                       "and [Error](Error.md), and the "
                       "members of `lmListView`:\n";
    const auto group = [&](const char* title, std::span<const Member> members) {
        text += std::string("\n## ") + title + "\n\n| member | |\n|---|---|\n";
        for (const Member& member : members)
            text += "| [" + toUtf8(member.name) + "](" + fileNameOf(member) + ") | " +
                    toUtf8(member.help.english) + " |\n";
    };
    group("The list", listMembers());
    group("Properties", propertyMembers());
    group("Columns", columnMembers());
    group("Rows", rowMembers());
    group("Cells", itemMembers());
    return text;
}

} // namespace

std::vector<ReferencePage> referencePages() {
    std::vector<ReferencePage> pages{
        {"README.md", indexPage()}, {"events.md", eventsPage()}, {"enumerations.md", enumerationsPage()}};
    for (const Member& member : memberTable())
        pages.push_back({fileNameOf(member), describe(member)});
    for (const ClassDescription& description : {spEvClass(), errorClass()})
        pages.push_back({toUtf8(description.name) + ".md", pageOf(description)});
    return pages;
}

} // namespace lumtex::automation
