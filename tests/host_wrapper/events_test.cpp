/// Events on their way to the handlers of LumtexListView.hpp.
#include "LumtexListView.hpp"
#include "automation/event_table.h"
#include "worlds/win32/variant_bridge.h"

#include <functional>
#include <memory>
#include <optional>
#include <sstream>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using LumtexListView::Connection;
using Lists = LumtexListView::lmListView;

/// Writes down each event with its arguments, and adds one to every reference.
class Recorder : public LumtexListView::lmListViewEvents {
  public:
    // clang-format off
    void Click() override { heard("Click"); }
    void DblClick() override { heard("DblClick"); }
    void ItemCheck(long Row, long Column, bool NewValue, bool& Cancel) override { heard("ItemCheck", Row, Column, NewValue, Cancel); }
    void ItemChecked(long Row, long Column, bool NewValue) override { heard("ItemChecked", Row, Column, NewValue); }
    void MouseUp(short& Button, short& Shift, float& X, float& Y) override { heard("MouseUp", Button, Shift, X, Y); }
    void MouseMove(short& Button, short& Shift, float& X, float& Y) override { heard("MouseMove", Button, Shift, X, Y); }
    void MouseDown(short& Button, short& Shift, float& X, float& Y) override { heard("MouseDown", Button, Shift, X, Y); }
    void ColumnClick(long& Column) override { heard("ColumnClick", Column); }
    void Scroll() override { heard("Scroll"); }
    void KeyDown(short& KeyCode, short& Shift) override { heard("KeyDown", KeyCode, Shift); }
    void KeyPress(short& KeyAscii) override { heard("KeyPress", KeyAscii); }
    void KeyUp(short& KeyCode, short& Shift) override { heard("KeyUp", KeyCode, Shift); }
    void OLECompleteDrag(long& Effect) override { heard("OLECompleteDrag", Effect); }
    void OLEDragDrop(IDispatch* Data, long& Effect, short& Button, short& Shift, float& X, float& Y) override { heard("OLEDragDrop", Data, Effect, Button, Shift, X, Y); }
    void OLEDragOver(IDispatch* Data, long& Effect, short& Button, short& Shift, float& X, float& Y, short& State) override { heard("OLEDragOver", Data, Effect, Button, Shift, X, Y, State); }
    void OLEGiveFeedback(long& Effect, bool& DefaultCursors) override { heard("OLEGiveFeedback", Effect, DefaultCursors); }
    void OLESetData(IDispatch* Data, short& DataFormat) override { heard("OLESetData", Data, DataFormat); }
    void OLEStartDrag(IDispatch* Data, long& AllowedEffects) override { heard("OLEStartDrag", Data, AllowedEffects); }
    void ErrorWrongIndex(VARIANT& Index) override { heard("ErrorWrongIndex", Index); }
    void SortDone() override { heard("SortDone"); }
    void ListViewError(const std::wstring& eSub, long eNumber, const std::wstring& eDescription) override { heard("ListViewError", eSub, eNumber, eDescription); }
    void ItemClick(long Row, long Column) override { heard("ItemClick", Row, Column); }
    void ItemDblClick(long Row, long Column) override { heard("ItemDblClick", Row, Column); }
    void ItemDown(long Row, long Column) override { heard("ItemDown", Row, Column); }
    void ItemUp(long Row, long Column) override { heard("ItemUp", Row, Column); }
    void ItemChanged(long Row, long Column, const std::wstring& NewValue) override { heard("ItemChanged", Row, Column, NewValue); }
    void ItemOver(long Row, long Column, bool bOverItem) override { heard("ItemOver", Row, Column, bOverItem); }
    // clang-format on

    std::string log;
    std::function<void()> then = [] {};

  private:
    template <class... Arguments>
    void heard(const char* name, Arguments&... arguments) {
        std::ostringstream text;
        text << name;
        (write(text, arguments), ...);
        log += text.str() + "\n";
        (change(arguments), ...);
        then();
    }
    template <class T>
    static void write(std::ostream& text, const T& value) {
        if constexpr (std::is_same_v<T, std::wstring>)
            text << ' ' << std::string(value.begin(), value.end());
        else if constexpr (std::is_same_v<T, VARIANT>)
            text << ' ' << value.lVal;
        else if constexpr (std::is_same_v<T, IDispatch*>)
            text << ' ' << (value != nullptr ? "an object" : "none");
        else
            text << ' ' << value;
    }
    template <class T>
    static void change(T& value) {
        if constexpr (std::is_same_v<T, bool>)
            value = !value;
        else if constexpr (std::is_same_v<T, VARIANT>)
            ++value.lVal;
        else if constexpr (std::is_arithmetic_v<T>)
            ++value;
    }
};

