// The data control, the binding of controls to it, and the texts of the first record.
#include "preview/preview_session.h"

namespace tarrowin::test {
namespace {

const Json kTables = Json::parse(R"([
  {"name": "Orders",
   "fields": [{"name": "ID", "type": 4}, {"name": "Ship Name", "type": 10},
              {"name": "Note", "type": 12}, {"name": "Shipped", "type": 8},
              {"name": "Picture", "type": 11}],
   "rows": [[17, "Alba", null, {"date": "2026-11-21T00:00:00"}, {"bytes": "AAEC"}],
            [18, "Bora", "second", null, null]]},
  {"name": "Empty", "fields": [{"name": "ID", "type": 4}], "rows": []}])");

Json bound(std::string_view name, int type, const Json& controlSource) {
  return control(name, type, {{"ControlSource", controlSource}});
}

class PreviewData : public testing::Test {
 protected:
  const PreviewSurface& show(const Json& recordSource, const std::vector<Json>& controls = {}) {
    return session.previewOf(formOf(controls, {{"RecordSource", recordSource}}), kTables);
  }
  std::string textOf(const Json& recordSource, const Json& field, int type = 109) {
    return valueOf(named(show(recordSource, {bound("ctl", type, field)}), "ctl"), "Text");
  }

  PreviewSession session;
};

TEST_F(PreviewData, FormWithoutRecordSourceHasNoData1AndBoundControlsShowNothing) {
  const PreviewSurface& surface = show("", {bound("txtID", 109, "ID")});
  EXPECT_EQ(namesOf(surface), Lines{"txtID"});
  EXPECT_EQ(linesOf(named(surface, "txtID")), Lines{});
}

TEST_F(PreviewData, UnrecordedOrNullRecordSourceIsNone) {
  EXPECT_EQ(namesOf(show(nullptr)), Lines{});
  Json form = formOf({});
  form["properties"].erase("RecordSource");
  EXPECT_EQ(namesOf(session.previewOf(form)), Lines{});
}

TEST_F(PreviewData, Data1HasItsPropertiesInTheirOrder) {
  const PreviewSurface& surface = session.previewOf(
      formOf({}, {{"RecordSource", "Orders"}}, {{0, 3000}, {1, 500}, {2, 400}}), kTables);
  const PreviewControl& data = named(surface, "Data1");
  EXPECT_EQ(data.className, "VB.Data");
  EXPECT_EQ(linesOf(data),
            (Lines{"Connect \"Access\"", "DatabaseName \"C:\\Data\\Orders.mdb\"", "Enabled True",
                   "Exclusive False", "Height 276", "Top 3624", "Width 2880", "RecordsetType 0",
                   "RecordSource \"Orders\"", "Visible False"}));
}

TEST_F(PreviewData, TableNameOpensAsTableAndSelectInAnyCaseAsDynaset) {
  for (const char* table : {"Orders", "Selections", "SELEC", " SELECT * FROM Orders"})
    EXPECT_EQ(valueOf(named(show(table), "Data1"), "RecordsetType"),
              std::string_view(table) == "Selections" ? "1" : "0")
        << table;
  for (const char* sql : {"SELECT * FROM Orders", "select * from Orders", "SeLeCt ID FROM Orders"})
    EXPECT_EQ(valueOf(named(show(sql), "Data1"), "RecordsetType"), "1") << sql;
}

TEST_F(PreviewData, BoundControlRefersToData1AndShowsTheFirstRecord) {
  EXPECT_EQ(linesOf(named(show("Orders", {bound("txtID", 109, "ID")}), "txtID")),
            (Lines{"DataSource \"Data1\"", "DataField \"ID\"", "Text \"17\""}));
  EXPECT_EQ(linesOf(named(show("Orders", {bound("cboShip", 111, "Ship Name")}), "cboShip")),
            (Lines{"DataSource \"Data1\"", "DataField \"Ship Name\"", "Text \"Alba\""}));
}

TEST_F(PreviewData, ControlsWithoutTextAreBoundAlone) {
  for (const int type : {103, 106, 108, 110, 114})
    EXPECT_EQ(linesOf(named(show("Orders", {bound("ctl", type, "ID")}), "ctl")),
              (Lines{"DataSource \"Data1\"", "DataField \"ID\""}))
        << type;
}

TEST_F(PreviewData, ControlsThatCannotBeBoundAreNot) {
  for (const int type : {101, 104, 105, 107, 122})
    EXPECT_EQ(linesOf(named(show("Orders", {bound("ctl", type, "ID")}), "ctl")), Lines{}) << type;
}

TEST_F(PreviewData, ControlWithoutControlSourceIsNotBound) {
  EXPECT_EQ(linesOf(named(show("Orders", {bound("ctl", 109, "")}), "ctl")), Lines{});
  EXPECT_EQ(linesOf(named(show("Orders", {bound("ctl", 109, nullptr)}), "ctl")), Lines{});
  EXPECT_EQ(linesOf(named(show("Orders", {control("ctl", 109)}), "ctl")), Lines{});
}

TEST_F(PreviewData, FieldThatIsNoTextLeavesNone) {
  EXPECT_EQ(textOf("Orders", "Picture"), "(unwritten)");
  EXPECT_EQ(textOf("Orders", "Note"), "");  // Null
  EXPECT_EQ(textOf("Orders", "Shipped"), "11/21/2026");
}

TEST_F(PreviewData, UnknownFieldOrExpressionIsBoundWithoutText) {
  EXPECT_EQ(linesOf(named(show("Orders", {bound("ctl", 109, "=[ID]*2")}), "ctl")),
            (Lines{"DataSource \"Data1\"", "DataField \"=[ID]*2\""}));
  EXPECT_EQ(textOf("Orders", "Nothing"), "(unwritten)");
}

TEST_F(PreviewData, SourceWithoutRecordsOrThatCannotBeOpenedLeavesNoText) {
  EXPECT_EQ(textOf("Empty", "ID"), "(unwritten)");
  EXPECT_EQ(textOf("Nowhere", "ID"), "(unwritten)");
  EXPECT_EQ(textOf("SELECT ID FROM Orders WHERE ID = [Which]", "ID"), "(unwritten)");
}

TEST_F(PreviewData, TextOfTheAccessControlComesLast) {
  const Json entry = control("ctl", 109, {{"ControlSource", "ID"}, {"Text", "typed"}});
  EXPECT_EQ(linesOf(named(show("Orders", {entry}), "ctl")),
            (Lines{"DataSource \"Data1\"", "DataField \"ID\"", "Text \"typed\""}));
}

TEST_F(PreviewData, FirstRecordOfAPlainSelectIsThatOfItsTable) {
  EXPECT_EQ(textOf("SELECT [Ship Name] AS Ship, ID FROM Orders;", "Ship"), "Alba");
  EXPECT_EQ(textOf("SELECT Orders.* FROM Orders", "ID"), "17");
}

TEST_F(PreviewData, FirstRecordOfAQueryByItsName) {
  Json database = emptyDatabase();
  database["forms"] = {formOf({bound("ctl", 109, "Ship")}, {{"RecordSource", "Ships"}})};
  database["tables"] = kTables;
  database["queries"] = {query("Ships", "SELECT [Ship Name] AS Ship FROM Orders;\r\n")};
  session.openDatabase(database);
  const PreviewSurface& surface = session.preview();
  EXPECT_EQ(valueOf(named(surface, "ctl"), "Text"), "Alba");
  EXPECT_EQ(valueOf(named(surface, "Data1"), "RecordsetType"), "0");
}

TEST_F(PreviewData, AccessControlNamedData1CannotBeAddedBesideIt) {
  const Box box = session.refusalOf(formOf({control("data1", 109)}, {{"RecordSource", "Orders"}}));
  EXPECT_EQ(box.text,
            "PreviewForm() - Error #727\r\nThere is already a control with the name 'data1'");
}

}  // namespace
}  // namespace tarrowin::test
