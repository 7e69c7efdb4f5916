/// The gallery as a window: the list in use, page by page.
#include "arguments.h"
#include "cells_page.h"
#include "content_page.h"
#include "database_page.h"
#include "events_page.h"
#include "folder_page.h"
#include "gallery_window.h"
#include "many_rows_page.h"
#include "moving_page.h"
#include "page_pictures.h"
#include "schemes_page.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

namespace {

using namespace lumtex::gallery;

constexpr const char* picturesOption = "--pictures";

QString fromArgument(const std::string& text) {
    return QString::fromLocal8Bit(text);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("LumtexListView gallery"));
    std::vector<std::string> words(argv + 1, argv + argc);
    std::string pictures;
    if (words.size() >= 2 && words[0] == picturesOption) {
        pictures = words[1];
        words.erase(words.begin(), words.begin() + 2);
    }
    const auto subject = subjectFrom(words);
    if (!subject || (!subject->isQuery() && !QFileInfo(fromArgument(subject->path)).isDir())) {
        std::fprintf(
            stderr, "usage: %s [%s DIRECTORY] [DIRECTORY | --query DATABASE SQL]\n", argv[0], picturesOption);
        return 2;
    }

    auto* folder = new FolderPage(subject->isQuery() ? QDir::currentPath() : fromArgument(subject->path));
    auto* database = new DatabasePage(fromArgument(subject->database), fromArgument(subject->sql));
    GalleryWindow window({new SchemesPage,
                          new CellsPage,
                          folder,
                          new ManyRowsPage,
                          database,
                          new ContentPage,
                          new MovingPage,
                          new EventsPage});
    window.show();
    if (!pictures.empty())
        return savePictures(window, fromArgument(pictures)) ? 0 : 1;
    if (!words.empty())
        window.turnTo(subject->isQuery() ? static_cast<Page&>(*database) : *folder);
    return QApplication::exec();
}
