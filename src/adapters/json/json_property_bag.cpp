#include "adapters/json/json_property_bag.h"

#include "adapters/json/json_members.h"
#include "values/case_mapping.h"
#include "values/runtime_error.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <unordered_map>
#include <vector>

#include <glib.h>

namespace lumtex::json {

namespace {

using OrderedJson = nlohmann::ordered_json;

struct GFree {
    void operator()(void* memory) const { g_free(memory); }
};

/// The shortest decimal that gives the same Single back, so that 0.1 does not read 0.10000000149011612.
Double shortestDouble(Single value) {
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    Double wide = value;
    std::from_chars(text.data(), written.ptr, wide);
    return wide;
}

OrderedJson jsonOfNumber(Double value) {
    if (!std::isfinite(value))
        throw RuntimeError(ErrorNumber::typeMismatch);
    return value;
}

OrderedJson jsonOfFont(const FontSpec& font) {
    OrderedJson json = {{"Name", toUtf8(font.Name)}, {"Size", jsonOfNumber(shortestDouble(font.Size))}};
    for (const auto& [name, isSet] : {std::pair{"Bold", font.Bold},
                                      std::pair{"Italic", font.Italic},
                                      std::pair{"Underline", font.Underline},
                                      std::pair{"Strikethrough", font.Strikethrough}}) {
        if (isSet)
            json[name] = true;
    }
    return json;
}

Variant fontOfJson(const OrderedJson& json) {
    FontSpec font{.Name = fromUtf8(json.at("Name").get<std::string>()),
                  .Size = Variant(json.at("Size").get<Double>()).toSingle()};
    font.Bold = json.value("Bold", false);
    font.Italic = json.value("Italic", false);
    font.Underline = json.value("Underline", false);
    font.Strikethrough = json.value("Strikethrough", false);
    return std::make_shared<Font>(std::move(font));
}

OrderedJson jsonOfPicture(const PictureImages& pictures, const Picture& picture) {
    const std::vector<Byte> image = pictures.imageOfPicture(picture);
    const std::unique_ptr<char, GFree> base64(g_base64_encode(image.data(), image.size()));
    return {{"Picture", base64.get()}};
}

Variant pictureOfJson(const PictureImages& pictures, const OrderedJson& json) {
    const auto& base64 = json.at("Picture").get_ref<const std::string&>();
    gsize size = 0;
    const std::unique_ptr<guchar, GFree> image(g_base64_decode(base64.c_str(), &size));
    return pictures.pictureOfImage({image.get(), size});
}

/// Throws 13 where there is nothing that JSON could say.
OrderedJson jsonOf(const PictureImages& pictures, const Variant& value) {
    return value.visit([&]<class T>(const T& held) -> OrderedJson {
        if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, Byte> || std::is_same_v<T, Integer> ||
                      std::is_same_v<T, Long>)
            return held;
        else if constexpr (std::is_same_v<T, Single>)
            return jsonOfNumber(shortestDouble(held));
        else if constexpr (std::is_same_v<T, Double>)
            return jsonOfNumber(held);
        else if constexpr (std::is_same_v<T, LongLong> || std::is_same_v<T, UnsignedLongLong>)
            return held.value;
        else if constexpr (std::is_same_v<T, Currency> || std::is_same_v<T, Decimal>)
            return jsonOfNumber(Variant(held).toDouble());
        else if constexpr (std::is_same_v<T, String>)
            return toUtf8(held);
        else if constexpr (std::is_same_v<T, FontRef>)
            return held != nullptr ? jsonOfFont(held->spec) : OrderedJson();
        else if constexpr (std::is_same_v<T, PictureRef>)
            return held != nullptr ? jsonOfPicture(pictures, *held) : OrderedJson();
        else
            throw RuntimeError(ErrorNumber::typeMismatch);
    });
}

/// Throws 13 for what no value looks like.
Variant valueOf(const PictureImages& pictures, const OrderedJson& json) {
    switch (json.type()) {
    case OrderedJson::value_t::null:
        return PictureRef{};
    case OrderedJson::value_t::boolean:
        return json.get<bool>();
    case OrderedJson::value_t::number_integer:
    case OrderedJson::value_t::number_unsigned:
    case OrderedJson::value_t::number_float: {
        const auto number = json.get<Double>();
        const bool isLong = number >= std::numeric_limits<Long>::min() &&
                            number <= std::numeric_limits<Long>::max() && number == std::trunc(number);
        return isLong ? Variant(static_cast<Long>(number)) : Variant(number);
    }
    case OrderedJson::value_t::string:
        return fromUtf8(json.get_ref<const std::string&>());
    case OrderedJson::value_t::object:
        try {
            return json.contains("Picture") ? pictureOfJson(pictures, json) : fontOfJson(json);
        } catch (const OrderedJson::exception&) {
            throw RuntimeError(ErrorNumber::typeMismatch);
        }
    default:
        throw RuntimeError(ErrorNumber::typeMismatch);
    }
}

/// The name that all spellings of it in capitals and small letters have in common.
String keyOf(StringView name) {
    String key(name);
    std::transform(key.begin(), key.end(), key.begin(), lowerCase);
    return key;
}

} // namespace

