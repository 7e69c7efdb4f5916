#include "platform/headless/headless_runtime.h"

#include "platform/headless/desktop.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "platform/version.h"

#include <algorithm>
#include <filesystem>

namespace lumtex {

namespace {

constexpr Double millisecondsPerDay = 24.0 * 60 * 60 * 1000;

char16_t folded(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

/// -1, 0 or 1.
int compareNames(StringView a, StringView b) {
    const auto order = std::lexicographical_compare_three_way(
        a.begin(), a.end(), b.begin(), b.end(), [](char16_t left, char16_t right) {
            return folded(left) <=> folded(right);
        });
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

std::filesystem::path programPath() {
    std::error_code failure;
    return std::filesystem::read_symlink("/proc/self/exe", failure);
}

String textOf(const std::filesystem::path& path) {
    return fromUtf8(path.string());
}

/// The invariant text of a moment is a date, a time, or both with a blank between them.
constexpr StringView startDay = u"1899-12-30";
constexpr StringView midnight = u"00:00:00";

} // namespace

bool HeadlessRuntime::NameOrder::operator()(StringView a, StringView b) const {
    return compareNames(a, b) < 0;
}

bool HeadlessRuntime::SettingOrder::operator()(const Key& a, const Key& b) const {
    const int keys = compareNames(a.first, b.first);
    return keys != 0 ? keys < 0 : compareNames(a.second, b.second) < 0;
}

HeadlessRuntime::HeadlessRuntime(Desktop& desktop)
    : componentInfo{.exeName = u"LumtexListView",
                    .folder = textOf(programPath().parent_path()),
                    .major = versionMajor,
                    .minor = versionMinor,
                    .revision = versionRevision},
      desktop_(desktop) {}

void HeadlessRuntime::DoEvents() {
    desktop_.yield();
}

void HeadlessRuntime::messageBox(StringView text, Long style, StringView title) {
    boxes.push_back({String(text), style, String(title)});
    // A copy, since the host may replace it while it runs.
    desktop_.loop().yield([answer = whileBoxIsOpen] {
        if (answer)
            answer();
    });
}

String HeadlessRuntime::currentExePath() const {
    return textOf(programPath());
}

String HeadlessRuntime::setting(StringView key, StringView name) const {
    const auto found = settings_.find({String(key), String(name)});
    return found != settings_.end() ? found->second : String{};
}

void HeadlessRuntime::letSetting(StringView key, StringView name, StringView text) {
    settings_[{String(key), String(name)}] = text;
}

Date HeadlessRuntime::now() const {
    return {clock.days + static_cast<Double>(desktop_.time().count()) / millisecondsPerDay};
}

String HeadlessRuntime::dateText(Date date) const {
    const String text = textFromDate(date);
    const bool isTimeAlone = text.find(u'-') == String::npos;
    return isTimeAlone ? String(startDay) : text.substr(0, text.find(u' '));
}

String HeadlessRuntime::timeText(Date date) const {
    String text = textFromDate(date);
    if (text.find(u'-') == String::npos)
        return text;
    const std::size_t gap = text.find(u' ');
    return gap != String::npos ? text.substr(gap + 1) : String(midnight);
}

std::optional<Double> HeadlessRuntime::numberFromText(StringView text) const {
    return lumtex::numberFromText(text);
}
std::optional<Date> HeadlessRuntime::dateFromText(StringView text) const {
    return lumtex::dateFromText(text);
}

ObjectRef HeadlessRuntime::createObject(StringView programId) {
    const auto found = factories.find(String(programId));
    if (found == factories.end() || !found->second)
        throw RuntimeError(cannotCreateObject);
    return found->second();
}

} // namespace lumtex
