/// \file
/// The system's headers, without the macros that would rename our own things.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef STRICT
#define STRICT
#endif
#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif

#include <objbase.h>
#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

// Undo macros of the system headers that would take these names from us.
#undef small
#undef near
#undef hyper

#include "platform/window.h"

namespace lumtex::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "the system's text is UTF-16");

/// The same units under the system's name for them. `text` must end in a zero.
inline const wchar_t* wide(const String& text) {
    return reinterpret_cast<const wchar_t*>(text.c_str());
}
inline const wchar_t* wide(const char16_t* text) {
    return reinterpret_cast<const wchar_t*>(text);
}
inline wchar_t* wide(char16_t* text) {
    return reinterpret_cast<wchar_t*>(text);
}
/// Up to the closing zero; empty for null.
inline StringView textOf(const wchar_t* text) {
    return text != nullptr ? StringView(reinterpret_cast<const char16_t*>(text)) : StringView();
}
inline StringView textOf(const wchar_t* text, std::size_t length) {
    return {reinterpret_cast<const char16_t*>(text), length};
}

/// Window handles have 32 significant bits in programs of either width, extended by their sign.
inline HWND toHWND(WindowHandle handle) {
    return reinterpret_cast<HWND>(static_cast<INT_PTR>(handle));
}
inline WindowHandle fromHWND(HWND window) {
    return static_cast<WindowHandle>(reinterpret_cast<INT_PTR>(window));
}

} // namespace lumtex::win32
