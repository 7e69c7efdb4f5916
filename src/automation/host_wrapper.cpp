/// The classes that hosts in C++ may use in place of the tables of functions.
#include "automation/event_table.h"
#include "automation/generated_files.h"
#include "automation/interface_types.h"
#include "values/text.h"

namespace lumtex::automation {

namespace {

/// A type, as a parameter, and as a result: what holds it, where a call puts it, and what is given on.
struct HostType {
    std::string value;
    std::string parameter;
    std::string argument; ///< behind a parameter's name
    std::string holder;
    std::string place;
    std::string result;
};

HostType plainType(const std::string& name) {
    return {name, name, "", name + " result{}", "&result", "result"};
}

HostType referenceType(const std::string& interface) {
    const std::string holder = "Ref<" + interface + ">";
    return {holder, interface + "*", "", holder + " result", "result.place()", "result"};
}

HostType hostTypeOf(const TypeInfo& type) {
    switch (type.code) {
    case TypeCode::boolean:
        return {
            "bool", "bool", "", "VARIANT_BOOL result = VARIANT_FALSE", "&result", "result != VARIANT_FALSE"};
    case TypeCode::string:
        return {"std::wstring", "const Text&", ".get()", "Text result", "result.place()", "result.str()"};
    case TypeCode::variant:
        return {"Value", "const Value&", ".get()", "Value result", "result.place()", "result"};
    case TypeCode::variantList:
        return {"Values", "const Values&", ".get()", "", "", ""};
    case TypeCode::picture:
        return referenceType("IPictureDisp");
    case TypeCode::font:
        return referenceType("IFontDisp");
    case TypeCode::object:
        return referenceType("IDispatch");
    default:
        return plainType(interfaceType(type));
    }
}

/// What a by-reference parameter holds while a call runs.
std::string changingType(const TypeInfo& type) {
    return "Changing<" + (type.code == TypeCode::string ? "Text" : hostTypeOf(type).value) + ">";
}

std::string defaultText(const Parameter& parameter) {
    const DefaultValue& value = parameter.defaultValue;
    const std::string number = std::to_string(static_cast<Long>(value.number));
    switch (value.kind) {
    case DefaultValue::Kind::required:
        return "";
    case DefaultValue::Kind::boolean:
        return value.number != 0 ? " = true" : " = false";
    case DefaultValue::Kind::number:
        if (parameter.type.code != TypeCode::enumeration)
            return " = " + number;
        return " = " + enumeratorText(parameter.type,
                                      value.number,
                                      "static_cast<" + toUtf8(parameter.type.name) + ">(" + number + ")");
    case DefaultValue::Kind::text:
        return " = L\"" + toUtf8(value.text) + "\"";
    case DefaultValue::Kind::missing:
        break;
    case DefaultValue::Kind::nothing:
        return " = nullptr";
    }
    return " = {}";
}

/// A parameter of a get or let has no default: what stands behind it would need one, too.
std::string parameterText(const InterfaceEntry& entry, const Parameter& parameter) {
    const std::string type =
        parameter.byReference ? changingType(parameter.type) : hostTypeOf(parameter.type).parameter;
    return type + " " + toUtf8(parameter.name) +
           (entry.kind == InterfaceEntry::Kind::call ? defaultText(parameter) : "");
}

std::string argumentText(const TypeInfo& type, const std::string& name) {
    if (type.code == TypeCode::boolean)
        return name + " ? VARIANT_TRUE : VARIANT_FALSE";
    return name + hostTypeOf(type).argument;
}

std::string functionName(const InterfaceEntry& entry) {
    const std::string name = toUtf8(entry.member->name);
    if (entry.kind == InterfaceEntry::Kind::let)
        return "let" + name;
    return entry.kind == InterfaceEntry::Kind::set ? "set" + name : name;
}

std::string functionText(const InterfaceEntry& entry) {
    const Member& member = *entry.member;
    const HostType type = hostTypeOf(member.type);
    const bool gives = givesResult(entry);
    std::string parameters;
    std::string arguments;
    const auto add = [](std::string& list, const std::string& item) {
        list += (list.empty() ? "" : ", ") + item;
    };
    for (const Parameter& parameter : member.parameters()) {
        const std::string name = toUtf8(parameter.name);
        add(parameters, parameterText(entry, parameter));
        add(arguments, parameter.byReference ? name + ".place()" : argumentText(parameter.type, name));
    }
    if (gives)
        add(arguments, type.place);
    else if (!member.isMethod()) {
        add(parameters, type.parameter + " value");
        add(arguments, argumentText(member.type, "value"));
    }
    return "    /// " + toUtf8(member.help.in(words::Language::english)) + "\n    " +
           (gives ? type.value : "void") + " " + functionName(entry) + "(" + parameters + ")" +
           (entry.kind == InterfaceEntry::Kind::get ? " const" : "") + " {\n" +
           (gives ? "        " + type.holder + ";\n" : "") + "        demand(face_->" + entryName(entry) +
           "(" + arguments + "), \"" + toUtf8(member.name) + "\");\n" +
           (gives ? "        return " + type.result + ";\n" : "") + "    }\n";
}

std::string classText(const ClassDescription& description) {
    const std::string name = toUtf8(description.name);
    const std::string face = "_" + name;
    std::string text =
        "/// " + toUtf8(description.help.in(words::Language::english)) + "\nclass " + name +
        " {\n  public:\n"
        "    /// One that a container has made. Throws Failure for an object of another class.\n"
        "    explicit " +
        name + "(IUnknown* object) {\n        demand(object->QueryInterface(IID_" + face +
        ", face_.anyPlace()), \"" + name +
        "\");\n    }\n"
        "    /// A new one, by registry or manifest. Throws Failure where the component is not found.\n"
        "    static " +
        name + " make() {\n        Ref<" + face +
        "> made;\n"
        "        demand(CoCreateInstance(CLSID_" +
        name + ", nullptr, CLSCTX_INPROC_SERVER, IID_" + face + ", made.anyPlace()), \"" + name +
        "\");\n        return " + name + "(made);\n    }\n    /// The table of functions below.\n    " +
        face + "* face() const { return face_; }\n\n";
    for (const InterfaceEntry& entry : interfaceEntries(description.members))
        text += functionText(entry);
    return text + "\n  private:\n    Ref<" + face + "> face_;\n};\n\n";
}

/// A handler's parameter. The object of a drag is read and never changed.
std::string eventParameter(const EventArgument& argument) {
    const std::string name = " " + toUtf8(argument.name);
    if (argument.type.code == TypeCode::object)
        return "IDispatch*" + name;
    if (argument.type.code == TypeCode::variant)
        return "VARIANT&" + name;
    if (argument.type.code == TypeCode::string)
        return "const std::wstring&" + name;
    return hostTypeOf(argument.type).value + (argument.byReference ? "&" : "") + name;
}

std::string handlerText(const EventDescription& event) {
    std::string parameters;
    for (const EventArgument& argument : event.arguments())
        parameters +=
            (parameters.empty() ? "[[maybe_unused]] " : ", [[maybe_unused]] ") + eventParameter(argument);
    return "    /// " + toUtf8(event.help.in(words::Language::english)) + "\n    virtual void " +
           toUtf8(event.name) + "(" + parameters + ") {}\n";
}

std::string handlersText() {
    std::string text = "/// What a host hears of: it overrides what it wants to know. References go back to "
                       "the list. What a handler\n"
                       "/// throws ends there, and the list goes on.\nclass lmListViewEvents {\n  public:\n"
                       "    virtual ~lmListViewEvents() = default;\n\n";
    for (const EventDescription& event : eventTable)
        text += handlerText(event);
    return text + "};\n\n";
}

std::string dispatchText() {
    std::string text =
        "namespace details {\n\n/// Has the handler of the event with this number called.\n"
        "inline void tell(lmListViewEvents& handlers, DISPID number, const DISPPARAMS& parameters) {\n"
        "    switch (number) {\n";
    for (const EventDescription& event : eventTable) {
        const std::string name = toUtf8(event.name);
        text.append("    case events::").append(name);
        text.append(":\n        return LumtexListView::tell(handlers, &lmListViewEvents::").append(name);
        text.append(", parameters);\n");
    }
    return text + "    default:\n        throw Failure(\"event\", DISP_E_MEMBERNOTFOUND);\n    }\n}\n\n";
}

constexpr std::string_view connection =
    R"(/// The sink that a list knows. It may outlive the connection in a list that is just telling an event.
class Sink final : public IDispatch {
  public:
    explicit Sink(lmListViewEvents& handlers) : handlers_(&handlers) {}
    void forget() { handlers_ = nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == DIID_lmListViewEvents;
        *object = known ? this : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE
    Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override {
        if (handlers_ == nullptr)
            return S_OK;
        // The handler may end the connection, and nothing of this object is touched behind it.
        try {
            tell(*handlers_, number, *parameters);
            return S_OK;
        } catch (const Failure& failure) {
            return failure.result();
        } catch (...) {
            return DISP_E_EXCEPTION;
        }
    }

  private:
    virtual ~Sink() = default;

    lmListViewEvents* handlers_;
    ULONG references_ = 0;
};

} // namespace details

/// Handlers hear of a list's events for as long as this lives, which is to end before they do. It may end in one of them.
class Connection {
  public:
    /// Throws Failure for an object without these events.
    Connection(IUnknown* list, lmListViewEvents& handlers) : sink_(new details::Sink(handlers)) {
        Ref<IConnectionPointContainer> points;
        demand(list->QueryInterface(IID_IConnectionPointContainer, points.anyPlace()), "Connection");
        demand(points->FindConnectionPoint(DIID_lmListViewEvents, point_.place()), "Connection");
        demand(point_->Advise(sink_, &cookie_), "Connection");
    }
    Connection(const lmListView& list, lmListViewEvents& handlers) : Connection(list.face(), handlers) {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() {
        sink_->forget();
        point_->Unadvise(cookie_);
    }

  private:
    Ref<details::Sink> sink_;
    Ref<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

} // namespace LumtexListView
)";

} // namespace

std::string hostWrapper() {
    std::string text =
        "// LumtexListView for hosts in C++17 or later: classes over LumtexListView.h. Made from the tables "
        "in src/automation by\n"
        "// scripts/reference; do not edit.\n#pragma once\n\n#include \"LumtexListView.h\"\n"
        "#include \"LumtexListViewValues.hpp\"\n\n"
        "// A property is read by its name and written by let or set and its name: RowHeight(), "
        "letRowHeight(300),\n"
        "// setItemIcon(1, 1, picture). Every call may throw Failure.\n\n"
        "namespace LumtexListView {\n\n";
    for (const ClassDescription& description : classTable())
        text += classText(description);
    return text + handlersText() + dispatchText() + std::string(connection);
}

} // namespace lumtex::automation
