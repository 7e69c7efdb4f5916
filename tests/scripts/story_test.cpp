/// Scripts as application developers write them, in a host with events and in the system's own.
#include "folders.h"
#include "scratch_folder.h"
#include "scripts/ado_type_library.h"
#include "scripts/script_run.h"
#include "worlds/win32/windows_api.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;

/// What the system's own host cannot run, and why.
const std::map<std::string, std::string> onlyInOurHost = {
    {"events.vbs", "it connects no events"},
    {"events.js", "it connects no events"},
    {"pictures.vbs", "its VBScript has no LoadPicture"},
    {"pictures.js", "JScript has no LoadPicture"},
};

/// Whose functions fail on purpose, called by the component, which goes on. JScript also calls it a failure
/// that a plain property cannot be called.
const std::set<std::string> failingInside = {"recordset.vbs", "recordset.js"};

fs::path storyFolder() {
    return fs::path(testFolder()) / "scripts" / "stories";
}

std::vector<fs::path> stories() {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(storyFolder()))
        if (entry.path().extension() == ".vbs" || entry.path().extension() == ".js")
            found.push_back(entry.path());
    std::ranges::sort(found);
    return found;
}

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string withoutReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

std::string nameOf(const ::testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.filename().string();
    std::ranges::replace(name, '.', '_');
    return name;
}

/// The script's first argument is a folder to write in. LUMTEX_ACCEPT_STORIES=1 writes what came out beside
/// the scripts, and that run still fails.
class Story : public ::testing::TestWithParam<fs::path> {
  protected:
    Story() {
        folder.write("flag.bmp", twoPixels());
        if (GetParam().stem() == "adodb")
            library = std::make_unique<AdoTypeLibrary>();
    }

    /// A picture file: a blue pixel and a red one.
    static std::string twoPixels() {
        const BITMAPFILEHEADER file{0x4D42, 62, 0, 0, 54};
        const BITMAPINFOHEADER info{sizeof(info), 2, 1, 1, 24, BI_RGB, 8, 0, 0, 0, 0};
        const char pixels[8] = {'\xFF', 0, 0, 0, 0, '\xFF', 0, 0};
        return std::string(reinterpret_cast<const char*>(&file), sizeof(file)) +
               std::string(reinterpret_cast<const char*>(&info), sizeof(info)) +
               std::string(pixels, sizeof(pixels));
    }

    void expectAsWritten(const ScriptOutcome& outcome) {
        fs::path expected = GetParam();
        expected += ".txt";
        EXPECT_EQ(outcome.failure, "");
        EXPECT_EQ(outcome.status, 0);
        std::string all = outcome.output;
        for (const String& box : outcome.boxes)
            all += "box:\n" + withoutReturns(toUtf8(box)) + "\n";
        EXPECT_EQ(all, contentOf(expected)) << "what " << expected.string() << " has";
        if (std::getenv("LUMTEX_ACCEPT_STORIES") != nullptr)
            std::ofstream(expected, std::ios::binary) << all;
        // A host that swallows failures would end early and say nothing.
        EXPECT_NE(outcome.output.find("done\n"), std::string::npos);
    }

    std::unique_ptr<AdoTypeLibrary> library;
    ScratchFolder folder;
    std::vector<String> arguments{fromUtf8(folder.path.string())};
};

TEST_P(Story, RunsInAHostWithEvents) {
    const ScriptOutcome outcome = runScript(GetParam(), arguments);
    expectAsWritten(outcome);
    EXPECT_EQ(outcome.failuresInside.empty(), !failingInside.contains(GetParam().filename().string()))
        << ::testing::PrintToString(outcome);
}

TEST_P(Story, RunsInTheSystemsOwnHost) {
    if (onlyInOurHost.contains(GetParam().filename().string()))
        EXPECT_EQ(runInStockHost(GetParam(), arguments).output.find("done\n"), std::string::npos)
            << "it can, now";
    else
        expectAsWritten(runInStockHost(GetParam(), arguments));
}

INSTANTIATE_TEST_SUITE_P(Scripts, Story, ::testing::ValuesIn(stories()), nameOf);

TEST(Stories, AreToldInBothLanguages) {
    for (fs::path story : stories()) {
        story.replace_extension(languageOf(story) == ScriptLanguage::vbScript ? ".js" : ".vbs");
        EXPECT_TRUE(fs::exists(story)) << story;
    }
}

} // namespace
} // namespace lumtex::testing
