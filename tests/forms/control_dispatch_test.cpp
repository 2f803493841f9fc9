// What each kind of control becomes.
#include <gtest/gtest.h>

#include "forms/form_session.h"

namespace tarrowin::test {
namespace {

std::vector<std::string> beginLines(const std::vector<std::string>& lines) {
  std::vector<std::string> found;
  for (const std::string& line : lines)
    if (line.find("   Begin ") != std::string::npos) found.push_back(line);
  return found;
}

TEST(ControlDispatch, EveryControlTypeHasItsClass) {
  const std::pair<int, const char*> rows[] = {
      {108, "VB.OLE"},      {114, "VB.OLE"},           {106, "VB.CheckBox"},
      {111, "VB.ComboBox"}, {104, "VB.CommandButton"}, {122, "VB.CommandButton"},
      {103, "VB.Image"},    {100, "VB.Label"},         {102, "VB.Line"},
      {110, "VB.ListBox"},  {105, "VB.OptionButton"},  {107, "VB.Frame"},
      {101, "VB.Shape"},    {123, "TabDlg.SSTab"},     {109, "VB.TextBox"},
      {124, "VB.Shape"},    {7, "VB.Shape"},           {-5, "VB.Shape"},
  };
  for (const auto& [type, className] : rows) {
    FormSession session;
    EXPECT_EQ(beginLines(session.convertOne(form("F", {control("c", type, at(0, 0))}))),
              std::vector<std::string>{"   Begin " + std::string(className) + " c"})
        << type;
  }
}

TEST(ControlDispatch, AControlWithoutATypeBecomesAShape) {
  FormSession session;
  const Json odd = control("c", 109, {{"ControlType", {{"error", 438}}}, {"Section", 0}});
  EXPECT_EQ(beginLines(session.convertOne(form("F", {odd}))),
            std::vector<std::string>{"   Begin VB.Shape c"});
}

TEST(ControlDispatch, ATabControlNeedsAProject) {
  FormSession session;
  session.convertOne(form("F", {control("c", 123, at(0, 0))}));
  EXPECT_TRUE(session.main.state.blnUsesTabCtl);
  EXPECT_TRUE(session.main.state.gblnProjectNeeded);
}

Json activeX(const Json& oleClass, const Json& libraryClass) {
  return control("ax", 119,
                 {{"OLEClass", oleClass}, {"Class", libraryClass}, {"Section", 0}, {"Top", 0}});
}

// The Begin lines of a form with one ActiveX control.
std::vector<std::string> beginOf(FormSession& session, const Json& oleClass,
                                 const Json& libraryClass) {
  return beginLines(session.convertOne(form("F", {activeX(oleClass, libraryClass)})));
}

using Lines = std::vector<std::string>;

TEST(ControlDispatch, EveryActiveXClassHasItsLine) {
  const std::pair<const char*, const char*> rows[] = {
      {"Calendar", "MSACAL.Calendar"},
      {"CommonDialog", "MSComDlg.CommonDialog"},
      {"ImageList", "MSComctlLib.ImageList"},
      {"ImageListCtrl", "MSComctlLib.ImageList"},
      {"ImageComboCtl", "MSComctlLib.ImageCombo"},
      {"ListViewCtrl", "MSComctlLib.ListView"},
      {"Slider", "MSComctlLib.Slider"},
      {"TabStrip", "MSComctlLib.TabStrip"},
      {"ToolBar", "MSComctlLib.ToolBar"},
      {"ProgCtrl", "MSComctlLib.ProgressBar"},
      {"RichTextCtrl", "MSComctlLib.RichTextBox"},
      {"SBarCtrl", "MSComctlLib.StatusBar"},
      {"TreeCtrl", "MSComctlLib.TreeView"},
  };
  for (const auto& [oleClass, classLine] : rows) {
    FormSession session;
    EXPECT_EQ(beginOf(session, oleClass, "MSComctlLib.Something.2"),
              Lines{"   Begin " + std::string(classLine) + " ax"});
  }
}

TEST(ControlDispatch, ADataGridHasTwoBeginLinesAndOneEnd) {
  FormSession session;
  const auto lines = session.convertOne(form("F", {activeX("DataGrid", "MSDataGridLib.DataGrid")}));
  EXPECT_EQ(beginLines(lines),
            (Lines{"   Begin MSDataGridLib.DataGrid ax", "   Begin MSDataGridLib.DataGrid ax"}));
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "   End   'ax"), 1);
  EXPECT_TRUE(session.main.state.blnUsesDataGrid);
}

TEST(ControlDispatch, AnAdodcPrintsItsOwnBegin) {
  FormSession session;
  EXPECT_EQ(beginOf(session, "Adodc", "MSAdodcLib.Adodc.6"), Lines{"   Begin MSAdodcLib.Adodc ax"});
  EXPECT_TRUE(session.main.state.mblnAdoDataCtl);
}

