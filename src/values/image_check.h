/// \file
/// What the bytes of a picture file say of themselves, looked at before any decoder sees them.
#pragma once

#include "values/types.h"

#include <cstddef>
#include <span>

namespace lumtex {

/// The kinds of files that pictures come from. Metafiles are not among them: they are lists of drawing calls,
/// not images, and no size follows from theirs.
enum class ImageFormat : Byte { bitmap, icon, cursor, png, gif, jpeg };

/// No image that holds its pixels one by one has more, even at one bit each.
constexpr std::uint64_t mostPixelsToAByte = 8;
/// Of any image, however long it is.
constexpr std::uint64_t mostPixels = std::uint64_t{1} << 28U;
constexpr std::uint64_t mostPixelsASide = std::uint64_t{1} << 20U;
/// Pixels that the pictures of settings may have without a byte for them: there are a handful at most, and
/// compressed ones of few colours are common among them.
constexpr std::uint64_t freeSettingsPixels = std::uint64_t{1} << 22U;

/// Demands that everything the image points to lies within it (a directory's entries and their images, a
/// header, its palette and its lines, each block of a compressed image), and that the pixels of all pictures
/// within it together are no more than `freePixels` and eight to each byte. So the time and memory that a
/// decoder needs stay in proportion to the bytes, and a decoder that trusts what it reads finds it true.
/// Throws RuntimeError 481 for any other bytes. Says nothing about compressed data, which decoders must
/// check themselves.
ImageFormat checkImage(std::span<const Byte> bytes, std::uint64_t freePixels = 0);

/// Whether it passes.
bool isSoundImage(std::span<const Byte> image, std::uint64_t freePixels = 0);

} // namespace lumtex
