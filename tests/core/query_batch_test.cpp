// ConvertQueries from the click to the files, the boxes and the state that it leaves.
#include "core/query_batch.h"

#include <gtest/gtest.h>

#include "core/batch_driver.h"
#include "core/window_events.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kTime = "Conversion completed in: 00:00 seconds.";

Json databaseOf(const std::vector<Json>& queries) {
  Json database = emptyDatabase();
  for (const Json& entry : queries) database["queries"].push_back(entry);
  return database;
}

Json queriesNamed(int count) {
  Json database = emptyDatabase();
  for (int i = 1; i <= count; ++i) {
    database["queries"].push_back(query("Q" + std::to_string(i), "SELECT 1;\r\n"));
  }
  return database;
}

std::string directoryOf(const TestSession& session) { return session.out().string() + "/"; }

TEST(QueryBatch, OneQueryBecomesOneModuleOfFourLines) {
  TestSession session;
  session.open(databaseOf({query("Big Orders", "SELECT * FROM Orders;\r\n")}));
  session.select(ObjectList::kQueries, {"Big Orders"});
  clickButton(session.main, "cmdConvertQry");
  EXPECT_EQ(fileContent(session.out() / "Big_Orders.bas"),
            "Sub Big_Orders()\r\n"
            "Dim strSQL as String\r\n"
            "   strSQL = \"SELECT * FROM Orders;  \"\r\n"
            "End Sub\r\n");
  EXPECT_EQ(session.onlyBox(),
            (Box{64,
                 "Successfully converted Access Query: Big Orders to Visual Basic Module: "
                 "Big_Orders.bas.\r\n\r\nConverted Query is saved in directory: " +
                     directoryOf(session) + "\r\n\r\n" + std::string(kTime),
                 "Access to Visual Basic Tarrowin"}));
}

TEST(QueryBatch, SeveralQueriesWithoutTheOptionGiveAFileEach) {
  TestSession session;
  session.open(
      databaseOf({query("A", "SELECT 1"), query("B", "SELECT 2"), query("C", "SELECT 3")}));
  session.select(ObjectList::kQueries, {"A", "C"});
  ConvertQueries(session.main, false);
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"A.bas", "C.bas"}));
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 2 Access Queries to Visual Basic Modules. \r\n\r\n"
            "Converted Queries are saved in directory: " +
                directoryOf(session) + "\r\n\r\n" + std::string(kTime));
}

TEST(QueryBatch, SeveralQueriesWithTheOptionGiveOneFile) {
  TestSession session;
  session.open(databaseOf({query("A", "SELECT 1"), query("B", "SELECT 2")}));
  session.main.window.chkMultiSel = 1;
  ConvertQueries(session.main, true);
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"OrdersQueries.bas"}));
  EXPECT_EQ(fileContent(session.out() / "OrdersQueries.bas"),
            "Sub A()\r\nDim strSQL as String\r\n   strSQL = \"SELECT 1\"\r\nEnd Sub\r\n\r\n"
            "Sub B()\r\nDim strSQL as String\r\n   strSQL = \"SELECT 2\"\r\nEnd Sub\r\n\r\n");
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 2 Access Queries to Visual Basic Module OrdersQueries.bas."
            "\r\n\r\nConverted Queries are saved in directory: " +
                directoryOf(session) + "\r\n\r\n" + std::string(kTime));
}

TEST(QueryBatch, ConvertAllOnAnEmptyListAsksForTheDirectoryFirst) {
  TestSession session;
  session.open(emptyDatabase());
  session.main.window.txtCurDir = "";
  clickButton(session.main, "cmdAllQrys");
  EXPECT_EQ(session.onlyBox().text, "Please specify an output directory for converted Forms.");
  clickButton(session.main, "cmdAllQrys");
  EXPECT_EQ(session.onlyBox().text, "There are no Queries to convert.");
}

