/// \file
/// A script file from its first line to its last.
#pragma once

#include "scripts/script_host.h"
#include "values/types.h"

#include <filesystem>
#include <string>
#include <vector>

namespace lumtex::testing {

struct ScriptOutcome {
    int status = 0;                          ///< what the script gave to `WScript.Quit`; 1 where it failed
    std::string output;                      ///< UTF-8; each line with its line feed
    std::string failure;                     ///< place and text; empty where all went well
    std::vector<std::string> failuresInside; ///< of functions that an object called; a stock host tells none
    std::vector<String> boxes; ///< texts of the message boxes that came up; each was answered with OK
};

void PrintTo(const ScriptOutcome& outcome, std::ostream* stream);

/// With the separators that the system shows.
String windowsPath(const std::filesystem::path& path);

/// By the end of the file's name: ".vbs" or ".js".
ScriptLanguage languageOf(const std::filesystem::path& script);

/// The text of a script file, which is UTF-8.
String scriptText(const std::filesystem::path& script);

/// Runs it in a host of ours, which knows the events of the objects that it connects.
ScriptOutcome runScript(const std::filesystem::path& script, const std::vector<String>& arguments = {});

/// Runs it in the host that comes with the system, as a process of its own that finds the component by its
/// manifest. A failure is no failure for that host: the script just ends. It reads the code page of the
/// system alone, so a script that holds more than ASCII is converted, and runs from another place.
ScriptOutcome runInStockHost(const std::filesystem::path& script, const std::vector<String>& arguments = {});

} // namespace lumtex::testing
