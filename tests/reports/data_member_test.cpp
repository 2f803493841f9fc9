// The data member of an item: which sources hold its field under which member, and what opening
// them leaves behind.
#include "reports/data_member.h"

#include "reports/report_items.h"
#include "reports/report_session.h"

namespace tarrowin::test {
namespace {

class DataMember : public testing::Test {
 protected:
  static constexpr std::string_view kForms = "SELECT * FROM Orders WHERE OrderID = Forms!A!B";

  void addQuery(std::string_view name, const Json& sql, const Json& more = Json::object()) {
    database["queries"].push_back(
        merged({{"name", name}, {"sql", sql}, {"fields", kFields()}}, more));
  }
  void addRecordset(std::string_view source) {
    database["recordsets"].push_back({{"source", source}, {"fields", kFields()}});
  }
  void addFailingRecordset(std::string_view source, std::int32_t number) {
    database["recordsets"].push_back(
        {{"source", source}, {"error", number}, {"description", "As recorded."}});
  }
  static Json kFields() {
    return Json::parse(R"([{"name": "OrderID", "type": 4, "size": 4, "sourceTable": "Orders"},
                           {"name": "Freight", "type": 5, "size": 8, "sourceTable": "Orders"}])");
  }

  // Makes a report of these controls, over that source, the one in hand.
  void open(std::string_view source, const std::vector<Json>& controls) {
    ReportParts parts = reportOfSections({0, 5, 6});
    parts.controls = controls;
    session.openReport(parts);
    state.strRecordSource = source;
  }
  // The DataMember lines of the section's items.
  Lines members(int sectionNumber, int count) {
    session.files.Open(state.mstrOutputDir + "items", FileMode::kOutput, kOutputFile);
    PrintReportSectionControls(session.main, sectionNumber, count);
    session.files.Close(kOutputFile);
    const Lines lines = linesOf(fileContent(session.out() / "items"));
    EXPECT_TRUE(contains(lines, "      EndProperty   ' Item" + std::to_string(count - 1)));
    return starting(lines, "         DataMember");
  }
  // Those of one text box named and bound to Freight in the Detail.
  Lines membersOver(std::string_view source) {
    open(source, {textBox("Freight", 0, "Freight")});
    return members(0, 1);
  }
  static Lines member(std::string_view name) {
    return {"         DataMember  = \"" + std::string(name) + "\""};
  }

