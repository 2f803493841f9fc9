// The error tables of both code procedures, number by number, and a failing disk.
#include <cerrno>

#include <gtest/gtest.h>

#include "codeconv/code_session.h"
#include "codeconv/form_code.h"
#include "codeconv/module_code.h"
#include "shared/vb_text.h"

namespace tarrowin::test {
namespace {

const std::string kModuleSource = "a = 1\r\nEnd Sub\r\n";
const std::string kModuleResult = "a = 1\r\nEnd Sub\r\n\r\n";

Box moduleBox(const std::string& numberAndText) {
  return {16, "GetAccModuleCode(Utilities) - Error #" + numberAndText,
          "Access to Visual Basic Tarrowin"};
}

Box formBox(const std::string& numberAndText) {
  return {16, "GetAccFormCode(Form: Sales Form - Object: txtLast) - Error #" + numberAndText,
          "Access to Visual Basic Tarrowin"};
}

// A session whose export has written its file when it raises the number, the first time only.
struct Refused : CodeSession {
  explicit Refused(std::int32_t number) {
    access->text = kModuleSource;
    access->onMember = [this, number](std::string_view member) {
      if (member == "OutputTo" && ++exports == 1) throw VbError(number, "Refused");
    };
  }
  bool hasExport() const { return std::filesystem::exists(path("Mod_Utilities.bas")); }
  bool hasFormExport() const { return std::filesystem::exists(path("Form_Sales_Form.frm")); }
  int exports = 0;
};

// Module code

class ModulePassesSilently : public testing::TestWithParam<std::int32_t> {};

TEST_P(ModulePassesSilently, AndGoesOnAtTheNextStatement) {
  Refused session(GetParam());
  GetAccModuleCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Utilities.bas"), kModuleResult);
  EXPECT_FALSE(session.hasExport());
  EXPECT_TRUE(session.bothFilesAreClosed());
}

INSTANTIATE_TEST_SUITE_P(Numbers, ModulePassesSilently, testing::Values(17, 53, 438, 2046));

class ModuleLeaves : public testing::TestWithParam<std::int32_t> {};

TEST_P(ModuleLeaves, SilentlyWithItsFileClosed) {
  Refused session(GetParam());
  GetAccModuleCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Utilities.bas"), "");
  // What Access left is not looked at any more.
  EXPECT_TRUE(session.hasExport());
  EXPECT_TRUE(session.bothFilesAreClosed());
}

INSTANTIATE_TEST_SUITE_P(Numbers, ModuleLeaves, testing::Values(52, 54, 2487, 2517));

TEST(ModuleCodeFailure, Number52And54CloseBothFiles2487And2517OnlyTheOutput) {
  for (const auto& [number, exportStaysOpen] :
       {std::pair<std::int32_t, bool>{52, false}, {54, false}, {2487, true}, {2517, true}}) {
    CodeSession session;
    // File 2 is in use by somebody else when the count is asked for.
    writeFile(session.path("other.txt"), "x");
    session.files.Open(session.path("other.txt").string(), FileMode::kInput, kExportFile);
    session.access->onMember = [&, n = number](std::string_view) { throw VbError(n, "x"); };
    GetAccModuleCode(session.main);
    EXPECT_FALSE(session.files.IsOpen(kOutputFile)) << number;
    EXPECT_EQ(session.files.IsOpen(kExportFile), exportStaysOpen) << number;
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(ModuleCodeFailure, FileAlreadyOpenClosesBothDeletesTheExportAndRetries) {
  Refused session(55);
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.exports, 2);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_TRUE(session.bothFilesAreClosed());
  // The output was closed before it was written: the first print fails with 52 and leaves.
  EXPECT_EQ(session.content("Utilities.bas"), "");
}

TEST(ModuleCodeFailure, AFile1LeftOpenIsClosedAndTheModuleConverts) {
  CodeSession session;
  session.access->text = kModuleSource;
  session.files.Open(session.path("Queries.bas").string(), FileMode::kOutput, kOutputFile);
  session.files.Print(kOutputFile, "of an earlier batch");
  GetAccModuleCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Utilities.bas"), kModuleResult);
  EXPECT_EQ(session.content("Queries.bas"), "of an earlier batch\r\n");
}

TEST(ModuleCodeFailure, AFileOpenUnderAnotherNumberIsTriedTwiceThenReported) {
  CodeSession session;
  session.access->text = kModuleSource;
  session.files.Open(session.path("Utilities.bas").string(), FileMode::kOutput, 7);
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{moduleBox("55 File already open")}));
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(ModuleCodeFailure, PastTheEndOfTheFileClosesBothAndGoesOn) {
  Refused session(62);
  GetAccModuleCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  // The export is still opened and read; the first print has no file and leaves.
  EXPECT_EQ(session.content("Utilities.bas"), "");
  EXPECT_EQ(session.main.state.strCodeLine, "a = 1");
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(ModuleCodeFailure, AnyOtherNumberIsReportedThenBothAreClosedAndItGoesOn) {
  Refused session(2302);
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{moduleBox("2302 Refused")}));
  EXPECT_EQ(session.main.state.strCodeLine, "a = 1");
  EXPECT_EQ(session.content("Utilities.bas"), "");
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(ModuleCodeFailure, AnExportThatWroteNothingGivesAnEmptyFile) {
  CodeSession session;
  session.access->onMember = [&](std::string_view member) {
    if (member != "OutputTo") return;
    std::filesystem::remove(session.path("Mod_Utilities.bas"));
    raise(2046);
  };
  GetAccModuleCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Utilities.bas"), "");
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(ModuleCodeFailure, ACountThatCannotBeReadCountsAsNone) {
  CodeSession session;
  session.access->onMember = [](std::string_view) { throw VbError(7961, "Not open"); };
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{moduleBox("7961 Not open")}));
  EXPECT_TRUE(session.bothFilesAreClosed());
  EXPECT_TRUE(session.access->exported.empty());
}

TEST(ModuleCodeFailure, TheOutputDirectoryIsMissingFromTheStart) {
  CodeSession session;
  session.main.state.mstrOutputDir = session.path("gone").string() + "/";
  session.access->onMember = [](std::string_view member) {
    if (member == "OutputTo") throw VbError(2302, "Not saved");
  };
  // The stand-in cannot write its file there either.
  session.access->failToWrite = true;
  GetAccModuleCode(session.main);
  // Opening the output, exporting, opening the export; then the test for the end leaves.
  EXPECT_EQ(session.boxes(),
            (std::vector<Box>{moduleBox("76 Path not found"), moduleBox("2302 Not saved"),
                              moduleBox("76 Path not found")}));
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(ModuleCodeFailure, TheOutputDirectoryIsRemovedUnderWay) {
  CodeSession session;
  const std::filesystem::path out = session.path("out");
  std::filesystem::create_directory(out);
  session.main.state.mstrOutputDir = out.string() + "/";
  session.access->text = kModuleSource;
  session.access->onMember = [&](std::string_view member) {
    if (member == "OutputTo") std::filesystem::remove_all(out);
  };
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{moduleBox("76 Path not found")}));
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(ModuleCodeFailure, ADiskThatFillsUpIsReportedOnceAndTheProcedureLeaves) {
  CodeSession session;
  for (int i = 0; i < 5000; ++i)
    session.access->text += "x = \"0123456789012345678901234567890\"\r\n";
  session.disk.failOn(Operation::kWrite, 1, ENOSPC, true);
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{moduleBox("61 Disk full")}));
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(ModuleCodeFailure, ADiskThatIsFullAtTheLastCloseIsReportedToo) {
  CodeSession session;
  session.access->text = kModuleSource;
  session.disk.failOn(Operation::kWrite, 1, ENOSPC, true);
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{moduleBox("61 Disk full")}));
  EXPECT_TRUE(session.bothFilesAreClosed());
  EXPECT_EQ(session.names(), std::vector<std::string>{"Utilities.bas"});
}

