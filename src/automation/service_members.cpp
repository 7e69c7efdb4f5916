/// Members of the classes that hosts create beside the control.
#include "automation/describe_member.h"
#include "automation/member_table.h"
#include "guards/error.h"
#include "helpers/sp_ev.h"

namespace lumtex::automation {

template <>
inline constexpr StringView detail::className<SpEv> = u"SpEv";
template <>
inline constexpr StringView detail::className<Error> = u"Error";

namespace {

using namespace detail;

constexpr auto ofSpEv = std::to_array<Member>({
    method<&SpEv::TextRead>(1, u"TextRead", Repaint::never, {u"Filename"}),
    method<&SpEv::TextSave>(2, u"TextSave", Repaint::never, {u"Filename", u"Text"}),
    method<&SpEv::PlayMusic>(3, u"PlayMusic", Repaint::never, {u"Filename"}),
    method<&SpEv::ListSave>(
        4,
        u"ListSave",
        Repaint::never,
        {u"List", u"Filename", orText(u"TextBeforeListText", u""), orText(u"TextAfterListText", u"")}),
    method<&SpEv::ListRead>(5, u"ListRead", Repaint::never, {u"List", u"Filename"}),
    method<&SpEv::FileExists>(6, u"FileExists", Repaint::never, {u"sFile"}),
    method<&SpEv::ActiveXPTheme>(7, u"ActiveXPTheme", Repaint::never),
    method<&SpEv::MouseButtonPressed>(8, u"MouseButtonPressed", Repaint::never),
});

constexpr auto ofError = std::to_array<Member>({
    property<&Error::SilentError, &Error::letSilentError>(1, u"SilentError", Repaint::never),
});

} // namespace

std::span<const Member> spEvMembers() {
    return ofSpEv;
}

std::span<const Member> errorMembers() {
    return ofError;
}

} // namespace lumtex::automation
