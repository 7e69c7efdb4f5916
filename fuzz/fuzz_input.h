/// \file
/// What every fuzzer shares: demands, and the input taken apart piece by piece.
#pragma once

#include "values/references/picture.h"
#include "values/runtime_error.h"
#include "values/variant.h"

#include <bit>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace lumtex::fuzz {

inline void require(bool holds) {
    if (!holds)
        std::abort();
}

/// Gives zeros behind its end.
class Input {
  public:
    Input(const unsigned char* data, std::size_t size) : place_(data), end_(data + size) {}

    bool atEnd() const { return place_ == end_; }
    unsigned byte() { return atEnd() ? 0 : *place_++; }
    unsigned below(unsigned count) { return byte() % count; }
    bool flag() { return byte() % 2 != 0; }
    template <class T>
    T raw() {
        unsigned char bytes[sizeof(T)];
        for (unsigned char& one : bytes)
            one = static_cast<unsigned char>(byte());
        T value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }
    /// Mostly small, sometimes at an edge or of any bits.
    Long number() {
        switch (below(8)) {
        case 0:
            return raw<Long>();
        case 1:
            return flag() ? std::numeric_limits<Long>::max() : std::numeric_limits<Long>::min();
        default:
            return static_cast<Long>(below(12)) - 2;
        }
    }
    Double real() { return flag() ? static_cast<Double>(number()) / 4 : raw<Double>(); }
    Single single() { return flag() ? static_cast<Single>(number()) / 4 : raw<Single>(); }
    /// Letters of one byte, or any units.
    String text() {
        const std::size_t length = byte() % 40;
        const bool wide = below(4) == 0;
        String units;
        for (std::size_t i = 0; i < length && !atEnd(); ++i)
            units += wide ? raw<char16_t>() : static_cast<char16_t>(byte());
        return units;
    }
    FontSpec font() {
        static constexpr const char16_t* names[] = {u"", u"Tahoma", u"DejaVu Sans", u"No such font"};
        FontSpec spec{names[below(4)], flag() ? single() : static_cast<Single>(below(40))};
        const unsigned flags = byte();
        spec.Bold = (flags & 1U) != 0;
        spec.Italic = (flags & 2U) != 0;
        spec.Underline = (flags & 4U) != 0;
        spec.Strikethrough = (flags & 8U) != 0;
        return spec;
    }
    PictureRef picture() {
        const auto width = static_cast<Long>(below(20));
        const auto height = static_cast<Long>(below(20));
        return std::make_shared<BitmapPicture>(Bitmap(width, height, raw<std::uint32_t>()),
                                               flag() ? PictureKind::icon : PictureKind::bitmap);
    }
    /// Of every kind but an object.
    Variant value() {
        switch (below(15)) {
        case 0:
            return {};
        case 1:
            return Null{};
        case 2:
            return Missing{};
        case 3:
            return flag();
        case 4:
            return static_cast<Byte>(byte());
        case 5:
            return raw<Integer>();
        case 6:
            return single();
        case 7:
            return real();
        case 8:
            return Date{real()};
        case 9:
            return text();
        case 10:
            return flag() ? FontRef{} : std::make_shared<Font>(font());
        case 11:
            return flag() ? PictureRef{} : picture();
        case 12:
            return ObjectRef{};
        default:
            return number();
        }
    }

  private:
    const unsigned char* place_;
    const unsigned char* end_;
};

} // namespace lumtex::fuzz