TEST(ModuleCodeFailure, AFailingTestForTheEndOfTheFileEndsTheLoop) {
  CodeSession session;
  session.access->text = kModuleSource;
  session.disk.failOn(Operation::kRead, 1, EIO, true);
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{moduleBox("57 Device I/O error")}));
  EXPECT_EQ(session.names(), std::vector<std::string>{"Utilities.bas"});
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(ModuleCodeFailure, ALineThatCannotBeCutIsReportedAndEndsTheModule) {
  CodeSession session;
  session.access->text = "a = 1\r\nx = CurrentDb\r\nb = 2\r\n";
  GetAccModuleCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{moduleBox("5 Invalid procedure call or argument")}));
  // Its files are closed by the box; the next test for the end leaves.
  EXPECT_EQ(session.content("Utilities.bas"), "a = 1\r\n");
  EXPECT_TRUE(session.bothFilesAreClosed());
}

// Fails the first operation, then the second, and so on until none is left to fail; once alone
// and once with all later ones of its kind.
TEST(ModuleCodeFailure, EveryOperationOnTheDiskMayFail) {
  for (const bool andAllLater : {false, true}) {
    for (const Operation operation : {Operation::kOpen, Operation::kRead, Operation::kWrite,
                                      Operation::kClose, Operation::kRemove, Operation::kStatus}) {
      bool reached = true;
      for (int n = 1; reached; ++n) {
        ASSERT_LT(n, 100);
        CodeSession session;
        writeFile(session.path("Mod_Utilities.bas"), "left over");
        session.access->text = kModuleSource;
        session.disk.failOn(operation, n, EIO, andAllLater);
        GetAccModuleCode(session.main);
        reached = session.disk.count(operation) >= n;
        EXPECT_TRUE(session.bothFilesAreClosed());
        if (reached) continue;
        EXPECT_TRUE(session.user.boxes.empty());
        EXPECT_EQ(session.content("Utilities.bas"), kModuleResult);
      }
    }
  }
}

