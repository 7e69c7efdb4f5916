/// Pages quote the examples as they are, and leave none out.
#include "doc_files.h"
#include "program.h"
#include "quotes.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;

std::string codeOf(const std::string& name) {
    return reference::shownCode(sourceOf(name));
}

std::string allPages() {
    std::string text;
    for (const auto& entry : fs::directory_iterator(docsFolder))
        if (entry.path().extension() == ".md")
            text += contentOf(entry.path());
    return text;
}

TEST(Pages, QuoteTheExamplesAsTheyAre) {
    for (const fs::path& folder : {docsFolder, docsFolder / "reference"})
        for (const auto& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".md") {
                const std::string page = contentOf(entry.path());
                EXPECT_EQ(reference::withQuotes(page, codeOf), page)
                    << entry.path() << ": run scripts/reference";
            }
}

TEST(Pages, QuoteEachExampleAndShowItsPicture) {
    const std::string pages = allPages();
    for (const auto& [name, example] : examples::examples()) {
        EXPECT_NE(pages.find("\n<!-- example " + name + " -->\n"), std::string::npos) << name;
        EXPECT_NE(pages.find("(images/examples/" + name + ".png)"), std::string::npos) << name;
    }
}

TEST(Pages, HaveNoPictureOfAnExampleThatIsGone) {
    for (const auto& entry : fs::directory_iterator(docsFolder / "images" / "examples"))
        EXPECT_TRUE(examples::examples().contains(entry.path().stem().string())) << entry.path();
}

TEST(Quotes, StandAtTheLeftAndJoinPieces) {
    EXPECT_EQ(reference::shownCode("int a;\n// [shown\nclass B {};\n// shown]\n    // [shown\n    if (a)\n\n"
                                   "        b();\n    // shown]\nint c;\n"),
              "class B {};\n\nif (a)\n\n    b();\n");
}

TEST(Quotes, ThatShowNothingOrDoNotEndAreRefused) {
    EXPECT_THROW(reference::shownCode("int a;\n"), std::runtime_error);
    EXPECT_THROW(reference::shownCode("// [shown\nint a;\n// shown]\n// [shown\nint b;\n"),
                 std::runtime_error);
}

TEST(Quotes, TakeThePlaceOfTheBlockBehindTheirName) {
    const auto code = [](const std::string& name) { return "the code of " + name + "\n"; };
    EXPECT_EQ(
        reference::withQuotes("a\n<!-- example one -->\n```cpp\nold\n```\nb\n```cpp\nkept\n```\n", code),
        "a\n<!-- example one -->\n```cpp\nthe code of one\n```\nb\n```cpp\nkept\n```\n");
    EXPECT_THROW(reference::withQuotes("<!-- example one -->\ntext\n", code), std::runtime_error);
    EXPECT_THROW(reference::withQuotes("<!-- example one -->\n```cpp\nold\n", code), std::runtime_error);
}

} // namespace
} // namespace lumtex::testing
