/// \file
/// The results of database queries.
#pragma once

#include "list_builder.h"

#include <string>

namespace lumtex::gallery {

/// Hands a query to the list as its `Recordset`. `progress` hears now and then how many records came, and
/// ends the reading there with false. Throws Failure in one line where the database or the statement is
/// refused, where the query fails on its way, and where it yields no records; the list then keeps what came
/// before. See `openRecordset` for the arguments.
void readQuery(const std::string& database,
               const std::string& sql,
               lmListView& list,
               const std::function<bool(Long)>& progress);

} // namespace lumtex::gallery
