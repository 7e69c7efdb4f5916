#include "gallery_window.h"

#include "settings.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <algorithm>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

GalleryWindow::GalleryWindow(const std::vector<Page*>& pages) {
    setWindowTitle(u"LumtexListView gallery"_s);
    for (Page* page : pages) {
        tabs_->addTab(page, page->title());
        connect(page, &Page::listChosen, this, [this, page] {
            if (page == this->page())
                panel_->display(page->list());
        });
    }
    tabs_->setDocumentMode(true);
    setCentralWidget(tabs_);

    auto* dock = new QDockWidget(u"Settings of this list"_s);
    dock->setObjectName(u"settings"_s);
    dock->setWidget(panel_);
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    addMenus();
    resize(1180, 720);

    connect(tabs_, &QTabWidget::currentChanged, this, &GalleryWindow::pageTurned);
    pageTurned();
}

std::vector<Page*> GalleryWindow::pages() const {
    std::vector<Page*> all;
    all.reserve(static_cast<std::size_t>(tabs_->count()));
    for (int i = 0; i < tabs_->count(); ++i)
        all.push_back(static_cast<Page*>(tabs_->widget(i)));
    return all;
}

Page* GalleryWindow::page() const {
    return static_cast<Page*>(tabs_->currentWidget());
}

void GalleryWindow::turnTo(Page& page) {
    tabs_->setCurrentWidget(&page);
}

void GalleryWindow::pageTurned() {
    Page* const now = page();
    if (now == nullptr)
        return;
    if (std::find(filled_.begin(), filled_.end(), now) == filled_.end()) {
        filled_.push_back(now);
        now->fill();
    }
    panel_->display(now->list());
    now->list().setFocus();
}

void GalleryWindow::addMenus() {
    QMenu* gallery = menuBar()->addMenu(u"&Gallery"_s);
    gallery->addAction(u"Copy the settings as &C++"_s, QKeySequence(u"Ctrl+Shift+C"_s), this, [this] {
        QGuiApplication::clipboard()->setText(settingsAsCpp(page()->list()));
    });
    gallery->addAction(u"Copy the settings as &VBScript"_s, QKeySequence(u"Ctrl+Shift+V"_s), this, [this] {
        QGuiApplication::clipboard()->setText(settingsAsVbScript(page()->list()));
    });
    gallery->addAction(u"Save a &picture of the list..."_s, QKeySequence(u"Ctrl+Shift+S"_s), this, [this] {
        const QString file = QFileDialog::getSaveFileName(
            this, u"Save a picture of the list"_s, u"list.png"_s, u"Pictures (*.png)"_s);
        if (!file.isEmpty() && !page()->list().grab().save(file))
            QMessageBox::warning(this, windowTitle(), u"%1 cannot be written."_s.arg(file));
    });
    gallery->addSeparator();
    gallery->addAction(u"&Quit"_s, QKeySequence(QKeySequence::Quit), this, &QWidget::close);

    QMenu* view = menuBar()->addMenu(u"&View"_s);
    for (int i = 0; i < tabs_->count(); ++i) {
        view->addAction(tabs_->tabText(i), QKeySequence(u"Ctrl+%1"_s.arg(i + 1)), this, [this, i] {
            tabs_->setCurrentIndex(i);
        });
    }
    view->addSeparator();
    QAction* settings = findChild<QDockWidget*>()->toggleViewAction();
    settings->setText(u"&Settings"_s);
    settings->setShortcut(Qt::Key_F4);
    view->addAction(settings);
    view->addAction(u"&List"_s, QKeySequence(Qt::Key_F6), this, [this] { page()->list().setFocus(); });

    menuBar()->addMenu(u"&Help"_s)->addAction(u"&About the list"_s, this, [this] { page()->list().About(); });
}

void GalleryWindow::closeEvent(QCloseEvent* event) {
    for (Page* page : pages())
        page->stop();
    event->accept();
}

} // namespace lumtex::gallery
