#include "desktop_fixture.h"
#include "test_object.h"

#include <array>

namespace lumtex::testing {

using Recorder = DesktopFixture;

TEST_F(Recorder, WritesOneLineForEachEvent) {
    events.record("ItemDown", {{"Row", Long{2}}, {"Column", Long{1}}});
    events.record("SortDone");
    events.record("Drag", {{"Data", "opaque"}, {"Format", std::string("text")}});
    EXPECT_TRUE(
        sameLog(events.lines(), {"ItemDown Row=2 Column=1", "SortDone", "Drag Data=opaque Format=text"}));
}

TEST_F(Recorder, IndentsByTheYieldsThatAreUnderWay) {
    desktop.onYield([this] {
        events.record("One");
        desktop.runtime().whileBoxIsOpen = [this] { events.record("Two"); };
        desktop.runtime().messageBox(u"", BoxStyle::plain, u"");
    });
    desktop.runtime().DoEvents();
    events.record("None");
    EXPECT_TRUE(sameLog(events.take(), {"  One", "    Two", "None"}));
}

TEST_F(Recorder, TakeStartsAnew) {
    events.record("One");
    EXPECT_EQ(events.take().size(), 1U);
    EXPECT_TRUE(sameLog(events.take(), {}));
}

TEST_F(Recorder, HostCodeRunsAfterItsLine) {
    events.on("One", [this] { events.record("Two"); });
    events.record("One");
    events.on("One", {});
    events.record("One");
    EXPECT_TRUE(sameLog(events.take(), {"One", "Two", "One"}));
}

struct LoggedValue {
    const char* name;
    Variant value;
    std::string text;
};

TEST_F(Recorder, EachKindOfValueHasItsText) {
    const std::array<LoggedValue, 16> values{{
        {"nothing", Variant(), "Empty"},
        {"null", Null{}, "Null"},
        {"left out", Missing{}, "Missing"},
        {"true", true, "True"},
        {"false", false, "False"},
        {"byte", Byte{7}, "7"},
        {"integer", Integer{-3}, "-3"},
        {"long", Long{100000}, "100000"},
        {"single", 0.1F, "0.1"},
        {"double", -2.5, "-2.5"},
        {"date", Date{36526}, "2000-01-01"},
        {"text",
         u"größer",
         "\"gr\xC3\xB6\xC3\x9F"
         "er\""},
        {"text that would break the line", u"a\r\n\"\\", "\"a\\r\\n\\\"\\\\\""},
        {"no object", ObjectRef(), "Nothing"},
        {"object", ObjectRef(std::make_shared<TestObject>()), "Object"},
        {"font", FontRef(std::make_shared<Font>(FontSpec{})), "Font"},
    }};
    for (const LoggedValue& entry : values) {
        SCOPED_TRACE(entry.name);
        EXPECT_EQ(headless::logText(entry.value), entry.text);
    }
}

TEST(LogComparison, ShowsBothLogsSideBySide) {
    EXPECT_EQ(sideBySide({"One", "Two Row=1", "Three"}, {"One", "Two Row=2"}),
              "actual    | expected\n"
              "One       | One\n"
              "Two Row=1 ! Two Row=2\n"
              "Three     ! \n");
    EXPECT_FALSE(sameLog({"One"}, {}));
    EXPECT_FALSE(sameLog({""}, {}));
    EXPECT_TRUE(sameLog({"One"}, {"One"}));
}

} // namespace lumtex::testing
