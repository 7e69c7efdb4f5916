/// \file
/// The system's font object under the name that was asked for.
#pragma once

#include "worlds/win32/com_ref.h"

#include <functional>

namespace lumtex::win32 {

/// What the maker of a font object wants to hear of it. Must not throw.
struct NamedFontClient {
    std::function<void(IFont* object, DISPID property)> onChanged; ///< DISPID_UNKNOWN: more than one
    std::function<void(IUnknown* identity)> onGone; ///< as the object ends; nothing comes after it
};

/// A font object of `description`. The system's own gives another name if that face is not installed; this
/// one gives the name it was made with, until somebody names another face. Throws RuntimeError 7 if it cannot
/// be made.
ComRef<IFontDisp> makeNamedFont(FONTDESC description, NamedFontClient client);

} // namespace lumtex::win32
