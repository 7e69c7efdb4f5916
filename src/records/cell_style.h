/// \file
/// What most cells have in common, kept once for all that look alike.
#pragma once

#include "guards/held.h"
#include "records/enumerations.h"
#include "values/color.h"
#include "values/references/font.h"
#include "values/variant.h"

#include <deque>
#include <unordered_set>
#include <vector>

namespace lumtex {

/// The fields of a cell that rarely differ from cell to cell. "def" stands for a colour that painting
/// decides.
struct CellStyle {
    OLE_COLOR ForeColor = 0;
    Held<Variant> BackColor = u"def";
    Held<Variant> ForeColorSelect = u"def";
    Held<Variant> BackColorSelect = u"def";
    OLE_COLOR ForeColorDis = grayText;
    OLE_COLOR BackColorDis = buttonFace;
    cItemAlign IconAlignment = cItemLeft;
    cItemAlign Alignment = cItemLeft;
    bool AllowEdit = false;
    bool Enabled = true;
    FontSpec font;

    bool operator==(const CellStyle&) const = default;
};

/// Names one style of the thread's table.
using StyleHandle = std::uint32_t;

/// The table of styles in use, counted by the cells that share each. One per thread: a control lives on one
/// thread, and all of that thread's controls may share a look.
class CellStyles {
  public:
    static CellStyles& ofThread();

    /// The handle of an equal style, or a new one. The caller owns one count and gives it back by `release`.
    StyleHandle acquire(const CellStyle& style);
    /// The same for a new cell, whose style differs from `CellStyle{}` in colour and font alone.
    StyleHandle acquireForNewCell(OLE_COLOR ForeColor, const FontSpec& font);
    /// How many counts there are of it, in a place that stays until the last is given back.
    std::uint32_t& references(StyleHandle handle) { return slots_[handle].references; }
    void addReference(StyleHandle handle) { ++references(handle); }
    void release(StyleHandle handle) {
        if (--slots_[handle].references == 0)
            forget(handle);
    }
    /// Stays where it is until its last count is given back.
    const CellStyle& operator[](StyleHandle handle) const { return slots_[handle].style; }

  private:
    struct Slot {
        CellStyle style;
        std::size_t hash = 0;
        std::uint32_t references = 0;
    };
    struct Hash {
        using is_transparent = void;
        const CellStyles* table;
        std::size_t operator()(StyleHandle handle) const;
        std::size_t operator()(const CellStyle& style) const;
    };
    struct Equal {
        using is_transparent = void;
        const CellStyles* table;
        bool operator()(StyleHandle a, StyleHandle b) const { return a == b; }
        bool operator()(const CellStyle& a, StyleHandle b) const;
        bool operator()(StyleHandle a, const CellStyle& b) const { return (*this)(b, a); }
    };

    static constexpr StyleHandle none = 0xFFFFFFFF;

    CellStyles();
    void forget(StyleHandle handle);

    std::deque<Slot> slots_;
    std::vector<StyleHandle> free_;
    std::unordered_set<StyleHandle, Hash, Equal> index_;
    /// What `acquireForNewCell` gave last, as long as it is in use: rows are mostly added one after another.
    StyleHandle ofNewCells_ = none;
};

/// Holds one count of a style while cells are made from it. For the thread that made it.
class StyleLease {
  public:
    explicit StyleLease(const CellStyle& style)
        : styles_(CellStyles::ofThread()), handle_(styles_.acquire(style)),
          references_(styles_.references(handle_)) {}
    /// Of the style of a new cell.
    StyleLease(OLE_COLOR ForeColor, const FontSpec& font)
        : styles_(CellStyles::ofThread()), handle_(styles_.acquireForNewCell(ForeColor, font)),
          references_(styles_.references(handle_)) {}
    /// A further count of a style in use.
    explicit StyleLease(StyleHandle handle)
        : styles_(CellStyles::ofThread()), handle_(handle), references_(styles_.references(handle_)) {
        share();
    }
    StyleLease(const StyleLease&) = delete;
    StyleLease& operator=(const StyleLease&) = delete;
    ~StyleLease() { styles_.release(handle_); }

    StyleHandle handle() const { return handle_; }
    /// The handle with a further count, which the caller owns.
    StyleHandle share() const {
        ++references_;
        return handle_;
    }
    /// Gives back a count of any style.
    void releaseOther(StyleHandle other) const { styles_.release(other); }

  private:
    CellStyles& styles_; ///< to ask for the thread's table costs more than what is done to it
    StyleHandle handle_;
    std::uint32_t& references_; ///< so does the way through the table
};

} // namespace lumtex