TEST(ControlDispatch, TheLibraryFlagsFollowTheClass) {
  FormSession session;
  beginOf(session, "Calendar", "MSCAL.Calendar.7");
  const ConversionState& s = session.main.state;
  EXPECT_TRUE(s.gblnProjectNeeded);
  EXPECT_TRUE(s.blnUsesCalendar);
  EXPECT_TRUE(s.blnUsesMsComCtl);
  EXPECT_FALSE(s.blnUsesComCtl32);
  EXPECT_FALSE(s.blnUsesComDlg);
  EXPECT_FALSE(s.blnUsesRichText);
  FormSession other;
  beginOf(other, "CommonDialog", "COMDLG.CommonDialog");
  EXPECT_TRUE(other.main.state.blnUsesComDlg);
  EXPECT_TRUE(other.main.state.blnUsesComCtl32);
  EXPECT_FALSE(other.main.state.blnUsesMsComCtl);
  FormSession text;
  beginOf(text, "RichTextCtrl", "RICHTEXT.RichtextCtrl.1");
  EXPECT_TRUE(text.main.state.blnUsesRichText);
}

TEST(ControlDispatch, OleClassTreeCtrlOfMSComctlLib) {
  FormSession session;
  EXPECT_EQ(beginOf(session, "TreeCtrl", "MSComctlLib.TreeCtrl.2"),
            Lines{"   Begin MSComctlLib.TreeView ax"});
  EXPECT_TRUE(session.main.state.blnUsesMsComCtl);
}

TEST(ControlDispatch, ClassComctlTreeCtrl) {
  FormSession session;
  EXPECT_EQ(beginOf(session, "TreeCtrl", "COMCTL.TreeCtrl.1"),
            Lines{"   Begin COMCTLLib.TreeView ax"});
  EXPECT_TRUE(session.main.state.blnUsesComCtl32);
}

TEST(ControlDispatch, AClassWithoutADot) {
  FormSession session;
  EXPECT_EQ(beginOf(session, "Slider", "Comctl"), Lines{"   Begin Slider ax"});
  EXPECT_TRUE(session.main.state.blnUsesComCtl32);
  FormSession microsoft;
  EXPECT_EQ(beginOf(microsoft, "Slider", "MSComctl"), Lines{"   Begin Slider ax"});
  EXPECT_TRUE(microsoft.main.state.blnUsesMsComCtl);
}

TEST(ControlDispatch, AnUnknownClassBecomesAShapeAndKeepsItsLibraryFlag) {
  FormSession session;
  EXPECT_EQ(beginOf(session, "treectrl", "MSComctlLib.TreeCtrl.2"), Lines{"   Begin VB.Shape ax"});
  EXPECT_TRUE(session.main.state.blnUsesMsComCtl);
  EXPECT_TRUE(session.main.state.gblnProjectNeeded);
}

TEST(ControlDispatch, ClassesThatCannotBeRead) {
  FormSession session;
  EXPECT_EQ(beginOf(session, {{"error", 2455}}, {{"error", 2455}}), Lines{"   Begin VB.Shape ax"});
  FormSession nothing;
  EXPECT_EQ(beginOf(nothing, "TreeCtrl", nullptr), Lines{"   Begin TreeView ax"});
  EXPECT_TRUE(nothing.main.state.blnUsesComCtl32);
}

TEST(ControlDispatch, TheFontBlockOfAControlWithoutFonts) {
  FormSession session;
  const auto lines = session.convertOne(
      form("F", {control("cmd", 104, {{"Section", 0}, {"FontName", "Arial"}, {"Height", 5}})}));
  const auto font = std::find(lines.begin(), lines.end(), "      BeginProperty Font");
  ASSERT_NE(font, lines.end());
  EXPECT_EQ(Lines(font, font + 4),
            (Lines{"      BeginProperty Font", "         Name       = \"Arial\"",
                   "      EndProperty", "      Height        = 5"}));
}

TEST(ControlDispatch, TheFontBlockAndItsTwoSpellingsOfTrue) {
  FormSession session;
  const Json font = {{"Section", 0},     {"FontName", "Arial"},   {"FontItalic", true},
                     {"FontSize", 8.25}, {"FontUnderline", true}, {"FontWeight", 700}};
  const auto lines = session.convertOne(form("F", {control("cmd", 104, font)}));
  const auto start = std::find(lines.begin(), lines.end(), "      BeginProperty Font");
  ASSERT_NE(start, lines.end());
  EXPECT_EQ(
      Lines(start, start + 7),
      (Lines{"      BeginProperty Font", "         Name       = \"Arial\"",
             "         Italic     = -1  ' True", "         Size       = 8.25",
             "         Underline  = -1  'True", "         Weight     = 700", "      EndProperty"}));
}

TEST(ControlDispatch, AnUnusualErrorInTheFontHasABoxAndLosesOneLine) {
  FormSession session;
  const Json font = {
      {"Section", 0},           {"FontName", "Arial"},
      {"FontItalic", false},    {"FontSize", {{"error", 3000}, {"description", "Refused."}}},
      {"FontUnderline", false}, {"FontWeight", 400}};
  const auto lines = session.convertOne(form("F", {control("cmd", 104, font)}));
  const auto start = std::find(lines.begin(), lines.end(), "      BeginProperty Font");
  ASSERT_NE(start, lines.end());
  EXPECT_EQ(Lines(start, start + 6),
            (Lines{"      BeginProperty Font", "         Name       = \"Arial\"",
                   "         Italic     = 0   'False", "         Underline  = 0   'False",
                   "         Weight     = 400", "      EndProperty"}));
  ASSERT_FALSE(session.user.boxes.empty());
  EXPECT_EQ(session.user.boxes[0].text, "GetFontProps(cmd) - Error #3000 Refused.");
}

}  // namespace
}  // namespace tarrowin::test
