/// Lists of Qt: the tree of items, and tables over a model of items and over one of our own on plain vectors.
/// Windows are on Qt's offscreen platform, which paints in software.
#include "peer.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeWidget>
#include <algorithm>
#include <numeric>

namespace lumtex::bench {
namespace {

/// A copy of its own, as of a text that the host has just read.
QString textOf(const Table& table, int row, int column) {
    const std::u16string_view text = table.wideCell(row, column);
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

/// Numbers are handed over as such, so that they sort by value.
QVariant valueOf(const Table& table, int row, int column) {
    const QString text = textOf(table, row, column);
    if (column == numberColumn)
        return text.toInt();
    if (column == amountColumn)
        return text.toDouble();
    return text;
}

void prepare(QAbstractScrollArea& view) {
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.resize(screenWidth, screenHeight);
}

template <class View>
bool showView(View& view) {
    view.setUpdatesEnabled(true);
    view.show();
    QApplication::processEvents();
    return true;
}

template <class View>
bool inkOf(View& view) {
    const QImage picture = view.viewport()->grab().toImage();
    for (int x = 0; x < 100; ++x) {
        if (picture.pixel(x, 10) != picture.pixel(0, 0))
            return true;
    }
    return false;
}

class TreeWidgetPeer final : public Peer {
  public:
    TreeWidgetPeer() {
        prepare(tree_);
        tree_.setColumnCount(tableColumns);
        tree_.setRootIsDecorated(false);
        tree_.setUniformRowHeights(true);
        tree_.setUpdatesEnabled(false);
        for (int column = 0; column < tableColumns; ++column)
            tree_.setColumnWidth(column, columnWidths[column]);
    }
    void load(const Table& table) override {
        QList<QTreeWidgetItem*> items;
        items.reserve(table.rows());
        for (int row = 0; row < table.rows(); ++row)
            items.append(itemOf(table, row));
        tree_.addTopLevelItems(items);
    }
    int count() override { return tree_.topLevelItemCount(); }
    std::string text(int row, int column) override {
        return tree_.topLevelItem(row)->text(column).toStdString();
    }
    bool sort(TableColumn column) override {
        tree_.sortItems(column, Qt::AscendingOrder);
        return true;
    }
    std::optional<int> find(const std::string& part, bool anyCase) override {
        for (int column = 0; column < tableColumns; ++column) {
            const auto found =
                tree_.findItems(QString::fromStdString(part),
                                anyCase ? Qt::MatchContains : Qt::MatchContains | Qt::MatchCaseSensitive,
                                column);
            if (!found.empty())
                return tree_.indexOfTopLevelItem(found.front());
        }
        return -1;
    }
    bool insertFirst(const Table& table, int row) override {
        tree_.insertTopLevelItem(0, itemOf(table, row));
        return true;
    }
    bool removeFirst() override {
        delete tree_.takeTopLevelItem(0);
        return true;
    }
    bool show() override { return showView(tree_); }
    void scrollTo(int row) override {
        tree_.scrollToItem(tree_.topLevelItem(row), QAbstractItemView::PositionAtTop);
        tree_.viewport()->repaint();
    }
    int firstSeen() override { return tree_.indexOfTopLevelItem(tree_.itemAt(2, 2)); }
    bool hasInk() override { return inkOf(tree_); }
    void appendPainted(const Table& table, int row) override {
        tree_.addTopLevelItem(itemOf(table, row));
        tree_.viewport()->repaint();
    }

  private:
    static QTreeWidgetItem* itemOf(const Table& table, int row) {
        auto* item = new QTreeWidgetItem;
        for (int column = 0; column < tableColumns; ++column)
            item->setData(column, Qt::DisplayRole, valueOf(table, row, column));
        return item;
    }
    QTreeWidget tree_;
};

/// What both tables have in common.
template <class Model>
class TablePeer : public Peer {
  public:
    TablePeer() {
        prepare(view_);
        view_.setUpdatesEnabled(false);
        view_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        view_.verticalHeader()->setDefaultSectionSize(20);
        view_.verticalHeader()->hide();
    }
    int count() override { return model_.rowCount(); }
    std::string text(int row, int column) override {
        return model_.data(model_.index(row, column)).toString().toStdString();
    }
    bool sort(TableColumn column) override {
        model_.sort(column, Qt::AscendingOrder);
        return true;
    }
    bool removeFirst() override { return model_.removeRow(0); }
    bool show() override {
        for (int column = 0; column < tableColumns; ++column)
            view_.setColumnWidth(column, columnWidths[column]);
        return showView(view_);
    }
    void scrollTo(int row) override {
        view_.scrollTo(model_.index(row, 0), QAbstractItemView::PositionAtTop);
        view_.viewport()->repaint();
    }
    int firstSeen() override { return view_.rowAt(2); }
    bool hasInk() override { return inkOf(view_); }

  protected:
    Model& model() { return model_; }
    void attach() { view_.setModel(&model_); }
    void repaint() { view_.viewport()->repaint(); }

  private:
    Model model_;
    QTableView view_;
};

class ItemTablePeer final : public TablePeer<QStandardItemModel> {
  public:
    ItemTablePeer() {
        model().setColumnCount(tableColumns);
        attach();
    }
    void load(const Table& table) override {
        for (int row = 0; row < table.rows(); ++row)
            model().appendRow(rowOf(table, row));
    }
    std::optional<int> find(const std::string& part, bool anyCase) override {
        for (int column = 0; column < tableColumns; ++column) {
            const auto found =
                model().findItems(QString::fromStdString(part),
                                  anyCase ? Qt::MatchContains : Qt::MatchContains | Qt::MatchCaseSensitive,
                                  column);
            if (!found.empty())
                return found.front()->row();
        }
        return -1;
    }
    bool insertFirst(const Table& table, int row) override {
        model().insertRow(0, rowOf(table, row));
        return true;
    }
    void appendPainted(const Table& table, int row) override {
        model().appendRow(rowOf(table, row));
        repaint();
    }

  private:
    static QStandardItem* itemOf(const Table& table, int row, int column) {
        auto* item = new QStandardItem;
        item->setData(valueOf(table, row, column), Qt::DisplayRole);
        return item;
    }
    static QList<QStandardItem*> rowOf(const Table& table, int row) {
        QList<QStandardItem*> items;
        for (int column = 0; column < tableColumns; ++column)
            items.append(itemOf(table, row, column));
        return items;
    }
};

struct VectorRow {
    QString texts[tableColumns];
};

/// Rows in a vector; a sort moves them all and says so once.
class VectorModel final : public QAbstractTableModel {
  public:
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : tableColumns;
    }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override {
        if (role != Qt::DisplayRole)
            return {};
        return rows_[static_cast<std::size_t>(index.row())].texts[index.column()];
    }
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override {
        beginRemoveRows(parent, row, row + count - 1);
        rows_.erase(rows_.begin() + row, rows_.begin() + row + count);
        endRemoveRows();
        return true;
    }
    void sort(int column, Qt::SortOrder /*order*/) override {
        emit layoutAboutToBeChanged();
        if (column == amountColumn)
            sortBy([](const QString& text) { return text.toDouble(); }, column);
        else
            sortBy([](const QString& text) { return text; }, column);
        emit layoutChanged();
    }
    void insert(int place, VectorRow row) {
        beginInsertRows({}, place, place);
        rows_.insert(rows_.begin() + place, std::move(row));
        endInsertRows();
    }
    void fill(std::vector<VectorRow> rows) {
        beginResetModel();
        rows_ = std::move(rows);
        endResetModel();
    }
    int find(const QString& part, Qt::CaseSensitivity letters) const {
        const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const VectorRow& row) {
            return std::any_of(std::begin(row.texts), std::end(row.texts), [&](const QString& text) {
                return text.contains(part, letters);
            });
        });
        return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
    }

