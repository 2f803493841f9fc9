// ConvertObjects: forms and modules of one list, the project around them, and the closing box.
#include "core/object_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kTitle = "Access to Visual Basic Tarrowin";
constexpr std::string_view kDuplicate =
    "Note: Duplicate Form and Module names exist in the database. \r\nOnly the Form was "
    "converted.\r\n\r\n";

Json bound(Json entry, const std::string& source) {
  entry["properties"]["RecordSource"] = source;
  return entry;
}
Json bigForm(std::string_view name) {
  std::vector<Json> controls;
  for (int i = 0; i < 256; ++i) controls.push_back(control("l" + std::to_string(i), 100, at(0, 0)));
  return form(name, controls);
}
Lines entriesOf(const GrowingList& list) {
  const auto entries = list.entries();
  return {entries.begin(), entries.end()};
}

class ObjectBatch : public ObjectSession {};

// The naming of the project and the sentence for each mixture.

TEST_F(ObjectBatch, OneForm) {
  open({form("Main Form"), form("Other")}, {module("Tools")});
  convert({"Main Form"});
  EXPECT_EQ(session.onlyBox(),
            (Box{64,
                 "Successfully converted Access Form: Main Form to Visual Basic Form: "
                 "Main_Form.frm." +
                     tail("Main_Form.vbp"),
                 std::string(kTitle)}));
  EXPECT_EQ(files(), (Lines{"Main_Form.frm", "Main_Form.vbp"}));
  EXPECT_TRUE(contains(session.lines("Main_Form.vbp"), "Form=Main_Form.frm"));
  EXPECT_EQ(main.lastBatch.selected, 1);
  EXPECT_EQ(main.lastBatch.converted, 1);
}

TEST_F(ObjectBatch, ALoneModuleIsNamedAfterTheFormFileThatIsNotThere) {
  open({form("Main")}, {module("My Tools")});
  convert({"My Tools"});
  EXPECT_EQ(session.onlyBox(),
            (Box{64,
                 "Successfully converted Access Module: My Tools to Visual Basic Module: ." +
                     tail("My_Tools.vbp"),
                 std::string(kTitle)}));
  EXPECT_EQ(files(), (Lines{"My_Tools.bas", "My_Tools.vbp"}));
  EXPECT_TRUE(contains(session.lines("My_Tools.vbp"), "Module=My_Tools; My_Tools.bas"));
  EXPECT_TRUE(state.mblnModuleConverted);
}

TEST_F(ObjectBatch, ALoneModuleBehindABatchOfFormsIsToldAsTheLastForm) {
  open({form("Main")}, {module("Tools")});
  convert({"Main"});
  session.clearBoxes();
  convert({"Tools"});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Form: Tools to Visual Basic Form: Main.frm." +
                tail("Tools.vbp"));
}

TEST_F(ObjectBatch, ALoneModuleBehindAReportIsToldAsAModuleWithTheReportsFile) {
  open({form("Main")}, {module("Tools")});
  state.gstrFormFile = "Sales.dsr";
  convert({"Tools"});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Module: Tools to Visual Basic Module: Sales.dsr." +
                tail("Tools.vbp"));
}

TEST_F(ObjectBatch, SeveralModulesOnly) {
  open({form("Main")}, {module("A"), module("B", "y = 1\r\n", 1), module("C")});
  convert({"A", "B"});
  EXPECT_EQ(
      session.onlyBox().text,
      "Successfully converted 2 Access Modules to Visual Basic Modules. " + tail("Orders.vbp"));
  EXPECT_EQ(files(), (Lines{"A.bas", "B.cls", "Orders.vbp"}));
  const Lines project = session.lines("Orders.vbp");
  EXPECT_TRUE(contains(project, "Module=A; A.bas"));
  EXPECT_TRUE(contains(project, "Class=B; B.cls"));
}

