/// The gallery: a file or a folder as a list, in all its looks, as pictures in out/.
#include "csv_source.h"
#include "directory_source.h"
#include "platform/raster/image_file.h"
#include "platform/text.h"
#include "scenes.h"

#include <cstdio>
#include <filesystem>

namespace {

using namespace lumtex;
using namespace lumtex::gallery;

void load(const std::filesystem::path& source, lmListView& list) {
    ListBuilder builder(list, [](Long rows) {
        std::printf("\r%ld rows", static_cast<long>(rows));
        std::fflush(stdout);
    });
    std::error_code failure;
    if (std::filesystem::is_directory(source, failure))
        readDirectory(source, builder);
    else if (std::filesystem::exists(source, failure))
        readCsv(source, builder);
    else
        throw Failure("there is no " + source.string());
    std::printf("\r%ld rows, %ld columns\n",
                static_cast<long>(list.RowsCount()),
                static_cast<long>(list.ColumnsCount()));
}

int show(const std::filesystem::path& source) {
    Desktop desktop;
    Host host;
    lmListViewEvents events;
    lmListView list(desktop, host, events);
    list.UserControl_ReadProperties(MemoryPropertyBag());
    load(source, list);

    const std::filesystem::path folder = "out";
    std::filesystem::create_directories(folder);
    const std::vector<Scene> scenes = renderScenes(desktop, list);
    for (const Scene& scene : scenes)
        savePng(scene.picture, folder / (scene.name + ".png"));
    savePng(contactSheet(desktop, scenes), folder / "contact-sheet.png");
    for (const HeadlessRuntime::Box& box : desktop.runtime().boxes)
        std::fprintf(stderr, "%s\n", toUtf8(box.text).c_str());
    std::printf("%zu pictures and contact-sheet.png are in %s\n",
                scenes.size(),
                std::filesystem::absolute(folder).c_str());
    return desktop.runtime().boxes.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::fprintf(stderr, "usage: %s [FILE.csv | DIRECTORY]\n", argv[0]);
        return 2;
    }
    try {
        return show(argc == 2 ? argv[1] : ".");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
