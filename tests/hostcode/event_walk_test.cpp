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
                home.move({20, 40});
            },
            [&] { home.advance(milliseconds(2)); },
            [&] { home.press(); },
            [&] { home.release(); },
            [&] { home.doubleClick(); },
            [&] { home.type(u"x\r"); },
            [&] {
                home.move({8, 40});
            },
            [&] { home.press(); },
            [&] {
                home.move({8, 300});
            },
            [&] { home.advance(milliseconds(3)); },
            [&] { home.release(); },
            [&] {
                home.move({20, 10});
            },
            [&] { home.advance(milliseconds(2)); },
            [&] { home.click(); },
            [&] {
                home.move({38, 10});
            },
            [&] { home.press(); },
            [&] {
                home.move({50, 10});
            },
            [&] { home.release(); },
            [&] { home.wheel(-120); },
            [&] { home.wheel(120); },
            [&] {
                list->StopEdit();
                home.focus();
            },
            [&] { home.key(40); },
            [&] { home.type(u"k"); },
            [&] { list->letListIndex(99); },
            [&] { list->setItemObject(99, 1, std::make_shared<CallingObject>(releases)); },
            [&] { list->Sort(1, cAscending, cSortText); },
            [&] { list->letAutoRedraw(true); },
            [&] {
                home.move({width - 8, height - 8}); // the arrow of the bar
                home.advance(milliseconds(2));
            },
            [&] { home.press(); },
            [&] { home.advance(milliseconds(400)); },
            [&] { home.release(); },
            [&] {
                home.move({width - 8, 22});
            },
            [&] { home.press(); },
            [&] {
                home.move({width - 8, 40});
            },
            [&] { home.release(); },
        };
        for (const auto& step : steps)
            if (list)
                step();
        home.release();
        home.run();
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
            home.onYield(
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
                home.yield();
            expectServes();
        }
    }
}

TEST_F(EventWalk, AHandlerThatThrowsIsReportedAndTheNextStatementRuns) {
    Error().letSilentError(false);
    makeList();
    home.clearBoxes();
    events.on("SortDone", [] { throw std::runtime_error("of the host's own"); });
    list->Sort(1, cAscending, cSortText);
    const std::vector<String> boxes = home.boxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(boxes.front().find(u"Error no.: 440"), String::npos);
    EXPECT_NE(boxes.front().find(u"of the host's own"), String::npos);
    events.on("SortDone", {});
    expectServes();
}

} // namespace lumtex::testing
