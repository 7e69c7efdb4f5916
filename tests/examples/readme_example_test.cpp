/// The example of the README does what the README says, and programs of others may be written as they like.
#include "adapters/pictures/image_file.h"
#include "values/references/picture.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include <gtest/gtest.h>

namespace {

using namespace lumtex;

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(ReadmeExample, RunsAndLeavesAPictureOfItsList) {
    const std::filesystem::path folder = std::filesystem::path(LUMTEX_PROGRAMS) / "readme_example_out";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const std::string command =
        "cd '" + folder.string() + "' && '" LUMTEX_PROGRAMS "/readme_example' >heard.txt 2>reported.txt";

    ASSERT_EQ(std::system(command.c_str()), 0);

    EXPECT_EQ(contentOf(folder / "heard.txt"), "2, 1\n");
    EXPECT_EQ(contentOf(folder / "reported.txt"), "");
    const PictureRef picture = pictures::loadPicture(folder / "cities.png");
    const Bitmap& pixels = picture->bitmap();
    ASSERT_EQ(pixels.width, 320);
    ASSERT_EQ(pixels.height, 120);
    // Border, header shades and smoothed text: far more colours than an unpainted window has.
    EXPECT_GT(std::set<std::uint32_t>(pixels.pixels.begin(), pixels.pixels.end()).size(), 10U);
}

/// That it was built is most of it: an unused and a hidden variable are errors in our own code.
TEST(CarelessExample, BuildsWithoutOurWarnings) {
    EXPECT_EQ(std::system("'" LUMTEX_PROGRAMS "/careless_example'"), 0);
}

} // namespace
