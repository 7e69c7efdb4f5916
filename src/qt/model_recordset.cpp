#include "qt/model_recordset.h"

#include "qt/qt_values.h"
#include "values/runtime_error.h"
#include "worlds/qt/qt_text.h"

namespace lumtex::qt {

// A model may be anybody's code, and may go in each of its functions.

Variant ModelRecordset::recordCount() {
    int known = -1;
    // One that promises rows and brings none would never end.
    while (model_ != nullptr && model_->canFetchMore({}) && model_->rowCount() != known) {
        known = model_->rowCount();
        if (model_ != nullptr)
            model_->fetchMore({});
    }
    return model_ != nullptr ? Long{model_->rowCount()} : Long{0};
}

Long ModelRecordset::fieldCount() {
    return model_ != nullptr ? Long{model_->columnCount()} : Long{0};
}

bool ModelRecordset::atEnd() {
    if (model_ != nullptr && row_ >= model_->rowCount() && model_ != nullptr && model_->canFetchMore({}) &&
        model_ != nullptr)
        model_->fetchMore({});
    return model_ == nullptr || row_ >= model_->rowCount();
}

void ModelRecordset::moveNext() {
    demandRecord();
    ++row_;
}

void ModelRecordset::demandField(Long index) {
    if (index < 0 || index >= fieldCount())
        throw RuntimeError(noSuchField, u"There is no field of this number");
}

void ModelRecordset::demandRecord() {
    if (atEnd())
        throw RuntimeError(noCurrentRecord, u"There is no current record");
}

String ModelRecordset::fieldName(Long index) {
    demandField(index);
    return fromQString(model_->headerData(index, Qt::Horizontal).toString());
}

Variant ModelRecordset::fieldValue(Long index) {
    demandField(index);
    demandRecord();
    const QVariant value = model_->data(model_->index(row_, index));
    if (value.isNull())
        return Null{};
    Variant converted = fromQVariant(value);
    return converted.isUnsupported() ? Variant(fromQString(value.toString())) : converted;
}

void ModelRecordset::appendField(Long index, String& text) {
    const Variant value = fieldValue(index);
    if (!value.isNull())
        text += value.toText();
}

} // namespace lumtex::qt
