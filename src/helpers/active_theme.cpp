/// The look of the user's desktop, as the four that hosts know.
#include "helpers/sp_ev.h"

#include <algorithm>
#include <iterator>

namespace lumtex {

namespace {

constexpr Long themedFamily = 2;
constexpr Long firstMajor = 5;
constexpr Long firstMinor = 1;

struct Look {
    StringView colorName;
    cActiveXPTheme theme;
};
constexpr Look looks[] = {
    {u"NormalColor", styleBlue},
    {u"Metallic", styleSilver},
    {u"HomeStead", styleOlive},
};

} // namespace

bool SpEv::IsWinXP() const {
    const SystemVersion version = runtime_.desktop().systemVersion();
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
    const std::optional<String> scheme = runtime_.desktop().colorScheme();
    const auto* const found = std::find_if(
        std::begin(looks), std::end(looks), [&](const Look& look) { return look.colorName == scheme; });
    return found != std::end(looks) ? found->theme : styleClassic;
}

} // namespace lumtex
