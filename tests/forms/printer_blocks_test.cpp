// Every printer, whole and with each property missing, wherever its control stands.
#include <algorithm>
#include <cctype>
#include <sstream>
#include <utility>

#include <gtest/gtest.h>

#include "forms/printer_session.h"
#include "forms/report_form_session.h"

namespace tarrowin::test {
namespace {

constexpr int kLeft = 2000, kTop = 1500;

struct Position {
  int left, top;
};
// In the Detail section, below both headers.
constexpr Position kOnForm{kLeft, kTop + kFormHeaderHeight + kPageHeaderHeight};

// What stands above section n of a form.
constexpr int kOffsets[] = {
    kFormHeaderHeight + kPageHeaderHeight, 0,
    kFormHeaderHeight + kPageHeaderHeight + kDetailHeight + kPageFooterHeight, kFormHeaderHeight,
    kFormHeaderHeight + kPageHeaderHeight + kDetailHeight};

bool isWordCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }

// Whether the text holds the word or words, not as part of longer ones.
bool holdsWord(const std::string& text, const std::string& word) {
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
    const std::size_t end = at + word.size();
    const bool starts = at == 0 || !isWordCharacter(text[at - 1]);
    if (starts && (end == text.size() || !isWordCharacter(text[end]))) return true;
  }
  return false;
}

std::string shownAs(const Json& value) {
  return value.is_string() ? value.get<std::string>() : value.dump();
}

bool isFontLine(const std::string& line) {
  return line.starts_with("      BeginProperty") || line.starts_with("      EndProperty") ||
         line.starts_with("         ");
}

class PrinterBlocks : public testing::TestWithParam<PrinterCase>, public PrinterSession {
 protected:
  PrinterBlocks() {
    ConversionState& state = main.state;
    state.blnDataCtl = true;
    state.intAdoCtlNum = 3;
    state.intSubHeight = 7771;
    state.intSubWidth = 7772;
    state.astrDataMembers.append("first member");
    state.astrDataMembers.append("last member");
  }

  static Json properties() {
    Json all = Json::parse(GetParam().properties);
    all["Section"] = 0;
    return all;
  }

  static std::string text(const ExpectedLine& line, Position position) {
    switch (line.mark) {
      case Mark::kLeft:
        return line.text + std::to_string(position.left);
      case Mark::kTop:
        return line.text + std::to_string(position.top);
      case Mark::kRightEnd:
        return line.text + std::to_string(position.left + properties()["Width"].get<int>());
      default:
        return line.text;
    }
  }

  template <class Wanted>
  static std::vector<std::string> expected(Position position, Wanted&& wanted) {
    std::vector<std::string> lines;
    for (const ExpectedLine& line : GetParam().lines)
      if (wanted(line)) lines.push_back(text(line, position));
    return lines;
  }
  static std::vector<std::string> expected(Position position) {
    return expected(position, [](const ExpectedLine&) { return true; });
  }

  static std::vector<std::string> indented(std::vector<std::string> lines) {
    const Indent indent = GetParam().indent;
    for (std::string& line : lines)
      if (indent == Indent::kEveryLine || (indent == Indent::kFontOnly && isFontLine(line)))
        line = "   " + line;
    return lines;
  }

  std::vector<std::string> printCase(std::string_view name) {
    return print(GetParam().print, name);
  }
};

TEST_P(PrinterBlocks, AControlWithEveryPropertyPrintsItsRowsInTheirOrder) {
  openForm({control("ctl", GetParam().type, properties())});
  EXPECT_EQ(printCase("ctl"), expected(kOnForm));
  EXPECT_TRUE(user.boxes.empty());
}

TEST_P(PrinterBlocks, AMissingPropertyTakesTheRowsThatReadItAndNoOther) {
  std::vector<Json> controls;
  const Json all = Json::parse(GetParam().properties);
  for (const auto& [property, value] : all.items()) {
    Json without = properties();
    without.erase(property);
    controls.push_back(control("without " + property, GetParam().type, without));
  }
  openForm(controls);
  for (const auto& [property, value] : all.items()) {
    SCOPED_TRACE(property);
    clearBoxes();
    main.state.strIndent = "";
    const auto reads = [&](const ExpectedLine& line) {
      return holdsWord(line.reads, property) || holdsWord(line.text, shownAs(value));
    };
    // A position that cannot be read counts as 0, with a box each time.
    Position position = kOnForm;
    if (property == "Left") position.left = 0;
    if (property == "Top") position.top = 0;
    const auto lines = expected(position, [&](const ExpectedLine& line) { return !reads(line); });
    EXPECT_EQ(printCase("without " + property), lines);
    EXPECT_NE(lines, expected(kOnForm));
    const auto boxes = std::ranges::count_if(GetParam().lines, [&](const ExpectedLine& line) {
      return property == "Left" ? line.mark == Mark::kLeft || line.mark == Mark::kRightEnd
                                : property == "Top" && line.mark == Mark::kTop;
    });
    EXPECT_EQ(user.boxes.size(), static_cast<std::size_t>(boxes));
  }
}

