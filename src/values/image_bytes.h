/// \file
/// Numbers in the bytes of an image, and what its pictures add up to.
#pragma once

#include "values/image_check.h"
#include "values/runtime_error.h"

#include <algorithm>
#include <initializer_list>

namespace lumtex {

inline void demandOfImage(bool holds) {
    if (!holds)
        throw RuntimeError(ErrorNumber::invalidPicture);
}

/// A stretch of an image. Whatever leads out of it throws RuntimeError 481.
class ImageBytes {
  public:
    explicit ImageBytes(std::span<const Byte> bytes) : bytes_(bytes) {}

    std::uint64_t size() const { return bytes_.size(); }
    bool startsWith(std::initializer_list<Byte> signature) const {
        return bytes_.size() >= signature.size() &&
               std::equal(signature.begin(), signature.end(), bytes_.begin());
    }
    /// The stretch of `size` bytes from `offset` on.
    ImageBytes part(std::uint64_t offset, std::uint64_t size) const {
        demandOfImage(offset <= bytes_.size() && size <= bytes_.size() - offset);
        return ImageBytes(bytes_.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(size)));
    }
    ImageBytes from(std::uint64_t offset) const {
        demandOfImage(offset <= bytes_.size());
        return part(offset, bytes_.size() - offset);
    }
    /// `count` bytes, at most four.
    std::uint32_t lowFirst(std::uint64_t offset, unsigned count) const {
        std::uint32_t number = 0;
        for (unsigned i = count; i-- > 0;)
            number = number << 8U | at(offset + i);
        return number;
    }
    std::uint32_t highFirst(std::uint64_t offset, unsigned count) const {
        std::uint32_t number = 0;
        for (unsigned i = 0; i < count; ++i)
            number = number << 8U | at(offset + i);
        return number;
    }
    Byte at(std::uint64_t offset) const {
        demandOfImage(offset < bytes_.size());
        return bytes_[static_cast<std::size_t>(offset)];
    }

  private:
    std::span<const Byte> bytes_;
};

/// Adds up the pixels of all pictures of an image; throws RuntimeError 481 as soon as they are too many.
class PixelSum {
  public:
    explicit PixelSum(std::uint64_t most) : most_(std::min(most, mostPixels)) {}

    void add(std::uint64_t width, std::uint64_t height) {
        demandOfImage(width > 0 && height > 0 && width <= mostPixelsASide && height <= mostPixelsASide);
        sum_ += width * height;
        demandOfImage(sum_ <= most_);
    }

  private:
    std::uint64_t most_;
    std::uint64_t sum_ = 0;
};

// Each adds what it finds to `pixels`.

/// A header, its palette and its lines, as they follow the 14 bytes that a bitmap file begins with.
/// `linesAt` counts from the header's start.
void checkBitmapLines(const ImageBytes& bytes, std::uint64_t linesAt, PixelSum& pixels);
/// The same as icons hold it: twice as high as it shows, and a mask of one bit a pixel follows the lines.
void checkIconLines(const ImageBytes& bytes, PixelSum& pixels);
void checkPng(const ImageBytes& image, PixelSum& pixels);
void checkGif(const ImageBytes& image, PixelSum& pixels);
void checkJpeg(const ImageBytes& image, PixelSum& pixels);

bool isPng(const ImageBytes& image);

} // namespace lumtex
