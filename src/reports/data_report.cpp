// The header rows, the walk over the sections, their error tables.
#include "reports/data_report.h"

#include <cmath>
#include <vector>

#include "forms/printer_rows.h"
#include "forms/value_rules.h"
#include "reports/data_member.h"
#include "reports/group_levels.h"
#include "reports/report_items.h"
#include "reports/report_procedure.h"
#include "reports/report_values.h"
#include "reports/section_block.h"
#include "reports/section_walk.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace value_rule;

constexpr ReportErrorTable kHeaderErrors = {"SetupVBReport", kReportSilent};
constexpr ReportErrorTable kFileErrors = {"GetAccDataReportProps", kReportSilent};

// The most that Visual Basic shows of a report and of its window, in twips.
constexpr std::int32_t kWidestReport = 11520, kWidestWindow = 15360;
// A page that a report of some width is centred on, and the margin of a wider one, in twips.
constexpr std::int32_t kPageWidth = 12240, kLeastMargin = 360;
// Less than this is not halved.
constexpr std::int32_t kLeastDifference = 2;

// Cleaned from its first to its last character that is no blank; a caption of blanks as it stands.
std::string cleanedCaption(const LateBound& report) {
  const std::string whole = report.text("Caption");
  std::string trimmed = Trim(whole);
  return trimmed.empty() ? whole : CleanText(std::move(trimmed));
}

void caption(const PrintedControl& report, std::string_view, std::string& line) {
  line += report.state().strRptCaption + '"';
}

// Three blanks before "'True", where the Italic line has two.
void underline(const PrintedControl& report, std::string_view property, std::string& line) {
  line += yesOrNo(isTrue(report.ctl.get(property)));
}

void margin(const PrintedControl& report, std::string_view, std::string& line) {
  line += std::to_string(GetReportMargin(report.ctl));
}

// clang-format off
constexpr PrinterRow kHeaderRows[] = {
    {"VERSION 5.00"},
    {"Begin {78E93846-85FD-11D0-8487-00A0C90DC8A9} ", baseName},
    {"   BorderStyle   = ",            raw,          "BorderStyle"},
    {"   Caption         = \"",        caption},
    {"   ClientHeight    = ",          reportHeight},
    {"   ClientLeft      = 60"},
    {"   ClientTop       = 345"},
    {"   ClientWidth     = ",          atMost<kWidestWindow>,  "Width"},
    {"   StartUpPosition = 3   'Windows Default"},
    {"   _Version        = 393216"},
    {"   ReportWidth     = ",          atMost<kWidestReport>,  "Width"},
    {"   BeginProperty Font"},
    {"      Name          = ",         quoted,       "FontName"},
    {"      Size          = ",         raw,          "FontSize"},
    {"      Weight        = ",         raw,          "FontWeight"},
    {"      Underline     = ",         underline,    "FontUnderline"},
    {"      Italic        = ",         trueOrFalse,  "FontItalic"},
    {"      Strikethrough = 0   'False"},
    {"   EndProperty"},
    {"   GridX         = ",            raw,          "GridX"},
    {"   GridY         = ",            raw,          "GridY"},
    {"   LeftMargin    = ",            margin},
    {"   RightMargin   = ",            margin},
    {"   TopMargin     = ",            margin},
    {"   BottomMargin  = ",            margin},
    {"   Title         = \"",          caption},
};
// clang-format on

// GetAccDataReportProps behind the header.
class DataReport {
 public:
  explicit DataReport(MainObject& main)
      : main_(main), state_(main.state), procedure_(main, kFileErrors) {}

  void write();

 private:
  void readRecordSource();
  void listSections();
  void printSection(std::int32_t place);
  void printVisible(std::int32_t place);
  void printMissing(std::int32_t place);
  void print(std::string_view line) {
    procedure_.statement([&] { main_.files.Print(kOutputFile, line); });
  }
  LateBound section() const { return sectionOf(state_.mrptCurr, section_); }

