#include "records/list_view_item.h"

#include "values/thread_state.h"

#include <utility>

namespace lumtex {

void CellExtras::setObject(ObjectRef object) {
    Held<ObjectRef> fresh(std::move(object));
    std::size_t& count = ThreadState::ofThread().objectsInCells;
    count += fresh ? 1 : 0;
    count -= object_ ? 1 : 0;
    object_ = std::move(fresh);
}

std::size_t CellExtras::objectsInCells() {
    return ThreadState::ofThread().objectsInCells;
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
