// Projects of forms, modules and reports as whole texts, and what each line depends on.
#include "project/vb_project.h"

#include <cerrno>

#include <gtest/gtest.h>

#include "project/project_text.h"
#include "shared/faulty_file_system.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

class VbProject : public testing::Test {
 protected:
  explicit VbProject(std::unique_ptr<FileSystem> fileSystem = nullptr)
      : session(std::move(fileSystem)) {
    state.mstrOutputDir = session.out().string() + "/";
    state.mstrMsderunPath = "C:\\Program Files\\Common Files\\Designer\\";
    state.mstrMsadoPath = "C:\\Program Files\\Common Files\\SYSTEM\\ADO\\";
  }

  std::string file(const std::string& name) const { return fileContent(session.out() / name); }
  void addForm(const std::string& formFile) {
    state.mstrVbForms.append(formFile);
    state.gstrFormFile = formFile;
  }
  void addReport(const std::string& reportFile) {
    state.mblnReportMode = true;
    state.mstrVbReports.append(reportFile);
    state.gstrFormFile = reportFile;
  }
  // The lines that begin so.
  std::vector<std::string> linesOf(const std::string& name, std::string_view start) const {
    std::vector<std::string> found;
    const std::string text = file(name);
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = text.find("\r\n", at);
      const std::string line = text.substr(at, end - at);
      if (line.starts_with(start)) found.push_back(line);
      at = end + 2;
    }
    return found;
  }
  std::vector<std::string> startupOf(const std::string& name) const {
    return linesOf(name, "Startup=");
  }

  TestSession session;
  MainObject& main = session.main;
  ConversionState& state = session.main.state;
};

using Lines = std::vector<std::string>;

