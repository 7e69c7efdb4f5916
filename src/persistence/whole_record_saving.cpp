#include "persistence/whole_record_saving.h"

#include "content/content_colors.h"
#include "guards/failure_of.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr std::size_t lengthSize = sizeof(Long);
constexpr std::size_t noPictures = 2; // a present byte each

template <ContentNumber T>
void append(std::vector<Byte>& bytes, T value) {
    bytes.resize(bytes.size() + sizeof value);
    storeNumber(bytes.data() + bytes.size() - sizeof value, value);
}

/// The code of a colour that is a plain number or "def"; none for whatever needs a closer look.
std::optional<Long> codeOf(const Variant& color) {
    if (const Long* number = color.as<Long>())
        return *number;
    if (const String* text = color.text(); text != nullptr && *text == u"def")
        return codeOfDefaultColor;
    return std::nullopt;
}

bool fitsByte(cItemAlign alignment) {
    return static_cast<Long>(alignment) >= 0 && static_cast<Long>(alignment) <= 0xFF;
}

} // namespace

void WholeRecordSaving::encode(const CellStyle& style) {
    std::vector<Byte>& before = look_.beforeTag;
    std::vector<Byte>& behind = look_.behindTag;
    before.clear();
    behind.clear();
    look_.hasForm = false;
    if (!fitsByte(style.Alignment) || !fitsByte(style.IconAlignment))
        return;
    const FontSpec& font = style.font;
    for (const bool flag : {style.Enabled, font.Bold, font.Italic, font.Underline, font.Strikethrough})
        append(before, booleanNumber(flag));
    append(before, font.Size);
    append(before, static_cast<Long>(font.Name.size()));
    before.resize(before.size() + font.Name.size());
    locale_.toAnsi(font.Name, std::span(before).last(font.Name.size()));
    append(before, booleanNumber(style.AllowEdit));
    append(before, static_cast<Byte>(style.Alignment));
    const Variant colors[] = {style.ForeColor,
                              style.ForeColorSelect,
                              style.ForeColorDis,
                              style.BackColor,
                              style.BackColorSelect,
                              style.BackColorDis};
    for (const Variant& color : colors) {
        const std::optional<Long> code = codeOf(color);
        if (!code)
            return;
        append(behind, *code);
    }
    append(behind, static_cast<Byte>(style.IconAlignment));
    look_.hasForm = true;
}

const WholeRecordSaving::Look& WholeRecordSaving::lookOf(StyleHandle style) {
    if (!look_.style || look_.style->handle() != style) {
        CellStyles& styles = CellStyles::ofThread();
        look_.style.reset();
        encode(styles[style]);
        styles.addReference(style);
        look_.style.emplace(style);
    }
    return look_;
}

void WholeRecordSaving::encodeText(const CompactText& text, Byte* target) {
    const bool copied = text.visit([&]<class Units>(const Units& units) {
        if constexpr (std::is_same_v<Units, StringView>) {
            return false;
        } else {
            // The lower half of a byte's values is the same in every ANSI code page.
            Byte all = 0;
            for (std::size_t i = 0; i < units.size(); ++i) {
                target[i] = units[i];
                all |= units[i];
            }
            return all < 0x80;
        }
    });
    if (copied)
        return;
    text.copyTo(scratch_);
    locale_.toAnsi(scratch_, {target, scratch_.size()});
}

bool WholeRecordSaving::write(Long row, Long column) {
    bool written = false;
    // Where memory runs out, the other way tells.
    static_cast<void>(failureOf([&] {
        const Items* cells = cells_.cellsOf(row, column);
        if (cells == nullptr)
            return;
        const auto index = static_cast<std::size_t>(column) - 1;
        const ListViewItem& item = (*cells)[index];
        const std::size_t textSize = item.text().size();
        if (!withProperties_) {
            Byte* const place = file_.roomAtHand(lengthSize + textSize);
            if (place == nullptr)
                return;
            storeNumber(place, static_cast<Long>(textSize));
            encodeText(item.text(), place + lengthSize);
            file_.taken(lengthSize + textSize);
            written = true;
            return;
        }
        const CellExtras* extras = cells->extras(index);
        const bool hasTag = extras != nullptr && !extras->Tag.get().isEmpty();
        if (extras != nullptr &&
            (extras->Icon || extras->IconSelected || (hasTag && !extras->Tag.get().isString())))
            return;
        const StringView tag = hasTag ? StringView(*extras->Tag.get().text()) : StringView();
        const Look& look = lookOf(item.styleHandle());
        const std::size_t size = lengthSize + textSize + look.beforeTag.size() + lengthSize + tag.size() +
                                 look.behindTag.size() + noPictures;
        Byte* place = look.hasForm ? file_.roomAtHand(size) : nullptr;
        if (place == nullptr)
            return;
        storeNumber(place, static_cast<Long>(textSize));
        encodeText(item.text(), place + lengthSize);
        place = std::copy(look.beforeTag.begin(), look.beforeTag.end(), place + lengthSize + textSize);
        storeNumber(place, static_cast<Long>(tag.size()));
        locale_.toAnsi(tag, {place + lengthSize, tag.size()});
        place = std::copy(look.behindTag.begin(), look.behindTag.end(), place + lengthSize + tag.size());
        std::fill_n(place, noPictures, Byte{0});
        file_.taken(size);
        written = true;
    }));
    return written;
}

} // namespace lumtex