TEST_F(ObjectBatch, SeveralFormsOnly) {
  open({form("A"), form("B")}, {module("Tools")});
  convert({"A", "B"});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 2 Access Forms to Visual Basic Forms. " + tail("Orders.vbp"));
  EXPECT_EQ(files(), (Lines{"A.frm", "B.frm", "Orders.vbp"}));
}

TEST_F(ObjectBatch, OneFormAndOneModule) {
  open({form("Main Form")}, {module("Tools")});
  convert({"Main Form", "Tools"});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 1 Access Form and 1 Module to Visual Basic. " +
                tail("Main_Form.vbp"));
  EXPECT_EQ(files(), (Lines{"Main_Form.frm", "Main_Form.vbp", "Tools.bas"}));
}

TEST_F(ObjectBatch, OneFormAndSeveralModules) {
  open({form("A")}, {module("M"), module("N")});
  convert({"A", "M", "N"});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 1 Access Form and 2 Modules to Visual Basic. " + tail("A.vbp"));
}

TEST_F(ObjectBatch, SeveralFormsAndOneModule) {
  open({form("A"), form("B")}, {module("M")});
  ConvertObjects(main, true);
  EXPECT_EQ(
      session.onlyBox().text,
      "Successfully converted 2 Access Forms and 1 Module to Visual Basic. " + tail("Orders.vbp"));
  EXPECT_EQ(files(), (Lines{"A.frm", "B.frm", "M.bas", "Orders.vbp"}));
  const Lines project = session.lines("Orders.vbp");
  EXPECT_TRUE(contains(project, "Form=A.frm"));
  EXPECT_TRUE(contains(project, "Form=B.frm"));
  EXPECT_TRUE(contains(project, "Module=M; M.bas"));
  EXPECT_EQ(main.lastBatch.selected, 3);
  EXPECT_EQ(main.lastBatch.converted, 3);
}

TEST_F(ObjectBatch, TheProjectOfALoneFormIsWrittenThoughNoGeneratorAskedForOne) {
  open({form("A")}, {});
  state.gblnProjectNeeded = false;
  convert({"A"});
  EXPECT_TRUE(contains(files(), "A.vbp"));
}

TEST_F(ObjectBatch, NothingConverted) {
  open({refused(form("A"))}, {});
  convert({"A"});
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{64, "You don't have permission to open Form A.", std::string(kTitle)}));
  EXPECT_EQ(session.user.boxes[1],
            (Box{64, "Unable to convert Access Forms or Modules to Visual Basic.\r\n\r\n",
                 std::string(kTitle)}));
  EXPECT_EQ(files(), Lines{});
  EXPECT_EQ(main.lastBatch.converted, 0);
}

TEST_F(ObjectBatch, TheNameInTheSentenceIsTheLastSelectedOne) {
  open({form("A"), refused(form("B"))}, {});
  ConvertObjects(main, true);
  EXPECT_EQ(summary(),
            "Successfully converted Access Form: B to Visual Basic Form: A.frm." + tail("A.vbp"));
}

// Forms with too many controls.

TEST_F(ObjectBatch, OneFormWithTooManyControls) {
  open({bigForm("Big")}, {});
  convert({"Big"});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Form: Big to Visual Basic Form: Big.frm.\r\n\r\nNOTE: "
            "There are 255 controls in the current Form. Too many controls on a Form may cause "
            "Visual Basic to crash. Refer to the online Help for more information." +
                tail("Big.vbp"));
}

constexpr std::string_view kLimit =
    "This exceeds the Visual Basic limit of 254 control names for a Form. Too many controls on a "
    "Form may cause Visual Basic to crash. Refer to the online Help for more information.";

TEST_F(ObjectBatch, OneOfSeveralFormsWithTooManyControls) {
  open({bigForm("Big"), form("Small")}, {});
  ConvertObjects(main, true);
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 2 Access Forms to Visual Basic Forms. \r\n\r\nNOTE: The "
            "following Form contains too many controls...\r\n\r\nForm Big has 255 "
            "controls.\r\n\r\n" +
                std::string(kLimit) + tail("Orders.vbp"));
}

