/// \file
/// The scripts of this folder, for the suites that play them all.
#pragma once

#include "folders.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {

inline std::filesystem::path scriptFolder() {
    return std::filesystem::path(testFolder()) / "scenarios";
}

/// All of them, in the order of their names.
inline std::vector<std::filesystem::path> scriptFiles() {
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(scriptFolder()))
        if (entry.path().extension() == ".scenario")
            found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}

/// The name of a test that plays one script.
inline std::string nameOfScript(const ::testing::TestParamInfo<std::filesystem::path>& info) {
    std::string name = std::filesystem::relative(info.param, scriptFolder()).replace_extension().string();
    for (char& character : name)
        if (std::isalnum(static_cast<unsigned char>(character)) == 0)
            character = '_';
    return name;
}

inline std::string contentOfScript(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace lumtex::testing
