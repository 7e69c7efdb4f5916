/// \file
/// The widget of the list as Qt's accessibility knows widgets: one table, with all of the list below it.
#pragma once

#include "qt/spoken_list.h"

#include <QAccessibleWidget>
#include <vector>

namespace lumtex::qt {

class ListWidget;

/// Its children are those of the list, and behind them the widgets of the program that lie over cells, if
/// there are any. Rows and columns count from 0, as Qt's do. Not valid once the widget's list has gone.
class SpokenTable final : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit SpokenTable(ListWidget& widget);

    bool isValid() const override;
    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    /// What the program called the widget goes before what the list says.
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    /// Those in which the selection shows.
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int /*column*/) const override { return false; }
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override { return select(row, true); }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int row) override { return select(row, false); }
    bool unselectColumn(int /*column*/) override { return false; }
    /// The list lets go by itself of what has gone.
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

  private:
    /// Null once the list has gone.
    std::shared_ptr<SpokenList> spoken() const;
    /// What lies over cells; null where nothing does.
    QAccessibleInterface* guests() const;
    bool select(int row, bool selected);
    std::vector<accessibility::Element> cellsSelected() const;
};

} // namespace lumtex::qt
