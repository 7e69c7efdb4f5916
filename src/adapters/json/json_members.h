/// \file
/// The members of a JSON object, read in a time that grows with the text alone.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace lumtex::json {

struct JsonMember {
    std::string name;
    nlohmann::json value;
};

/// The object itself is the first level; a font or a picture in it the second. Nothing of ours lies deeper.
constexpr std::size_t deepestJson = 8;

/// In the order of the text, with every name that stands there several times. Comments are allowed. Throws
/// RuntimeError 321 for text that is no object, and for one that is nested deeper than `deepestJson`: who
/// takes such a value apart would run out of stack.
std::vector<JsonMember> membersOfObject(std::string_view text);

} // namespace lumtex::json
