/// Plays every scenario in real windows, with the system's own mouse and keyboard: the log is the one that
/// the script says.
#include "log_comparison.h"
#include "reference_fonts.h"
#include "scenarios/player.h"
#include "scenarios/script_files.h"
#include "windows_stage.h"

namespace lumtex::testing {

namespace {

class WindowsScenario : public ::testing::TestWithParam<std::filesystem::path> {
  protected:
    static void SetUpTestSuite() { fonts_ = std::make_unique<ReferenceFonts>(); }
    static void TearDownTestSuite() { fonts_.reset(); }

  private:
    static inline std::unique_ptr<ReferenceFonts> fonts_;
};

TEST_P(WindowsScenario, LeavesTheLogThatItSays) {
    const Script script = parseScript(contentOfScript(GetParam()));
    const Played played = play(script, *makeWindowsStage());
    EXPECT_TRUE(sameLog(linesOf(script, played.logs), linesOf(script, expectedLogs(script))));
}

INSTANTIATE_TEST_SUITE_P(Windows, WindowsScenario, ::testing::ValuesIn(scriptFiles()), nameOfScript);

} // namespace
} // namespace lumtex::testing
