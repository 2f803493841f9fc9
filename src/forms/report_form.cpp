// The header rows of a report, its walks, their closing lines.
#include "forms/report_form.h"

#include <string>

#include "core/report_heights.h"
#include "forms/control_dispatch.h"
#include "forms/control_walk.h"
#include "forms/form_header.h"

namespace tarrowin {

namespace {

void readHeights(Procedure& procedure, ConversionState& state) {
  readReportHeights(procedure, state.mrptCurr, state);
  state.intClientHeight = state.lngReportHeight;
}

void caption(const PrintedControl& report) {
  std::string& kept = report.state().strRptCaption;
  kept = cleanedCaption(report);
  printCaption(report, kept);
}

void clientHeight(const PrintedControl& report, std::string_view, std::string& line) {
  line += std::to_string(report.state().lngReportHeight);
}

constexpr PrinterRow kCaptionRows[] = {
    PrinterRow(caption),
    {"   ClientHeight  = ", clientHeight},
};

// A report has no keyboard.
constexpr HeaderKind kHeader = {"GetAccReportProps",
                                &ConversionState::mrptCurr,
                                &ConversionState::lngReportHeight,
                                readHeights,
                                kCaptionRows,
                                {}};

constexpr WalkKind reportWalk(std::string_view procedure,
                              void (*convert)(MainObject&, const LateBound&)) {
  return {.procedure = procedure,
          .design = &ConversionState::mrptCurr,
          .isLeftToContainer = isPrintedByContainer,
          .isIndented = isIndentedInContainer,
          .convert = convert,
          .asksForName = false};
}

constexpr WalkKind kReport = reportWalk("CreateVBReport", GetControlProps);
constexpr WalkKind kDataReport = reportWalk("CreateVBDataReport", GetReportControlProps);

}  // namespace

void GetAccReportProps(MainObject& main) { printHeader(main, kHeader); }

void CreateVBReport(MainObject& main) {
  convertWhole(main, kReport, [](ControlWalk& walk) { walk.print("End   ' Form Properties"); });
}

void CreateVBDataReport(MainObject& main) {
  convertWhole(main, kDataReport,
               [](ControlWalk& walk) { walk.print("End   ' Report Properties"); });
}

}  // namespace tarrowin
