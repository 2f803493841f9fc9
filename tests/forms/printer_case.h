// What a printer prints for a control with every property that it reads, each of a value of its
// own, so that a line tells by its value which property it shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/main_object.h"

namespace tarrowin::test {

enum class Mark {
  kPlain,
  kLeft,  // the position is to be put behind the text
  kTop,
  kRightEnd,  // Left and Width
  kOutsideGroup,
};

// Which lines strIndent stands in front of.
enum class Indent { kEveryLine, kFontOnly, kNone };

struct ExpectedLine {
  std::string text;
  std::string reads = {};  // properties whose value does not show as it is, with blanks between
  Mark mark = Mark::kPlain;
};

using Printer = void (*)(MainObject& main, const LateBound& ctl);

// Under the flags blnDataCtl, intAdoCtlNum 3, intSubHeight 7771, intSubWidth 7772, and the data
// members "first member" and "last member". Left is 2000, Top 1500.
struct PrinterCase {
  std::string name;
  Printer print;
  int type;  // ControlType
  Indent indent;
  std::string_view properties;  // JSON
  std::vector<ExpectedLine> lines;
};

std::vector<PrinterCase> standardPrinterCases();
std::vector<PrinterCase> boxPrinterCases();
std::vector<PrinterCase> activexPrinterCases();
std::vector<PrinterCase> activexItemPrinterCases();
std::vector<PrinterCase> gridPrinterCases();

}  // namespace tarrowin::test
