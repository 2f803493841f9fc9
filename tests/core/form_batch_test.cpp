// ConvertForms: what follows what, its projects and its closing box.
#include <gtest/gtest.h>

#include "forms/form_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kTitle = "Access to Visual Basic Tarrowin";

std::string elapsed() { return "Conversion completed in: 00:00 seconds."; }

TEST(FormBatch, OneFormThatNeedsNoProject) {
  FormSession session;
  session.openForms({form("Main Form")});
  session.convert({"Main Form"});
  const std::string directory = session.main.state.mstrOutputDir;
  EXPECT_EQ(session.onlyBox(),
            (Box{64,
                 "Successfully converted Access Form: Main Form to Visual Basic Form: "
                 "Main_Form.frm.\r\n\r\nConverted Form is saved in directory: " +
                     directory + "\r\n\r\n" + elapsed(),
                 std::string(kTitle)}));
  EXPECT_EQ(fileNames(session.out()), std::vector<std::string>{"Main_Form.frm"});
}

TEST(FormBatch, AFormYieldsAProjectOnlyIfAGeneratorAskedForOne) {
  FormSession session;
  session.openForms({form("Main Form", {control("tab", 123, at(0, 0))})});
  session.convert({"Main Form"});
  const std::string directory = session.main.state.mstrOutputDir;
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Form: Main Form to Visual Basic Form: "
            "Main_Form.frm.\r\n\r\nA Visual Basic Project file: Main_Form.vbp is saved in "
            "directory: " +
                directory + "\r\n\r\n" + elapsed());
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"Main_Form.frm", "Main_Form.vbp"}));
}

TEST(FormBatch, SeveralFormsAlwaysGetAProject) {
  FormSession session;
  session.openForms({form("A"), form("B"), form("C")});
  session.convert({"A", "C"});
  const std::string directory = session.main.state.mstrOutputDir;
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 2 Access Forms to Visual Basic Forms. \r\n\r\nA Visual Basic "
            "Project file: Orders.vbp is saved in directory: " +
                directory + "\r\n\r\n" + elapsed());
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"A.frm", "C.frm", "Orders.vbp"}));
}

TEST(FormBatch, NoPermissionForTheOnlyForm) {
  FormSession session;
  Json refused = form("A");
  refused["openError"] = 2601;
  session.openForms({refused});
  session.convert({"A"});
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{64, "You don't have permission to open Form A.", std::string(kTitle)}));
  EXPECT_EQ(session.user.boxes[1],
            (Box{64, "Unable to convert Access Forms to Visual Basic Forms.\r\n\r\n",
                 std::string(kTitle)}));
  EXPECT_TRUE(fileNames(session.out()).empty());
}

TEST(FormBatch, AFormThatFailsToOpenOtherwiseIsWrittenFromWhatIsThere) {
  FormSession session;
  Json broken = form("A");
  broken["openError"] = {{"error", 2501}, {"description", "Cancelled."}};
  session.openForms({broken});
  session.convert({"A"});
  ASSERT_GE(session.user.boxes.size(), 3u);
  EXPECT_EQ(session.user.boxes[0].text, "ConvertForms_Click() - Error #2501\r\nCancelled.");
  EXPECT_TRUE(session.user.boxes[1].text.starts_with("ConvertForms_Click() - Error #2450\r\n"));
  EXPECT_EQ(fileNames(session.out()), std::vector<std::string>{"A.frm"});
}

Json bigForm(std::string_view name) {
  std::vector<Json> controls;
  for (int i = 0; i < 256; ++i) controls.push_back(control("l" + std::to_string(i), 100, at(0, 0)));
  return form(name, controls);
}

constexpr std::string_view kLimit =
    "This exceeds the Visual Basic limit of 254 control names for a Form. Too many controls on a "
    "Form may cause Visual Basic to crash. Refer to the online Help for more information.\r\n\r\n";

TEST(FormBatch, OneOfSeveralFormsWithTooManyControls) {
  FormSession session;
  session.openForms({bigForm("Big"), form("Small")});
  session.convert({"Big", "Small"});
  const std::string text = session.onlyBox().text;
  EXPECT_NE(text.find("NOTE: The following Form contains too many controls...\r\n\r\nForm Big has "
                      "255 controls.\r\n\r\n" +
                      std::string(kLimit) + elapsed()),
            std::string::npos)
      << text;
}

TEST(FormBatch, SeveralFormsWithTooManyControls) {
  FormSession session;
  session.openForms({bigForm("Big"), bigForm("Bigger")});
  session.convert({"Big", "Bigger"});
  const std::string text = session.onlyBox().text;
  EXPECT_NE(text.find("NOTE: The following 2 Forms contain too many controls...\r\n\r\nForm Big "
                      "has 255 controls.\r\nForm Bigger has 255 controls.\r\n\r\n" +
                      std::string(kLimit) + elapsed()),
            std::string::npos)
      << text;
}

Json bound(Json entry, const std::string& source) {
  entry["properties"]["RecordSource"] = source;
  return entry;
}

