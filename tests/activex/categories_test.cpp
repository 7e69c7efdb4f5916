/// Under which headings designers find the properties.
#include "activex/categories_face.h"
#include "component.h"
#include "model/property_table.h"

#include <map>

namespace lumtex::testing {
namespace {

constexpr LCID english = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
constexpr LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN_AUSTRIAN), SORT_DEFAULT);
constexpr LCID french = MAKELCID(MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH), SORT_DEFAULT);

class Categories : public ListFixture {
  protected:
    Categories() {
        void* found = nullptr;
        if (SUCCEEDED(control->QueryInterface(win32::ICategorizeProperties::interfaceId, &found)))
            categories = win32::ComRef<win32::ICategorizeProperties>::adopting(
                static_cast<win32::ICategorizeProperties*>(found));
    }
    ~Categories() override { categories = {}; }

    int categoryOf(DISPID property) {
        int category = 99;
        EXPECT_EQ(categories->MapPropertyToCategory(property, &category), S_OK) << property;
        return category;
    }
    String nameOf(int category, LCID locale) {
        BSTR name = nullptr;
        EXPECT_EQ(categories->GetCategoryName(category, locale, &name), S_OK) << category;
        const String copy(win32::viewBSTR(name));
        SysFreeString(name);
        return copy;
    }
    String headingOf(const wchar_t* property, LCID locale) {
        return nameOf(categoryOf(idOf(dispatch.get(), property)), locale);
    }

    win32::ComRef<win32::ICategorizeProperties> categories;
};

TEST_F(Categories, EachPropertyOfTheTableHasTheHeadingOfItsGroupInBothLanguages) {
    ASSERT_TRUE(categories);
    std::map<String, int> seen;
    const auto look = [&](const auto& row) {
        if (row.number == 0)
            return;
        const int category = categoryOf(row.number);
        EXPECT_EQ(nameOf(category, english), groupName(row.group).in(words::Language::english))
            << toUtf8(row.name);
        EXPECT_EQ(nameOf(category, german), groupName(row.group).in(words::Language::german))
            << toUtf8(row.name);
        ++seen[nameOf(category, english)];
    };
    std::apply([&](const auto&... row) { (look(row), ...); }, property_table::rows);
    EXPECT_EQ(seen.size(), 5U);
    EXPECT_TRUE(seen.count(u"Scroll bars") == 1 && seen.count(u"Columns") == 1);
}

TEST_F(Categories, NamesAreGermanForGermanLocalesAlone) {
    ASSERT_TRUE(categories);
    EXPECT_EQ(headingOf(L"BackColor", german), u"Darstellung");
    EXPECT_EQ(headingOf(L"MultiSelect", german), u"Verhalten");
    EXPECT_EQ(headingOf(L"HideColumnHeaders", german), u"Spalten");
    EXPECT_EQ(headingOf(L"ScrollColorStyle", german), u"Bildlaufleisten");
    EXPECT_EQ(headingOf(L"AllowEdit", german), u"Daten");
    EXPECT_EQ(headingOf(L"BackColor", french), u"Appearance");
    EXPECT_EQ(headingOf(L"BackColor", 0), u"Appearance");
}

TEST_F(Categories, ThoseOfAllDesignersHaveTheirNumbers) {
    ASSERT_TRUE(categories);
    EXPECT_EQ(categoryOf(idOf(dispatch.get(), L"BackColor")), -5);
    EXPECT_EQ(categoryOf(idOf(dispatch.get(), L"MultiSelect")), -6);
    EXPECT_EQ(categoryOf(idOf(dispatch.get(), L"AllowEdit")), -7);
    EXPECT_GT(categoryOf(idOf(dispatch.get(), L"HideColumnHeaders")), 0);
    EXPECT_GT(categoryOf(idOf(dispatch.get(), L"ScrollColorStyle")), 0);
}

TEST_F(Categories, WhatHasNoneIsRefused) {
    ASSERT_TRUE(categories);
    for (const wchar_t* method : {L"RowsAdd", L"ItemText"}) {
        int category = 99;
        EXPECT_EQ(categories->MapPropertyToCategory(idOf(dispatch.get(), method), &category),
                  DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(category, 0);
    }
    int category = 99;
    EXPECT_EQ(categories->MapPropertyToCategory(987654, &category), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(categories->MapPropertyToCategory(idOf(dispatch.get(), L"RowIndex"), &category), E_FAIL);
    BSTR name = nullptr;
    for (const int unknown : {-1, -2, 0, 3})
        EXPECT_EQ(categories->GetCategoryName(unknown, english, &name), E_INVALIDARG) << unknown;
    EXPECT_EQ(name, nullptr);
    EXPECT_EQ(categories->MapPropertyToCategory(100, nullptr), E_POINTER);
    EXPECT_EQ(categories->GetCategoryName(-5, english, nullptr), E_POINTER);
}

} // namespace
} // namespace lumtex::testing
