/// The headings under which designers list the properties.
#include "automation/generated_files.h"
#include "model/property_table.h"

namespace lumtex::automation {

namespace {

constexpr std::string_view headingOf(Group group) {
    switch (group) {
    case Group::appearance:
        return "Appearance";
    case Group::behaviour:
        return "Behaviour";
    case Group::columns:
        return "Columns";
    case Group::scrollBars:
        return "Scroll bars";
    case Group::data:
        break;
    }
    return "Data";
}

} // namespace

std::string propertyGroups() {
    std::string text = "// Made from the property table by scripts/reference; do not edit.\n";
    const auto add = [&](const auto& row) {
        text.append("{\"")
            .append(toUtf8(row.name))
            .append("\", \"")
            .append(headingOf(row.group))
            .append("\"},\n");
    };
    std::apply([&](const auto&... row) { (add(row), ...); }, property_table::rows);
    return text;
}

} // namespace lumtex::automation
