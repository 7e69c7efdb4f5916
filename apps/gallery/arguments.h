/// \file
/// What the gallery was asked to show.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lumtex::gallery {

constexpr const char* usage = "[FILE.csv | DIRECTORY | --query DATABASE SQL]";

struct Subject {
    std::string path;     ///< a file or a folder; empty for a query
    std::string database; ///< a file of SQLite, or "postgresql://..."
    std::string sql;

    bool isQuery() const { return path.empty(); }
    bool operator==(const Subject&) const = default;
};

/// From the words behind the program's name; without any, the current folder. None where they make no sense.
std::optional<Subject> subjectFrom(const std::vector<std::string>& words);

} // namespace lumtex::gallery
