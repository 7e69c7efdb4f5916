#include "quotes.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace lumtex::reference {

namespace {

constexpr std::string_view marker = "<!-- example ";
constexpr std::string_view markerEnd = " -->";

std::string trimmed(const std::string& line) {
    const std::size_t first = line.find_first_not_of(' ');
    return first == std::string::npos ? "" : line.substr(first);
}

/// The lines without what all of them begin with.
void appendToTheLeft(std::string& text, const std::vector<std::string>& lines) {
    std::size_t margin = std::string::npos;
    for (const std::string& line : lines)
        margin = std::min(margin, line.find_first_not_of(' '));
    for (const std::string& line : lines)
        text += line.substr(std::min(margin, line.size())) + "\n";
}

} // namespace

std::string shownCode(const std::string& source) {
    std::istringstream lines(source);
    std::string text;
    std::vector<std::string> piece;
    bool inside = false;
    for (std::string line; std::getline(lines, line);) {
        const std::string words = trimmed(line);
        if (words == "// [shown") {
            inside = true;
            piece.clear();
        } else if (words == "// shown]") {
            inside = false;
            text += text.empty() ? "" : "\n";
            appendToTheLeft(text, piece);
        } else if (inside) {
            piece.push_back(line);
        }
    }
    if (text.empty() || inside)
        throw std::runtime_error("an example shows nothing, or does not end");
    return text;
}

std::string withQuotes(const std::string& page,
                       const std::function<std::string(const std::string&)>& codeOf) {
    std::istringstream lines(page);
    std::string text;
    for (std::string line; std::getline(lines, line);) {
        text += line + "\n";
        if (!line.starts_with(marker) || !line.ends_with(markerEnd))
            continue;
        const std::string name = line.substr(marker.size(), line.size() - marker.size() - markerEnd.size());
        if (!std::getline(lines, line) || line != "```cpp")
            throw std::runtime_error("no block of C++ follows the example " + name);
        while (std::getline(lines, line) && line != "```")
            continue;
        if (!lines)
            throw std::runtime_error("the block of the example " + name + " does not end");
        text += "```cpp\n" + codeOf(name) + "```\n";
    }
    return text;
}

} // namespace lumtex::reference