TEST_F(VbProject, OfOneForm) {
  addForm("Order_List.frm");
  main.window.cboFormNames = "Order List";
  CreateVbProject(main, "Order_List.vbp");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(file("Order_List.vbp"), asFile(R"(
Type=Exe
Reference=*\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:\WINDOWS\system32\stdole2.tlb#OLE Automation
Reference=*\G{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}#2.2#0#C:\Program Files\Common Files\Designer\MSO.DLL#Microsoft Office 10.0 Object Library
Form=Order_List.frm
Startup="Order_List"
Command32=""
Name="prjOrder_List"
HelpContextId="0"
CompatibleMode="0"
)") + asFile(kCompilerLines));
  EXPECT_EQ(fileNames(session.out()), Lines{"Order_List.vbp"});
}

TEST_F(VbProject, OfFormsAndModulesWithEveryLibrary) {
  main.machine.systemDir = "D:\\NT\\system32";
  state.mstrMsderunPath = "D:\\Designer\\";
  state.gstrDaoPath = "D:\\DAO\\dao360.dll";
  addForm("B.frm");
  addForm("A.frm");
  main.window.cboFormNames = "A";
  state.mblnAdoDataCtl = state.blnUsesCalendar = state.blnUsesMsComCtl = state.blnUsesComCtl32 =
      true;
  state.blnUsesComDlg = state.blnUsesDataGrid = state.blnUsesDbList = state.blnUsesRichText = true;
  state.blnUsesTabCtl = state.blnUsesSubControl = state.mblnDataRepeater = true;
  state.mblnModuleConverted = true;
  state.mstrVbModules.append("Utilities.bas");
  state.mstrVbModules.append("Person.cls");
  state.mstrVbModules.append("Macro_Open.bas");
  state.mstrVbClasses.append("Person.cls");
  state.gstrModuleFile = "Macro_Open.bas";
  CreateVbProject(main, "Shop.vbp");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(file("Shop.vbp"), asFile(R"(
Type=Exe
Reference=*\G{00020430-0000-0000-C000-000000000046}#2.0#0#D:\NT\system32\stdole2.tlb#OLE Automation
Reference=*\G{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}#2.2#0#D:\Designer\MSO.DLL#Microsoft Office 10.0 Object Library
Reference=*\G{56BF9020-7A2F-11D0-9482-00A0C91110ED}#1.0#0#;D:\NT\system32\MSBIND.DLL#Microsoft Data Binding Collection
Reference=*\G{00025E01-0000-0000-C000-000000000046}#5.0#0#D:\DAO\dao360.dll#Microsoft DAO 3.6 Object Library
Form=B.frm
Form=A.frm
Object={67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0; MSADODC.OCX
Object={8E27C92E-1264-101C-8A2F-040224009C02}#7.0#0; MSCAL.OCX
Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX
Object={6B7E6392-850A-101B-AFC0-4210102A8DA7}#1.3#0; COMCTL32.OCX
Object={F9043C88-F6F2-101A-A3C9-08002B2F49FB}#1.1#0; COMDLG32.OCX
Object={CDE57A40-8B86-11D0-B3C6-00A0C90AEA82}#1.0#0; MSDATGRD.OCX
Object={FAEEE763-117E-101B-8933-08002B2F4F5A}#1.1#0; DBLIST32.OCX
Object={3B7C8863-D78F-101B-B9B5-04021C009402}#1.1#0; RICHTX32.OCX
Object={BDC217C8-ED16-11CD-956C-0000C04E4C0A}#1.1#0; TABCTL32.OCX
Object={5A1E07C4-3D92-4B6E-9F10-7C2E84D6A1B3}#7.0#0; SBSubControl.ocx
Object={5C8CED40-8909-11D0-9483-00A0C91110ED}#1.0#0; MSDATREP.OCX
Module=Utilities; Utilities.bas
Module=Macro_Open; Macro_Open.bas
Class=Person; Person.cls
Startup="A"
Command32=""
Name="prjShop"
HelpContextId="0"
CompatibleMode="0"
)") + asFile(kCompilerLines));
}

TEST_F(VbProject, OneReportSales) {
  addReport("Sales.dsr");
  state.strDataMember = "Country_Grouping";
  CreateVbProject(main, "Sales.vbp");
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(file("Sales.vbp"), asFile(R"(
Type=Exe
Reference=*\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:\WINDOWS\system32\stdole2.tlb#OLE Automation
Reference=*\G{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}#2.2#0#C:\Program Files\Common Files\Designer\MSO.DLL#Microsoft Office 10.0 Object Library
Reference=*\G{3D5C6BF0-69A3-11D0-B393-00A0C9055D8E}#1.0#0#C:\Program Files\Common Files\Designer\msderun.dll#Microsoft Data Environment Instance 6.0
Reference=*\G{00000200-0000-0010-8000-00AA006D2EA4}#2.0#0#C:\Program Files\Common Files\SYSTEM\ADO\msado15.dll#Microsoft ActiveX Data Objects 2.0 Library
Reference=*\G{642AC760-AAB4-11D0-8494-00A0C90DC8A9}#1.0#0#C:\WINDOWS\system32\MSDBRptR.DLL#Microsoft Data Report Designer v6.0
Reference=*\G{6B263850-900B-11D0-9484-00A0C91110ED}#1.0#0#C:\WINDOWS\system32\MSSTDFMT.DLL#Microsoft Data Formatting Object Library
Designer=deSales.dsr
Designer=Sales.dsr
Form=frmSales.frm
Startup="frmSales"
Command32=""
Name="frmSales"
HelpContextId="0"
CompatibleMode="0"
)") + asFile(kCompilerLines));
  EXPECT_EQ(file("frmSales.frm"), asFile(R"(
Version 5.0
Begin VB.Form frmSales
   BorderStyle = 1        'Fixed Single
   Caption = "View Report"
   ClientHeight = 3195
   ClientLeft = 45
   ClientTop = 330
   ClientWidth = 4680
   LinkTopic = "Form1"
   MaxButton = 0           'False
   MinButton = -1          'True
   ScaleHeight = 3195
   ScaleWidth = 4680
   StartUpPosition = 3    'Windows Default
   Begin VB.CommandButton cmdViewReport
      Caption = "&View Report"
      Height = 495
      Left = 1440
      TabIndex = 0
      Top = 1080
      Width = 1335
   End
End
Private Sub cmdViewReport_Click()
   ' If a Report is based on a Parameter Query, type the required parameters. For example...
   ' DataEnvironment1.Command1_Grouping '1995/01/01', '1995/12/31'
   ' Uncomment the following line only for a Parameter Query...
   ' deSales.Country_Grouping '1995/01/01', '1995/12/31'

   ' Uncomment the appropriate line to display the desired Report
   ' Sales.Show
End Sub
)"));
}

TEST_F(VbProject, AReportNamedFrmListKeepsTheNameWithNoSecondPrefix) {
  addReport("frmList.dsr");
  CreateVbProject(main, "frmList.vbp");
  EXPECT_EQ(linesOf("frmList.vbp", "Form="), Lines{"Form=frmList.frm"});
  EXPECT_EQ(startupOf("frmList.vbp"), Lines{"Startup=\"frmList\""});
  EXPECT_EQ(linesOf("frmList.vbp", "Name="), Lines{"Name=\"frmList\""});
  EXPECT_EQ(linesOf("frmList.frm", "Begin VB.Form"), Lines{"Begin VB.Form frmList"});
}

TEST_F(VbProject, ThePrefixOfTheViewerFormIsInSmallLetters) {
  addReport("FrmList.dsr");
  CreateVbProject(main, "FrmList.vbp");
  EXPECT_EQ(startupOf("FrmList.vbp"), Lines{"Startup=\"frmFrmList\""});
}

TEST_F(VbProject, TwoReportsInADatabaseShop) {
  addReport("A.dsr");
  addReport("B.dsr");
  state.strDataMember = "Town_Grouping";
  CreateVbProject(main, "ShopReports.vbp");
  EXPECT_EQ(linesOf("ShopReports.vbp", "Designer="),
            (Lines{"Designer=deA.dsr", "Designer=deB.dsr", "Designer=A.dsr", "Designer=B.dsr"}));
  EXPECT_EQ(startupOf("ShopReports.vbp"), Lines{"Startup=\"frmShopReports\""});
  EXPECT_EQ(linesOf("frmShopReports.frm", "   ' de"),
            Lines{"   ' deB.Town_Grouping '1995/01/01', '1995/12/31'"});
  const std::string viewer = file("frmShopReports.frm");
  EXPECT_TRUE(viewer.ends_with("desired Report\r\n   ' A.Show\r\n   ' B.Show\r\nEnd Sub\r\n"));
}

TEST_F(VbProject, AFormProjectWithADataRepeaterHasBothItsReferenceAndItsObject) {
  addForm("Rows.frm");
  state.mblnDataRepeater = true;
  CreateVbProject(main, "Rows.vbp");
  EXPECT_EQ(linesOf("Rows.vbp", "Reference=*\\G{56BF9020").size(), 1u);
  EXPECT_EQ(linesOf("Rows.vbp", "Object="),
            Lines{"Object={5C8CED40-8909-11D0-9483-00A0C91110ED}#1.0#0; MSDATREP.OCX"});
}

TEST_F(VbProject, AModuleThatDoesNotEndInBasIsLeftOutOfTheModuleLines) {
  state.mblnModuleConverted = true;
  state.mstrVbModules.append("Person.cls");
  state.mstrVbModules.append("Shouting.BAS");
  state.gstrModuleFile = "Shouting.BAS";
  CreateVbProject(main, "Shouting.vbp");
  EXPECT_EQ(linesOf("Shouting.vbp", "Module="), Lines{});
}

TEST_F(VbProject, WithoutAConvertedModuleThereAreNoModuleLinesButClassLines) {
  state.mstrVbModules.append("Utilities.bas");
  state.mstrVbClasses.append("Person.cls");
  state.gstrModuleFile = "Person.cls";
  CreateVbProject(main, "Person.vbp");
  EXPECT_EQ(linesOf("Person.vbp", "Module="), Lines{});
  EXPECT_EQ(linesOf("Person.vbp", "Class="), Lines{"Class=Person; Person.cls"});
}

TEST_F(VbProject, WithAnEmptyMsderunPathTheOfficeLineHoldsABackslashAndTheFile) {
  state.mstrMsderunPath = "";
  addReport("Sales.dsr");
  CreateVbProject(main, "Sales.vbp");
  EXPECT_EQ(linesOf("Sales.vbp", "Reference=*\\G{2DF8D04C"),
            Lines{"Reference=*\\G{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}#2.2#0#\\MSO.DLL#Microsoft "
                  "Office 10.0 Object Library"});
  EXPECT_EQ(
      linesOf("Sales.vbp", "Reference=*\\G{3D5C6BF0"),
      Lines{"Reference=*\\G{3D5C6BF0-69A3-11D0-B393-00A0C9055D8E}#1.0#0#msderun.dll#Microsoft "
            "Data Environment Instance 6.0"});
}

TEST_F(VbProject, TheOfficePathOnceTakenIsKeptForTheRun) {
  addForm("A.frm");
  CreateVbProject(main, "A.vbp");
  EXPECT_EQ(state.gstrOfficePath, "C:\\Program Files\\Common Files\\Designer\\");
  state.mstrMsderunPath = "D:\\Elsewhere\\";
  addForm("B.frm");
  CreateVbProject(main, "B.vbp");
  EXPECT_EQ(linesOf("B.vbp", "Reference=*\\G{2DF8D04C"),
            Lines{"Reference=*\\G{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}#2.2#0#C:\\Program "
                  "Files\\Common Files\\Designer\\MSO.DLL#Microsoft Office 10.0 Object Library"});
}

TEST_F(VbProject, AnOfficePathWithoutABackslashGetsOneInItsLineOnly) {
  state.gstrOfficePath = "C:\\Office";
  addForm("A.frm");
  CreateVbProject(main, "A.vbp");
  EXPECT_EQ(linesOf("A.vbp", "Reference=*\\G{2DF8D04C"),
            Lines{"Reference=*\\G{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}#2.2#0#C:\\Office\\MSO.DLL#"
                  "Microsoft Office 10.0 Object Library"});
  EXPECT_EQ(state.gstrOfficePath, "C:\\Office");
}

TEST_F(VbProject, TheViewerFormOfAReportWithoutGroupsShowsTheMemberLeftByAnEarlierOneOrNothing) {
  addReport("First.dsr");
  CreateVbProject(main, "First.vbp");
  EXPECT_EQ(linesOf("frmFirst.frm", "   ' de"), Lines{"   ' deFirst. '1995/01/01', '1995/12/31'"});
  state.strDataMember = "Country_Grouping";
  state.mstrVbReports.reset();
  addReport("Second.dsr");
  CreateVbProject(main, "Second.vbp");
  EXPECT_EQ(linesOf("frmSecond.frm", "   ' de"),
            Lines{"   ' deSecond.Country_Grouping '1995/01/01', '1995/12/31'"});
}

TEST_F(VbProject, StartupWithOneFormIsTheChosenFormEvenWhenNothingIsChosen) {
  addForm("A.frm");
  main.window.cboFormNames = "";
  CreateVbProject(main, "A.vbp");
  EXPECT_EQ(startupOf("A.vbp"), Lines{"Startup=\"\""});
  EXPECT_EQ(linesOf("A.vbp", "Name="), Lines{"Name=\"prjA\""});
}

TEST_F(VbProject, StartupOfSeveralFormsWithNothingChosenIsTheLastForm) {
  addForm("A.frm");
  addForm("B.frm");
  CreateVbProject(main, "Shop.vbp");
  EXPECT_EQ(startupOf("Shop.vbp"), Lines{"Startup=\"B\""});
  EXPECT_EQ(linesOf("Shop.vbp", "Name="), Lines{"Name=\"prjShop\""});
}

TEST_F(VbProject, StartupIsTheChosenFormsNameAsVisualBasicTakesIt) {
  addForm("A.frm");
  addForm("B.frm");
  main.window.cboFormNames = "2nd Quarter";
  CreateVbProject(main, "Shop.vbp");
  EXPECT_EQ(startupOf("Shop.vbp"), Lines{"Startup=\"xnd_Quarter\""});
  EXPECT_EQ(main.window.cboFormNames, "2nd Quarter");
}

TEST_F(VbProject, OfALoneModuleStartsWithItsNameOrTheFormOfAnEarlierBatch) {
  state.mblnModuleConverted = true;
  state.mstrVbModules.append("Utilities.bas");
  state.gstrModuleFile = "Utilities.bas";
  CreateVbProject(main, "Utilities.vbp");
  EXPECT_EQ(startupOf("Utilities.vbp"), Lines{"Startup=\"Utilities\""});
  state.gstrFormFile = "Earlier.frm";
  state.mstrVbModules.append("Utilities.bas");
  CreateVbProject(main, "Utilities.vbp");
  EXPECT_EQ(startupOf("Utilities.vbp"), Lines{"Startup=\"Earlier\""});
  EXPECT_EQ(linesOf("Utilities.vbp", "Name="), Lines{"Name=\"prjUtilities\""});
}

TEST_F(VbProject, OneFormNamesTheProjectWhateverItsFileIsCalled) {
  addForm("A.frm");
  CreateVbProject(main, "Shop.vbp");
  EXPECT_EQ(linesOf("Shop.vbp", "Name="), Lines{"Name=\"prjA\""});
}

TEST_F(VbProject, AFormLeftByABatchWithoutAProjectNamesTheViewerFormOfReports) {
  addForm("A.frm");
  addReport("X.dsr");
  addReport("Y.dsr");
  CreateVbProject(main, "ShopReports.vbp");
  EXPECT_EQ(startupOf("ShopReports.vbp"), Lines{"Startup=\"frmY\""});
  EXPECT_EQ(fileNames(session.out()), (Lines{"ShopReports.vbp", "frmY.frm"}));
}

TEST_F(VbProject, TheListsAreErasedButForTheReports) {
  addReport("Sales.dsr");
  state.mstrVbForms.append("A.frm");
  state.mstrVbModules.append("Utilities.bas");
  state.mstrVbClasses.append("Person.cls");
  CreateVbProject(main, "Sales.vbp");
  EXPECT_EQ(state.mstrVbForms.count(), 0);
  EXPECT_EQ(state.mstrVbModules.count(), 0);
  EXPECT_EQ(state.mstrVbClasses.count(), 0);
  EXPECT_EQ(state.mstrVbReports.count(), 1);
  EXPECT_FALSE(session.files.IsOpen(kOutputFile));
}

TEST_F(VbProject, ExistingFilesAreReplaced) {
  writeFile(session.out() / "Sales.vbp", std::string(5000, 'x'));
  writeFile(session.out() / "frmSales.frm", std::string(5000, 'x'));
  addReport("Sales.dsr");
  CreateVbProject(main, "Sales.vbp");
  EXPECT_TRUE(file("Sales.vbp").starts_with("Type=Exe\r\n"));
  EXPECT_EQ(file("Sales.vbp").find("xx"), std::string::npos);
  EXPECT_TRUE(file("frmSales.frm").starts_with("Version 5.0\r\n"));
  EXPECT_EQ(file("frmSales.frm").find("xx"), std::string::npos);
}

TEST_F(VbProject, TheLibrariesOfAnEarlierBatchAreNamedAgain) {
  state.blnUsesCalendar = true;
  addForm("A.frm");
  CreateVbProject(main, "A.vbp");
  addForm("B.frm");
  CreateVbProject(main, "B.vbp");
  EXPECT_EQ(linesOf("B.vbp", "Object="), linesOf("A.vbp", "Object="));
  EXPECT_EQ(linesOf("B.vbp", "Object=").size(), 1u);
  EXPECT_EQ(linesOf("B.vbp", "Form="), Lines{"Form=B.frm"});
}

TEST_F(VbProject, EveryStatementThatFailsHasItsBoxAndTheNextFollows) {
  state.mstrOutputDir = session.out().string() + "/missing/";
  addForm("A.frm");
  CreateVbProject(main, "A.vbp");
  // The opening, and each of the 30 lines; closing what is not open passes.
  ASSERT_EQ(session.user.boxes.size(), 31u);
  EXPECT_EQ(session.user.boxes[0], (Box{16, "CreateVbProject() - Error #76\r\nPath not found",
                                        "Access to Visual Basic Tarrowin"}));
  for (std::size_t i = 1; i < session.user.boxes.size(); ++i) {
    EXPECT_EQ(session.user.boxes[i].text,
              "CreateVbProject() - Error #52\r\nBad file name or number");
  }
  EXPECT_EQ(state.mstrVbForms.count(), 0);
}

class VbProjectOnABadDisk : public VbProject {
 protected:
  VbProjectOnABadDisk() : VbProjectOnABadDisk(new FaultyFileSystem) {}
  FaultyFileSystem* disk;

 private:
  explicit VbProjectOnABadDisk(FaultyFileSystem* made)
      : VbProject(std::unique_ptr<FileSystem>(made)), disk(made) {}
};

TEST_F(VbProjectOnABadDisk, AFullDiskIsToldAtTheEndOfTheFile) {
  addForm("A.frm");
  disk->failOn(Operation::kWrite, 1, ENOSPC);
  CreateVbProject(main, "A.vbp");
  EXPECT_EQ(session.onlyBox().text, "CreateVbProject() - Error #61\r\nDisk full");
  EXPECT_FALSE(session.files.IsOpen(kOutputFile));
}

TEST_F(VbProjectOnABadDisk, AViewerFormThatCannotBeDeletedIsToldAndOverwritten) {
  writeFile(session.out() / "frmSales.frm", "old");
  addReport("Sales.dsr");
  disk->failOn(Operation::kRemove, 1, EACCES);
  CreateVbProject(main, "Sales.vbp");
  EXPECT_EQ(session.onlyBox().text, "CreateVbProject() - Error #75\r\nPath/File access error");
  EXPECT_TRUE(file("frmSales.frm").starts_with("Version 5.0\r\n"));
}

}  // namespace
}  // namespace tarrowin::test
