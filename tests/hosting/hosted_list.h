/// \file
/// A list in a container, as its host calls it, and what hosts do at odd moments.
#pragma once

#include "activex/small_container.h"
#include "scratch_folder.h"

#include <vector>

namespace lumtex::testing {

/// A component whose reports open no box, and which nobody holds at the end.
class SilentComponent : public ::testing::Test {
  protected:
    SilentComponent() {
        OleInitialize(nullptr);
        silence(true);
    }
    ~SilentComponent() override {
        silence(false);
        EXPECT_TRUE(component.canUnload());
        OleUninitialize();
    }
    void silence(bool on) const {
        const win32::ComRef<IUnknown> error = component.make("Error");
        invoke(error.as<IDispatch>().get(), L"SilentError", DISPATCH_PROPERTYPUT, {on});
    }

    BoxWatch watch;
    Component component;
};

/// Calls do nothing once the control has ended; the one that ends it is the last that reaches it.
class HostedList {
  public:
    HostedList() = default;
    HostedList(const HostedList&) = delete;
    HostedList& operator=(const HostedList&) = delete;
    virtual ~HostedList() = default;

    virtual bool isOver() const = 0;
    virtual void end() = 0;

    Variant get(const wchar_t* name, const std::vector<Variant>& arguments = {}) {
        return ask(name, DISPATCH_PROPERTYGET, arguments);
    }
    void let(const wchar_t* name, const std::vector<Variant>& arguments) {
        ask(name, DISPATCH_PROPERTYPUT, arguments);
    }
    void put(const wchar_t* name, WORD kind, const std::vector<Variant>& arguments) {
        ask(name, kind, arguments);
    }
    void call(const wchar_t* name, const std::vector<Variant>& arguments = {}) {
        ask(name, DISPATCH_METHOD, arguments);
    }
    void saveContent() { call(L"ContentSave", {folder_.pathTo("content"), true}); }
    void loadContent() { call(L"ContentInput", {folder_.pathTo("content"), true}); }

  private:
    /// Where the calls go; asked for as long as the control has not ended.
    virtual IDispatch* calls() = 0;

    Variant ask(const wchar_t* name, WORD kind, const std::vector<Variant>& arguments) {
        return isOver() ? Variant() : invoke(calls(), name, kind, arguments).value;
    }

    ScratchFolder folder_;
};

/// What host code does at an odd moment, the end of the control included.
struct HostCode {
    const char* name;
    void (*run)(HostedList& list);
};
/// Rows that every list has at first.
constexpr Long firstRows = 4;

constexpr HostCode hostCodes[] = {
    {"reads",
     [](HostedList& list) {
         for (Long row = 1; row <= firstRows; ++row) {
             list.get(L"ItemText", {row, Long{1}});
             list.get(L"ItemTag", {row, Long{1}});
             list.get(L"ItemIcon", {row, Long{1}});
         }
     }},
    {"adds",
     [](HostedList& list) {
         list.call(L"ColumnsAdd", {u"more"});
         list.call(L"RowsAdd", {Long{0}, u",", u"first"});
     }},
    {"removes", [](HostedList& list) { list.call(L"RowsRemove", {Long{1}}); }},
    {"removes the selected", [](HostedList& list) { list.call(L"RowsSelectedRemove"); }},
    {"clears rows", [](HostedList& list) { list.call(L"RowsClear"); }},
    {"clears columns", [](HostedList& list) { list.call(L"ColumnsClear"); }},
    {"sorts",
     [](HostedList& list) {
         list.call(L"Sort", {Long{1}, Long{1}});
     }},
    {"paints", [](HostedList& list) { list.call(L"Redraw"); }},
    {"edits",
     [](HostedList& list) {
         list.call(L"SetEdit", {Long{1}, Long{1}});
         list.call(L"StopEdit");
     }},
    {"loads", [](HostedList& list) { list.loadContent(); }},
    {"ends", [](HostedList& list) { list.end(); }},
};

} // namespace lumtex::testing
