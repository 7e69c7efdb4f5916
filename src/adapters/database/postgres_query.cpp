/// Queries on servers of PostgreSQL.
#include "adapters/database/query.h"
#include "values/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

#include <libpq-fe.h>

namespace lumtex::database {

namespace {

constexpr const char* statementName = "lumtex";

/// Numbers of types, as the server's catalogue pg_type has them for those it is born with.
enum TypeNumber : Oid {
    booleanType = 16,
    int8Type = 20,
    int2Type = 21,
    int4Type = 23,
    float4Type = 700,
    float8Type = 701,
};

struct Closer {
    void operator()(PGconn* connection) const { PQfinish(connection); }
    void operator()(PGresult* result) const { PQclear(result); }
    void operator()(PGcancel* cancel) const { PQfreeCancel(cancel); }
};
using Connection = std::unique_ptr<PGconn, Closer>;
using Result = std::unique_ptr<PGresult, Closer>;

/// What the server said, without details and hints; what the connection says where the server is silent.
RuntimeError failureOf(PGconn* connection, const PGresult* result) {
    const char* const said =
        result == nullptr ? nullptr : PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY);
    return failureWith(said != nullptr ? said : PQerrorMessage(connection));
}

Connection connect(const std::string& address) {
    // What the address says comes last and has its way.
    constexpr std::array keywords = {"connect_timeout", "fallback_application_name", "dbname"};
    const std::array<const char*, keywords.size() + 1> values = {"10", "lumtex", address.c_str(), nullptr};
    const std::array<const char*, keywords.size() + 1> names = {
        keywords[0], keywords[1], keywords[2], nullptr};
    Connection connection(PQconnectdbParams(names.data(), values.data(), 1));
    if (!connection)
        throw RuntimeError(ErrorNumber::outOfMemory);
    if (PQstatus(connection.get()) != CONNECTION_OK)
        throw failureOf(connection.get(), nullptr);
    PQsetNoticeProcessor(
        connection.get(), [](void*, const char*) {}, nullptr);
    return connection;
}

class PostgresQuery final : public Query {
  public:
    PostgresQuery(const std::string& address, std::string sql)
        : connection_(connect(address)), sql_(std::move(sql)) {
        if (withoutEnd(sql_).empty())
            throw failureWith("There is no statement");
        // Texts of dates and bytes must not hang on the server's settings.
        execute("SET client_encoding TO 'UTF8'; SET datestyle TO ISO; SET intervalstyle TO postgres; "
                "SET bytea_output TO hex");
        demand(Result(PQprepare(connection_.get(), statementName, sql_.c_str(), 0, nullptr)));
        const Result described = demand(Result(PQdescribePrepared(connection_.get(), statementName)));
        for (int i = 0; i < PQnfields(described.get()); ++i) {
            names_.push_back(fromUtf8(PQfname(described.get(), i)));
            types_.push_back(PQftype(described.get(), i));
        }
        if (names_.empty())
            throw failureWith("The statement yields no records");
    }

    Long columnCount() const override { return static_cast<Long>(names_.size()); }
    String columnName(Long column) const override { return names_[static_cast<std::size_t>(column)]; }

    std::int64_t count() override {
        if (running_)
            return -1; // the connection is busy with the records
        begin();
        const Result result(PQexec(connection_.get(), countingStatement(sql_).c_str()));
        if (PQresultStatus(result.get()) == PGRES_TUPLES_OK) {
            std::int64_t records = 0;
            const std::string_view digits = PQgetvalue(result.get(), 0, 0);
            std::from_chars(digits.data(), digits.data() + digits.size(), records);
            if (ran_)
                finish();
            return records;
        }
        const RuntimeError failure = failureOf(connection_.get(), result.get());
        finish();
        // Class 42 says that the statement cannot be written so, not that running it failed.
        const char* const state = PQresultErrorField(result.get(), PG_DIAG_SQLSTATE);
        if (state != nullptr && std::string_view(state).starts_with("42"))
            return countedByWalking();
        throw RuntimeError(failure);
    }

