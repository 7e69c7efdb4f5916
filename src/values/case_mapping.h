/// \file
/// Lower case and case folding of single UTF-16 code units, the same in every world.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace lumtex {

/// Maps one code unit to one code unit. Surrogates map to themselves, so text keeps its length, and letters
/// past U+FFFF keep their case.
struct CaseMapping {
    static constexpr std::size_t pageSize = 256;
    static constexpr std::size_t mostPages = 24;

    std::array<std::uint8_t, 256> pageOf{}; ///< by the high byte; page 0 holds zeros alone
    /// What to add to the unit, modulo 65536.
    std::array<std::array<char16_t, pageSize>, mostPages> pages{};

    char16_t operator()(char16_t unit) const {
        return static_cast<char16_t>(unit + pages[pageOf[unit / pageSize]][unit % pageSize]);
    }
};

/// Unicode's simple lower-case mapping (UnicodeData.txt of version 14). A unit below 256 stays below 256.
extern const CaseMapping lowerCase;

/// The same of a unit below 256, reckoned and not looked up, so that the compiler does a whole run at a time.
constexpr unsigned char lowerCaseOfByte(unsigned char unit) {
    const bool isAscii = unit >= u'A' && unit <= u'Z';
    const bool isLatin = unit >= 0xC0 && unit <= 0xDE && unit != 0xD7;
    return static_cast<unsigned char>(unit + (isAscii || isLatin ? 0x20 : 0));
}

/// Unicode's simple case folding (statuses C and S of CaseFolding.txt, version 14): units that differ in case
/// alone map to the same one.
extern const CaseMapping foldCase;

} // namespace lumtex
