/// The example of the README does what the README says.
#include "platform/picture.h"
#include "platform/raster/image_file.h"

#include <cstdlib>
#include <filesystem>
#include <set>

#include <gtest/gtest.h>

namespace {

using namespace lumtex;

TEST(ReadmeExample, RunsAndLeavesAPictureOfItsList) {
    const std::filesystem::path folder = std::filesystem::path(LUMTEX_PROGRAMS) / "readme_example_out";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const std::string command = "cd '" + folder.string() + "' && '" LUMTEX_PROGRAMS "/readme_example'";

    ASSERT_EQ(std::system(command.c_str()), 0);

    const PictureRef picture = loadPicture(folder / "cities.png");
    const Bitmap& pixels = picture->bitmap();
    ASSERT_EQ(pixels.width, 320);
    ASSERT_EQ(pixels.height, 120);
    // Border, header shades and smoothed text: far more colours than an unpainted window has.
    EXPECT_GT(std::set<std::uint32_t>(pixels.pixels.begin(), pixels.pixels.end()).size(), 10U);
}

} // namespace
