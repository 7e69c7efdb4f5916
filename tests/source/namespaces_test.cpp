/// Which namespace the files of a folder write: the room can be told from a name.
#include "layers.h"

#include <algorithm>
#include <array>
#include <map>
#include <regex>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

/// The ground that all rooms share, and the rooms of the list, which is one object.
constexpr std::array<std::string_view, 6> lumtexItself{
    "values", "platform", "guards", "records", "helpers", "control"};

/// The space that the files of a layer write.
std::string spaceOf(const Layer& layer) {
    if (std::ranges::find(lumtexItself, layer.name) != lumtexItself.end())
        return "lumtex";
    // The products are made of the same things as their worlds; what worlds share is named after them all.
    const std::map<std::string, std::string> byAnotherName{
        {"activex", "win32"}, {"widget", "qt"}, {"common", "worlds"}};
    const auto other = byAnotherName.find(layer.name);
    return "lumtex::" + (other != byAnotherName.end() ? other->second : layer.name);
}

bool isWithin(const std::string& space, const std::string& outer) {
    return space == outer || space.starts_with(outer + "::");
}

/// Where `file` writes into another space than its folder's. Only declarations of classes may stand there.
std::vector<Finding> strays(const std::vector<Layer>& layers, const SourceFile& file) {
    static const std::regex opening("^namespace (lumtex[a-z0-9:]*) \\{$");
    static const std::regex declaration("^((class|struct) \\w+;)?$");
    const Layer* layer = layerOf(layers, file.path);
    if (layer == nullptr)
        return {{file.path, 1, "its folder is in no layer"}};
    const std::string own = spaceOf(*layer);
    std::vector<Finding> found;
    std::string space = own;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const std::string& line = file.lines[i];
        std::smatch match;
        if (std::regex_match(line, match, opening))
            space = match[1];
        else if (line == "} // namespace " + space)
            space = own;
        else if (!isWithin(space, own) && !std::regex_match(line, declaration))
            found.push_back({file.path, i + 1, "writes into " + space + ", not into " + own});
    }
    return found;
}

const std::vector<Layer>& layers() {
    static const std::vector<Layer> all = layersOf(readFile("src/layers.txt"));
    return all;
}

TEST(Namespaces, AreThoseOfTheRooms) {
    EXPECT_EQ(offenders(readTree("src", {".h", ".cpp", ".h.in"}),
                        [](const SourceFile& file) { return strays(layers(), file); }),
              "");
}

struct Sample {
    std::string path;
    std::string text;
    std::string finding; ///< empty for what is allowed
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.path << ": " << sample.text;
}

class Space : public testing::TestWithParam<Sample> {};

TEST_P(Space, IsJudgedByTheFolder) {
    const auto& [path, text, finding] = GetParam();
    EXPECT_EQ(report(strays(layers(), {path, text})), finding.empty() ? "" : path + finding + "\n");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Samples, Space, testing::ValuesIn(std::vector<Sample>{
    {"src/bars/a.h", "namespace lumtex::bars {\nclass A {};\n} // namespace lumtex::bars\n", ""},
    {"src/bars/a.h", "namespace lumtex {\nclass A;\n} // namespace lumtex\n", ""},
    {"src/bars/a.h", "namespace lumtex {\nclass A {};\n} // namespace lumtex\n", ":2: writes into lumtex, not into lumtex::bars"},
    {"src/bars/a.h", "namespace lumtex::tips {\nint a();\n} // namespace lumtex::tips\n", ":2: writes into lumtex::tips, not into lumtex::bars"},
    {"src/drawing/a.h", "namespace lumtex::drawing::looks {\nint a();\n} // namespace lumtex::drawing::looks\n", ""},
    {"src/scroll/a.h", "namespace lumtex {\nint a();\n} // namespace lumtex\n", ""},
    {"src/activex/a.h", "namespace lumtex::win32 {\nint a();\n} // namespace lumtex::win32\n", ""},
    {"src/activex/a.h", "namespace lumtex::activex {\nint a();\n} // namespace lumtex::activex\n", ":2: writes into lumtex::activex, not into lumtex::win32"},
    {"src/worlds/common/a.h", "namespace lumtex::worlds {\nint a();\n} // namespace lumtex::worlds\n", ""},
    {"src/cellar/a.h", "namespace lumtex {\n} // namespace lumtex\n", ":1: its folder is in no layer"},
}));
// clang-format on

} // namespace
} // namespace lumtex::source