TEST_F(ObjectBatch, SeveralFormsWithTooManyControlsAndAModule) {
  open({bigForm("Big"), bigForm("Bigger")}, {module("M")});
  ConvertObjects(main, true);
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 2 Access Forms and 1 Module to Visual Basic. \r\n\r\nNOTE: The "
            "following 2 Forms contain too many controls...\r\n\r\nForm Big has 255 "
            "controls.\r\nForm Bigger has 255 controls.\r\n\r\n" +
                std::string(kLimit) + tail("Orders.vbp"));
}

TEST_F(ObjectBatch, NotesOfAnEarlierBatchAreGone) {
  open({bigForm("Big"), form("A"), form("B")}, {});
  convert({"Big"});
  session.clearBoxes();
  convert({"A", "B"});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 2 Access Forms to Visual Basic Forms. " + tail("Orders.vbp"));
}

// Forms and modules of one name.

TEST_F(ObjectBatch, AFormAndAModuleOfOneNameNextToEachOtherCountAsOneObject) {
  open({form("A"), form("Main")}, {module("Main"), module("Tools")});
  convertAt({1, 2});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Form: Main to Visual Basic Form: Main.frm." +
                tail("Main.vbp", kDuplicate));
  EXPECT_EQ(files(), (Lines{"Main.frm", "Main.vbp"}));
}

TEST_F(ObjectBatch, NextToEachOtherIsAmongTheSelectedOnes) {
  open({form("Main"), form("Other")}, {module("Main")});
  convertAt({0, 2});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Form: Main to Visual Basic Form: Main.frm." +
                tail("Main.vbp", kDuplicate));
}

TEST_F(ObjectBatch, ApartTheModuleIsTakenForTheFormOnceMore) {
  open({form("A"), form("B")}, {module("A")});
  ConvertObjects(main, true);
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 3 Access Forms to Visual Basic Forms. " + tail("Orders.vbp"));
  EXPECT_EQ(files(), (Lines{"A.frm", "B.frm", "Orders.vbp"}));
  const Lines project = session.lines("Orders.vbp");
  EXPECT_EQ(std::count(project.begin(), project.end(), "Form=A.frm"), 2);
}

TEST_F(ObjectBatch, AModuleAloneOfAFormsNameIsTakenForTheForm) {
  open({form("Main")}, {module("Main")});
  convertAt({1});
  EXPECT_EQ(files(), (Lines{"Main.frm", "Main.vbp"}));
}

TEST_F(ObjectBatch, NamesOfAnotherCaseAreNoDuplicatesAndNoForms) {
  open({form("Main")}, {module("MAIN")});
  ConvertObjects(main, true);
  EXPECT_EQ(
      session.onlyBox().text,
      "Successfully converted 1 Access Form and 1 Module to Visual Basic. " + tail("Main.vbp"));
  EXPECT_EQ(files(), (Lines{"MAIN.bas", "Main.frm", "Main.vbp"}));
}

TEST_F(ObjectBatch, TheDuplicateNoteStandsBehindAFailureToo) {
  open({refused(form("Main"))}, {module("Main")});
  ConvertObjects(main, true);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(summary(), "Unable to convert Access Forms or Modules to Visual Basic.\r\n\r\n" +
                           std::string(kDuplicate));
  EXPECT_EQ(files(), Lines{});
}

TEST_F(ObjectBatch, TheDuplicateFlagIsThatOfTheBatch) {
  open({form("Main")}, {module("Main")});
  ConvertObjects(main, true);
  session.clearBoxes();
  convertAt({0});
  EXPECT_EQ(session.onlyBox().text.find("Duplicate"), std::string::npos);
}

TEST_F(ObjectBatch, TheFirstSelectedItemIsNoDuplicateOfTheBatchBefore) {
  open({form("Main")}, {});
  convert({"Main"});
  session.clearBoxes();
  convert({"Main"});
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Form: Main to Visual Basic Form: Main.frm." +
                tail("Main.vbp"));
}

