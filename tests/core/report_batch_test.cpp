// ConvertReports: its questions, what is written for each report, its projects and its closing box.
#include "core/report_batch.h"

#include "core/form_batch.h"
#include "core/library_paths.h"
#include "core/statement.h"
#include "core/window_events.h"
#include "reports/report_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kTitle = "Access to Visual Basic Tarrowin";
constexpr std::string_view kTime = "Conversion completed in: 00:00 seconds.";
constexpr std::string_view kAskMsderun = "Locate the MSDERUN.DLL file for you?";
constexpr std::string_view kAskMsado = "Locate the MSADAO15.DLL file for you?";

Json named(std::string_view name) {
  ReportParts parts;
  parts.name = name;
  return parts.entry();
}

Json boundTo(std::string_view name, std::string_view source) {
  Json entry = named(name);
  entry["properties"]["RecordSource"] = source;
  return entry;
}

class ReportBatch : public testing::Test {
 protected:
  // The driver itself turns to reports.
  ReportBatch() { state.mblnReportMode = false; }

  void openReports(const std::vector<Json>& reports) { session.openReports(reports); }
  void convert(const std::vector<std::string>& names) {
    session.select(ObjectList::kReports, names);
    ConvertReports(main, false);
  }
  std::string directory() const { return session.out().string() + "/"; }
  Lines lines(const std::string& name) const { return linesOf(fileContent(session.out() / name)); }
  bool isOpen(std::string_view name) {
    return ignoringErrors([&] { state.gappAccess.Reports(name).get("Name"); });
  }

  ReportSession session;
  MainObject& main = session.main;
  ConversionState& state = session.state;
};

TEST_F(ReportBatch, OneReport) {
  openReports({named("Sales"), named("Other")});
  convert({"Sales"});
  EXPECT_EQ(fileNames(session.out()),
            (Lines{"Sales.dsr", "Sales.vbp", "deSales.dsr", "frmSales.frm"}));
  EXPECT_EQ(
      session.onlyBox(),
      (Box{64,
           "Successfully converted Access Report: Sales to Visual Basic Report: "
           "Sales.dsr.\r\n\r\nA Visual Basic Project file: Sales.vbp is saved in directory: " +
               directory() + "\r\n\r\n" + std::string(kTime),
           std::string(kTitle)}));
  EXPECT_TRUE(state.gblnProjectNeeded);
  EXPECT_FALSE(isOpen("Sales"));
  EXPECT_EQ(main.lastBatch.selected, 1);
  EXPECT_EQ(main.lastBatch.converted, 1);
  EXPECT_EQ(lines("deSales.dsr")[1], "Begin {C0E45035-5775-11D0-B388-00A0C9055D8E} deSales");
  EXPECT_EQ(lines("Sales.dsr")[1], "Begin {78E93846-85FD-11D0-8487-00A0C90DC8A9} Sales");
  EXPECT_TRUE(contains(lines("Sales.dsr"), "End  ' Data Report Sales"));
}

TEST_F(ReportBatch, TheNameInTheClosingBoxIsTheAccessName) {
  openReports({named("2nd Quarter")});
  convert({"2nd Quarter"});
  EXPECT_TRUE(session.onlyBox().text.starts_with(
      "Successfully converted Access Report: 2nd Quarter to Visual Basic Report: "
      "xnd_Quarter.dsr.\r\n\r\nA Visual Basic Project file: xnd_Quarter.vbp is saved"));
}

TEST_F(ReportBatch, SeveralReports) {
  openReports({named("A"), named("B"), named("C")});
  convert({"A", "C"});
  EXPECT_EQ(fileNames(session.out()), (Lines{"A.dsr", "C.dsr", "OrdersReports.vbp", "deA.dsr",
                                             "deC.dsr", "frmOrdersReports.frm"}));
  EXPECT_EQ(session.onlyBox(),
            (Box{64,
                 "Successfully converted 2 Access Reports to Visual Basic Reports. \r\n\r\nA "
                 "Visual Basic Project file: OrdersReports.vbp is saved in directory: " +
                     directory() + "\r\n\r\n" + std::string(kTime),
                 std::string(kTitle)}));
  EXPECT_EQ(starting(lines("OrdersReports.vbp"), "Designer="),
            (Lines{"Designer=deA.dsr", "Designer=deC.dsr", "Designer=A.dsr", "Designer=C.dsr"}));
}

