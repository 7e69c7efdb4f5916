#include "worlds/win32/ansi_text.h"

#include "values/runtime_error.h"
#include "worlds/win32/win32_runtime.h"

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace lumtex::win32 {

namespace {

/// Lengths are 32-bit numbers here. Throws RuntimeError 7 for a text past that.
int lengthOf(std::size_t length) {
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw RuntimeError(ErrorNumber::outOfMemory);
    return static_cast<int>(length);
}

/// The byte of the letter of the code page that is nearest to a unit; "?" where none is near, and where it
/// takes more than a byte.
Byte nearestByte(char16_t unit) {
    const auto spelled = static_cast<wchar_t>(unit);
    char byte = '?';
    const int size = WideCharToMultiByte(CP_ACP, 0, &spelled, 1, &byte, 1, nullptr, nullptr);
    return size == 1 ? static_cast<Byte>(byte) : Byte{'?'};
}

/// The code page as one byte for each character, both ways.
struct SingleBytes {
    std::array<char16_t, 256> units;
    std::vector<Byte> bytes = std::vector<Byte>(std::size_t{1} << 16U, Byte{'?'});

    SingleBytes() {
        for (std::size_t unit = 0; unit < bytes.size(); ++unit)
            bytes[unit] = nearestByte(static_cast<char16_t>(unit));
        for (std::size_t byte = units.size(); byte-- > 0;) {
            const char spelled = static_cast<char>(byte);
            wchar_t unit = 0;
            // A byte that means nothing by itself stands for the control of its own number.
            const bool isWhole =
                MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &spelled, 1, &unit, 1) == 1;
            units[byte] = isWhole ? static_cast<char16_t>(unit) : static_cast<char16_t>(byte);
            bytes[units[byte]] = static_cast<Byte>(byte);
        }
    }
};

const SingleBytes& singleBytes() {
    static const SingleBytes table;
    return table;
}

} // namespace

Date Win32Runtime::now() const {
    SYSTEMTIME local{};
    GetLocalTime(&local);
    Date now;
    if (SystemTimeToVariantTime(&local, &now.days) == FALSE)
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    return now;
}

void Win32Runtime::toAnsi(StringView text, std::span<Byte> bytes) const {
    const SingleBytes& table = singleBytes();
    std::transform(text.begin(), text.end(), bytes.begin(), [&](char16_t unit) { return table.bytes[unit]; });
}

void Win32Runtime::fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const {
    const SingleBytes& table = singleBytes();
    std::transform(bytes.begin(), bytes.end(), text.begin(), [&](Byte byte) { return table.units[byte]; });
}

std::string ansiFrom(StringView text) {
    const auto* units = reinterpret_cast<const wchar_t*>(text.data());
    const int count = lengthOf(text.size());
    const int size = WideCharToMultiByte(CP_ACP, 0, units, count, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, units, count, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

String textFromAnsi(std::string_view text) {
    const int count = lengthOf(text.size());
    const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), count, nullptr, 0);
    String units(static_cast<std::size_t>(size), u'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), count, wide(units.data()), size);
    return units;
}

} // namespace lumtex::win32