bool contains(const std::vector<std::string>& lines, std::string_view line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

TEST(FormBatch, DataSourceLinesAndLibrariesCarryOverToTheNextBatch) {
  FormSession session;
  const Json text = control("txt", 109, {{"Section", 0}, {"ControlSource", "City"}});
  session.openForms({form("Unbound", {text}), bound(form("Bound", {text}), "Orders"),
                     form("Tabbed", {control("tab", 123, at(0, 0))})});
  session.convert({"Unbound"});
  EXPECT_FALSE(contains(session.lines("Unbound.frm"), "      DataSource    = \"Data1\""));
  session.convert({"Bound"});
  session.convert({"Tabbed"});
  session.convert({"Unbound"});
  EXPECT_TRUE(contains(session.lines("Unbound.frm"), "      DataSource    = \"Data1\""));
  EXPECT_FALSE(session.main.state.gblnProjectNeeded);
  session.convert({"Unbound", "Bound"});
  EXPECT_TRUE(contains(session.lines("Orders.vbp"),
                       "Object={BDC217C8-ED16-11CD-956C-0000C04E4C0A}#1.1#0; TABCTL32.OCX"));
}

TEST(FormBatch, CarriedFlagsOutliveTheDatabase) {
  FormSession session;
  const Json text = control("txt", 109, {{"Section", 0}, {"ControlSource", "City"}});
  session.openForms({bound(form("Bound", {text}), "Orders")});
  session.convert({"Bound"});
  Json second = emptyDatabase();
  second["forms"] = Json::array({form("Unbound", {text})});
  session.open(second, "second.access.json");
  session.main.window.txtCurDir = session.out().string();
  session.convert({"Unbound"});
  EXPECT_TRUE(contains(session.lines("Unbound.frm"), "      DataSource    = \"Data1\""));
}

TEST(FormBatch, EachFormStartsAtData1) {
  FormSession session;
  session.openForms({bound(form("A"), "Orders"), bound(form("B"), "Orders")});
  session.convert({"A", "B"});
  EXPECT_TRUE(contains(session.lines("A.frm"), "   Begin VB.Data Data1"));
  EXPECT_TRUE(contains(session.lines("B.frm"), "   Begin VB.Data Data1"));
}

TEST(FormBatch, ItemsOfOneFormAreNotThoseOfTheNext) {
  FormSession session;
  const Json box =
      control("cbo", 111, {{"Section", 0}, {"RowSourceType", "Value List"}, {"RowSource", "a;b"}});
  session.openForms({form("A", {box}), form("B")});
  session.convert({"A", "B"});
  EXPECT_TRUE(contains(session.lines("A.frm"), "   With cbo"));
  EXPECT_FALSE(contains(session.lines("B.frm"), "   With cbo"));
}

TEST(FormBatch, TheProgressLabelsAreHiddenAfterwards) {
  FormSession session;
  session.openForms({form("A")});
  session.convert({"A"});
  EXPECT_FALSE(session.main.window.lblPercent.visible);
  EXPECT_TRUE(session.main.window.lblPct.visible);
  EXPECT_TRUE(session.main.window.lblCurDb.visible);
  EXPECT_FALSE(session.main.window.ProgressBar1[1].visible);
}

TEST(FormBatch, AMultiPageFormIsNotConverted) {
  FormSession session;
  session.openForms({form("Paged", {control("brk", 118, at(0, 500))}), form("Plain")});
  session.convert({"Paged"});
  EXPECT_TRUE(fileNames(session.out()).empty());
  EXPECT_EQ(session.main.lastBatch.converted, 0);
  session.clearBoxes();
  session.convert({"Paged", "Plain"});
  EXPECT_EQ(session.main.lastBatch.converted, 1);
  EXPECT_EQ(session.main.lastBatch.selected, 2);
}

TEST(FormBatch, AContinuousFormWithTheDataRepeaterOption) {
  FormSession session;
  Json continuous = bound(form("Order List", {control("txt", 109, at(0, 0))}), "Orders");
  continuous["properties"]["DefaultView"] = 1;
  continuous["properties"]["OrderBy"] = "";
  session.openForms({continuous});
  session.main.window.optContinuous = 1;
  session.convert({"Order List"});
  EXPECT_EQ(fileNames(session.out()),
            (std::vector<std::string>{"Order_List.frm", "Order_List.vbg", "Order_List.vbp",
                                      "ctlOrder_List.ctl", "ctlOrder_List.vbp"}));
  EXPECT_TRUE(session.main.state.mblnAdoDataCtl);
  const std::string text = session.onlyBox().text;
  EXPECT_NE(text.find("Order_List.frm.\r\n\r\nThe current Form is a Continuous Form. A Visual "
                      "Basic project Group is automatically created.\r\n\r\nA Visual Basic Project "
                      "file: Order_List.vbp"),
            std::string::npos)
      << text;
}

TEST(FormBatch, AContinuousFormWithTheDataGridOptionIsAPlainForm) {
  FormSession session;
  Json continuous = bound(form("Order List"), "Orders");
  continuous["properties"]["DefaultView"] = 1;
  session.openForms({continuous});
  session.convert({"Order List"});
  EXPECT_EQ(fileNames(session.out()), std::vector<std::string>{"Order_List.frm"});
}

}  // namespace
}  // namespace tarrowin::test
