// cmdOpen_Click: its dialog, its error table, its version checks, what it leaves behind.
#include <gtest/gtest.h>

#include "core/database_opening.h"
#include "core/query_batch.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kFormat =
    "The Tarrowin can open Microsoft Access 97, 2000, 2002 or 2003 databases (.MDB) files only.";

Json failing(std::string_view operation, const Json& error) {
  Json database = emptyDatabase();
  database["application"]["errors"][std::string(operation)] = error;
  return database;
}

Json ofVersion(const Json& version) {
  Json database = emptyDatabase();
  database["database"]["properties"]["AccessVersion"] = version;
  return database;
}

void expectRefused(const TestSession& session) {
  EXPECT_TRUE(session.main.state.mblnOpenFailed);
  EXPECT_EQ(session.main.state.gstrDbPath, "");
  EXPECT_FALSE(session.main.state.gappAccess);
  EXPECT_EQ(session.main.window.mousePointer, 0);
}

TEST(Opening, ShowsTheDatabaseAndFillsTheWindow) {
  TestSession session;
  Json database = emptyDatabase();
  database["forms"].push_back({{"name", "frmA"}, {"properties", Json::object()}});
  session.open(database);
  const ConversionState& state = session.main.state;
  const std::string path = session.folder() + "/orders.access.json";
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.main.window.caption,
            "Access to Visual Basic Tarrowin - [orders.access.json] Access v08.50");
  EXPECT_EQ(state.gstrDbPath, path);
  EXPECT_EQ(state.gstrDbFile, "orders.access.json");
  EXPECT_EQ(state.mstrLastDbPath, path);
  EXPECT_EQ(state.mstrDbFullName, "C:\\Data\\Orders.mdb");
  EXPECT_EQ(state.mstrDbName, "Orders.mdb");
  EXPECT_EQ(session.main.window.lblCurDb.caption, path);
  EXPECT_FALSE(state.mblnAccess97);
  EXPECT_FALSE(state.mblnOpenFailed);
  EXPECT_EQ(session.user.fillings, 1);
}

TEST(Opening, TheDialogIsSetUpAndStartsAtTheLastDatabase) {
  TestSession session;
  session.open(emptyDatabase());
  session.openPath("");
  ASSERT_EQ(session.user.dialogs.size(), 2u);
  EXPECT_EQ(session.user.dialogs[0].dialogTitle, "Open a Microsoft Access Database");
  EXPECT_EQ(session.user.dialogs[0].filter, "Access MDB Files (*.mdb)|*.mdb");
  EXPECT_EQ(session.user.dialogs[0].defaultExt, "*.mdb");
  EXPECT_EQ(session.user.dialogs[0].initDir, "");
  EXPECT_EQ(session.user.dialogs[1].initDir, session.folder() + "/orders.access.json");
}

TEST(Opening, TheOutputDirectoryBecomesTheDatabasesOwn) {
  TestSession session;
  session.open(emptyDatabase());
  session.openPath(session.folder() + "/orders.access.json");
  session.clearBoxes();
  session.main.window.txtCurDir = "";
  TestSession other;
  writeFile(other.out() / "x.access.json", emptyDatabase().dump());
  session.openPath((other.out() / "x.access.json").string());
  EXPECT_EQ(session.main.window.txtCurDir, other.out().string());
}

TEST(Opening, CancellingTheDialogLeavesEverythingAsItWas) {
  TestSession session;
  session.open(emptyDatabase());
  const std::string caption = session.main.window.caption;
  session.openPath("");
  session.openPath("/somewhere/*.mdb");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.main.window.caption, caption);
  EXPECT_TRUE(session.main.state.gappAccess);
  EXPECT_EQ(session.user.fillings, 1);
}

TEST(Opening, TheDatabaseThatIsOpenIsNotOpenedAgain) {
  TestSession session;
  session.open(emptyDatabase());
  session.openPath(session.folder() + "/orders.access.json");
  EXPECT_EQ(session.onlyBox(),
            (Box{64, "The database that you are attempting to open is already open.",
                 "Access to Visual Basic Tarrowin"}));
  EXPECT_TRUE(session.main.state.gappAccess);
  EXPECT_EQ(session.user.fillings, 1);
}

TEST(Opening, AFileThatIsNotThereReleasesAccessAndKeepsThePath) {
  TestSession session;
  Json database = emptyDatabase();
  database["queries"].push_back(query("A", "SELECT 1"));
  session.open(database);
  const std::string path = session.main.state.gstrDbPath;
  session.openPath(session.folder() + "/gone.mdb");
  EXPECT_EQ(session.onlyBox(),
            (Box{64,
                 "Unable to open database gone.mdb.  The selected file is not a Microsoft Access "
                 "database, or the database may be corrupted.",
                 "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(session.main.state.gstrDbPath, path);
  EXPECT_FALSE(session.main.state.gappAccess);
  // The old lists stand, and the old database still answers for its queries.
  session.main.window.txtCurDir = session.out().string();
  ConvertQueries(session.main, true);
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"A.bas"}));
}