TEST_F(ReportBatch, AllReports) {
  openReports({named("A"), named("B"), named("C")});
  ConvertReports(main, true);
  EXPECT_EQ(main.lastBatch.converted, 3);
  EXPECT_TRUE(session.onlyBox().text.starts_with("Successfully converted 3 Access Reports"));
}

TEST_F(ReportBatch, TheProjectIsNamedByTheDatabaseUpToItsFirstDot) {
  session.database["database"]["name"] = "C:\\Data\\Shop.v2.mdb";
  openReports({named("A"), named("B")});
  convert({"A", "B"});
  EXPECT_TRUE(contains(fileNames(session.out()), "ShopReports.vbp"));
}

TEST_F(ReportBatch, AReportNamedLikeAFormKeepsItsName) {
  openReports({named("frmList")});
  convert({"frmList"});
  EXPECT_EQ(fileNames(session.out()),
            (Lines{"defrmList.dsr", "frmList.dsr", "frmList.frm", "frmList.vbp"}));
}

TEST_F(ReportBatch, TheReportsOfABatchAreThoseOfItsProject) {
  openReports({named("A"), named("B")});
  convert({"A"});
  convert({"B"});
  EXPECT_EQ(starting(lines("B.vbp"), "Designer="), (Lines{"Designer=deB.dsr", "Designer=B.dsr"}));
}

TEST_F(ReportBatch, NothingSelected) {
  openReports({named("A")});
  convert({});
  EXPECT_EQ(session.onlyBox(),
            (Box{64, "Please select a Report to convert from the displayed list first.",
                 std::string(kTitle)}));
  EXPECT_TRUE(fileNames(session.out()).empty());
}

TEST_F(ReportBatch, AnEmptyListClearsTheReportModeAndAsksNothing) {
  main.machine.msderunPath = "";
  openReports({});
  state.mblnReportMode = true;
  ConvertReports(main, true);
  EXPECT_EQ(session.onlyBox(), (Box{64, "There are no Reports to convert.", std::string(kTitle)}));
  EXPECT_FALSE(state.mblnReportMode);
  EXPECT_EQ(session.user.dialogs.size(), 1u);  // that of the opening
}

TEST_F(ReportBatch, TheReportModeIsClearedAfterTheBatch) {
  Json form = test::form("Main");
  session.database["forms"] = Json::array({form});
  openReports({named("A")});
  convert({"A"});
  EXPECT_FALSE(state.mblnReportMode);
  session.select(ObjectList::kForms, {"Main"});
  ConvertForms(main, false);
  EXPECT_TRUE(contains(fileNames(session.out()), "Main.frm"));
}

TEST_F(ReportBatch, TheReportModeIsClearedWhenNothingCouldBeConverted) {
  Json refused = named("A");
  refused["openError"] = 2601;
  openReports({refused});
  convert({"A"});
  EXPECT_FALSE(state.mblnReportMode);
}

TEST_F(ReportBatch, NoPermissionForTheOnlyReport) {
  Json refused = named("Secret");
  refused["openError"] = 2601;
  openReports({refused});
  state.gblnProjectNeeded = true;
  convert({"Secret"});
  EXPECT_EQ(session.boxTexts(),
            (Lines{"You don't have permission to open Report Secret.",
                   "Unable to convert Access Reports to Visual Basic Reports.\r\n\r\n"}));
  EXPECT_EQ(session.user.boxes[0].style, 64);
  EXPECT_EQ(session.user.boxes[1].style, 64);
  EXPECT_TRUE(fileNames(session.out()).empty());
  EXPECT_FALSE(state.gblnProjectNeeded);
  EXPECT_EQ(main.lastBatch.converted, 0);
}

