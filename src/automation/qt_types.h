/// \file
/// Types and parameters of the interface as a class of Qt declares them.
#pragma once

#include "automation/member.h"

#include <string>
#include <string_view>

namespace lumtex::automation {

/// The type of a value, as Qt's own interfaces write it.
std::string qtType(const TypeInfo& type);

/// "const QString& name" or "int name".
std::string parameterText(const TypeInfo& type, std::string_view name);

enum class Defaults : Byte { written, leftOut };

/// All parameters of a member, with what those stand for that callers may leave out.
std::string parametersText(const Member& member, Defaults defaults);

/// "{QVariant::fromValue(Row), ...}", an open list appended to the fixed arguments.
std::string argumentsText(const Member& member);

/// "return value.value<QString>()", where `value` is the text of a QVariant.
std::string convertedResult(const TypeInfo& type, const std::string& value);

} // namespace lumtex::automation
