/// \file
/// Databases for one test, and a list that takes what they hold.
#pragma once

#include "adapters/database/database_recordset.h"
#include "list_fixture.h"
#include "platform/record_source.h"
#include "scratch_folder.h"
#include "values/runtime_error.h"
#include "values/text.h"

#include <string>

namespace lumtex::testing {

/// Hands every call on to a recordset, and hides that its records can be had without calls by name.
class ByNameAlone final : public Object {
  public:
    explicit ByNameAlone(ObjectRef recordset) : recordset_(std::move(recordset)) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        return recordset_->get(name, arguments);
    }
    void put(StringView name, const Variant& value) override { recordset_->put(name, value); }
    Variant call(StringView name, std::span<Variant> arguments) override {
        return recordset_->call(name, arguments);
    }

  private:
    ObjectRef recordset_;
};

inline Variant fieldOf(const ObjectRef& recordset, Long index, StringView member = {}) {
    Variant position = index;
    return recordset->get(u"fields").toObject()->get({}, {&position, 1}).toObject()->get(member);
}

/// What a call throws, as "number: text"; "nothing" where it throws nothing.
template <class Call>
std::string failureOf(Call&& call) {
    try {
        call();
    } catch (const RuntimeError& failure) {
        return std::to_string(failure.number()) + ": " + failure.what();
    }
    return "nothing";
}

/// A number, and behind it what every failure of a database begins with.
inline const std::string databaseSays = "-2147467259: ";

class DatabaseFixture : public ListFixture {
  protected:
    /// The list's header and rows, one line each.
    std::string content() {
        std::string text;
        for (Long column = 1; column <= list.ColumnsCount(); ++column)
            text += (column > 1 ? "|" : "") + toUtf8(list.ColumnText(column));
        for (Long row = 1; row <= list.RowsCount(); ++row) {
            text += "\n";
            for (Long column = 1; column <= list.ColumnsCount(); ++column)
                text += (column > 1 ? "|" : "") + toUtf8(list.ItemText(row, column));
        }
        return text;
    }

    /// The content after a load of `query`, which must be the same by names and without.
    std::string load(const std::string& database, const std::string& query) {
        list.setRecordset(std::make_shared<ByNameAlone>(database::openRecordset(database, query)));
        const std::string byName = content();
        list.setRecordset(database::openRecordset(database, query));
        EXPECT_EQ(content(), byName);
        EXPECT_TRUE(list.AutoRedraw());
        EXPECT_TRUE(list.AutoCheckScroll());
        return byName;
    }

    /// The texts of all reports so far.
    std::string reports() {
        std::string all;
        for (const auto& box : desktop.runtime().boxes)
            all += toUtf8(box.text) + "\n";
        return all;
    }
};

} // namespace lumtex::testing
