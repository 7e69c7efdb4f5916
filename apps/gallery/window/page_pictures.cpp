#include "page_pictures.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <cstdio>

namespace lumtex::gallery {

namespace {

/// Layouts, tips and the first paints come by the event loop.
void settle(const Page& page) {
    constexpr int settlingMilliseconds = 150;
    QElapsedTimer clock;
    clock.start();
    while (page.isBusy() || clock.elapsed() < settlingMilliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, settlingMilliseconds);
}

} // namespace

bool savePictures(GalleryWindow& window, const QString& folder) {
    QDir().mkpath(folder);
    for (Page* page : window.pages()) {
        window.turnTo(*page);
        settle(*page);
        const QString name = "gallery-" + page->title().toLower().replace(u' ', u'-') + ".png";
        const QString file = QDir(folder).filePath(name);
        if (!window.grab().save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return false;
        }
        std::printf("%s\n", qPrintable(file));
    }
    return true;
}

} // namespace lumtex::gallery
