#include "render/gradient.h"

#include "platform/rounding.h"
#include "services/ignoring_errors.h"

#include <vector>

namespace lumtex {

namespace {

/// Bytes of a run of `count` pixels that starts at `from` and moves on by a `divisor`th of the way at each.
std::vector<Byte> colorRun(std::size_t count, OLE_COLOR from, OLE_COLOR to, Double divisor) {
    struct Channel {
        Double value;
        Double step;
    };
    const auto channel = [&](Byte first, Byte last) {
        return Channel{Double(first), (last - first) / divisor};
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

} // namespace

void DrawGradient(Surface& surface, const Rect* rect, OLE_COLOR colour1, OLE_COLOR colour2, Long direction) {
    ignoringErrors([&] {
        if (rect == nullptr)
            return;
        const Long width = roundToLong(static_cast<Double>(rect->Right) - rect->Left);
        const Long height = roundToLong(static_cast<Double>(rect->Bottom) - rect->Top);
        if (direction == leftToRight && width > 0) {
            std::vector<Byte> bytes = colorRun(static_cast<std::size_t>(width), colour1, colour2, width);
            bytes.resize((bytes.size() + 3) / 4 * 4);
            surface.stretchDIBits(rect->Left, rect->Top, width, height, {width, 1, bytes});
        } else if (direction == bottomToTop && height > 0) {
            const std::size_t count = static_cast<std::size_t>(height) * stripWidth;
            const std::vector<Byte> bytes =
                colorRun(count, colour1, colour2, static_cast<Double>(height) * stripWidth);
            surface.stretchDIBits(rect->Left, rect->Top, width, height, {stripWidth, height, bytes});
        }
    });
}

} // namespace lumtex
