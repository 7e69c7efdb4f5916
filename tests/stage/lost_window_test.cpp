/// A host's handler may destroy the list's window, with all that lies in it. The list lives on without one.
#include "scenarios/player.h"
#include "scenarios/script_files.h"
#include "windows_stage.h"
#include "worlds/win32/windows_api.h"

#include <map>

namespace lumtex::testing {

namespace {

/// The name of the event in a line of a log; empty for any other line.
std::string eventOf(const std::string& line) {
    const std::size_t first = line.find_first_not_of(' ');
    if (first == std::string::npos || line[first] < 'A' || line[first] > 'Z')
        return {};
    return line.substr(first, line.find(' ', first) - first);
}

bool reports(const StepLogs& logs) {
    return std::any_of(logs.begin(), logs.end(), [](const std::vector<std::string>& lines) {
        return std::any_of(
            lines.begin(), lines.end(), [](const std::string& line) { return line.starts_with("report"); });
    });
}

bool hasHandlerFor(const Script& script, const std::string& event) {
    return std::any_of(script.steps.begin(), script.steps.end(), [&](const Step& step) {
        return step.words[0] == "on" && step.words[1] == event;
    });
}

/// For each event, the first scripts without reports that leave it to us what the host does in it.
std::map<std::string, std::vector<Script>> scriptsByEvent() {
    constexpr std::size_t enough = 2;
    std::map<std::string, std::vector<Script>> found;
    for (const auto& file : scriptFiles()) {
        const Script script = parseScript(contentOfScript(file));
        if (reports(expectedLogs(script)))
            continue;
        std::map<std::string, bool> seen;
        for (const Step& step : script.steps) {
            for (const std::string& line : step.expected) {
                const std::string event = eventOf(line);
                if (event.empty() || std::exchange(seen[event], true) || hasHandlerFor(script, event))
                    continue;
                if (found[event].size() < enough)
                    found[event].push_back(script);
            }
        }
    }
    return found;
}

TEST(LostWindow, InAnyEventLeavesAListThatAnswers) {
    const auto scripts = scriptsByEvent();
    EXPECT_GE(scripts.size(), 14U) << "events that scripts raise";
    for (const auto& [event, chosen] : scripts) {
        for (const Script& script : chosen) {
            const std::unique_ptr<Stage> stage = makeWindowsStage();
            lmListView& list = stage->list();
            bool destroyed = false;
            stage->onEvent(event, [&] {
                destroyed = destroyed || DestroyWindow(win32::toHWND(list.window().hWnd())) != FALSE;
            });
            const Played played = play(script, *stage);
            EXPECT_TRUE(destroyed) << event;
            EXPECT_EQ(list.window().hWnd(), 0) << event;
            EXPECT_FALSE(reports(played.logs)) << event;
            list.RowsClear();
            list.ColumnsClear();
            list.ColumnsAdd(u"column");
            list.RowsAdd(Long{-1}, u",", u"still here");
            EXPECT_EQ(list.ItemText(Long{1}, Long{1}), u"still here") << event;
        }
    }
}

} // namespace
} // namespace lumtex::testing
