/// \file
/// One cell.
#pragma once

#include "records/cell_style.h"
#include "records/compact_text.h"

#include <memory>

namespace lumtex {

/// The fields of a cell that few cells have.
struct CellExtras {
    CellExtras() = default;
    CellExtras(const CellExtras&) = delete;
    CellExtras& operator=(const CellExtras&) = delete;
    ~CellExtras() { setObject(nullptr); }

    Held<PictureRef> Icon;
    Held<PictureRef> IconSelected;
    Held<Variant> Tag; ///< Empty until the host writes it; also where it is the empty text
    String ToolTip;

    const ObjectRef& object() const { return object_.get(); }
    void setObject(ObjectRef object);

    /// How many cells of this thread hold an object. While none does, a pass need not look for them.
    static std::size_t objectsInCells();

  private:
    Held<ObjectRef> object_;
};

/// A cell in 24 bytes: its text, a share of a style, and the width that painting measured. The rare fields
/// lie with the row's `Items`.
class ListViewItem {
  public:
    ListViewItem(StringView text, const StyleLease& style) : text_(text), style_(style.share()) {}
    ListViewItem(const ListViewItem&) = delete;
    ListViewItem& operator=(const ListViewItem&) = delete;
    ListViewItem(ListViewItem&& other) noexcept;
    ListViewItem& operator=(ListViewItem&&) = delete;
    ~ListViewItem();

    String Text() const { return text_.toString(); }
    const CompactText& text() const { return text_; }
    void letText(StringView text) { text_.assign(text); }
    /// Of bytes that are a code unit each.
    void letText(std::span<const unsigned char> units) { text_.assign(units); }

    const CellStyle& style() const { return CellStyles::ofThread()[style_]; }
    StyleHandle styleHandle() const { return style_; }
    /// Takes a share of another style.
    void letStyle(const StyleLease& style) {
        const StyleHandle before = style_;
        style_ = style.share();
        style.releaseOther(before);
    }
    /// Applies `change` to a copy of the style and shares the result.
    template <class Change>
    void restyle(Change change) {
        CellStyle changed = style();
        change(changed);
        share(changed);
    }

    bool Checked() const { return checked_ != 0; }
    void letChecked(bool checked) { checked_ = checked ? 1 : 0; }

    /// The tag is the empty text, which thus takes no memory. See `Items::tag`.
    bool tagIsEmptyText() const { return tagIsEmptyText_ != 0; }
    void letTagIsEmptyText(bool value) { tagIsEmptyText_ = value ? 1 : 0; }

    Single TextWidth() const { return textWidth_; } ///< pixels, as the last paint measured it
    void letTextWidth(Single width) { textWidth_ = width; }

  private:
    static constexpr StyleHandle noStyle = 0x3FFFFFFF;

    void share(const CellStyle& style);

    CompactText text_;
    Single textWidth_ = 0;
    StyleHandle style_ : 30;
    StyleHandle checked_ : 1 = 0;
    StyleHandle tagIsEmptyText_ : 1 = 0;
};

static_assert(sizeof(ListViewItem) == 24);

} // namespace lumtex
