#include "drawing/strokes.h"

namespace lumtex::drawing {

Single StrokeFrame::at(Place place) const {
    const auto offset = static_cast<Single>(place.offset);
    switch (place.edge) {
    case Edge::left:
        return left + offset;
    case Edge::right:
        return right + offset;
    case Edge::top:
        return top + offset;
    case Edge::foot:
        return foot + offset;
    case Edge::bar:
        return foot - 2 + offset;
    }
    return offset;
}

void paintStrokes(Surface& surface,
                  std::span<const Stroke> strokes,
                  const StrokeFrame& frame,
                  const Properties& properties) {
    for (const Stroke& stroke : strokes) {
        const OLE_COLOR color = colorOf(stroke.role, properties);
        const Single x1 = frame.at(stroke.x1);
        const Single y1 = frame.at(stroke.y1);
        switch (stroke.shape) {
        case Shape::line:
            surface.line(x1, y1, frame.at(stroke.x2), frame.at(stroke.y2), color);
            break;
        case Shape::fill:
            surface.fillBox(x1, y1, frame.at(stroke.x2), frame.at(stroke.y2), color);
            break;
        case Shape::pixel:
            surface.pset(x1, y1, color);
            break;
        }
    }
}

} // namespace lumtex::drawing
