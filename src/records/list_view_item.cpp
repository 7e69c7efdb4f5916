#include "records/list_view_item.h"

#include <utility>

namespace lumtex {

namespace {
thread_local std::size_t objectCount = 0;
} // namespace

void CellExtras::setObject(ObjectRef object) {
    Held<ObjectRef> fresh(std::move(object));
    objectCount += fresh ? 1 : 0;
    objectCount -= object_ ? 1 : 0;
    object_ = std::move(fresh);
}

std::size_t CellExtras::objectsInCells() {
    return objectCount;
}

ListViewItem::ListViewItem(ListViewItem&& other) noexcept
    : text_(std::move(other.text_)), textWidth_(other.textWidth_), style_(other.style_),
      checked_(other.checked_), tagIsEmptyText_(other.tagIsEmptyText_) {
    other.style_ = noStyle;
}

ListViewItem::~ListViewItem() {
    if (style_ != noStyle)
        CellStyles::ofThread().release(style_);
}

void ListViewItem::share(const CellStyle& style) {
    CellStyles& styles = CellStyles::ofThread();
    const StyleHandle before = style_;
    style_ = styles.acquire(style);
    styles.release(before);
}

} // namespace lumtex
