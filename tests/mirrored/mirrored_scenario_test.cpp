/// Plays every scenario on a simulated desktop that Windows draws as well: after each paint, the surface of
/// Windows shows the same pixels as the software surface, letters aside.
#include "log_comparison.h"
#include "mirror_world.h"
#include "scenarios/headless_stage.h"
#include "scenarios/player.h"
#include "scenarios/script_files.h"
#include "worlds/win32/same_system_colors.h"

namespace lumtex::testing {

namespace {

class MirroredScenario : public ::testing::TestWithParam<std::filesystem::path> {
  protected:
    static void SetUpTestSuite() { colors_ = std::make_unique<SameSystemColors>(); }
    static void TearDownTestSuite() { colors_.reset(); }

  private:
    static inline std::unique_ptr<SameSystemColors> colors_;
};

/// The logs in the scripts name points that depend on the height of the reference fonts, so the log is held
/// against that of the simulated desktop alone, with the fonts of Windows as well.
TEST_P(MirroredScenario, ShowsTheSamePixelsOnBothSurfacesAndLeavesTheSameLog) {
    const Script script = parseScript(contentOfScript(GetParam()));
    const Played alone = play(script, *makeHeadlessStage());
    Comparisons comparisons;
    Played mirrored;
    {
        const std::unique_ptr<Stage> stage = makeHeadlessStage(
            [&](headless::Desktop& desktop) { return std::make_unique<MirrorWorld>(desktop, comparisons); });
        mirrored = play(script, *stage);
    }
    EXPECT_GT(comparisons.made, 0);
    EXPECT_TRUE(sameLog(linesOf(script, mirrored.logs), linesOf(script, alone.logs)));
}

INSTANTIATE_TEST_SUITE_P(Windows, MirroredScenario, ::testing::ValuesIn(scriptFiles()), nameOfScript);

} // namespace
} // namespace lumtex::testing
