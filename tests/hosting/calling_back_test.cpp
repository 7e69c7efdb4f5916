/// Host code runs as the component lets go of things and while its boxes are open: nothing is harmed.
#include "called_back_list.h"

namespace lumtex::testing {
namespace {

class CallingBack : public SilentComponent {
  protected:
    ~CallingBack() override { releases.code = {}; }

    /// `code` as host code that does not run within itself.
    std::function<void()> once(const HostCode& code) {
        return [this, &code] {
            if (std::exchange(busy_, true))
                return;
            code.run(*list);
            busy_ = false;
        };
    }

    LastReleases releases;
    std::optional<CalledBackList> list{std::in_place};

  private:
    bool busy_ = false;
};

struct Dropping {
    const char* name;
    void (*drop)(CalledBackList& list, const HeldThing& held);
};
constexpr Dropping droppings[] = {
    {"overwriting", [](CalledBackList& list, const HeldThing& held) { list.overwrite(held); }},
    {"RowsClear", [](CalledBackList& list, const HeldThing&) { list.call(L"RowsClear"); }},
    {"ColumnsClear", [](CalledBackList& list, const HeldThing&) { list.call(L"ColumnsClear"); }},
    {"RowsRemove",
     [](CalledBackList& list, const HeldThing&) {
         for (Long row = 0; row < CalledBackList::rows; ++row)
             list.call(L"RowsRemove", {Long{1}});
     }},
    {"RowsSelectedRemove", [](CalledBackList& list, const HeldThing&) { list.call(L"RowsSelectedRemove"); }},
    {"loading", [](CalledBackList& list, const HeldThing&) { list.loadContent(); }},
    {"the end", [](CalledBackList& list, const HeldThing&) { list.end(); }},
};

TEST_F(CallingBack, WhatTheComponentDropsMayCallIt) {
    for (const HeldThing& held : heldThings) {
        const int before = releases.gone;
        for (const Dropping& dropping : droppings) {
            for (const HostCode& code : hostCodes) {
                SCOPED_TRACE(toUtf8(win32::textOf(held.member)) + ", " + dropping.name + ", the host " +
                             code.name);
                list->begin();
                ASSERT_TRUE(list->serves());
                list->hold(held, releases);
                releases.code = once(code);
                const int goneBefore = releases.gone;
                dropping.drop(*list, held);
                releases.code = {};
                if (releases.gone == goneBefore)
                    break; // nothing is dropped there, whatever the host would do
            }
        }
        EXPECT_GT(releases.gone, before) << toUtf8(win32::textOf(held.member)) << " is never let go";
    }
    list->end();
    EXPECT_EQ(releases.alive, 0);
    EXPECT_EQ(list->container().references, 1U);
}

/// Calls that report something.
using Failing = void (*)(CalledBackList& list);
constexpr Failing failures[] = {
    [](CalledBackList& list) {
        list.get(L"ItemText", {Long{99}, Long{1}});
    },
    [](CalledBackList& list) {
        list.let(L"ItemTag", {Long{99}, Long{1}, u"tag"});
    },
    [](CalledBackList& list) {
        list.let(L"ItemForeColorDis", {Long{1}, Long{1}, u"no colour"});
    },
    [](CalledBackList& list) {
        list.let(L"ColumnText", {Long{99}, u"text"});
    },
    [](CalledBackList& list) {
        list.let(L"RowEnabled", {Long{99}, false});
    },
    [](CalledBackList& list) {
        list.call(L"SetEdit", {Long{99}, Long{1}});
    },
    [](CalledBackList& list) {
        list.call(L"Sort", {Long{1}, Long{1}, Long{1}});
    },
    [](CalledBackList& list) {
        list.call(L"RowsAdd", {u"no number", u",", u"a"});
    },
    [](CalledBackList& list) {
        list.put(L"ItemObject", DISPATCH_PROPERTYPUTREF, {Long{99}, Long{1}, ObjectRef()});
    },
};

TEST_F(CallingBack, ABoxMayLetHostCodeRun) {
    // In turn: it takes the system two seconds to show a box.
    std::size_t turn = 0;
    for (const HostCode& code : hostCodes) {
        SCOPED_TRACE(std::string("the host ") + code.name);
        list->begin();
        ASSERT_TRUE(list->serves());
        silence(false);
        watch.whileOpen = [&, run = once(code)](HWND /*box*/) {
            silence(true);
            run();
        };
        failures[turn++ % std::size(failures)](*list);
        watch.whileOpen = [](HWND /*box*/) {};
        silence(true);
        EXPECT_FALSE(watch.boxes.empty());
        watch.boxes.clear();
    }
    list->end();
    EXPECT_EQ(list->container().references, 1U);
}

} // namespace
} // namespace lumtex::testing
