/// The widget for hosts that use Qt: declarations for its meta-object, and what they do.
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/generated_files.h"
#include "model/property_table.h"
#include "values/text.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace lumtex::automation {

namespace {

constexpr std::string_view madeBy =
    "Made from the tables in src/automation by scripts/reference; do not edit.";

/// The type of a value, as Qt's own interfaces write it.
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
        return "float";
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

/// "const QString& name" or "int name".
std::string parameterText(const TypeInfo& type, std::string_view name) {
    const std::string declared = isSmall(type) ? qtType(type) + " " : "const " + qtType(type) + "& ";
    return declared + std::string(name);
}

std::string enumeratorOf(const TypeInfo& type, Double number) {
    for (const Enumeration& enumeration : enumerationTable)
        for (const Enumerator& enumerator : enumeration.enumerators())
            if (enumeration.name == type.name && static_cast<Double>(enumerator.number) == number)
                return toUtf8(enumerator.name);
    return "{}";
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
            return " = " + enumeratorOf(parameter.type, value.number);
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

/// "{QVariant::fromValue(Row), ...}", an open list appended to the fixed arguments.
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

enum class Defaults : Byte { written, leftOut };

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

/// A property that reads and assigns one value, for the meta-object; others are pairs of functions.
bool isPlainProperty(const Member& member) {
    return !member.isMethod() && member.count == 0;
}

/// It has a value in a new list, and settings keep it.
bool isSetting(const Member& member) {
    return std::apply([&](const auto&... row) { return ((row.number == member.number) || ...); },
                      property_table::rows);
}

std::string setterName(const Member& member) {
    return "set" + toUtf8(member.name);
}

std::string propertyText(const Member& member) {
    const std::string name = toUtf8(member.name);
    std::string text = "    Q_PROPERTY(" + qtType(member.type) + " " + name + " READ " + name;
    if (member.let != nullptr)
        text += " WRITE " + setterName(member);
    if (isSetting(member))
        text += " RESET reset" + name + " NOTIFY " + name + "Changed";
    else
        text += " DESIGNABLE false STORED false";
    return text + ")\n";
}

std::string commentText(const Help& help) {
    return "    /// " + toUtf8(help.english) + "\n";
}

std::string declarationText(const Member& member) {
    const std::string name = toUtf8(member.name);
    const std::string type = qtType(member.type);
    std::string text = commentText(member.help);
    if (member.call != nullptr)
        text +=
            "    Q_INVOKABLE " + type + " " + name + "(" + parametersText(member, Defaults::written) + ");\n";
    if (member.get != nullptr)
        text += "    " + std::string(member.count != 0 ? "Q_INVOKABLE " : "") + type + " " + name + "(" +
                parametersText(member, Defaults::leftOut) + ") const;\n";
    if (member.let != nullptr) {
        const std::string others = parametersText(member, Defaults::leftOut);
        text += "    " + std::string(member.count != 0 ? "Q_INVOKABLE " : "") + "void " + setterName(member) +
                "(" + others + (others.empty() ? "" : ", ") + parameterText(member.type, "value") + ");\n";
        if (isSetting(member))
            text += "    void reset" + name + "();\n";
    }
    return text;
}

std::string definitionText(const Member& member) {
    const std::string name = toUtf8(member.name);
    const std::string type =
        (member.type.code == TypeCode::enumeration ? "LumtexListView::" : "") + qtType(member.type);
    const std::string number = std::to_string(member.number);
    const std::string arguments = argumentsText(member);
    const std::string behind = member.count != 0 ? ", " + arguments : std::string();
    std::string text;
    if (member.call != nullptr)
        text += type + " LumtexListView::" + name + "(" + parametersText(member, Defaults::leftOut) +
                ") {\n    " + convertedResult(member.type, "call(" + number + behind + ")") + ";\n}\n";
    if (member.get != nullptr)
        text += type + " LumtexListView::" + name + "(" + parametersText(member, Defaults::leftOut) +
                ") const {\n    " + convertedResult(member.type, "get(" + number + behind + ")") + ";\n}\n";
    if (member.let != nullptr) {
        const std::string others = parametersText(member, Defaults::leftOut);
        const std::string value = member.type.code == TypeCode::enumeration ? "static_cast<int>(value)"
                                  : member.type.code == TypeCode::variant   ? "value"
                                                                            : "QVariant::fromValue(value)";
        text += "void LumtexListView::" + setterName(member) + "(" + others + (others.empty() ? "" : ", ") +
                parameterText(member.type, "value") + ") {\n    assign(" + number + ", " +
                (member.count != 0 ? arguments : "{}") + ", " + value + ");\n}\n";
        if (isSetting(member))
            text += "void LumtexListView::reset" + name + "() {\n    reset(" + number + ");\n}\n";
    }
    return text;
}

/// The enumerations that members of the list name.
std::set<StringView> usedEnumerations(std::span<const Member> members) {
    std::set<StringView> names;
    for (const Member& member : members) {
        if (member.type.code == TypeCode::enumeration)
            names.insert(member.type.name);
        for (const Parameter& parameter : member.parameters())
            if (parameter.type.code == TypeCode::enumeration)
                names.insert(parameter.type.name);
    }
    return names;
}

std::string enumerationText(const Enumeration& enumeration) {
    const std::string name = toUtf8(enumeration.name);
    std::string text = commentText(enumeration.help) + "    enum " + name + " {\n";
    for (const Enumerator& enumerator : enumeration.enumerators())
        text += "        " + toUtf8(enumerator.name) + " = " + std::to_string(enumerator.number) + ",\n";
    return text + "    };\n    Q_ENUM(" + name + ")\n";
}

// Events

std::string eventParameter(const EventArgument& argument, std::string_view name) {
    if (argument.byReference && argument.type.code != TypeCode::object)
        return qtType(argument.type) + "& " + std::string(name);
    return parameterText(argument.type, name);
}

std::string signalText(const EventDescription& event) {
    std::string parameters;
    for (const EventArgument& argument : event.arguments())
        parameters += (parameters.empty() ? "" : ", ") + eventParameter(argument, toUtf8(argument.name));
    return commentText(event.help) + "    void " + toUtf8(event.name) + "(" + parameters + ");\n";
}

/// The handler of the control's events that emits the signal.
std::string handlerText(const EventDescription& event, const std::string& declared) {
    std::string before;
    std::string passed;
    std::string after;
    for (const EventArgument& argument : event.arguments()) {
        const std::string name = toUtf8(argument.name);
        std::string value = name;
        switch (argument.type.code) {
        case TypeCode::variant:
            before.append("        QVariant own")
                .append(name)
                .append(" = toQVariant(")
                .append(name)
                .append(");\n");
            after.append("        takeBack(own").append(name).append(", ").append(name).append(");\n");
            value = "own" + name;
            break;
        case TypeCode::string:
            value = "toQString(" + name + ")";
            break;
        case TypeCode::object:
            value = "toQObject(" + name + ")";
            break;
        default:
            break;
        }
        passed += (passed.empty() ? "" : ", ") + value;
    }
    return "    void " + toUtf8(event.name) + "(" + declared +
           ") override {\n        if (muted)\n            return;\n" + before + "        Q_EMIT widget_." +
           toUtf8(event.name) + "(" + passed + ");\n" + after + "    }\n";
}

/// The parameters of the handler itself.
std::string handlerParameters(const EventDescription& event) {
    std::string text;
    for (const EventArgument& argument : event.arguments()) {
        std::string type;
        switch (argument.type.code) {
        case TypeCode::boolean:
            type = "bool";
            break;
        case TypeCode::integer:
            type = "Integer";
            break;
        case TypeCode::longInteger:
            type = "Long";
            break;
        case TypeCode::single:
            type = "Single";
            break;
        case TypeCode::variant:
            type = "Variant";
            break;
        case TypeCode::object:
            type = "DragData";
            break;
        default:
            type = "const String";
            break;
        }
        const bool reference = argument.byReference || type.starts_with("const");
        text += (text.empty() ? "" : ", ") + type + (reference ? "& " : " ") + toUtf8(argument.name);
    }
    return text;
}

} // namespace

std::string qtWidgetHeader() {
    const std::span<const Member> members = listViewClass().members;
    std::string text =
        "/// \\file\n/// The list as a widget. " + std::string(madeBy) +
        "\n#pragma once\n\n// clang-format off\n\n#include \"qt/list_widget.h\"\n\n"
        "/// " +
        toUtf8(listViewClass().help.english) +
        "\n/// See docs/reference for units and index bases. A signal's references travel back to the "
        "list, in direct connections.\n"
        "class LumtexListView : public lumtex::qt::ListWidget {\n    Q_OBJECT\n";
    for (const Member& member : members)
        if (isPlainProperty(member))
            text += propertyText(member);
    text += "\n  public:\n";
    const std::set<StringView> used = usedEnumerations(members);
    for (const Enumeration& enumeration : enumerationTable)
        if (used.contains(enumeration.name))
            text += enumerationText(enumeration);
    text += "\n    Q_INVOKABLE explicit LumtexListView(QWidget* parent = nullptr);\n"
            "    LumtexListView(QWidget* parent, const lumtex::qt::WorldFactory& makeWorld);\n"
            "    ~LumtexListView() override;\n\n"
            "    using QWidget::setStyle; // beside the list's own one\n\n";
    for (const Member& member : members)
        text += declarationText(member);
    text += "\n  Q_SIGNALS:\n";
    for (const EventDescription& event : eventTable)
        text += signalText(event);
    for (const Member& member : members)
        if (isSetting(member))
            text += "    void " + toUtf8(member.name) + "Changed();\n";
    return text + "};\n";
}

std::string qtWidgetSource() {
    const std::span<const Member> members = listViewClass().members;
    std::string text = "/// What the widget's members do. " + std::string(madeBy) +
                       "\n// clang-format off\n#include \"qt/lumtex_list_view.h\"\n\n"
                       "#include \"qt/qt_values.h\"\n#include \"qt/widget_events.h\"\n#include "
                       "\"qt/world_factory.h\"\n#include \"worlds/qt/qt_text.h\"\n#include "
                       "\"worlds/qt/qt_world.h\"\n\nnamespace lumtex::qt "
                       "{\n\nnamespace {\n\n"
                       "/// Raises the control's events as signals.\n"
                       "class SignalSource final : public WidgetEvents {\n  public:\n"
                       "    explicit SignalSource(LumtexListView& widget) : widget_(widget) {}\n\n";
    for (const EventDescription& event : eventTable)
        text += handlerText(event, handlerParameters(event));
    text +=
        "\n  private:\n    LumtexListView& widget_;\n};\n\n} // namespace\n\n} // namespace lumtex::qt\n\n"
        "LumtexListView::LumtexListView(QWidget* parent) : LumtexListView(parent, "
        "lumtex::qt::worldOfQt) {}\n\n"
        "LumtexListView::LumtexListView(QWidget* parent, const lumtex::qt::WorldFactory& makeWorld) : "
        "ListWidget(parent) {\n"
        "    start(makeWorld, [this] { return std::make_unique<lumtex::qt::SignalSource>(*this); });\n}\n\n"
        "LumtexListView::~LumtexListView() {\n    finish();\n}\n\n";
    for (const Member& member : members)
        text += definitionText(member);
    return text;
}

} // namespace lumtex::automation
