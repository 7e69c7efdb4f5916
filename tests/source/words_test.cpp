/// Nobody translates what nobody reads.
#include "source_tree.h"

#include <regex>
#include <set>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

/// What stands between quotes in the files of `src` but the catalogues themselves.
std::set<std::string> textsInTheSources() {
    static const std::regex text(R"re(u"([A-Za-z]+)")re");
    std::set<std::string> found;
    for (const SourceFile& file : readTree("src", {".h", ".cpp", ".inc"})) {
        if (file.path.starts_with("src/words/"))
            continue;
        for (const std::string& line : file.lines)
            for (std::sregex_iterator match(line.begin(), line.end(), text); match != std::sregex_iterator();
                 ++match)
                found.insert((*match)[1]);
    }
    return found;
}

/// The names of a catalogue's keys, without their scopes.
std::vector<std::string> namesOf(const SourceFile& catalogue) {
    static const std::regex entry(R"re(^    \{u"[A-Za-z]+", u"([A-Za-z]+)", u".*)re");
    std::vector<std::string> names;
    for (const std::string& line : catalogue.lines) {
        std::smatch match;
        if (std::regex_match(line, match, entry))
            names.push_back(match[1]);
    }
    return names;
}

TEST(Words, HaveSomebodyWhoSaysThem) {
    const std::set<std::string> said = textsInTheSources();
    const std::vector<std::string> names = namesOf(readFile("src/words/english.h"));
    EXPECT_GT(names.size(), 200U);
    for (const std::string& name : names)
        EXPECT_TRUE(said.contains(name)) << name;
}

TEST(Words, ThatNobodySaysAreCaught) {
    EXPECT_FALSE(textsInTheSources().contains("SaidByNobody"));
    const SourceFile catalogue("src/words/english.h",
                               "    {u\"spoken\", u\"SaidByNobody\", u\"Nothing\"},\n");
    EXPECT_EQ(namesOf(catalogue), std::vector<std::string>{"SaidByNobody"});
}

} // namespace
} // namespace lumtex::source
