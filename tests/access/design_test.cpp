// Forms, reports, sections, controls and group levels, with the numbers that they raise.
#include "access/access_fixture.h"

namespace tarrowin {
namespace {

constexpr std::string_view kForms = R"({
  "snapshot": 1,
  "forms": [
    {"name": "frmMain",
     "properties": {"Caption": "Orders", "RecordSource": "Orders", "Width": 9000, "Secret": 2186,
                    "Filter": {"error": 2186}, "DatasheetFontName": null},
     "sections": [{"number": 0, "properties": {"Name": "Detail", "Height": 3000}},
                  {"number": 2, "properties": {"Name": "Footer", "Visible": {"error": 2196}}}],
     "controls": [
       {"name": "tab", "type": 123, "properties": {"Section": 0, "Left": 120}},
       {"name": "Page1", "type": 124, "parent": "TAB", "properties": {"Section": 0}},
       {"name": "txtA", "type": 109, "parent": "Page1",
        "properties": {"Section": 0, "ControlSource": "OrderID", "Format": {"error": 2455}}},
       {"name": "lblA", "type": 100, "parent": "txtA", "properties": {"Section": 0}},
       {"name": "Page2", "type": 124, "parent": "tab", "properties": {"Section": 0}},
       {"name": "subLines", "type": 112, "properties": {"Section": 0, "SourceObject": "Form.frmLines"}},
       {"name": "subSelf", "type": 112, "properties": {"SourceObject": "frmmain"}},
       {"name": "subGone", "type": 112, "properties": {"SourceObject": "Form.frmNone"}},
       {"name": "subReport", "type": 112, "properties": {"SourceObject": "Report.rptSales"}},
       {"name": "subEmpty", "type": 112, "properties": {}},
       {"name": "cmdFooter", "type": 104,
        "properties": {"Section": 2, "Name": "other", "Parent": {"error": 2467}}}],
     "module": "Option Compare Database\r\nOption Explicit\r\n"},
    {"name": "frmLines", "controls": [{"name": "txtQty", "type": 109, "properties": {}}]},
    {"name": "frmBare", "properties": {"HasModule": true}},
    {"name": "frmLocked", "openError": 2601},
    {"name": "frmBusy", "openError": {"error": 2046, "description": "Not now."}}],
  "reports": [{"name": "rptSales", "properties": {"Caption": "Sales"},
     "sections": [{"number": 0, "properties": {"Name": "Detail"}}],
     "groupLevels": [{"ControlSource": "Country", "GroupHeader": true, "GroupFooter": false}],
     "controls": [{"name": "x", "type": 109, "properties": {"Section": 0}}]},
     {"name": "rptLocked", "openError": 2601}]
})";

class DesignTest : public AccessTest {
 protected:
  DesignTest() { openRecording(kForms); }
  ObjectRef control(const ObjectRef& form, const char* name) {
    return child(form, "Controls", {name});
  }
};

TEST_F(DesignTest, OnlyOpenFormsAreInForms) {
  EXPECT_EQ(errorOf([&] { get(application, "Forms", {"frmMain"}); }), 2450);
  EXPECT_EQ(errorOf([&] { get(application, "Forms", {0}); }), 2456);
  openForm("FRMMAIN");
  EXPECT_EQ(text(child(application, "Forms", {"frmmain"}), "Name"), "frmMain");
  openForm("frmMain");  // opened again: still one
  EXPECT_EQ(number(child(application, "Forms"), "Count"), 1);
  EXPECT_EQ(text(item(child(application, "Forms"), 0), "Name"), "frmMain");
  EXPECT_EQ(errorOf([&] { get(application, "Reports", {"rptSales"}); }), 2451);
  EXPECT_EQ(errorOf([&] { get(application, "Reports", {1}); }), 2457);
}

TEST_F(DesignTest, OpeningRaisesItsOwnNumbers) {
  EXPECT_EQ(errorOf([&] { openForm("frmNone"); }), 2102);
  EXPECT_EQ(errorOf([&] { openForm(""); }), 2494);
  EXPECT_EQ(errorOf([&] { openReport("rptNone"); }), 2103);
  EXPECT_EQ(errorOf([&] { openForm("frmLocked"); }), 2601);
  EXPECT_EQ(errorOf([&] { openReport("rptLocked"); }), 2601);
  EXPECT_EQ(descriptionOf([&] { openForm("frmBusy"); }), "Not now.");
  EXPECT_EQ(errorOf([&] { get(application, "Forms", {"frmLocked"}); }), 2450);
}

