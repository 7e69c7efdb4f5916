#include "scratch_folder.h"
#include "values/text.h"
#include "worlds/win32/stored_settings.h"
#include "worlds/win32/windows_api.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class StoredValues : public ::testing::Test {
  protected:
    StoredValues() { RegCreateKeyW(HKEY_CURRENT_USER, win32::wide(path), &key_); }
    ~StoredValues() override {
        RegCloseKey(key_);
        RegDeleteKeyW(HKEY_CURRENT_USER, win32::wide(path));
    }

    void store(DWORD type, const void* data, std::size_t size) {
        RegSetValueExW(key_, L"Value", 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
    }
    void store(DWORD type, const String& text) { store(type, text.data(), text.size() * sizeof(char16_t)); }
    std::optional<String> read() const { return settings.text(path, u"Value"); }

    const win32::StoredSettings settings;
    const ScratchFolder scratch;
    /// Of this program's own, as its folder is.
    const String path = u"Software\\" + fromUtf8(scratch.path.filename().string());

  private:
    HKEY key_ = nullptr;
};

TEST_F(StoredValues, AValueThatIsNotThereIsNone) {
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_EQ(settings.text(u"Software\\LumtexNothing", u"Value"), std::nullopt);
    EXPECT_EQ(settings.readOnlyText(u"Software\\LumtexNothing", u"Value"), std::nullopt);
}

TEST_F(StoredValues, ATextEndsAtItsFirstZero) {
    struct Row {
        const char* name;
        DWORD type;
        String stored;
        StringView text;
    };
    const Row rows[] = {
        {"text up to the first zero", REG_SZ, String(u"ab\0c\0", 5), u"ab"},
        {"text without a zero", REG_SZ, u"ab", u"ab"},
        {"text that is not ASCII", REG_SZ, String(u"C:\\Größe\0", 9), u"C:\\Größe"},
        {"text with variables", REG_EXPAND_SZ, String(u"%a%\0", 4), u"%a%"},
        {"nothing", REG_SZ, u"", u""},
        {"several texts", REG_MULTI_SZ, String(u"a\0\0", 3), u""},
        {"bytes", REG_BINARY, String(u"a\0", 2), u""},
        {"no type", REG_NONE, String(u"a\0", 2), u""},
    };
    for (const Row& row : rows) {
        store(row.type, row.stored);
        EXPECT_EQ(read(), row.text) << row.name;
        EXPECT_EQ(settings.readOnlyText(path, u"Value"), row.text) << row.name;
    }
}

TEST_F(StoredValues, ANumberIsItsDigits) {
    struct Row {
        std::uint32_t number;
        std::size_t size;
        StringView text;
    };
    const Row rows[] = {{12345, 4, u"12345"},
                        {8, 4, u"8"},
                        {4000000000U, 4, u"4000000000"},
                        {0xFFFFFFFFU, 4, u"4294967295"},
                        {7, 1, u"7"}};
    for (const Row& row : rows) {
        store(REG_DWORD, &row.number, row.size);
        EXPECT_EQ(read(), row.text);
    }
}

TEST_F(StoredValues, ATextLongerThanTheBufferIsNoneUnlessItIsOnlyRead) {
    store(REG_SZ, String(1023, u'a'));
    EXPECT_EQ(read(), String(1023, u'a')) << "the system adds the closing zero";
    store(REG_SZ, String(1024, u'a'));
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_EQ(settings.readOnlyText(path, u"Value"), String(1024, u'a'));
    store(REG_SZ, String(512, u'ö'));
    EXPECT_EQ(read(), std::nullopt) << "each takes two bytes";
}

} // namespace
} // namespace lumtex::testing
