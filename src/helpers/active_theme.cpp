/// The look of the user's desktop, as the four that hosts know.
#include "helpers/sp_ev.h"
#include "platform/runtime.h"

#include <algorithm>
#include <iterator>

namespace lumtex {

namespace {

constexpr Long themedFamily = 2;
constexpr Long firstMajor = 5;
constexpr Long firstMinor = 1;

// Code units.
constexpr std::size_t themeFileLength = 260;
constexpr std::size_t colorNameLength = 255;
constexpr std::size_t sizeNameLength = 255;

struct Look {
    StringView colorName;
    cActiveXPTheme theme;
};
constexpr Look looks[] = {
    {u"NormalColor", styleBlue},
    {u"Metallic", styleSilver},
    {u"HomeStead", styleOlive},
};

/// What the platform wrote into a buffer of blanks: all up to its closing zero.
StringView ConvUnicode(StringView buffer) {
    return buffer.substr(0, buffer.find(u'\0'));
}

} // namespace

bool SpEv::IsWinXP() const {
    const SystemVersion version = runtime_.systemVersion();
    // Wanted: major and minor are tested on their own, so a later system with a minor version of 0 fails.
    return version.platformId == themedFamily && version.major >= firstMajor && version.minor >= firstMinor;
}

cActiveXPTheme SpEv::ActiveXPTheme() {
    Procedure p = procedure(u"ActiveXPTheme");
    return p.value<cActiveXPTheme>([&] { return activeTheme(); });
}

cActiveXPTheme SpEv::activeTheme() const {
    if (!IsWinXP())
        return styleClassic;
    String themeFile(themeFileLength, u' ');
    String colorName(colorNameLength, u' ');
    String sizeName(sizeNameLength, u' ');
    if (runtime_.currentThemeName(themeFile, colorName, sizeName) != 0)
        return styleClassic;
    const StringView name = ConvUnicode(colorName);
    const auto* const found = std::find_if(
        std::begin(looks), std::end(looks), [&](const Look& look) { return look.colorName == name; });
    return found != std::end(looks) ? found->theme : styleClassic;
}

} // namespace lumtex