// Form code

class FormPassesSilently : public testing::TestWithParam<std::int32_t> {};

TEST_P(FormPassesSilently, AndGoesOnAtTheNextStatement) {
  Refused session(GetParam());
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Sales_Form.frm"), "(properties)\r\n" + kModuleResult);
  EXPECT_FALSE(session.hasFormExport());
  EXPECT_EQ(session.access->closed, (std::vector<std::string>{"2", "Sales Form", "2"}));
  EXPECT_TRUE(session.bothFilesAreClosed());
}

// 52 and 54 close file 2, which is not open yet.
INSTANTIATE_TEST_SUITE_P(Numbers, FormPassesSilently,
                         testing::Values(9, 53, 438, 2046, -2147417851, 52, 54));

TEST(FormCodeFailure, Number52And54CloseFile2AndGoOn) {
  for (const std::int32_t number : {52, 54}) {
    CodeSession session;
    writeFile(session.path("other.txt"), "x");
    session.files.Open(session.path("other.txt").string(), FileMode::kInput, kExportFile);
    session.access->text = kModuleSource;
    session.access->onMember = [&](std::string_view member) {
      if (member == "Close") throw VbError(number, "x");
    };
    session.beginForm();
    GetAccFormCode(session.main);
    // Had file 2 stayed open, opening the export would have raised 55 and closed the output.
    EXPECT_EQ(session.content("Sales_Form.frm"), "(properties)\r\n" + kModuleResult);
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(FormCodeFailure, FileAlreadyOpenClosesBothDeletesTheExportAndRetries) {
  Refused session(55);
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_EQ(session.exports, 2);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Sales_Form.frm"), "(properties)\r\n");
  EXPECT_FALSE(session.hasFormExport());
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(FormCodeFailure, AFileOpenUnderAnotherNumberIsTriedTwiceThenReported) {
  CodeSession session;
  session.access->text = kModuleSource;
  session.beginForm();
  session.access->onMember = [&](std::string_view member) {
    if (member != "Close") return;
    session.files.Open(session.path("Form_Sales_Form.frm").string(), FileMode::kAppend, 7);
  };
  GetAccFormCode(session.main);
  ASSERT_GE(session.user.boxes.size(), 1u);
  EXPECT_EQ(session.user.boxes.front(), formBox("55\r\nFile already open"));
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(FormCodeFailure, PastTheEndOfTheFileClosesBothAndGoesOn) {
  Refused session(62);
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Sales_Form.frm"), "(properties)\r\n");
  EXPECT_FALSE(session.hasFormExport());
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(FormCodeFailure, Number2517ClosesTheOutputAndLeaves) {
  Refused session(2517);
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Sales_Form.frm"), "(properties)\r\n");
  EXPECT_TRUE(session.access->closed.empty());
  EXPECT_TRUE(session.hasFormExport());
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(FormCodeFailure, AnyOtherNumberIsReportedAndItGoesOn) {
  Refused session(2487);
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{formBox("2487\r\nRefused")}));
  EXPECT_EQ(session.content("Sales_Form.frm"), "(properties)\r\n" + kModuleResult);
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(FormCodeFailure, TheBoxOfAReportNamesTheReport) {
  CodeSession session;
  session.main.state.mblnReportMode = true;
  session.access->onMember = [](std::string_view) { throw VbError(2489, "Not open"); };
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_EQ(session.boxes(),
            (std::vector<Box>{{16,
                               "GetAccFormCode(Report: Sales Form - Object: txtLast) - Error "
                               "#2489\r\nNot open",
                               "Access to Visual Basic Tarrowin"}}));
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(FormCodeFailure, ALineThatCannotBeCutIsReportedAndMissing) {
  CodeSession session;
  session.access->text = "a = 1\r\nx = CurrentDb\r\nb = 2\r\n";
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_EQ(session.boxes(),
            (std::vector<Box>{formBox("5\r\nInvalid procedure call or argument")}));
  EXPECT_EQ(session.content("Sales_Form.frm"), "(properties)\r\na = 1\r\nb = 2\r\n");
}

TEST(FormCodeFailure, AnExportThatWroteNothingStillGetsTheGeneratedCode) {
  CodeSession session;
  session.main.state.blnFillLists = true;
  session.main.state.astrListSources.append("lstA;x");
  session.access->onMember = [&](std::string_view member) {
    if (member != "OutputTo") return;
    std::filesystem::remove(session.path("Form_Sales_Form.frm"));
    raise(2046);
  };
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.content("Sales_Form.frm"),
            "(properties)\r\nOption Explicit\r\nPrivate Sub Form_Load()\r\n"
            "' Tarrowin: Load ListBox items\r\n"
            "   With lstA\r\n      .Text = \"x\"\r\n      .AddItem \"x\"\r\n   End With\r\n"
            "End Sub\r\n");
}

TEST(FormCodeFailure, TheOutputDirectoryIsRemovedUnderWay) {
  CodeSession session;
  const std::filesystem::path out = session.path("out");
  std::filesystem::create_directory(out);
  session.main.state.mstrOutputDir = out.string() + "/";
  session.beginForm();
  session.access->text = kModuleSource;
  session.access->onMember = [&](std::string_view member) {
    if (member == "Close") std::filesystem::remove_all(out);
  };
  GetAccFormCode(session.main);
  // Both openings of the export; deleting it finds nothing, which passes.
  EXPECT_EQ(session.boxes(),
            (std::vector<Box>{formBox("76\r\nPath not found"), formBox("76\r\nPath not found")}));
  EXPECT_TRUE(session.bothFilesAreClosed());
}

TEST(FormCodeFailure, AFullDiskIsReportedForTheCloseThatMeetsIt) {
  CodeSession session;
  session.access->text = kModuleSource;
  session.beginForm();
  session.disk.failOn(Operation::kWrite, 1, ENOSPC, true);
  GetAccFormCode(session.main);
  EXPECT_EQ(session.boxes(), (std::vector<Box>{formBox("61\r\nDisk full")}));
  EXPECT_TRUE(session.bothFilesAreClosed());
  EXPECT_FALSE(std::filesystem::exists(session.path("Form_Sales_Form.frm")));
}

TEST(FormCodeFailure, EveryOperationOnTheDiskMayFail) {
  for (const bool andAllLater : {false, true}) {
    for (const Operation operation : {Operation::kOpen, Operation::kRead, Operation::kWrite,
                                      Operation::kClose, Operation::kRemove, Operation::kStatus}) {
      bool reached = true;
      for (int n = 1; reached; ++n) {
        ASSERT_LT(n, 100);
        CodeSession session;
        writeFile(session.path("Form_Sales_Form.frm"), "left over");
        session.access->text = kModuleSource;
        session.main.state.blnHasPictures = true;
        session.beginForm();
        const int before = session.disk.count(operation);
        session.disk.failOn(operation, before + n, EIO, andAllLater);
        GetAccFormCode(session.main);
        reached = session.disk.count(operation) >= before + n;
        EXPECT_TRUE(session.bothFilesAreClosed());
        if (reached) continue;
        EXPECT_TRUE(session.user.boxes.empty());
        EXPECT_EQ(session.content("Sales_Form.frm"),
                  "(properties)\r\n" + kModuleResult +
                      "Option Explicit\r\nPrivate Sub Form_Load()\r\n"
                      "' Tarrowin: Load and display images\r\n   \r\nEnd Sub\r\n");
      }
    }
  }
}

}  // namespace
}  // namespace tarrowin::test
