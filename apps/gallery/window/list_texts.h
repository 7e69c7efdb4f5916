/// \file
/// Columns, rows and texts of a list, said shortly.
#pragma once

#include "qt/lumtex_list_view.h"

#include <QStringList>

namespace lumtex::gallery {

/// `pixels` of a screen of 96 to the inch.
void addColumn(LumtexListView& list,
               const QString& title,
               int pixels,
               LumtexListView::cColumnHeaderAlign alignment = LumtexListView::cColumnLeft);
/// In front of the row `before`, which counts from 0, or behind the last one. Its cells are aligned as their
/// headers are.
void addRow(LumtexListView& list, const QStringList& texts, int before = -1);

/// The list takes "&" for the mark of a prefix and "&&" for the character.
QString escaped(QString text);
QString unescaped(QString text);

/// Rebuilds much of a list in one go, and paints once.
class PaintOnce {
  public:
    explicit PaintOnce(LumtexListView& list);
    PaintOnce(const PaintOnce&) = delete;
    PaintOnce& operator=(const PaintOnce&) = delete;
    ~PaintOnce();

  private:
    LumtexListView& list_;
};

/// Makes the row the current one, and has the list scroll where it is out of view; it counts from 1.
void goToRow(LumtexListView& list, int row);

/// Sorts by a column as its type asks, and the other way round the next time.
void sortByHeader(LumtexListView& list, int column, LumtexListView::cSortType type);

} // namespace lumtex::gallery
