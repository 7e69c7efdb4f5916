/// \file
/// The files of this tree, as the rules about them read them.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace lumtex::source {

/// A text file, or a sample in memory that stands for one.
struct SourceFile {
    std::string path;               ///< from the root of the tree, with forward slashes
    std::vector<std::string> lines; ///< without their ends

    SourceFile(std::string where, std::string_view text);
};

/// A place where a rule is broken.
struct Finding {
    std::string path;
    std::size_t line = 0; ///< from 1
    std::string what;
};

/// A file of the tree. Throws std::runtime_error where it cannot be read.
SourceFile readFile(const std::string& path);

/// The files below `folder` whose names end in one of `endings`, in order of their paths. Throws
/// std::runtime_error where there are none, so that no rule passes because it had nothing to look at.
std::vector<SourceFile> readTree(const std::string& folder, std::initializer_list<std::string_view> endings);

/// One line per finding, `path:line: what`, as editors jump to it; empty where the rule holds.
std::string report(const std::vector<Finding>& findings);

/// What `rule` finds in all `files`, reported.
template <class Rule>
std::string offenders(const std::vector<SourceFile>& files, Rule rule) {
    std::string all;
    for (const SourceFile& file : files)
        all += report(rule(file));
    return all;
}

} // namespace lumtex::source