/// A source of the events that raises what it is told to. It lives as long as the test holds it.
class Source final : public IConnectionPointContainer, public IConnectionPoint {
  public:
    virtual ~Source() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        *found = IsEqualIID(iid, IID_IConnectionPointContainer)
                     ? static_cast<IConnectionPointContainer*>(this)
                     : nullptr;
        return *found != nullptr ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** /*points*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) override {
        *point = IsEqualIID(iid, LumtexListView::DIID_lmListViewEvents) ? this : nullptr;
        return *point != nullptr ? S_OK : CONNECT_E_NOCONNECTION;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* /*iid*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** /*of*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* asked, DWORD* cookie) override {
        *cookie = 7;
        return asked->QueryInterface(IID_IDispatch, sink.anyPlace());
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
        sink = nullptr;
        return cookie == 7 ? S_OK : CONNECT_E_NOCONNECTION;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** /*connections*/) override {
        return E_NOTIMPL;
    }

    /// Arguments as an event has them, the first one first.
    HRESULT raise(DISPID event, std::vector<VARIANT> arguments) const {
        std::reverse(arguments.begin(), arguments.end());
        DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        const LumtexListView::Ref<IDispatch> told = sink;
        return told->Invoke(
            event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    }

    LumtexListView::Ref<IDispatch> sink;
};

/// Arguments of the types that an event has, counted from 1; references lead into `variables`.
class Arguments {
  public:
    explicit Arguments(const automation::EventDescription& event) : variables_(event.count) {
        for (const automation::EventArgument& argument : event.arguments()) {
            VARIANT& variable = variables_[all.size()];
            const auto number = static_cast<int>(all.size() + 1);
            fill(variable, argument.type.code, number);
            VARIANT passed = variable;
            if (argument.byReference && variable.vt == VT_I4 &&
                argument.type.code == automation::TypeCode::variant) {
                passed.vt = VT_BYREF | VT_VARIANT;
                passed.pvarVal = &variable;
            } else if (argument.byReference) {
                passed.vt = static_cast<VARTYPE>(VT_BYREF | variable.vt);
                passed.byref = &variable.lVal;
            }
            all.push_back(passed);
            text += argument.type.code == automation::TypeCode::object ? " none" : " " + textOf(variable);
        }
    }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;
    ~Arguments() {
        for (VARIANT& variable : variables_)
            VariantClear(&variable);
    }

    /// What the variables hold by now.
    std::string left() const {
        std::string list;
        for (const VARIANT& variable : variables_)
            list += variable.vt == VT_DISPATCH ? " none" : " " + textOf(variable);
        return list;
    }

    std::vector<VARIANT> all;
    std::string text;

  private:
    static void fill(VARIANT& variable, automation::TypeCode type, int number) {
        VariantInit(&variable);
        using enum automation::TypeCode;
        switch (type) {
        case boolean:
            variable.vt = VT_BOOL;
            variable.boolVal = VARIANT_TRUE;
            break;
        case integer:
            variable.vt = VT_I2;
            variable.iVal = static_cast<SHORT>(number);
            break;
        case single:
            variable.vt = VT_R4;
            variable.fltVal = static_cast<FLOAT>(number);
            break;
        case string:
            variable.vt = VT_BSTR;
            variable.bstrVal = SysAllocString(L"text");
            break;
        case object:
            variable.vt = VT_DISPATCH;
            variable.pdispVal = nullptr;
            break;
        default:
            variable.vt = VT_I4;
            variable.lVal = number;
        }
    }
    static std::string textOf(const VARIANT& variable) {
        if (variable.vt == VT_BOOL)
            return variable.boolVal != VARIANT_FALSE ? "1" : "0";
        return toUtf8(win32::fromVARIANT(variable).toText());
    }

