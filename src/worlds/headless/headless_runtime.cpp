#include "worlds/headless/headless_runtime.h"

#include "adapters/pictures/picture_image.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/version.h"
#include "values/windows_1252.h"
#include "worlds/headless/desktop.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

namespace lumtex::headless {

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
      processList{{{processId, textOf(programPath())}}}, desktop_(desktop) {}

void HeadlessRuntime::DoEvents() {
    desktop_.yield();
}

bool HeadlessRuntime::hasPendingEvents() const {
    return desktop_.hasPendingEvents();
}

void HeadlessRuntime::messageBox(StringView text, BoxStyle style, StringView title) {
    boxes.push_back({String(text), style, String(title)});
    if (boxesTo != nullptr) {
        std::string lines = toUtf8(title) + ": " + toUtf8(text) + '\n';
        std::erase(lines, '\r');
        *boxesTo << lines << std::flush;
    }
    // A copy, since the host may replace it while it runs.
    desktop_.loop().yield([answer = whileBoxIsOpen] {
        if (answer)
            answer();
    });
}

std::optional<String> HeadlessRuntime::text(StringView key, StringView name) const {
    const auto found = settings_.find({String(key), String(name)});
    return found != settings_.end() ? std::optional(found->second) : std::nullopt;
}

void HeadlessRuntime::letSetting(StringView key, StringView name, StringView text) {
    settings_[{String(key), String(name)}] = text;
}

Date HeadlessRuntime::now() const {
    return {clock.days + static_cast<Double>(desktop_.time().count()) / millisecondsPerDay};
}

void HeadlessRuntime::toAnsi(StringView text, std::span<Byte> bytes) const {
    std::transform(text.begin(), text.end(), bytes.begin(), toWindows1252);
}
void HeadlessRuntime::fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const {
    std::transform(bytes.begin(), bytes.end(), text.begin(), fromWindows1252);
}

std::vector<Byte> HeadlessRuntime::imageOfPicture(const Picture& picture) const {
    return lumtex::imageOfPicture(picture);
}
PictureRef HeadlessRuntime::pictureOfImage(std::span<const Byte> image) const {
    return pictures::pictureOfImage(image);
}

bool HeadlessRuntime::wasPressed(MouseButton button) {
    worlds::Pointer& mouse = desktop_.mouse();
    const bool isDown = (mouse.buttons() & button) != 0;
    return mouse.takePressed(button) || isDown;
}

ObjectRef HeadlessRuntime::createObject(StringView programId) {
    const auto found = factories.find(String(programId));
    if (found == factories.end() || !found->second)
        throw RuntimeError(ErrorNumber::cannotCreateObject);
    return found->second();
}

} // namespace lumtex::headless
