#include "scripts/script_user.h"

#include "platform/runtime_error.h"
#include "platform/text.h"
#include "platform/variant.h"
#include "platform/win32/windows_api.h"

namespace lumtex::testing {

namespace {

/// Windows have handles that fit into a Long.
HWND windowOf(const Variant& list, StringView property = u"hwnd") {
    const Long handle = list.toObject()->get(property).toLong();
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
}

} // namespace

Variant ScriptUser::get(StringView /*name*/, std::span<Variant> /*arguments*/) {
    throw RuntimeError(objectDoesNotSupportMember);
}

void ScriptUser::put(StringView /*name*/, const Variant& /*value*/) {
    throw RuntimeError(objectDoesNotSupportMember);
}

Variant ScriptUser::call(StringView name, std::span<Variant> arguments) {
    if (sameName(name, u"KeyDown") && arguments.size() == 2) {
        SendMessageW(windowOf(arguments[0]), WM_KEYDOWN, static_cast<WPARAM>(arguments[1].toLong()), 0);
        return {};
    }
    if (sameName(name, u"KeyPress") && arguments.size() == 2) {
        SendMessageW(windowOf(arguments[0]), WM_CHAR, static_cast<WPARAM>(arguments[1].toLong()), 0);
        return {};
    }
    if (sameName(name, u"EditorKeyPress") && arguments.size() == 2) {
        SendMessageW(
            windowOf(arguments[0], u"hwndEdit"), WM_CHAR, static_cast<WPARAM>(arguments[1].toLong()), 0);
        return {};
    }
    if (sameName(name, u"Click") && arguments.size() == 3) {
        HWND window = windowOf(arguments[0]);
        const LPARAM at = MAKELPARAM(arguments[1].toLong(), arguments[2].toLong());
        SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at);
        SendMessageW(window, WM_LBUTTONUP, 0, at);
        return {};
    }
    throw RuntimeError(objectDoesNotSupportMember);
}

} // namespace lumtex::testing
