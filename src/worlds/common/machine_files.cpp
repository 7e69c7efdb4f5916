#include "worlds/common/machine_files.h"

#include "values/runtime_error.h"
#include "values/text.h"
#include "worlds/common/native_path.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

namespace lumtex::worlds {

namespace {

namespace fs = std::filesystem;

std::ofstream openForWriting(StringView path, std::ios::openmode mode) {
    const fs::path file = nativePath(path);
    demandFolderOf(file);
    std::ofstream stream(file, std::ios::binary | mode);
    if (!stream)
        throw RuntimeError(ErrorNumber::pathFileAccess);
    return stream;
}

bool hasWildcard(std::string_view text) {
    return text.find_first_of("*?") != std::string_view::npos;
}

/// "*" stands for any characters, "?" for one.
bool matches(std::string_view pattern, std::string_view name) {
    std::size_t at = 0;
    std::size_t star = std::string_view::npos; // the last "*" of the pattern that was passed
    std::size_t mark = 0;                      // where the name went on behind it
    std::size_t i = 0;
    while (i < name.size()) {
        if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            mark = i;
        } else if (at < pattern.size() && (pattern[at] == '?' || pattern[at] == name[i])) {
            ++at;
            ++i;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            i = ++mark;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

/// The folder itself and the one above it are entries of every folder, as a listing shows them.
bool anyMatches(const fs::path& folder, std::string_view pattern) {
    std::error_code failure;
    if (!fs::is_directory(folder, failure))
        return false;
    if (matches(pattern, ".") || matches(pattern, ".."))
        return true;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        if (matches(pattern, entry->path().filename().string()))
            return true;
    }
    return false;
}

} // namespace

fs::path nativePath(StringView path) {
    std::string native = toUtf8(path);
    std::replace(native.begin(), native.end(), '\\', static_cast<char>(fs::path::preferred_separator));
    return native;
}

void demandFolderOf(const fs::path& file) {
    std::error_code failure;
    if (file.has_parent_path() && !fs::is_directory(file.parent_path(), failure))
        throw RuntimeError(ErrorNumber::pathNotFound);
}

String MachineFiles::readFile(StringView path) const {
    const fs::path file = nativePath(path);
    demandFolderOf(file);
    std::error_code failure;
    if (!fs::exists(file, failure))
        throw RuntimeError(ErrorNumber::fileNotFound);
    std::ifstream stream(file, std::ios::binary);
    if (!stream || fs::is_directory(file, failure))
        throw RuntimeError(ErrorNumber::pathFileAccess);
    return fromUtf8(std::string(std::istreambuf_iterator<char>(stream), {}));
}

void MachineFiles::createFile(StringView path) {
    openForWriting(path, std::ios::trunc);
}

void MachineFiles::appendToFile(StringView path, StringView text) {
    std::ofstream stream = openForWriting(path, std::ios::app);
    stream << toUtf8(text);
    if (!stream.flush())
        throw RuntimeError(ErrorNumber::deviceError);
}

Long MachineFiles::findFirstFile(StringView pattern) {
    constexpr Long nothing = -1;
    const fs::path path = nativePath(pattern);
    const std::string last = path.filename().string();
    if (last.empty())
        return nothing;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    std::error_code failure;
    // "*.*" means every name, also one without a dot.
    const bool found =
        hasWildcard(last) ? anyMatches(folder, last == "*.*" ? "*" : last) : fs::exists(path, failure);
    if (!found)
        return nothing;
    return ++lastSearch_;
}

String MachineFiles::fullPathName(StringView file) const {
    std::error_code failure;
    const auto path = fs::absolute(toUtf8(file), failure);
    return failure ? String() : fromUtf8(path.lexically_normal().string());
}

} // namespace lumtex::worlds