TEST(QueryBatch, NothingSelectedIsSaidBeforeTheDirectoryIsLookedAt) {
  TestSession session;
  session.open(databaseOf({query("A", "SELECT 1")}));
  session.main.window.txtCurDir = "";
  ConvertQueries(session.main, false);
  EXPECT_EQ(session.onlyBox(),
            (Box{64, "Please select a Query to convert from the displayed list first.",
                 "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(session.main.window.txtCurDir, "");
}

TEST(QueryBatch, FiftyQueriesAreNotQuestionedFiftyOneAre) {
  TestSession session;
  session.open(queriesNamed(51));
  std::vector<std::string> fifty;
  for (int i = 1; i <= 50; ++i) fifty.push_back("Q" + std::to_string(i));
  session.select(ObjectList::kQueries, fifty);
  ConvertQueries(session.main, false);
  EXPECT_EQ(session.onlyBox().text.substr(0, 44), "Successfully converted 50 Access Queries to ");
  EXPECT_EQ(fileNames(session.out()).size(), 50u);

  session.user.answers = {Answer::kNo};
  ConvertQueries(session.main, true);
  EXPECT_EQ(
      session.onlyBox(),
      (Box{292,
           "Selecting more than 50 Queries to convert to Visual Basic Module (.bas) files may take "
           "about 00:09:53 seconds to complete depending on how complex the Queries are. \r\n\r\n"
           "It is recommended that you convert no more than about 25 Queries at one time.\r\n\r\n"
           "Do you still want to convert the 51 selected Queries?",
           "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(fileNames(session.out()).size(), 50u);

  session.user.answers = {Answer::kYes};
  ConvertQueries(session.main, true);
  EXPECT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(fileNames(session.out()).size(), 51u);
}

TEST(QueryBatch, MoreThan2820QueriesOverflowTheSecondsAndEndTheDriver) {
  TestSession session;
  session.open(queriesNamed(2821));
  ConvertQueries(session.main, true);
  EXPECT_EQ(session.onlyBox(), (Box{16, "ConvertQueries() - Error #6\r\nOverflow",
                                    "Access to Visual Basic Tarrowin"}));
  EXPECT_TRUE(fileNames(session.out()).empty());
  EXPECT_EQ(session.main.window.mousePointer, 0);

  session.main.window.list(ObjectList::kQueries).pop_back();
  session.user.answers = {Answer::kNo};
  ConvertQueries(session.main, true);
  EXPECT_NE(session.onlyBox().text.find("about 09:06:03 seconds"), std::string::npos);
}

TEST(QueryBatch, OneSelectedQueryTakesTheSinglePathAlsoWithTheOption) {
  TestSession session;
  session.open(databaseOf({query("A", "SELECT 1"), query("B", "SELECT 2")}));
  session.main.window.chkMultiSel = 1;
  session.select(ObjectList::kQueries, {"B"});
  ConvertQueries(session.main, false);
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"B.bas"}));
}

TEST(QueryBatch, AQueryWithEmptySqlIsNeitherConvertedNorFailed) {
  for (const int option : {0, 1}) {
    TestSession session;
    session.open(databaseOf({query("A", ""), query("B", "")}));
    session.main.window.chkMultiSel = option;
    ConvertQueries(session.main, true);
    EXPECT_EQ(session.onlyBox().text,
              "Unable to convert Access Queries to Visual Basic Modules.\r\n\r\n");
    EXPECT_TRUE(fileNames(session.out()).empty());
  }
}

// Hidden queries never stand in the list that an opening fills; put there, only the path of the
// single file passes them over.
TEST(QueryBatch, AHiddenQueryIsSkippedInTheMultiplePathOnly) {
  for (const int option : {0, 1}) {
    TestSession session;
    session.open(databaseOf({query("~sq_fMain", "SELECT 1"), query("B", "SELECT 2")}));
    session.main.window.list(ObjectList::kQueries)
        .insert(session.main.window.list(ObjectList::kQueries).begin(),
                ListItem{"~sq_fMain", "", false});
    session.main.window.chkMultiSel = option;
    ConvertQueries(session.main, true);
    if (option == 0) {
      EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"B.bas", "xsq_fMain.bas"}));
    } else {
      EXPECT_EQ(fileContent(session.out() / "OrdersQueries.bas"),
                "Sub B()\r\nDim strSQL as String\r\n   strSQL = \"SELECT 2\"\r\nEnd Sub\r\n\r\n");
    }
  }
}