TEST(Opening, ADirectoryIsNoFile) {
  TestSession session;
  session.openPath(session.out().string());
  EXPECT_EQ(session.onlyBox().text.substr(0, 33), "Unable to open database out.  The");
}

TEST(Opening, VersionsSevenToElevenAreOpened) {
  for (const char* version : {"7", "07.53", "08.50", "09.50", "10.0", "11.99"}) {
    TestSession session;
    session.open(ofVersion(version));
    EXPECT_TRUE(session.user.boxes.empty()) << version;
    EXPECT_EQ(session.main.state.mblnAccess97, std::string_view(version).find('7') < 2) << version;
    EXPECT_EQ(
        session.main.window.caption,
        "Access to Visual Basic Tarrowin - [orders.access.json] Access v" + std::string(version));
  }
}

TEST(Opening, EarlierVersionsAreRefused) {
  for (const char* version : {"1", "2.0", "06.68"}) {
    TestSession session;
    session.open(ofVersion(version));
    EXPECT_EQ(session.onlyBox(),
              (Box{16,
                   "The current database is an earlier version of Microsoft Access.\r\n\r\nIt is "
                   "highly recommended that you first convert the database to your current version "
                   "of Microsoft Access.",
                   "Access to Visual Basic Tarrowin"}));
    expectRefused(session);
  }
}

TEST(Opening, AMajorVersionOf12OrMoreIsRefusedLikeOneOf0) {
  for (const char* version : {"12.0", "0", "", "-3", "abc", "14"}) {
    TestSession session;
    session.open(ofVersion(version));
    EXPECT_EQ(session.onlyBox(), (Box{64, std::string(kFormat), "Access to Visual Basic Tarrowin"}))
        << version;
    expectRefused(session);
  }
}

TEST(Opening, AMissingVersionIsRefused) {
  TestSession session;
  Json database = emptyDatabase();
  database["database"]["properties"].erase("AccessVersion");
  session.open(database);
  EXPECT_EQ(session.onlyBox().text, kFormat);
  expectRefused(session);
}

TEST(Opening, TheStartFormIsShownWithoutItsPrefix) {
  Json database = emptyDatabase();
  database["forms"].push_back({{"name", "frmA"}, {"properties", Json::object()}});
  const auto startFormOf = [&](const Json& property) {
    TestSession session;
    database["database"]["properties"]["StartUpForm"] = property;
    session.open(database);
    EXPECT_TRUE(session.user.boxes.empty());
    return session.main.window.cboFormNames;
  };
  EXPECT_EQ(startFormOf("Form.frmMain"), "frmMain");
  EXPECT_EQ(startFormOf("frmMain"), "frmMain");
  EXPECT_EQ(startFormOf("(none)"), "(none)");
  EXPECT_EQ(startFormOf(""), "frmA");
}

TEST(Opening, ADatabaseWithoutAStartFormSelectsTheFirstForm) {
  Json database = emptyDatabase();
  TestSession without;
  without.open(database);
  EXPECT_EQ(without.main.window.cboFormNames, "");
  database["forms"].push_back({{"name", "frmA"}, {"properties", Json::object()}});
  database["forms"].push_back({{"name", "frmB"}, {"properties", Json::object()}});
  TestSession with;
  with.open(database);
  EXPECT_EQ(with.main.window.cboFormNames, "frmA");
  EXPECT_EQ(with.main.window.cboFormNamesItems, (std::vector<std::string>{"frmA", "frmB"}));
}

// The error table, by the operation that opens the database.
TEST(Opening, AnotherVersionOfAccessInTheWay) {
  for (const Json& number : {Json(462), Json(0x80010108u), Json(-2147023151)}) {
    TestSession session;
    session.open(failing("OpenCurrentDatabase", {{"error", number}, {"description", "Gone."}}));
    EXPECT_EQ(
        session.onlyBox(),
        (Box{16,
             "Gone.\r\n\r\nThe Tarrowin can only open Microsoft Access databases using the "
             "currently installed version of Access.\r\n\r\nIf you have more than one version "
             "of Microsoft Access installed, open the default or last installed version of "
             "Microsoft Access first.",
             "Access to Visual Basic Tarrowin"}));
    expectRefused(session);
  }
}

TEST(Opening, AClosedObjectEndsItWithoutAMessage) {
  TestSession session;
  session.open(failing("OpenCurrentDatabase", 2467));
  EXPECT_TRUE(session.user.boxes.empty());
  expectRefused(session);
}

TEST(Opening, ANewerDatabase) {
  TestSession session;
  session.open(failing("OpenCurrentDatabase", {{"error", 7866}, {"description", "Too new."}}));
  EXPECT_EQ(
      session.onlyBox(),
      (Box{64,
           "Too new.\r\n\r\nThe Tarrowin cannot open Microsoft Access databases that are newer "
           "than the currently installed version of Access.\r\n\r\nThe Tarrowin cannot open "
           "Microsoft Access version 2.0 or earlier databases.\r\n\r\nThe Tarrowin can open "
           "Microsoft Access 97, 2000, 2002 or 2003 databases (.MDB) only.",
           "Access to Visual Basic Tarrowin"}));
  expectRefused(session);
}

