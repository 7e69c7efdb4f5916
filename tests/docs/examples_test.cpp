/// Each example of the pages runs without a failure, prints what it says and leaves the picture beside it.
#include "doc_files.h"
#include "picture_check.h"
#include "program.h"
#include "quotes.h"
#include "report_catcher.h"
#include "scratch_folder.h"
#include "test_fonts.h"

#include <gtest/gtest.h>

namespace lumtex::examples {

std::map<std::string, Example>& examples() {
    static std::map<std::string, Example> all;
    return all;
}

} // namespace lumtex::examples

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;

/// What the lines `/// Prints: ...` of its file say.
std::string promisedBy(const std::string& name) {
    std::istringstream lines(sourceOf(name));
    constexpr std::string_view promise = "/// Prints: ";
    std::string text;
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(promise))
            text += line.substr(promise.size()) + "\n";
    return text;
}

std::vector<std::string> names() {
    std::vector<std::string> all;
    for (const auto& [name, example] : examples::examples())
        all.push_back(name);
    return all;
}

class EachExample : public ::testing::TestWithParam<std::string> {};

TEST_P(EachExample, RunsPrintsAndLooksAsItsPageSays) {
    const examples::Example& example = examples::examples().at(GetParam());
    const ScratchFolder folder;
    const auto reports = std::make_shared<ReportCatcher>();
    examples::Program program(testFonts(), example.makeEvents());
    program.desktop.runtime().factories[String(ReportCatcher::programId)] = [&] { return reports; };
    program.folder = folder.path;

    example.run(program);
    program.desktop.run();

    EXPECT_EQ(toUtf8(reports->reports()), "");
    EXPECT_EQ(program.out.str(), promisedBy(GetParam()));
    PictureFolders folders = usualPictureFolders();
    folders.references = docsFolder / "images" / "examples";
    EXPECT_TRUE(showsPicture(GetParam(), program.desktop.screenshot(program.list.window()), folders));
}

INSTANTIATE_TEST_SUITE_P(Docs, EachExample, ::testing::ValuesIn(names()), [](const auto& each) {
    return each.param;
});

TEST(Examples, AreOneOfEachFile) {
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(docsFolder / "examples"))
        if (entry.path().extension() == ".cpp")
            files.push_back(entry.path().stem().string());
    std::sort(files.begin(), files.end());
    EXPECT_EQ(names(), files);
}

} // namespace
} // namespace lumtex::testing
