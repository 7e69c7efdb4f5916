/// \file
/// What the table of the public interface says of each member.
#pragma once

#include "automation/type_info.h"
#include "values/locale.h"
#include "words/phrase.h"

#include <array>
#include <span>

namespace lumtex::automation {

/// What a caller who leaves an optional argument out has said.
struct DefaultValue {
    enum class Kind : Byte { required, missing, nothing, boolean, number, text };

    Kind kind = Kind::required;
    Double number = 0; ///< 0 and -1 for a Boolean
    StringView text{};

    bool operator==(const DefaultValue&) const = default;
};

struct Parameter {
    StringView name;
    TypeInfo type;
    DefaultValue defaultValue;
    bool byReference; ///< the control may write into the caller's variable

    constexpr bool optional() const { return defaultValue.kind != DefaultValue::Kind::required; }
};

/// When assigning a property, or calling a method, repaints the control.
enum class Repaint : Byte {
    never,
    asAutoRedraw, ///< where `AutoRedraw` or design mode asks for it
    always,
};

/// One property or method of a public class.
struct Member {
    static constexpr std::size_t mostParameters = 12;

    /// Reads, assigns or calls by Variants. `object` is of the class that the member belongs to. All
    /// parameters have a value; of an assignment, the new value comes last. By-reference parameters are
    /// written back. Throws where an argument cannot be converted, for which `callers` stands in for the
    /// current locale, unless it is null.
    using Invoke = Variant (*)(void* object, std::span<Variant> arguments, const Locale* callers);

    Long number; ///< the dispatch number; it never changes once a version has been given out
    StringView name;
    words::Phrase help; ///< units, index base, and what is surprising
    TypeInfo type;      ///< of the property, or of the method's result
    Repaint repaint;
    std::array<Parameter, mostParameters> entries;
    std::size_t count;
    Invoke get;          ///< none for a method, or a property that cannot be read
    Invoke let;          ///< none for a method, or a property that cannot be assigned
    Invoke call;         ///< none for a property
    bool hidden = false; ///< left out where properties are listed for choice

    constexpr std::span<const Parameter> parameters() const { return {entries.data(), count}; }
    constexpr bool isMethod() const { return call != nullptr; }
    /// A reference is assigned with `Set`, a value with `Let`.
    constexpr bool isReference() const {
        return type.code == TypeCode::picture || type.code == TypeCode::font || type.code == TypeCode::object;
    }
};

} // namespace lumtex::automation
