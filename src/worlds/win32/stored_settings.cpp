/// The registry as the settings store.
#include "values/text.h"
#include "worlds/win32/win32_runtime.h"

#include <cstring>

namespace lumtex {

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

/// The store keeps text in UTF-16, mostly with its closing zero.
std::vector<Byte> utf8From(const std::vector<Byte>& stored) {
    String text(stored.size() / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), stored.data(), text.size() * sizeof(char16_t));
    const std::string utf8 = toUtf8(text);
    return {utf8.begin(), utf8.end()};
}

std::optional<StoredSetting> settingOf(std::uint32_t hive, StringView key, StringView name, REGSAM access) {
    // Hives are numbers of 32 bits, extended by their sign.
    auto* root = reinterpret_cast<HKEY>(static_cast<INT_PTR>(static_cast<Long>(hive)));
    const OpenKey opened(root, String(key), access);
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
    const bool isText = type == StoredSetting::text || type == StoredSetting::textWithVariables;
    return StoredSetting{static_cast<Long>(type), isText ? utf8From(data) : data};
}

} // namespace

std::optional<StoredSetting>
Win32Runtime::storedSetting(std::uint32_t hive, StringView key, StringView name) const {
    return settingOf(hive, key, name, fullAccess);
}

std::optional<StoredSetting>
Win32Runtime::readOnlySetting(std::uint32_t hive, StringView key, StringView name) const {
    return settingOf(hive, key, name, KEY_READ);
}

} // namespace lumtex
