/// The samples in script languages, as their reader runs them.
#include "folders.h"
#include "scratch_folder.h"
#include "scripts/script_run.h"

#include <algorithm>

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
        // This one writes, and the temporary folder is everybody's.
        if (GetParam().stem() == "stock")
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
    expectAsWritten(runInStockHost(GetParam(), arguments));
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
