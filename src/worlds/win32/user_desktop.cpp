/// What the user hears, sees and presses.
#include "worlds/win32/win32_runtime.h"

#include <array>

#include <mmsystem.h>
#include <shellapi.h>
#include <uxtheme.h>

namespace lumtex::win32 {

void Win32Runtime::playSound(StringView file) {
    const String name(file);
    sndPlaySoundW(wide(name), SND_ASYNC | SND_NODEFAULT);
}

SystemVersion Win32Runtime::systemVersion() const {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof(version);
    if (!GetVersionExW(&version))
        return {};
    return {static_cast<Long>(version.dwPlatformId),
            static_cast<Long>(version.dwMajorVersion),
            static_cast<Long>(version.dwMinorVersion)};
}

std::optional<String> Win32Runtime::colorScheme() const {
    constexpr std::size_t fileLength = 260; // code units
    constexpr std::size_t nameLength = 255;
    std::array<wchar_t, fileLength> file{};
    std::array<wchar_t, nameLength> color{};
    std::array<wchar_t, nameLength> size{};
    if (GetCurrentThemeName(file.data(), fileLength, color.data(), nameLength, size.data(), nameLength) != 0)
        return std::nullopt;
    return String(textOf(color.data()));
}

bool Win32Runtime::wasPressed(MouseButton button) {
    // The buttons have the same numbers as keys and as bits.
    return GetAsyncKeyState(button) != 0;
}

void Win32Runtime::open(const OpenRequest& request) {
    const auto optional = [](const String& text) { return text.empty() ? nullptr : wide(text); };
    ShellExecuteW(toHWND(request.window),
                  L"Open",
                  wide(request.file),
                  optional(request.parameters),
                  optional(request.folder),
                  request.maximised ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
}

} // namespace lumtex::win32