// What a form is.

TEST_F(ObjectBatch, TheFormNamesAreRebuiltFromTheListOfForms) {
  open({form("A"), form("B")}, {module("M")});
  state.mstrFormNames.reset();
  for (const char* name : {"M", "A"}) state.mstrFormNames.append(name);
  ConvertObjects(main, true);
  EXPECT_EQ(entriesOf(state.mstrFormNames), (Lines{"A", "B"}));
  EXPECT_EQ(files(), (Lines{"A.frm", "B.frm", "M.bas", "Orders.vbp"}));
}

TEST_F(ObjectBatch, WhatIsNotInTheListOfFormsIsTakenForAModule) {
  open({form("A"), form("B")}, {module("M")});
  std::vector<ListItem>& forms = main.window.list(ObjectList::kForms);
  forms.erase(forms.begin() + 1);
  convert({"B"});
  // There is no module of that name.
  ASSERT_GE(session.user.boxes.size(), 2u);
  EXPECT_TRUE(session.user.boxes[0].text.starts_with("ConvertObjects_Click() - Error #2516\r\n"));
  EXPECT_EQ(summary(), "Unable to convert Access Forms or Modules to Visual Basic.\r\n\r\n");
}

// Forms.

TEST_F(ObjectBatch, EveryFormIsOpenedHiddenAndSentF5) {
  open({form("A")}, {});
  WatchedAccess watch(main);
  convert({"A"});
  ASSERT_GE(watch.log.size(), 2u);
  EXPECT_EQ(watch.log[0], R"(DoCmd.OpenForm("A", 1, , , -1, 1))");
  EXPECT_EQ(watch.log[1], R"(SendKeys("{F5}", False))");
  EXPECT_EQ(watch.logged("OpenForm").size(), 1u);
}

TEST_F(ObjectBatch, AMultiPageFormIsOpenedAnewAndConvertedAsItStands) {
  open({form("Paged", {control("txtA", 109, at(0, 0)), control("brk", 118, at(0, 500)),
                       control("txtB", 109, at(0, 700))})},
       {});
  const std::string before = fileContent(session.folder() + "/orders.access.json");
  WatchedAccess watch(main);
  convert({"Paged"});
  ASSERT_GE(watch.log.size(), 4u);
  EXPECT_EQ(Lines(watch.log.begin(), watch.log.begin() + 4),
            (Lines{R"(DoCmd.OpenForm("Paged", 1, , , -1, 1))", R"(DoCmd.Close(2, "Paged", 0))",
                   R"(DoCmd.OpenForm("Paged", 3, , , -1, 1))", R"(SendKeys("{F5}", False))"}));
  EXPECT_EQ(watch.logged("CreateForm"), Lines{});
  EXPECT_EQ(fileContent(session.folder() + "/orders.access.json"), before);
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Form: Paged to Visual Basic Form: Paged.frm." +
                tail("Paged.vbp"));
  const Lines lines = session.lines("Paged.frm");
  EXPECT_TRUE(contains(lines, "   Begin VB.TextBox txtA"));
  EXPECT_TRUE(contains(lines, "   Begin VB.TextBox txtB"));
}

TEST_F(ObjectBatch, AContinuousFormIsTreatedLikeAnyOther) {
  Json continuous = bound(form("List", {control("txt", 109, at(0, 0))}), "Orders");
  continuous["properties"]["DefaultView"] = 1;
  open({continuous}, {});
  main.window.optContinuous = 1;
  convert({"List"});
  EXPECT_EQ(files(), (Lines{"List.frm", "List.vbp"}));
  EXPECT_FALSE(state.mblnDataRepeater);
  EXPECT_FALSE(state.mblnUserControl);
  EXPECT_FALSE(state.mblnAdoDataCtl);
}

