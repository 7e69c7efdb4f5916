/// The samples in script languages, as their reader runs them.
#include "folders.h"
#include "scratch_folder.h"
#include "scripts/script_run.h"

#include <algorithm>
#include <array>

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;

fs::path sampleFolder(const char* language) {
    return fs::path(sourceFolder()) / "samples" / language;
}

std::vector<fs::path> samples() {
    std::vector<fs::path> found;
    for (const char* language : {"vbscript", "jscript"})
        for (const auto& entry : fs::directory_iterator(sampleFolder(language)))
            found.push_back(entry.path());
    std::ranges::sort(found);
    return found;
}

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string nameOf(const ::testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.filename().string();
    std::ranges::replace(name, '.', '_');
    return name;
}

class Sample : public ::testing::TestWithParam<fs::path> {
  protected:
    Sample() {
        // These write, and the temporary folder is everybody's.
        constexpr std::array<std::string_view, 3> writers{"log", "stock", "tasks"};
        if (std::ranges::find(writers, GetParam().stem().string()) != writers.end())
            arguments.push_back(fromUtf8(folder.path.string()));
    }

    /// A sample prints the same in both languages: what stands in expected/ under its name.
    void expectAsWritten(const ScriptOutcome& outcome) {
        fs::path expected = fs::path(testFolder()) / "scripts" / "expected" / GetParam().stem();
        expected += ".txt";
        EXPECT_EQ(outcome.failure, "");
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.output, contentOf(expected));
        EXPECT_TRUE(outcome.failuresInside.empty());
        EXPECT_TRUE(outcome.boxes.empty());
        EXPECT_FALSE(outcome.output.empty());
    }

    ScratchFolder folder;
    std::vector<String> arguments;
};

TEST_P(Sample, RunsInAHostOfOurs) {
    expectAsWritten(runScript(GetParam(), arguments));
}

TEST_P(Sample, RunsInTheSystemsOwnHost) {
    const ScriptOutcome outcome = runInStockHost(GetParam(), arguments);
    // Not every version of that host connects events.
    if (GetParam().stem() == "events" && outcome.status == 2)
        EXPECT_EQ(outcome.output, "This host of scripts connects no events.\n");
    else
        expectAsWritten(outcome);
}

INSTANTIATE_TEST_SUITE_P(Scripts, Sample, ::testing::ValuesIn(samples()), nameOf);

TEST(Samples, StandInBothLanguages) {
    for (const fs::path& sample : samples()) {
        const bool visual = sample.extension() == ".vbs";
        const fs::path twin = sampleFolder(visual ? "jscript" : "vbscript") /
                              (sample.stem().string() + (visual ? ".js" : ".vbs"));
        EXPECT_TRUE(fs::exists(twin)) << twin;
    }
}

TEST(Samples, TellWhereNothingCanBeWritten) {
    for (const fs::path& sample :
         {sampleFolder("vbscript") / "stock.vbs", sampleFolder("jscript") / "stock.js"}) {
        const ScriptOutcome ours = runScript(sample, {u"C:\\none\\none"});
        EXPECT_EQ(ours.output, "2 of 4 articles run short.\nNothing can be written to C:\\none\\none\n");
        EXPECT_EQ(ours.status, 1);
        EXPECT_TRUE(ours.boxes.empty());
    }
}

/// Nobody sees the box of a script that runs by itself.
TEST(Samples, SilenceReportsBeforeAnythingElse) {
    for (const fs::path& sample : samples()) {
        const std::string text = contentOf(sample);
        const std::size_t silenced = text.find(").SilentError = ");
        ASSERT_NE(silenced, std::string::npos) << sample;
        EXPECT_LT(silenced, text.find("LumtexListView.lmListView")) << sample;
        EXPECT_LT(silenced, text.find("LumtexListView.SpEv")) << sample;
    }
}

TEST(Samples, TellWhereAFileIsMissing) {
    for (const fs::path& sample :
         {sampleFolder("vbscript") / "rivers.vbs", sampleFolder("jscript") / "rivers.js"}) {
        const ScriptOutcome ours = runScript(sample, {u"C:\\none.csv"});
        EXPECT_EQ(ours.output, "There is no file C:\\none.csv\n");
        EXPECT_EQ(ours.status, 1);
        const ScriptOutcome stock = runInStockHost(sample, {u"C:\\none.csv"});
        EXPECT_EQ(stock.output, ours.output);
        EXPECT_EQ(stock.status, 1);
    }
}

} // namespace
} // namespace lumtex::testing