TEST_F(ReportBatch, NoPermissionForOneOfTwo) {
  Json refused = named("A");
  refused["openError"] = 2601;
  openReports({refused, named("B")});
  convert({"A", "B"});
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_TRUE(session.user.boxes[1].text.starts_with(
      "Successfully converted Access Report: B to Visual Basic Report: B.dsr.\r\n\r\nA Visual "
      "Basic Project file: B.vbp is saved in directory: "));
  EXPECT_EQ(fileNames(session.out()), (Lines{"B.dsr", "B.vbp", "deB.dsr", "frmB.frm"}));
}

TEST_F(ReportBatch, NoPermissionForTheLastOfTwo) {
  Json refused = named("B");
  refused["openError"] = 2601;
  openReports({named("A"), refused});
  convert({"A", "B"});
  ASSERT_EQ(session.user.boxes.size(), 2u);
  // The name is that of the last selected item, the file that of the last converted report.
  EXPECT_TRUE(session.user.boxes[1].text.starts_with(
      "Successfully converted Access Report: B to Visual Basic Report: A.dsr.\r\n\r\n"));
}

TEST_F(ReportBatch, AReportThatFailsToOpenOtherwiseIsWrittenFromWhatIsThere) {
  Json broken = named("Broken");
  broken["openError"] = errorValue(2501);
  openReports({broken});
  convert({"Broken"});
  ASSERT_GE(session.user.boxes.size(), 3u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{16, "ConvertReports_Click() - Error #2501\r\nAs recorded.", std::string(kTitle)}));
  EXPECT_TRUE(session.user.boxes[1].text.starts_with("ConvertReports_Click() - Error #2451\r\n"));
  EXPECT_TRUE(session.user.boxes.back().text.starts_with(
      "Successfully converted Access Report: Broken to Visual Basic Report: Broken.dsr."));
  EXPECT_EQ(fileNames(session.out()),
            (Lines{"Broken.dsr", "Broken.vbp", "deBroken.dsr", "frmBroken.frm"}));
  EXPECT_EQ(lines("deBroken.dsr").back(), "End  ' Report Designer deBroken");
  EXPECT_TRUE(contains(lines("Broken.dsr"), "End  ' Data Report Broken"));
  EXPECT_EQ(main.window.mousePointer, 0);
}

TEST_F(ReportBatch, ABatchGoesOnBehindABrokenReport) {
  Json broken = named("A");
  broken["openError"] = errorValue(2501);
  openReports({broken, named("B")});
  convert({"A", "B"});
  EXPECT_EQ(main.lastBatch.converted, 2);
  EXPECT_TRUE(contains(lines("B.dsr"), "   Caption         = \"Sales\""));
}

TEST_F(ReportBatch, AReportThatIsGone) {
  openReports({named("A")});
  main.window.list(ObjectList::kReports)[0].text = "Gone";
  convert({"Gone"});
  ASSERT_FALSE(session.user.boxes.empty());
  EXPECT_TRUE(session.user.boxes[0].text.starts_with("ConvertReports_Click() - Error #2103\r\n"));
}

// The pre-flight questions.

class ReportQuestions : public ReportBatch {
 protected:
  // Opens a database of one report where the given libraries are unknown.
  void openWithout(bool msderun, bool msado) {
    if (msderun) main.machine.msderunPath = "";
    if (msado) main.machine.msadoPath = "";
    openReports({named("A")});
    session.user.dialogs.clear();
    session.user.chosenPath = "";
  }
  Lines references() const { return starting(lines("A.vbp"), "Reference="); }
  static bool anyContains(const Lines& lines, std::string_view text) {
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
      return line.find(text) != std::string::npos;
    });
  }
  void makeLibrary(const std::string& folder, const std::string& file) {
    const std::string path = session.folder() + "/" + kCommonFiles + "/" + folder;
    std::filesystem::create_directories(path);
    writeFile(path + "/" + file, "");
  }
  // The folder that is searched; here its backslashes are part of a name like any other.
  static inline const std::string kCommonFiles = "C:\\Program Files\\Common Files\\";
};

