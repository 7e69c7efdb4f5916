/// What another program hears of the widget over AT-SPI, and does to it: on a display and on buses of their
/// own.
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <sys/wait.h>

namespace lumtex::testing {
namespace {

using ::testing::ElementsAre;

/// The lines of a reader that takes these steps.
std::vector<std::string> read(const std::string& steps) {
    const std::string programs = LUMTEX_PROGRAMS "/";
    const std::string command =
        // What else runs on these buses writes into the same output.
        "QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 dbus-run-session -- xvfb-run "
        "--auto-servernum "
        "--server-args='-screen 0 800x600x24' sh -c 'exec \"$0\" \"$@\" >&3' " +
        programs + "lumtex_screen_reader " + programs + "lumtex_spoken_window " + steps +
        " 3>&1 >/dev/null 2>&1";
    std::vector<std::string> lines;
    FILE* const output = popen(command.c_str(), "r");
    std::array<char, 512> line{};
    while (output != nullptr && std::fgets(line.data(), line.size(), output) != nullptr) {
        lines.emplace_back(line.data());
        lines.back().erase(lines.back().find_last_not_of("\r\n") + 1);
    }
    const int status = output != nullptr ? pclose(output) : -1;
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << (lines.empty() ? "nothing" : lines.back());
    return lines;
}

TEST(SpokenOverBus, TheTreeIsWhatIsOnTheScreen) {
    EXPECT_THAT(
        read("tree"),
        ElementsAre(
            "table \"cities\" showing enabled [SetFocus]",
            " table row \"Lisbon\" (Since: 1143; Country: Portugal) focused selected showing enabled [Press] "
            "[SetFocus]",
            "  table cell \"Lisbon\" (City) selected showing enabled [Press] [SetFocus]",
            "  table cell \"1143\" (Since) selected showing enabled [Press] [SetFocus]",
            "   check box \"1143\" showing enabled [Toggle]",
            "  table cell \"Portugal\" (Country) selected showing enabled [Press] [SetFocus]",
            " table row \"Oslo\" (Since: 1048; Country: Norway) showing enabled [Press] [SetFocus]",
            "  table cell \"Oslo\" (City) showing enabled [Press] [SetFocus]",
            "  table cell \"1048\" (Since) showing enabled [Press] [SetFocus]",
            "   check box \"1048\" showing enabled [Toggle]",
            "  table cell \"Norway\" (Country) editable showing enabled [Press] [SetFocus]",
            " table row \"Quito\" (Since: 1534; Country: Ecuador) showing enabled [Press] [SetFocus]",
            "  table cell \"Quito\" (City) showing enabled [Press] [SetFocus]",
            "  table cell \"1534\" (Since) showing enabled [Press] [SetFocus]",
            "   check box \"1534\" showing enabled [Toggle]",
            "  table cell \"Ecuador\" (Country) showing enabled [Press] [SetFocus]",
            " panel \"Headers\" showing enabled",
            "  table column header \"City\" showing enabled [Press]",
            "  table column header \"Since\" showing enabled [Press]",
            "  table column header \"Country\" showing enabled [Press]"));
}

TEST(SpokenOverBus, TheTableGivesEachCell) {
    EXPECT_THAT(read("cell 1 2 cell 2 0"),
                ElementsAre("table cell \"Norway\" of 3 rows", "table cell \"Quito\" of 3 rows"));
}

TEST(SpokenOverBus, TheFocusIsMovedAndHeardOf) {
    EXPECT_THAT(read("focus 2 await object:state-changed:focused Quito "
                     "focus 1 await object:state-changed:selected Oslo"),
                ElementsAre("object:state-changed:focused 1 Quito", "object:state-changed:selected 1 Oslo"));
}

TEST(SpokenOverBus, ACheckBoxIsToggledAndARowAddedByThat) {
    EXPECT_THAT(read("press 0/1/0 await object:state-changed:checked 1143 "
                     "await object:children-changed:add cities cell 3 0"),
                ElementsAre("object:state-changed:checked 1 1143",
                            "object:children-changed:add 5 cities",
                            "table cell \"Porto\" of 4 rows"));
}

TEST(SpokenOverBus, ACellIsEdited) {
    EXPECT_THAT(read("text 1/2 edit 1/2 Norge await object:property-change:accessible-name Norge text 1/2"),
                ElementsAre("Norway", "object:property-change:accessible-name 0 Norge", "Norge"));
}

TEST(SpokenOverBus, TheEditorIsOpenedAndRead) {
    EXPECT_THAT(read("press 1/2 await object:state-changed:focused Country text 4"),
                ElementsAre("object:state-changed:focused 1 Country", "Norway"));
}

TEST(SpokenOverBus, AHeaderSorts) {
    EXPECT_THAT(read("press 3/1 await object:property-change:accessible-description Since cell 0 0"),
                ElementsAre("object:property-change:accessible-description 0 Since",
                            "table cell \"Quito\" of 3 rows"));
}

} // namespace
} // namespace lumtex::testing
