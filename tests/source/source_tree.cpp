#include "source_tree.h"

#include "folders.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace lumtex::source {

namespace {

const std::filesystem::path root = testing::sourceFolder();

} // namespace

SourceFile::SourceFile(std::string where, std::string_view text) : path(std::move(where)) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

SourceFile readFile(const std::string& path) {
    std::ifstream file(root / path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    if (!file)
        throw std::runtime_error("cannot read " + path);
    return {path, text};
}

std::vector<SourceFile> readTree(const std::string& folder, std::initializer_list<std::string_view> endings) {
    std::vector<std::string> paths;
    if (std::filesystem::is_directory(root / folder)) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
            const std::string path = entry.path().lexically_relative(root).generic_string();
            const auto endsPath = [&](std::string_view ending) { return path.ends_with(ending); };
            if (entry.is_regular_file() && std::any_of(endings.begin(), endings.end(), endsPath))
                paths.push_back(path);
        }
    }
    if (paths.empty())
        throw std::runtime_error("no such files in " + folder);
    std::sort(paths.begin(), paths.end());
    std::vector<SourceFile> files;
    files.reserve(paths.size());
    for (const std::string& path : paths)
        files.push_back(readFile(path));
    return files;
}

std::string report(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings)
        text += finding.path + ":" + std::to_string(finding.line) + ": " + finding.what + "\n";
    return text;
}

} // namespace lumtex::source
