#include "persistence/save_at_once.h"

#include "content/content_colors.h"
#include "guards/failure_of.h"
#include "persistence/content_fields.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr std::size_t noPictures = 2; // a present byte each

template <content::ContentNumber T>
void append(std::vector<Byte>& bytes, T value) {
    bytes.resize(bytes.size() + sizeof value);
    content::storeNumber(bytes.data() + bytes.size() - sizeof value, value);
}

/// The code of a colour that is a plain number or "def"; none for whatever needs a closer look.
std::optional<Long> codeOf(const Variant& color) {
    if (const Long* number = color.as<Long>())
        return *number;
    if (const String* text = color.text(); text != nullptr && *text == u"def")
        return content::codeOfDefaultColor;
    return std::nullopt;
}

} // namespace

void SaveAtOnce::encode(const CellStyle& style) {
    look_.beforeTag.clear();
    look_.behindTag.clear();
    look_.hasForm = true;
    std::vector<Byte>* bytes = &look_.beforeTag;
    forEachContentField([&]<class Field>(Field /*field*/) {
        if constexpr (Field::isTag)
            bytes = &look_.behindTag;
        else if constexpr (Field::isColor)
            appendColor(*bytes, Field::Place::of(style));
        else if constexpr (Field::isInStyle)
            appendValue(*bytes, Field::Place::of(style));
    });
}

void SaveAtOnce::appendValue(std::vector<Byte>& bytes, bool value) {
    append(bytes, content::booleanNumber(value));
}

void SaveAtOnce::appendValue(std::vector<Byte>& bytes, Single value) {
    append(bytes, value);
}

void SaveAtOnce::appendValue(std::vector<Byte>& bytes, const String& value) {
    append(bytes, static_cast<Long>(value.size()));
    bytes.resize(bytes.size() + value.size());
    locale_.toAnsi(value, std::span(bytes).last(value.size()));
}

void SaveAtOnce::appendValue(std::vector<Byte>& bytes, cItemAlign value) {
    const Long number = value;
    look_.hasForm = look_.hasForm && number >= 0 && number <= 0xFF;
    append(bytes, static_cast<Byte>(number));
}

void SaveAtOnce::appendColor(std::vector<Byte>& bytes, const Variant& color) {
    const std::optional<Long> code = codeOf(color);
    look_.hasForm = look_.hasForm && code;
    append(bytes, code.value_or(0));
}

const SaveAtOnce::Look& SaveAtOnce::lookOf(StyleHandle style) {
    if (!look_.style || look_.style->handle() != style) {
        look_.style.reset();
        encode(CellStyles::ofThread()[style]);
        look_.style.emplace(style);
    }
    return look_;
}

bool SaveAtOnce::write(Long row, Long column) {
    bool written = false;
    // Where memory runs out, the other way tells.
    static_cast<void>(failureOf([&] {
        cells_.prefetch(row, column);
        const Items* cells = cells_.cellsOf(row, column);
        if (cells == nullptr)
            return;
        const auto index = static_cast<std::size_t>(column) - 1;
        const ListViewItem& item = (*cells)[index];
        const std::size_t textSize = item.text().size();
        const CellExtras* extras = cells->extras(index);
        const bool hasTag = extras != nullptr && !extras->Tag.get().isEmpty();
        if (extras != nullptr &&
            (extras->Icon || extras->IconSelected || (hasTag && !extras->Tag.get().isString())))
            return;
        const StringView tag = hasTag ? StringView(*extras->Tag.get().text()) : StringView();
        const Look& look = lookOf(item.styleHandle());
        const std::size_t size = textLengthSize + textSize + look.beforeTag.size() + textLengthSize +
                                 tag.size() + look.behindTag.size() + noPictures;
        Byte* place = look.hasForm ? file_.roomAtHand(size) : nullptr;
        if (place == nullptr)
            return;
        content::storeNumber(place, static_cast<Long>(textSize));
        encoder_.encode(item.text(), place + textLengthSize);
        place = std::copy(look.beforeTag.begin(), look.beforeTag.end(), place + textLengthSize + textSize);
        content::storeNumber(place, static_cast<Long>(tag.size()));
        locale_.toAnsi(tag, {place + textLengthSize, tag.size()});
        place = std::copy(look.behindTag.begin(), look.behindTag.end(), place + textLengthSize + tag.size());
        std::fill_n(place, noPictures, Byte{0});
        file_.taken(size);
        written = true;
    }));
    return written;
}

} // namespace lumtex
