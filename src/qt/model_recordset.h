/// \file
/// A model of Qt as a recordset.
#pragma once

#include "platform/recordset_object.h"

#include <QAbstractItemModel>
#include <QPointer>

namespace lumtex::qt {

/// The rows and columns of a model's root, as its views show them: fields have the texts of the header for
/// names, and values as `fromQVariant` makes them; a null one is Null, and one of an unknown kind its text.
/// For a query, take a QSqlQueryModel.
///
/// Rows that a model fetches on demand are fetched as the cursor gets there, and all of them for
/// `RecordCount`. Once the model is gone, or has fewer rows, there is no current record.
class ModelRecordset final : public RecordsetObject {
  public:
    explicit ModelRecordset(QAbstractItemModel& model) : model_(&model) {}

    Variant recordCount() override;
    void moveFirst() override { row_ = 0; }
    String fieldName(Long index) override;
    Variant fieldValue(Long index) override;
    Long fieldCount() override;
    void appendField(Long index, String& text) override;
    void moveNext() override;
    bool atEnd() override;

    /// Null once it is gone.
    QAbstractItemModel* model() const { return model_; }

  private:
    void demandField(Long index);
    void demandRecord();

    QPointer<QAbstractItemModel> model_;
    int row_ = 0;
};

} // namespace lumtex::qt
