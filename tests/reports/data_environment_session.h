// What the tests of the Data Environment share: databases with their recorded sources.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/report_session.h"

namespace tarrowin::test {

inline ReportParts bound(const Json& source, int levels = 0) {
  ReportParts parts = reportOfSections({0}, levels);
  parts.properties["RecordSource"] = source;
  return parts;
}

inline Json fieldEntry(std::string_view name, int type, int size, std::string_view table) {
  return {{"name", name}, {"type", type}, {"size", size}, {"sourceTable", table}};
}

// A session over Orders and Customers whose further entries a test adds before it opens a report.
class DataEnvironment : public testing::Test {
 protected:
  void addQuery(std::string_view name, const Json& sql) {
    database["queries"].push_back(
        {{"name", name}, {"sql", sql}, {"fields", {fieldEntry("OrderID", 4, 4, "Orders")}}});
  }
  void addRecordset(std::string_view source, const std::vector<Json>& fields) {
    database["recordsets"].push_back({{"source", source}, {"fields", fields}});
  }
  void addFailingRecordset(std::string_view source, std::int32_t number) {
    database["recordsets"].push_back(
        {{"source", source}, {"error", number}, {"description", "As recorded."}});
  }
  void addRelation(std::string_view name, std::string_view table, std::string_view foreignTable,
                   const std::vector<Json>& fields) {
    database["relations"].push_back(
        {{"name", name}, {"table", table}, {"foreignTable", foreignTable}, {"fields", fields}});
  }
  static Json relationField(std::string_view name, std::string_view foreignName) {
    return {{"name", name}, {"foreignName", foreignName}};
  }
  // SQL text over Orders and Customers with its recordset.
  void addTwoTables() {
    addRecordset(kTwoTables, {fieldEntry("OrderID", 4, 4, "Orders"),
                              fieldEntry("CustomerID", 10, 5, "Customers")});
  }

  Lines linesOfReport(const ReportParts& parts) { return session.dataEnvironmentOf(parts); }
  // The lines of the n-th recordset, from 1 on.
  static Lines recordset(const Lines& lines, int n) {
    const std::string number = std::to_string(n);
    return block(lines, "   BeginProperty Recordset" + number,
                 "   EndProperty  'Recordset" + number);
  }

  static constexpr std::string_view kTwoTables = "SELECT * FROM Orders, Customers";

  ReportSession session;
  ConversionState& state = session.state;
  Json& database = session.database;
};

}  // namespace tarrowin::test
