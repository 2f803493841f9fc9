// What is special about single ActiveX controls and grids.
#include <gtest/gtest.h>

#include "forms/control_printers.h"
#include "forms/printer_session.h"

namespace tarrowin::test {
namespace {

using Lines = std::vector<std::string>;

TEST(ActivexPrinters, AListViewPutsAMinusInFrontOfItsColours) {
  PrinterSession session;
  const Lines lines =
      session.printOnly(PrintListViewProps, 119, {{"BackColor", 255}, {"ForeColor", -2147483640}});
  EXPECT_EQ(linesWith(lines, "BackColor"), Lines{"      BackColor     = -255"});
  EXPECT_EQ(linesWith(lines, "ForeColor"), Lines{"      ForeColor     = --2147483640"});
}

TEST(ActivexPrinters, ACalendarWithoutStrikethroughLosesTheRowInAllThreeFontBlocks) {
  PrinterSession session;
  session.openForm({control("ctl", 119,
                            {{"FontName", "Arial"},
                             {"FontItalic", false},
                             {"FontSize", 8},
                             {"FontUnderline", false},
                             {"FontWeight", 400}})});
  const Lines lines = session.print(PrintCalendarProps, "ctl");
  EXPECT_EQ(linesWith(lines, "Strikethrough"), Lines{});
  Lines blocks;
  for (const char* head : {"DayFont", "GridFont", "TitleFont"}) {
    blocks.push_back(std::string("         BeginProperty ") + head);
    for (const char* row : {"Name       = \"Arial\"", "Italic     = 0", "Size       = 8",
                            "Underline  = 0", "Weight     = 400"})
      blocks.push_back(std::string("            ") + row);
    blocks.push_back("         EndProperty");
  }
  blocks.push_back("   End   'My_Control");
  ASSERT_GE(lines.size(), blocks.size());
  EXPECT_EQ(Lines(lines.end() - static_cast<std::ptrdiff_t>(blocks.size()), lines.end()), blocks);
}

TEST(ActivexPrinters, ACalendarLeavesTheIndentAtThreeBlanks) {
  PrinterSession session;
  session.main.state.strIndent = "      ";
  session.printOnly(PrintCalendarProps, 119, Json::object());
  EXPECT_EQ(session.main.state.strIndent, "   ");
}

TEST(ActivexPrinters, OnASecondPageOnlyTheRawLeftStaysInView) {
  const Json place = {{"Left", 400}, {"Top", 500}, {"Section", 0}};
  PrinterSession session;
  session.openForm({control("Tab", 123, place), control("Page 1", 124, place, "Tab"),
                    control("Page 2", 124, place, "Tab"),
                    control("ctl", 119, at(2000, 1500), "Page 2")});
  session.main.state.blnInTab = true;
  session.main.state.intTabPageNum = 1;
  const auto left = [&](Printer printer) {
    const Lines lines = linesWith(session.print(printer, "ctl"), "Left ");
    return lines.size() == 1 ? lines[0].substr(lines[0].find('=')) : "";
  };
  for (Printer printer : {PrintCalendarProps, PrintCommonDialogProps, PrintTreeViewProps})
    EXPECT_EQ(left(printer), "= 2000");
  for (Printer printer :
       {PrintImageComboProps, PrintImageListProps, PrintListViewProps, PrintProgressBarProps,
        PrintRichTextProps, PrintSliderProps, PrintStatusBarProps, PrintTabStripProps,
        PrintToolBarProps, PrintADODataCtlProps, PrintGridControlProps})
    EXPECT_EQ(left(printer), "= -73400");
}

TEST(ActivexPrinters, AControlWithoutAFontHasAnEmptyFontBlock) {
  PrinterSession session;
  const Lines lines = session.printOnly(PrintStatusBarProps, 119, {{"Enabled", true}});
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 3),
            (Lines{"      Enabled       = -1", "      BeginProperty Font", "      EndProperty"}));
}

TEST(ActivexPrinters, ARealDataControlHasNoCursorTypeRow) {
  PrinterSession session;
  const Lines lines =
      session.printOnly(PrintADODataCtlProps, 119, {{"CursorType", 3}, {"ConnectMode", 8}});
  EXPECT_EQ(linesWith(lines, "CursorType"), Lines{});
  EXPECT_EQ(linesWith(lines, "CursorLocation"), Lines{"      CursorLocation    = 8"});
}

TEST(ActivexPrinters, AGridWithoutDataMembersHasAnEmptyOne) {
  PrinterSession session;
  EXPECT_EQ(linesWith(session.printOnly(PrintMSHFlexGridProps, 112, Json::object()), "DataMember"),
            Lines{"      DataMember     = "});
}

}  // namespace
}  // namespace tarrowin::test
