/// \file
/// The window of the gallery.
#pragma once

#include "page.h"
#include "property_panel.h"

#include <QMainWindow>
#include <QTabWidget>
#include <vector>

namespace lumtex::gallery {

/// A tab for each page, and the settings of its list beside them.
class GalleryWindow final : public QMainWindow {
    Q_OBJECT

  public:
    /// Takes the pages over, in the order of their tabs.
    explicit GalleryWindow(const std::vector<Page*>& pages);

    std::vector<Page*> pages() const;
    Page* page() const;
    PropertyPanel& panel() { return *panel_; }
    /// Brings a page to the front, filled.
    void turnTo(Page& page);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void addMenus();
    void pageTurned();

    QTabWidget* tabs_ = new QTabWidget;
    PropertyPanel* panel_ = new PropertyPanel;
    std::vector<Page*> filled_;
};

} // namespace lumtex::gallery
