/// Pages in Markdown for people who program against the control.
#include "automation/reference.h"

#include "automation/argument_notes.h"
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/page_details.h"
#include "automation/page_pictures.h"
#include "automation/related_pages.h"
#include "model/property_table.h"
#include "values/text.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace lumtex::automation {

namespace {

const char* baseText(CountsFrom base) {
    switch (base) {
    case CountsFrom::zero:
        return "Counts from 0.";
    case CountsFrom::one:
        return "Counts from 1.";
    case CountsFrom::nowhere:
        break;
    }
    return "";
}

std::string noteText(const ArgumentNote* note) {
    if (note == nullptr)
        return "";
    const std::string base = baseText(note->base);
    return base.empty() || *note->text == 0 ? base + note->text : base + " " + note->text;
}

std::string fileNameOf(const Member& member) {
    return toUtf8(member.name) + ".md";
}

std::string eventLink(StringView event) {
    std::string anchor = toUtf8(event);
    std::ranges::transform(anchor, anchor.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
    return "events.md#" + anchor;
}

std::string typeText(const TypeInfo& type) {
    const std::string name = toUtf8(type.name);
    return type.code == TypeCode::enumeration ? "[" + name + "](enumerations.md)" : name;
}

std::string inHex(Double number) {
    std::ostringstream text;
    text << "0x" << std::hex << std::uppercase << std::setfill('0') << std::setw(6)
         << static_cast<std::uint32_t>(number);
    return text.str();
}

/// A number as the type writes its values: the name of an enumerator, a colour by its bytes.
std::string numberText(const TypeInfo& type, Double number) {
    switch (type.code) {
    case TypeCode::boolean:
        return number != 0 ? "True" : "False";
    case TypeCode::color:
        return inHex(number);
    case TypeCode::enumeration:
        for (const Enumeration& enumeration : enumerationTable)
            for (const Enumerator& each : enumeration.enumerators())
                if (enumeration.name == type.name && each.number == number)
                    return "`" + toUtf8(each.name) + "`";
        break;
    default:
        break;
    }
    return toUtf8(textFromNumber(number));
}

std::string defaultText(const Parameter& parameter) {
    const DefaultValue& value = parameter.defaultValue;
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
        return numberText(parameter.type, value.number);
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
        text += "| `" + toUtf8(parameter.name) + "` | " + typeText(parameter.type) + " | " +
                defaultText(parameter) + " | " + noteText(noteOn(member, parameter)) + " |\n";
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

std::string startText(const Member& member) {
    const Start* start = nullptr;
    const auto look = [&](const auto& row) {
        if (row.name == member.name)
            start = &row.start;
    };
    std::apply([&](const auto&... row) { (look(row), ...); }, property_table::rows);
    if (start == nullptr)
        return "";
    const auto has = [](const std::string& what) { return "\nA new list has " + what + ".\n"; };
    switch (start->kind) {
    case Start::Kind::containersFont:
        return has("the font of its container");
    case Start::Kind::sixteenPixels:
        return has("as many twips as 16 pixels are");
    case Start::Kind::jumpLines:
        return has("1, and 4 in a few programs that it knows");
    case Start::Kind::noPicture:
        return has("Nothing");
    case Start::Kind::number:
    case Start::Kind::shortNumber:
        break;
    }
    if (start->inNewList || start->value == 0)
        return has(numberText(member.type, start->value));
    return has(numberText(member.type, 0)) + "Where saved settings do not have it, it becomes " +
           numberText(member.type, start->value) + ".\n";
}

std::string pictureText(const Member& member) {
    const auto pictures = pagePictures();
    const auto picture = std::ranges::find(pictures, member.name, &PagePicture::member);
    if (picture == pictures.end())
        return "";
    const auto says = [&](const PictureValue& value) {
        return value.text.empty() ? numberText(member.type, value.number) : "\"" + toUtf8(value.text) + "\"";
    };
    const std::string name = toUtf8(member.name);
    const std::string caption = name + " at two values";
    return "\n![" + caption + "](../images/reference/" + name + ".png)\n\nAt the left " +
           says(picture->left) + ", at the right " + says(picture->right) + ".\n";
}

void addTo(std::string& list, const std::string& link) {
    if (list.find(link) == std::string::npos)
        list += (list.empty() ? "" : ", ") + link;
}

/// What belongs to the member or the event `name`; that one itself is left out. Members are other pages.
std::string seeAlso(StringView name, bool isEvent) {
    std::string links;
    for (const Family& family : families()) {
        const auto own = isEvent ? family.events : family.members;
        if (std::ranges::find(own, name) == own.end())
            continue;
        for (const StringView member : family.members)
            if (isEvent || member != name)
                addTo(links, "[" + toUtf8(member) + "](" + toUtf8(member) + ".md)");
        for (const StringView event : family.events)
            if (!isEvent || event != name)
                addTo(links, "[" + toUtf8(event) + " (event)](" + eventLink(event) + ")");
    }
    return links.empty() ? "" : "\nSee also " + links + ".\n";
}

/// Whoever writes the page fills the block.
std::string exampleText(const Member& member) {
    const std::string_view example = exampleOf(toUtf8(member.name));
    if (example.empty())
        return "";
    return "\n## Example\n\n<!-- example " + std::string(example) + " -->\n```cpp\n```\n";
}

/// `level`: the heading's, as many signs.
std::string describe(const Member& member, const char* level = "#") {
    return std::string(level) + " " + toUtf8(member.name) + "\n\n    " + syntaxOf(member) + "\n\n" +
           kindOf(member) + "\n\n" + toUtf8(member.help.in(words::Language::english)) + "\n" +
           pictureText(member) + parameterTable(member) + startText(member) + repaintText(member) +
           failureText(member) + std::string(detailsOf(toUtf8(member.name))) + exampleText(member) +
           seeAlso(member.name, false) + "\nDispatch number " + std::to_string(member.number) +
           (member.hidden ? ". Hidden where properties are listed for choice.\n" : ".\n");
}

/// A small class has one page for all of its members.
std::string pageOf(const ClassDescription& description) {
    std::string text = "# " + toUtf8(description.name) + "\n\n" +
                       toUtf8(description.help.in(words::Language::english)) + "\n";
    for (const Member& member : description.members)
        text += "\n" + describe(member, "##");
    return text;
}

std::string eventsPage() {
    std::string text =
        "# Events\n\nIn the order of their interface. Rows and columns count from 1, positions are pixels.\n";
    text += detailsOf("Events");
    for (const EventDescription& event : eventTable) {
        text +=
            "\n## " + toUtf8(event.name) + "\n\n" + toUtf8(event.help.in(words::Language::english)) + "\n\n";
        if (event.count == 0)
            text += "No arguments.\n";
        else
            text += "| argument | type | | |\n|---|---|---|---|\n";
        for (const EventArgument& argument : event.arguments())
            text += "| `" + toUtf8(argument.name) + "` | " + typeText(argument.type) + " | " +
                    (argument.byReference ? "by reference" : "") + " | " + noteText(noteOn(event, argument)) +
                    " |\n";
        text += seeAlso(event.name, true);
    }
    return text;
}

/// Every index of the interface with its base, so that nobody has to guess.
std::string indicesPage() {
    std::string text = "# Where indices count from\n\n"
                       "Rows and columns count from 1, but for the few below that count from 0.\n\n"
                       "| member or event | index | counts from |\n|---|---|---|\n";
    const auto add = [&](const std::string& link, const std::string& what, CountsFrom base) {
        if (base != CountsFrom::nowhere)
            text += "| " + link + " | " + what + " | " + (base == CountsFrom::zero ? "**0**" : "1") + " |\n";
    };
    const auto baseIn = [](const ArgumentNote* note) {
        return note == nullptr ? CountsFrom::nowhere : note->base;
    };
    for (const Member& member : memberTable()) {
        const std::string link = "[" + toUtf8(member.name) + "](" + fileNameOf(member) + ")";
        for (const Parameter& parameter : member.parameters())
            add(link, "`" + toUtf8(parameter.name) + "`", baseIn(noteOn(member, parameter)));
        add(link, member.isMethod() ? "the answer" : "its value", baseOf(member));
    }
    for (const EventDescription& event : eventTable)
        for (const EventArgument& argument : event.arguments())
            add("[" + toUtf8(event.name) + " (event)](" + eventLink(event.name) + ")",
                "`" + toUtf8(argument.name) + "`",
                baseIn(noteOn(event, argument)));
    return text;
}

std::string enumerationsPage() {
    std::string text = "# Enumerations\n\nValues are not checked: any number is stored.\n";
    for (const Enumeration& enumeration : enumerationTable) {
        text += "\n## " + toUtf8(enumeration.name) + "\n\n" +
                toUtf8(enumeration.help.in(words::Language::english)) + "\n\n| name | number |\n|---|---|\n";
        for (const Enumerator& member : enumeration.enumerators())
            text += "| `" + toUtf8(member.name) + "` | " + std::to_string(member.number) + " |\n";
    }
    return text;
}

std::string indexPage() {
    std::string text = "# Interface reference\n\n"
                       "Made from the tables in `src/automation` by `scripts/reference`; do not edit.\n\n"
                       "[Events](events.md), [enumerations](enumerations.md), "
                       "[where indices count from](indices.md), the classes [SpEv](SpEv.md) and "
                       "[Error](Error.md), and the members of `lmListView`:\n";
    const auto group = [&](const char* title, std::span<const Member> members) {
        text += std::string("\n## ") + title + "\n\n| member | |\n|---|---|\n";
        for (const Member& member : members)
            text += "| [" + toUtf8(member.name) + "](" + fileNameOf(member) + ") | " +
                    toUtf8(member.help.in(words::Language::english)) + " |\n";
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
    std::vector<ReferencePage> pages{{"README.md", indexPage()},
                                     {"events.md", eventsPage()},
                                     {"enumerations.md", enumerationsPage()},
                                     {"indices.md", indicesPage()}};
    for (const Member& member : memberTable())
        pages.push_back({fileNameOf(member), describe(member)});
    for (const ClassDescription& description : {spEvClass(), errorClass()})
        pages.push_back({toUtf8(description.name) + ".md", pageOf(description)});
    return pages;
}

} // namespace lumtex::automation
