/// \file
/// A recordset made of tables, which notes every call and fails where a test says so.
#pragma once

#include "platform/record_source.h"
#include "values/references/object.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/variant.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lumtex::testing {

/// Its cursor starts before the first record, and stays where it is when a call fails.
class TestRecordset : public Object {
  public:
    TestRecordset(std::vector<String> fieldNames, std::vector<std::vector<Variant>> table)
        : names(std::move(fieldNames)), records(std::move(table)), fields_(std::make_shared<Fields>(*this)) {}

    std::vector<String> names;
    std::vector<std::vector<Variant>> records;
    /// What `RecordCount`, `Count` and `EOF` say; the truth where there is none.
    std::optional<Variant> countSaid;
    std::optional<Variant> fieldCountSaid;
    std::optional<Variant> endSaid;
    /// Runs at each call, with its line of the log and how often it came; may throw.
    std::function<void(const std::string& call, int times)> onCall = [](const std::string&, int) {};

    /// One line a call: "RecordCount", "fields", "Count", "fields(0)", "Name(0)", "Value(0)", "MoveFirst",
    /// ...
    std::vector<std::string> log;

    using Object::call;
    using Object::get;

    Variant get(StringView name, std::span<Variant> arguments) override {
        demandNoArguments(arguments);
        if (sameName(name, u"RecordCount")) {
            note("RecordCount");
            return countSaid.value_or(static_cast<Long>(records.size()));
        }
        if (sameName(name, u"fields")) {
            note("fields");
            return ObjectRef(fields_);
        }
        if (sameName(name, u"EOF")) {
            note("EOF");
            return endSaid.value_or(position_ >= static_cast<Long>(records.size()));
        }
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override {
        demandNoArguments(arguments);
        if (sameName(name, u"MoveFirst")) {
            note("MoveFirst");
            position_ = 0;
        } else if (sameName(name, u"MoveNext")) {
            note("MoveNext");
            ++position_;
        } else {
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        }
        return {};
    }

  protected:
    void note(const std::string& call) {
        log.push_back(call);
        const auto hook = onCall; // a copy, since it may put something else in its place
        hook(call, ++times_[call]);
    }
    const Variant& valueAt(Long index) const {
        if (position_ < 0 || position_ >= static_cast<Long>(records.size()))
            throw RuntimeError(3021, u"No current record");
        return records[static_cast<std::size_t>(position_)].at(static_cast<std::size_t>(index));
    }
    Long position_ = -1;

  private:
    static void demandNoArguments(std::span<Variant> arguments) {
        if (!arguments.empty())
            throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
    }

    class Field final : public Object {
      public:
        Field(TestRecordset& owner, Long index) : owner_(owner), index_(index) {}
        Variant get(StringView name, std::span<Variant> arguments) override {
            demandNoArguments(arguments);
            const std::string place = "(" + std::to_string(index_) + ")";
            if (sameName(name, u"Name")) {
                owner_.note("Name" + place);
                return owner_.names[static_cast<std::size_t>(index_)];
            }
            if (!name.empty())
                throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
            owner_.note("Value" + place);
            return owner_.valueAt(index_);
        }
        void put(StringView, const Variant&) override {
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        }
        Variant call(StringView, std::span<Variant>) override {
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        }

      private:
        TestRecordset& owner_;
        Long index_;
    };

    class Fields final : public Object {
      public:
        explicit Fields(TestRecordset& owner) : owner_(owner) {}
        Variant get(StringView name, std::span<Variant> arguments) override {
            if (sameName(name, u"Count")) {
                demandNoArguments(arguments);
                owner_.note("Count");
                return owner_.fieldCountSaid.value_or(static_cast<Long>(owner_.names.size()));
            }
            if (!name.empty() || arguments.size() != 1)
                throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
            const Long index = arguments[0].toLong();
            owner_.note("fields(" + std::to_string(index) + ")");
            if (index < 0 || index >= static_cast<Long>(owner_.names.size()))
                throw RuntimeError(3265, u"Item not found in this collection");
            return ObjectRef(std::make_shared<Field>(owner_, index));
        }
        void put(StringView, const Variant&) override {
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        }
        Variant call(StringView, std::span<Variant>) override {
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        }

      private:
        TestRecordset& owner_;
    };

    std::shared_ptr<Fields> fields_;
    std::map<std::string, int> times_;
};

/// One whose records can be read without calls by name; notes "direct" for each such call.
class DirectTestRecordset final : public TestRecordset, public RecordSource {
  public:
    using TestRecordset::TestRecordset;

    Long fieldCount() override {
        note("direct Count");
        return static_cast<Long>(names.size());
    }
    void appendField(Long index, String& text) override {
        note("direct Value");
        const Variant& value = valueAt(index);
        if (!value.isNull())
            text += value.toText();
    }
    void moveNext() override {
        note("direct MoveNext");
        ++position_;
    }
    bool atEnd() override {
        note("direct EOF");
        return position_ >= static_cast<Long>(records.size());
    }
};

} // namespace lumtex::testing
