// The data controls of bound forms: their rows, their place, their sources.
#include "forms/data_controls.h"

#include <gtest/gtest.h>

#include "forms/data_control_lines.h"
#include "forms/printer_session.h"

namespace tarrowin::test {
namespace {

using Lines = std::vector<std::string>;

class DataControls : public testing::Test, public PrinterSession {
 protected:
  // Opens the form with these properties over a database with a table and two queries.
  void openBound(const Json& properties) {
    Json database = emptyDatabase();
    database["tables"].push_back(
        {{"name", "Orders"}, {"fields", {{{"name", "OrderID"}, {"type", 4}, {"size", 4}}}}});
    database["queries"] = {query("Big Orders", "SELECT * FROM Orders\r\nWHERE Total > 100;"),
                           query("Sorted", "SELECT * FROM Orders ORDER BY OrderID;")};
    Json all = {{"OrderBy", ""}};
    all.update(properties);
    openForm({}, all, database);
    main.state.intClientHeight = 4120;
    main.state.intTabWidth = 3000;
  }
  void openSource(const Json& source) { openBound({{"RecordSource", source}}); }

  Lines mainForm() {
    return output([this] { GetVbDataCtlProps(main); });
  }
  Lines subform() {
    return output([this] {
      main.state.frmSubCurr = main.state.frmCurr;
      GetSubFormDataCtlProps(main);
    });
  }
  Lines ado() {
    return output([this] { CreateAdoDataCtl(main, main.state.frmCurr); });
  }
  // The value of the only line of a key.
  static std::string valueOf(const Lines& lines, std::string_view key) {
    const Lines found = linesWith(lines, key);
    EXPECT_EQ(found.size(), 1u) << key;
    return found.empty() ? "" : found[0].substr(found[0].find("= ") + 2);
  }
  std::string adoSource(const Json& properties) {
    openBound(properties);
    const Lines lines = ado();
    return valueOf(lines, "CommandType") + " " + valueOf(lines, "RecordSource");
  }
};

TEST_F(DataControls, TheDataControlOfTheMainForm) {
  openSource("Orders");
  main.state.mstrDbName = "Orders.mdb";
  EXPECT_EQ(
      mainForm(),
      (Lines{"   Begin VB.Data Data1", "      Caption           = \"Data1\"",
             "      Connect           = \"Access 2000;\"",
             "      DatabaseName      = \"Orders.mdb\"",
             "      DefaultCursorType = 0   ' DefaultCursor",
             "      DefaultType       = 2   ' Use Jet DB engine",
             "      Exclusive         = 0   ' False", "      Height            = 330",
             "      Left              = 0", "      Options           = 0",
             "      ReadOnly          = 0   ' False", "      RecordsetType     = 1   ' Dynaset",
             "      RecordSource      = \"Orders\"", "      Top               = 3790",
             "      Visible           = 0   ' False", "      Width             = 1440", "   End"}));
  EXPECT_TRUE(main.state.blnDataCtl);
  EXPECT_EQ(main.state.intDataCtlNum, 1);
}

TEST_F(DataControls, TheDataControlOfTheMainFormTakesNoIndent) {
  openSource("Orders");
  main.state.strIndent = "   ";
  EXPECT_EQ(mainForm().front(), "   Begin VB.Data Data1");
  EXPECT_EQ(main.state.strIndent, "   ");
}

TEST_F(DataControls, AFileOfAccess97IsConnectedAsAccess) {
  openSource("Orders");
  main.state.mblnAccess97 = true;
  EXPECT_EQ(valueOf(mainForm(), "Connect"), "\"Access\"");
  EXPECT_EQ(valueOf(subform(), "Connect"), "\"Access\"");
}

TEST_F(DataControls, InATabTheDataControlOfTheMainFormIsMovedALittle) {
  openSource("Orders");
  main.state.blnInTab = true;
  const Lines lines = mainForm();
  EXPECT_EQ(valueOf(lines, "Left"), "60");
  EXPECT_EQ(valueOf(lines, "Top"), "3790");
}

TEST_F(DataControls, AnSqlSourceIsOneLineWithoutDoubleQuotes) {
  const std::pair<const char*, const char*> sources[] = {
      {"  SELECT *\r\nFROM Orders WHERE c = \"x\" ", "\"SELECT *  FROM Orders WHERE c = 'x'\""},
      {"TRANSFORM \"a\"", "\"TRANSFORM 'a'\""},
      {" Big Orders ", "\"Big Orders\""}};
  for (const auto& [source, printed] : sources) {
    openSource(source);
    EXPECT_EQ(valueOf(mainForm(), "RecordSource"), printed);
    EXPECT_EQ(valueOf(subform(), "RecordSource"), printed);
  }
}

TEST_F(DataControls, ALowerCaseSelectIsPrintedAsItStandsAndIsANameToAnAdoDataControl) {
  openSource("select \"a\"\r\nfrom Orders");
  for (const Lines& lines : {mainForm(), subform()}) {
    EXPECT_EQ(valueOf(lines, "RecordSource"), "\"select \"a\"");
    EXPECT_EQ(linesWith(lines, "from"), Lines{"from Orders\""});
  }
  EXPECT_EQ(adoSource({{"RecordSource", "select * from Orders"}}), "1 \"\"");
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(DataControls, TheDataControlOfASubformIsIndentedAndClosedByItsName) {
  openSource("Orders");
  main.state.mstrDbName = "Orders.mdb";
  Lines expected = dataControlLines("   ", "Data1", 0, 3790, "Orders");
  expected.push_back("      End   'Data1");
  EXPECT_EQ(subform(), expected);
  EXPECT_TRUE(main.state.blnDataCtl);
  EXPECT_EQ(main.state.strIndent, "   ");
}

TEST_F(DataControls, TheSourceOfASubformIsThatOfItsOwnForm) {
  Json database = emptyDatabase();
  Json sub = form("Sub Form");
  sub["properties"]["RecordSource"] = "Details";
  database["forms"].push_back(sub);
  openForm({}, {{"RecordSource", "Orders"}, {"Width", 1439}}, database);
  main.state.gappAccess.doCmd().OpenForm("Sub Form", access_constants::acDesign);
  main.state.frmSubCurr = main.state.gappAccess.Forms("Sub Form");
  main.state.intDataCtlNum = 1;
  const Lines lines = output([this] { GetSubFormDataCtlProps(main); });
  EXPECT_EQ(valueOf(lines, "RecordSource"), "\"Details\"");
  EXPECT_EQ(valueOf(lines, "Left"), "0");  // the width is the main form's
}

TEST_F(DataControls, DataControlsOfBothKindsLieSideBySide) {
  openSource("Orders");
  main.state.intAdoCtlNum = 2;
  Lines lines = subform();
  EXPECT_EQ(valueOf(lines, "Caption"), "\"Data1\"");
  EXPECT_EQ(valueOf(lines, "Left"), "2880");
  lines = ado();
  EXPECT_EQ(valueOf(lines, "Caption"), "\"Adodc3\"");
  EXPECT_EQ(valueOf(lines, "Left"), "4320");
}

TEST_F(DataControls, TheThirdDataControlOnAFormOf3000TwipsStandsAtTheEdge) {
  openBound({{"RecordSource", "Orders"}, {"Width", 3000}});
  EXPECT_EQ(valueOf(subform(), "Left"), "0");
  EXPECT_EQ(valueOf(subform(), "Left"), "1440");
  EXPECT_EQ(valueOf(subform(), "Left"), "0");
  main.state.intDataCtlNum = 2;
  EXPECT_EQ(valueOf(ado(), "Left"), "0");
}

TEST_F(DataControls, AFormJustWideEnoughHoldsIt) {
  openBound({{"RecordSource", "Orders"}, {"Width", 2880}});
  main.state.intDataCtlNum = 1;
  EXPECT_EQ(valueOf(subform(), "Left"), "1440");
}

TEST_F(DataControls, InATabTheWidthIsTheTabControls) {
  openBound({{"RecordSource", "Orders"}, {"Width", 100}});
  main.state.blnInTab = true;
  main.state.intTabWidth = 2880;
  for (const auto& left : {"0", "1440", "60"}) {
    const Lines lines = subform();
    EXPECT_EQ(valueOf(lines, "Left"), left);
    EXPECT_EQ(valueOf(lines, "Top"), "3820");
  }
  const Lines lines = ado();
  EXPECT_EQ(valueOf(lines, "Left"), "60");
  EXPECT_EQ(valueOf(lines, "Top"), "3820");
}

TEST_F(DataControls, TheAdoDataControlOfATable) {
  openSource("Orders");
  main.state.mstrDbFullName = "C:\\Data\\Orders.mdb";
  EXPECT_EQ(ado(),
            (Lines{"      Begin MSAdodcLib.Adodc Adodc1", "         Caption           = \"Adodc1\"",
                   "         CommandType       = 2",
                   "         Connect           = \"Provider=Microsoft.Jet.OLEDB.4.0;Persist "
                   "Security Info=False;Data Source=C:\\Data\\Orders.mdb\"",
                   "         Height            = 330", "         Left              = 0",
                   "       RecordSource      = \"Orders\"", "         Top               = 3790",
                   "         Visible           = 0   ' False", "         Width             = 1440",
                   "      End   'Adodc1"}));
  EXPECT_EQ(main.state.intAdoCtlNum, 1);
  EXPECT_EQ(main.state.strIndent, "   ");
  EXPECT_FALSE(main.state.blnDataCtl);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(DataControls, CommandTypeAndSourceOfAnAdoDataControl) {
  EXPECT_EQ(adoSource({{"RecordSource", "Big Orders"}}),
            "1 \"SELECT * FROM Orders  WHERE Total > 100;\"");
  EXPECT_EQ(adoSource({{"RecordSource", "SELECT \"a\"\r\nFROM b"}}), "1 \"SELECT 'a'  FROM b\"");
  EXPECT_EQ(adoSource({{"RecordSource", "TRANSFORM x"}}), "1 \"TRANSFORM x\"");
  EXPECT_EQ(adoSource({{"RecordSource", ""}}), "8 \"\"");
  EXPECT_EQ(adoSource({{"RecordSource", nullptr}}), "8 \"\"");
  EXPECT_EQ(adoSource({{"RecordSource", "  "}}), "2 \"\"");
}

TEST_F(DataControls, ASourceThatNoLongerExistsIsAnEmptyText) {
  EXPECT_EQ(adoSource({{"RecordSource", "No Such Table"}}), "1 \"\"");
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(DataControls, TheOrderOfAFormJoinsTheSqlOfItsQueryThatHasNone) {
  EXPECT_EQ(adoSource({{"RecordSource", "Big Orders"}, {"OrderBy", "Total DESC"}}),
            "1 \"SELECT * FROM Orders  WHERE Total > 100; ORDER BY Total DESC\"");
  EXPECT_EQ(adoSource({{"RecordSource", "Sorted"}, {"OrderBy", "Total DESC"}}),
            "1 \"SELECT * FROM Orders ORDER BY OrderID;\"");
  EXPECT_EQ(adoSource({{"RecordSource", "Orders"}, {"OrderBy", "Total"}}),
            "2 \"Orders ORDER BY Total\"");
  EXPECT_EQ(adoSource({{"RecordSource", ""}, {"OrderBy", "Total"}}), "8 \" ORDER BY Total\"");
}

TEST_F(DataControls, ADataRepeaterOverATableSelectsAllOfIt) {
  main.state.mblnDataRepeater = true;
  EXPECT_EQ(adoSource({{"RecordSource", "Orders"}, {"OrderBy", "Total"}}),
            "1 \"SELECT * FROM Orders ORDER BY Total\"");
  EXPECT_EQ(adoSource({{"RecordSource", "SELECT 1"}}), "1 \"SELECT 1\"");
  EXPECT_EQ(adoSource({{"RecordSource", ""}}), "8 \"\"");
  main.state.blnInTab = true;
  EXPECT_EQ(adoSource({{"RecordSource", "Orders"}}), "2 \"SELECT * FROM Orders\"");
}

TEST_F(DataControls, ADataRepeaterOverAQueryPutsTheSameWordsInFrontOfItsSql) {
  main.state.mblnDataRepeater = true;
  EXPECT_EQ(adoSource({{"RecordSource", "Sorted"}}),
            "1 \"SELECT * FROM SELECT * FROM Orders ORDER BY OrderID;\"");
}

TEST_F(DataControls, ASourceThatCannotBeReadHasABoxAndItsRowIsMissing) {
  openSource({{"error", 2455}, {"description", "Invalid reference"}});
  EXPECT_EQ(mainForm().size(), 16u);
  EXPECT_EQ(onlyBox().text, "GetVbDataCtlProps() - Error #2455\r\nInvalid reference");
  const Lines lines = subform();
  EXPECT_EQ(lines.size(), 16u);
  EXPECT_EQ(linesWith(lines, "RecordSource"), Lines{});
  EXPECT_EQ(onlyBox().text, "GetSubFormDataCtlProps() - Error #2455\r\nInvalid reference");
}

TEST_F(DataControls, AnAdoDataControlWithoutAReadableSourceIsOneWithoutASource) {
  EXPECT_EQ(adoSource({{"RecordSource", {{"error", 2455}, {"description", "Invalid"}}}}), "8 \"\"");
  const Box box = onlyBox();
  EXPECT_EQ(box.text, "CreateAdoDataCtl() - Error #2455\r\nInvalid");
  EXPECT_EQ(box.style, 16);
}

TEST_F(DataControls, AnOrderOrAWidthThatCannotBeReadHasABoxAndChangesNothing) {
  openBound({{"RecordSource", "Orders"},
             {"OrderBy", {{"error", 2455}, {"description", "No order"}}},
             {"Width", {{"error", 2456}, {"description", "No width"}}}});
  main.state.intDataCtlNum = 1;
  const Lines lines = ado();
  EXPECT_EQ(valueOf(lines, "Left"), "1440");
  EXPECT_EQ(valueOf(lines, "RecordSource"), "\"Orders\"");
  ASSERT_EQ(user.boxes.size(), 2u);
  EXPECT_EQ(user.boxes[0].text, "CreateAdoDataCtl() - Error #2456\r\nNo width");
  EXPECT_EQ(user.boxes[1].text, "CreateAdoDataCtl() - Error #2455\r\nNo order");
}

TEST_F(DataControls, EveryLineThatCannotBeWrittenHasItsBox) {
  openSource("Orders");
  GetVbDataCtlProps(main);  // no file is open
  EXPECT_EQ(user.boxes.size(), 17u);
  clearBoxes();
  main.state.frmSubCurr = main.state.frmCurr;
  GetSubFormDataCtlProps(main);
  EXPECT_EQ(user.boxes.size(), 17u);
  clearBoxes();
  CreateAdoDataCtl(main, main.state.frmCurr);
  EXPECT_EQ(user.boxes.size(), 11u);
}

}  // namespace
}  // namespace tarrowin::test
