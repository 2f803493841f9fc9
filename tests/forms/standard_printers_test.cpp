// The mappings and conditions of the intrinsic controls, and what they leave for the form's code.
#include <gtest/gtest.h>

#include "forms/control_printers.h"
#include "forms/printer_session.h"

namespace tarrowin::test {
namespace {

using Lines = std::vector<std::string>;

// The lines of a key that a printer prints for a control with one property of each of the values.
struct Mapping {
  Json value;
  Lines lines;
};
void expectMapping(Printer printer, int type, Json properties, const std::string& property,
                   std::string_view key, const std::vector<Mapping>& mappings) {
  for (const auto& [value, lines] : mappings) {
    PrinterSession session;
    properties[property] = value;
    EXPECT_EQ(linesWith(session.printOnly(printer, type, properties), key), lines)
        << property << " = " << value;
  }
}

TEST(StandardPrinters, AppearanceIsOneFromSpecialEffectTwoOn) {
  expectMapping(PrintTextBoxProps, 109, {}, "SpecialEffect", "Appearance",
                {{0, {"      Appearance    = 0"}},
                 {1, {"      Appearance    = 0"}},
                 {2, {"      Appearance    = 1"}},
                 {5, {"      Appearance    = 1"}},
                 {nullptr, {"      Appearance    = 0"}},
                 {"raised", {}}});
}

TEST(StandardPrinters, AlignmentOfAccessTurnsIntoThatOfVisualBasic) {
  expectMapping(PrintLabelProps, 100, {}, "TextAlign", "Alignment",
                {{0, {"      Alignment     = 0"}},
                 {1, {"      Alignment     = 0"}},
                 {2, {"      Alignment     = 2"}},
                 {3, {"      Alignment     = 1"}},
                 {4, {"      Alignment     = 0"}}});
}

TEST(StandardPrinters, AnEffectGivesABorderAndTheBorderStyleIsNotReadThen) {
  expectMapping(PrintTextBoxProps, 109, {{"SpecialEffect", 0}}, "BorderStyle", "BorderStyle",
                {{0, {"      BorderStyle   = 0"}}, {4, {"      BorderStyle   = 4"}}});
  expectMapping(PrintLineProps, 102, {{"BorderStyle", 3}}, "SpecialEffect", "BorderStyle",
                {{0, {"      BorderStyle = 3"}}, {1, {"      BorderStyle = 1"}}});
  expectMapping(PrintLineProps, 102, {}, "SpecialEffect", "BorderStyle",
                {{0, {}}, {1, {"      BorderStyle = 1"}}});
}

TEST(StandardPrinters, TheBorderOfAShapeIsNeverTransparent) {
  expectMapping(PrintRectangleProps, 101, {}, "BorderStyle", "BorderStyle",
                {{0, {"      BorderStyle = 1"}},
                 {1, {"      BorderStyle = 1"}},
                 {6, {"      BorderStyle = 6"}},
                 {nullptr, {"      BorderStyle = "}}});
}

TEST(StandardPrinters, TheBorderOfAnImageIsThereOrNot) {
  expectMapping(PrintImageProps, 103, {}, "BorderStyle", "BorderStyle",
                {{-1, {"      BorderStyle   = -1"}},
                 {0, {"      BorderStyle   = 0"}},
                 {1, {"      BorderStyle   = 1"}},
                 {7, {"      BorderStyle   = 1"}}});
}

TEST(StandardPrinters, TheBorderOfAnOleFrameIsCappedAtOne) {
  expectMapping(PrintOLEProps, 114, {}, "BorderStyle", "BorderStyle",
                {{-1, {"      BorderStyle   = -1"}},
                 {0, {"      BorderStyle   = 0"}},
                 {1, {"      BorderStyle   = 1"}},
                 {2, {"      BorderStyle   = 1"}}});
}

TEST(StandardPrinters, SizeModeKeepsClipStretchAndZoom) {
  expectMapping(PrintOLEProps, 114, {}, "SizeMode", "SizeMode",
                {{0, {"      SizeMode      = 0"}},
                 {1, {"      SizeMode      = 1"}},
                 {2, {"      SizeMode      = 2"}},
                 {3, {"      SizeMode      = 3"}},
                 {4, {"      SizeMode      = 2"}},
                 {nullptr, {"      SizeMode      = 2"}}});
}

TEST(StandardPrinters, DisplayTypeIsOneOrZero) {
  expectMapping(PrintOLEProps, 114, {}, "DisplayType", "DisplayType",
                {{true, {"      DisplayType   = 1"}},
                 {4, {"      DisplayType   = 1"}},
                 {0, {"      DisplayType   = 0"}}});
}

TEST(StandardPrinters, ATextOfBlanksIsPrintedAsItStands) {
  expectMapping(PrintTextBoxProps, 109, {}, "Tag", "Tag",
                {{"  ", {"      Tag           = \"  \""}},
                 {"", {"      Tag           = \"\""}},
                 {nullptr, {"      Tag           = \"\""}},
                 {" a\"b ", {"      Tag           = \" a'b \""}}});
}

TEST(StandardPrinters, AToolTipOfALabelIsItsTag) {
  PrinterSession session;
  const Lines lines =
      session.printOnly(PrintLabelProps, 100, {{"Tag", " a\"b "}, {"ToolTipText", "not read"}});
  EXPECT_EQ(linesWith(lines, "T"),
            (Lines{"      Tag           = \"a\"b\"", "      ToolTipText   = \" a'b \"",
                   "      Top           = 0"}));
}

TEST(StandardPrinters, ATextBoxWithACalculatedControlSourceHasAnEmptyDataField) {
  expectMapping(PrintTextBoxProps, 109, {}, "ControlSource", "DataField",
                {{"=[A]+[B]", {"      DataField     = \"\""}},
                 {" =[A]", {"      DataField     = \" =[A]\""}},
                 {"", {"      DataField     = \"\""}},
                 {nullptr, {"      DataField     = \"\""}},
                 {"Customer", {"      DataField     = \"Customer\""}}});
}

TEST(StandardPrinters, ATextBoxOfARunThatHadADataControlIsBoundToItWhateverItsOwnFormHas) {
  PrinterSession session;
  session.main.state.blnDataCtl = true;  // as an earlier form left it
  session.main.state.mblnAdoDataCtl = true;
  EXPECT_EQ(
      linesWith(session.printOnly(PrintTextBoxProps, 109, {{"ControlSource", "City"}}), "Data"),
      (Lines{"      DataField     = \"City\"", "      DataSource    = \"Data1\""}));
}

TEST(StandardPrinters, ATextBoxWithoutAnyDataControlHasItsFieldAlone) {
  PrinterSession session;
  EXPECT_EQ(
      linesWith(session.printOnly(PrintTextBoxProps, 109, {{"ControlSource", "City"}}), "Data"),
      Lines{"      DataField     = \"City\""});
}

TEST(StandardPrinters, ATextBoxWithAnAdoDataControlIsBoundToTheLastOne) {
  PrinterSession session;
  session.main.state.mblnAdoDataCtl = true;
  session.main.state.intAdoCtlNum = 2;
  EXPECT_EQ(
      linesWith(session.printOnly(PrintTextBoxProps, 109, {{"ControlSource", "City"}}), "Data"),
      (Lines{"      DataField     = \"City\"", "      DataSource    = \"Adodc2\""}));
}

TEST(StandardPrinters, ACheckBoxWithAnAdoDataControlHasNoDataField) {
  PrinterSession session;
  session.main.state.mblnAdoDataCtl = true;
  session.main.state.intAdoCtlNum = 1;
  session.openForm({control("chk", 106, {{"ControlSource", "Paid"}})});
  EXPECT_EQ(linesWith(session.print(PrintCheckBoxProps, "chk"), "Data"),
            Lines{"      DataSource    = \"Adodc1\""});
  session.main.state.blnInOptionGroup = true;
  EXPECT_EQ(linesWith(session.print(PrintCheckBoxProps, "chk"), "Data"), Lines{});
}

TEST(StandardPrinters, ACheckBoxWithoutAnyDataControlIsUnbound) {
  PrinterSession session;
  EXPECT_EQ(
      linesWith(session.printOnly(PrintCheckBoxProps, 106, {{"ControlSource", "Paid"}}), "Data"),
      Lines{});
}

TEST(StandardPrinters, AFrameIsBoundWhenItIsOfTheBoundKindAndElseByItsRowSource) {
  struct Case {
    int type;
    bool dataCtl;
    Json rowSource;
    Lines lines;
  };
  const std::string field = "      DataField     = \"Photo\"";
  const std::string source = "      DataSource    = \"Data1\"";
  const Case cases[] = {{108, true, "Orders", {field, source}},
                        {108, false, "Orders", {source}},
                        {108, false, "", {}},
                        {114, true, "Orders", {source}},
                        {114, true, nullptr, {}},
                        {114, false, 0, {source}}};
  for (const Case& c : cases) {
    PrinterSession session;
    session.main.state.blnDataCtl = c.dataCtl;
    EXPECT_EQ(linesWith(session.printOnly(PrintObjectFrameProps, c.type,
                                          {{"ControlSource", "Photo"}, {"RowSource", c.rowSource}}),
                        "Data"),
              c.lines);
    EXPECT_EQ(linesWith(session.print(PrintOLEProps, "ctl"), "Data"),
              c.type == 108 && c.dataCtl ? (Lines{field, source}) : Lines{});
  }
}

TEST(StandardPrinters, ALabelWithBackStyleZeroInTheFormFooterHasTheColourOfSectionTwo) {
  PrinterSession session;
  const Lines lines = session.printOnly(PrintLabelProps, 100,
                                        {{"BackStyle", 0}, {"BackColor", 255}, {"Section", 2}});
  EXPECT_EQ(linesWith(lines, "Back"),
            (Lines{"      BackColor     = 50102", "      BackStyle     = 0"}));
}

TEST(StandardPrinters, ATransparentLabelOfASectionThatTheFormLacksHasNoBackColor) {
  PrinterSession session;
  const Lines lines = session.printOnly(PrintLabelProps, 100,
                                        {{"BackStyle", 0}, {"BackColor", 255}, {"Section", 7}});
  EXPECT_EQ(linesWith(lines, "BackColor"), Lines{});
}

TEST(StandardPrinters, ACommandButtonInAnOptionGroupHasNoCancelDefaultAndTabStopRows) {
  PrinterSession session;
  session.main.state.blnInOptionGroup = true;
  const Lines lines = session.printOnly(
      PrintCommandButtonProps, 104,
      {{"Cancel", true}, {"Default", true}, {"TabStop", true}, {"Enabled", true}});
  for (const char* key : {"Cancel", "Default", "TabStop"})
    EXPECT_EQ(linesWith(lines, key), Lines{});
  EXPECT_EQ(linesWith(lines, "Enabled"), Lines{"      Enabled       = -1"});
}

TEST(StandardPrinters, ACommandButtonWithAnEmbeddedPictureHasNoStyleRowAtAll) {
  PrinterSession session;
  EXPECT_EQ(linesWith(session.printOnly(PrintCommandButtonProps, 104, {{"Picture", "(bitmap)"}}),
                      "Style"),
            Lines{});
  EXPECT_FALSE(session.main.state.blnHasPictures);
  EXPECT_EQ(session.main.state.astrPictureCode.count(), 0);
}

TEST(StandardPrinters, ACommandButtonWithAnEmptyPictureHasStyleZero) {
  for (const Json& picture : {Json(""), Json(nullptr), Json({{"error", 2455}})}) {
    PrinterSession session;
    EXPECT_EQ(
        linesWith(session.printOnly(PrintCommandButtonProps, 104, {{"Picture", picture}}), "Style"),
        Lines{"      Style         = 0"});
    EXPECT_FALSE(session.main.state.blnHasPictures);
  }
}

TEST(StandardPrinters, ACommandButtonWithAPictureFileLoadsItAtRunTime) {
  PrinterSession session;
  session.main.state.strIndent = "   ";
  const Lines lines =
      session.printOnly(PrintCommandButtonProps, 104,
                        {{"TabStop", true}, {"Picture", "C:\\Pictures\\go.bmp"}, {"Tag", "x"}});
  EXPECT_EQ(linesWith(lines, "TabStop"), Lines{"         TabStop       = -1"});
  const auto style = std::find(lines.begin(), lines.end(), "         Style         = 1");
  ASSERT_NE(style, lines.end());
  EXPECT_EQ(style[-1], "         TabStop       = -1");
  EXPECT_EQ(style[1], "         Tag           = \"x\"");
  ASSERT_EQ(session.main.state.astrPictureCode.count(), 1);
  EXPECT_EQ(session.main.state.astrPictureCode[1],
            "My_Control.Picture = LoadPicture(\"C:\\Pictures\\go.bmp\")");
  EXPECT_TRUE(session.main.state.blnHasPictures);
}

TEST(StandardPrinters, ThePictureOfAnImageAndTheSourceOfAFrameLeaveAStatementAndNoRow) {
  struct Case {
    Printer printer;
    int type;
    const char* property;
  };
  for (const Case& c :
       {Case{PrintImageProps, 103, "Picture"}, Case{PrintObjectFrameProps, 114, "SourceDoc"},
        Case{PrintSubFormFrameProps, 112, "SourceDoc"}}) {
    SCOPED_TRACE(c.property);
    PrinterSession session;
    session.openForm({control("plain", c.type), control("file", c.type, {{c.property, "a.bmp"}}),
                      control("embedded", c.type, {{c.property, "(bitmap)"}})});
    const Lines plain = session.print(c.printer, "plain");
    EXPECT_EQ(session.print(c.printer, "embedded"), plain);
    EXPECT_FALSE(session.main.state.blnHasPictures);
    EXPECT_EQ(session.print(c.printer, "file"), plain);
    EXPECT_TRUE(session.main.state.blnHasPictures);
    ASSERT_EQ(session.main.state.astrPictureCode.count(), 1);
    EXPECT_EQ(session.main.state.astrPictureCode[1], "My_Control.Picture = LoadPicture(\"a.bmp\")");
  }
}

TEST(StandardPrinters, TheNamesOfADataRepeaterHaveAPrefixInTheirFirstLineAlone) {
  struct Case {
    Printer printer;
    const char* name;
    const char* begin;
  };
  for (const Case& c : {Case{PrintTextBoxProps, "City", "   Begin VB.TextBox txtCity"},
                        Case{PrintTextBoxProps, "txtCity", "   Begin VB.TextBox txtCity"},
                        Case{PrintTextBoxProps, "TxtCity", "   Begin VB.TextBox txtTxtCity"},
                        Case{PrintCheckBoxProps, "Paid", "   Begin VB.CheckBox chkPaid"},
                        Case{PrintLabelProps, "Paid", "   Begin VB.Label Paid"}}) {
    PrinterSession session;
    session.main.state.mblnDataRepeater = true;
    session.openForm({control("ctl", 109)});
    session.main.state.strCtlName = c.name;
    const Lines lines = session.print(c.printer, "ctl");
    EXPECT_EQ(lines.front(), c.begin);
    EXPECT_EQ(lines.back(), std::string("   End   '") + c.name);
  }
}

TEST(StandardPrinters, ARectangleWithBorderStyleZeroIsSolid) {
  PrinterSession session;
  EXPECT_EQ(
      linesWith(session.printOnly(PrintRectangleProps, 101, {{"BorderStyle", 0}}), "BorderStyle"),
      Lines{"      BorderStyle = 1"});
}

TEST(StandardPrinters, ALineWithBorderWidthZeroHasNoBorderWidthRow) {
  expectMapping(PrintLineProps, 102, {}, "BorderWidth", "BorderWidth",
                {{0, {}}, {1, {"      BorderWidth = 1"}}, {nullptr, {}}});
}

TEST(StandardPrinters, TheEndOfALineNeedsANumberAsWidth) {
  expectMapping(PrintLineProps, 102, {{"Left", 100}}, "Width", "X2",
                {{50, {"      X2          = 150"}}, {nullptr, {}}, {"wide", {}}});
}

TEST(StandardPrinters, APageBreakIsAShapeWithTheRowsThatItHas) {
  PrinterSession session;
  session.openForm(
      {control("brk", 118, {{"Left", 60}, {"Top", 700}, {"Section", 0}, {"Tag", ""}})});
  EXPECT_EQ(
      session.print(PrintRectangleProps, "brk"),
      (Lines{"   Begin VB.Shape My_Control", "      Left        = 60", "      Tag         = \"\"",
             "      Top           = 1900", "   End   'My_Control"}));
}

TEST(StandardPrinters, ATextThatWasNotCleanedIsNeverThatOfAnotherRow) {
  PrinterSession session;
  const Lines lines = session.printOnly(PrintTextBoxProps, 109,
                                        {{"Tag", "first"}, {"ToolTipText", {{"error", 2455}}}});
  EXPECT_EQ(linesWith(lines, "Tag"), Lines{"      Tag           = \"first\""});
  EXPECT_EQ(linesWith(lines, "ToolTipText"), Lines{});
}

}  // namespace
}  // namespace tarrowin::test
