#include "worlds/win32/stored_settings.h"

#include "values/text.h"
#include "worlds/win32/windows_api.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace lumtex::win32 {

namespace {

/// Reading and writing, as long as the user may.
constexpr REGSAM fullAccess = 0x2003F;

class OpenKey {
  public:
    OpenKey(HKEY hive, const String& path, REGSAM access) {
        if (RegOpenKeyExW(hive, wide(path), 0, access, &key_) != ERROR_SUCCESS)
            key_ = nullptr;
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() {
        if (key_ != nullptr)
            RegCloseKey(key_);
    }
    HKEY get() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

/// A value as it lies in the store.
struct StoredValue {
    DWORD type = 0;
    std::vector<Byte> data;
};

std::optional<StoredValue> storedValue(StringView key, StringView name, REGSAM access) {
    const OpenKey opened(HKEY_CURRENT_USER, String(key), access);
    if (opened.get() == nullptr)
        return std::nullopt;
    const String valueName(name);
    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExW(opened.get(), wide(valueName), nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    std::vector<Byte> data(size);
    if (RegQueryValueExW(opened.get(), wide(valueName), nullptr, &type, data.data(), &size) != ERROR_SUCCESS)
        return std::nullopt;
    data.resize(size);
    return StoredValue{type, std::move(data)};
}

bool isText(const StoredValue& stored) {
    return stored.type == REG_SZ || stored.type == REG_EXPAND_SZ;
}

/// The units of a text, mostly with a closing zero.
String unitsOf(const std::vector<Byte>& data) {
    String text(data.size() / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), data.data(), text.size() * sizeof(char16_t));
    return text;
}

/// The bytes of a number, the lowest first.
String digitsOf(const std::vector<Byte>& data) {
    constexpr unsigned bitsPerByte = 8;
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < std::min(data.size(), sizeof number); ++i)
        number |= static_cast<std::uint32_t>(data[i]) << (bitsPerByte * i);
    return fromUtf8(std::to_string(number));
}

String textOf(const StoredValue& stored) {
    if (isText(stored)) {
        const String units = unitsOf(stored.data);
        return units.substr(0, units.find(u'\0'));
    }
    return stored.type == REG_DWORD ? digitsOf(stored.data) : String();
}

std::size_t lengthOf(const StoredValue& stored) {
    return isText(stored) ? toUtf8(unitsOf(stored.data)).size() : stored.data.size();
}

} // namespace

std::optional<String> StoredSettings::text(StringView key, StringView name) const {
    const std::optional<StoredValue> stored = storedValue(key, name, fullAccess);
    if (!stored || lengthOf(*stored) > longestText)
        return std::nullopt;
    return textOf(*stored);
}

std::optional<String> StoredSettings::readOnlyText(StringView key, StringView name) const {
    const std::optional<StoredValue> stored = storedValue(key, name, KEY_READ);
    return stored ? std::optional(textOf(*stored)) : std::nullopt;
}

} // namespace lumtex::win32
