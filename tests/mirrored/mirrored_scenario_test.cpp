/// Plays every scenario on a simulated desktop that Windows draws as well: after each paint, the surface of
/// Windows shows the same pixels as the software surface, letters aside.
#include "log_comparison.h"
#include "mirror_world.h"
#include "platform/raster/system_colors.h"
#include "scenarios/headless_stage.h"
#include "scenarios/player.h"
#include "scenarios/script_files.h"

#include <numeric>

namespace lumtex::testing {

namespace {

/// The software surface has its own table of system colours. While this lives, the system has the same.
class SameSystemColors {
  public:
    SameSystemColors() {
        std::iota(numbers_.begin(), numbers_.end(), 0);
        for (std::size_t i = 0; i < numbers_.size(); ++i) {
            const std::uint32_t color = raster::systemColors[i];
            former_[i] = GetSysColor(numbers_[i]);
            colors_[i] = RGB((color >> 16U) & 0xFFU, (color >> 8U) & 0xFFU, color & 0xFFU);
        }
        SetSysColors(count, numbers_.data(), colors_.data());
    }
    SameSystemColors(const SameSystemColors&) = delete;
    SameSystemColors& operator=(const SameSystemColors&) = delete;
    ~SameSystemColors() { SetSysColors(count, numbers_.data(), former_.data()); }

  private:
    static constexpr int count = static_cast<int>(raster::systemColors.size());
    std::array<INT, count> numbers_{};
    std::array<COLORREF, count> colors_{};
    std::array<COLORREF, count> former_{};
};

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
            [&](Desktop& desktop) { return std::make_unique<MirrorWorld>(desktop, comparisons); });
        mirrored = play(script, *stage);
    }
    EXPECT_GT(comparisons.made, 0);
    EXPECT_TRUE(sameLog(linesOf(script, mirrored.logs), linesOf(script, alone.logs)));
}

INSTANTIATE_TEST_SUITE_P(Windows, MirroredScenario, ::testing::ValuesIn(scriptFiles()), nameOfScript);

} // namespace
} // namespace lumtex::testing
