/// \file
/// A list with content of its own, and recordsets to replace it by.
#pragma once

#include "guards/error.h"
#include "list_fixture.h"
#include "test_recordset.h"

namespace lumtex::testing {

class RecordsetFixture : public ListFixture {
  protected:
    using Records = std::vector<std::vector<Variant>>;

    static std::shared_ptr<TestRecordset> make(std::vector<String> names, Records records) {
        return std::make_shared<TestRecordset>(std::move(names), std::move(records));
    }

    /// "a|b" for the header, then one line a row.
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

    /// "438 Recordset; 5 Recordset": number and procedure of each report since the last call.
    std::string reports() {
        std::string all;
        std::vector<headless::HeadlessRuntime::Box>& boxes = desktop.runtime().boxes;
        const std::vector<headless::HeadlessRuntime::Box> told = boxes;
        boxes.clear();
        for (const headless::HeadlessRuntime::Box& box : told) {
            boxes = {box};
            all += (all.empty() ? "" : "; ") + lastReport();
        }
        boxes.clear();
        return all;
    }

    /// What the list holds before a load.
    void fillBefore() {
        addColumns({50, 60});
        list.letColumnText(1, u"old");
        addRows(1, u"x,y");
    }
};

} // namespace lumtex::testing
