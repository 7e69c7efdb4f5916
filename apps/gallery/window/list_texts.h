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
/// Numbers, in header and cells: the list aligns the cells of a row when the row is added.
void addRow(LumtexListView& list, const QStringList& texts);

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

/// Sorts by a column as its type asks, and the other way round the next time.
void sortByHeader(LumtexListView& list, int column, LumtexListView::cSortType type);

} // namespace lumtex::gallery
