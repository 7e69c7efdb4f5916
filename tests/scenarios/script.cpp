#include "script.h"

#include "values/text.h"

#include <charconv>
#include <iomanip>
#include <sstream>
#include <stdexcept>

namespace lumtex::testing {

namespace {

std::string trimmedLine(const std::string& line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    return first == std::string::npos ? std::string()
                                      : line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
}

std::vector<std::string> wordsOf(const std::string& text) {
    std::vector<std::string> words;
    std::size_t at = 0;
    while ((at = text.find_first_not_of(' ', at)) != std::string::npos) {
        std::size_t end = at;
        if (text[at] == '"') {
            do {
                end = text.find_first_of("\"\\", end + 1);
                if (end == std::string::npos)
                    throw std::runtime_error("a quote without its end: " + text);
                if (text[end] == '\\')
                    ++end;
            } while (text[end] != '"' || text[end - 1] == '\\');
            ++end;
        } else {
            end = std::min(text.find(' ', at), text.size());
        }
        words.push_back(text.substr(at, end - at));
        at = end;
    }
    return words;
}

/// The text between the quotes, its escapes resolved.
String unquoted(const std::string& word) {
    const String inner = fromUtf8(word.substr(1, word.size() - 2));
    String text;
    for (std::size_t i = 0; i < inner.size(); ++i) {
        if (inner[i] != u'\\' || i + 1 == inner.size()) {
            text += inner[i];
        } else if (inner[++i] == u'u') {
            text += static_cast<char16_t>(std::stoi(toUtf8(inner.substr(i + 1, 4)), nullptr, 16));
            i += 4;
        } else {
            text += inner[i];
        }
    }
    return text;
}

std::string quoted(const String& text) {
    std::ostringstream word;
    word << '"';
    for (const char16_t unit : text) {
        if (unit == u'"' || unit == u'\\')
            word << '\\' << static_cast<char>(unit);
        else if (unit >= u' ' && unit <= u'~')
            word << static_cast<char>(unit);
        else
            word << "\\u" << std::hex << std::setw(4) << std::setfill('0') << static_cast<unsigned>(unit);
    }
    word << '"';
    return word.str();
}

} // namespace

Script parseScript(const std::string& text) {
    Script script;
    std::istringstream lines(text);
    std::string line;
    for (std::size_t number = 1; std::getline(lines, line); ++number) {
        line = trimmedLine(line);
        if (line.starts_with(">")) {
            if (script.steps.empty())
                throw std::runtime_error("line " + std::to_string(number) + ": a log, and no step before it");
            // Depth shows as indentation, so only one blank belongs to the mark.
            script.steps.back().expected.push_back(line.size() > 2 ? line.substr(2) : "");
            continue;
        }
        const bool isStep = !line.empty() && !line.starts_with("#");
        script.lines.push_back({line, isStep ? static_cast<int>(script.steps.size()) : -1});
        if (isStep)
            script.steps.push_back({line, wordsOf(line), {}, number});
    }
    return script;
}

StepLogs expectedLogs(const Script& script) {
    StepLogs logs;
    for (const Step& step : script.steps)
        logs.push_back(step.expected);
    return logs;
}

std::vector<std::string> linesOf(const Script& script, const StepLogs& logs) {
    std::vector<std::string> lines;
    for (std::size_t step = 0; step < script.steps.size(); ++step) {
        lines.push_back(script.steps[step].text);
        for (const std::string& entry : logs[step])
            lines.push_back("> " + entry);
    }
    return lines;
}

std::string withLogs(const Script& script, const StepLogs& logs) {
    std::string text;
    for (const auto& [line, step] : script.lines) {
        text += line + "\n";
        if (step >= 0 && static_cast<std::size_t>(step) < logs.size())
            for (const std::string& entry : logs[static_cast<std::size_t>(step)])
                text += "> " + entry + "\n";
    }
    return text;
}

Variant valueOf(const std::string& word) {
    if (word.starts_with('"'))
        return unquoted(word);
    if (word == "-")
        return Missing{};
    if (word == "True" || word == "False")
        return word == "True";
    if (word == "Empty")
        return {};
    if (word == "Null")
        return Null{};
    if (word == "Nothing")
        return ObjectRef{};
    const bool hex = word.starts_with("0x");
    const char* const first = word.data() + (hex ? 2 : 0);
    const char* const end = word.data() + word.size();
    Long number = 0;
    if (std::from_chars(first, end, number, hex ? 16 : 10).ptr == end)
        return number;
    Double real = 0;
    if (!hex && std::from_chars(first, end, real).ptr == end)
        return real;
    throw std::runtime_error("no value: " + word);
}

std::string wordFor(const Variant& value) {
    if (const String* text = value.text())
        return quoted(*text);
    if (value.isObject()) {
        const bool nothing = value.visit([](const auto& held) {
            if constexpr (requires { held.use_count(); })
                return held == nullptr;
            else
                return false;
        });
        return nothing ? "Nothing" : "(reference)";
    }
    if (value.isEmpty())
        return "Empty";
    if (value.isNull())
        return "Null";
    if (value.isMissing())
        return "-";
    return toUtf8(value.toText());
}

} // namespace lumtex::testing
