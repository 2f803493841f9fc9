// What a report's RecordSource is to the Data Environment.
#pragma once

#include <cstdint>
#include <string>

#include "reports/report_procedure.h"

namespace tarrowin {

struct ReportSource {
  std::string text;  // RecordSource; empty when it cannot be read
  std::int16_t intSourceOfData = 0;
  bool blnSQLSource = false;   // the text of a query
  bool blnIsTable = false;     // the name of a table
  std::string strSourceName;   // what is opened for its fields
  std::string strCommandText;  // empty for a table

  bool isCommand(const ConversionState& state) const { return blnSQLSource || state.blnParamQuery; }
};

// Reads RecordSource of mrptCurr; sets blnParamQuery.
ReportSource classifyReportSource(MainObject& main, ReportProcedure& procedure);

// How many recordsets the source needs: one for a name, for SQL text as many as it has source
// tables, which are then in gstrSourceTables. Sets blnJoinSQL.
std::int32_t countRecordsets(MainObject& main, const ReportSource& source);

// A recordset on the query of that name, its parameters filled; no object when it cannot be had.
Recordset openQuery(MainObject& main, ReportProcedure& procedure, const std::string& name);

// A recordset on strSourceName; no object when it cannot be had.
Recordset openReportSource(MainObject& main, ReportProcedure& procedure,
                           const ReportSource& source);

}  // namespace tarrowin