TEST(QueryBatch, FailuresAreCountedWithTheirNotes) {
  const Json noPermission = {{"error", 2601}};
  const Json badJoins = {{"error", 3258}};
  const std::string oneNote =
      "Note: One Access Query was not converted to a Visual Basic Module. You either do not have "
      "permission for the Query or the Query contains invalid Joins.\r\n\r\n";
  const std::string twoNote =
      " 2 Access Queries were not converted to Visual Basic Modules. You either do not have "
      "permission for the Queries or they contain invalid Joins.\r\n\r\n";
  const std::string unable = "Unable to convert Access Queries to Visual Basic Modules.\r\n\r\n";
  for (const int option : {0, 1}) {
    const auto summaryOf = [&](const std::vector<Json>& queries) {
      TestSession session;
      session.open(databaseOf(queries));
      session.main.window.chkMultiSel = option;
      ConvertQueries(session.main, true);
      return session.onlyBox().text;
    };
    EXPECT_EQ(summaryOf({query("A", noPermission)}), unable + oneNote);
    EXPECT_EQ(summaryOf({query("A", noPermission), query("B", badJoins)}),
              unable + "Note: " + twoNote);
    const std::string one = summaryOf({query("A", badJoins), query("B", "SELECT 2")});
    EXPECT_NE(one.find("\r\n\r\n" + oneNote + std::string(kTime)), std::string::npos) << one;
    const std::string two =
        summaryOf({query("A", badJoins), query("B", "SELECT 2"), query("C", noPermission)});
    EXPECT_NE(two.find("\r\n\r\nNote:" + twoNote + std::string(kTime)), std::string::npos) << two;
  }
}

TEST(QueryBatch, ConvertedOneNamesTheLastSelectedItemOrInTheMultiplePathTheLastOfTheList) {
  const std::vector<Json> queries = {query("A", "SELECT 1"), query("B", {{"error", 2601}}),
                                     query("C", "SELECT 3")};
  TestSession session;
  session.open(databaseOf(queries));
  session.select(ObjectList::kQueries, {"A", "B"});
  ConvertQueries(session.main, false);
  EXPECT_NE(session.onlyBox().text.find("Access Query: B to Visual Basic Module: A.bas."),
            std::string::npos);
  session.main.window.chkMultiSel = 1;
  ConvertQueries(session.main, false);
  EXPECT_NE(session.onlyBox().text.find("Access Query: C to Visual Basic Module: A.bas."),
            std::string::npos);
}

TEST(QueryBatch, AnyOtherErrorEndsTheDriverAndLeavesTheSingleFileOpen) {
  TestSession session;
  session.open(
      databaseOf({query("A", "SELECT 1"), query("B", {{"error", 3011}, {"description", "Gone"}}),
                  query("C", "SELECT 3")}));
  session.main.window.chkMultiSel = 1;
  ConvertQueries(session.main, true);
  EXPECT_EQ(session.onlyBox().text, "ConvertQueries() - Error #3011\r\nGone");
  EXPECT_TRUE(session.files.IsOpen(kOutputFile));
  EXPECT_EQ(session.main.window.mousePointer, 0);
  EXPECT_TRUE(session.main.window.ProgressBar1[0].visible);
  EXPECT_FALSE(session.main.window.lblCurDb.visible);

  // The next batch finds the flag of the first query set and the slot taken: naming says so, and
  // the writing closes the slot.
  session.select(ObjectList::kQueries, {"C"});
  ConvertQueries(session.main, false);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text, "SetupQueryNames() - Error #55\r\nFile already open");
  EXPECT_EQ(fileContent(session.out() / "C.bas"),
            "Sub C()\r\nDim strSQL as String\r\n   strSQL = \"SELECT 3\"\r\nEnd Sub\r\n");
  EXPECT_FALSE(session.files.IsOpen(kOutputFile));
}

