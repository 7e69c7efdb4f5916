#include "guards/registry_value.h"

#include "values/text.h"

#include <algorithm>
#include <string>

namespace lumtex {

namespace {

constexpr std::size_t bufferSize = 1024; // bytes
constexpr std::size_t numberSize = 4;    // bytes
constexpr unsigned bitsPerByte = 8;

String textFrom(const std::vector<Byte>& data) {
    return fromUtf8(std::string(data.begin(), std::find(data.begin(), data.end(), Byte{0})));
}

String digitsFrom(const std::vector<Byte>& data) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < std::min(data.size(), numberSize); ++i)
        number |= static_cast<std::uint32_t>(data[i]) << (bitsPerByte * i);
    return fromUtf8(std::to_string(number));
}

} // namespace

String textOfSetting(const StoredSetting& stored) {
    switch (stored.type) {
    case StoredSetting::text:
    case StoredSetting::textWithVariables:
        return textFrom(stored.data);
    case StoredSetting::number:
        return digitsFrom(stored.data);
    default:
        return {};
    }
}

String RegistryValue(const Runtime& runtime, std::uint32_t hive, StringView key, StringView valueName) {
    const std::optional<StoredSetting> stored = runtime.storedSetting(hive, key, valueName);
    return stored && stored->data.size() <= bufferSize ? textOfSetting(*stored) : String();
}

} // namespace lumtex
