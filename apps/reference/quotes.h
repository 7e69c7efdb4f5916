/// \file
/// Code that pages quote from files that are compiled.
#pragma once

#include <functional>
#include <string>

namespace lumtex::reference {

/// What a reader sees of an example: what stands between `// [shown` and `// shown]`, moved to the left, with
/// an empty line between two such pieces. Throws std::runtime_error where there is none, or one does not end.
std::string shownCode(const std::string& source);

/// The page with each block of C++ behind a line `<!-- example NAME -->` replaced by `codeOf(NAME)`. Throws
/// std::runtime_error where no block follows, or it does not end.
std::string withQuotes(const std::string& page, const std::function<std::string(const std::string&)>& codeOf);

} // namespace lumtex::reference