TEST_F(ReportQuestions, NoneWhenBothPathsAreKnown) {
  openWithout(false, false);
  convert({"A"});
  EXPECT_EQ(session.user.boxes.size(), 1u);
  EXPECT_TRUE(session.user.dialogs.empty());
}

TEST_F(ReportQuestions, NoneWhenNothingIsSelected) {
  openWithout(true, true);
  convert({});
  EXPECT_EQ(session.user.boxes.size(), 1u);
  EXPECT_TRUE(session.user.dialogs.empty());
}

TEST_F(ReportQuestions, EachForThePathThatIsUnknown) {
  for (const bool msderun : {false, true}) {
    for (const bool msado : {false, true}) {
      SCOPED_TRACE(std::string(msderun ? "msderun " : "") + (msado ? "msado" : ""));
      ReportSession own;
      if (msderun) own.main.machine.msderunPath = "";
      if (msado) own.main.machine.msadoPath = "";
      own.openReports({named("A")});
      own.select(ObjectList::kReports, {"A"});
      ConvertReports(own.main, false);
      std::vector<Box> questions;
      if (msderun) questions.push_back({36, std::string(kAskMsderun), std::string(kTitle)});
      if (msado) questions.push_back({36, std::string(kAskMsado), std::string(kTitle)});
      ASSERT_FALSE(own.user.boxes.empty());
      own.user.boxes.pop_back();
      EXPECT_EQ(own.user.boxes, questions);
    }
  }
}

TEST_F(ReportQuestions, YesSearchesTheDisk) {
  makeLibrary("Designer", "msderun.dll");
  makeLibrary("ADO", "msado15.dll");
  openWithout(true, true);
  session.user.answers = {Answer::kYes, Answer::kYes};
  convert({"A"});
  EXPECT_TRUE(session.user.dialogs.empty());
  EXPECT_EQ(state.mstrMsderunPath, kCommonFiles + "/Designer/");
  EXPECT_EQ(state.mstrMsadoPath, kCommonFiles + "/ADO/");
  EXPECT_TRUE(anyContains(references(), kCommonFiles + "/Designer/msderun.dll"));
  EXPECT_TRUE(anyContains(references(), kCommonFiles + "/ADO/msado15.dll"));
}

TEST_F(ReportQuestions, YesThatFindsNothingConvertsAllTheSame) {
  openWithout(true, true);
  session.user.answers = {Answer::kYes, Answer::kYes};
  convert({"A"});
  EXPECT_EQ(state.mstrMsderunPath, "");
  EXPECT_EQ(main.lastBatch.converted, 1);
  EXPECT_TRUE(contains(references(),
                       "Reference=*\\G{3D5C6BF0-69A3-11D0-B393-00A0C9055D8E}#1.0#0#msderun.dll"
                       "#Microsoft Data Environment Instance 6.0"));
}

TEST_F(ReportQuestions, NoLetsTheUserPickTheFile) {
  openWithout(true, false);
  session.user.answers = {Answer::kNo};
  session.user.chosenPath = "D:\\Designer\\msderun.dll";
  convert({"A"});
  ASSERT_EQ(session.user.dialogs.size(), 1u);
  EXPECT_EQ(session.user.dialogs[0].fileName, "msderun.dll");
  EXPECT_EQ(state.mstrMsderunPath, "D:\\Designer\\");
  EXPECT_TRUE(anyContains(references(), "#D:\\Designer\\msderun.dll#"));
}

TEST_F(ReportQuestions, NoLetsTheUserPickTheOtherFile) {
  openWithout(false, true);
  session.user.answers = {Answer::kNo};
  session.user.chosenPath = "D:\\ado\\msado15.dll";
  convert({"A"});
  ASSERT_EQ(session.user.dialogs.size(), 1u);
  EXPECT_EQ(session.user.dialogs[0].fileName, "msado15.dll");
  EXPECT_EQ(state.mstrMsadoPath, "D:\\ado\\");
  EXPECT_TRUE(anyContains(references(), "#D:\\ado\\msado15.dll#"));
}