  private:
    template <class KeyOf>
    void sortBy(KeyOf keyOf, int column) {
        using Key = decltype(keyOf(QString()));
        std::vector<std::pair<Key, std::uint32_t>> keys;
        keys.reserve(rows_.size());
        for (std::size_t i = 0; i < rows_.size(); ++i)
            keys.emplace_back(keyOf(rows_[i].texts[column]), static_cast<std::uint32_t>(i));
        std::sort(keys.begin(), keys.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        std::vector<VectorRow> sorted;
        sorted.reserve(rows_.size());
        for (const auto& [key, row] : keys)
            sorted.push_back(std::move(rows_[row]));
        rows_ = std::move(sorted);
    }

    std::vector<VectorRow> rows_;
};

class VectorTablePeer final : public TablePeer<VectorModel> {
  public:
    VectorTablePeer() { attach(); }
    void load(const Table& table) override {
        std::vector<VectorRow> rows;
        rows.reserve(static_cast<std::size_t>(table.rows()));
        for (int row = 0; row < table.rows(); ++row)
            rows.push_back(rowOf(table, row));
        model().fill(std::move(rows));
    }
    std::optional<int> find(const std::string& part, bool anyCase) override {
        return model().find(QString::fromStdString(part), anyCase ? Qt::CaseInsensitive : Qt::CaseSensitive);
    }
    bool insertFirst(const Table& table, int row) override {
        model().insert(0, rowOf(table, row));
        return true;
    }
    void appendPainted(const Table& table, int row) override {
        model().insert(model().rowCount(), rowOf(table, row));
        repaint();
    }

  private:
    static VectorRow rowOf(const Table& table, int row) {
        VectorRow made;
        for (int column = 0; column < tableColumns; ++column)
            made.texts[column] = textOf(table, row, column);
        return made;
    }
};

template <class Kind>
std::unique_ptr<Peer> make() {
    return std::make_unique<Kind>();
}

} // namespace
} // namespace lumtex::bench

int main(int count, char** arguments) {
    using namespace lumtex::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int none = 1;
    const QApplication application(none, arguments);
    return runMeasures(count,
                       arguments,
                       {{"Qt QTreeWidget", make<TreeWidgetPeer>, 1'000'000},
                        {"Qt QTableView, items", make<ItemTablePeer>, 1'000'000},
                        {"Qt QTableView, vectors", make<VectorTablePeer>, 1'000'000}});
}