TEST_P(PrinterBlocks, PropertiesThatAreFalsePrintZero) {
  Json all = properties();
  for (auto& [property, value] : all.items())
    if (value.is_boolean()) value = false;
  openForm({control("ctl", GetParam().type, all)});

  constexpr std::pair<std::string_view, std::string_view> kFalse[] = {
      {"-1  ' True", "0   'False"},
      {"-1  'True", "0   'False"},
      {"-1", "0"},
      {"1", "0"},
      {"True", "False"},
  };
  std::vector<std::string> lines;
  for (const ExpectedLine& line : GetParam().lines) {
    std::string text = PrinterBlocks::text(line, kOnForm);
    const std::string shown = line.reads.substr(line.reads.rfind(' ') + 1);
    if (all.contains(shown) && all[shown].is_boolean()) {
      for (const auto& [ifTrue, ifFalse] : kFalse) {
        if (!text.ends_with(ifTrue)) continue;
        text.replace(text.size() - ifTrue.size(), ifTrue.size(), ifFalse);
        break;
      }
    }
    lines.push_back(text);
  }
  EXPECT_EQ(printCase("ctl"), lines);
}

TEST_P(PrinterBlocks, InAnOptionGroup) {
  openForm({control("Group", 107, {{"Left", 400}, {"Top", 500}, {"Section", 0}}),
            control("ctl", GetParam().type, properties(), "Group")});
  main.state.blnInOptionGroup = true;
  main.state.strIndent = "   ";
  constexpr int kMembers[] = {100, 105, 106, 122};
  const bool isMember = std::ranges::count(kMembers, GetParam().type) == 1;
  const Position position =
      isMember ? Position{kLeft - 400, kTop - 500 + 120} : Position{kLeft, kTop};
  EXPECT_EQ(printCase("ctl"), indented(expected(position, [](const ExpectedLine& line) {
              return line.mark != Mark::kOutsideGroup;
            })));
}

TEST_P(PrinterBlocks, OnTheSecondPageOfATabControl) {
  const Json tab = {{"Left", 400}, {"Top", 500}, {"Section", 0}};
  openForm({control("Tab", 123, tab), control("Page 1", 124, tab, "Tab"),
            control("Page 2", 124, tab, "Tab"),
            control("ctl", GetParam().type, properties(), "Page 2")});
  main.state.blnInTab = true;
  main.state.intTabPageNum = 1;
  main.state.strIndent = "   ";
  EXPECT_EQ(printCase("ctl"), indented(expected({kLeft - 400 - 75000, kTop - 500})));
}

TEST_P(PrinterBlocks, InEachSection) {
  std::vector<Json> controls;
  for (int n = 0; n < 5; ++n) {
    Json there = properties();
    there["Section"] = n;
    controls.push_back(control("ctl" + std::to_string(n), GetParam().type, there));
  }
  openForm(controls);
  for (int n = 0; n < 5; ++n) {
    SCOPED_TRACE(n);
    main.state.strIndent = "";
    EXPECT_EQ(printCase("ctl" + std::to_string(n)), expected({kLeft, kTop + kOffsets[n]}));
  }
}

// Kinds of controls that forms alone know are placed as in a form.
TEST_P(PrinterBlocks, InEachSectionOfAReport) {
  constexpr std::string_view kAsInAForm[] = {"CommonDialog", "ImageCombo", "ImageList", "ListView",
                                             "ProgressBar",  "RichText",   "Slider",    "StatusBar",
                                             "TabStrip",     "ToolBar",    "TreeView"};
  const bool isPlacedAsInAForm = std::ranges::count(kAsInAForm, GetParam().name) == 1;
  std::vector<Json> controls;
  for (const StackedSection& there : kStack) {
    Json all = properties();
    all["Section"] = there.number;
    controls.push_back(control("ctl" + std::to_string(there.number), GetParam().type, all));
  }
  openForm(controls);
  main.state.mblnReportMode = true;
  main.state.mrptCurr = main.state.frmCurr;
  main.state.intRptHeights = thirteenHeights();
  for (const auto& [number, above] : kStack) {
    SCOPED_TRACE(number);
    main.state.strIndent = "";
    const std::string name = "ctl" + std::to_string(number);
    int top = kTop + above;
    // A form has no groups: their controls count from 0.
    if (isPlacedAsInAForm) top = number < 5 ? kTop + kOffsets[number] : 0;
    EXPECT_EQ(printCase(name), expected({kLeft, top}));
  }
}

std::string caseName(const testing::TestParamInfo<PrinterCase>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Standard, PrinterBlocks, testing::ValuesIn(standardPrinterCases()),
                         caseName);
INSTANTIATE_TEST_SUITE_P(Boxes, PrinterBlocks, testing::ValuesIn(boxPrinterCases()), caseName);
INSTANTIATE_TEST_SUITE_P(ActiveX, PrinterBlocks, testing::ValuesIn(activexPrinterCases()),
                         caseName);
INSTANTIATE_TEST_SUITE_P(ActiveXItems, PrinterBlocks, testing::ValuesIn(activexItemPrinterCases()),
                         caseName);
INSTANTIATE_TEST_SUITE_P(Grids, PrinterBlocks, testing::ValuesIn(gridPrinterCases()), caseName);

}  // namespace
}  // namespace tarrowin::test
