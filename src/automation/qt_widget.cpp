/// The widget for hosts that use Qt: declarations for its meta-object, and what they do.
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/generated_files.h"
#include "automation/qt_types.h"
#include "model/property_table.h"
#include "values/text.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace lumtex::automation {

namespace {

constexpr std::string_view madeBy =
    "Made from the tables in src/automation by scripts/reference; do not edit.";

/// A property that reads and assigns one value, for the meta-object; others are pairs of functions.
bool isPlainProperty(const Member& member) {
    return !member.isMethod() && member.count == 0;
}

/// It has a value in a new list, and settings keep it.
bool isSetting(const Member& member) {
    return std::apply([&](const auto&... row) { return ((row.number == member.number) || ...); },
                      property_table::rows);
}

/// A property that is no member: the bag has it, and the widget.
struct BagProperty {
    StringView name;
    TypeInfo type;
    words::Phrase help;
};

template <class Row>
void addIfBagOnly(std::vector<BagProperty>& properties, const Row& row) {
    using Value = ValueOf<std::remove_cvref_t<decltype(std::declval<Properties&>().*row.field)>>;
    if constexpr (std::is_null_pointer_v<decltype(row.get)>)
        properties.push_back({row.name, typeOf<Value>(), row.help});
}

std::vector<BagProperty> bagProperties() {
    std::vector<BagProperty> properties;
    std::apply([&](const auto&... row) { (addIfBagOnly(properties, row), ...); }, property_table::rows);
    return properties;
}

std::string setterName(StringView property) {
    return "set" + toUtf8(property);
}

std::string settingAttributes(const std::string& name) {
    return " RESET reset" + name + " NOTIFY " + name + "Changed";
}

std::string propertyText(const Member& member) {
    const std::string name = toUtf8(member.name);
    std::string text = "    Q_PROPERTY(" + qtType(member.type) + " " + name + " READ " + name;
    if (member.let != nullptr)
        text += " WRITE " + setterName(member.name);
    if (isSetting(member))
        text += settingAttributes(name);
    else
        text += " DESIGNABLE false STORED false";
    return text + ")\n";
}

std::string propertyText(const BagProperty& property) {
    const std::string name = toUtf8(property.name);
    return "    Q_PROPERTY(" + qtType(property.type) + " " + name + " READ " + name + " WRITE " +
           setterName(property.name) + settingAttributes(name) + ")\n";
}

std::string commentText(const words::Phrase& help) {
    return "    /// " + toUtf8(help.in(words::Language::english)) + "\n";
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
        text += "    " + std::string(member.count != 0 ? "Q_INVOKABLE " : "") + "void " +
                setterName(member.name) + "(" + others + (others.empty() ? "" : ", ") +
                parameterText(member.type, "value") + ");\n";
        if (isSetting(member))
            text += "    void reset" + name + "();\n";
    }
    return text;
}

std::string declarationText(const BagProperty& property) {
    const std::string name = toUtf8(property.name);
    return commentText(property.help) + "    " + qtType(property.type) + " " + name + "() const;\n    void " +
           setterName(property.name) + "(" + parameterText(property.type, "value") + ");\n    void reset" +
           name + "();\n";
}

std::string resetDefinition(const std::string& name) {
    return "void LumtexListView::reset" + name + "() {\n    reset(u\"" + name + "\");\n}\n";
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
        text += "void LumtexListView::" + setterName(member.name) + "(" + others +
                (others.empty() ? "" : ", ") + parameterText(member.type, "value") + ") {\n    assign(" +
                number + ", " + (member.count != 0 ? arguments : "{}") + ", " + value + ");\n}\n";
        if (isSetting(member))
            text += resetDefinition(name);
    }
    return text;
}

std::string definitionText(const BagProperty& property) {
    const std::string name = toUtf8(property.name);
    const std::string key = "(u\"" + name + "\"";
    return qtType(property.type) + " LumtexListView::" + name + "() const {\n    " +
           convertedResult(property.type, "setting" + key + ")") +
           ";\n}\nvoid LumtexListView::" + setterName(property.name) + "(" +
           parameterText(property.type, "value") + ") {\n    letSetting" + key +
           ", QVariant::fromValue(value));\n}\n" + resetDefinition(name);
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
        return (argument.type.code == TypeCode::single ? "float" : qtType(argument.type)) + "& " +
               std::string(name);
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
        toUtf8(listViewClass().help.in(words::Language::english)) +
        "\n/// See docs/reference for units and index bases. A signal's references travel back to the "
        "list, in direct connections.\n"
        "class LumtexListView : public lumtex::qt::ListWidget {\n    Q_OBJECT\n";
    for (const Member& member : members)
        if (isPlainProperty(member))
            text += propertyText(member);
    for (const BagProperty& property : bagProperties())
        text += propertyText(property);
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
    for (const BagProperty& property : bagProperties())
        text += declarationText(property);
    text += "\n  Q_SIGNALS:\n";
    for (const EventDescription& event : eventTable)
        text += signalText(event);
    for (const Member& member : members)
        if (isSetting(member))
            text += "    void " + toUtf8(member.name) + "Changed();\n";
    for (const BagProperty& property : bagProperties())
        text += "    void " + toUtf8(property.name) + "Changed();\n";
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
    for (const BagProperty& property : bagProperties())
        text += definitionText(property);
    return text;
}

} // namespace lumtex::automation
