// The rows of an item, by what it is, and the error table.
#include "reports/report_items.h"

#include <optional>
#include <span>
#include <string>

#include "forms/control_types.h"
#include "forms/printer_rows.h"
#include "forms/value_rules.h"
#include "reports/data_member.h"
#include "reports/item_types.h"
#include "reports/report_procedure.h"
#include "reports/report_values.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace value_rule;

constexpr ReportErrorTable kErrors = {"PrintReportSectionControls", kReportDataSilent, true};

// A section asked for a control behind its last one.
constexpr std::int32_t kErrNoControl = 2467;
// Its items take the grouping member of the Data Environment.
constexpr std::int32_t kFirstGroupHeader = 5;
constexpr std::int32_t kDefaultLocale = 1024, kEnglishLocale = 1033;

void itemName(const PrintedControl& control, std::string_view property, std::string& line) {
  line += MakeVBName(control.ctl.text(property)) + '"';
}

void itemCaption(const PrintedControl& control, std::string_view property, std::string& line) {
  line += DoubleToSingleQuotes(RemoveLineBreaks(control.ctl.text(property))) + '"';
}

void format(const PrintedControl& control, std::string_view property, std::string& line) {
  const std::string text = control.ctl.text(property);
  if (!text.starts_with('=')) line += text;
  line += '"';
}

void locale(const PrintedControl& control, std::string_view property, std::string& line) {
  line += std::to_string(control.ctl.text(property).empty() ? kDefaultLocale : kEnglishLocale);
}

// clang-format off
// Behind "ItemType" and "BeginProperty Item".
constexpr PrinterRow kHeadRows[] = {
    {"         _Version        = 393216"},
    {"         Name            = \"", itemName, "Name"},
    {"         Object.Left     = ",   left},
    {"         Object.Top      = ",   raw,      "Top"},
    {"         Object.Width    = ",   raw,      "Width"},
};
constexpr PrinterRow kHeightRow =
    {"         Object.Height   = ",   raw,      "Height"};

constexpr PrinterRow kFontRows[] = {
    {"         BeginProperty Font"},
    {"            Name          = ", quoted,      "FontName"},
    {"            Size          = ", raw,         "FontSize"},
    {"            Charset       = 0"},
    {"            Weight        = ", raw,         "FontWeight"},
    {"            Underline     = ", trueOrFalse, "FontUnderline"},
    {"            Italic        = ", trueOrFalse, "FontItalic"},
    {"            Strikethrough = 0   'False"},
    {"         EndProperty"},
};

constexpr PrinterRow kCaptionRow =
    {"         Object.Caption  = \"", itemCaption, "Caption"};
constexpr PrinterRow kAlignmentRow =
    {"         Alignment       = ",  raw,          "TextAlign"};

constexpr PrinterRow kFormatRows[] = {
    {"         BeginProperty DataFormat"},
    {"            Type             = 0"},
    {"            Format           = \"", format, "Format"},
    {"            HaveTrueFalseNull= 0"},
    {"            FirstDayOfWeek   = 0"},
    {"            FirstWeekOfYear  = 0"},
    {"            LCID             = ",  locale,  "Format"},
    {"         EndProperty   ' DataFormat"},
};
// clang-format on

// The items of one section, one after the other. What a failed statement leaves is what an item
// before it left.
class SectionItems {
 public:
  SectionItems(MainObject& main, std::int32_t section)
      : main_(main), state_(main.state), section_(section), procedure_(main, kErrors) {}

  void print(std::int32_t item) {
    takeControl(item);
    classify();
    if (isAllowed(type_, section_)) {
      printAllowed(item);
    } else {
      printReplacement(item);
    }
    line([&] { return "      EndProperty   ' Item" + std::to_string(item); });
  }

 private:
  void takeControl(std::int32_t item);
  void classify();
  void printAllowed(std::int32_t item);
  void printReplacement(std::int32_t item);
  void printHead(std::int32_t item, bool withHeight);
  void printDataField();
  void printFunctionType();
  void printDataMember();

