/// Plays every script with the widget: the same logs, and after each step the same picture as the simulated
/// desktop shows.
#include "list_fixture.h"
#include "log_comparison.h"
#include "same_pixels.h"
#include "scenarios/headless_stage.h"
#include "scenarios/player.h"
#include "scenarios/script_files.h"
#include "widget_stage.h"

namespace lumtex::testing {

namespace {

class WidgetScenario : public ::testing::TestWithParam<std::filesystem::path> {};

/// The open editor is a field of Qt, of which only the place is ours: it is left black.
Bitmap pictureOf(Stage& stage) {
    Bitmap picture = stage.picture();
    if (!ListViewInspector(stage.list()).anyEditor().Visible())
        return picture;
    const Rect box = stage.editorPlace();
    for (Long y = std::max(box.Top, 0); y < std::min(box.Bottom, picture.height); ++y)
        for (Long x = std::max(box.Left, 0); x < std::min(box.Right, picture.width); ++x)
            picture.at(x, y) = 0;
    return picture;
}

TEST_P(WidgetScenario, LeavesTheLogThatItSaysAndShowsTheSamePictures) {
    const Script script = parseScript(contentOfScript(GetParam()));
    std::vector<Bitmap> expected;
    {
        const std::unique_ptr<Stage> simulated = makeHeadlessStage();
        play(script, *simulated, [&] { expected.push_back(pictureOf(*simulated)); });
    }
    const std::unique_ptr<Stage> stage = makeWidgetStage();
    std::size_t step = 0;
    const Played played = play(script, *stage, [&] {
        EXPECT_TRUE(samePixels(pictureOf(*stage), expected.at(step)))
            << "after line " << script.steps[step].line << ", " << script.steps[step].text;
        ++step;
    });
    EXPECT_TRUE(sameLog(linesOf(script, played.logs), linesOf(script, expectedLogs(script))));
}

INSTANTIATE_TEST_SUITE_P(Widget, WidgetScenario, ::testing::ValuesIn(scriptFiles()), nameOfScript);

} // namespace
} // namespace lumtex::testing
