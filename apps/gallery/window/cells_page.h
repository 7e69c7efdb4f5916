/// \file
/// The page "Cells".
#pragma once

#include "page.h"

#include <QTimer>
#include <vector>

class QProgressBar;

namespace lumtex::gallery {

/// Fonts, colours, icons, check boxes and widgets in cells.
class CellsPage final : public Page {
    Q_OBJECT

  public:
    CellsPage();
    void fill() override;
    void stop() override { clock_.stop(); }

  private:
    void addTask(int number);
    void tick();

    QTimer clock_;
    std::vector<QProgressBar*> bars_;
};

} // namespace lumtex::gallery
