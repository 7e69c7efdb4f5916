#include "guards/bas_error.h"
#include "guards/registry_value.h"
#include "scratch_folder.h"
#include "test_fonts.h"
#include "worlds/headless/desktop.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class RegistryValueTest : public ::testing::Test {
  protected:
    String valueOf(Long type, std::vector<Byte> data) {
        desktop.runtime().letSetting(currentUserHive, u"Software\\Lumtex", u"Value", {type, std::move(data)});
        return RegistryValue(desktop.runtime(), currentUserHive, u"Software\\Lumtex", u"Value");
    }

    Desktop desktop{testFonts()};
};

TEST_F(RegistryValueTest, AValueThatIsNotThereIsEmpty) {
    EXPECT_EQ(RegistryValue(desktop.runtime(), currentUserHive, u"Software\\Lumtex", u"Value"), u"");
    valueOf(1, {'a', 0});
    EXPECT_EQ(RegistryValue(desktop.runtime(), currentUserHive + 1, u"Software\\Lumtex", u"Value"), u"");
    EXPECT_EQ(RegistryValue(desktop.runtime(), currentUserHive, u"Software", u"Value"), u"");
}

TEST_F(RegistryValueTest, TheTypeDecidesHowTheBytesAreRead) {
    struct Row {
        const char* name;
        Long type;
        std::vector<Byte> data;
        StringView text;
    };
    const Row rows[] = {
        {"text up to the first zero", 1, {'a', 'b', 0, 'c', 0}, u"ab"},
        {"text without a zero", 1, {'a', 'b'}, u"ab"},
        {"text that is not ASCII", 1, {0xC3, 0xB6, 0}, u"ö"},
        {"text with variables", 2, {'%', 'a', '%', 0}, u"%a%"},
        {"a number", 4, {0x39, 0x30, 0, 0}, u"12345"},
        {"the largest number", 4, {0xFF, 0xFF, 0xFF, 0xFF}, u"4294967295"},
        {"an even number", 4, {8, 0, 0, 0}, u"8"},
        {"a number of too few bytes", 4, {7}, u"7"},
        {"bytes", 3, {'a', 0}, u""},
        {"several texts", 7, {'a', 0, 0}, u""},
        {"no type", 0, {'a', 0}, u""},
        {"nothing", 1, {}, u""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(valueOf(row.type, row.data), row.text) << row.name;
}

TEST_F(RegistryValueTest, AValueLongerThanTheBufferIsEmpty) {
    EXPECT_EQ(valueOf(1, std::vector<Byte>(1024, 'a')), String(1024, u'a'));
    EXPECT_EQ(valueOf(1, std::vector<Byte>(1025, 'a')), u"");
}

TEST_F(RegistryValueTest, ANumberAsErrorLogIsTheNameOfAFolder) {
    const ScratchFolder folder;
    const auto before = std::filesystem::current_path();
    std::filesystem::create_directories(folder.path / "4711");
    std::filesystem::current_path(folder.path);
    desktop.runtime().letSetting(
        currentUserHive, u"Software\\Lumtex", u"ErrorLog", {StoredSetting::number, {0x67, 0x12, 0, 0}});
    ErrorReport report;
    report.number = 6;
    reportError(desktop.runtime(), report);
    std::filesystem::current_path(before);
    EXPECT_NE(folder.contentOf("4711/LumtexError.txt"), "missing");
}

} // namespace
} // namespace lumtex::testing
