/// Numbers and dates as the user's own settings write them. ./check runs these tests as an American user and
/// as a German one.
#include "component.h"
#include "records/enumerations.h"

#include <array>
#include <cstdlib>
#include <string_view>

namespace lumtex::testing {
namespace {

class UsersLocale : public ListFixture {
  protected:
    UsersLocale() { fill(1, {}); }

    /// What a routine of the system writes.
    template <class Write>
    static String written(Write write) {
        win32::OwnedVARIANT text;
        win32::demand(write(&V_BSTR(&text.get())));
        V_VT(&text.get()) = VT_BSTR;
        return String(win32::viewBSTR(V_BSTR(&text.get())));
    }
    /// With a mark between the thousands and two decimals.
    static String grouped(Double number) {
        VARIANT value;
        V_VT(&value) = VT_R8;
        V_R8(&value) = number;
        return written([&](BSTR* text) { return VarFormatNumber(&value, 2, -2, -2, -1, 0, text); });
    }
    static String dateText(Double days) {
        return written([&](BSTR* text) { return VarBstrFromDate(days, LOCALE_USER_DEFAULT, 0, text); });
    }

    void addRow(const String& text) { ASSERT_EQ(call(L"RowsAdd", {Long{-1}, u";", text}).result, S_OK); }
    String textOfRow(Long row) { return get(L"ItemText", {row, Long{1}}).toText(); }
    void sort(Long type) { ASSERT_EQ(call(L"Sort", {Long{1}, Long{cAscending}, type}).result, S_OK); }
};

TEST_F(UsersLocale, WritesAsThisTestExpects) {
    const char* user = std::getenv("LC_ALL");
    const bool german = user != nullptr && std::string_view(user).starts_with("de");
    EXPECT_EQ(grouped(1234.56), german ? u"1.234,56" : u"1,234.56");
    EXPECT_EQ(dateText(45351).substr(0, 5), german ? u"29.2." : u"2/29/");
}

TEST_F(UsersLocale, OrdersNumbers) {
    constexpr std::array<Double, 6> ordered = {-2500.25, -1.5, 0.75, 99.5, 1234.56, 10000};
    for (const std::size_t i : {4, 0, 5, 2, 1, 3})
        addRow(grouped(ordered[i]));
    sort(cSortNumeric);
    for (std::size_t i = 0; i < ordered.size(); ++i)
        EXPECT_EQ(textOfRow(static_cast<Long>(i) + 1), grouped(ordered[i]));
}

TEST_F(UsersLocale, OrdersDates) {
    // 2 December 1999, 29 February 2024, 1 March 2024, 11 February 2025: by their texts all are elsewhere.
    constexpr std::array<Double, 4> ordered = {36496, 45351, 45352, 45699};
    for (const std::size_t i : {2, 0, 3, 1})
        addRow(dateText(ordered[i]));
    sort(cSortDate);
    for (std::size_t i = 0; i < ordered.size(); ++i)
        EXPECT_EQ(textOfRow(static_cast<Long>(i) + 1), dateText(ordered[i]));
}

TEST_F(UsersLocale, TurnsWhatScriptsHandOverIntoTexts) {
    addRow(u"");
    ASSERT_EQ(let(L"ItemText", {Long{1}, Long{1}, 1234.5}), S_OK);
    EXPECT_EQ(textOfRow(1),
              written([](BSTR* text) { return VarBstrFromR8(1234.5, LOCALE_USER_DEFAULT, 0, text); }));
    ASSERT_EQ(let(L"ItemText", {Long{1}, Long{1}, Date{45351}}), S_OK);
    EXPECT_EQ(textOfRow(1), dateText(45351));
}

TEST_F(UsersLocale, ReadsWidthsAsTheUserWritesThem) {
    ASSERT_EQ(let(L"ColumnWidth", {Long{1}, grouped(1500.5)}), S_OK);
    EXPECT_EQ(get(L"ColumnWidth", {Long{1}}), Variant(Single{1500.5}));
}

} // namespace
} // namespace lumtex::testing
