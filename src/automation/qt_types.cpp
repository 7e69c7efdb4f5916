#include "automation/qt_types.h"

#include "automation/interface_types.h"
#include "values/text.h"

namespace lumtex::automation {

namespace {

bool isSmall(const TypeInfo& type) {
    switch (type.code) {
    case TypeCode::boolean:
    case TypeCode::integer:
    case TypeCode::longInteger:
    case TypeCode::single:
    case TypeCode::enumeration:
    case TypeCode::object:
    case TypeCode::color:
        return true;
    default:
        return false;
    }
}

/// " = 5", or nothing for a parameter that callers must give.
std::string defaultText(const Parameter& parameter) {
    const DefaultValue& value = parameter.defaultValue;
    switch (value.kind) {
    case DefaultValue::Kind::required:
        return "";
    case DefaultValue::Kind::boolean:
        return value.number != 0 ? " = true" : " = false";
    case DefaultValue::Kind::number:
        if (parameter.type.code == TypeCode::enumeration)
            return " = " + enumeratorText(parameter.type, value.number, "{}");
        if (parameter.type.code == TypeCode::color)
            return " = QColor(0, 0, 0)";
        return " = " + std::to_string(static_cast<Long>(value.number));
    case DefaultValue::Kind::text:
        return value.text.empty() ? " = QString()" : " = QStringLiteral(\"" + toUtf8(value.text) + "\")";
    case DefaultValue::Kind::missing:
    case DefaultValue::Kind::nothing:
        break;
    }
    return " = {}";
}

/// The value of a parameter as an item of a QVariantList.
std::string argumentText(const Parameter& parameter) {
    std::string name = toUtf8(parameter.name);
    if (parameter.type.code == TypeCode::variantList)
        return name;
    if (parameter.type.code == TypeCode::string && parameter.defaultValue.kind == DefaultValue::Kind::missing)
        return "unlessNull(" + name + ")";
    if (parameter.type.code == TypeCode::enumeration)
        return "static_cast<int>(" + name + ")";
    return "QVariant::fromValue(" + name + ")";
}

} // namespace

std::string qtType(const TypeInfo& type) {
    switch (type.code) {
    case TypeCode::none:
        return "void";
    case TypeCode::boolean:
        return "bool";
    case TypeCode::integer:
        return "short";
    case TypeCode::longInteger:
        return "int";
    case TypeCode::single:
        return "double"; // designers know of no other
    case TypeCode::string:
        return "QString";
    case TypeCode::variant:
        return "QVariant";
    case TypeCode::color:
        return "QColor";
    case TypeCode::picture:
        return "QPixmap";
    case TypeCode::font:
        return "QFont";
    case TypeCode::object:
        return "QObject*";
    case TypeCode::variantList:
        return "QVariantList";
    case TypeCode::record:
        return "QVariantMap";
    case TypeCode::enumeration:
        break;
    }
    return toUtf8(type.name);
}

std::string parameterText(const TypeInfo& type, std::string_view name) {
    const std::string declared = isSmall(type) ? qtType(type) + " " : "const " + qtType(type) + "& ";
    return declared + std::string(name);
}

std::string argumentsText(const Member& member) {
    std::string list;
    std::string open;
    for (const Parameter& parameter : member.parameters()) {
        if (parameter.type.code == TypeCode::variantList)
            open = toUtf8(parameter.name);
        else
            list += (list.empty() ? "" : ", ") + argumentText(parameter);
    }
    std::string fixed = "{" + list + "}";
    if (open.empty())
        return fixed;
    return list.empty() ? open : "QVariantList" + fixed + " + " + open;
}

std::string parametersText(const Member& member, Defaults defaults) {
    std::string text;
    for (const Parameter& parameter : member.parameters())
        text += (text.empty() ? "" : ", ") + parameterText(parameter.type, toUtf8(parameter.name)) +
                (defaults == Defaults::written ? defaultText(parameter) : "");
    return text;
}

std::string convertedResult(const TypeInfo& type, const std::string& value) {
    switch (type.code) {
    case TypeCode::none:
        return value;
    case TypeCode::variant:
        return "return " + value;
    case TypeCode::enumeration:
        return "return static_cast<" + qtType(type) + ">(" + value + ".toInt())";
    default:
        return "return " + value + ".value<" + qtType(type) + ">()";
    }
}

} // namespace lumtex::automation
