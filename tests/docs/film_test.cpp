/// The film of the README shows what the list does today.
#include "doc_files.h"
#include "film_file.h"
#include "play.h"
#include "test_fonts.h"
#include "values/text.h"

#include <numeric>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// "top=0 first=Hydrogen selected=Helium,Lithium"
std::string stateOf(lmListView& list) {
    std::string text = "top=" + std::to_string(list.TopIndex());
    text += " first=" + toUtf8(list.ItemText(1, 1)) + " selected=";
    std::string selected;
    for (Long row = 1; row <= list.RowsCount(); ++row)
        if (list.RowSelected(row))
            selected += (selected.empty() ? "" : ",") + toUtf8(list.ItemText(row, 1));
    return text + selected;
}

/// Plays all of it; a line for each act.
std::string acted(film::Play& play) {
    std::string log;
    for (const film::Play::Act& act : play.acts()) {
        act.run();
        log += act.name + ": " + stateOf(play.list()) + "\n";
    }
    return log;
}

TEST(Film, ShowsAUserSortSelectScrollAndEdit) {
    film::Play play(testFonts());
    EXPECT_EQ(acted(play),
              "hover: top=0 first=Hydrogen selected=\n"
              "sort: top=0 first=Aluminium selected=\n"
              "select: top=0 first=Aluminium selected=Arsenic,Beryllium,Boron,Bromine,Calcium,Carbon\n"
              "scroll: top=20 first=Aluminium selected=Arsenic,Beryllium,Boron,Bromine,Calcium,Carbon\n"
              "edit: top=20 first=Aluminium selected=Sulphur\n");
    EXPECT_EQ(play.boxes(), 0U);
}

TEST(Film, IsInTheFileAsItIsPlayedNow) {
    film::Play play(testFonts());
    acted(play);
    const std::vector<film::Frame> kept = framesOf(docsFolder / "images" / "film.png");
    ASSERT_EQ(kept.size(), play.frames().size()) << "run scripts/film";
    for (std::size_t i = 0; i < kept.size(); ++i) {
        ASSERT_TRUE(kept[i].picture == play.frames()[i].picture) << "frame " << i << ": run scripts/film";
        ASSERT_EQ(kept[i].shown, play.frames()[i].shown) << "frame " << i;
    }
}

TEST(Film, IsShortAndSmall) {
    const std::filesystem::path file = docsFolder / "images" / "film.png";
    const std::vector<film::Frame> kept = framesOf(file);
    const auto length = std::accumulate(kept.begin(),
                                        kept.end(),
                                        std::chrono::milliseconds(0),
                                        [](auto sum, const film::Frame& frame) { return sum + frame.shown; });
    EXPECT_GE(length, std::chrono::seconds(6));
    EXPECT_LE(length, std::chrono::seconds(12));
    EXPECT_LE(std::filesystem::file_size(file), 600'000U);
}

} // namespace
} // namespace lumtex::testing
