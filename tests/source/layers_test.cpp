/// What each layer of the tree may include: the table that the build links by holds for every include.
#include "layers.h"

#include <ostream>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

const SourceFile& table() {
    static const SourceFile file = readFile("src/layers.txt");
    return file;
}

TEST(Layers, StandOnLayersAboveThemInTheTable) {
    EXPECT_EQ(report(faultsOf(table())), "");
    EXPECT_GT(layersOf(table()).size(), 15U);
}

TEST(Layers, AreCaughtStandingOnLaterOnesAndSharingFolders) {
    EXPECT_EQ(report(faultsOf({"layers.txt",
                               "# ground first\n"
                               "ground  ground\n"
                               "middle  middle  < ground top system\n"
                               "top     top ground  < middle # and so on\n"
                               "top     attic\n"})),
              "layers.txt:3: top is no layer above this one\n"
              "layers.txt:4: ground belongs to another layer, too\n"
              "layers.txt:5: top stands here twice\n");
}

TEST(Layers, IncludeWhatTheyStandOnAlone) {
    const std::vector<Layer> layers = layersOf(table());
    EXPECT_EQ(offenders(readTree("src", {".h", ".cpp", ".h.in", ".inc"}),
                        [&](const SourceFile& file) { return outOfReach(layers, file); }),
              "");
}

struct Arrow {
    std::string file;
    std::string include; ///< as a directive has it
    std::string finding; ///< empty for what is allowed
};

void PrintTo(const Arrow& arrow, std::ostream* out) {
    *out << arrow.file << " includes " << arrow.include;
}

class LayerArrow : public testing::TestWithParam<Arrow> {};

TEST_P(LayerArrow, IsJudgedByTheTable) {
    const auto& [file, include, finding] = GetParam();
    const SourceFile sample(file, "#include " + include + "\n");
    EXPECT_EQ(report(outOfReach(layersOf(table()), sample)),
              finding.empty() ? "" : file + ":1: " + finding + "\n");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Samples, LayerArrow, testing::ValuesIn(std::vector<Arrow>{
    {"src/values/a.h", "<vector>", ""},
    {"src/values/a.h", "\"values/references/font.h\"", ""},
    {"src/values/a.h", "\"platform/window.h\"", "platform/window.h is out of reach for values"},
    {"src/platform/a.h", "\"records/items.h\"", "records/items.h is out of reach for platform"},
    {"src/guards/a.cpp", "\"values/types.h\"", ""},
    {"src/bars/a.cpp", "\"guards/procedure.h\"", ""},
    {"src/bars/a.cpp", "\"model/list_view.h\"", "model/list_view.h is out of reach for bars"},
    {"src/tips/a.cpp", "\"bars/scroll_bar.h\"", "bars/scroll_bar.h is out of reach for tips"},
    {"src/model/a.cpp", "\"scroll/scroll_state.h\"", ""},
    {"src/model/a.cpp", "\t<windows.h>", "<windows.h> is of no standard library"},
    {"src/model/a.cpp", "\"automation/member.h\"", "automation/member.h is out of reach for control"},
    {"src/automation/a.cpp", "\"model/list_view.h\"", ""},
    {"src/automation/a.cpp", "\"worlds/headless/desktop.h\"", "worlds/headless/desktop.h is out of reach for automation"},
    {"src/raster/a.cpp", "<hb.h>", ""},
    {"src/raster/a.cpp", "FT_OUTLINE_H", ""},
    {"src/platform/a.h", "FT_OUTLINE_H", "<FT_OUTLINE_H> is of no standard library"},
    {"src/raster/a.cpp", "\"adapters/pictures/pixbuf.h\"", "adapters/pictures/pixbuf.h is out of reach for raster"},
    {"src/raster/a.cpp", "\"drawing/palette.h\"", "drawing/palette.h is out of reach for raster"},
    {"src/adapters/database/a.cpp", "<sqlite3.h>", ""},
    {"src/adapters/database/a.cpp", "\"model/list_view.h\"", "model/list_view.h is out of reach for database"},
    {"src/worlds/headless/a.cpp", "\"raster/canvas.h\"", ""},
    {"src/worlds/win32/a.cpp", "\"raster/canvas.h\"", "raster/canvas.h is out of reach for win32"},
    {"src/activex/a.cpp", "\"worlds/win32/com_ref.h\"", ""},
    {"src/activex/a.cpp", "\"worlds/headless/desktop.h\"", "worlds/headless/desktop.h is out of reach for activex"},
    {"src/cellar/a.cpp", "<vector>", "its folder is in no layer"},
}));
// clang-format on

} // namespace
} // namespace lumtex::source
