/// Plays every script of this folder and compares the whole log.
///
/// LUMTEX_ACCEPT_SCENARIOS=1 writes the logs that came out into the scripts; such a run fails where anything
/// changed, and what it wrote is to be read before it is committed.
#include "adapters/pictures/image_file.h"
#include "folders.h"
#include "headless_stage.h"
#include "log_comparison.h"
#include "player.h"
#include "script_files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace lumtex::testing {

namespace {

namespace fs = std::filesystem;

/// The frames from left to right, a gap between them, in out/film.
void saveFilm(const std::vector<Bitmap>& frames, const std::string& name) {
    constexpr Long gap = 8;
    const Bitmap& first = frames.front();
    Bitmap film((first.width + gap) * static_cast<Long>(frames.size()) - gap, first.height, 0xFF808080U);
    Long left = 0;
    for (const Bitmap& frame : frames) {
        for (Long y = 0; y < std::min(frame.height, film.height); ++y)
            for (Long x = 0; x < std::min(frame.width, film.width - left); ++x)
                film.at(left + x, y) = frame.at(x, y);
        left += first.width + gap;
    }
    const fs::path out = fs::path(sourceFolder()) / "out" / "film";
    fs::create_directories(out);
    pictures::savePng(film, out / (name + ".png"));
}

class Scenario : public ::testing::TestWithParam<fs::path> {};

TEST_P(Scenario, LeavesTheLogThatItSays) {
    const Script script = parseScript(contentOfScript(GetParam()));
    ASSERT_FALSE(script.steps.empty());
    const StepLogs expected = expectedLogs(script);

    const std::unique_ptr<Stage> stage = makeHeadlessStage();
    const auto [logs, frames] = play(script, *stage);
    if (!frames.empty())
        saveFilm(frames, GetParam().stem().string());

    if (std::getenv("LUMTEX_ACCEPT_SCENARIOS") != nullptr && logs != expected)
        std::ofstream(GetParam(), std::ios::binary) << withLogs(script, logs);
    EXPECT_TRUE(sameLog(linesOf(script, logs), linesOf(script, expected)));
}

INSTANTIATE_TEST_SUITE_P(Headless, Scenario, ::testing::ValuesIn(scriptFiles()), nameOfScript);

TEST(Script, KeepsQuotedTextsTogetherAndLogsWithTheirSteps) {
    const Script script =
        parseScript("# first\n\ncall RowsAdd -1 \",\" \"a b,\\\"c\\\"\"\n> one\n>   two\nshow\n");
    ASSERT_EQ(script.steps.size(), 2U);
    EXPECT_EQ(script.steps[0].words,
              (std::vector<std::string>{"call", "RowsAdd", "-1", "\",\"", "\"a b,\\\"c\\\"\""}));
    EXPECT_EQ(script.steps[0].expected, (std::vector<std::string>{"one", "  two"}));
    EXPECT_EQ(script.steps[1].line, 6U);
    EXPECT_EQ(withLogs(script, {{"three"}, {}}),
              "# first\n\ncall RowsAdd -1 \",\" \"a b,\\\"c\\\"\"\n> three\nshow\n");
}

TEST(Script, RefusesALogBeforeItsStepAndAnOpenQuote) {
    EXPECT_THROW(parseScript("> one\n"), std::runtime_error);
    EXPECT_THROW(parseScript("type \"a\n"), std::runtime_error);
}

TEST(Script, WritesValuesAsItReadsThem) {
    for (const char* word :
         {"12", "-3", "2.5", "\"a \\\"b\\\" \\\\\"", "\"\\u20ac\"", "True", "Empty", "Null", "Nothing", "-"})
        EXPECT_EQ(wordFor(valueOf(word)), word);
    EXPECT_EQ(wordFor(valueOf("0x10")), "16");
    EXPECT_THROW(valueOf("maybe"), std::runtime_error);
}

TEST(Script, StopsAtAStepThatItDoesNotKnow) {
    const std::unique_ptr<Stage> stage = makeHeadlessStage();
    EXPECT_THROW(play(parseScript("dance 1 2\n"), *stage), std::runtime_error);
    EXPECT_THROW(play(parseScript("press cell 1\n"), *stage), std::runtime_error);
    EXPECT_THROW(play(parseScript("let GridLines\n"), *stage), std::runtime_error);
}

} // namespace
} // namespace lumtex::testing