TEST_F(DesignTest, PropertiesOfAForm) {
  const ObjectRef form = openForm("frmMain");
  EXPECT_EQ(text(form, "caption"), "Orders");
  EXPECT_EQ(number(form, "WIDTH"), 9000);
  EXPECT_TRUE(get(form, "DatasheetFontName").isNull());
  EXPECT_EQ(number(form, "Secret"), 2186);  // a bare number is a value here
  EXPECT_EQ(errorOf([&] { get(form, "Filter"); }), 2186);
  EXPECT_EQ(errorOf([&] { get(form, "OrderBy"); }), 2465);
  EXPECT_EQ(descriptionOf([&] { get(form, "OrderBy"); }),
            "Microsoft Access can't find the field 'OrderBy' referred to in your expression.");
  EXPECT_EQ(errorOf([&] { call(form, "Requery"); }), 2465);
  EXPECT_EQ(errorOf([&] { get(openReport("rptSales"), "OrderBy"); }), 2465);
}

TEST_F(DesignTest, PropertiesCollection) {
  const ObjectRef form = openForm("frmMain");
  const ObjectRef properties = child(form, "Properties");
  EXPECT_EQ(number(properties, "Count"), 6);
  EXPECT_EQ(text(item(properties, 0), "Name"), "Caption");
  EXPECT_EQ(text(item(properties, "recordsource"), "Value"), "Orders");
  EXPECT_EQ(errorOf([&] { get(item(properties, "Filter"), "Value"); }), 2186);
  EXPECT_EQ(errorOf([&] { item(properties, "None"); }), 2455);
  EXPECT_EQ(errorOf([&] { item(properties, 6); }), 2480);
}

TEST_F(DesignTest, ParentOfAFormOrReportRaises2452) {
  EXPECT_EQ(errorOf([&] { get(openForm("frmMain"), "Parent"); }), 2452);
  EXPECT_EQ(errorOf([&] { get(openReport("rptSales"), "Parent"); }), 2452);
}

TEST_F(DesignTest, Sections) {
  const ObjectRef form = openForm("frmMain");
  EXPECT_EQ(number(child(form, "Section", {0}), "Height"), 3000);
  EXPECT_EQ(text(child(child(form, "Section", {0}), "Parent"), "Name"), "frmMain");
  EXPECT_EQ(errorOf([&] { get(form, "Section", {1}); }), 2462);
  EXPECT_EQ(errorOf([&] { get(form, "Section", {-1}); }), 2462);
  EXPECT_EQ(errorOf([&] { get(form, "Section"); }), 2462);
  EXPECT_EQ(errorOf([&] { get(form, "Section", {"Detail"}); }), 2461);
  const ObjectRef footer = child(form, "Section", {2});
  EXPECT_EQ(errorOf([&] { get(footer, "Visible"); }), 2196);
  EXPECT_EQ(errorOf([&] { get(footer, "BackColor"); }), 438);
  EXPECT_EQ(number(child(footer, "Properties"), "Count"), 2);
}

TEST_F(DesignTest, ControlsOfASection) {
  const ObjectRef form = openForm("frmMain");
  const ObjectRef detail = child(child(form, "Section", {0}), "Controls");
  EXPECT_EQ(number(detail, "Count"), 6);
  EXPECT_EQ(text(item(detail, 5), "Name"), "subLines");
  EXPECT_EQ(errorOf([&] { item(detail, 6); }), 2467);
  EXPECT_EQ(errorOf([&] { get(child(form, "Section", {0}), "Controls", {6}); }), 2467);
  EXPECT_EQ(errorOf([&] { item(detail, "cmdFooter"); }), 2465);
  EXPECT_EQ(text(child(child(form, "Section", {2}), "Controls", {0}), "Name"), "cmdFooter");
}

TEST_F(DesignTest, GroupLevels) {
  const ObjectRef report = openReport("rptSales");
  const ObjectRef level = child(report, "GroupLevel", {0});
  EXPECT_EQ(text(level, "ControlSource"), "Country");
  EXPECT_TRUE(toBoolean(get(level, "groupheader")));
  EXPECT_EQ(errorOf([&] { get(level, "KeepTogether"); }), 438);
  EXPECT_EQ(errorOf([&] { get(report, "GroupLevel", {1}); }), 2464);
  EXPECT_EQ(errorOf([&] { get(report, "GroupLevel", {-1}); }), 2464);
  EXPECT_EQ(errorOf([&] { get(report, "GroupLevel", {"Country"}); }), 2463);
  EXPECT_EQ(number(child(level, "Properties"), "Count"), 3);
}

