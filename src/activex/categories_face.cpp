#include "activex/categories_face.h"

#include "activex/com_guard.h"
#include "activex/property_choices.h"
#include "model/property_table.h"
#include "worlds/win32/variant_bridge.h"
#include "worlds/win32/win32_locale.h"

#include <optional>

namespace lumtex::win32 {

namespace {

struct Category {
    Group group;
    int number;
};

constexpr Category categories[] = {
    {Group::appearance, -5},
    {Group::behaviour, -6},
    {Group::columns, 1},
    {Group::scrollBars, 2},
    {Group::data, -7},
};

std::optional<Group> groupOf(Long number) {
    std::optional<Group> found;
    const auto look = [&](const auto& row) {
        if (row.number == number)
            found = row.group;
    };
    std::apply([&](const auto&... row) { (look(row), ...); }, property_table::rows);
    return found;
}

} // namespace

HRESULT CategoriesFace::MapPropertyToCategory(DISPID property, int* category) {
    if (category == nullptr)
        return E_POINTER;
    *category = 0;
    if (plainProperty(property) == nullptr)
        return DISP_E_MEMBERNOTFOUND;
    const std::optional<Group> group = groupOf(property);
    for (const Category& each : categories)
        if (each.group == group) {
            *category = each.number;
            return S_OK;
        }
    return E_FAIL;
}

HRESULT CategoriesFace::GetCategoryName(int category, LCID locale, BSTR* name) {
    if (name == nullptr)
        return E_POINTER;
    *name = nullptr;
    return guarded([&] {
        for (const Category& each : categories)
            if (each.number == category) {
                *name = newBSTR(groupName(each.group).in(languageOf(LANGIDFROMLCID(locale))));
                return S_OK;
            }
        return E_INVALIDARG;
    });
}

} // namespace lumtex::win32