  MainObject& main_;
  ConversionState& state_;
  ReportProcedure procedure_;
  std::vector<std::int16_t> visible_{0};  // V: the sections to print, and one element behind
  std::int16_t section_ = 0;              // S: the section in hand
  std::int32_t controls_ = 0;             // of the last section that could tell
};

void DataReport::write() {
  readRecordSource();
  print("   DataMember    = \"" + state_.strDataMember + '"');
  const std::int16_t C = GetNumReportSections(state_.mrptCurr);
  print("   NumSections   = " + std::to_string(C));
  listSections();
  // The first element is passed over: in most reports it is the Detail.
  procedure_.statement([&] {
    if (visible_.size() < 2) raise(kErrSubscript);
    section_ = visible_[1];
  });
  const std::int16_t M = MaxOfArray(visible_);
  for (std::int32_t i = 0; i < C; ++i) {
    printSection(i);
    section_ = nextSection(section_, C, M, [&] { return GetNumGroupLevels(state_.mrptCurr); });
  }
  print("End  ' Data Report " + state_.mstrBaseName);
  state_.strCommandNames.clear();
  state_.gstrSourceTables.assign(2, "");
}

void DataReport::readRecordSource() {
  procedure_.statement([&] {
    std::string source = Trim(state_.mrptCurr.text("RecordSource"));
    if (isSqlText(source)) DoubleToSingleQuotes(RemoveLineBreaks(source));
    state_.strRecordSource = std::move(source);
  });
  forgetDataMembers(state_);
}

void DataReport::listSections() {
  for (std::int16_t n = 0; n < static_cast<std::int16_t>(kReportStack.size()); ++n) {
    procedure_.statement([&] {
      if (!isTrue(sectionOf(state_.mrptCurr, n).get("Visible"))) return;
      visible_.back() = n;
      visible_.push_back(0);
    });
  }
}

// Whether a section is visible counts as true when it cannot be read, unless there is no section.
void DataReport::printSection(std::int32_t place) {
  constexpr std::int32_t kErrNoSection = 2462;
  bool visible = true;
  const std::int32_t error =
      procedure_.errorOf([&] { visible = isTrue(section().get("Visible")); });
  if (error == kErrNoSection) {
    printMissing(place);
  } else if (visible) {
    printVisible(place);
  }
}

void DataReport::printVisible(std::int32_t place) {
  procedure_.statement([&] { state_.strSectionName = section().text("Name"); });
  PrintReportSection(main_, section_, place);
  procedure_.statement(
      [&] { controls_ = Collection<LateBound>(toObject(section().get("Controls"))).Count(); });
  print("      NumControls     = " + std::to_string(controls_));
  if (controls_ > 0) PrintReportSectionControls(main_, section_, controls_);
  print("   EndProperty   ' Section" + std::to_string(place));
}

void DataReport::printMissing(std::int32_t place) {
  state_.strSectionName = sectionKind(section_).name;
  PrintReportSection(main_, section_, place);
  print("      NumControls     = 0");
  print("   EndProperty   ' Section" + std::to_string(place));
}

}  // namespace

std::int32_t GetReportMargin(const LateBound& report) {
  const double difference = kPageWidth - toDouble(report.get("Width"));
  if (difference <= 0) return kLeastMargin;
  return difference > kLeastDifference ? toInt32(std::trunc(difference / 2)) : 0;
}

void SetupVBReport(MainObject& main) {
  ReportProcedure procedure(main, kHeaderErrors);
  readReportHeights(procedure, main.state.mrptCurr, main.state);
  // The caption of the report before stands where this one cannot be read.
  procedure.statement([&] { main.state.strRptCaption = cleanedCaption(main.state.mrptCurr); });
  const PrintedControl report{main, main.state.mrptCurr};
  for (const PrinterRow& row : kHeaderRows) {
    procedure.statement([&] { printRow(report, row, ""); });
  }
}

void GetAccDataReportProps(MainObject& main) {
  SetupVBReport(main);
  DataReport(main).write();
}

}  // namespace tarrowin
