/// A host may do anything in an event or a yield, and end the list in each.
#include "hostcode/odd_moments.h"

#include <set>

namespace lumtex::testing {

class EventWalk : public OddMoments {
  protected:
    /// A user who raises nearly every event, as long as there is a list.
    void play() {
        using std::chrono::milliseconds;
        const std::function<void()> steps[] = {
            [&] {
                desktop.move({20, 40});
            },
            [&] { desktop.advance(milliseconds(2)); },
            [&] { desktop.press(); },
            [&] { desktop.release(); },
            [&] { desktop.doubleClick(); },
            [&] { desktop.type(u"x\r"); },
            [&] {
                desktop.move({8, 40});
            },
            [&] { desktop.press(); },
            [&] {
                desktop.move({8, 300});
            },
            [&] { desktop.advance(milliseconds(3)); },
            [&] { desktop.release(); },
            [&] {
                desktop.move({20, 10});
            },
            [&] { desktop.advance(milliseconds(2)); },
            [&] { desktop.click(); },
            [&] {
                desktop.move({38, 10});
            },
            [&] { desktop.press(); },
            [&] {
                desktop.move({50, 10});
            },
            [&] { desktop.release(); },
            [&] { desktop.wheel(-120); },
            [&] { desktop.wheel(120); },
            [&] {
                list->StopEdit();
                list->window().setFocus();
            },
            [&] { desktop.key(40); },
            [&] { desktop.type(u"k"); },
            [&] { list->letListIndex(99); },
            [&] { list->setItemObject(99, 1, std::make_shared<CallingObject>(releases)); },
            [&] { list->Sort(1, cAscending, cSortText); },
            [&] { list->letAutoRedraw(true); },
            [&] {
                desktop.move({width - 8, height - 8}); // the arrow of the bar
                desktop.advance(milliseconds(2));
            },
            [&] { desktop.press(); },
            [&] { desktop.advance(milliseconds(400)); },
            [&] { desktop.release(); },
            [&] {
                desktop.move({width - 8, 22});
            },
            [&] { desktop.press(); },
            [&] {
                desktop.move({width - 8, 40});
            },
            [&] { desktop.release(); },
        };
        for (const auto& step : steps)
            if (list)
                step();
        desktop.release();
        desktop.run();
    }
    void makeLongList() {
        makeList();
        list->letAutoRedraw(false);
        for (int row = 0; row < 6; ++row)
            list->RowsAdd(Long{-1}, u",", u"more");
        list->letAutoRedraw(true);
        list->CheckScroll();
        list->Redraw();
        events.log.clear();
    }
    std::set<std::string> raised() const {
        std::set<std::string> names;
        for (const std::string& line : events.log)
            names.insert(line.substr(0, line.find(' ')));
        return names;
    }
};

TEST_F(EventWalk, NoEventIsHarmedByWhatItsHandlerDoes) {
    makeLongList();
    play();
    const std::set<std::string> all = raised();
    EXPECT_GE(all.size(), 17U);
    for (const std::string& event : all) {
        for (const NamedCode& named : codes()) {
            SCOPED_TRACE(event + ", and the host " + named.name);
            makeLongList();
            bool reached = false;
            const auto code = once(named.code);
            events.on(event, [&, code] {
                reached = true;
                code();
            });
            play();
            events.on(event, {});
            EXPECT_TRUE(reached);
            expectServes();
        }
    }
}

TEST_F(EventWalk, NothingIsRaisedOnceAnEventHasEndedTheList) {
    makeLongList();
    play();
    for (const std::string& event : raised()) {
        SCOPED_TRACE(event);
        makeLongList();
        events.on(event, [&] {
            events.log.clear();
            ends();
        });
        play();
        events.on(event, {});
        EXPECT_EQ(list, nullptr);
        EXPECT_TRUE(events.log.empty()) << events.log.front();
    }
}

TEST_F(EventWalk, NoYieldIsHarmedByWhatRunsInIt) {
    for (const NamedCode& named : codes()) {
        for (int nth = 0; nth < 40; nth += 5) {
            SCOPED_TRACE(std::string("yield ") + std::to_string(nth) + ", and the host " + named.name);
            makeLongList();
            int yields = 0;
            const auto code = once(named.code);
            desktop.onYield(
                [&, code] {
                    if (yields++ == nth)
                        code();
                },
                nth + 1);
            play();
            if (list)
                list->AutoColumnSize();
            if (list)
                list->RowsRemove(1);
            while (yields <= nth)
                desktop.runtime().DoEvents();
            expectServes();
        }
    }
}

TEST_F(EventWalk, AHandlerThatThrowsIsReportedAndTheNextStatementRuns) {
    Error().letSilentError(false);
    makeList();
    desktop.runtime().boxes.clear();
    events.on("SortDone", [] { throw std::runtime_error("of the host's own"); });
    list->Sort(1, cAscending, cSortText);
    ASSERT_EQ(desktop.runtime().boxes.size(), 1U);
    EXPECT_NE(desktop.runtime().boxes.front().text.find(u"Error no.: 440"), String::npos);
    EXPECT_NE(desktop.runtime().boxes.front().text.find(u"of the host's own"), String::npos);
    events.on("SortDone", {});
    expectServes();
}

} // namespace lumtex::testing