TEST_F(DesignTest, ControlsByIndexAndName) {
  const ObjectRef form = openForm("frmMain");
  const ObjectRef controls = child(form, "Controls");
  EXPECT_EQ(number(controls, "Count"), 11);
  EXPECT_EQ(number(form, "Count"), 11);
  EXPECT_EQ(text(item(controls, 2), "Name"), "txtA");
  EXPECT_EQ(text(item(controls, "TXTA"), "ControlSource"), "OrderID");
  EXPECT_EQ(errorOf([&] { item(controls, 11); }), 2465);
  EXPECT_EQ(errorOf([&] { item(controls, "none"); }), 2465);
}

TEST_F(DesignTest, DefaultMemberOfAFormIsAControl) {
  const ObjectRef form = openForm("frmMain");
  EXPECT_EQ(text(item(form, "txta"), "Name"), "txtA");
  EXPECT_EQ(text(item(form, 0), "Name"), "tab");
  EXPECT_EQ(errorOf([&] { item(form, "none"); }), 2450);
  EXPECT_EQ(errorOf([&] { item(openReport("rptSales"), "none"); }), 2465);
}

TEST_F(DesignTest, PropertiesOfAControl) {
  const ObjectRef form = openForm("frmMain");
  const ObjectRef box = control(form, "txtA");
  EXPECT_EQ(number(box, "ControlType"), 109);
  EXPECT_EQ(errorOf([&] { get(box, "Format"); }), 2455);
  EXPECT_EQ(errorOf([&] { get(box, "Caption"); }), 438);
  EXPECT_EQ(errorOf([&] { get(box, "NeverSeenAnywhere"); }), 438);
  EXPECT_EQ(errorOf([&] { get(box, "Value"); }), 438);
  const ObjectRef properties = child(box, "Properties");
  EXPECT_EQ(number(properties, "Count"), 5);
  EXPECT_EQ(text(item(properties, 0), "Name"), "Name");
  EXPECT_EQ(text(item(properties, 0), "Value"), "txtA");
  EXPECT_EQ(number(item(properties, 1), "Value"), 109);
  EXPECT_EQ(text(item(properties, 2), "Name"), "Section");
}

TEST_F(DesignTest, RecordedNameStaysWhereItStandsInProperties) {
  const ObjectRef button = control(openForm("frmMain"), "cmdFooter");
  EXPECT_EQ(text(button, "Name"), "cmdFooter");
  const ObjectRef properties = child(button, "Properties");
  EXPECT_EQ(text(item(properties, 0), "Name"), "ControlType");
  EXPECT_EQ(text(item(properties, 2), "Name"), "Name");
}

TEST_F(DesignTest, ParentFollowsTheRecordedParent) {
  const ObjectRef form = openForm("frmMain");
  EXPECT_EQ(text(child(control(form, "lblA"), "Parent"), "Name"), "txtA");
  EXPECT_EQ(text(child(control(form, "txtA"), "Parent"), "Name"), "Page1");
  EXPECT_EQ(text(child(control(form, "Page1"), "Parent"), "Name"), "tab");
  EXPECT_EQ(text(child(control(form, "tab"), "Parent"), "Name"), "frmMain");
  EXPECT_EQ(errorOf([&] { get(child(control(form, "tab"), "Parent"), "ControlType"); }), 2465);
  EXPECT_EQ(errorOf([&] { get(control(form, "cmdFooter"), "Parent"); }), 2467);  // as recorded
}

TEST_F(DesignTest, ControlsOfAControlAreAllItsDescendants) {
  const ObjectRef form = openForm("frmMain");
  const ObjectRef inTab = child(control(form, "tab"), "Controls");
  ASSERT_EQ(number(inTab, "Count"), 4);
  EXPECT_EQ(text(item(inTab, 0), "Name"), "Page1");
  EXPECT_EQ(text(item(inTab, 2), "Name"), "lblA");
  EXPECT_EQ(text(item(inTab, 3), "Name"), "Page2");
  EXPECT_EQ(number(child(control(form, "Page1"), "Controls"), "Count"), 2);
  EXPECT_EQ(number(child(control(form, "Page2"), "Controls"), "Count"), 0);
  EXPECT_EQ(errorOf([&] { item(inTab, "subLines"); }), 2465);
}

TEST_F(DesignTest, PagesOfATabControl) {
  const ObjectRef form = openForm("frmMain");
  const ObjectRef pages = child(control(form, "tab"), "Pages");
  ASSERT_EQ(number(pages, "Count"), 2);
  EXPECT_EQ(text(item(pages, 1), "Name"), "Page2");
  EXPECT_EQ(text(child(control(form, "tab"), "Pages", {0}), "Name"), "Page1");
  EXPECT_EQ(errorOf([&] { get(control(form, "txtA"), "Pages"); }), 438);
}

