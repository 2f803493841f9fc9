// The Data Environment file: its header, what it makes of the record source, its error table.
#include "reports/data_environment.h"

#include "project/project_text.h"
#include "reports/data_environment_session.h"

namespace tarrowin::test {
namespace {

TEST_F(DataEnvironment, OfAReportWithoutARecordSource) {
  session.openReport({});
  SetupDesignerName(session.main, "Sales");
  bool result = false;
  GetDesignerReportProps(session.main, result);
  EXPECT_TRUE(result);
  EXPECT_EQ(fileContent(session.out() / "deSales.dsr"), asFile(R"(
VERSION 5.00
Begin {C0E45035-5775-11D0-B388-00A0C9055D8E} deSales
   ClientHeight     = 1120
   ClientLeft       = 0
   ClientTop        = 0
   ClientWidth      = 9000
   _ExtentX         = 9840
   _ExtentY         = 1960
   FolderFlags      = 7
   TypeInfoCookie   = 0
   Version          = 4
   NumConnections   = 1
   BeginProperty Connection1
      ConnectionName   = "Connection1"
      ConnDispID       = 1001
      SourceOfData     = 2
      ConnectionSource = "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=C:\Data\Orders.mdb"
      Expanded         = -1   'True
      QuoteChar        = 96
      SeparatorChar    = 46
   EndProperty   ' Connection1
   NumRecordsets   = 1
   BeginProperty Recordset1
      CommandName     = ""
      CommDispId      = 1002
      RsDispId        = 1003
      CommandText     = ""
      ActiveConnectionName= "Connection1"
      CommandType     = 2
      dbObjectType    = 2
      Grouping        = 0   'False
      Expanded        = -1   'True
      SummaryExpanded = -1   'True
      DetailExpanded  = -1   'True
      IsRSReturning   = -1   'True
   EndProperty  'Recordset1
End  ' Report Designer deSales
)"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, ATableSource) {
  const Lines lines = linesOfReport(bound("Orders"));
  EXPECT_TRUE(contains(lines, "      SourceOfData     = 3"));
  EXPECT_TRUE(contains(lines, "   NumRecordsets   = 1"));
  EXPECT_EQ(recordset(lines, 1), linesOf(asFile(R"(
   BeginProperty Recordset1
      CommandName     = "Orders"
      CommDispId      = 1002
      RsDispId        = 1003
      CommandText     = ""
      ActiveConnectionName= "Connection1"
      CommandType     = 2
      dbObjectType    = 1
      Grouping        = 0   'False
      Expanded        = -1   'True
      SummaryExpanded = -1   'True
      DetailExpanded  = -1   'True
      IsRSReturning   = -1   'True
      NumFields       = 3
      BeginProperty Field1
         Precision    = 0
         Size         = 4
         Scale        = 0
         Type         = 4
         Name         = "OrderID"
         Caption      = "OrderID"
      EndProperty   ' Field1
      BeginProperty Field2
         Precision    = 0
         Size         = 8
         Scale        = 0
         Type         = 5
         Name         = "Freight"
         Caption      = "Freight"
      EndProperty   ' Field2
      BeginProperty Field3
         Precision    = 0
         Size         = 40
         Scale        = 0
         Type         = 10
         Name         = "Ship Name"
         Caption      = "Ship Name"
      EndProperty   ' Field3
      NumGroups       = 0
      ParamCount      = 0
      CommandParent   = ""
      RelationCount   = 0
      AggregateCount  = 0
   EndProperty  'Recordset1
)")));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, ANamedQueryWithoutParameters) {
  addQuery("Big Orders", "SELECT * FROM Orders;\r\n");
  const Lines lines = linesOfReport(bound("Big Orders"));
  EXPECT_TRUE(contains(lines, "      SourceOfData     = 3"));
  EXPECT_TRUE(contains(lines, "      CommandName     = \"Big_Orders\""));
  EXPECT_TRUE(contains(lines, "      CommandText     = \"Big Orders\""));
  EXPECT_TRUE(contains(lines, "      CommandType     = 2"));
  EXPECT_TRUE(contains(lines, "      dbObjectType    = 2"));
  EXPECT_TRUE(contains(lines, "      NumFields       = 1"));
  EXPECT_FALSE(state.blnParamQuery);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, ANamedQueryWithParameters) {
  database["queries"].push_back(
      {{"name", "Since"},
       {"sql", "PARAMETERS [Start Date] DateTime;\r\nSELECT * FROM Orders WHERE D > [Start Date];"},
       {"parameters", {{{"name", "Start Date"}, {"type", 8}}}},
       {"fields", {fieldEntry("OrderID", 4, 4, "Orders")}}});
  const Lines lines = linesOfReport(bound("Since"));
  EXPECT_TRUE(contains(lines, "      SourceOfData     = 3"));
  EXPECT_TRUE(contains(lines, "      CommandType     = 1"));
  EXPECT_TRUE(contains(lines, "      dbObjectType    = 2"));
  EXPECT_TRUE(contains(lines, "      ParamCount      = 0"));
  EXPECT_TRUE(contains(lines, "      NumFields       = 1"));
  const Lines text = starting(lines, "      CommandText");
  ASSERT_EQ(text.size(), 1u);
  EXPECT_EQ(text[0].find("PARAMETERS"), std::string::npos);
  EXPECT_NE(text[0].find("SELECT * FROM Orders WHERE D > Start_Date;\""), std::string::npos);
  EXPECT_TRUE(state.blnParamQuery);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, TheSignOfAParameterQueryIsClearedForTheNextReport) {
  database["queries"].push_back({{"name", "Since"},
                                 {"sql", "PARAMETERS [D] DateTime;SELECT * FROM Orders;"},
                                 {"parameters", {{{"name", "D"}, {"type", 8}}}},
                                 {"fields", Json::array()}});
  ReportParts with = bound("Since"), without = bound("Orders");
  with.name = "With";
  without.name = "Without";
  session.openReports({with.entry(), without.entry()});
  session.take("With");
  session.dataEnvironment();
  session.take("Without");
  EXPECT_TRUE(contains(session.dataEnvironment(), "      CommandType     = 2"));
  EXPECT_FALSE(state.blnParamQuery);
}

TEST_F(DataEnvironment, SqlTextOverTwoTables) {
  addTwoTables();
  const Lines lines = linesOfReport(bound(kTwoTables));
  EXPECT_TRUE(contains(lines, "      SourceOfData     = 3"));
  EXPECT_TRUE(contains(lines, "   NumRecordsets   = 2"));
  const Lines first = recordset(lines, 1), second = recordset(lines, 2);
  for (const Lines& one : {first, second}) {
    EXPECT_EQ(one[1], "      CommandName     = \"Command1\"");
    EXPECT_EQ(one[2], "      CommDispId      = 1002");
    EXPECT_EQ(one[3], "      RsDispId        = 1003");
    EXPECT_EQ(one[4], "      CommandText     = \"" + std::string(kTwoTables) + "\"");
    EXPECT_EQ(one[6], "      CommandType     = 1");
    EXPECT_EQ(one[7], "      dbObjectType    = 2");
    EXPECT_TRUE(contains(one, "      NumFields       = 2"));
    EXPECT_TRUE(contains(one, "      NumGroups       = 0"));
  }
  EXPECT_EQ(first[8], "      Grouping        = 0   'False");
  EXPECT_EQ(second[8], "      RelateToParent  = -1  'True");
  EXPECT_EQ(second[9], "      ParentCommandName= \"Command1\"");
  EXPECT_TRUE(contains(first, "      CommandParent   = \"\""));
  EXPECT_TRUE(contains(second, "      CommandParent   = \"Command1\""));
  EXPECT_FALSE(state.blnJoinSQL);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, TextThatBeginsWithSelectInLowerCaseCountsAsSql) {
  for (const std::string_view source : {"select OrderID from Orders", "Transform x"}) {
    addRecordset(source, {fieldEntry("OrderID", 4, 4, "Orders")});
    const Lines lines = linesOfReport(bound(source));
    EXPECT_TRUE(contains(lines, "      SourceOfData     = 3"));
    EXPECT_TRUE(contains(lines, "      CommandName     = \"Command1\""));
    EXPECT_TRUE(contains(lines, "      CommandText     = \"" + std::string(source) + "\""));
    EXPECT_TRUE(contains(lines, "      CommandType     = 1"));
  }
}

TEST_F(DataEnvironment, ANullSourceIsNone) {
  const Lines lines = linesOfReport(bound(nullptr));
  EXPECT_TRUE(contains(lines, "      SourceOfData     = 2"));
  EXPECT_TRUE(starting(lines, "      NumFields").empty());
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, ASourceOfBlanksIsNeitherNameNorSqlYetNotEmpty) {
  const Lines lines = linesOfReport(bound("  "));
  EXPECT_TRUE(contains(lines, "      SourceOfData     = 3"));
  EXPECT_TRUE(contains(lines, "      CommandText     = \"\""));
}

TEST_F(DataEnvironment, ASourceThatCannotBeReadIsEmpty) {
  const Lines lines = linesOfReport(bound(errorValue(2455)));
  EXPECT_TRUE(contains(lines, "      CommandText     = \"\""));
  EXPECT_TRUE(starting(lines, "      NumFields").empty());
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, AnUnknownNameGetsARecordsetWithoutFields) {
  const Lines lines = linesOfReport(bound("Nowhere"));
  EXPECT_TRUE(contains(lines, "      CommandName     = \"Nowhere\""));
  EXPECT_TRUE(contains(lines, "      CommandText     = \"Nowhere\""));
  EXPECT_TRUE(contains(lines, "      dbObjectType    = 2"));
  EXPECT_TRUE(starting(lines, "      NumFields").empty());
  EXPECT_EQ(lines[lines.size() - 2], "   EndProperty  'Recordset1");
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, ASourceLeftByTheReportBeforeWithAFormInItCutsAnEmptyCommandText) {
  for (const std::string_view before :
       {"SELECT * FROM Orders WHERE OrderID = FORMS!A!B", "Forms", "Reforms!", "forms", "Say!"}) {
    SCOPED_TRACE(std::string(before));
    ReportSession own;
    own.database["queries"].push_back({{"name", "Big"}, {"sql", "SELECT 1 FROM Orders;"}});
    own.openReport(bound("Big"));
    own.state.strRecordSource = before;
    const Lines lines = own.dataEnvironment();
    EXPECT_TRUE(contains(lines, "      CommandText     = \"\""));
    EXPECT_TRUE(contains(lines, "      CommandName     = \"Big\""));
    EXPECT_EQ(own.onlyBox().text,
              "GetDesignerReportProps() - Error #5\r\nInvalid procedure call or argument");
  }
}

TEST_F(DataEnvironment, ASourceLeftByTheReportBeforeOfATableCutsNothing) {
  session.openReport(bound("Orders"));
  state.strRecordSource = "SELECT Forms!A";
  session.dataEnvironment();
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, WhereTablesOfTheFieldsAreUnknownTheTextIsScanned) {
  const std::string sql = "SELECT * FROM Orders INNER JOIN [Customers] ON A = B ;";
  addRecordset(sql, {fieldEntry("X", 4, 4, "")});
  const Lines lines = linesOfReport(bound(sql));
  // The field without a table is "QUERY", an entry that is not empty.
  EXPECT_TRUE(contains(lines, "   NumRecordsets   = 1"));
  EXPECT_FALSE(state.blnJoinSQL);
}

TEST_F(DataEnvironment, ARecordsetForEachRunOfFieldsOfOneTable) {
  const std::string sql = "SELECT * FROM A, B";
  addRecordset(sql, {fieldEntry("a", 4, 4, "A"), fieldEntry("b", 4, 4, "A"),
                     fieldEntry("c", 4, 4, "B"), fieldEntry("d", 4, 4, "A")});
  const Lines lines = linesOfReport(bound(sql));
  EXPECT_TRUE(contains(lines, "   NumRecordsets   = 3"));
  EXPECT_EQ(starting(lines, "   EndProperty  'Recordset"),
            (Lines{"   EndProperty  'Recordset1", "   EndProperty  'Recordset2",
                   "   EndProperty  'Recordset3"}));
  EXPECT_EQ(starting(lines, "      NumFields").size(), 3u);
}

TEST_F(DataEnvironment, SqlTextThatCannotBeOpenedHasNoRecordset) {
  const Lines lines = linesOfReport(bound("SELECT A FROM Nowhere"));
  EXPECT_TRUE(contains(lines, "   NumRecordsets   = 0"));
  EXPECT_EQ(lines.back(), "End  ' Report Designer deSales");
}

TEST_F(DataEnvironment, ExtentXJumpsWhenWidthPasses15360) {
  const struct {
    std::int32_t width;
    std::string_view client, extent;
  } kCases[] = {{0, "0", "840"},           {11520, "11520", "12360"}, {11521, "11520", "12361"},
                {15360, "11520", "16200"}, {15361, "11520", "15360"}, {31680, "11520", "15360"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.width);
    ReportParts parts;
    parts.properties["Width"] = row.width;
    const Lines lines = linesOfReport(parts);
    EXPECT_TRUE(contains(lines, "   ClientWidth      = " + std::string(row.client)));
    EXPECT_TRUE(contains(lines, "   _ExtentX         = " + std::string(row.extent)));
  }
}

TEST_F(DataEnvironment, HeightsAsInTheDataReport) {
  const struct {
    std::int32_t height;
    std::string_view client, extent;
  } kCases[] = {{11399, "11519", "12359"},
                {11400, "11520", "12360"},
                {11401, "11520", "12360"},
                {32700, "11520", "12360"}};
  for (const auto& row : kCases) {
    ReportParts parts;
    parts.sections = {reportSection(0, "Detail", {{"Height", row.height}})};
    const Lines lines = linesOfReport(parts);
    EXPECT_TRUE(contains(lines, "   ClientHeight     = " + std::string(row.client)));
    EXPECT_TRUE(contains(lines, "   _ExtentY         = " + std::string(row.extent)));
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST_F(DataEnvironment, TheSignsOfTheReportBeforeAreCleared) {
  session.openReport({});
  state.blnParamQuery = state.blnJoinSQL = true;
  state.strCommandNames = {"A", "B", ""};
  EXPECT_TRUE(contains(session.dataEnvironment(), "      CommandType     = 2"));
  EXPECT_FALSE(state.blnParamQuery);
  EXPECT_FALSE(state.blnJoinSQL);
  EXPECT_EQ(state.strCommandNames, (Lines{"", ""}));
}

TEST_F(DataEnvironment, AFieldOfAnotherTypeKeepsItsNumber) {
  std::vector<Json> fields;
  for (int type = 1; type <= 23; ++type)
    fields.push_back(fieldEntry("F" + std::to_string(type), type, type * 10, "T"));
  addRecordset("SELECT * FROM T", fields);
  const Lines lines = linesOfReport(bound("SELECT * FROM T"));
  EXPECT_TRUE(contains(lines, "      NumFields       = 23"));
  for (int type = 1; type <= 23; ++type) {
    const std::string number = std::to_string(type);
    const Lines field =
        block(lines, "      BeginProperty Field" + number, "      EndProperty   ' Field" + number);
    EXPECT_EQ(field[2], "         Size         = " + number + "0");
    EXPECT_EQ(field[4], "         Type         = " + number);
  }
}

TEST_F(DataEnvironment, SqlTextThatNeedsParametersIsTakenFromTheQueryOfThatName) {
  // A text of a query cannot be the name of one but in a recording.
  const std::string sql = "SELECT * FROM Orders WHERE X = [p]";
  addFailingRecordset(sql, 3061);
  database["queries"].push_back({{"name", sql},
                                 {"sql", "SELECT 1;"},
                                 {"parameters", {{{"name", "p"}, {"type", 4}}}},
                                 {"fields", {fieldEntry("OrderID", 4, 4, "Orders")}}});
  session.openReport(bound(sql));
  const Lines lines = session.dataEnvironment();
  EXPECT_EQ(lines.back(), "End  ' Report Designer deSales");
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, TheFileIsClosedAndReplacesAnOlderOne) {
  writeFile(session.out() / "deSales.dsr", "older\r\n");
  const Lines lines = linesOfReport({});
  EXPECT_EQ(lines[0], "VERSION 5.00");
  EXPECT_EQ(state.gstrFormFile, "Sales.dsr");
}

constexpr std::int32_t kSilent[] = {9,    91,   92,   438,  2186, 2452, 2455,
                                    2462, 2464, 2465, 2467, 3061, 3078, 3265};
constexpr std::int32_t kTold[] = {5, 13, 94, 3112, 2683};

TEST_F(DataEnvironment, AWidthThatCannotBeReadDropsItsLines) {
  const Lines whole = linesOfReport({});
  Lines rest;
  for (const std::string& line : whole)
    if (!line.starts_with("   ClientWidth") && !line.starts_with("   _ExtentX"))
      rest.push_back(line);
  for (const std::int32_t number : kSilent) {
    SCOPED_TRACE(number);
    ReportParts parts;
    parts.properties["Width"] = errorValue(number);
    EXPECT_EQ(linesOfReport(parts), rest);
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST_F(DataEnvironment, AWidthOfAnUnusualNumberHasItsBoxes) {
  for (const std::int32_t number : kTold) {
    SCOPED_TRACE(number);
    ReportParts parts;
    parts.properties["Width"] = errorValue(number);
    const Lines lines = linesOfReport(parts);
    EXPECT_TRUE(starting(lines, "   ClientWidth").empty());
    const std::string text =
        "GetDesignerReportProps() - Error #" + std::to_string(number) + "\r\nAs recorded.";
    EXPECT_EQ(session.boxTexts(), (Lines{text, text}));
    EXPECT_EQ(session.user.boxes[0].style, 16);
    EXPECT_EQ(session.user.boxes[0].title, "Access to Visual Basic Tarrowin");
  }
}

TEST_F(DataEnvironment, AnOverflowMakesTheReportAsHighAsCanBe) {
  ReportParts parts;
  parts.properties["Width"] = errorValue(6);
  const Lines lines = linesOfReport(parts);
  EXPECT_EQ(state.lngReportHeight, 32767);
  EXPECT_TRUE(contains(lines, "   _ExtentY         = 33607"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, ATableOfAnInvalidPathIsRemembered) {
  addFailingRecordset("Orders", 3044);
  const Lines lines = linesOfReport(bound("Orders"));
  EXPECT_TRUE(state.mblnBadAttachedTables);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_TRUE(starting(lines, "      NumFields").empty());
  EXPECT_EQ(lines.back(), "End  ' Report Designer deSales");
}

TEST_F(DataEnvironment, ASourceThatCannotBeOpened) {
  for (const std::int32_t number : kSilent) {
    SCOPED_TRACE(number);
    ReportSession own;
    own.database["recordsets"] =
        Json::array({{{"source", "Orders"}, {"error", number}, {"description", "As recorded."}}});
    const Lines lines = own.dataEnvironmentOf(bound("Orders"));
    EXPECT_TRUE(starting(lines, "      NumFields").empty());
    EXPECT_TRUE(own.user.boxes.empty());
    EXPECT_FALSE(own.state.mblnBadAttachedTables);
  }
  for (const std::int32_t number : kTold) {
    SCOPED_TRACE(number);
    ReportSession own;
    own.database["recordsets"] =
        Json::array({{{"source", "Orders"}, {"error", number}, {"description", "As recorded."}}});
    const Lines lines = own.dataEnvironmentOf(bound("Orders"));
    EXPECT_TRUE(starting(lines, "      NumFields").empty());
    EXPECT_EQ(own.onlyBox().text,
              "GetDesignerReportProps() - Error #" + std::to_string(number) + "\r\nAs recorded.");
  }
}

TEST_F(DataEnvironment, ARecordSourceOfEveryKindOfError) {
  for (const std::int32_t number : kSilent) {
    SCOPED_TRACE(number);
    EXPECT_EQ(linesOfReport(bound(errorValue(number))).back(), "End  ' Report Designer deSales");
    EXPECT_TRUE(session.user.boxes.empty());
  }
  for (const std::int32_t number : kTold) {
    SCOPED_TRACE(number);
    linesOfReport(bound(errorValue(number)));
    EXPECT_FALSE(session.user.boxes.empty());
    for (const std::string& text : session.boxTexts()) {
      EXPECT_EQ(text,
                "GetDesignerReportProps() - Error #" + std::to_string(number) + "\r\nAs recorded.");
    }
  }
  EXPECT_FALSE(state.mblnBadAttachedTables);
  linesOfReport(bound(errorValue(3044)));
  EXPECT_TRUE(state.mblnBadAttachedTables);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataEnvironment, AQueryThatCannotBeOpened) {
  database["queries"].push_back({{"name", "Locked"},
                                 {"sql", "SELECT * FROM Orders;"},
                                 {"fields", Json::array()},
                                 {"recordsetError", errorValue(3112)}});
  const Lines lines = linesOfReport(bound("Locked"));
  EXPECT_TRUE(starting(lines, "      NumFields").empty());
  EXPECT_EQ(session.onlyBox().text, "GetDesignerReportProps() - Error #3112\r\nAs recorded.");
}

}  // namespace
}  // namespace tarrowin::test
