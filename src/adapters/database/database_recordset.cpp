#include "adapters/database/database_recordset.h"

#include "adapters/database/query.h"
#include "platform/record_source.h"
#include "values/runtime_error.h"
#include "values/text.h"

#include <limits>
#include <optional>

namespace lumtex::database {

namespace {

void demandArguments(std::span<Variant> arguments, std::size_t count) {
    if (arguments.size() != count)
        throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
}

/// An object whose members are only ever read.
class ReadOnlyObject : public Object {
  public:
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
};

class DatabaseRecordset final : public Object,
                                public RecordSource,
                                public std::enable_shared_from_this<DatabaseRecordset> {
  public:
    explicit DatabaseRecordset(std::unique_ptr<Query> query) : query_(std::move(query)) {}

    Variant get(StringView name, std::span<Variant> arguments) override;
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override;

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

    String fieldName(Long index) const {
        demandField(index);
        return query_->columnName(index);
    }
    Variant fieldValue(Long index) {
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
    void moveFirst() {
        if (place_ != Place::unopened)
            count_.reset();
        place_ = Place::end; // stays so where the start fails
        query_->start();
        fetch();
    }
    void fetch() {
        place_ = Place::end; // stays so where fetching fails
        if (query_->fetch())
            place_ = Place::record;
    }
    Variant recordCount() {
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

    std::unique_ptr<Query> query_;
    std::optional<std::int64_t> count_;
    Place place_ = Place::unopened;
};

class Field final : public ReadOnlyObject {
  public:
    Field(std::shared_ptr<DatabaseRecordset> recordset, Long index)
        : recordset_(std::move(recordset)), index_(index) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        demandArguments(arguments, 0);
        if (name.empty() || sameName(name, u"Value"))
            return recordset_->fieldValue(index_);
        if (sameName(name, u"Name"))
            return recordset_->fieldName(index_);
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }

  private:
    std::shared_ptr<DatabaseRecordset> recordset_;
    Long index_;
};

class Fields final : public ReadOnlyObject {
  public:
    explicit Fields(std::shared_ptr<DatabaseRecordset> recordset) : recordset_(std::move(recordset)) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        if (sameName(name, u"Count")) {
            demandArguments(arguments, 0);
            return recordset_->fieldCount();
        }
        if (!name.empty())
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        demandArguments(arguments, 1);
        const Long index = arguments[0].toLong();
        static_cast<void>(recordset_->fieldName(index)); // a number that no field has fails here
        return ObjectRef(std::make_shared<Field>(recordset_, index));
    }

  private:
    std::shared_ptr<DatabaseRecordset> recordset_;
};

Variant DatabaseRecordset::get(StringView name, std::span<Variant> arguments) {
    demandArguments(arguments, 0);
    if (sameName(name, u"RecordCount"))
        return recordCount();
    if (sameName(name, u"fields"))
        return ObjectRef(std::make_shared<Fields>(shared_from_this()));
    if (sameName(name, u"EOF"))
        return atEnd();
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

Variant DatabaseRecordset::call(StringView name, std::span<Variant> arguments) {
    demandArguments(arguments, 0);
    if (sameName(name, u"MoveFirst"))
        moveFirst();
    else if (sameName(name, u"MoveNext"))
        moveNext();
    else
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return {};
}

bool isServer(const std::string& database) {
    return database.starts_with("postgresql://") || database.starts_with("postgres://");
}

} // namespace

ObjectRef openRecordset(const std::string& database, const std::string& sql) {
    return std::make_shared<DatabaseRecordset>(isServer(database) ? openPostgresQuery(database, sql)
                                                                  : openSqliteQuery(database, sql));
}

} // namespace lumtex::database
