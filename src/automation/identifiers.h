/// \file
/// The identifiers under which the world knows the component. They never change, and none is used twice.
#pragma once

#include "values/types.h"

#include <array>
#include <string_view>

namespace lumtex::automation {

struct Identifier {
    std::string_view name; ///< as the type library spells it
    std::string_view uuid; ///< in lower case, without braces
};

/// Library, classes, their interfaces, the record, and the enumerations. Made at random in 2026.
// clang-format off
constexpr auto identifiers = std::to_array<Identifier>({
    {"LumtexListView",     "5bdc0d33-3317-4cd2-b5d2-9324de4d043f"},
    {"lmListView",         "e49f72c4-95ca-4e64-8760-588f61e91f54"},
    {"_lmListView",        "391c9172-2dce-4dc1-be64-a093282d8b6c"},
    {"__lmListView",       "e32982d6-d13a-41ee-b8ad-8319c0aad1ce"},
    {"SpEv",               "ea504454-ca3c-4669-be1f-8e68a881a57e"},
    {"_SpEv",              "b4132963-a031-4a99-a46b-b6bc85215d94"},
    {"Error",              "18a65bbd-7353-4048-be6c-560df61da5d1"},
    {"_Error",             "7006c0f3-9697-492e-a81b-c61034ae072f"},
    {"FindResults",        "e47694b7-f9b5-48fc-8d9b-34bfe4112ba2"},
    {"cColorStyle",        "b97ab266-47f5-409d-9a24-385cd14c9e3b"},
    {"cScrollColorStyle",  "82271a5b-627a-4ee6-8374-2327de93fbee"},
    {"cWheelFunction",     "1b93f80d-26b5-4beb-8181-5e915f849dff"},
    {"cListViewStyle",     "6a1081c1-ac0f-4b53-b022-2c80b1b95345"},
    {"cColumnHeaderAlign", "a9a0877f-2755-4da4-9e79-d676dc6e3b44"},
    {"cItemAlign",         "cd784e80-4188-43a8-bc37-41a287cb630e"},
    {"cTextPosition",      "5390f6aa-9f07-43f4-ae0f-447232a45bf5"},
    {"cSortMode",          "1dd761cf-4644-4002-927a-a05cbe237205"},
    {"cSortType",          "b06b96ed-8552-4a46-9da3-f2f1aa3b3571"},
    {"cFindBegin",         "22095284-1fbe-4704-9246-9146a01820f1"},
    {"cFindCompare",       "d7fe7b98-22e9-4d43-b71c-8e3669b75ed2"},
    {"cActiveXPTheme",     "285b9719-24af-4b21-be86-d5d234039d33"},
    {"cMouseButton",       "5ecc9a52-ee8c-4f21-a433-763dc1393096"},
});
// clang-format on

/// The class of the control's page in sheets of properties, which is no class of the library.
constexpr std::string_view generalPageUuid = "f77b79e6-2a83-47dd-ae2a-e08447b908a2";

/// Version of the type library; a host that was built against one major version finds no other. The first
/// moves with the tables of functions, be it by a member more, the second with what nobody bound early
/// notices. The assembly's version is made of it.
constexpr int typeLibraryMajor = 1;
constexpr int typeLibraryMinor = 0;

/// The uuid of a name. An unknown name is a compile-time error in a constant expression; at run time it
/// throws std::out_of_range.
constexpr std::string_view uuidOf(std::string_view name) {
    std::size_t place = 0;
    while (place < identifiers.size() && identifiers[place].name != name)
        ++place;
    return identifiers.at(place).uuid;
}

} // namespace lumtex::automation
