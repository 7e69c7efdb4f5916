#include "includes.h"

#include <algorithm>
#include <array>

namespace lumtex::source {

namespace {

// The headers that ISO C++20 lists in [headers]; its <thing.h> forms are not used here.
// clang-format off
constexpr auto standardHeaders = std::to_array<std::string_view>({
    "algorithm", "any", "array", "atomic", "barrier", "bit", "bitset", "cassert", "cctype",
    "cerrno", "cfenv", "cfloat", "charconv", "chrono", "cinttypes", "climits", "clocale", "cmath",
    "codecvt", "compare", "complex", "concepts", "condition_variable", "coroutine", "csetjmp",
    "csignal", "cstdarg", "cstddef", "cstdint", "cstdio", "cstdlib", "cstring", "ctime", "cuchar",
    "cwchar", "cwctype", "deque", "exception", "execution", "filesystem", "format", "forward_list",
    "fstream", "functional", "future", "initializer_list", "iomanip", "ios", "iosfwd", "iostream",
    "istream", "iterator", "latch", "limits", "list", "locale", "map", "memory", "memory_resource",
    "mutex", "new", "numbers", "numeric", "optional", "ostream", "queue", "random", "ranges",
    "ratio", "regex", "scoped_allocator", "semaphore", "set", "shared_mutex", "source_location",
    "span", "sstream", "stack", "stdexcept", "stop_token", "streambuf", "string", "string_view",
    "strstream", "syncstream", "system_error", "thread", "tuple", "type_traits", "typeindex",
    "typeinfo", "unordered_map", "unordered_set", "utility", "valarray", "variant", "vector",
    "version",
});
// clang-format on
static_assert(std::is_sorted(standardHeaders.begin(), standardHeaders.end()));

std::string_view withoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

} // namespace

std::vector<Include> includesOf(const SourceFile& file) {
    constexpr std::string_view word = "include";
    std::vector<Include> found;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        std::string_view rest = withoutLeadingBlanks(file.lines[i]);
        if (!rest.starts_with('#'))
            continue;
        rest = withoutLeadingBlanks(rest.substr(1));
        if (!rest.starts_with(word))
            continue;
        rest = withoutLeadingBlanks(rest.substr(word.size()));
        const bool angled = rest.starts_with('<');
        const bool quoted = rest.starts_with('"');
        if (angled || quoted)
            rest = rest.substr(1, rest.find(angled ? '>' : '"', 1) - 1);
        found.push_back({i + 1, std::string(rest), angled});
    }
    return found;
}

bool isStandardHeader(std::string_view name) {
    return std::binary_search(standardHeaders.begin(), standardHeaders.end(), name);
}

} // namespace lumtex::source
