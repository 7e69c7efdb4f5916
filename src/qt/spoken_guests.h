/// \file
/// The widgets of the program that lie over cells, as Qt's accessibility knows them.
#pragma once

#include "worlds/qt/screen_widget.h"

#include <QAccessibleWidget>
#include <vector>

namespace lumtex::qt {

/// Stands for the widget that shows the list, which is nothing by itself: it is valid only while widgets of
/// the program lie in it, so that what Qt tells of it is told to nobody.
class SpokenGuests final : public QAccessibleWidget {
  public:
    explicit SpokenGuests(ScreenWidget& screen);

    bool isValid() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;

  private:
    /// Empty once the screen has gone.
    std::vector<QWidget*> guests() const;
};

} // namespace lumtex::qt
