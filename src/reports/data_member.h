// The data member of a bound item: what of the Data Environment holds its field.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "reports/report_procedure.h"

namespace tarrowin {

// The cleaned member of the field of that name (capitals and small letters as they stand) in
// strRecordSource: the field's table where the source is a table, the command where it is SQL text,
// the name of a query. None when the source has no such field or cannot be opened. A source of SQL
// text that needs parameters is opened once more without its conditions, and stays shortened.
// Runs its statements under the procedure of the items.
std::optional<std::string> dataMemberOf(MainObject& main, ReportProcedure& procedure,
                                        std::string_view field);

// A report is begun: what is known of the fields of the one before goes.
void forgetDataMembers(ConversionState& state);

}  // namespace tarrowin
