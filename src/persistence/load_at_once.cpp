#include "persistence/load_at_once.h"

#include "content/content_colors.h"
#include "guards/error.h"
#include "guards/failure_of.h"
#include "persistence/content_fields.h"
#include "values/unit_blocks.h"

#include <algorithm>

namespace lumtex {

namespace {

/// What a record behind the file's end reads as.
constexpr std::array<Byte, 56> nothingButZeros{};

/// Walks over the fields of a record that lies ready. Past its end, and from a negative length on, it finds
/// nothing more.
class Fields {
  public:
    explicit Fields(std::span<const Byte> bytes) : rest_(bytes) {}

    bool complete() const { return complete_; }
    std::span<const Byte> take(std::size_t size) {
        complete_ = complete_ && size <= rest_.size();
        if (!complete_)
            return {};
        const std::span<const Byte> field = rest_.first(size);
        rest_ = rest_.subspan(size);
        return field;
    }
    template <content::ContentNumber T>
    T number() {
        const std::span<const Byte> field = take(sizeof(T));
        return complete_ ? content::loadNumber<T>(field.data()) : T{};
    }
    std::span<const Byte> withLength() {
        const Long length = number<Long>();
        complete_ = complete_ && length >= 0;
        return take(static_cast<std::size_t>(std::max(length, Long{0})));
    }
    /// A value of the style, as it lies.
    template <class Value>
    void pass() {
        if constexpr (std::is_same_v<Value, String>)
            withLength();
        else
            take(std::is_same_v<Value, bool>         ? sizeof(Integer)
                 : std::is_same_v<Value, cItemAlign> ? sizeof(Byte)
                                                     : sizeof(Long));
    }
    const Byte* place() const { return rest_.data(); }

  private:
    std::span<const Byte> rest_;
    bool complete_ = true;
};

std::span<const Byte> between(const Byte* first, const Byte* last) {
    return {first, static_cast<std::size_t>(last - first)};
}

/// The lower half of a byte's values is the same in every ANSI code page.
bool isPlain(std::span<const Byte> bytes) {
    return bitsOf(bytes.data(), bytes.size()) < 0x80;
}

bool sameBytes(std::span<const Byte> a, const std::vector<Byte>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
}

/// A colour of the cell that must be a number.
bool takeColor(Fields& fields, OLE_COLOR& color) {
    const Long code = fields.number<Long>();
    color = static_cast<OLE_COLOR>(code);
    return code != content::codeOfDefaultColor;
}

} // namespace

std::optional<LoadAtOnce::Record> LoadAtOnce::split(std::span<const Byte> bytes) const {
    Fields fields(bytes);
    Record record;
    record.text = fields.withLength();
    bool hasPicture = false;
    if (form_ != RecordForm::textAlone) {
        const Byte* look = fields.place();
        forEachContentField([&]<class Field>(Field /*field*/) {
            if constexpr (Field::isTag) {
                record.beforeTag = between(look, fields.place());
                record.tag = fields.withLength();
                look = fields.place();
            } else if constexpr (Field::isIcon) {
                if (fields.number<Byte>() != 1)
                    return;
                hasPicture = true;
                fields.withLength();
            } else {
                fields.pass<typename Field::Value>();
                record.behindTag = between(look, fields.place());
            }
        });
    }
    if (!fields.complete() || (hasPicture && form_ == RecordForm::readProperties))
        return std::nullopt;
    record.size = static_cast<std::size_t>(fields.place() - bytes.data());
    return record;
}

bool LoadAtOnce::plainLook() {
    if (look_.style)
        return true;
    const std::optional<CellStyle> style = cells_.plainStyle();
    if (style)
        look_.style.emplace(*style);
    return style.has_value();
}

bool LoadAtOnce::lookOf(const Record& record) {
    if (look_.style && sameBytes(record.beforeTag, look_.beforeTag) &&
        sameBytes(record.behindTag, look_.behindTag))
        return true;
    CellStyle style;
    Fields before(record.beforeTag);
    Fields behind(record.behindTag);
    Fields* fields = &before;
    bool hasNumbers = true;
    forEachContentField([&]<class Field>(Field /*field*/) {
        if constexpr (Field::isTag) {
            fields = &behind;
        } else if constexpr (Field::isInStyle) {
            auto& kept = Field::Place::of(style);
            using Kept = std::remove_cvref_t<decltype(kept)>;
            if constexpr (std::is_same_v<Kept, OLE_COLOR>)
                hasNumbers = takeColor(*fields, kept) && hasNumbers;
            else if constexpr (Field::isColor)
                kept = content::HTML2VBColor(fields->number<Long>());
            else if constexpr (std::is_same_v<Kept, bool>)
                kept = fields->number<Integer>() != 0;
            else if constexpr (std::is_same_v<Kept, Single>)
                kept = fields->number<Single>();
            else if constexpr (std::is_same_v<Kept, String>)
                kept = textOf(fields->withLength());
            else
                kept = static_cast<Kept>(fields->number<Byte>());
        }
    });
    if (!hasNumbers)
        return false;
    look_.style.reset();
    look_.beforeTag.assign(record.beforeTag.begin(), record.beforeTag.end());
    look_.behindTag.assign(record.behindTag.begin(), record.behindTag.end());
    look_.style.emplace(style);
    return true;
}

/// Valid until the next call.
const String& LoadAtOnce::textOf(std::span<const Byte> bytes) {
    scratch_.resize(bytes.size());
    if (isPlain(bytes))
        copyUnits(bytes.data(), bytes.size(), scratch_.data());
    else
        locale_.fromAnsi(bytes, scratch_);
    return scratch_;
}

bool LoadAtOnce::read(Long row, Long column) {
    bool done = false;
    // Where memory runs out, the other way tells.
    static_cast<void>(failureOf([&] {
        cells_.prefetch(row, column);
        Items* const cells = cells_.cellsOf(row, column);
        const auto index = static_cast<std::size_t>(column) - 1;
        // A new cell has nothing rare, unless host code gave it something at a report.
        if ((cells != nullptr && cells->extras(index) != nullptr) || !cells_.assignSilently())
            return;
        // Failures that nobody hears of leave nothing behind but zeros.
        const bool failsUnheard = silentError();
        if (cells == nullptr && !failsUnheard)
            return;
        std::optional<Record> record = split(file_.ahead());
        if (!record && file_.lookAhead())
            record = split(file_.ahead());
        if (!record && failsUnheard && file_.remaining() == 0) {
            record = split(nothingButZeros);
            record->size = 0;
        }
        if (!record)
            return;
        if (cells == nullptr) {
            file_.taken(record->size);
            done = true;
            return;
        }
        const bool hasLook = form_ == RecordForm::readProperties ? lookOf(*record) : plainLook();
        if (!hasLook)
            return;
        const bool keepsTag = form_ == RecordForm::readProperties && !record->tag.empty();
        if (keepsTag)
            cells->letTag(index, textOf(record->tag));
        ListViewItem& item = (*cells)[index];
        if (!keepsTag)
            item.letTagIsEmptyText(true);
        if (isPlain(record->text))
            item.letText(record->text);
        else
            item.letText(textOf(record->text));
        item.letStyle(*look_.style);
        file_.taken(record->size);
        done = true;
    }));
    return done;
}

} // namespace lumtex
