#include "activex/guid.h"

#include <array>

namespace lumtex::win32 {

String textOfGuid(const GUID& guid) {
    constexpr int length = 39; // braces and the closing zero included
    std::array<wchar_t, length> text{};
    StringFromGUID2(guid, text.data(), length);
    return String(textOf(text.data()));
}

} // namespace lumtex::win32