TEST_F(ObjectBatch, ARecordSourceOfBlanksIsOneHere) {
  open({bound(form("A"), "  "), form("B")}, {});
  ConvertObjects(main, true);
  EXPECT_TRUE(contains(session.lines("A.frm"), "   Begin VB.Data Data1"));
  EXPECT_FALSE(contains(session.lines("B.frm"), "   Begin VB.Data Data1"));
}

TEST_F(ObjectBatch, TheFlagsOfTheFormBeforeAreCleared) {
  open({form("A")}, {});
  state.mblnUserControl = state.mblnDataRepeater = true;
  state.blnHasPictures = state.blnFillCombos = state.blnFillLists = true;
  convert({"A"});
  EXPECT_FALSE(state.mblnUserControl);
  EXPECT_FALSE(state.mblnDataRepeater);
  EXPECT_FALSE(state.blnHasPictures);
  EXPECT_FALSE(state.blnFillCombos);
  EXPECT_FALSE(state.blnFillLists);
  EXPECT_EQ(files(), (Lines{"A.frm", "A.vbp"}));
}

TEST_F(ObjectBatch, FlagsOfOneFormDoNotReachTheNext) {
  const Json box =
      control("cbo", 111, {{"Section", 0}, {"RowSourceType", "Value List"}, {"RowSource", "a;b"}});
  open({form("A", {box}), form("B")}, {});
  ConvertObjects(main, true);
  EXPECT_TRUE(contains(session.lines("A.frm"), "   With cbo"));
  EXPECT_FALSE(contains(session.lines("B.frm"), "   With cbo"));
}

TEST_F(ObjectBatch, ListsOfAnEarlierBatchAreEmptied) {
  open({form("A"), form("B")}, {module("M")});
  state.mstrVbForms.append("Earlier.frm");
  state.mstrVbModules.append("Earlier.bas");
  state.mstrVbClasses.append("Earlier.cls");
  state.mstrBigForms.append("Earlier has 300 controls.");
  ConvertObjects(main, true);
  for (const std::string& line : session.lines("Orders.vbp"))
    EXPECT_EQ(line.find("Earlier"), std::string::npos) << line;
  EXPECT_EQ(
      session.onlyBox().text,
      "Successfully converted 2 Access Forms and 1 Module to Visual Basic. " + tail("Orders.vbp"));
}

// Modules.

TEST_F(ObjectBatch, AModuleWithoutCode) {
  open({form("A")}, {module("Empty", ""), module("Tools")});
  convert({"A", "Empty", "Tools"});
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{64, "Module Empty does not have any code.", std::string(kTitle)}));
  EXPECT_EQ(summary(),
            "Successfully converted 1 Access Form and 1 Module to Visual Basic. " + tail("A.vbp"));
  EXPECT_EQ(files(), (Lines{"A.frm", "A.vbp", "Tools.bas"}));
}

TEST_F(ObjectBatch, OnlyAModuleWithoutCode) {
  open({}, {module("Empty", "")});
  convert({"Empty"});
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text, "Module Empty does not have any code.");
  EXPECT_EQ(summary(), "Unable to convert Access Forms or Modules to Visual Basic.\r\n\r\n");
  EXPECT_FALSE(state.mblnModuleConverted);
  EXPECT_EQ(files(), Lines{});
}

TEST_F(ObjectBatch, TheFocusComesBackFromTheModuleWindow) {
  open({}, {module("Tools")});
  main.window.focus = "txtCurDir";
  WatchedAccess watch(main);
  convert({"Tools"});
  EXPECT_EQ(main.window.focus, "frmTarrowin");
  ASSERT_FALSE(watch.log.empty());
  EXPECT_EQ(watch.log[0], "DoCmd.OpenModule(\"Tools\")");
}

TEST_F(ObjectBatch, AModuleThatAMacroBecame) {
  open({}, {module("Converted Macro- Open Orders"), module("Tools")});
  ConvertObjects(main, true);
  EXPECT_EQ(files(), (Lines{"Macro_Open_Orders.bas", "Orders.vbp", "Tools.bas"}));
}

}  // namespace
}  // namespace tarrowin::test
