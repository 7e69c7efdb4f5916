/// \file
/// Comparing whole logs, shown side by side where they differ.
#pragma once

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {

using Lines = std::vector<std::string>;

/// Both logs line by line, "!" between lines that differ. A line that one log lacks counts as a difference.
inline std::string sideBySide(const std::vector<std::string>& actual,
                              const std::vector<std::string>& expected) {
    std::size_t width = std::string("actual").size();
    for (const std::string& line : actual)
        width = std::max(width, line.size());
    std::ostringstream text;
    const auto row = [&](const std::string& left, char mark, const std::string& right) {
        text << std::left << std::setw(static_cast<int>(width)) << left << ' ' << mark << ' ' << right
             << '\n';
    };
    row("actual", '|', "expected");
    for (std::size_t i = 0; i < std::max(actual.size(), expected.size()); ++i) {
        const bool same = i < actual.size() && i < expected.size() && actual[i] == expected[i];
        row(i < actual.size() ? actual[i] : "", same ? '|' : '!', i < expected.size() ? expected[i] : "");
    }
    return text.str();
}

/// `EXPECT_TRUE(sameLog(events.take(), {"ItemDown Row=2 Column=1"}))`
inline ::testing::AssertionResult sameLog(const std::vector<std::string>& actual,
                                          const std::vector<std::string>& expected) {
    if (actual == expected)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the logs differ\n" << sideBySide(actual, expected);
}

} // namespace lumtex::testing
