// The recordsets of a Data Environment: their groups, parents and relations.
#include "project/project_text.h"
#include "reports/data_environment.h"
#include "reports/data_environment_session.h"

namespace tarrowin::test {
namespace {

using DataEnvironmentRelations = DataEnvironment;

TEST_F(DataEnvironmentRelations, OneGroupLevelOnAnExpression) {
  ReportParts parts = bound("Orders");
  parts.levels = {groupLevel("=Left([Name],1)")};
  const Lines lines = linesOfReport(parts);
  EXPECT_TRUE(contains(lines, "      Grouping        = -1   'True"));
  EXPECT_TRUE(contains(lines, "      GroupingName    = \"xLeft__Name__1__Grouping\""));
  EXPECT_EQ(state.strDataMember, "xLeft__Name__1__Grouping");
  EXPECT_TRUE(contains(lines, "      NumGroups       = 1"));
  EXPECT_EQ(block(lines, "      BeginProperty Grouping1", "      EndProperty   ' Grouping1"),
            linesOf(asFile(R"(
      BeginProperty Grouping1
         Precision    = 0
         Size         = 0
         Scale        = 0
         Type         = 200
         Name         = "Name"
         Caption      = "Name"
      EndProperty   ' Grouping1
)")));
}

TEST_F(DataEnvironmentRelations, AGroupExpressionWithoutBracketsIsPrintedWholeAfterItsBox) {
  ReportParts parts = bound("Orders");
  parts.levels = {groupLevel("=Date()")};
  const Lines lines = linesOfReport(parts);
  EXPECT_EQ(session.onlyBox().text,
            "GetDesignerReportProps() - Error #5\r\nInvalid procedure call or argument");
  EXPECT_TRUE(contains(lines, "         Name         = \"=Date()\""));
}

TEST_F(DataEnvironmentRelations, SortOnlyLevelsTakeThePlaceOfGroups) {
  ReportParts parts = bound("Orders");
  parts.levels = {groupLevel("Sorted", false, false), groupLevel("Grouped")};
  const Lines lines = linesOfReport(parts);
  EXPECT_TRUE(contains(lines, "      GroupingName    = \"Sorted_Grouping\""));
  EXPECT_TRUE(contains(lines, "      NumGroups       = 1"));
  EXPECT_TRUE(contains(lines, "         Name         = \"Sorted\""));
  EXPECT_FALSE(contains(lines, "         Name         = \"Grouped\""));
}

TEST_F(DataEnvironmentRelations, AGroupedReportWithoutASourceHasItsMemberAllTheSame) {
  const Lines lines = linesOfReport(bound("", 1));
  EXPECT_TRUE(contains(lines, "      GroupingName    = \"A_Grouping\""));
  EXPECT_TRUE(starting(lines, "      NumGroups").empty());
}

TEST_F(DataEnvironmentRelations, AFirstLevelWithoutASourceNamesNoField) {
  ReportParts parts = bound("Orders");
  parts.levels = {groupLevel(""), groupLevel("B")};
  EXPECT_TRUE(contains(linesOfReport(parts), "      GroupingName    = \"_Grouping\""));
}

TEST_F(DataEnvironmentRelations, GroupsStandInTheFirstRecordsetOnly) {
  addTwoTables();
  const Lines lines = linesOfReport(bound(kTwoTables, 2));
  EXPECT_TRUE(contains(recordset(lines, 1), "      NumGroups       = 2"));
  EXPECT_TRUE(contains(recordset(lines, 2), "      NumGroups       = 0"));
  EXPECT_EQ(starting(lines, "      EndProperty   ' Grouping"),
            (Lines{"      EndProperty   ' Grouping1", "      EndProperty   ' Grouping2"}));
}

TEST_F(DataEnvironmentRelations, AReportWithoutGroupsLeavesTheMemberOfTheOneBefore) {
  session.openReport({});
  state.strDataMember = "Left_Grouping";
  EXPECT_TRUE(starting(session.dataEnvironment(), "      GroupingName").empty());
  EXPECT_EQ(state.strDataMember, "Left_Grouping");
}

TEST_F(DataEnvironmentRelations, ADatabaseWithoutRelations) {
  addTwoTables();
  const Lines lines = linesOfReport(bound(kTwoTables));
  EXPECT_EQ(starting(lines, "      RelationCount"),
            (Lines{"      RelationCount   = 0", "      RelationCount   = 0"}));
  EXPECT_TRUE(starting(lines, "      BeginProperty Relation").empty());
}

TEST_F(DataEnvironmentRelations, ARelationOfTheTable) {
  addTwoTables();
  // In the second recordset the source name is the SQL text, so only a name that holds its table
  // makes a relation match.
  addRelation("CustomersOrders", "Customers", "Orders", {relationField("CustomerID", "CustNo")});
  const Lines second = recordset(linesOfReport(bound(kTwoTables)), 2);
  EXPECT_TRUE(contains(second, "      RelationCount   = 1"));
  EXPECT_EQ(block(second, "      BeginProperty Relation1", "      EndProperty   ' Relation1"),
            linesOf(asFile(R"(
      BeginProperty Relation1
         ParentField  = "CustomerID"
         ChildField   = "CustNo"
         ParentType   = 0
         ChildType    = 0
      EndProperty   ' Relation1
)")));
  EXPECT_EQ(second[second.size() - 2], "      AggregateCount  = 0");
}

TEST_F(DataEnvironmentRelations, ARelationThatDoesNotMatchNamesTheFirstFieldTwice) {
  addTwoTables();
  addRelation("Rel1", "Customers", "Orders", {relationField("CustomerID", "CustNo")});
  const Lines second = recordset(linesOfReport(bound(kTwoTables)), 2);
  EXPECT_TRUE(contains(second, "         ParentField  = \"OrderID\""));
  EXPECT_TRUE(contains(second, "         ChildField   = \"OrderID\""));
}

TEST_F(DataEnvironmentRelations, AsManyRelationBlocksAsTheFirstRelationHasFields) {
  addTwoTables();
  addRelation("Rel1", "X", "Y", {relationField("A", "B"), relationField("C", "D")});
  addRelation("PeopleRel", "People", "Y", {relationField("E", "F")});
  addRelation("TownsRel", "Towns", "Z", {relationField("G", "H")});
  const Lines second = recordset(linesOfReport(bound(kTwoTables)), 2);
  EXPECT_TRUE(contains(second, "      RelationCount   = 2"));
  EXPECT_EQ(starting(second, "      BeginProperty Relation"),
            (Lines{"      BeginProperty Relation1", "      BeginProperty Relation2"}));
  EXPECT_EQ(starting(second, "         ParentField"),
            (Lines{"         ParentField  = \"OrderID\"", "         ParentField  = \"E\""}));
  EXPECT_EQ(starting(second, "         ChildField"),
            (Lines{"         ChildField   = \"OrderID\"", "         ChildField   = \"F\""}));
}

TEST_F(DataEnvironmentRelations, FewerRelationsThanFieldsGiveFewerBlocks) {
  addTwoTables();
  addRelation("Rel1", "X", "Y", {relationField("A", "B"), relationField("C", "D")});
  const Lines second = recordset(linesOfReport(bound(kTwoTables)), 2);
  EXPECT_TRUE(contains(second, "      RelationCount   = 2"));
  EXPECT_EQ(starting(second, "      BeginProperty Relation"),
            Lines{"      BeginProperty Relation1"});
}

TEST_F(DataEnvironmentRelations, TheParentOfALaterRecordset) {
  const std::string sql = "SELECT * FROM A, B, C";
  addRecordset(
      sql, {fieldEntry("a", 4, 4, "A"), fieldEntry("b", 4, 4, "B"), fieldEntry("c", 4, 4, "C")});
  addRelation("Rel1", "X", "Nobody", {});
  addRelation("BooksRel", "Books", "Shelves", {});
  addRelation("PagesRel", "Pages", "Others", {});
  const Lines lines = linesOfReport(bound(sql));
  EXPECT_EQ(
      starting(lines, "      ParentCommandName"),
      (Lines{"      ParentCommandName= \"Command1\"", "      ParentCommandName= \"Shelves\""}));
  EXPECT_EQ(starting(lines, "      CommandParent"),
            (Lines{"      CommandParent   = \"\"", "      CommandParent   = \"Command1\"",
                   "      CommandParent   = \"Shelves\""}));
  // The first relation has no fields.
  EXPECT_EQ(starting(lines, "      RelationCount"), Lines(3, "      RelationCount   = 0"));
  EXPECT_TRUE(starting(lines, "      BeginProperty Relation").empty());
}

TEST_F(DataEnvironmentRelations, ALaterRecordsetWithoutARelationKeepsTheFirstCommand) {
  const std::string sql = "SELECT * FROM A, B, C";
  addRecordset(
      sql, {fieldEntry("a", 4, 4, "A"), fieldEntry("b", 4, 4, "B"), fieldEntry("c", 4, 4, "C")});
  EXPECT_EQ(
      starting(linesOfReport(bound(sql)), "      ParentCommandName"),
      (Lines{"      ParentCommandName= \"Command1\"", "      ParentCommandName= \"Command1\""}));
}

TEST_F(DataEnvironmentRelations, AThirdRecordsetTakesTheParentOfARelationOfTheCommand) {
  const std::string sql = "SELECT * FROM A, B, C";
  addRecordset(
      sql, {fieldEntry("a", 4, 4, "A"), fieldEntry("b", 4, 4, "B"), fieldEntry("c", 4, 4, "C")});
  addRelation("r", "Command1", "Shelves", {relationField("Shelf", "No")});
  const Lines lines = linesOfReport(bound(sql));
  EXPECT_EQ(
      starting(lines, "      ParentCommandName"),
      (Lines{"      ParentCommandName= \"Command1\"", "      ParentCommandName= \"Shelves\""}));
  // The fields are compared with the text that was opened, which is no table of the relation.
  EXPECT_EQ(starting(lines, "         ParentField"), Lines(2, "         ParentField  = \"a\""));
}

TEST_F(DataEnvironmentRelations, AParentThatIsEmptyOrTheCommandItselfIsTheFirstCommand) {
  const std::string sql = "SELECT * FROM A, B, C";
  for (const std::string_view parent : {"", "Command1"}) {
    SCOPED_TRACE(std::string(parent));
    database["recordsets"] = Json::array();
    database["relations"] = Json::array();
    addRecordset(
        sql, {fieldEntry("a", 4, 4, "A"), fieldEntry("b", 4, 4, "B"), fieldEntry("c", 4, 4, "C")});
    addRelation("BooksRel", "Books", parent, {});
    addRelation("PagesRel", "Pages", "Others", {});
    EXPECT_EQ(starting(linesOfReport(bound(sql)), "      ParentCommandName"),
              Lines(2, "      ParentCommandName= \"Command1\""));
  }
}

}  // namespace
}  // namespace tarrowin::test
