// The two forms of combo and list boxes, and the items that they leave for the form's code.
#include <gtest/gtest.h>

#include "forms/control_printers.h"
#include "forms/printer_session.h"

namespace tarrowin::test {
namespace {

using Lines = std::vector<std::string>;

class BoxPrinters : public testing::Test, public PrinterSession {
 protected:
  // Opens a form with one box over a database with the table Orders, and prints it up to the tail
  // that all boxes have.
  Lines head(Printer printer, const Json& properties) {
    Json database = emptyDatabase();
    database["tables"].push_back({{"name", "Orders"},
                                  {"fields",
                                   {{{"name", "OrderID"}, {"type", 4}, {"size", 4}},
                                    {{"name", "Customer"}, {"type", 10}, {"size", 50}}}}});
    Json all = properties;
    all["SpecialEffect"] = 0;
    openForm({control("box", 111, all)}, Json::object(), database);
    Lines lines = print(printer, "box");
    const auto tail = std::find(lines.begin(), lines.end(), "      Appearance    = 0");
    EXPECT_NE(tail, lines.end());
    lines.erase(tail, lines.end());
    return lines;
  }
  Lines combo(const Json& properties) { return head(PrintComboBoxProps, properties); }
  Lines list(const Json& properties) { return head(PrintListBoxProps, properties); }
};

const Json kOrders = {{"RowSourceType", "Table/Query"},
                      {"RowSource", "Orders"},
                      {"BoundColumn", 1},
                      {"ControlSource", "Order"}};

Json with(Json properties, const std::string& name, const Json& value) {
  properties[name] = value;
  return properties;
}

TEST_F(BoxPrinters, AComboBoxOverATableShowsTheFieldBehindTheOneThatItStores) {
  EXPECT_EQ(combo(kOrders),
            (Lines{"   Begin MSDBCtls.DBCombo My_Control", "      ListField     = \"Customer\"",
                   "      DataField     = \"OrderID\"", "      BoundColumn   = \"OrderID\""}));
  EXPECT_TRUE(main.state.gblnProjectNeeded);
  EXPECT_TRUE(main.state.blnUsesDbList);
  EXPECT_FALSE(main.state.blnFillCombos);
}

TEST_F(BoxPrinters, AListBoxOverATableIsTheSameUnderItsOwnName) {
  EXPECT_EQ(list(with(kOrders, "RowSourceType", "Field List")),
            (Lines{"   Begin MSDBCtls.DBList My_Control", "      ListField     = \"Customer\"",
                   "      DataField     = \"OrderID\"", "      BoundColumn   = \"OrderID\""}));
  EXPECT_TRUE(main.state.gblnProjectNeeded);
  EXPECT_TRUE(main.state.blnUsesDbList);
  EXPECT_FALSE(main.state.blnFillLists);
}

TEST_F(BoxPrinters, DataControlsOfBothKindsAreNamedByAComboBoxAndOneByAListBox) {
  main.state.blnDataCtl = true;
  main.state.mblnAdoDataCtl = true;
  main.state.intAdoCtlNum = 4;
  const Json properties = with(kOrders, "BoundColumn", 0);
  EXPECT_EQ(combo(properties),
            (Lines{"   Begin MSDBCtls.DBCombo My_Control", "      DataSource    = \"Data1\"",
                   "      RowSource     = \"Data1\"", "      DataSource    = \"Adodc4\""}));
  EXPECT_EQ(list(properties),
            (Lines{"   Begin MSDBCtls.DBList My_Control", "      DataSource    = \"Data1\"",
                   "      RowSource     = \"Data1\""}));
}

TEST_F(BoxPrinters, AnAdoDataControlAloneIsNamedByAComboBoxOverATable) {
  main.state.mblnAdoDataCtl = true;
  main.state.intAdoCtlNum = 4;
  const Json properties = with(kOrders, "BoundColumn", nullptr);
  EXPECT_EQ(combo(properties),
            (Lines{"   Begin MSDBCtls.DBCombo My_Control", "      DataSource    = \"Adodc4\""}));
  EXPECT_EQ(list(properties), Lines{"   Begin MSDBCtls.DBList My_Control"});
}

TEST_F(BoxPrinters, ABoxOverAnSqlTextIsBoundToItsOwnField) {
  for (const char* sql : {"SELECT * FROM Orders;", "select 1", "Transform Sum(x)"}) {
    EXPECT_EQ(combo(with(kOrders, "RowSource", sql)),
              (Lines{"   Begin MSDBCtls.DBCombo My_Control", "      BoundColumn   = \"Order\""}))
        << sql;
  }
}

TEST_F(BoxPrinters, ASourceThatIsNoTableHasAnEmptyListFieldAlone) {
  for (const Json& source :
       {Json("Big Orders"), Json(" SELECT 1"), Json(""), Json(nullptr), Json({{"error", 2455}})}) {
    EXPECT_EQ(combo(with(kOrders, "RowSource", source)),
              (Lines{"   Begin MSDBCtls.DBCombo My_Control", "      ListField     = \"\""}))
        << source;
  }
}

TEST_F(BoxPrinters, WithTheLastFieldBoundTheListFieldIsEmpty) {
  EXPECT_EQ(combo(with(kOrders, "BoundColumn", 2)),
            (Lines{"   Begin MSDBCtls.DBCombo My_Control", "      ListField     = \"\"",
                   "      DataField     = \"Customer\"", "      BoundColumn   = \"Customer\""}));
}

TEST_F(BoxPrinters, ABoxOverATableTakesNoPrefix) {
  main.state.mblnDataRepeater = true;
  EXPECT_EQ(combo(kOrders).front(), "   Begin MSDBCtls.DBCombo My_Control");
}

const Json kValues = {
    {"RowSourceType", "Value List"}, {"RowSource", "London;Paris"}, {"ControlSource", "City"}};

TEST_F(BoxPrinters, AValueListIsStoredForTheCodeThatFillsTheBox) {
  main.state.mblnAdoDataCtl = true;
  EXPECT_EQ(combo(kValues),
            (Lines{"   Begin VB.ComboBox My_Control", "      DataField     = \"City\""}));
  EXPECT_TRUE(main.state.blnFillCombos);
  ASSERT_EQ(main.state.astrComboSources.count(), 1);
  EXPECT_EQ(main.state.astrComboSources[1], "My_Control;London;Paris");
  EXPECT_FALSE(main.state.blnFillLists);
  EXPECT_EQ(main.state.astrListSources.count(), 0);
  EXPECT_FALSE(main.state.gblnProjectNeeded);
  EXPECT_FALSE(main.state.blnUsesDbList);
}

TEST_F(BoxPrinters, AListBoxStoresItsItemsInItsOwnList) {
  main.state.blnDataCtl = true;
  EXPECT_EQ(list(kValues),
            (Lines{"   Begin VB.ListBox My_Control", "      DataField     = \"City\"",
                   "      DataSource    = \"Data1\""}));
  EXPECT_TRUE(main.state.blnFillLists);
  ASSERT_EQ(main.state.astrListSources.count(), 1);
  EXPECT_EQ(main.state.astrListSources[1], "My_Control;London;Paris");
  EXPECT_FALSE(main.state.blnFillCombos);
  EXPECT_EQ(main.state.astrComboSources.count(), 0);
}

TEST_F(BoxPrinters, AValueListInAUserControlLeavesNoEntryInTheSources) {
  main.state.mblnUserControl = true;
  combo(kValues);
  list(kValues);
  EXPECT_FALSE(main.state.blnFillCombos);
  EXPECT_FALSE(main.state.blnFillLists);
  EXPECT_EQ(main.state.astrComboSources.count(), 0);
  EXPECT_EQ(main.state.astrListSources.count(), 0);
}

TEST_F(BoxPrinters, InADataRepeaterTheItemsStandUnderThePrefixedName) {
  main.state.mblnDataRepeater = true;
  EXPECT_EQ(combo(kValues).front(), "   Begin VB.ComboBox cboMy_Control");
  EXPECT_EQ(list(kValues).front(), "   Begin VB.ListBox lstMy_Control");
  EXPECT_EQ(main.state.astrComboSources[1], "cboMy_Control;London;Paris");
  EXPECT_EQ(main.state.astrListSources[1], "lstMy_Control;London;Paris");
}

TEST_F(BoxPrinters, ARowSourceTypeThatCannotBeReadOrIsAFunctionIsNoTable) {
  for (const Json& type :
       {Json("FillByCode"), Json(nullptr), Json({{"error", 2455}}), Json("table/query")}) {
    EXPECT_EQ(combo(with(kValues, "RowSourceType", type)).front(),
              "   Begin VB.ComboBox My_Control")
        << type;
  }
}

TEST_F(BoxPrinters, ItemsThatCannotBeReadLeaveTheFlagWithoutAnEntry) {
  combo(with(kValues, "RowSource", {{"error", 2455}}));
  EXPECT_TRUE(main.state.blnFillCombos);
  EXPECT_EQ(main.state.astrComboSources.count(), 0);
}

}  // namespace
}  // namespace tarrowin::test
