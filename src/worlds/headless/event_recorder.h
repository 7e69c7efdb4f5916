/// \file
/// A log of events, one line each, and host code that runs at them.
#pragma once

#include "values/variant.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace lumtex::headless {

class Desktop;

/// Writes `ItemDown Row=2 Column=1`. An event that comes inside a yield is indented by two blanks for each
/// yield that is under way. It knows no event by itself: whoever receives events calls `record` for each.
class EventRecorder {
  public:
    struct Argument {
        Argument(std::string_view argumentName, const Variant& value);
        /// Written as it is.
        Argument(std::string_view argumentName, std::string verbatim)
            : name(argumentName), text(std::move(verbatim)) {}
        Argument(std::string_view argumentName, const char* verbatim) : name(argumentName), text(verbatim) {}

        std::string name;
        std::string text;
    };

    explicit EventRecorder(const Desktop& desktop) : desktop_(desktop) {}
    EventRecorder(const EventRecorder&) = delete;
    EventRecorder& operator=(const EventRecorder&) = delete;

    /// Notes the event, then runs the host code that waits for it.
    void record(std::string_view name, std::initializer_list<Argument> arguments = {});

    /// Host code for each event of that name, from its next one on; an empty function takes it back. It may
    /// do anything, also replace itself.
    void on(std::string_view name, std::function<void()> body);

    const std::vector<std::string>& lines() const { return lines_; }
    void clear() { lines_.clear(); }
    /// What was noted since the last `take`.
    std::vector<std::string> take() { return std::exchange(lines_, {}); }

  private:
    const Desktop& desktop_;
    std::vector<std::string> lines_;
    std::map<std::string, std::function<void()>, std::less<>> bodies_;
};

/// A value on one line: numbers and dates as they convert, True and False, text between quotation marks with
/// "\r", "\n", "\"" and "\\" for what would break the line, and a word for what has no text.
std::string logText(const Variant& value);

} // namespace lumtex::headless