    std::vector<VARIANT> variables_;
};

/// What is left of counted arguments once a handler added one to every reference.
std::string oneMore(const automation::EventDescription& event) {
    std::string list;
    int number = 0;
    for (const automation::EventArgument& argument : event.arguments()) {
        ++number;
        using enum automation::TypeCode;
        if (argument.type.code == object)
            list += " none";
        else if (argument.type.code == string)
            list += " text";
        else if (argument.type.code == boolean)
            list += argument.byReference ? " 0" : " 1";
        else
            list += " " + std::to_string(argument.byReference ? number + 1 : number);
    }
    return list;
}

TEST(HostWrapperEvents, ArriveWithTheirArgumentsAndTakeReferencesBack) {
    Source source;
    Recorder recorder;
    const Connection connection(static_cast<IConnectionPointContainer*>(&source), recorder);
    DISPID number = 0;
    for (const automation::EventDescription& event : automation::eventTable) {
        const std::string name = toUtf8(event.name);
        const Arguments arguments(event);
        recorder.log.clear();
        EXPECT_EQ(source.raise(++number, arguments.all), S_OK) << name;
        EXPECT_EQ(recorder.log, name + arguments.text + "\n");
        EXPECT_EQ(arguments.left(), oneMore(event)) << name;
    }
}

TEST(HostWrapperEvents, WithOtherArgumentsAreRefused) {
    Source source;
    Recorder recorder;
    const Connection connection(static_cast<IConnectionPointContainer*>(&source), recorder);
    VARIANT text{};
    text.vt = VT_BSTR;
    EXPECT_EQ(source.raise(LumtexListView::events::ItemClick, {text, text}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(source.raise(LumtexListView::events::ItemClick, {text}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(source.raise(99, {}), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(recorder.log, "");
}

TEST(HostWrapperEvents, EndWhatAHandlerThrows) {
    Source source;
    Recorder recorder;
    const Connection connection(static_cast<IConnectionPointContainer*>(&source), recorder);
    recorder.then = [] { throw std::runtime_error("no"); };
    EXPECT_EQ(source.raise(LumtexListView::events::Click, {}), DISP_E_EXCEPTION);
    recorder.then = [] { throw LumtexListView::Failure("own", E_ACCESSDENIED); };
    EXPECT_EQ(source.raise(LumtexListView::events::Click, {}), E_ACCESSDENIED);
}

TEST(HostWrapperEvents, EndWithTheirConnectionAlsoInAHandler) {
    Source source;
    Recorder recorder;
    std::optional<Connection> connection;
    connection.emplace(static_cast<IConnectionPointContainer*>(&source), recorder);
    const LumtexListView::Ref<IDispatch> sink = source.sink;
    recorder.then = [&] { connection.reset(); };
    EXPECT_EQ(source.raise(LumtexListView::events::Click, {}), S_OK);
    EXPECT_EQ(static_cast<IDispatch*>(source.sink), nullptr);
    // A list that is just telling an event holds its sinks until all of them have heard.
    source.sink = sink;
    EXPECT_EQ(source.raise(LumtexListView::events::DblClick, {}), S_OK);
    EXPECT_EQ(recorder.log, "Click\n");
    source.sink = nullptr;
}

TEST(HostWrapperEvents, ComeFromTheComponent) {
    OleInitialize(nullptr);
    {
        Recorder recorder;
        Lists list = Lists::make();
        const Connection connection(list, recorder);
        list.ColumnsAdd(L"City");
        list.RowsAdd(-1, L",", L"Quito");
        list.RowsAdd(-1, L",", L"Bern");
        list.Sort(1, LumtexListView::cAscending);
        list.letListIndex(9);
        list.letClickOnIndexChange(true);
        list.letListIndex(1);
        EXPECT_EQ(recorder.log, "SortDone\nErrorWrongIndex 9\nClick\n");
    }
    OleUninitialize();
}

TEST(HostWrapperEvents, AreRefusedByAnObjectWithoutThem) {
    OleInitialize(nullptr);
    Recorder recorder;
    EXPECT_THROW(Connection(LumtexListView::SpEv::make().face(), recorder), LumtexListView::Failure);
    OleUninitialize();
}

} // namespace
} // namespace lumtex::testing
