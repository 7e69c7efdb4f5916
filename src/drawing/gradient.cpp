#include "drawing/gradient.h"

#include "guards/failure_of.h"
#include "values/rounding.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace lumtex::drawing {

namespace {

/// So many pixels are worked out whether they can be seen or not.
constexpr Long longestRun = 32768;

/// The pixels of one axis to be worked out: all of a usual run, those on the surface of one that is longer.
struct Stretch {
    Long first = 0;
    Long last = 0; ///< just past the end
};

Stretch stretchOf(Long first, Long last, Long limit) {
    if (static_cast<Double>(last) - first <= longestRun)
        return {first, last};
    return {std::max<Long>(first, 0), std::min(last, limit)};
}

/// Bytes of `count` pixels of a run that starts at `from` and moves on by a `divisor`th of the way at each;
/// the first `skipped` ones are left out.
std::vector<Byte> colorRun(Double skipped, std::size_t count, OLE_COLOR from, OLE_COLOR to, Double divisor) {
    struct Channel {
        Double value;
        Double step;
    };
    const auto channel = [&](Byte first, Byte last) {
        const Double step = (last - first) / divisor;
        return Channel{first + skipped * step, step};
    };
    Channel blue = channel(blueOf(from), blueOf(to));
    Channel green = channel(greenOf(from), greenOf(to));
    Channel red = channel(redOf(from), redOf(to));
    std::vector<Byte> bytes;
    bytes.reserve(count * 3);
    for (std::size_t i = 0; i < count; ++i) {
        for (Channel* each : {&blue, &green, &red}) {
            bytes.push_back(roundToByte(each->value));
            each->value += each->step;
        }
    }
    return bytes;
}

/// A vertical run is four pixels wide, so that a row of its bitmap is twelve bytes and needs no padding.
constexpr Long stripWidth = 4;

/// Turns each row of a strip round.
void mirrorRows(std::vector<Byte>& strip) {
    using Pixels = std::array<std::array<Byte, 3>, stripWidth>;
    for (std::size_t row = 0; row < strip.size(); row += sizeof(Pixels)) {
        Pixels pixels;
        std::memcpy(&pixels, strip.data() + row, sizeof pixels);
        std::reverse(pixels.begin(), pixels.end());
        std::memcpy(strip.data() + row, &pixels, sizeof pixels);
    }
}

/// The pixels that a stretch between two edges covers.
struct Span {
    Long first = 0;
    Long extent = 0;
    bool mirrored = false;
};

/// Throws 6 for more pixels than a Long counts.
Span spanOf(Long from, Long to) {
    if (to >= from)
        return {from, roundToLong(static_cast<Double>(to) - from), false};
    return {to + 1, roundToLong(static_cast<Double>(from) - to), true};
}

} // namespace

void DrawGradient(
    Surface& surface, const Rect* rect, OLE_COLOR colour1, OLE_COLOR colour2, GradientDirection direction) {
    ignoringErrors([&] {
        if (rect == nullptr)
            return;
        const Long width = roundToLong(static_cast<Double>(rect->Right) - rect->Left);
        const Long height = roundToLong(static_cast<Double>(rect->Bottom) - rect->Top);
        // Across the run an extent below zero mirrors: it reaches to the other side from the first pixel on.
        const Span across = direction == GradientDirection::leftToRight ? spanOf(rect->Top, rect->Bottom)
                                                                        : spanOf(rect->Left, rect->Right);
        if (direction == GradientDirection::leftToRight && width > 0) {
            const Stretch run = stretchOf(rect->Left, rect->Right, surface.scaleWidth());
            if (run.first >= run.last)
                return;
            const Long shown = run.last - run.first;
            const Double skipped = static_cast<Double>(run.first) - rect->Left;
            std::vector<Byte> bytes =
                colorRun(skipped, static_cast<std::size_t>(shown), colour1, colour2, width);
            bytes.resize((bytes.size() + 3) / 4 * 4);
            surface.stretchDIBits(run.first, across.first, shown, across.extent, {shown, 1, bytes});
        } else if (direction == GradientDirection::bottomToTop && height > 0) {
            const Stretch run = stretchOf(rect->Top, rect->Bottom, surface.scaleHeight());
            if (run.first >= run.last)
                return;
            const Long shown = run.last - run.first;
            const Double skipped = (static_cast<Double>(rect->Bottom) - run.last) * stripWidth;
            std::vector<Byte> bytes = colorRun(skipped,
                                               static_cast<std::size_t>(shown) * stripWidth,
                                               colour1,
                                               colour2,
                                               static_cast<Double>(height) * stripWidth);
            if (across.mirrored)
                mirrorRows(bytes);
            surface.stretchDIBits(across.first, run.first, across.extent, shown, {stripWidth, shown, bytes});
        }
    });
}

} // namespace lumtex::drawing
