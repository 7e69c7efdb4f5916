#include "query_source.h"

#include "adapters/database/database_recordset.h"
#include "guards/error.h"
#include "platform/record_source.h"
#include "values/runtime_error.h"

#include <optional>
#include <type_traits>

namespace lumtex::gallery {

namespace {

constexpr Long recordsBetweenReports = 10'000;

/// Hands all calls on, counts the records, and keeps the first failure.
class WatchedRecordset final : public Object, public RecordSource {
  public:
    WatchedRecordset(ObjectRef recordset, const std::function<bool(Long)>& progress)
        : recordset_(std::move(recordset)), records_(dynamic_cast<RecordSource&>(*recordset_)),
          progress_(progress) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        return watched([&] { return recordset_->get(name, arguments); });
    }
    void put(StringView name, const Variant& value) override { recordset_->put(name, value); }
    Variant call(StringView name, std::span<Variant> arguments) override {
        Variant result = watched([&] { return recordset_->call(name, arguments); });
        ++reached_; // the first record, by MoveFirst
        return result;
    }

    Long fieldCount() override { return records_.fieldCount(); }
    void appendField(Long index, String& text) override {
        watched([&] { records_.appendField(index, text); });
    }
    void moveNext() override {
        watched([&] { records_.moveNext(); });
        if (reached_++ % recordsBetweenReports == 0)
            wanted_ = progress_(reached_ - 1);
    }
    bool atEnd() override { return !wanted_ || records_.atEnd(); }

    /// How many records came before it failed.
    Long reached() const { return reached_; }
    const std::optional<RuntimeError>& failure() const { return failure_; }

  private:
    template <class Call>
    std::invoke_result_t<Call> watched(Call call) {
        try {
            return call();
        } catch (const RuntimeError& failure) {
            if (!failure_)
                failure_ = failure;
            throw;
        }
    }

    ObjectRef recordset_;
    RecordSource& records_;
    std::function<bool(Long)> progress_;
    Long reached_ = 0;
    bool wanted_ = true;
    std::optional<RuntimeError> failure_;
};

/// The reports of the list tell of each statement that failed; the gallery has a line of its own for all.
class Silence {
  public:
    Silence() : before_(error_.SilentError()) { error_.letSilentError(true); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() { error_.letSilentError(before_); }

  private:
    Error error_;
    bool before_;
};

ObjectRef openedQuery(const std::string& database, const std::string& sql) {
    try {
        return database::openRecordset(database, sql);
    } catch (const RuntimeError& failure) {
        // An address may hold a password.
        const bool isAddress = database.find("://") != std::string::npos;
        throw Failure((isAddress ? "the server" : database) + ": " + failure.what());
    }
}

} // namespace

void readQuery(const std::string& database,
               const std::string& sql,
               lmListView& list,
               const std::function<bool(Long)>& progress) {
    const auto recordset = std::make_shared<WatchedRecordset>(openedQuery(database, sql), progress);
    {
        const Silence silence;
        list.setRecordset(recordset);
    }
    if (const auto& failure = recordset->failure())
        throw Failure("the query failed after " + std::to_string(recordset->reached()) +
                      " records: " + failure->what());
    if (list.RowsCount() == 0)
        throw Failure("the query yields no records");
    list.letAutoRedraw(false);
    fitColumns(list, 1, 0);
    list.letAutoRedraw(true);
}

} // namespace lumtex::gallery
