/// \file
/// The report of a failed statement, its outlets, and the switch that silences it.
#pragma once

#include "platform/runtime.h"
#include "platform/runtime_error.h"

namespace lumtex {

/// Where the failing procedure lies; reports carry the word that `moduleKindText` gives.
enum class ModuleKind : Byte { control, classModule, module };

StringView moduleKindText(ModuleKind kind);

struct ErrorReport {
    Long number = 0;
    String description;
    String procedure;
    Long line = 0; ///< 0 for a procedure without line numbers, as all of this system are
    ModuleKind moduleKind = ModuleKind::module;
    String moduleName;
};

/// The report's six lines, separated by CR LF, without a line end after the last.
String reportText(const ErrorReport& report, const ComponentInfo& component);

/// Hands a report to its outlets: the log file where the settings name a folder, then the external handler;
/// and the message box where there is no handler, or its call failed. Nothing escapes. Looks neither at the
/// silent flag nor at what an earlier report found.
void reportError(Runtime& runtime, const ErrorReport& report) noexcept;

/// The switch of the whole process: while it is set, nothing is reported.
bool silentError();

/// The public class by which hosts reach the switch. The first one of a process starts it at False.
class Error {
  public:
    Error();

    bool SilentError() const;
    void letSilentError(bool silent);
};

} // namespace lumtex
