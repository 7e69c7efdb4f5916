#include "records/cell_style.h"

#include "values/thread_state.h"

#include <functional>

namespace lumtex {

namespace {

void mix(std::size_t& seed, std::size_t value) {
    seed ^= value + 0x9E3779B97F4A7C15ULL + (seed << 6U) + (seed >> 2U);
}

struct HashOfValue {
    std::size_t operator()(std::monostate) const { return 0; }
    std::size_t operator()(Null) const { return 1; }
    std::size_t operator()(Missing) const { return 2; }
    std::size_t operator()(Unsupported) const { return 3; }
    std::size_t operator()(Date date) const { return std::hash<Double>{}(date.days); }
    std::size_t operator()(LongLong number) const { return std::hash<std::int64_t>{}(number.value); }
    std::size_t operator()(UnsignedLongLong number) const { return std::hash<std::uint64_t>{}(number.value); }
    std::size_t operator()(Currency amount) const { return std::hash<std::int64_t>{}(amount.tenThousandths); }
    std::size_t operator()(const Decimal& number) const { return number.words[0]; }
    template <class T>
    std::size_t operator()(const T& value) const {
        return std::hash<T>{}(value);
    }
};

std::size_t hashOf(const CellStyle& style) {
    std::size_t seed = style.ForeColor;
    for (const Variant* color :
         {&style.BackColor.get(), &style.ForeColorSelect.get(), &style.BackColorSelect.get()})
        mix(seed, color->visit(HashOfValue{}));
    mix(seed, style.ForeColorDis);
    mix(seed, style.BackColorDis);
    mix(seed, static_cast<std::size_t>(style.IconAlignment));
    mix(seed, static_cast<std::size_t>(style.Alignment));
    mix(seed, std::hash<String>{}(style.font.Name));
    mix(seed, std::hash<Single>{}(style.font.Size));
    std::size_t flags = 0;
    for (const bool flag : {style.AllowEdit,
                            style.Enabled,
                            style.font.Bold,
                            style.font.Italic,
                            style.font.Underline,
                            style.font.Strikethrough})
        flags = flags * 2 + (flag ? 1 : 0);
    mix(seed, flags);
    return seed;
}

} // namespace

std::size_t CellStyles::Hash::operator()(StyleHandle handle) const {
    return table->slots_[handle].hash;
}
std::size_t CellStyles::Hash::operator()(const CellStyle& style) const {
    return hashOf(style);
}

bool CellStyles::Equal::operator()(const CellStyle& a, StyleHandle b) const {
    return table->slots_[b].style == a;
}

CellStyles::CellStyles() : index_(16, Hash{this}, Equal{this}) {}

CellStyles& CellStyles::ofThread() {
    CellStyles*& table = ThreadState::ofThread().cellStyles;
    if (table == nullptr)
        table = new CellStyles;
    return *table;
}

StyleHandle CellStyles::acquire(const CellStyle& style) {
    if (const auto found = index_.find(style); found != index_.end()) {
        addReference(*found);
        return *found;
    }
    if (free_.empty()) {
        if (free_.capacity() <= slots_.size())
            free_.reserve(2 * slots_.size() + 16); // so that `forget` never allocates
        slots_.emplace_back();
        free_.push_back(static_cast<StyleHandle>(slots_.size() - 1));
    }
    const StyleHandle handle = free_.back();
    Slot& slot = slots_[handle];
    slot.style = style;
    slot.hash = hashOf(style);
    try {
        index_.insert(handle);
    } catch (...) {
        slot.style = CellStyle{}; // nothing of the host's stays in a slot that nobody uses
        throw;
    }
    slot.references = 1;
    free_.pop_back();
    return handle;
}

StyleHandle CellStyles::acquireForNewCell(OLE_COLOR ForeColor, const FontSpec& font) {
    if (ofNewCells_ != none) {
        const CellStyle& last = slots_[ofNewCells_].style;
        if (last.ForeColor == ForeColor && last.font == font) {
            addReference(ofNewCells_);
            return ofNewCells_;
        }
    }
    CellStyle style;
    style.ForeColor = ForeColor;
    style.font = font;
    return ofNewCells_ = acquire(style);
}

void CellStyles::forget(StyleHandle handle) {
    if (handle == ofNewCells_)
        ofNewCells_ = none;
    index_.erase(handle);
    slots_[handle].style = CellStyle{};
    free_.push_back(handle);
}

} // namespace lumtex
