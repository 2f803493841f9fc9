// The names, the text and the file of a converted query.
#include "query/query_module.h"

#include <cerrno>

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace tarrowin::test {
namespace {

class QueryModule : public testing::Test {
 protected:
  QueryModule() {
    state.mstrOutputDir = session.out().string() + "/";
    state.mstrDbName = "Orders.mdb";
  }
  TestSession session;
  ConversionState& state = session.main.state;
};

TEST_F(QueryModule, AFirstCharacterThatIsADigitBecomesX) {
  SetupQueryNames(session.main, "2005 Sales");
  EXPECT_EQ(state.mstrQryName, "2005 Sales");
  EXPECT_EQ(state.mstrBaseName, "x005_Sales");
  EXPECT_EQ(state.gstrQueryFile, "x005_Sales.bas");
  cutToProcedureName(state.gstrQueryFile);
  EXPECT_EQ(state.gstrQueryFile, "x005_Sales");
}

TEST_F(QueryModule, TextInDoubleQuotesStandsInSingleQuotes) {
  EXPECT_EQ(queryModuleText("A", "SELECT * FROM T WHERE N = \"O'Hara\";"),
            "Sub A()\r\nDim strSQL as String\r\n"
            "   strSQL = \"SELECT * FROM T WHERE N = 'O'Hara';\"\r\nEnd Sub");
}

TEST_F(QueryModule, AParametersClauseIsCopiedLikeTheRest) {
  const std::string sql = "PARAMETERS [Start Date] DateTime;\r\nSELECT * FROM T;\r\n";
  EXPECT_EQ(queryModuleText("A", sql),
            "Sub A()\r\nDim strSQL as String\r\n"
            "   strSQL = \"PARAMETERS [Start Date] DateTime;  SELECT * FROM T;  \"\r\nEnd Sub");
}

TEST_F(QueryModule, LineBreaksAndControlCharactersBecomeBlanksAndTypographicQuotesStay) {
  EXPECT_EQ(queryModuleText("A", "a\r\n\r\nb\rc\nd\te\x7f\x80\x90\x91\x92\x93\x9f\xa0"),
            "Sub A()\r\nDim strSQL as String\r\n"
            "   strSQL = \"a    b c d e   \x91\x92  \xa0\"\r\nEnd Sub");
}

TEST_F(QueryModule, AnExistingFileOfTheQuerysNameIsDeletedAlsoInTheSingleFileLayout) {
  writeFile(session.out() / "Big_Orders.bas", "old");
  state.mblnFirstQuery = true;
  SetupQueryNames(session.main, "Big Orders");
  session.files.Close(kOutputFile);
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"OrdersQueries.bas"}));
  EXPECT_EQ(state.mstrQueriesFile, "OrdersQueries.bas");
}

TEST_F(QueryModule, TheCountersOfTheDataControlsAreReset) {
  state.intDataCtlNum = 2;
  state.intAdoCtlNum = 3;
  SetupQueryNames(session.main, "A");
  EXPECT_EQ(state.intDataCtlNum, 0);
  EXPECT_EQ(state.intAdoCtlNum, 0);
}

TEST_F(QueryModule, ADatabaseNameShorterThanItsExtensionIsReported) {
  state.mstrDbName = "a.b";
  state.mblnFirstQuery = true;
  SetupQueryNames(session.main, "A");
  EXPECT_EQ(session.onlyBox().text,
            "SetupQueryNames() - Error #5\r\nInvalid procedure call or argument");
}

// A disk on which opening for writing, or writing, fails a number of times.
class FailingDisk : public PosixFileSystem {
 public:
  int open(const std::string& path, Access access, Handle& handle) override {
    if (access != Access::kRead && openError != 0) return openError;
    return PosixFileSystem::open(path, access, handle);
  }
  int write(Handle handle, std::string_view bytes, std::size_t& written) override {
    if (writeError == 0) return PosixFileSystem::write(handle, bytes, written);
    written = 0;
    return writeError;
  }
  int openError = 0;
  int writeError = 0;
};

class QueryModuleOnFailingDisk : public testing::Test {
 protected:
  QueryModuleOnFailingDisk() {
    session.main.state.mstrOutputDir = session.out().string() + "/";
    session.main.state.mstrModFile = "A.bas";
    session.main.state.gstrQueryFile = "A";
  }
  FailingDisk* disk = new FailingDisk;  // owned by the session
  TestSession session{std::unique_ptr<FileSystem>(disk)};
};

TEST_F(QueryModuleOnFailingDisk, AFileThatIsOpenIsClosedDeletedAndWrittenAgain) {
  session.files.Open((session.out() / "A.bas").string(), FileMode::kOutput, kOutputFile);
  WriteSQLQuery(session.main, "text");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(fileContent(session.out() / "A.bas"), "text\r\n");
}

TEST_F(QueryModuleOnFailingDisk, AFullDiskIsReportedAndTheFileClosed) {
  disk->writeError = ENOSPC;
  WriteSQLQuery(session.main, "text");
  EXPECT_EQ(session.onlyBox(),
            (Box{16, "WriteSQLQuery(A) - Error #61 Disk full", "Access to Visual Basic Tarrowin"}));
  EXPECT_FALSE(session.files.IsOpen(kOutputFile));
}

TEST_F(QueryModuleOnFailingDisk, AVanishedDirectoryIsReported) {
  std::filesystem::remove(session.out());
  WriteSQLQuery(session.main, "text");
  EXPECT_EQ(session.onlyBox().text, "WriteSQLQuery(A) - Error #76 Path not found");
}

TEST_F(QueryModuleOnFailingDisk, AFileThatMayNotBeWrittenIsReported) {
  disk->openError = EACCES;
  WriteSQLQuery(session.main, "text");
  EXPECT_EQ(session.onlyBox().text, "WriteSQLQuery(A) - Error #75 Path/File access error");
}

}  // namespace
}  // namespace tarrowin::test
