// Classifies, counts, opens.
#include "reports/report_source.h"

#include "query/sql_analysis.h"
#include "reports/report_values.h"
#include "shared/text_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrTooFewParameters = 3061;

// SourceOfData of the designer. What is SQL text ends as a command like a name.
constexpr std::int16_t kNothing = 2, kCommand = 3;

void classifyQuery(MainObject& main, ReportProcedure& procedure, ReportSource& source) {
  ConversionState& state = main.state;
  std::string sql = ExtractSQL(main, source.strSourceName);
  if (sql.starts_with("PARAMETERS")) {
    ExtractSQLParams(main, sql);
    source.strCommandText = sql;
    state.blnParamQuery = true;
  } else if (refersToForms(state.strRecordSource)) {
    // The source of the report before decides, and the text to be cut is still empty.
    procedure.statement([] { raise(kErrInvalidCall); });
  } else {
    source.strCommandText = source.text;
  }
}

}  // namespace

Recordset openQuery(MainObject& main, ReportProcedure& procedure, const std::string& name) {
  Recordset recordset;
  QueryDef query;
  if (procedure.errorOf([&] { query = main.state.mdbCurr.QueryDefs()(name); }) != 0)
    return recordset;
  GetQueryParams(main, query);
  procedure.statement([&] { recordset = query.OpenRecordset(); });
  procedure.statement([&] { query.Close(); });
  return recordset;
}

ReportSource classifyReportSource(MainObject& main, ReportProcedure& procedure) {
  ReportSource source;
  procedure.statement([&] { source.text = main.state.mrptCurr.text("RecordSource"); });
  source.intSourceOfData = source.text.empty() ? kNothing : kCommand;
  source.blnSQLSource = isSqlText(source.text);
  if (source.blnSQLSource) {
    source.strCommandText = source.text;
  } else if (!Trim(source.text).empty()) {
    source.strSourceName = source.text;
    source.blnIsTable = TableOrQuery(main, source.strSourceName) == 1;
    if (!source.blnIsTable) classifyQuery(main, procedure, source);
  }
  return source;
}

std::int32_t countRecordsets(MainObject& main, const ReportSource& source) {
  ConversionState& state = main.state;
  if (!source.blnSQLSource) return 1;
  std::string compared = source.text;
  std::int32_t count = GetRecordsetSourceTables(main, compared);
  for (std::int32_t i = 0; i < count; ++i) {
    if (!state.gstrSourceTables[static_cast<std::size_t>(i)].empty()) continue;
    count = GetSQLRecordsetInfo(main, ExtractSQL(main, source.strCommandText));
    state.blnJoinSQL = true;
    break;
  }
  return count;
}

Recordset openReportSource(MainObject& main, ReportProcedure& procedure,
                           const ReportSource& source) {
  if (!source.blnSQLSource && !source.blnIsTable)
    return openQuery(main, procedure, source.strSourceName);
  Recordset recordset;
  const std::int32_t error = procedure.errorOf([&] {
    recordset =
        main.state.mdbCurr.OpenRecordset(source.strSourceName, access_constants::dbOpenDynaset);
  });
  if (source.blnSQLSource && error == kErrTooFewParameters)
    return openQuery(main, procedure, source.strSourceName);
  return recordset;
}

}  // namespace tarrowin