TEST(QueryBatch, AMultipleBatchOfOneConvertedQueryLeavesTheFirstQueryFlagSet) {
  TestSession session;
  session.open(databaseOf({query("A", "SELECT 1"), query("B", "")}));
  session.main.window.chkMultiSel = 1;
  ConvertQueries(session.main, true);
  EXPECT_TRUE(session.main.state.mblnFirstQuery);
  // The single path then opens the single file anew and leaves it empty.
  session.select(ObjectList::kQueries, {"A"});
  ConvertQueries(session.main, false);
  EXPECT_EQ(fileContent(session.out() / "OrdersQueries.bas"), "");
  EXPECT_EQ(fileContent(session.out() / "A.bas"),
            "Sub A()\r\nDim strSQL as String\r\n   strSQL = \"SELECT 1\"\r\nEnd Sub\r\n");
}

TEST(QueryBatch, InTheSinglePathAQueryThatIsNotFoundTakesTheTextBeforeIt) {
  TestSession session;
  session.open(databaseOf({query("A", "SELECT 1"), query("B", "SELECT 2")}));
  session.main.window.list(ObjectList::kQueries)[1].text = "Gone";
  ConvertQueries(session.main, true);
  EXPECT_EQ(fileContent(session.out() / "Gone.bas"),
            "Sub Gone()\r\nDim strSQL as String\r\n   strSQL = \"SELECT 1\"\r\nEnd Sub\r\n");
}

TEST(QueryBatch, ProgressShowsInTheMultiplePathAndLagsOneItemBehind) {
  TestSession session;
  session.open(
      databaseOf({query("A", "SELECT 1"), query("B", "SELECT 2"), query("C", "SELECT 3")}));
  session.main.window.chkMultiSel = 1;
  ConvertQueries(session.main, true);
  EXPECT_EQ(session.user.progressLabels,
            (std::vector<std::string>{"Query: ", "Query: A", "Query: B"}));
  EXPECT_EQ(session.main.window.lblPct.caption, "");
  EXPECT_TRUE(session.main.window.lblPct.visible);
  EXPECT_TRUE(session.main.window.lblCurDb.visible);
  EXPECT_FALSE(session.main.window.ProgressBar1[0].visible);

  session.main.window.chkMultiSel = 0;
  session.user.progressLabels.clear();
  ConvertQueries(session.main, true);
  EXPECT_EQ(session.user.progressLabels, (std::vector<std::string>{"", "", ""}));
}

TEST(QueryBatch, WithSomeSelectedTheLabelStartsWithTheFirstSelectedItem) {
  TestSession session;
  session.open(
      databaseOf({query("A", "SELECT 1"), query("B", "SELECT 2"), query("C", "SELECT 3")}));
  session.main.window.chkMultiSel = 1;
  session.select(ObjectList::kQueries, {"B", "C"});
  ConvertQueries(session.main, false);
  EXPECT_EQ(session.user.progressLabels, (std::vector<std::string>{"Query: B", "Query: B"}));
}

TEST(QueryBatch, AFailedWriteShowsItsOwnBoxAndTheBatchGoesOn) {
  TestSession session;
  session.open(databaseOf({query("A", "SELECT 1")}));
  session.select(ObjectList::kQueries, {"A"});
  std::filesystem::create_directory(session.out() / "A.bas");
  ConvertQueries(session.main, false);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text, "WriteSQLQuery(A) - Error #75 Path/File access error");
}

TEST(ElapsedTime, SecondsOf01TakeTheSingular) {
  constexpr double kSecond = 1.0 / 86400;
  EXPECT_EQ(elapsedTimeSentence(0.5, 0.5 + kSecond), "Conversion completed in: 00:01 second.");
  EXPECT_EQ(elapsedTimeSentence(0.5, 0.5 + 61 * kSecond), "Conversion completed in: 01:01 second.");
  EXPECT_EQ(elapsedTimeSentence(0.5, 0.5 + 2 * kSecond), "Conversion completed in: 00:02 seconds.");
}

}  // namespace
}  // namespace tarrowin::test
