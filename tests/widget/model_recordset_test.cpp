/// Models of Qt as recordsets, and widgets over cells, as a program of Qt hands them over.
#include "model/list_view.h"
#include "qt/model_recordset.h"
#include "qt/qt_values.h"
#include "values/runtime_error.h"
#include "values/variant.h"
#include "widget_fixture.h"
#include "worlds/qt/carried_data.h"
#include "worlds/qt/widget_object.h"

#include <QDate>
#include <QMimeData>
#include <QPushButton>
#include <QStandardItemModel>

namespace lumtex::testing {

namespace {

/// Fetches its rows three at a time, as models of queries do.
class SlowModel final : public QAbstractTableModel {
  public:
    int rows = 0;
    int all = 8;
    int columnCount(const QModelIndex& = {}) const override { return 2; }
    int rowCount(const QModelIndex& = {}) const override { return rows; }
    bool canFetchMore(const QModelIndex&) const override { return rows < all; }
    void fetchMore(const QModelIndex&) override {
        if (!stuck)
            rows = std::min(rows + 3, all);
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole)
            return {};
        return index.column() == 0 ? QVariant(index.row() * 1.5) : QVariant(QDate(2024, 2, 1 + index.row()));
    }
    bool stuck = false;
};

class QtModelRecordset : public ::testing::Test {
  protected:
    QtModelRecordset() {
        model->setHorizontalHeaderLabels({QStringLiteral("City"), QStringLiteral("Country")});
        model->appendRow(
            {new QStandardItem(QStringLiteral("Lisbon")), new QStandardItem(QStringLiteral("Portugal"))});
        model->appendRow(new QStandardItem(QStringLiteral("Oslo")));
    }

    static Long failureOf(const std::function<void()>& work) {
        try {
            work();
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    }
    Variant field(Long index) {
        Variant position(index);
        return records->get(u"fields").toObject()->get(u"", {&position, 1}).toObject()->get(u"Value");
    }

    std::unique_ptr<QStandardItemModel> model = std::make_unique<QStandardItemModel>();
    std::shared_ptr<qt::ModelRecordset> records = std::make_shared<qt::ModelRecordset>(*model);
};

TEST_F(QtModelRecordset, GoesThroughTheRowsOfAModel) {
    EXPECT_EQ(records->get(u"RecordCount").toLong(), 2);
    EXPECT_EQ(records->get(u"fields").toObject()->get(u"Count").toLong(), 2);
    EXPECT_EQ(records->fieldName(1), u"Country");
    EXPECT_EQ(field(0).toText(), u"Lisbon");
    records->call(u"MoveNext");
    EXPECT_EQ(field(0).toText(), u"Oslo");
    EXPECT_TRUE(field(1).isNull());
    records->call(u"MoveNext");
    EXPECT_TRUE(records->get(u"EOF").toBoolean());
    records->call(u"MoveFirst");
    EXPECT_EQ(field(1).toText(), u"Portugal");
}

TEST_F(QtModelRecordset, FailsAsOtherRecordsetsDo) {
    EXPECT_EQ(failureOf([&] { field(2); }), noSuchField);
    EXPECT_EQ(failureOf([&] { field(-1); }), noSuchField);
    records->moveNext();
    records->moveNext();
    EXPECT_EQ(failureOf([&] { field(0); }), noCurrentRecord);
    EXPECT_EQ(failureOf([&] { records->moveNext(); }), noCurrentRecord);
    records->moveFirst();
    model.reset();
    EXPECT_TRUE(records->atEnd());
    EXPECT_EQ(records->get(u"RecordCount").toLong(), 0);
    EXPECT_EQ(failureOf([&] { field(0); }), noSuchField);
}

TEST_F(QtModelRecordset, FetchesWhatComesOnDemand) {
    SlowModel slow;
    qt::ModelRecordset all(slow);
    int count = 0;
    for (; !all.atEnd(); all.moveNext())
        ++count;
    EXPECT_EQ(count, 8);
    slow.rows = 0;
    EXPECT_EQ(all.recordCount().toLong(), 8);
    slow.rows = 0;
    slow.stuck = true;
    EXPECT_EQ(all.recordCount().toLong(), 0) << "promised rows never came";
    EXPECT_TRUE(all.atEnd());
}

TEST_F(QtModelRecordset, AListTakesAModel) {
    std::vector<std::string> boxes;
    QWidget container;
    QuietWorld world(container, boxes);
    Host host;
    lmListViewEvents events;
    lmListView list(world, host, events);
    list.UserControl_InitProperties();
    list.setRecordset(qt::fromQVariant(QVariant::fromValue<QObject*>(model.get())).toObject());
    EXPECT_EQ(list.ColumnsCount(), 2);
    EXPECT_EQ(list.RowsCount(), 2);
    EXPECT_EQ(list.ItemText(Variant(Long{1}), Variant(Long{2})), u"Portugal");
    EXPECT_EQ(list.ItemText(Variant(Long{2}), Variant(Long{1})), u"Oslo");
    EXPECT_TRUE(boxes.empty()) << boxes.front();
}

TEST_F(QtModelRecordset, ObjectsComeBackAsTheyWentIn) {
    QPushButton button(QStringLiteral("Rate"));
    QMimeData carried;
    const ObjectRef widget = qt::fromQVariant(QVariant::fromValue<QObject*>(&button)).toObject();
    EXPECT_EQ(qt::toQObject(widget), &button);
    EXPECT_NE(widget->get(u"hWnd").toLong(), 0);
    EXPECT_EQ(widget->get(u"text").toText(), u"Rate") << "what else it has is a property of Qt";
    EXPECT_EQ(qt::toQObject(qt::fromQVariant(QVariant::fromValue<QObject*>(model.get())).toObject()),
              model.get());
    EXPECT_EQ(qt::toQObject(qt::carriedData(carried)), &carried);
}

} // namespace
} // namespace lumtex::testing
