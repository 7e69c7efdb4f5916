#include "adapters/database/database_recordset.h"

#include "adapters/database/query.h"
#include "platform/recordset_object.h"
#include "values/runtime_error.h"

#include <limits>
#include <optional>

namespace lumtex::database {

namespace {

class DatabaseRecordset final : public RecordsetObject {
  public:
    explicit DatabaseRecordset(std::unique_ptr<Query> query) : query_(std::move(query)) {}

    void moveFirst() override {
        if (place_ != Place::unopened)
            count_.reset();
        place_ = Place::end; // stays so where the start fails
        query_->start();
        fetch();
    }
    Variant recordCount() override {
        if (!count_) {
            const std::int64_t counted = query_->count();
            if (counted < 0)
                return Long{-1};
            count_ = counted;
        }
        if (*count_ > std::numeric_limits<Long>::max())
            return static_cast<Double>(*count_);
        return static_cast<Long>(*count_);
    }
    Long fieldCount() override { return query_->columnCount(); }
    void appendField(Long index, String& text) override {
        demandField(index);
        demandRecord();
        query_->appendText(index, text);
    }
    void moveNext() override {
        demandRecord();
        fetch();
    }
    bool atEnd() override {
        beAtFirst();
        return place_ == Place::end;
    }

    String fieldName(Long index) override {
        demandField(index);
        return query_->columnName(index);
    }
    Variant fieldValue(Long index) override {
        demandField(index);
        demandRecord();
        return query_->value(index);
    }

  private:
    enum class Place : Byte { unopened, record, end };

    void demandField(Long index) const {
        if (index < 0 || index >= query_->columnCount())
            throw RuntimeError(noSuchField, u"There is no field of this number");
    }
    void beAtFirst() {
        if (place_ == Place::unopened)
            moveFirst();
    }
    void demandRecord() {
        beAtFirst();
        if (place_ != Place::record)
            throw RuntimeError(noCurrentRecord, u"There is no current record");
    }
    void fetch() {
        place_ = Place::end; // stays so where fetching fails
        if (query_->fetch())
            place_ = Place::record;
    }

    std::unique_ptr<Query> query_;
    std::optional<std::int64_t> count_;
    Place place_ = Place::unopened;
};

bool isServer(const std::string& database) {
    return database.starts_with("postgresql://") || database.starts_with("postgres://");
}

} // namespace

ObjectRef openRecordset(const std::string& database, const std::string& sql) {
    return std::make_shared<DatabaseRecordset>(isServer(database) ? openPostgresQuery(database, sql)
                                                                  : openSqliteQuery(database, sql));
}

} // namespace lumtex::database
