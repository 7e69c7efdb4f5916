/// The gallery: a file, a folder or a query as a list, in all its looks, as pictures in out/.
#include "adapters/pictures/image_file.h"
#include "arguments.h"
#include "csv_source.h"
#include "directory_source.h"
#include "query_source.h"
#include "scenes.h"
#include "values/text.h"

#include <cstdio>
#include <filesystem>

namespace {

using namespace lumtex;
using namespace lumtex::gallery;

void readPath(const std::filesystem::path& source, lmListView& list) {
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
    std::printf("\r");
}

void readQueryOf(const Subject& subject, lmListView& list) {
    bool told = false;
    const auto endLine = [&] {
        if (told)
            std::fputc('\n', stderr);
    };
    try {
        readQuery(subject.database, subject.sql, list, [&](Long records) {
            std::fprintf(stderr, "\r%ld records", static_cast<long>(records));
            told = true;
            return true;
        });
    } catch (const Failure&) {
        endLine();
        throw;
    }
    endLine();
}

void load(const Subject& subject, lmListView& list) {
    if (subject.isQuery())
        readQueryOf(subject, list);
    else
        readPath(subject.path, list);
    std::printf("%ld rows, %ld columns\n",
                static_cast<long>(list.RowsCount()),
                static_cast<long>(list.ColumnsCount()));
}

int show(const Subject& subject) {
    headless::Desktop desktop;
    Host host;
    lmListViewEvents events;
    lmListView list(desktop, host, events);
    list.UserControl_ReadProperties(MemoryPropertyBag());
    load(subject, list);

    const std::filesystem::path folder = "out";
    std::filesystem::create_directories(folder);
    const std::vector<Scene> scenes = renderScenes(desktop, list);
    for (const Scene& scene : scenes)
        pictures::savePng(scene.picture, folder / (scene.name + ".png"));
    pictures::savePng(contactSheet(desktop, scenes), folder / "contact-sheet.png");
    for (const headless::HeadlessRuntime::Box& box : desktop.runtime().boxes)
        std::fprintf(stderr, "%s\n", toUtf8(box.text).c_str());
    std::printf("%zu pictures and contact-sheet.png are in %s\n",
                scenes.size(),
                std::filesystem::absolute(folder).c_str());
    return desktop.runtime().boxes.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const auto subject = subjectFrom(std::vector<std::string>(argv + 1, argv + argc));
    if (!subject) {
        std::fprintf(stderr, "usage: %s %s\n", argv[0], usage);
        return 2;
    }
    try {
        return show(*subject);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