TEST_F(ReportQuestions, EachAnswerIsItsOwn) {
  makeLibrary("Designer", "msderun.dll");
  openWithout(true, true);
  session.user.answers = {Answer::kYes, Answer::kNo};
  session.user.chosenPath = "D:\\ado\\msado15.dll";
  convert({"A"});
  EXPECT_EQ(session.user.dialogs.size(), 1u);
  EXPECT_EQ(state.mstrMsderunPath, kCommonFiles + "/Designer/");
  EXPECT_EQ(state.mstrMsadoPath, "D:\\ado\\");
}

TEST_F(ReportQuestions, ACancelledDialogConvertsAllTheSame) {
  openWithout(true, false);
  session.user.answers = {Answer::kNo};
  convert({"A"});
  EXPECT_EQ(session.user.dialogs.size(), 1u);
  EXPECT_EQ(main.lastBatch.converted, 1);
  EXPECT_EQ(state.mstrMsderunPath, "");
}

TEST_F(ReportQuestions, AFileInCapitalsIsRefusedAndTheBatchGoesOn) {
  openWithout(true, false);
  session.user.answers = {Answer::kNo};
  session.user.chosenPath = "D:\\Designer\\MSDERUN.DLL";
  convert({"A"});
  ASSERT_EQ(session.user.boxes.size(), 3u);
  EXPECT_EQ(session.user.boxes[1],
            (Box{64, "Please select the MSDERUN.DLL file.", std::string(kTitle)}));
  EXPECT_EQ(main.lastBatch.converted, 1);
}

TEST_F(ReportQuestions, TheyComeAgainInTheNextBatchWhileThePathIsUnknown) {
  openWithout(true, false);
  session.user.answers = {Answer::kNo, Answer::kNo};
  convert({"A"});
  convert({"A"});
  EXPECT_EQ(session.user.dialogs.size(), 2u);
}

// What the window shows, and what outlives a report or a batch.

TEST_F(ReportBatch, AttachedTablesOfInvalidSourcesAreNoted) {
  session.database["recordsets"] = Json::array({{{"source", "Orders"}, {"error", 3044}}});
  openReports({boundTo("A", "Orders"), named("B")});
  convert({"A"});
  EXPECT_EQ(
      session.onlyBox().text,
      "Successfully converted Access Report: A to Visual Basic Report: A.dsr.\r\n\r\nA Visual "
      "Basic Project file: A.vbp is saved in directory: " +
          directory() +
          "\r\n\r\nNOTE: \r\nThe current database tables are Attached to or pointing to "
          "invalid source tables.\r\n\r\nThe Reports may not have converted correctly."
          "\r\n\r\n" +
          std::string(kTime));
  // Only an opening takes the note back.
  convert({"B"});
  EXPECT_NE(session.onlyBox().text.find("\r\n\r\nNOTE: \r\n"), std::string::npos);
  session.database["recordsets"] = Json::array();
  openReports({named("B")});
  convert({"B"});
  EXPECT_EQ(session.onlyBox().text.find("NOTE: "), std::string::npos);
}

TEST_F(ReportBatch, AttachedTablesAreNotNotedWhenNothingWasConverted) {
  Json refused = named("A");
  refused["openError"] = 2601;
  openReports({refused});
  state.mblnBadAttachedTables = true;
  convert({"A"});
  EXPECT_EQ(session.user.boxes.back().text,
            "Unable to convert Access Reports to Visual Basic Reports.\r\n\r\n");
}

TEST_F(ReportBatch, TheProjectIsAnnouncedWhileItIsWritten) {
  openReports({named("A")});
  Lines captions;
  main.Now = [&] {
    captions.push_back(main.window.lblPct.caption);
    return session.now;
  };
  convert({"A"});
  ASSERT_FALSE(captions.empty());
  EXPECT_EQ(captions.back(), "Creating Visual Basic Project...");
  EXPECT_EQ(main.window.lblPct.caption, "");
}

TEST_F(ReportBatch, TheLabelLagsOneReportBehind) {
  openReports({named("A"), named("B"), named("C")});
  session.user.progressLabels.clear();
  ConvertReports(main, true);
  ASSERT_GE(session.user.progressLabels.size(), 3u);
  session.user.progressLabels.resize(3);  // one for each report; the project may show behind them
  EXPECT_EQ(session.user.progressLabels, (Lines{"Report: ", "Report: A", "Report: B"}));
}

