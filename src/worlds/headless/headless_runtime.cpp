#include "worlds/headless/headless_runtime.h"

#include "adapters/pictures/picture_image.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/version.h"
#include "values/windows_1252.h"
#include "worlds/headless/desktop.h"

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

/// As much as the buffer holds with a closing zero.
void fill(std::span<char16_t> buffer, StringView text) {
    if (buffer.empty())
        return;
    const std::size_t count = std::min(buffer.size() - 1, text.size());
    std::copy_n(text.begin(), count, buffer.begin());
    buffer[count] = u'\0';
}

} // namespace

bool HeadlessRuntime::NameOrder::operator()(StringView a, StringView b) const {
    return compareNames(a, b) < 0;
}

bool HeadlessRuntime::SettingOrder::operator()(const Key& a, const Key& b) const {
    const auto& [hiveA, keyA, nameA] = a;
    const auto& [hiveB, keyB, nameB] = b;
    if (hiveA != hiveB)
        return hiveA < hiveB;
    const int keys = compareNames(keyA, keyB);
    return keys != 0 ? keys < 0 : compareNames(nameA, nameB) < 0;
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

void HeadlessRuntime::messageBox(StringView text, Long style, StringView title) {
    boxes.push_back({String(text), style, String(title)});
    // A copy, since the host may replace it while it runs.
    desktop_.loop().yield([answer = whileBoxIsOpen] {
        if (answer)
            answer();
    });
}

std::optional<StoredSetting>
HeadlessRuntime::storedSetting(std::uint32_t hive, StringView key, StringView name) const {
    const auto found = settings_.find({hive, String(key), String(name)});
    return found != settings_.end() ? std::optional(found->second) : std::nullopt;
}

void HeadlessRuntime::letSetting(StringView key, StringView name, StringView text) {
    const std::string utf8 = toUtf8(text);
    StoredSetting value{StoredSetting::text, {utf8.begin(), utf8.end()}};
    value.data.push_back(0);
    letSetting(currentUserHive, key, name, std::move(value));
}

void HeadlessRuntime::letSetting(std::uint32_t hive, StringView key, StringView name, StoredSetting value) {
    settings_[{hive, String(key), String(name)}] = std::move(value);
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
    return lumtex::pictureOfImage(image);
}

Long HeadlessRuntime::currentThemeName(std::span<char16_t> themeFile,
                                       std::span<char16_t> colorName,
                                       std::span<char16_t> sizeName) const {
    constexpr Long noTheme = -2147023728; // "element not found", as a result code
    if (!theme)
        return noTheme;
    fill(themeFile, theme->file);
    fill(colorName, theme->colorName);
    fill(sizeName, theme->sizeName);
    return 0;
}

Integer HeadlessRuntime::asyncKeyState(Long virtualKey) {
    constexpr Integer isDown = -0x8000;
    constexpr Integer wasPressed = 1;
    // The mouse buttons have the same numbers as keys and as bits.
    if (virtualKey != leftButton && virtualKey != rightButton && virtualKey != middleButton)
        return 0;
    Pointer& mouse = desktop_.mouse();
    const auto button = static_cast<Integer>(virtualKey);
    const Integer down = (mouse.buttons() & button) != 0 ? isDown : Integer{0};
    return static_cast<Integer>(mouse.takePressed(button) ? down | wasPressed : down);
}

ObjectRef HeadlessRuntime::createObject(StringView programId) {
    const auto found = factories.find(String(programId));
    if (found == factories.end() || !found->second)
        throw RuntimeError(cannotCreateObject);
    return found->second();
}

} // namespace lumtex
