// The code part of forms and reports: their own code, and the generated statements.
#include "codeconv/form_code.h"

#include <gtest/gtest.h>

#include "codeconv/code_session.h"

namespace tarrowin::test {
namespace {

// Runs the conversion of a form behind its property block; what was appended.
std::string codePart(CodeSession& session) {
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_TRUE(session.bothFilesAreClosed());
  EXPECT_EQ(session.names(), std::vector<std::string>{session.main.state.mstrFormFile});
  const std::string content = session.content(session.main.state.mstrFormFile);
  const std::string properties = "(properties)\r\n";
  EXPECT_EQ(content.substr(0, properties.size()), properties);
  return content.substr(properties.size());
}

void addPicture(CodeSession& session, const std::string& statement) {
  session.main.state.blnHasPictures = true;
  session.main.state.astrPictureCode.append(statement);
}

void addCombo(CodeSession& session, const std::string& entry) {
  session.main.state.blnFillCombos = true;
  session.main.state.astrComboSources.append(entry);
}

void addList(CodeSession& session, const std::string& entry) {
  session.main.state.blnFillLists = true;
  session.main.state.astrListSources.append(entry);
}

TEST(FormCode, TheCodePartOfAFormThatOpensFillsAComboBoxAndClosesItself) {
  const auto golden = std::filesystem::path(TARROWIN_SOURCE_DIR) / "tests/codeconv/golden";
  CodeSession session;
  session.main.state.mstrFormFile = "frmCity.frm";
  session.main.state.mstrObjName = "frmCity";
  session.access->text = fileContent(golden / "city_form.txt");
  addCombo(session, "cboCity;London;Paris");
  session.beginForm();
  GetAccFormCode(session.main);
  EXPECT_EQ(session.content("frmCity.frm"), fileContent(golden / "city_form.frm"));
}

TEST(FormCode, TheExportIsThatOfTheFormsClassModule) {
  CodeSession session;
  codePart(session);
  EXPECT_EQ(session.access->exported,
            (std::vector<std::string>{"5", "Form_Sales Form", "MS-DOS Text (*.txt)",
                                      session.main.state.mstrOutputDir + "Form_Sales_Form.frm"}));
}

TEST(FormCode, TheFormIsClosedUnsavedBetweenExportAndReading) {
  CodeSession session;
  session.access->text = "x = 1\r\n";
  codePart(session);
  EXPECT_EQ(session.access->asked,
            (std::vector<std::string>{"HasModule", "Version", "OutputTo", "Close"}));
  EXPECT_EQ(session.access->closed, (std::vector<std::string>{"2", "Sales Form", "2"}));
}

TEST(FormCode, WithoutModuleImagesAndItemsTheFileEndsWithItsProperties) {
  CodeSession session;
  session.access->hasModule = false;
  bool temporaryFile = false;
  session.access->onMember = [&](std::string_view) {
    temporaryFile |= std::filesystem::exists(session.path("Form_Sales_Form.frm"));
  };
  EXPECT_EQ(codePart(session), "");
  EXPECT_FALSE(temporaryFile);
  EXPECT_EQ(session.disk.count(Operation::kOpen), 1);
  EXPECT_EQ(session.access->asked, (std::vector<std::string>{"HasModule", "Close"}));
}

TEST(FormCode, WithoutModuleButWithImagesTheCodeIsTheAppendedFormLoadAlone) {
  CodeSession session;
  session.access->hasModule = false;
  addPicture(session, "imgA.Picture = LoadPicture(\"C:\\a.bmp\")");
  addPicture(session, "imgB.Picture = LoadPicture(\"C:\\b.bmp\")");
  EXPECT_EQ(codePart(session),
            "Option Explicit\r\n"
            "Private Sub Form_Load()\r\n"
            "' Tarrowin: Load and display images\r\n"
            "   \r\n"
            "   imgA.Picture = LoadPicture(\"C:\\a.bmp\")\r\n"
            "   imgB.Picture = LoadPicture(\"C:\\b.bmp\")\r\n"
            "End Sub\r\n");
}

TEST(FormCode, AReportWithImagesGetsOnlyTheAppendedFormLoad) {
  for (const char* version : {"3.0", "4.0"}) {
    CodeSession session;
    session.main.state.mblnReportMode = true;
    session.main.state.mstrFormFile = "Sales.dsr";
    session.access->version = version;
    session.access->text = "Private Sub Report_Open(Cancel As Integer)\r\nEnd Sub\r\n";
    addPicture(session, "imgA.Picture = LoadPicture(\"C:\\a.bmp\")");
    EXPECT_EQ(codePart(session),
              "Option Explicit\r\n"
              "Private Sub Form_Load()\r\n"
              "' Tarrowin: Load and display images\r\n"
              "   \r\n"
              "   imgA.Picture = LoadPicture(\"C:\\a.bmp\")\r\n"
              "End Sub\r\n");
    EXPECT_EQ(session.access->asked, std::vector<std::string>{"Close"});
    EXPECT_EQ(session.access->closed, (std::vector<std::string>{"3", "Sales Form", "2"}));
  }
}

TEST(FormCode, AnOlderTemporaryFileIsDeletedAlsoForAReport) {
  CodeSession session;
  session.main.state.mblnReportMode = true;
  session.main.state.mstrFormFile = "Sales.dsr";
  writeFile(session.path("Report_Sales.dsr"), "left over");
  EXPECT_EQ(codePart(session), "");
}

TEST(FormCode, AnAccess97FormWithAModuleConvertsWithoutItsCode) {
  CodeSession session;
  session.access->version = "3.0";
  session.access->text = "Private Sub Form_Load()\r\nEnd Sub\r\n";
  EXPECT_EQ(codePart(session), "");
  EXPECT_TRUE(session.access->exported.empty());
}

TEST(FormCode, TheVersionIsReadAsANumber) {
  for (const auto& [version, exported] : {std::pair<const char*, bool>{"2.5", false},
                                          {"3.0", false},
                                          {"3.01", true},
                                          {"4.0", true},
                                          {"12.0", true}}) {
    CodeSession session;
    session.access->version = version;
    codePart(session);
    EXPECT_EQ(!session.access->exported.empty(), exported) << version;
  }
}

TEST(FormCode, AConditionThatCannotBeReadCountsAsFalse) {
  CodeSession session;
  session.access->onMember = [](std::string_view member) {
    if (member == "HasModule") raise(438);
  };
  EXPECT_EQ(codePart(session), "");
  EXPECT_TRUE(session.access->exported.empty());
}

TEST(FormCode, TheHeadOfTheClassModuleIsDropped) {
  CodeSession session;
  session.access->text =
      "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\n"
      "Attribute VB_Name = \"Form_Sales Form\"\r\nOption Compare Database\r\nOption Explicit\r\n"
      "BEGINNING = 1\r\nx = 1\r\n";
  EXPECT_EQ(codePart(session), "Option Explicit\r\nx = 1\r\n");
}

TEST(FormCode, FormOpenAndFormLoadEachGetTheBlock) {
  CodeSession session;
  session.access->text =
      "Private Sub Form_Open(Cancel As Integer)\r\nEnd Sub\r\n"
      "Private Sub Form_Load()\r\nEnd Sub\r\n";
  addPicture(session, "imgA.Picture = LoadPicture(\"a\")");
  EXPECT_EQ(codePart(session),
            "Private Sub Form_Initialize() 'Private Sub Form_Open(Cancel As Integer)\r\n"
            "' Tarrowin: Load and display images\r\n"
            "   \r\n"
            "   imgA.Picture = LoadPicture(\"a\")\r\n"
            "End Sub\r\n\r\n"
            "Private Sub Form_Load()\r\n"
            "' Tarrowin: Load and display images\r\n"
            "   \r\n"
            "   imgA.Picture = LoadPicture(\"a\")\r\n"
            "End Sub\r\n\r\n");
}

TEST(FormCode, TheTextOfABoxIsSetOnceInTheWholeCode) {
  CodeSession session;
  session.access->text =
      "Private Sub Form_Open(Cancel As Integer)\r\nEnd Sub\r\n"
      "Private Sub Form_Load()\r\nEnd Sub\r\n";
  addCombo(session, "cboA;One;Two");
  addCombo(session, "cboB;Three");
  EXPECT_EQ(codePart(session),
            "Private Sub Form_Initialize() 'Private Sub Form_Open(Cancel As Integer)\r\n"
            "' Tarrowin: Load ComboBox items\r\n"
            "   With cboA\r\n"
            "      .Text = \"One\"\r\n"
            "      .AddItem \"One\"\r\n"
            "      .AddItem \"Two\"\r\n"
            "   End With\r\n"
            "   With cboB\r\n"
            "      .AddItem \"Three\"\r\n"
            "   End With\r\n"
            "End Sub\r\n\r\n"
            "Private Sub Form_Load()\r\n"
            "' Tarrowin: Load ComboBox items\r\n"
            "   With cboA\r\n"
            "      .AddItem \"One\"\r\n"
            "      .AddItem \"Two\"\r\n"
            "   End With\r\n"
            "   With cboB\r\n"
            "      .AddItem \"Three\"\r\n"
            "   End With\r\n"
            "End Sub\r\n\r\n");
}

TEST(FormCode, WithoutHeadersTheFormLoadFollowsTheLastLine) {
  CodeSession session;
  session.access->text = "Option Explicit\r\nPrivate Sub cmdA_Click()\r\nEnd Sub\r\n";
  addList(session, "lstA;One;Two");
  EXPECT_EQ(codePart(session),
            "Option Explicit\r\n"
            "Private Sub cmdA_Click()\r\n"
            "End Sub\r\n\r\n"
            "Option Explicit\r\n"
            "Private Sub Form_Load()\r\n"
            "' Tarrowin: Load ListBox items\r\n"
            "   With lstA\r\n"
            "      .Text = \"One\"\r\n"
            "      .AddItem \"One\"\r\n"
            "      .AddItem \"Two\"\r\n"
            "   End With\r\n"
            "End Sub\r\n");
}

TEST(FormCode, ImagesGoBeforeCombosAndCombosBeforeLists) {
  CodeSession session;
  session.access->hasModule = false;
  addList(session, "lstA;x");
  addCombo(session, "cboA;y");
  EXPECT_NE(codePart(session).find("ComboBox items\r\n   With cboA\r\n"), std::string::npos);

  CodeSession withImages;
  withImages.access->hasModule = false;
  addCombo(withImages, "cboA;y");
  addPicture(withImages, "imgA.Picture = LoadPicture(\"a\")");
  const std::string code = codePart(withImages);
  EXPECT_NE(code.find("' Tarrowin: Load and display images\r\n"), std::string::npos);
  EXPECT_EQ(code.find("cboA"), std::string::npos);
}

TEST(FormCode, AUserControlGetsNeitherHeadingNorItems) {
  for (const bool combos : {true, false}) {
    CodeSession session;
    session.main.state.mblnUserControl = true;
    session.access->text = "Private Sub Form_Load()\r\nEnd Sub\r\n";
    (combos ? addCombo : addList)(session, "ctlA;x");
    EXPECT_EQ(codePart(session), "Private Sub Form_Load()\r\nEnd Sub\r\n\r\n");
  }
}

TEST(FormCode, AValueListThatEndsInASeparatorGetsNoSecondOne) {
  CodeSession session;
  session.access->hasModule = false;
  addCombo(session, "cboA;One;Two;");
  EXPECT_EQ(codePart(session),
            "Option Explicit\r\nPrivate Sub Form_Load()\r\n"
            "' Tarrowin: Load ComboBox items\r\n"
            "   With cboA\r\n      .Text = \"One\"\r\n      .AddItem \"One\"\r\n"
            "      .AddItem \"Two\"\r\n   End With\r\nEnd Sub\r\n");
}

TEST(FormCode, AnEmptyValueListGivesOnlyTheFrame) {
  CodeSession session;
  session.access->hasModule = false;
  addCombo(session, "cboA;");
  addCombo(session, "cboB;One");
  EXPECT_EQ(codePart(session),
            "Option Explicit\r\nPrivate Sub Form_Load()\r\n"
            "' Tarrowin: Load ComboBox items\r\n"
            "   With cboA\r\n   End With\r\n"
            "   With cboB\r\n      .Text = \"One\"\r\n      .AddItem \"One\"\r\n   End With\r\n"
            "End Sub\r\n");
}

TEST(FormCode, ItemsStandAsTheyAre) {
  CodeSession session;
  session.access->hasModule = false;
  addList(session, "lstA;\"a\"; b ;;c");
  EXPECT_EQ(codePart(session),
            "Option Explicit\r\nPrivate Sub Form_Load()\r\n"
            "' Tarrowin: Load ListBox items\r\n"
            "   With lstA\r\n      .Text = \"\"a\"\"\r\n      .AddItem \"\"a\"\"\r\n"
            "      .AddItem \" b \"\r\n      .AddItem \"\"\r\n      .AddItem \"c\"\r\n"
            "   End With\r\nEnd Sub\r\n");
}

TEST(FormCode, TheItemListsAreErasedAndTheImagesAreNot) {
  CodeSession session;
  session.access->text = "x = 1\r\n";
  addCombo(session, "cboA;x");
  addList(session, "lstA;x");
  addPicture(session, "imgA.Picture = LoadPicture(\"a\")");
  codePart(session);
  EXPECT_EQ(session.main.state.astrComboSources.count(), 0);
  EXPECT_EQ(session.main.state.astrListSources.count(), 0);
  EXPECT_EQ(session.main.state.astrPictureCode.count(), 1);
  EXPECT_TRUE(session.main.state.blnFillCombos);
}

TEST(FormCode, WithNothingToWriteTheItemListsStay) {
  CodeSession session;
  session.access->hasModule = false;
  session.main.state.astrComboSources.append("cboA;x");
  codePart(session);
  EXPECT_EQ(session.main.state.astrComboSources.count(), 1);
}

TEST(FormCode, OnlyInTheAppendedFormLoadError9EndsTheEntries) {
  const auto raise9 = [](std::string_view member) {
    if (member == "Close") raise(9);
  };
  CodeSession appended;
  appended.access->hasModule = false;
  appended.access->onMember = raise9;
  addCombo(appended, "cboA;x");
  EXPECT_EQ(codePart(appended),
            "Option Explicit\r\nPrivate Sub Form_Load()\r\n"
            "' Tarrowin: Load ComboBox items\r\nEnd Sub\r\n");

  CodeSession inHandler;
  inHandler.access->text = "Private Sub Form_Load()\r\n";
  inHandler.access->onMember = raise9;
  addCombo(inHandler, "cboA;x");
  EXPECT_NE(codePart(inHandler).find("   With cboA\r\n"), std::string::npos);
}

TEST(FormCode, TheExamplesOfTheRules) {
  CodeSession session;
  session.access->text =
      "Me.Caption = \"x\"\r\n"
      "Me.txtA = Me!txtB\r\n"
      "Private Sub txt_Name_DblClick(Cancel As Integer)\r\n"
      "Private Sub  Form_Load()\r\n"
      "DoCmd.Close\r\n"
      "Reports!rptX.Visible = True\r\n";
  EXPECT_EQ(codePart(session),
            "Me.Caption = \"x\"\r\n\r\n' \r\n"
            "Me.txtA = Me!txtB\r\nMe.txtA = Me.txtB\r\n' Me.txtA = Me.txtB\r\n"
            "Private Sub txt_DblClick()    'ancel As Integer)\r\n"
            "Private Sub  Form_Load()\r\n"
            "' DoCmd.Close\r\n"
            "Reports!rptX.Visible = True\r\n");
}

TEST(FormCode, LinesOfAnyKindOfEndAndLength) {
  CodeSession session;
  const std::string longLine(1 << 20, 'x');
  session.access->text = "a = 1\nb = 2\r\n\r\n" + longLine + "\nEnd Sub";
  EXPECT_EQ(codePart(session), "a = 1\r\nb = 2\r\n" + longLine + "\r\nEnd Sub\r\n\r\n");
}

}  // namespace
}  // namespace tarrowin::test
