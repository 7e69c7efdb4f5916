/// The headings under which designers list the properties.
#include "automation/generated_files.h"
#include "model/property_table.h"

namespace lumtex::automation {

std::string propertyGroups() {
    std::string text = "// Made from the property table by scripts/reference; do not edit.\n";
    const auto add = [&](const auto& row) {
        text.append("{\"")
            .append(toUtf8(row.name))
            .append("\", words::phrase(u\"group\", u\"")
            .append(toUtf8(groupKey(row.group)))
            .append("\")},\n");
    };
    std::apply([&](const auto&... row) { (add(row), ...); }, property_table::rows);
    return text;
}

} // namespace lumtex::automation
