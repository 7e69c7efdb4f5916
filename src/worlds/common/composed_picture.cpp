#include "worlds/common/composed_picture.h"

#include <algorithm>

namespace lumtex::worlds {

namespace {

/// Places in 64 bits, since they are sums of numbers that may be anywhere in 32.
struct Clip {
    std::int64_t left;
    std::int64_t top;
    std::int64_t right;
    std::int64_t bottom;

    bool isEmpty() const { return left >= right || top >= bottom; }
};

/// Copies the part of `source`, whose corner lies at (`x`, `y`) of `target`, that `clip` lets through.
void lay(Bitmap& target, const Bitmap& source, std::int64_t x, std::int64_t y, const Clip& clip) {
    const Long columns = static_cast<Long>(clip.right - clip.left);
    for (std::int64_t row = clip.top; row < clip.bottom; ++row) {
        const std::uint32_t* from = source.pixels.data() + (row - y) * source.width + (clip.left - x);
        std::copy_n(from, columns, target.pixels.data() + row * target.width + clip.left);
    }
}

void compose(
    Bitmap& target, const Pane& pane, std::int64_t x, std::int64_t y, const Clip& outer, Boxes boxes) {
    const std::int64_t width = std::int64_t{pane.area().Right} - pane.area().Left;
    const std::int64_t height = std::int64_t{pane.area().Bottom} - pane.area().Top;
    const Clip clip{std::max(outer.left, x),
                    std::max(outer.top, y),
                    std::min(outer.right, x + width),
                    std::min(outer.bottom, y + height)};
    if (clip.isEmpty())
        return;
    lay(target, pane.picture(), x, y, clip);
    for (const Pane* child : pane.children()) {
        if (child->isVisible() && (boxes == Boxes::shown || !child->isBox()))
            compose(target, *child, x + child->area().Left, y + child->area().Top, clip, boxes);
    }
}

} // namespace

void composePicture(Bitmap& target, const Pane& pane, const Rect& part, Boxes boxes) {
    const Clip clip{std::max(part.Left, Long{0}),
                    std::max(part.Top, Long{0}),
                    std::min(part.Right, target.width),
                    std::min(part.Bottom, target.height)};
    compose(target, pane, 0, 0, clip, boxes);
}

} // namespace lumtex::worlds
