#include "services/bas_error.h"

#include "services/ignoring_errors.h"

#include <array>

namespace lumtex {

namespace {

constexpr StringView handlerProgramId = u"LumtexErrorHandler.ErrorHandler";
constexpr StringView settingsKey = u"Software\\Lumtex";
constexpr StringView logSetting = u"ErrorLog";
constexpr StringView besideComponent = u"*app*";
constexpr StringView logFileName = u"LumtexError.txt";
constexpr StringView boxTitle = u"Error";
constexpr StringView lineEnd = u"\r\n";
constexpr std::size_t ruleLength = 30;

struct SilentFlag {
    bool silent = false;
    bool initialised = false;
};

// The one piece of state that all controls of a process share.
SilentFlag silentFlag;

String trimmedOfBlanks(const String& text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == String::npos)
        return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

void writeLogRecord(Runtime& runtime, const String& text) {
    String folder = trimmedOfBlanks(runtime.setting(settingsKey, logSetting));
    if (folder.empty())
        return;
    if (folder == besideComponent)
        folder = runtime.component().folder;
    if (folder.empty() || folder.back() != u'\\')
        folder += u'\\';
    const Date now = runtime.now();
    String record = runtime.dateText(now) + u" " + runtime.timeText(now);
    record.append(lineEnd).append(text).append(lineEnd).append(ruleLength, u'-').append(lineEnd);
    runtime.appendToFile(folder.append(logFileName), record);
}

void callHandler(Runtime& runtime, Object& handler, const ErrorReport& report) {
    // The last six go by reference; what a handler makes of them is not read back.
    std::array<Variant, 8> arguments{runtime.currentExePath(),
                                     runtime.applicationObject(),
                                     report.number,
                                     report.description,
                                     report.procedure,
                                     report.line,
                                     String(moduleKindText(report.moduleKind)),
                                     report.moduleName};
    handler.call(u"RaiseError", arguments);
}

} // namespace

StringView moduleKindText(ModuleKind kind) {
    switch (kind) {
    case ModuleKind::control:
        return u"Benutzersteuerelement";
    case ModuleKind::classModule:
        return u"Klassenmodul";
    case ModuleKind::module:
        break;
    }
    return u"Modul";
}

String reportText(const ErrorReport& report, const ComponentInfo& component) {
    String text = u"Error no.: ";
    text.append(textFromNumber(static_cast<Double>(report.number))).append(lineEnd);
    text.append(u"Error description: ").append(report.description).append(lineEnd);
    text.append(u"Project: ").append(component.exeName).append(lineEnd);
    text.append(u"Module: ").append(moduleKindText(report.moduleKind)).append(u" ");
    text.append(report.moduleName).append(lineEnd);
    text.append(u"Line/Procedure: ").append(textFromNumber(static_cast<Double>(report.line)));
    text.append(u"/").append(report.procedure).append(lineEnd);
    text.append(u"Version: ").append(textFromNumber(static_cast<Double>(component.major)));
    text.append(u".").append(textFromNumber(static_cast<Double>(component.minor)));
    text.append(u".").append(textFromNumber(static_cast<Double>(component.revision)));
    return text;
}

void reportError(Runtime& runtime, const ErrorReport& report) noexcept {
    ObjectRef handler;
    ignoringErrors([&] { handler = runtime.createObject(handlerProgramId); });
    String text;
    ignoringErrors([&] { text = reportText(report, runtime.component()); });
    ignoringErrors([&] { writeLogRecord(runtime, text); });
    if (handler && ignoringErrors([&] { callHandler(runtime, *handler, report); }))
        return;
    ignoringErrors([&] { runtime.messageBox(text, boxCritical, boxTitle); });
}

bool silentError() {
    return silentFlag.silent;
}

Error::Error() {
    if (!silentFlag.initialised)
        silentFlag = {.silent = false, .initialised = true};
}

bool Error::SilentError() const {
    return silentFlag.silent;
}
void Error::letSilentError(bool silent) {
    silentFlag.silent = silent;
}

} // namespace lumtex
