/// \file
/// The readable form of a scenario: steps, and after each the log that it must leave.
#pragma once

#include "values/variant.h"

#include <string>
#include <vector>

namespace lumtex::testing {

/// One line that does something, and the lines "> ..." behind it.
struct Step {
    std::string text;                  ///< as it stands in the file, blanks at both ends left out
    std::vector<std::string> words;    ///< split at blanks; a quoted text is one word and keeps its quotes
    std::vector<std::string> expected; ///< the log, without "> "
    std::size_t line = 0;              ///< counted from 1
};

/// Lines, empty ones and comments included, so that a script can be written back as it was read.
struct Script {
    struct Line {
        std::string text; ///< an empty line, a comment or a step
        int step = -1;    ///< which of the steps it is, if it is one
    };
    std::vector<Line> lines;
    std::vector<Step> steps;
};

/// Throws std::runtime_error for a log line that no step stands before, or a quote without its end.
Script parseScript(const std::string& text);
/// The logs of its steps, in order.
using StepLogs = std::vector<std::vector<std::string>>;
/// Those that the script says.
StepLogs expectedLogs(const Script& script);
/// Each step, and what it logged behind "> ".
std::vector<std::string> linesOf(const Script& script, const StepLogs& logs);
/// The script with these logs behind its steps, in place of those that it had.
std::string withLogs(const Script& script, const StepLogs& logs);

/// 12, -3, 2.5, "text" (with \" \\ and \u followed by four digits), True, False, Empty, Null, Nothing, or "-"
/// for an argument left out. A number with a point is a Double, any other a Long. Throws std::runtime_error
/// for anything else.
Variant valueOf(const std::string& word);
/// The same the other way round; a reference is "(reference)" or "Nothing".
std::string wordFor(const Variant& value);

} // namespace lumtex::testing