  void rows(std::span<const PrinterRow> rows) {
    const PrintedControl control{main_, ctl_};
    for (const PrinterRow& row : rows) {
      procedure_.statement([&] { printRow(control, row, ""); });
    }
  }
  void row(const PrinterRow& one) { rows({&one, 1}); }
  template <class Text>
  void line(Text&& text) {
    procedure_.statement([&] { main_.files.Print(kOutputFile, text()); });
  }
  bool isCalculated() const { return source_.starts_with('='); }

  MainObject& main_;
  ConversionState& state_;
  std::int32_t section_;
  ReportProcedure procedure_;
  LateBound ctl_;
  std::string source_;  // ControlSource of a text box, empty for all others
  ItemType type_ = ItemType::kShape;
  std::string field_;  // what the item's data member is found by
  std::int32_t functionType_ = 0;
};

void SectionItems::takeControl(std::int32_t item) {
  const auto take = [&](const LateBound& holder) {
    ctl_ = Collection<LateBound>(toObject(holder.get("Controls")))(item);
  };
  const std::int32_t error =
      procedure_.errorOf([&] { take(sectionOf(state_.mrptCurr, section_)); });
  if (error == kErrNoControl) procedure_.statement([&] { take(state_.mrptCurr); });
}

void SectionItems::classify() {
  std::int32_t controlType = 0;
  procedure_.statement([&] { controlType = ctl_.number("ControlType"); });
  source_.clear();
  if (controlType == control_type::kTextBox) {
    procedure_.statement([&] { source_ = ctl_.text("ControlSource"); });
  }
  type_ = itemTypeOf(controlType, source_);
}

void SectionItems::printAllowed(std::int32_t item) {
  printHead(item, type_ != ItemType::kLine);
  if (hasFont(type_)) rows(kFontRows);
  if (type_ == ItemType::kLabel) {
    row(kCaptionRow);
    row(kAlignmentRow);
  }
  if (!isBound(type_)) return;
  printDataField();
  rows(kFormatRows);
  if (type_ == ItemType::kFunction) printFunctionType();
  printDataMember();
}

// A text box where the designer takes none: a label that stands for the date, the time or the page
// number, else a shape.
void SectionItems::printReplacement(std::int32_t item) {
  const PlaceholderRow* placeholder = placeholderFor(source_);
  type_ = placeholder ? ItemType::kLabel : ItemType::kShape;
  printHead(item, true);
  if (!placeholder) return;
  rows(kFontRows);
  line([&] { return "         Object.Caption  = \"" + std::string(placeholder->caption) + '"'; });
  row(kAlignmentRow);
}

void SectionItems::printHead(std::int32_t item, bool withHeight) {
  const std::string place = std::to_string(item);
  line([&] {
    return "      ItemType" + place + " = " + std::to_string(static_cast<std::int32_t>(type_));
  });
  line([&] { return "      BeginProperty Item" + place; });
  rows(kHeadRows);
  if (withHeight) row(kHeightRow);
}

void SectionItems::printDataField() {
  if (isCalculated()) procedure_.statement([&] { field_ = betweenBrackets(source_); });
  const std::string& field = isCalculated() ? field_ : source_;
  line([&] { return "         DataField       = \"" + field + '"'; });
}

void SectionItems::printFunctionType() {
  procedure_.statement([&] { functionType_ = functionTypeOf(source_); });
  line([&] { return "         FunctionType   = " + std::to_string(functionType_); });
}

void SectionItems::printDataMember() {
  if (!isCalculated()) {
    procedure_.statement([&] { field_ = MakeVBName(ctl_.text("Name")); });
  }
  std::optional<std::string> member;
  if (section_ == kFirstGroupHeader) {
    member = state_.strDataMember;
  } else {
    member = dataMemberOf(main_, procedure_, field_);
  }
  if (member) line([&] { return "         DataMember  = \"" + *member + '"'; });
}

}  // namespace

void PrintReportSectionControls(MainObject& main, std::int32_t intSectionNum,
                                std::int32_t intNumRptSectionControls) {
  SectionItems items(main, intSectionNum);
  for (std::int32_t i = 0; i < intNumRptSectionControls; ++i) items.print(i);
}

}  // namespace tarrowin
