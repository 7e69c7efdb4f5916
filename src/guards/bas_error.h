/// \file
/// The report of a failed statement, and its three outlets.
#pragma once

#include "platform/runtime.h"

namespace lumtex {

/// Where a failing procedure lies.
enum class ModuleKind : Byte { control, classModule, module };

/// The word for it in reports.
StringView moduleKindText(ModuleKind kind);

/// The views need to live only as long as the call they are handed to.
struct ErrorReport {
    Long number = 0;
    StringView description;
    StringView procedure;
    Long line = 0; ///< 0 for a procedure without line numbers, as all of this system are
    ModuleKind moduleKind = ModuleKind::module;
    StringView moduleName;
};

/// The report's six lines, separated by CR LF, without a line end after the last.
String reportText(const ErrorReport& report, const ComponentInfo& component);

/// Hands a report to its outlets: to the log file if the settings name a folder, then to the external
/// handler; and to the message box if there is no handler, or its call failed. Looks at settings and
/// handler anew each time, and not at the silent flag. Nothing escapes.
///
/// The host's code runs in the handler and during the box, and may fail again: then a second report comes on
/// top of the first. On top of `mostNestedReports` of one thread there is only the log, or a handler that
/// itself fails would never come to an end.
void reportError(Runtime& runtime, const ErrorReport& report) noexcept;

constexpr int mostNestedReports = 8;

} // namespace lumtex