    void start() override {
        cancel();
        begin();
        const bool sent =
            PQsendQueryPrepared(connection_.get(), statementName, 0, nullptr, nullptr, nullptr, 0) == 1 &&
            PQsetSingleRowMode(connection_.get()) == 1;
        if (!sent) {
            const RuntimeError failure = failureOf(connection_.get(), nullptr);
            finish();
            throw RuntimeError(failure);
        }
        running_ = true;
        ran_ = false;
    }

    bool fetch() override {
        if (!running_)
            return false;
        record_.reset(PQgetResult(connection_.get()));
        const ExecStatusType status = PQresultStatus(record_.get());
        if (status == PGRES_SINGLE_TUPLE)
            return true;
        const bool atEnd = record_ == nullptr || status == PGRES_TUPLES_OK;
        const auto failure =
            atEnd ? std::optional<RuntimeError>() : failureOf(connection_.get(), record_.get());
        drain();
        finish();
        if (failure)
            throw RuntimeError(*failure);
        return false;
    }

    Variant value(Long column) const override {
        if (isNull(column))
            return Null{};
        const std::string_view text = bytesOf(column);
        switch (types_[static_cast<std::size_t>(column)]) {
        case booleanType:
            return text == "t";
        case int2Type:
        case int4Type:
        case int8Type: {
            Long number = 0;
            if (std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc())
                return number;
            break;
        }
        case float4Type:
        case float8Type:
            if (const auto number = finiteNumber(text))
                return *number;
            break;
        default:
            break;
        }
        return fromUtf8(text);
    }

    void appendText(Long column, String& text) const override {
        if (isNull(column))
            return;
        const std::string_view bytes = bytesOf(column);
        switch (types_[static_cast<std::size_t>(column)]) {
        case booleanType:
        case float4Type:
        case float8Type:
            text += value(column).toText();
            break;
        default:
            appendFromUtf8(text, bytes);
        }
    }

  private:
    static std::optional<Double> finiteNumber(std::string_view text) {
        Double number = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
        return read.ec == std::errc() && std::isfinite(number) ? std::optional(number) : std::nullopt;
    }

    bool isNull(Long column) const { return PQgetisnull(record_.get(), 0, column) == 1; }
    std::string_view bytesOf(Long column) const {
        return {PQgetvalue(record_.get(), 0, column),
                static_cast<std::size_t>(PQgetlength(record_.get(), 0, column))};
    }

    Result demand(Result result) {
        const ExecStatusType status = PQresultStatus(result.get());
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
            throw failureOf(connection_.get(), result.get());
        return result;
    }
    void execute(const char* sql) { demand(Result(PQexec(connection_.get(), sql))); }

    std::int64_t countedByWalking() {
        std::int64_t records = 0;
        start();
        while (fetch())
            ++records;
        ran_ = false;
        return records;
    }

    /// Reading within it sees one state of the data, whatever others write.
    void begin() {
        if (!inTransaction_)
            execute("BEGIN TRANSACTION ISOLATION LEVEL REPEATABLE READ READ ONLY");
        inTransaction_ = true;
    }

    /// There is nothing to keep, and a connection that is gone has no transaction left.
    void finish() {
        if (inTransaction_)
            PQclear(PQexec(connection_.get(), "ROLLBACK"));
        inTransaction_ = false;
        running_ = false;
        ran_ = true;
    }

    void drain() {
        while (Result(PQgetResult(connection_.get())) != nullptr)
            continue;
    }

    void cancel() {
        if (!running_)
            return;
        const std::unique_ptr<PGcancel, Closer> handle(PQgetCancel(connection_.get()));
        std::array<char, 256> reason{};
        if (handle)
            PQcancel(handle.get(), reason.data(), static_cast<int>(reason.size()));
        drain();
        finish();
    }

    Connection connection_;
    std::string sql_;
    std::vector<String> names_;
    std::vector<Oid> types_;
    Result record_;              ///< the one that was fetched last
    bool inTransaction_ = false; ///< from the first count or start to the end of the run
    bool running_ = false;       ///< the server sends records
    bool ran_ = false;           ///< a run has come to its end, and none has begun since
};

} // namespace

std::unique_ptr<Query> openPostgresQuery(const std::string& address, const std::string& sql) {
    return std::make_unique<PostgresQuery>(address, sql);
}

} // namespace lumtex::database
