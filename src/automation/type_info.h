/// \file
/// The types of the public interface as hosts know them, deduced from those of the code.
#pragma once

#include "helpers/sp_ev.h"
#include "records/enumerations.h"
#include "sortfind/find_results.h"
#include "values/references/font.h"
#include "values/references/object.h"
#include "values/references/picture.h"
#include "values/variant.h"

#include <optional>
#include <span>
#include <type_traits>

namespace lumtex::automation {

enum class TypeCode : Byte {
    none, ///< what a method without a result returns
    boolean,
    integer,
    longInteger,
    single,
    string,
    variant,
    color,
    enumeration,
    picture,
    font,
    object,
    record,      ///< fields with names; late-bound callers get an object with the same ones
    variantList, ///< any number of Variants; only ever the last parameter
};

struct TypeInfo {
    TypeCode code;
    StringView name; ///< as a host writes it; of an enumeration, its own name

    bool operator==(const TypeInfo&) const = default;
};

namespace detail {

template <class T>
struct TypeOf;

template <TypeCode typeCode>
struct Coded {
    static constexpr TypeCode code = typeCode;
};

// clang-format off
template <> struct TypeOf<void> : Coded<TypeCode::none> { static constexpr StringView name{}; };
template <> struct TypeOf<bool> : Coded<TypeCode::boolean> { static constexpr StringView name = u"Boolean"; };
template <> struct TypeOf<Integer> : Coded<TypeCode::integer> { static constexpr StringView name = u"Integer"; };
template <> struct TypeOf<Long> : Coded<TypeCode::longInteger> { static constexpr StringView name = u"Long"; };
template <> struct TypeOf<Single> : Coded<TypeCode::single> { static constexpr StringView name = u"Single"; };
template <> struct TypeOf<String> : Coded<TypeCode::string> { static constexpr StringView name = u"String"; };
template <> struct TypeOf<StringView> : TypeOf<String> {};
template <> struct TypeOf<std::optional<StringView>> : TypeOf<String> {};
template <> struct TypeOf<Variant> : Coded<TypeCode::variant> { static constexpr StringView name = u"Variant"; };
template <> struct TypeOf<OLE_COLOR> : Coded<TypeCode::color> { static constexpr StringView name = u"OLE_COLOR"; };
template <> struct TypeOf<PictureRef> : Coded<TypeCode::picture> { static constexpr StringView name = u"Picture"; };
template <> struct TypeOf<FontRef> : Coded<TypeCode::font> { static constexpr StringView name = u"Font"; };
template <> struct TypeOf<ObjectRef> : Coded<TypeCode::object> { static constexpr StringView name = u"Object"; };
template <> struct TypeOf<FindResults> : Coded<TypeCode::record> { static constexpr StringView name = u"FindResults"; };
template <> struct TypeOf<std::span<const Variant>> : Coded<TypeCode::variantList> { static constexpr StringView name = u"Variant"; };
template <> struct TypeOf<cColorStyle> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cColorStyle"; };
template <> struct TypeOf<cScrollColorStyle> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cScrollColorStyle"; };
template <> struct TypeOf<cWheelFunction> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cWheelFunction"; };
template <> struct TypeOf<cListViewStyle> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cListViewStyle"; };
template <> struct TypeOf<cColumnHeaderAlign> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cColumnHeaderAlign"; };
template <> struct TypeOf<cItemAlign> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cItemAlign"; };
template <> struct TypeOf<cTextPosition> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cTextPosition"; };
template <> struct TypeOf<cSortMode> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cSortMode"; };
template <> struct TypeOf<cSortType> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cSortType"; };
template <> struct TypeOf<cFindBegin> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cFindBegin"; };
template <> struct TypeOf<cFindCompare> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cFindCompare"; };
template <> struct TypeOf<cActiveXPTheme> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cActiveXPTheme"; };
template <> struct TypeOf<cMouseButton> : Coded<TypeCode::enumeration> { static constexpr StringView name = u"cMouseButton"; };
// clang-format on

} // namespace detail

/// The interface type of a parameter or result, references and constness left aside.
template <class T>
constexpr TypeInfo typeOf() {
    using Deduced = detail::TypeOf<std::remove_cvref_t<T>>;
    return {Deduced::code, Deduced::name};
}

/// Whether what the control writes into a parameter of this type comes back to the caller.
template <class T>
constexpr bool travelsBack = std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;

} // namespace lumtex::automation
