#include "arguments.h"

namespace lumtex::gallery {

std::optional<Subject> subjectFrom(const std::vector<std::string>& words) {
    if (words.empty())
        return Subject{".", "", ""};
    if (words[0] == "--query")
        return words.size() == 3 ? std::optional(Subject{"", words[1], words[2]}) : std::nullopt;
    if (words.size() > 1 || words[0].empty() || words[0].starts_with("--"))
        return std::nullopt;
    return Subject{words[0], "", ""};
}

} // namespace lumtex::gallery
