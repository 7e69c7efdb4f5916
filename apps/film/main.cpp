/// Draws the film of the README, picture by picture.
#include "adapters/pictures/image_file.h"
#include "play.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

using namespace lumtex;

/// Pictures as 0000.png and so on; frames.txt has a line for each, with its file and its milliseconds.
void draw(const std::filesystem::path& fonts, const std::filesystem::path& folder) {
    film::Play play(raster::FontLibrary::fromConfiguration(fonts));
    for (const film::Play::Act& act : play.acts())
        act.run();
    std::filesystem::create_directories(folder);
    std::ofstream table(folder / "frames.txt");
    table.exceptions(std::ios::failbit | std::ios::badbit);
    std::size_t count = 0;
    for (const film::Frame& frame : play.frames()) {
        char name[16];
        std::snprintf(name, sizeof name, "%04zu.png", count++);
        pictures::savePng(frame.picture, folder / name);
        table << name << ' ' << frame.shown.count() << '\n';
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s FONTS.conf FOLDER\n", argv[0]);
        return 2;
    }
    try {
        draw(argv[1], argv[2]);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
