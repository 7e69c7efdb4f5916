/// Script files in a host of ours.
#include "scripts/script_run.h"

#include "LumtexListView.hpp"
#include "scripts/script_console.h"
#include "scripts/script_user.h"
#include "values/text.h"
#include "windows/box_watch.h"

#include <fstream>
#include <iterator>

namespace lumtex::testing {

void PrintTo(const ScriptOutcome& outcome, std::ostream* stream) {
    *stream << "status " << outcome.status << ", failure \"" << outcome.failure << "\", output:\n"
            << outcome.output;
    for (const std::string& failure : outcome.failuresInside)
        *stream << "inside: " << failure << '\n';
    for (const String& box : outcome.boxes)
        *stream << "box: " << toUtf8(box) << '\n';
}

String windowsPath(const std::filesystem::path& path) {
    return String(win32::textOf(std::filesystem::path(path).make_preferred().c_str()));
}

ScriptLanguage languageOf(const std::filesystem::path& script) {
    return script.extension() == ".js" ? ScriptLanguage::jScript : ScriptLanguage::vbScript;
}

String scriptText(const std::filesystem::path& script) {
    std::ifstream file(script, std::ios::binary);
    if (!file)
        throw std::runtime_error("no script " + script.string());
    return fromUtf8(std::string(std::istreambuf_iterator<char>(file), {}));
}

ScriptOutcome runScript(const std::filesystem::path& script, const std::vector<String>& arguments) {
    ScriptOutcome outcome;
    BoxWatch watch;
    // Boxes lie in the window of the program: one that lies in none takes the system two seconds to show.
    SetForegroundWindow(programWindow());
    ScriptHost host(languageOf(script));
    const auto console = std::make_shared<ScriptConsole>(host, windowsPath(script), arguments);
    host.add(u"WScript", console);
    const auto user = std::make_shared<ScriptUser>();
    host.add(u"User", user);
    bool ended = false;
    try {
        host.run(scriptText(script));
    } catch (const ScriptFailure& failure) {
        ended = true;
        // Where a script quits, it fails on purpose.
        if (!console->status) {
            outcome.failure = failure.what();
            outcome.status = 1;
        }
    }
    for (const ScriptFailure& failure : host.failures())
        outcome.failuresInside.emplace_back(failure.what());
    if (ended)
        outcome.failuresInside.pop_back();
    outcome.status = console->status.value_or(outcome.status);
    outcome.output = console->output;
    outcome.boxes = std::exchange(watch.boxes, {});
    console->disconnect();
    user->close();
    // A script may silence its process, and this one goes on.
    LumtexListView::Error::make().letSilentError(false);
    return outcome;
}

} // namespace lumtex::testing
