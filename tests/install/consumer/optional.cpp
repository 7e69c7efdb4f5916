/// \file
/// Somebody's program with the components that are not asked for by everybody: settings in JSON, and a query.
#include "adapters/database/database_recordset.h"
#include "adapters/json/json_property_bag.h"
#include "model/list_view.h"
#include "worlds/headless/desktop.h"

using namespace lumtex;

int main() {
    headless::Desktop desktop;
    Host host;
    lmListViewEvents events;
    lmListView list(desktop, host, events);
    list.UserControl_InitProperties();
    list.setRecordset(database::openRecordset(":memory:", "select 7 as n union all select 8"));
    if (list.RowsCount() != 2 || list.ItemText(2, 1) != u"8")
        return 1;
    list.letIconW(40);
    json::JsonPropertyBag settings(desktop.runtime());
    list.UserControl_WriteProperties(settings);
    return settings.text().find("\"IconW\": 40") == std::string::npos ? 2 : 0;
}
