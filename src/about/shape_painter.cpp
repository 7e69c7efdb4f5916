#include "about/shape_painter.h"

#include <algorithm>
#include <cmath>

namespace lumtex::about {

namespace {

constexpr unsigned rightAbove = 1;
constexpr unsigned leftAbove = 2;
constexpr unsigned leftBelow = 4;
constexpr unsigned rightBelow = 8;

float clamped(float value) {
    return std::clamp(value, 0.0F, 1.0F);
}

float length(float x, float y) {
    return std::sqrt(x * x + y * y);
}

/// Pixels from the edge, below 0 inside.
float distanceTo(const RoundBox& box, float x, float y) {
    const float outX = std::abs(x - box.left - box.width / 2) - box.width / 2 + box.radius;
    const float outY = std::abs(y - box.top - box.height / 2) - box.height / 2 + box.radius;
    return length(std::max(outX, 0.0F), std::max(outY, 0.0F)) + std::min(std::max(outX, outY), 0.0F) -
           box.radius;
}

float distanceToLine(const PenStroke& line, float x, float y) {
    const float alongX = line.x2 - line.x1;
    const float alongY = line.y2 - line.y1;
    const float square = alongX * alongX + alongY * alongY;
    const float place =
        square > 0 ? clamped(((x - line.x1) * alongX + (y - line.y1) * alongY) / square) : 0.0F;
    return length(x - line.x1 - place * alongX, y - line.y1 - place * alongY);
}

unsigned quadrantOf(float x, float y) {
    if (y >= 0)
        return x >= 0 ? rightAbove : leftAbove;
    return x >= 0 ? rightBelow : leftBelow;
}

float distanceToArc(const PenStroke& arc, float x, float y) {
    const float fromX = x - arc.x1;
    const float fromY = y - arc.y1;
    const float radius = arc.x2;
    if ((arc.quadrants & quadrantOf(fromX, fromY)) != 0)
        return std::abs(length(fromX, fromY) - radius);
    float nearest = INFINITY;
    const auto consider = [&](unsigned touching, float endX, float endY) {
        if ((arc.quadrants & touching) != 0)
            nearest = std::min(nearest, length(fromX - endX, fromY - endY));
    };
    consider(rightAbove | rightBelow, radius, 0);
    consider(leftAbove | leftBelow, -radius, 0);
    consider(rightAbove | leftAbove, 0, radius);
    consider(rightBelow | leftBelow, 0, -radius);
    return nearest;
}

float distanceTo(std::span<const PenStroke> strokes, float x, float y) {
    float nearest = INFINITY;
    for (const PenStroke& stroke : strokes)
        nearest = std::min(
            nearest, stroke.quadrants != 0 ? distanceToArc(stroke, x, y) : distanceToLine(stroke, x, y));
    return nearest;
}

/// Runs `paint` with each pixel of a part of the picture, and the middle of that pixel.
template <class Paint>
void eachPixel(const Bitmap& picture, float left, float top, float right, float bottom, Paint paint) {
    const auto limit = [](float place, Long end) {
        return static_cast<Long>(std::clamp(std::floor(place), 0.0F, static_cast<float>(end)));
    };
    for (Long y = limit(top, picture.height); y < limit(bottom + 1, picture.height); ++y) {
        for (Long x = limit(left, picture.width); x < limit(right + 1, picture.width); ++x)
            paint(x, y, static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F);
    }
}

} // namespace

Shade between(const Shade& from, const Shade& to, float place) {
    const float part = clamped(place);
    const auto mix = [part](float a, float b) { return a + (b - a) * part; };
    return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

void layOver(Bitmap& picture, Long x, Long y, const Shade& shade, float coverage) {
    if (x < 0 || y < 0 || x >= picture.width || y >= picture.height)
        return;
    constexpr float full = 255;
    std::uint32_t& pixel = picture.at(x, y);
    const float alpha = clamped(coverage);
    const auto laid = [&](unsigned shift, float over) {
        const auto under = static_cast<float>((pixel >> shift) & 0xFFU);
        return static_cast<std::uint32_t>(std::lround(under * (1 - alpha) + over * alpha)) << shift;
    };
    pixel = laid(24, full) | laid(16, shade.red) | laid(8, shade.green) | laid(0, shade.blue);
}

void fillBox(Bitmap& picture, const RoundBox& box, const Shade& top, const Shade& bottom, float opacity) {
    eachPixel(picture,
              box.left,
              box.top,
              box.left + box.width,
              box.top + box.height,
              [&](Long x, Long y, float middleX, float middleY) {
                  const float inside = clamped(0.5F - distanceTo(box, middleX, middleY));
                  const Shade shade = between(top, bottom, (middleY - box.top) / box.height);
                  layOver(picture, x, y, shade, inside * opacity);
              });
}

void shadow(Bitmap& picture, const RoundBox& box, float blur, float opacity) {
    eachPixel(picture,
              box.left - blur,
              box.top - blur,
              box.left + box.width + blur,
              box.top + box.height + blur,
              [&](Long x, Long y, float middleX, float middleY) {
                  const float rest = clamped(1 - distanceTo(box, middleX, middleY) / blur);
                  layOver(picture, x, y, {}, rest * rest * opacity);
              });
}

void drawStrokes(Bitmap& picture,
                 std::span<const PenStroke> strokes,
                 const LetterFrame& frame,
                 const Shade& shade,
                 float opacity) {
    eachPixel(picture,
              0,
              0,
              static_cast<float>(picture.width),
              static_cast<float>(picture.height),
              [&](Long x, Long y, float middleX, float middleY) {
                  const float unitX = (middleX - frame.left) / frame.scale;
                  const float unitY = (frame.baseLine - middleY) / frame.scale;
                  const float away = distanceTo(strokes, unitX, unitY) * frame.scale - frame.halfWidth;
                  layOver(picture, x, y, shade, clamped(0.5F - away) * opacity);
              });
}

} // namespace lumtex::about
