/// \file
/// Handles of the picture library, and its pixels as ours. For the files of this folder that use it.
#pragma once

#include "values/bitmap.h"

#include <memory>

#include <gdk-pixbuf/gdk-pixbuf.h>

namespace lumtex::pictures {

struct UnrefObject {
    void operator()(void* object) const { g_object_unref(object); }
};
struct FreeError {
    void operator()(GError* error) const { g_error_free(error); }
};
using PixbufHandle = std::unique_ptr<GdkPixbuf, UnrefObject>;
using LoaderHandle = std::unique_ptr<GdkPixbufLoader, UnrefObject>;
using ErrorHandle = std::unique_ptr<GError, FreeError>;

/// The pixels, opaque if the picture has no alpha.
Bitmap bitmapOf(const GdkPixbuf* pixbuf);

} // namespace lumtex::pictures
