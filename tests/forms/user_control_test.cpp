// The code of the user control that a continuous form becomes.
#include "forms/user_control.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "forms/container_forms.h"
#include "forms/printer_session.h"

namespace tarrowin::test {
namespace {

using container::operator+;
using Lines = std::vector<std::string>;

Lines textCode(const std::string& inner, const std::string& name) {
  return {"",
          "Sub " + inner + "_Change()",
          "   PropertyChanged \"" + name + "\"",
          "End Sub",
          "Public Property Get " + name + "() As Variant",
          "   Attribute " + name + ".VB_MemberFlags = \"14\"",
          "   " + name + " = " + inner + ".Text",
          "End Property",
          "Public Property Let " + name + "(ByVal vNewValue As Variant)",
          "   If CanPropertyChange(\"" + name + "\") Then",
          "      " + inner + ".Text = vNewValue",
          "      PropertyChanged \"" + name + "\"",
          "   End If",
          "End Property",
          ""};
}
Lines textBoxCode(const std::string& name) { return textCode("txt" + name, name); }

class UserControlCode : public testing::Test, public PrinterSession {
 protected:
  // The code of a whole form. The indent shows that none is printed.
  Lines code(const std::vector<Json>& controls) {
    openForm(controls);
    main.state.strIndent = "   ";
    return output([this] { CreateVBUserControl(main); });
  }
  // The code of one control that the walk named Item.
  Lines codeOf(int type, const Json& properties = Json::object()) {
    openForm({control("ctl", type, properties)});
    main.state.strCtlName = "Item";
    main.state.strIndent = "   ";
    return print(GetUserControlProps, "ctl");
  }
};

TEST_F(UserControlCode, ACheckBox) {
  EXPECT_EQ(
      codeOf(106),
      (Lines{"", "Sub chkItem_Click()", "   PropertyChanged \"Item\"", "End Sub",
             "Public Property Get Item() As Boolean", "   Attribute Item.VB_MemberFlags = \"14\"",
             "   Item = chkItem.Value = vbChecked", "End Property",
             "Public Property Let Item(ByVal vNewValue As Boolean)",
             "   If CanPropertyChange(\"Item\") Then",
             "      chkItem.Value = IIf(vNewValue, vbChecked, vbUnChecked)",
             "      PropertyChanged \"Item\"", "   End If", "End Property", ""}));
}

TEST_F(UserControlCode, AComboBox) {
  EXPECT_EQ(codeOf(111),
            (Lines{"", "Sub cboItem_Change()", "   PropertyChanged \"Item\"", "End Sub",
                   "Public Property Get Item() As Variant",
                   "   Attribute Item.VB_MemberFlags = \"14\"", "   Item = cboItem.Text",
                   "End Property", "Public Property Let Item(ByVal vNewValue As Variant)",
                   "   If CanPropertyChange(\"Item\") Then", "      cboItem.Text = vNewValue",
                   "      PropertyChanged \"Item\"", "   End If", "End Property", ""}));
}

TEST_F(UserControlCode, AListBox) {
  EXPECT_EQ(codeOf(110),
            (Lines{"", "Sub lstItem_Change()", "   PropertyChanged \"Item\"", "End Sub",
                   "Public Property Get Item() As Variant",
                   "   Attribute Item.VB_MemberFlags = \"14\"", "   Item = lstItem.Text",
                   "End Property", "Public Property Let Item(ByVal vNewValue As Variant)",
                   "   If CanPropertyChange(\"Item\") Then", "      lstItem.Text = vNewValue",
                   "      PropertyChanged \"Item\"", "   End If", "End Property", ""}));
}

TEST_F(UserControlCode, ATextBox) {
  EXPECT_EQ(codeOf(109),
            (Lines{"", "Sub txtItem_Change()", "   PropertyChanged \"Item\"", "End Sub",
                   "Public Property Get Item() As Variant",
                   "   Attribute Item.VB_MemberFlags = \"14\"", "   Item = txtItem.Text",
                   "End Property", "Public Property Let Item(ByVal vNewValue As Variant)",
                   "   If CanPropertyChange(\"Item\") Then", "      txtItem.Text = vNewValue",
                   "      PropertyChanged \"Item\"", "   End If", "End Property", ""}));
}

TEST_F(UserControlCode, NoOtherControlHasCode) {
  for (const int type :
       {100, 101, 102, 103, 104, 105, 107, 108, 112, 113, 114, 118, 119, 122, 123, 124, 126}) {
    main.state.blnInFrame = false;
    EXPECT_EQ(codeOf(type, {{"ControlSource", "F"}}), Lines{}) << type;
    EXPECT_EQ(main.state.blnInFrame, type == 107) << type;
  }
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(UserControlCode, AnUnreadableTypeHasNoCode) {
  EXPECT_EQ(codeOf(109, {{"ControlType", {{"error", 3000}}}}), Lines{});
  EXPECT_TRUE(user.boxes.empty());
}

struct Flag {
  const char* name;
  bool ConversionState::*member;
};
constexpr Flag kFlags[] = {{"mblnAdoDataCtl", &ConversionState::mblnAdoDataCtl},
                           {"blnUsesCalendar", &ConversionState::blnUsesCalendar},
                           {"blnUsesMsComCtl", &ConversionState::blnUsesMsComCtl},
                           {"blnUsesComCtl32", &ConversionState::blnUsesComCtl32},
                           {"blnUsesComDlg", &ConversionState::blnUsesComDlg},
                           {"blnUsesDataGrid", &ConversionState::blnUsesDataGrid},
                           {"blnUsesRichText", &ConversionState::blnUsesRichText},
                           {"gblnProjectNeeded", &ConversionState::gblnProjectNeeded}};

// The names of the flags that are set.
std::string flagsOf(const ConversionState& state) {
  std::string names;
  for (const auto& [name, member] : kFlags)
    if (state.*member) names += std::string(names.empty() ? "" : " ") + name;
  return names;
}

TEST(UserControlFlags, AnActiveXControlRaisesTheFlagsOfItsClass) {
  struct Case {
    const char *oleClass, *libraryClass, *flags;
  };
  const Case cases[] = {
      {"Adodc", "MSAdodcLib.Adodc.6", "mblnAdoDataCtl blnUsesMsComCtl gblnProjectNeeded"},
      {"Calendar", "MSCAL.Calendar.7", "blnUsesCalendar blnUsesMsComCtl gblnProjectNeeded"},
      {"CalendarCtrl", "Cal.Calendar.7", "blnUsesCalendar blnUsesComCtl32 gblnProjectNeeded"},
      {"CommonDialog", "MSComDlg.CommonDialog.1",
       "blnUsesMsComCtl blnUsesComDlg gblnProjectNeeded"},
      {"DataGrid", "MSDataGridLib.DataGrid.1", "blnUsesMsComCtl blnUsesDataGrid gblnProjectNeeded"},
      {"RichTextCtrl", "RICHTEXT.RichtextCtrl.1",
       "blnUsesComCtl32 blnUsesRichText gblnProjectNeeded"},
      {"TreeCtrl", "MSComctlLib.TreeCtrl.2", "blnUsesMsComCtl gblnProjectNeeded"},
      {"TreeCtrl", "COMCTL.TreeCtrl.1", "blnUsesComCtl32 gblnProjectNeeded"},
      {"calendar", "Other.Class", "blnUsesComCtl32 gblnProjectNeeded"}};
  for (const auto& [oleClass, libraryClass, flags] : cases) {
    PrinterSession session;
    EXPECT_EQ(session.printOnly(GetUserControlProps, 119,
                                {{"OLEClass", oleClass}, {"Class", libraryClass}}),
              Lines{});
    EXPECT_EQ(flagsOf(session.main.state), flags) << oleClass << " " << libraryClass;
    EXPECT_FALSE(session.main.state.blnInFrame);
  }
}

TEST(UserControlFlags, NoOtherControlRaisesAFlag) {
  for (const int type : {100, 106, 107, 109, 110, 111, 123}) {
    PrinterSession session;
    session.printOnly(GetUserControlProps, type,
                      {{"OLEClass", "Calendar"}, {"Class", "MSCAL.Calendar.7"}});
    EXPECT_EQ(flagsOf(session.main.state), "") << type;
    EXPECT_FALSE(session.main.state.blnUsesTabCtl) << type;
  }
}

TEST_F(UserControlCode, TheCodeStandsInTheOrderOfTheControls) {
  EXPECT_EQ(code({control("Unit Price", 109), control("City", 111), control("txtNote", 109),
                  control("2nd", 110)}),
            textBoxCode("Unit_Price") + textCode("cboCity", "City") +
                textCode("txttxtNote", "txtNote") + textCode("lstxnd", "xnd"));
  EXPECT_EQ(main.state.strIndent, "");
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(UserControlCode, ThePropertyOfACheckBoxHasItsOwnName) {
  const Lines lines = code({control("Sold", 106, {{"ControlSource", "Active"}})});
  EXPECT_EQ(container::linesWith(lines, "Public Property"),
            (Lines{"Public Property Get Sold() As Boolean",
                   "Public Property Let Sold(ByVal vNewValue As Boolean)"}));
}

TEST_F(UserControlCode, ALabelOrLineInTheForm) {
  EXPECT_EQ(code({control("lbl", 100), control("line", 102), control("Item", 109)}),
            textBoxCode("Item"));
  FormSession session;
  Json entry = form("F", {control("lbl", 100, at(0, 0)), control("line", 102, at(0, 0))});
  entry["properties"]["DefaultView"] = 1;
  session.openForms({entry});
  session.main.window.optContinuous = 1;
  session.convert({"F"});
  const Lines lines = session.lines("ctlF.ctl");
  EXPECT_EQ(container::beginnings(lines),
            (Lines{"VB.UserControl ctlF", "VB.Label lbl", "VB.Line line"}));
  ASSERT_GT(lines.size(), 5u);
  EXPECT_EQ(Lines(lines.end() - 5, lines.end()),
            (Lines{"End   ' UserControl ctlF", "", "Attribute VB_Creatable = True",
                   "Attribute VB_Exposed = True", ""}));
}

TEST_F(UserControlCode, AFormWithNoControls) {
  EXPECT_EQ(code({}), Lines{});
  EXPECT_EQ(main.state.intNumControls, -1);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(UserControlCode, ControlsInAnOptionGroupAreSkipped) {
  EXPECT_EQ(code({control("grp", 107), control("inside", 106, Json::object(), "grp"),
                  control("text", 109, Json::object(), "grp"), control("behind", 109)}),
            textBoxCode("behind"));
  EXPECT_TRUE(main.state.blnInFrame);
  EXPECT_FALSE(main.state.blnInOptionGroup);
}

TEST_F(UserControlCode, AFirstControlInsideAGroupHasCode) {
  EXPECT_EQ(code({control("first", 109, Json::object(), "grp"),
                  control("second", 109, Json::object(), "grp"), control("grp", 107)}),
            textBoxCode("first"));
}

TEST_F(UserControlCode, ControlsFarFromTheFormHaveNoCode) {
  const Json none = Json::object();
  // On a page, the form is the third above a control.
  const std::vector<Json> onPage = {control("tab", 123), control("page", 124, none, "tab"),
                                    control("a", 109, none, "page"), control("b", 109)};
  EXPECT_EQ(code(onPage), textBoxCode("b"));
  EXPECT_EQ(code({onPage[2], onPage[0], onPage[1], onPage[3]}), textBoxCode("b"));
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(UserControlCode, AControlOneStepFromTheFormHasCode) {
  const Json none = Json::object();
  EXPECT_EQ(code({control("a", 109), control("b", 109, none, "a"), control("c", 109, none, "b")}),
            textBoxCode("a") + textBoxCode("b"));
  // Page and form are told apart by their names alone.
  EXPECT_EQ(code({control("tab", 123), control("Sales Form", 124, none, "tab"),
                  control("d", 109, none, "Sales Form")}),
            textBoxCode("d"));
}

TEST_F(UserControlCode, WhatTheWalkStartsWith) {
  openForm({control("lbl", 100), control("Unit Price", 109)});
  ConversionState& s = main.state;
  s.blnInSubForm = s.blnInFrame = s.blnInOptionGroup = s.blnInTab = s.blnDupFound = true;
  s.intPageTopOffset = s.intSubDepth = s.intSubCount = 5;
  s.intNumControls = 99;
  s.astrCtlNames.append("old");
  output([this] { CreateVBUserControl(main); });
  EXPECT_FALSE(s.blnInSubForm || s.blnInFrame || s.blnInOptionGroup || s.blnInTab || s.blnDupFound);
  EXPECT_EQ(s.intPageTopOffset, 0);
  EXPECT_EQ(s.intSubDepth, 0);
  EXPECT_EQ(s.intSubCount, 0);
  EXPECT_EQ(s.intNumControls, 1);
  const auto names = s.astrCtlNames.entries();
  EXPECT_EQ(Lines(names.begin(), names.end()), (Lines{"lbl", "Unit Price"}));
}

TEST_F(UserControlCode, TheFileStaysOpen) {
  openForm({control("Item", 109)});
  EXPECT_EQ(output([this] {
              CreateVBUserControl(main);
              files.Print(kOutputFile, "behind");
            }),
            textBoxCode("Item") + Lines{"behind"});
}

// A second control whose Parent raises the error.
std::vector<Json> withParentError(int number) {
  const Json error = {{"error", number}, {"description", "Refused."}};
  return {control("one", 109), control("two", 109, {{"Parent", error}}), control("three", 109)};
}

TEST_F(UserControlCode, ErrorsOfTheWalkThatPassSilently) {
  for (const int number : {438, 2186, 2452, 2455, 2459, 2462, 2465}) {
    EXPECT_EQ(code(withParentError(number)), textBoxCode("one") + textBoxCode("three")) << number;
    EXPECT_TRUE(user.boxes.empty()) << number;
  }
}

TEST_F(UserControlCode, AnUnusualErrorOfTheWalkNamesTheLastControl) {
  for (const int number : {13, 3000}) {
    EXPECT_EQ(code(withParentError(number)), textBoxCode("one") + textBoxCode("three"));
    // The names and the types of both parents.
    ASSERT_EQ(user.boxes.size(), 4u);
    for (const Box& box : user.boxes) {
      EXPECT_EQ(
          box, (Box{16, "CreateVBUserControl(one) - Error #" + std::to_string(number) + " Refused.",
                    "Access to Visual Basic Tarrowin"}));
    }
  }
}

TEST_F(UserControlCode, AFirstControlsParentsAreReadByNameAlone) {
  const Json error = {{"error", 3000}, {"description", "Refused."}};
  EXPECT_EQ(code({control("one", 109, {{"Parent", error}}), control("two", 109)}),
            textBoxCode("two"));
  ASSERT_EQ(user.boxes.size(), 2u);
  for (const Box& box : user.boxes)
    EXPECT_EQ(box.text, "CreateVBUserControl(My_Control) - Error #3000 Refused.");
}

TEST_F(UserControlCode, AControlWithoutANameKeepsTheLastOnesName) {
  const Json odd = {{"Name", {{"error", 3000}, {"description", "Refused."}}}};
  EXPECT_EQ(
      code({control("one", 109), control("two", 106, odd)}),
      textBoxCode("one") +
          (Lines{"", "Sub chkone_Click()", "   PropertyChanged \"one\"", "End Sub",
                 "Public Property Get one() As Boolean", "   Attribute one.VB_MemberFlags = \"14\"",
                 "   one = chkone.Value = vbChecked", "End Property",
                 "Public Property Let one(ByVal vNewValue As Boolean)",
                 "   If CanPropertyChange(\"one\") Then",
                 "      chkone.Value = IIf(vNewValue, vbChecked, vbUnChecked)",
                 "      PropertyChanged \"one\"", "   End If", "End Property", ""}));
  // When the names are listed, before any control has one, and when the control is named.
  ASSERT_EQ(user.boxes.size(), 2u);
  EXPECT_EQ(user.boxes[0].text, "CreateVBUserControl(My_Control) - Error #3000 Refused.");
  EXPECT_EQ(user.boxes[1].text, "CreateVBUserControl(one) - Error #3000 Refused.");
}

}  // namespace
}  // namespace tarrowin::test
