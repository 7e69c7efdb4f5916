/// Behaviour that looks mistaken and is not: marked in the code, pinned by a test that repeats the mark's
/// sentence.
#include "source_tree.h"

#include <set>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

struct Sentence {
    std::size_t line = 0; ///< where it begins, from 1
    std::string text;
};

/// What stands behind "// " in a line that is nothing but comment; none for other lines.
std::string_view commentIn(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    return line.starts_with("// ") ? line.substr(3) : std::string_view();
}

/// The comments that begin with the mark, each joined from the lines over which it runs.
std::vector<Sentence> wantedSentences(const SourceFile& file) {
    constexpr std::string_view mark = "// Wanted: ";
    std::vector<Sentence> found;
    bool runsOn = false;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const std::string& line = file.lines[i];
        if (const auto at = line.find(mark); at != std::string::npos) {
            found.push_back({i + 1, line.substr(at + mark.size())});
            runsOn = true;
        } else if (const auto comment = commentIn(line); runsOn && !comment.empty()) {
            found.back().text.append(" ").append(comment);
        } else {
            runsOn = false;
        }
    }
    return found;
}

std::vector<Finding> surprisesWithoutTest(const SourceFile& file, const std::vector<SourceFile>& tests) {
    std::set<std::string> pinned;
    for (const SourceFile& test : tests)
        for (Sentence& sentence : wantedSentences(test))
            pinned.insert(std::move(sentence.text));
    std::vector<Finding> findings;
    for (const Sentence& sentence : wantedSentences(file))
        if (!pinned.contains(sentence.text))
            findings.push_back({file.path, sentence.line, "no test repeats: " + sentence.text});
    return findings;
}

TEST(WantedSurprises, AreRepeatedByATest) {
    const std::vector<SourceFile> tests = readTree("tests", {".h", ".cpp"});
    EXPECT_EQ(offenders(readTree("src", {".h", ".cpp"}),
                        [&](const SourceFile& file) { return surprisesWithoutTest(file, tests); }),
              "");
}

TEST(WantedSurprises, ThatNoTestRepeatsAreCaught) {
    const SourceFile bar(
        "src/scroll/bar.cpp",
        "    // Wanted: the bar's Width,\n    // not its Height.\n    x = Width(); // Wanted: here too.\n");
    const SourceFile wrappedElsewhere("tests/scroll/a_test.cpp",
                                      "// Wanted: the bar's Width, not its Height.\nint i;\n");
    const SourceFile second("tests/scroll/b_test.cpp", "// Wanted: here too.\n");
    EXPECT_EQ(report(surprisesWithoutTest(bar, {wrappedElsewhere, second})), "");
    EXPECT_EQ(report(surprisesWithoutTest(bar, {wrappedElsewhere})),
              "src/scroll/bar.cpp:3: no test repeats: here too.\n");
    EXPECT_EQ(report(surprisesWithoutTest(bar, {second})),
              "src/scroll/bar.cpp:1: no test repeats: the bar's Width, not its Height.\n");
}

/// The sentences that the page for hosts tells, each in a remark behind its entry.
std::set<std::string> sentencesTold(const SourceFile& page) {
    constexpr std::string_view begin = "<!-- wanted: ";
    constexpr std::string_view end = " -->";
    std::set<std::string> told;
    for (const std::string& line : page.lines) {
        const std::size_t at = line.find(begin);
        if (at != std::string::npos && line.ends_with(end))
            told.insert(line.substr(at + begin.size(), line.size() - at - begin.size() - end.size()));
    }
    return told;
}

/// What is marked in the code and neither told nor listed as of no concern, and what is told or listed
/// without a mark.
std::string
differences(const std::vector<SourceFile>& code, const SourceFile& page, const SourceFile& inner) {
    std::set<std::string> marked;
    for (const SourceFile& file : code)
        for (Sentence& sentence : wantedSentences(file))
            marked.insert(std::move(sentence.text));
    const std::set<std::string> told = sentencesTold(page);
    std::set<std::string> listed;
    for (const std::string& line : inner.lines)
        if (!line.empty() && !line.starts_with("#"))
            listed.insert(line);
    std::string text;
    for (const std::string& sentence : marked)
        if (!told.contains(sentence) && !listed.contains(sentence))
            text += "nobody is told: " + sentence + "\n";
    for (const auto& sentences : {told, listed})
        for (const std::string& sentence : sentences)
            if (!marked.contains(sentence))
                text += "nothing is marked: " + sentence + "\n";
    for (const std::string& sentence : told)
        if (listed.contains(sentence))
            text += "told and listed: " + sentence + "\n";
    return text;
}

TEST(WantedSurprises, AreToldToHostsOrOfNoConcernToThem) {
    EXPECT_EQ(differences(readTree("src", {".h", ".cpp"}),
                          readFile("docs/surprises.md"),
                          readFile("tests/source/inner_surprises.txt")),
              "");
}

TEST(WantedSurprises, ThatNobodyIsToldOfAreCaught) {
    const std::vector<SourceFile> code{
        {"src/a.cpp",
         "// Wanted: the first.\nint a;\n// Wanted: the second.\nint b;\n// Wanted: the third.\n"}};
    const SourceFile page("docs/surprises.md",
                          "- One. <!-- wanted: the first. -->\n- Gone. <!-- wanted: the fourth. -->\n");
    EXPECT_EQ(differences(code, page, {"inner.txt", "# why\n\nthe second.\nthe first.\n"}),
              "nobody is told: the third.\n"
              "nothing is marked: the fourth.\n"
              "told and listed: the first.\n");
}

} // namespace
} // namespace lumtex::source