TEST_F(DesignTest, FormOfASubformControl) {
  const ObjectRef form = openForm("frmMain");
  const ObjectRef lines = child(control(form, "subLines"), "Form");
  EXPECT_EQ(text(lines, "Name"), "frmLines");
  EXPECT_EQ(text(child(lines, "Controls", {0}), "Name"), "txtQty");
  EXPECT_EQ(errorOf([&] { get(lines, "Parent"); }), 2452);
  EXPECT_EQ(errorOf([&] { get(application, "Forms", {"frmLines"}); }), 2450);
  EXPECT_EQ(errorOf([&] { get(control(form, "subGone"), "Form"); }), 2467);
  EXPECT_EQ(errorOf([&] { get(control(form, "subEmpty"), "Form"); }), 2467);
  EXPECT_EQ(errorOf([&] { get(control(form, "subReport"), "Form"); }), 2467);
  EXPECT_EQ(text(child(control(form, "subReport"), "Report"), "Name"), "rptSales");
  EXPECT_EQ(errorOf([&] { get(control(form, "subLines"), "Report"); }), 2467);
  EXPECT_EQ(errorOf([&] { get(control(form, "txtA"), "Form"); }), 2455);
  EXPECT_EQ(errorOf([&] { get(control(form, "txtA"), "Report"); }), 2455);
}

TEST_F(DesignTest, FormThatHoldsItselfCanBeFollowedAtWill) {
  ObjectRef form = openForm("frmMain");
  for (int depth = 0; depth < 50; ++depth) form = child(control(form, "subSelf"), "Form");
  EXPECT_EQ(text(form, "Name"), "frmMain");
}

TEST_F(DesignTest, HasModule) {
  EXPECT_TRUE(toBoolean(get(openForm("frmMain"), "HasModule")));
  EXPECT_FALSE(toBoolean(get(openForm("frmLines"), "HasModule")));
  EXPECT_TRUE(toBoolean(get(openForm("frmBare"), "HasModule")));  // recorded
  const ObjectRef module = child(openForm("frmMain"), "Module");
  EXPECT_EQ(text(module, "Name"), "Form_frmMain");
  EXPECT_EQ(number(module, "CountOfLines"), 2);
  EXPECT_EQ(errorOf([&] { get(openForm("frmLines"), "Module"); }), 2465);
}

TEST_F(DesignTest, ClosedFormRaises2467) {
  const ObjectRef form = openForm("frmMain");
  const ObjectRef box = control(form, "txtA");
  const ObjectRef section = child(form, "Section", {0});
  const ObjectRef controls = child(form, "Controls");
  const ObjectRef lines = child(control(form, "subLines"), "Form");
  call(doCmd, "Close", {2, "frmmain", 2});
  for (const ObjectRef& object : {form, box, section, lines})
    EXPECT_EQ(errorOf([&] { get(object, "Name"); }), 2467);
  EXPECT_EQ(errorOf([&] { get(controls, "Count"); }), 2467);
  EXPECT_EQ(errorOf([&] { get(application, "Forms", {"frmMain"}); }), 2450);
}

TEST_F(DesignTest, ChangesAreGoneWithTheClosing) {
  const ObjectRef form = openForm("frmMain");
  form->put("Caption", "Changed");
  const ObjectRef box = control(form, "txtA");
  box->put("ControlSource", "Total");
  child(form, "Section", {0})->put("Height", 5);
  EXPECT_EQ(text(form, "Caption"), "Changed");
  EXPECT_EQ(text(control(form, "txtA"), "ControlSource"), "Total");
  EXPECT_EQ(number(child(form, "Section", {0}), "Height"), 5);
  EXPECT_EQ(errorOf([&] { box->put("Caption", "x"); }), 438);
  EXPECT_EQ(errorOf([&] { form->put("OrderBy", "x"); }), 2465);
  call(doCmd, "Close", {2, "frmMain", 2});
  EXPECT_EQ(text(openForm("frmMain"), "Caption"), "Orders");
}

TEST_F(DesignTest, MovingAControlMovesItToTheOtherSection) {
  const ObjectRef form = openForm("frmMain");
  EXPECT_EQ(number(child(child(form, "Section", {2}), "Controls"), "Count"), 1);
  control(form, "txtA")->put("Section", 2);
  EXPECT_EQ(number(child(child(form, "Section", {2}), "Controls"), "Count"), 2);
}

}  // namespace
}  // namespace tarrowin