TEST_F(ReportBatch, TheProgressLabelsStayAndTheBarGoes) {
  openReports({named("A"), named("B")});
  convert({"B"});
  EXPECT_TRUE(main.window.lblPercent.visible);
  EXPECT_EQ(main.window.lblPercent.caption, "");
  EXPECT_TRUE(main.window.lblCurDb.visible);
  EXPECT_FALSE(main.window.ProgressBar1[2].visible);
  EXPECT_EQ(main.window.ProgressBar1[2].max, 2);
  EXPECT_EQ(main.window.mousePointer, 0);
}

TEST_F(ReportBatch, ThePagerChangesOnlyOnConvertAllReports) {
  openReports({named("A")});
  main.window.lblCurrentPage.caption = "3";
  main.window.lblLastPage.caption = "4";
  main.window.cmdPrev.enabled = true;
  session.select(ObjectList::kReports, {"A"});
  ASSERT_TRUE(clickButton(main, "cmdConvertRpt"));
  doubleClickList(main, ObjectList::kReports);
  EXPECT_EQ(main.window.lblCurrentPage.caption, "3");
  EXPECT_EQ(main.window.lblLastPage.caption, "4");
  EXPECT_TRUE(main.window.cmdPrev.enabled);
  ASSERT_TRUE(clickButton(main, "cmdAllReports"));
  EXPECT_EQ(main.window.lblCurrentPage.caption, "0");
  EXPECT_EQ(main.window.lblLastPage.caption, "6");
  EXPECT_FALSE(main.window.cmdPrev.enabled);
}

TEST_F(ReportBatch, TheGroupingMemberOfAnEarlierReportStays) {
  ReportParts grouped = reportOfSections({0, 3, 4, 5, 6}, 1);
  grouped.name = "Grouped";
  openReports({named("Before"), grouped.entry(), named("Later")});
  ConvertReports(main, true);
  EXPECT_TRUE(contains(lines("Before.dsr"), "   DataMember    = \"\""));
  EXPECT_TRUE(contains(lines("Grouped.dsr"), "   DataMember    = \"A_Grouping\""));
  EXPECT_TRUE(contains(lines("Later.dsr"), "   DataMember    = \"A_Grouping\""));
  convert({"Before"});
  EXPECT_TRUE(contains(lines("Before.dsr"), "   DataMember    = \"A_Grouping\""));
}

TEST_F(ReportBatch, ASourceWithAFormInItTouchesTheNextReportOverAQuery) {
  const std::string sql = "SELECT * FROM Orders HAVING OrderID = Forms!A!B";
  session.database["recordsets"] = Json::array({{{"source", sql}, {"error", 3061}}});
  session.database["queries"] = Json::array({query("Big", "SELECT OrderID FROM Orders;")});
  openReports({boundTo("A", sql), boundTo("B", "Big")});
  convert({"A", "B"});
  EXPECT_TRUE(contains(lines("deB.dsr"), "      CommandText     = \"\""));
  EXPECT_EQ(session.user.boxes.front().text,
            "GetDesignerReportProps() - Error #5\r\nInvalid procedure call or argument");
  convert({"B"});
  EXPECT_TRUE(contains(lines("deB.dsr"), "      CommandText     = \"Big\""));
}

TEST_F(ReportBatch, TheCodeBehindAReportIsNeverExported) {
  Json entry = named("A");
  entry["module"] = "Option Compare Database\r\nSub Old()\r\nEnd Sub\r\n";
  openReports({entry});
  convert({"A"});
  const std::string text = fileContent(session.out() / "A.dsr");
  EXPECT_NE(text.find("End  ' Data Report A\r\n"), std::string::npos);
  EXPECT_EQ(text.find("Old"), std::string::npos);
  EXPECT_FALSE(isOpen("A"));
  EXPECT_FALSE(session.files.IsOpen(kOutputFile));
}

}  // namespace
}  // namespace tarrowin::test
