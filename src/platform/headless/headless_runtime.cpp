#include "platform/headless/headless_runtime.h"

#include "platform/headless/desktop.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "platform/version.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

namespace lumtex {

namespace {

constexpr Long noSuchClass = 429;

String lowered(StringView text) {
    String result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char16_t unit) {
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
    });
    return result;
}

std::filesystem::path processPath() {
    std::error_code failure;
    return std::filesystem::read_symlink("/proc/self/exe", failure);
}

String settingKey(StringView key, StringView name) {
    return lowered(key) + u"\\" + lowered(name);
}

} // namespace

HeadlessRuntime::HeadlessRuntime(Desktop& desktop)
    : componentInfo{.exeName = u"LumtexListView",
                    .folder = fromUtf8(processPath().parent_path().string()),
                    .major = versionMajor,
                    .minor = versionMinor,
                    .revision = versionRevision},
      desktop_(desktop) {}

void HeadlessRuntime::DoEvents() {
    desktop_.doEvents();
}

void HeadlessRuntime::messageBox(StringView text, Long style, StringView title) {
    boxes.push_back({String(text), style, String(title)});
    if (whileBoxIsOpen)
        whileBoxIsOpen();
}

String HeadlessRuntime::currentExePath() const {
    return fromUtf8(processPath().string());
}

String HeadlessRuntime::setting(StringView key, StringView name) const {
    const auto found = settings_.find(settingKey(key, name));
    return found != settings_.end() ? found->second : String{};
}

void HeadlessRuntime::letSetting(StringView key, StringView name, StringView text) {
    settings_[settingKey(key, name)] = text;
}

String HeadlessRuntime::dateText(Date date) const {
    return textFromDate(Date{std::floor(date.days)});
}

String HeadlessRuntime::timeText(Date date) const {
    const Double time = date.days - std::floor(date.days);
    return time == 0 ? String(u"00:00:00") : textFromDate(Date{time});
}

std::optional<Double> HeadlessRuntime::numberFromText(StringView text) const {
    return lumtex::numberFromText(text);
}
std::optional<Date> HeadlessRuntime::dateFromText(StringView text) const {
    return lumtex::dateFromText(text);
}

void HeadlessRuntime::appendToFile(StringView path, StringView text) {
    std::string native = toUtf8(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    std::ofstream file(native, std::ios::binary | std::ios::app);
    file << toUtf8(text);
    if (!file.flush())
        throw RuntimeError(pathNotFound);
}

ObjectRef HeadlessRuntime::createObject(StringView programId) {
    const auto found = factories.find(String(programId));
    if (found == factories.end())
        throw RuntimeError(noSuchClass);
    return found->second();
}

} // namespace lumtex
