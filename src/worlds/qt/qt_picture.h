/// \file
/// Pixels of ours as pictures of Qt, and back.
#pragma once

#include "values/bitmap.h"

#include <QImage>

namespace lumtex::qt {

/// A copy.
QImage imageOf(const Bitmap& bitmap);
Bitmap bitmapOf(const QImage& image);

} // namespace lumtex::qt
