/// \file
/// Handles of the picture library, and its pixels as ours. For the files of this folder that use it.
#pragma once

#include "platform/bitmap.h"

#include <memory>

#include <gdk-pixbuf/gdk-pixbuf.h>

namespace lumtex {

struct UnrefObject {
    void operator()(void* object) const { g_object_unref(object); }
};
struct FreeError {
    void operator()(GError* error) const { g_error_free(error); }
};
using PixbufHandle = std::unique_ptr<GdkPixbuf, UnrefObject>;
using LoaderHandle = std::unique_ptr<GdkPixbufLoader, UnrefObject>;
using ErrorHandle = std::unique_ptr<GError, FreeError>;

/// The pixels, opaque where the picture has no alpha.
Bitmap bitmapOf(const GdkPixbuf* pixbuf);

/// Channel number `channel` of a premultiplied pixel, counted from red as 0, as it was before.
constexpr Byte straightChannel(std::uint32_t pixel, unsigned channel) {
    const unsigned alpha = pixel >> 24U;
    const unsigned value = (pixel >> (16 - 8 * channel)) & 0xFFU;
    return static_cast<Byte>(alpha == 0 ? 0 : (value * 255 + alpha / 2) / alpha);
}

} // namespace lumtex
