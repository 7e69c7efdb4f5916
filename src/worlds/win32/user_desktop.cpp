/// What the user hears, sees and presses.
#include "worlds/win32/win32_runtime.h"

#include <mmsystem.h>
#include <shellapi.h>
#include <uxtheme.h>

namespace lumtex {

void Win32Runtime::playSound(StringView file, Long flags) {
    const String name(file);
    sndPlaySoundW(wide(name), static_cast<UINT>(flags));
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

Long Win32Runtime::currentThemeName(std::span<char16_t> themeFile,
                                    std::span<char16_t> colorName,
                                    std::span<char16_t> sizeName) const {
    return GetCurrentThemeName(wide(themeFile.data()),
                               static_cast<int>(themeFile.size()),
                               wide(colorName.data()),
                               static_cast<int>(colorName.size()),
                               wide(sizeName.data()),
                               static_cast<int>(sizeName.size()));
}

Integer Win32Runtime::asyncKeyState(Long virtualKey) {
    return GetAsyncKeyState(virtualKey);
}

void Win32Runtime::shellExecute(const ShellRequest& request) {
    const auto optional = [](const String& text) { return text.empty() ? nullptr : wide(text); };
    ShellExecuteW(toHWND(request.window),
                  optional(request.verb),
                  wide(request.file),
                  optional(request.parameters),
                  optional(request.folder),
                  request.show);
}

} // namespace lumtex
