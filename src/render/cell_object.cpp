/// A control of the host, shown over its cell in place of text and icon.
#include "guards/failure_of.h"
#include "render/paint_pass.h"
#include "values/rounding.h"

#include <array>

namespace lumtex {

void PaintPass::cellObject(const ObjectRef& shared) {
    const ObjectRef object = shared; // the host may take it out of the cell while it is called
    // Wanted: the parent's scale is asked for and then not used; the target is always twips.
    ignoringErrors([&] { object->get(u"Parent").toObject()->get(u"ScaleMode"); });
    statement([&] { object->put(u"Visible", true); });

    Single targetHeight = 0;
    statement([&] {
        targetHeight = properties.RowsDynamic
                           ? scaleY(surface, static_cast<Double>(cellHeight) - 1, Unit::pixels, Unit::twips)
                           : properties.RowHeight - scaleY(surface, 1, Unit::pixels, Unit::twips);
    });
    statement([&] {
        const Double objectHeight = object->get(u"Height").toDouble();
        const Double top = scaleY(surface, rowY + 1, Unit::pixels, Unit::twips) +
                           (static_cast<Double>(roundToLong(targetHeight)) - objectHeight) / 2;
        std::array<Variant, 3> place{scaleX(surface, penX, Unit::pixels, Unit::twips),
                                     static_cast<Single>(top),
                                     scaleX(surface, columnWidthPx - 1, Unit::pixels, Unit::twips)};
        object->call(u"Move", place);
    });
}

} // namespace lumtex