  ReportSession session;
  ConversionState& state = session.state;
  Json& database = session.database;
};

TEST_F(DataMember, OfATableIsTheSourceTableOfTheField) {
  EXPECT_EQ(membersOver("Orders"), member("Orders"));
  database["tables"].push_back(Json::parse(R"({"name": "Old Orders", "fields":
      [{"name": "Freight", "type": 5, "sourceTable": "Archive-1 Orders"}]})"));
  EXPECT_EQ(membersOver("Old Orders"), member("Archive_1_Orders"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, OfAQueryIsItsName) {
  addQuery("Big Orders", "SELECT * FROM Orders;");
  EXPECT_EQ(membersOver("Big Orders"), member("Big_Orders"));
  EXPECT_EQ(state.strRecordSource, "Big Orders");
}

TEST_F(DataMember, OfAQueryWithParametersIsItsName) {
  addQuery("Since", "PARAMETERS [D] DateTime;SELECT * FROM Orders;",
           {{"parameters", {{{"name", "D"}, {"type", 8}}}}});
  EXPECT_EQ(membersOver("Since"), member("Since"));
}

TEST_F(DataMember, OfSqlTextIsCommand1) {
  addRecordset("SELECT * FROM Orders");
  EXPECT_EQ(membersOver("SELECT * FROM Orders"), member("Command1"));
  addRecordset("select Freight from Orders");
  EXPECT_EQ(membersOver("select Freight from Orders"), member("Command1"));
  addRecordset("TRANSFORM Sum(Freight) AS S SELECT 1");
  EXPECT_EQ(membersOver("TRANSFORM Sum(Freight) AS S SELECT 1"), member("Command1"));
}

TEST_F(DataMember, ATextBoxNamedUnlikeItsFieldHasADataFieldButNone) {
  open("Orders", {textBox("txtFreight", 0, "Freight")});
  EXPECT_EQ(members(0, 1), Lines{});
  EXPECT_TRUE(contains(linesOf(fileContent(session.out() / "items")),
                       "         DataField       = \"Freight\""));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, ATextBoxNamedAsAFieldButBoundToAnotherHasOne) {
  open("Orders", {textBox("Freight", 0, "OrderID")});
  EXPECT_EQ(members(0, 1), member("Orders"));
}

TEST_F(DataMember, TheNameIsCleanedBeforeItIsCompared) {
  open("Orders", {textBox("Ship Name", 0, "Ship Name")});
  EXPECT_EQ(members(0, 1), Lines{});
}

TEST_F(DataMember, NamesAreComparedExactly) {
  open("Orders", {textBox("freight", 0, "Freight")});
  EXPECT_EQ(members(0, 1), Lines{});
}

TEST_F(DataMember, AFunctionLooksForTheFieldInItsBrackets) {
  open("Orders", {textBox("a", 6, "=Sum([Freight])"), textBox("b", 6, "=Count([Ship Name])"),
                  textBox("Freight", 6, "=Sum([Other])")});
  EXPECT_EQ(members(6, 3),
            (Lines{"         DataMember  = \"Orders\"", "         DataMember  = \"Orders\""}));
}

TEST_F(DataMember, InTheFirstGroupHeaderItIsTheGroupingMember) {
  open("Nowhere", {textBox("x", 5, "y"), item("l", kLabelControl, 5, {{"Caption", ""}}),
                   textBox("f", 5, "=Sum([Freight])")});
  state.strDataMember = "Country_Grouping";
  EXPECT_EQ(members(5, 3), member("Country_Grouping"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, OfAReportWithoutASourceThereIsNone) {
  EXPECT_EQ(membersOver(""), Lines{});
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, OfAnUnknownSourceThereIsNone) {
  EXPECT_EQ(membersOver("Nowhere"), Lines{});
  EXPECT_EQ(membersOver("SELECT Freight FROM Nowhere"), Lines{});
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, SqlTextThatRefersToAFormIsOpenedWithoutItsConditions) {
  addFailingRecordset(kForms, 3061);
  addRecordset("SELECT * FROM Orders ");
  EXPECT_EQ(membersOver(kForms), member("Command1"));
  EXPECT_EQ(state.strRecordSource, "SELECT * FROM Orders ");
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, TheShorteningStaysForTheFollowingControls) {
  addFailingRecordset(kForms, 3061);
  addRecordset("SELECT * FROM Orders ");
  open(kForms, {textBox("Freight", 0, "Freight"), textBox("OrderID", 0, "OrderID"),
                textBox("x", 6, "=Sum([Freight])")});
  EXPECT_EQ(members(0, 2),
            (Lines{"         DataMember  = \"Command1\"", "         DataMember  = \"Command1\""}));
  EXPECT_EQ(members(6, 1), member("Command1"));
  EXPECT_EQ(state.strRecordSource, "SELECT * FROM Orders ");
}

TEST_F(DataMember, EverySignOfAFormAndEverySpellingOfWhere) {
  const struct {
    std::string_view source, kept;
  } kCases[] = {
      {"SELECT * FROM Orders WHERE A = FORMS", "SELECT * FROM Orders "},
      {"SELECT * FROM Orders Where A = Forms", "SELECT * FROM Orders "},
      {"SELECT * FROM Orders where A = forms", "SELECT * FROM Orders "},
      {"SELECT * FROM Orders WHERE A = X!Y", "SELECT * FROM Orders "},
      // The word in capitals is looked for first, wherever it stands.
      {"SELECT * FROM Orders where A WHERE B = X!Y", "SELECT * FROM Orders where A "},
      {"SELECT * FROM Orders where A Where B = X!Y", "SELECT * FROM Orders where A "},
      // Nothing to cut at.
      {"SELECT * FROM Orders HAVING A = X!Y", "SELECT * FROM Orders HAVING A = X!Y"},
      {"SELECT * FROM Orders wHERE A = X!Y", "SELECT * FROM Orders wHERE A = X!Y"},
      {"SELECT * FROM Orders WHERE\tA = X!Y", "SELECT * FROM Orders WHERE\tA = X!Y"},
      // No sign of a form.
      {"SELECT * FROM Orders WHERE A = [p]", "SELECT * FROM Orders WHERE A = [p]"},
      {"SELECT * FROM Orders WHERE A = [fORMS]", "SELECT * FROM Orders WHERE A = [fORMS]"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(std::string(row.source));
    database["recordsets"] = Json::array();
    addFailingRecordset(row.source, 3061);
    const bool isCut = row.source != row.kept;
    if (isCut) addRecordset(row.kept);
    EXPECT_EQ(membersOver(row.source), isCut ? member("Command1") : Lines{});
    EXPECT_EQ(state.strRecordSource, row.kept);
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST_F(DataMember, SqlTextNamedLikeAParameterQueryIsReplacedByThatQuerysText) {
  const std::string source = "SELECT * FROM Orders WHERE A = [Start Date]";
  addFailingRecordset(source, 3061);
  addQuery(source, "PARAMETERS [Start Date] DateTime;SELECT [Start Date];");
  EXPECT_EQ(membersOver(source), Lines{});
  EXPECT_EQ(state.strRecordSource, "PARAMETERS Start_Date DateTime;SELECT Start_Date;");
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, AnotherErrorThan3061ShortensNothing) {
  addFailingRecordset(kForms, 3078);
  addRecordset("SELECT * FROM Orders ");
  EXPECT_EQ(membersOver(kForms), Lines{});
  EXPECT_EQ(state.strRecordSource, kForms);
}

TEST_F(DataMember, ARecordsetOfAnEarlierReportIsNeverUsedAgain) {
  ReportParts parts = reportOfSections({0});
  parts.properties["RecordSource"] = "Orders";
  parts.controls = {textBox("Freight", 0, "Freight")};
  session.openReport(parts);
  EXPECT_EQ(starting(session.dataReport(), "         DataMember"), member("Orders"));
  database["tables"][0]["fields"] = Json::array({{{"name", "Other"}, {"type", 4}}});
  session.openReport(parts);
  EXPECT_EQ(starting(session.dataReport(), "         DataMember"), Lines{});
}

constexpr std::int32_t kSilent[] = {9,    91,   92,   438,  2186, 2452, 2455,
                                    2462, 2464, 2465, 2467, 3061, 3078, 3265};

TEST_F(DataMember, ASourceThatCannotBeOpenedSilently) {
  for (const std::int32_t number : kSilent) {
    SCOPED_TRACE(number);
    database["recordsets"] = Json::array();
    addFailingRecordset("Orders", number);
    EXPECT_EQ(membersOver("Orders"), Lines{});
    EXPECT_TRUE(session.user.boxes.empty());
    EXPECT_FALSE(state.mblnBadAttachedTables);
  }
}

TEST_F(DataMember, AnAttachedTableOfAnInvalidPathIsRemembered) {
  addFailingRecordset("Orders", 3044);
  EXPECT_EQ(membersOver("Orders"), Lines{});
  EXPECT_TRUE(state.mblnBadAttachedTables);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, AnOverflowMakesTheReportAsHighAsCanBe) {
  addFailingRecordset("Orders", 6);
  EXPECT_EQ(membersOver("Orders"), Lines{});
  EXPECT_EQ(state.lngReportHeight, 32767);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(DataMember, AnUnusualNumberHasItsBoxForEveryItem) {
  for (const std::int32_t number : {5, 13, 94, 3112}) {
    SCOPED_TRACE(number);
    database["recordsets"] = Json::array();
    addFailingRecordset("Orders", number);
    open("Orders", {textBox("Freight", 0, "Freight"), textBox("OrderID", 0, "OrderID")});
    EXPECT_EQ(members(0, 2), Lines{});
    const std::string text =
        "PrintReportSectionControls() - Error #" + std::to_string(number) + "\r\nAs recorded.";
    EXPECT_EQ(session.boxTexts(), (Lines{text, text}));
  }
}

TEST_F(DataMember, AQueryThatCannotBeOpened) {
  addQuery("Locked", "SELECT * FROM Orders;", {{"recordsetError", errorValue(3112)}});
  EXPECT_EQ(membersOver("Locked"), Lines{});
  EXPECT_EQ(session.onlyBox().text, "PrintReportSectionControls() - Error #3112\r\nAs recorded.");
}

}  // namespace
}  // namespace tarrowin::test
