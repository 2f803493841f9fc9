// The DataRepeater of a continuous form: its block, its bindings, the two files of the conversion.
#include "forms/data_repeater.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "forms/container_forms.h"
#include "forms/printer_session.h"

namespace tarrowin::test {
namespace {

using container::beginnings;
using container::operator+;
using Lines = std::vector<std::string>;

Json bound(std::string_view name, int type, const Json& source, const Json& format = "") {
  return control(name, type, {{"ControlSource", source}, {"Format", format}});
}

Json without(Json entry, const char* property) {
  entry["properties"].erase(property);
  return entry;
}

Json refusal(int number) { return {{"error", number}, {"description", "Refused."}}; }

Lines binding(int k, const std::string& property, const std::string& field,
              const std::string& format = "") {
  return {"      BeginProperty RepeaterBinding(" + std::to_string(k) +
              ") {7D21A594-FC9B-11D0-A320-00AA00688B10}",
          "         _StreamID       =   -1412567295",
          "         _Version        =   65536",
          "         PropertyName = \"" + property + "\"",
          "         DataField = \"" + field + "\"",
          "         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}",
          "            Type            =   0",
          "            Format = \"" + format + "\"",
          "            HaveTrueFalseNull = 0",
          "            FirstDayOfWeek = 0",
          "            FirstWeekOfYear = 0",
          "            LCID = 1033",
          "            SubFormatType = 0",
          "         EndProperty",
          "      EndProperty"};
}

Lines count(int n) { return {"      RepeaterBindings =  " + std::to_string(n)}; }

const Lines kEnd = {"   End   ' DataRepeater1"};

class DataRepeater : public testing::Test, public PrinterSession {
 protected:
  // The whole block of a form with these controls.
  Lines block(const std::vector<Json>& controls, const Json& properties = Json::object()) {
    openForm(controls, properties);
    main.state.intClientHeight = 4365;
    main.state.strIndent = "   ";
    return output([this] { GetDataRepeaterProps(main); });
  }
  // From the number of bindings on.
  Lines bindings(const std::vector<Json>& controls) { return fromCount(block(controls)); }
  static Lines fromCount(const Lines& lines) {
    return {std::ranges::find_if(
                lines,
                [](const std::string& line) { return line.starts_with("      RepeaterBindings"); }),
            lines.end()};
  }
  void expectBoxes(const std::string& text, std::size_t number) {
    ASSERT_EQ(user.boxes.size(), number);
    for (const Box& box : user.boxes)
      EXPECT_EQ(box, (Box{16, text, "Access to Visual Basic Tarrowin"}));
  }
};

TEST_F(DataRepeater, TheWholeBlock) {
  EXPECT_EQ(block({bound("Item", 109, "Item Name", "Currency"), control("lbl", 100, at(0, 0)),
                   bound("Sold", 106, "Active", "Yes/No")}),
            (Lines{"   Begin MSDataRepeaterLib.DataRepeater DataRepeater1",
                   "      Bindings          = \"\"",
                   "      Caption           = \" DataRepeater1 \"",
                   "      DataSource        = \"Adodc1\"",
                   "      Height            = 4245",
                   "      Left              = 120",
                   "      Public            = -1   ' True",
                   "      Top               = 120",
                   "      Visible           = -1   ' True",
                   "      Width             = 8880",
                   "      BeginProperty RepeatedControlName",
                   "         Name = \"prjSales Form.ctl Sales Form\"",
                   "      EndProperty",
                   "      RepeaterBindings =  2",
                   "      BeginProperty RepeaterBinding(0) {7D21A594-FC9B-11D0-A320-00AA00688B10}",
                   "         _StreamID       =   -1412567295",
                   "         _Version        =   65536",
                   "         PropertyName = \"txtItem Name\"",
                   "         DataField = \"Item Name\"",
                   "         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}",
                   "            Type            =   0",
                   "            Format = \"Currency\"",
                   "            HaveTrueFalseNull = 0",
                   "            FirstDayOfWeek = 0",
                   "            FirstWeekOfYear = 0",
                   "            LCID = 1033",
                   "            SubFormatType = 0",
                   "         EndProperty",
                   "      EndProperty",
                   "      BeginProperty RepeaterBinding(1) {7D21A594-FC9B-11D0-A320-00AA00688B10}",
                   "         _StreamID       =   -1412567295",
                   "         _Version        =   65536",
                   "         PropertyName = \"chkActive\"",
                   "         DataField = \"Active\"",
                   "         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}",
                   "            Type            =   0",
                   "            Format = \"Yes/No\"",
                   "            HaveTrueFalseNull = 0",
                   "            FirstDayOfWeek = 0",
                   "            FirstWeekOfYear = 0",
                   "            LCID = 1033",
                   "            SubFormatType = 0",
                   "         EndProperty",
                   "      EndProperty",
                   "   End   ' DataRepeater1"}));
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(DataRepeater, AContinuousFormWithNoBoundControls) {
  EXPECT_EQ(bindings({control("txt", 109), control("lbl", 100)}), count(0) + kEnd);
  EXPECT_EQ(bindings({}), count(0) + kEnd);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(DataRepeater, ACalculatedTextBox) {
  EXPECT_EQ(bindings({bound("Today", 109, "=Date()"), bound("Item", 109, "Item")}),
            count(2) + binding(0, "", "") + binding(1, "txtItem", "Item") + kEnd);
}

TEST_F(DataRepeater, ACheckBoxBoundToAField) {
  EXPECT_EQ(bindings({bound("Sold", 106, "Active")}),
            count(1) + binding(0, "chkActive", "Active") + kEnd);
}

TEST_F(DataRepeater, TheNamesOfTheProperties) {
  struct Case {
    int type;
    const char *field, *property;
  };
  // A check box's field that has the prefix gets that of a text box.
  const Case cases[] = {{106, "chkActive", "txtchkActive"},
                        {106, "ChkActive", "chkChkActive"},
                        {106, "ch", "chkch"},
                        {106, "txtActive", "chktxtActive"},
                        {109, "chkActive", "txtchkActive"},
                        {109, "txtActive", "txttxtActive"},
                        {111, "City", "txtCity"},
                        {110, "City", "txtCity"},
                        {109, " ", "txt "},
                        {109, " =1", "txt =1"}};
  for (const auto& [type, field, property] : cases) {
    EXPECT_EQ(bindings({bound("c", type, field)}), count(1) + binding(0, property, field) + kEnd)
        << type << " " << field;
  }
  EXPECT_EQ(bindings({bound("c", 106, "=[a] And [b]")}), count(1) + binding(0, "", "") + kEnd);
}

TEST_F(DataRepeater, NineTypesOfControlsAreBound) {
  for (const int type : {105, 106, 107, 108, 109, 110, 111, 119, 122}) {
    const char* property = type == 106 ? "chkF" : "txtF";
    EXPECT_EQ(bindings({bound("c", type, "F")}), count(1) + binding(0, property, "F") + kEnd)
        << type;
  }
}

TEST_F(DataRepeater, NoOtherTypeIsBound) {
  for (const int type : {100, 101, 102, 103, 104, 112, 113, 114, 115, 118, 120, 121, 123, 124, 126})
    EXPECT_EQ(bindings({bound("c", type, "F")}), count(0) + kEnd) << type;
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(DataRepeater, ControlsInContainersAreBoundToo) {
  Json inGroup = bound("Choice", 106, "Paid");
  inGroup["parent"] = "grp";
  EXPECT_EQ(bindings({bound("grp", 107, "Method"), inGroup}),
            count(2) + binding(0, "txtMethod", "Method") + binding(1, "chkPaid", "Paid") + kEnd);
}

TEST_F(DataRepeater, SourcesThatBindNothing) {
  const Json odd[] = {bound("odd", 109, ""), bound("odd", 109, nullptr),
                      without(bound("odd", 109, ""), "ControlSource"),
                      bound("odd", 109, refusal(2455)), bound("odd", 109, refusal(438))};
  for (const Json& entry : odd) {
    EXPECT_EQ(bindings({bound("a", 109, "A"), entry, bound("b", 109, "B")}),
              count(2) + binding(0, "txtA", "A") + binding(1, "txtB", "B") + kEnd)
        << entry;
    EXPECT_TRUE(user.boxes.empty()) << entry;
  }
}

TEST_F(DataRepeater, AnUnusualErrorOfASourceHasABoxWhenCountedAndWhenBound) {
  EXPECT_EQ(bindings({bound("odd", 109, refusal(3000)), bound("b", 109, "B")}),
            count(1) + binding(0, "txtB", "B") + kEnd);
  expectBoxes("GetDataRepeaterProps() - Error #3000\r\nRefused.", 2);
}

TEST_F(DataRepeater, ErrorsOfOtherProceduresHaveABox) {
  for (const int number : {2186, 2452, 2459, 2462, 2465}) {
    bindings({bound("odd", 109, refusal(number))});
    expectBoxes("GetDataRepeaterProps() - Error #" + std::to_string(number) + "\r\nRefused.", 2);
  }
}

TEST_F(DataRepeater, AnUnreadableTypeBindsNothing) {
  Json odd = bound("odd", 109, "F");
  odd["properties"]["ControlType"] = refusal(3000);
  EXPECT_EQ(bindings({odd, bound("b", 109, "B")}), count(1) + binding(0, "txtB", "B") + kEnd);
  expectBoxes("GetDataRepeaterProps() - Error #3000\r\nRefused.", 2);
}

TEST_F(DataRepeater, ControlsThatCannotBeReadAreOneErrorOfEachPass) {
  EXPECT_EQ(fromCount(block({bound("a", 109, "A")}, {{"Controls", refusal(3000)}})),
            count(0) + kEnd);
  expectBoxes("GetDataRepeaterProps() - Error #3000\r\nRefused.", 2);
  clearBoxes();
  EXPECT_EQ(fromCount(block({bound("a", 109, "A")}, {{"Controls", refusal(2455)}})),
            count(0) + kEnd);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(DataRepeater, AFormatThatCannotBeReadLosesItsLineAlone) {
  constexpr std::ptrdiff_t kFormatLine = 7;
  Lines expected = binding(0, "txtF", "F");
  expected.erase(expected.begin() + kFormatLine);
  EXPECT_EQ(bindings({without(bound("c", 109, "F"), "Format")}), count(1) + expected + kEnd);
  EXPECT_TRUE(user.boxes.empty());
  EXPECT_EQ(bindings({bound("c", 109, "F", refusal(3000))}), count(1) + expected + kEnd);
  expectBoxes("GetDataRepeaterProps() - Error #3000\r\nRefused.", 1);
}

TEST_F(DataRepeater, AFormatIsPrintedAsItStands) {
  EXPECT_EQ(bindings({bound("a", 109, "A", nullptr), bound("b", 109, "B", " 0\"kg\" ")}),
            count(2) + binding(0, "txtA", "A") + binding(1, "txtB", "B", " 0\"kg\" ") + kEnd);
}

TEST_F(DataRepeater, AFormWithoutAWidthLosesThatLine) {
  const Lines whole = block({});
  for (const auto& [width, number] :
       {std::pair<Json, int>{refusal(2455), 0}, {refusal(2465), 2465}, {refusal(13), 13}}) {
    Lines expected = whole;
    EXPECT_EQ(std::erase(expected, "      Width             = 8880"), 1u);
    EXPECT_EQ(block({}, {{"Width", width}}), expected) << number;
    expectBoxes("GetDataRepeaterProps() - Error #" + std::to_string(number) + "\r\nRefused.",
                number == 0 ? 0 : 1);
  }
}

TEST_F(DataRepeater, ANarrowFormHasANegativeWidth) {
  EXPECT_EQ(linesWith(block({}, {{"Width", 100}}), "Width"),
            Lines{"      Width             = -20"});
}

class SubDataRepeater : public DataRepeater {
 protected:
  // The block of the subform "Sub Form", with these controls, in the place of its control.
  Lines subBlock(const std::vector<Json>& controls, bool nested = false) {
    Json database = emptyDatabase();
    database["forms"].push_back(form("Sub Form", controls));
    openForm({control("place", 112, at(700, 800))}, Json::object(), database);
    ConversionState& s = main.state;
    s.gappAccess.doCmd().OpenForm("Sub Form", access_constants::acDesign);
    s.frmSubCurr = s.gappAccess.Forms("Sub Form");
    s.intClientHeight = 4365;
    s.intSubHeight = 1500;
    s.intSubWidth = 2500;
    s.blnNestedSubForm = nested;
    return print(GetSubformDataRepeaterProps, "place");
  }
};

TEST_F(SubDataRepeater, TheWholeBlock) {
  // 800 in the Detail section, below a form header of 1000 and a page header of 200.
  EXPECT_EQ(
      subBlock({bound("Item", 109, "Item", "Fixed"), bound("Today", 109, "=Date()"),
                bound("Sold", 106, "Active")}),
      (Lines{"   Begin MSDataRepeaterLib.DataRepeater DataRepeater1",
             "      Bindings          = \"\"", "      Caption           = \" DataRepeater1 \"",
             "      DataSource        = \"Adodc1\"", "      Height            = 1500",
             "      Top               = 2000", "      Public            = -1   ' True",
             "      Left              = 700", "      Visible           = -1   ' True",
             "      Width             = 2500", "      BeginProperty RepeatedControlName",
             "         Name = \"prjSub Form.ctl Sub Form\"", "      EndProperty"}) +
          count(3) + binding(0, "txtItem", "Item", "Fixed") + binding(1, "", "=Date()") +
          binding(2, "chkActive", "Active") + kEnd);
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(SubDataRepeater, ANestedSubformHasNoName) {
  Lines expected = subBlock({});
  EXPECT_EQ(std::erase(expected, "         Name = \"prjSub Form.ctl Sub Form\""), 1u);
  EXPECT_EQ(subBlock({}, true), expected);
}

TEST_F(SubDataRepeater, SourcesThatCannotBeReadBindNothing) {
  EXPECT_EQ(fromCount(subBlock(
                {bound("odd", 109, refusal(2455)), control("none", 109), bound("b", 109, "B")})),
            count(1) + binding(0, "txtB", "B") + kEnd);
  EXPECT_TRUE(user.boxes.empty());
}

// A continuous form "Item List" of the table Orders, 9000 twips wide, with a Detail of 3000 twips.
Json continuous(std::string_view name, const std::vector<Json>& controls) {
  Json entry = form(name, controls);
  entry["properties"]["DefaultView"] = 1;
  entry["properties"]["RecordSource"] = "Orders";
  entry["properties"]["OrderBy"] = "";
  return entry;
}

Json placed(std::string_view name, int type, std::string_view source = "") {
  Json properties = at(10, 20);
  if (!source.empty()) properties["ControlSource"] = source;
  return control(name, type, properties);
}

class RepeaterConversion : public testing::Test, public FormSession {
 protected:
  void convertAll(const std::vector<Json>& forms, int option = 1) {
    Json database = emptyDatabase();
    database["tables"].push_back(
        {{"name", "Orders"}, {"fields", {{{"name", "Item"}, {"type", 10}, {"size", 50}}}}});
    database["forms"] = forms;
    openDatabase(database);
    main.window.optContinuous = option;
    std::vector<std::string> names;
    for (const Json& entry : forms) names.push_back(entry["name"].get<std::string>());
    convert(names);
  }
};

TEST_F(RepeaterConversion, TheUserControlAndTheFormThatHostsIt) {
  convertAll({continuous("Item List", {placed("lbl", 100), placed("Item", 109, "Item")})});
  EXPECT_EQ(lines("ctlItem_List.ctl"),
            (Lines{"VERSION 5.00",
                   "Begin VB.UserControl ctlItem_List",
                   "   Appearance    = 0",
                   "   BackColor     = 12632256",
                   "   ClientHeight  = 3120",
                   "   ClientLeft    = 60",
                   "   ClientTop     = 345",
                   "   ClientWidth   = 9000",
                   "   Enabled       = -1",
                   "   KeyPreview    = 0",
                   "   Tag           = \"\"",
                   "   Begin VB.Label lbl",
                   "      Enabled       = -1",
                   "      BeginProperty Font",
                   "      EndProperty",
                   "      Left          = 10",
                   "      Top           = 20",
                   "   End   'lbl",
                   "   Begin VB.TextBox txtItem",
                   "      DataField     = \"Item\"",
                   "      BeginProperty Font",
                   "      EndProperty",
                   "      Left          = 10",
                   "      Top           = 20",
                   "   End   'Item",
                   "End   ' UserControl ctlItem List",
                   "",
                   "Attribute VB_Creatable = True",
                   "Attribute VB_Exposed = True",
                   "",
                   "",
                   "Sub txtItem_Change()",
                   "   PropertyChanged \"Item\"",
                   "End Sub",
                   "Public Property Get Item() As Variant",
                   "   Attribute Item.VB_MemberFlags = \"14\"",
                   "   Item = txtItem.Text",
                   "End Property",
                   "Public Property Let Item(ByVal vNewValue As Variant)",
                   "   If CanPropertyChange(\"Item\") Then",
                   "      txtItem.Text = vNewValue",
                   "      PropertyChanged \"Item\"",
                   "   End If",
                   "End Property",
                   ""}));
  EXPECT_TRUE(std::ranges::none_of(user.boxes, [](const Box& box) { return box.style == 16; }));
  const Lines host = lines("Item_List.frm");
  ASSERT_GT(host.size(), 16u);
  EXPECT_EQ(host[1], "Begin VB.Form Item_List");
  EXPECT_EQ(beginnings(host),
            (Lines{"VB.Form Item_List", "MSDataRepeaterLib.DataRepeater DataRepeater1",
                   "MSAdodcLib.Adodc Adodc1", "VB.Label lbl", "VB.TextBox txtItem"}));
  EXPECT_EQ(container::linesWith(host, "      RepeaterBindings"), count(1));
  EXPECT_EQ(container::linesWith(host, "         Name = "),
            Lines{"         Name = \"prjItem List.ctl Item List\""});
  // The client area of 3120 twips, less 120.
  EXPECT_EQ(container::linesWith(host, "      Height            = "),
            Lines{"      Height            = 3000"});
}

TEST_F(RepeaterConversion, TheUserControlIsWrittenFirst) {
  convertAll({continuous("A", {placed("Item", 109, "Item")}),
              continuous("B", {placed("Item", 109, "Item")})});
  // From the first host on there is an ADO data control, which all later files refer to by its
  // number in the file: none in a user control.
  const std::string_view source = "      DataSource    = ";
  EXPECT_EQ(container::linesWith(lines("ctlA.ctl"), source), Lines{});
  EXPECT_EQ(container::linesWith(lines("A.frm"), source),
            Lines{"      DataSource    = \"Adodc1\""});
  EXPECT_EQ(container::linesWith(lines("ctlB.ctl"), source),
            Lines{"      DataSource    = \"Adodc0\""});
  EXPECT_EQ(container::linesWith(lines("B.frm"), source),
            Lines{"      DataSource    = \"Adodc1\""});
}

TEST_F(RepeaterConversion, ControlsCarryPrefixesInBothFiles) {
  convertAll(
      {continuous("F", {placed("a", 109), placed("b", 106), placed("c", 111), placed("d", 110),
                        placed("txtE", 109), placed("chkF", 109), placed("g", 105)})});
  const Lines names = {"VB.TextBox txta",  "VB.CheckBox chkb", "VB.ComboBox cboc",
                       "VB.ListBox lstd",  "VB.TextBox txtE",  "VB.TextBox txtchkF",
                       "VB.OptionButton g"};
  EXPECT_EQ(beginnings(lines("ctlF.ctl")), Lines{"VB.UserControl ctlF"} + names);
  EXPECT_EQ(beginnings(lines("F.frm")),
            (Lines{"VB.Form F", "MSDataRepeaterLib.DataRepeater DataRepeater1",
                   "MSAdodcLib.Adodc Adodc1"}) +
                names);
  EXPECT_EQ(container::linesWith(lines("ctlF.ctl"), "   End   '"),
            (Lines{"   End   'a", "   End   'b", "   End   'c", "   End   'd", "   End   'txtE",
                   "   End   'chkF", "   End   'g"}));
}

TEST_F(RepeaterConversion, ThePrefixesEndWithTheContinuousForm) {
  convertAll({continuous("A", {placed("Item", 109)}), form("B", {placed("Item", 109)})});
  EXPECT_EQ(beginnings(lines("B.frm")), (Lines{"VB.Form B", "VB.TextBox Item"}));
  EXPECT_FALSE(std::filesystem::exists(out() / "ctlB.ctl"));
}

TEST_F(RepeaterConversion, TheOtherOptionMakesNoUserControl) {
  convertAll({continuous("A", {placed("Item", 109)})}, 0);
  EXPECT_EQ(beginnings(lines("A.frm")), (Lines{"VB.Form A", "VB.Data Data1", "VB.TextBox Item"}));
  EXPECT_FALSE(std::filesystem::exists(out() / "ctlA.ctl"));
}

}  // namespace
}  // namespace tarrowin::test
