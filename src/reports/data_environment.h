// The Data Environment designer file of a report: one connection, and a recordset for each source
// table of SQL text or one for a table or query.
#pragma once

namespace tarrowin {

struct MainObject;

// Writes the whole file from mrptCurr to the output file, closes it, and sets result. Sets
// lngReportHeight and the heights, strDataMember of a grouped report, strGroupFields,
// strCommandNames, blnParamQuery, blnJoinSQL.
void GetDesignerReportProps(MainObject& main, bool& result);

}  // namespace tarrowin
