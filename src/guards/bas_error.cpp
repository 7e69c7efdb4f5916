#include "guards/bas_error.h"

#include "guards/application_object.h"
#include "guards/current_exe_path.h"
#include "values/locale.h"
#include "values/thread_state.h"

#include <array>

namespace lumtex {

namespace {

constexpr StringView handlerProgramId = u"LumtexErrorHandler.ErrorHandler";
constexpr StringView handlerMethod = u"RaiseError";
constexpr StringView settingsKey = u"Software\\Lumtex";
constexpr StringView logSetting = u"ErrorLog";
constexpr StringView besideComponent = u"*app*";
constexpr StringView logFileName = u"LumtexError.txt";
constexpr StringView boxTitle = u"Error";
constexpr StringView lineEnd = u"\r\n";
constexpr std::size_t ruleLength = 30;

constexpr std::array<StringView, 3> moduleKindTexts = {u"Benutzersteuerelement", u"Klassenmodul", u"Modul"};

class RunningReport {
  public:
    RunningReport() { ++ThreadState::ofThread().runningReports; }
    RunningReport(const RunningReport&) = delete;
    RunningReport& operator=(const RunningReport&) = delete;
    ~RunningReport() { --ThreadState::ofThread().runningReports; }
};

/// Ignores even what no statement may throw: this is where a failure ends, and the outlets are not ours.
template <class Body>
bool attempt(Body&& body) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        return false;
    }
}

StringView withoutSpaces(StringView text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == StringView::npos)
        return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

String numberText(Long number) {
    return Variant(number).toText();
}

/// Empty where no log is wanted.
String logPath(Runtime& runtime) {
    const String setting = runtime.settings().text(settingsKey, logSetting).value_or(String());
    const StringView folder = withoutSpaces(setting);
    if (folder.empty())
        return {};
    String path = folder == besideComponent ? runtime.program().component().folder : String(folder);
    if (!path.ends_with(u'\\'))
        path += u'\\';
    return path.append(logFileName);
}

void writeLogRecord(Runtime& runtime, StringView text) {
    const String path = logPath(runtime);
    if (path.empty())
        return;
    const Date now = runtime.locale().now();
    String record = currentLocale().dateText(now) + u" " + currentLocale().timeText(now);
    record.append(lineEnd).append(text).append(lineEnd).append(ruleLength, u'-').append(lineEnd);
    runtime.files().appendToFile(path, record);
}

void callHandler(Runtime& runtime, Object& handler, const ErrorReport& report) {
    ObjectRef application = runtime.automation().applicationObject();
    if (!application)
        application = std::make_shared<ApplicationObject>(runtime.program().component());
    // The last six go by reference, but what a handler makes of them is not read back.
    std::array<Variant, 8> arguments = {CurrentExePath(runtime.program(), runtime.files()),
                                        application,
                                        report.number,
                                        report.description,
                                        report.procedure,
                                        report.line,
                                        moduleKindText(report.moduleKind),
                                        report.moduleName};
    handler.call(handlerMethod, arguments);
}

} // namespace

StringView moduleKindText(ModuleKind kind) {
    return moduleKindTexts[static_cast<std::size_t>(kind)];
}

String reportText(const ErrorReport& report, const ComponentInfo& component) {
    String text;
    text.append(u"Error no.: ").append(numberText(report.number)).append(lineEnd);
    text.append(u"Error description: ").append(report.description).append(lineEnd);
    text.append(u"Project: ").append(component.exeName).append(lineEnd);
    text.append(u"Module: ").append(moduleKindText(report.moduleKind));
    text.append(u" ").append(report.moduleName).append(lineEnd);
    text.append(u"Line/Procedure: ").append(numberText(report.line));
    text.append(u"/").append(report.procedure).append(lineEnd);
    text.append(u"Version: ").append(numberText(component.major));
    text.append(u".").append(numberText(component.minor));
    text.append(u".").append(numberText(component.revision));
    return text;
}

void reportError(Runtime& runtime, const ErrorReport& report) noexcept {
    const bool tooDeep = ThreadState::ofThread().runningReports >= mostNestedReports;
    const RunningReport running;
    ObjectRef handler;
    if (!tooDeep)
        attempt([&] { handler = runtime.automation().createObject(handlerProgramId); });
    String text;
    attempt([&] { text = reportText(report, runtime.program().component()); });
    attempt([&] { writeLogRecord(runtime, text); });
    if (tooDeep)
        return;
    if (handler && attempt([&] { callHandler(runtime, *handler, report); }))
        return;
    attempt([&] { runtime.queue().messageBox(text, BoxStyle::critical, boxTitle); });
}

} // namespace lumtex