TEST(Opening, AnAutomationLinkThatIsGone) {
  for (const Json& number : {Json(7952), Json(0x7FF8F942), Json(0x800706BAu)}) {
    TestSession session;
    session.open(failing("OpenCurrentDatabase", number));
    EXPECT_TRUE(session.user.boxes.empty());
    expectRefused(session);
  }
}

TEST(Opening, NoDatabaseAtAll) {
  TestSession session;
  writeFile(session.out() / "text.mdb", "This is no database.\n");
  session.openPath((session.out() / "text.mdb").string());
  EXPECT_EQ(session.onlyBox(),
            (Box{16,
                 "Error opening database.  You don't have read permission for the objects in this "
                 "database or the database is not a Microsoft Access 97, 2000, 2002 or 2003 "
                 "version.\r\n\r\nThe Tarrowin can open Microsoft Access 97, 2000, 2002 or 2003 "
                 "(.MDB) databases only.",
                 "Access to Visual Basic Tarrowin"}));
  expectRefused(session);
}

TEST(Opening, AnyOtherErrorIsShownWithItsNumber) {
  TestSession session;
  session.open(
      failing("OpenCurrentDatabase", {{"error", 3031}, {"description", "Not a valid password."}}));
  EXPECT_EQ(session.onlyBox(),
            (Box{16,
                 "CmdOpen_Click() - Error #3031\r\nNot a valid password.\r\n\r\nPlease note this "
                 "error if you are unable to resolve the problem.",
                 "Access to Visual Basic Tarrowin"}));
  expectRefused(session);
}

TEST(Opening, HresultsArePrintedAsSignedNumbers) {
  TestSession session;
  session.open(failing("OpenCurrentDatabase", {{"error", 0x80020009u}, {"description", "x"}}));
  EXPECT_EQ(session.onlyBox().text.substr(0, 43),
            "CmdOpen_Click() - Error #-2147352567\r\nx\r\n\r\n");
}

TEST(Opening, ToleratedErrorsLeaveNoDatabaseAndTheVersionQuestionRefusesIt) {
  for (const int number : {13, 91, 2176, 2455, 2476}) {
    TestSession session;
    session.open(failing("OpenCurrentDatabase", number));
    EXPECT_EQ(session.onlyBox().text, kFormat) << number;
    expectRefused(session);
  }
}

TEST(Opening, AlreadyOpenCountsAsOpen) {
  TestSession session;
  session.open(failing("OpenCurrentDatabase", 7867));
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_NE(session.main.state.gstrDbPath, "");
}

TEST(Opening, AccessThatCannotBeStartedFailsSilently) {
  TestSession session;
  session.open(failing("Visible", 429));
  EXPECT_TRUE(session.user.boxes.empty());
  expectRefused(session);
}

TEST(Opening, AnOldDatabaseThatIsNotReleasedDoesNotStandInTheWay) {
  TestSession session;
  session.open(failing("Quit", 7952), "first.access.json");
  session.open(emptyDatabase(), "second.access.json");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.main.state.gstrDbFile, "second.access.json");
  EXPECT_NE(session.main.state.gstrDbPath, "");
  EXPECT_EQ(session.user.fillings, 2);
}

TEST(Opening, NullPropertiesCountAsEmpty) {
  TestSession session;
  Json database = emptyDatabase();
  database["database"]["properties"]["StartUpForm"] = nullptr;
  database["forms"].push_back({{"name", "frmA"}, {"properties", Json::object()}});
  session.open(database);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.main.window.cboFormNames, "frmA");
}

TEST(Opening, AnErrorAfterAFailedOpeningLetsTheSameFileBeTriedAtOnce) {
  TestSession session;
  session.open(failing("OpenCurrentDatabase", 7866));
  session.clearBoxes();
  writeFile(session.folder() + "/orders.access.json", emptyDatabase().dump());
  session.openPath(session.folder() + "/orders.access.json");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_TRUE(session.main.state.gappAccess);
}

TEST(Opening, ASecondDatabaseReplacesTheListsButNotTheStartFormsNames) {
  TestSession session;
  Json first = emptyDatabase(), second = emptyDatabase();
  first["forms"].push_back({{"name", "frmA"}, {"properties", Json::object()}});
  second["forms"].push_back({{"name", "frmB"}, {"properties", Json::object()}});
  session.open(first, "first.access.json");
  session.open(second, "second.access.json");
  ASSERT_EQ(session.main.window.list(ObjectList::kForms).size(), 1u);
  EXPECT_EQ(session.main.window.list(ObjectList::kForms)[0].text, "frmB");
  EXPECT_EQ(session.main.window.cboFormNamesItems, (std::vector<std::string>{"frmA", "frmB"}));
  EXPECT_EQ(session.main.window.cboFormNames, "frmB");
}

}  // namespace
}  // namespace tarrowin::test