struct JsonPropertyBag::Members {
    struct Member {
        std::string name;
        OrderedJson json;
        bool known = false; ///< somebody asked for it, or wrote it
    };

    Member* find(StringView name) {
        const auto found = places.find(keyOf(name));
        return found != places.end() ? &members[found->second] : nullptr;
    }
    /// Of several spellings the first counts.
    void add(const std::string& name, OrderedJson json, bool known) {
        if (places.emplace(keyOf(fromUtf8(name)), members.size()).second)
            members.push_back({name, std::move(json), known});
    }
    /// Its place stays, and is nobody's.
    void remove(StringView name) {
        const auto found = places.find(keyOf(name));
        if (found == places.end())
            return;
        members[found->second] = {};
        places.erase(found);
    }

    std::vector<Member> members;
    std::unordered_map<String, std::size_t> places; ///< in `members`, by the names' keys
};

JsonPropertyBag::JsonPropertyBag(Runtime& runtime)
    : runtime_(runtime), members_(std::make_unique<Members>()) {}

JsonPropertyBag::~JsonPropertyBag() = default;

void JsonPropertyBag::parse(std::string_view json) {
    Members members;
    for (const JsonMember& member : membersOfObject(json))
        members.add(member.name, OrderedJson(member.value), false);
    *members_ = std::move(members);
}

std::string JsonPropertyBag::text() const {
    OrderedJson json = OrderedJson::object();
    for (const Members::Member& member : members_->members) {
        if (member.known)
            json[member.name] = member.json;
    }
    return json.dump(4) + '\n';
}

void JsonPropertyBag::load(StringView path) {
    const std::unique_ptr<InputFile> file = runtime_.files().openForBinaryReading(path);
    std::vector<Byte> bytes(static_cast<std::size_t>(file->size()));
    bytes.resize(file->read(bytes));
    parse({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

void JsonPropertyBag::save(StringView path) const {
    const std::string json = text();
    const std::unique_ptr<OutputFile> file = runtime_.files().openForBinaryWriting(path);
    file->write({reinterpret_cast<const Byte*>(json.data()), json.size()});
    file->close();
}

Variant JsonPropertyBag::ReadProperty(StringView name, const Variant& defaultValue) const {
    Members::Member* const found = members_->find(name);
    if (found == nullptr)
        return defaultValue;
    found->known = true;
    return valueOf(runtime_.pictures(), found->json);
}

void JsonPropertyBag::WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) {
    if (sameValue(value, defaultValue))
        return members_->remove(name);
    OrderedJson json = jsonOf(runtime_.pictures(), value);
    Members::Member* const found = members_->find(name);
    if (found == nullptr)
        return members_->add(toUtf8(name), std::move(json), true);
    found->json = std::move(json);
    found->known = true;
}

} // namespace lumtex::json
