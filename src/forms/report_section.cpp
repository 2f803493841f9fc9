// The section stack of a report.
#include "forms/report_section.h"

#include "core/report_heights.h"
#include "forms/control_geometry.h"
#include "forms/control_position.h"

namespace tarrowin {

namespace {

std::int64_t stackAbove(const ReportHeights& heights, std::int32_t section) {
  std::int64_t above = 0;
  for (const std::int32_t number : kReportStack) {
    if (number == section) break;
    above += heights[static_cast<std::size_t>(number)];
  }
  return above;
}

std::int64_t heightAbove(const ConversionState& s, std::int32_t section) {
  if (s.blnInSubForm) return stackAbove(s.intSubRptHeights, section) + kSubFormFrame;
  return stackAbove(s.intRptHeights, section);
}

constexpr PositionKind kTop = {"Top", [](MainObject& main, const VbError& error) {
                                 main.errorBox("GetReportSection", error, main.state.strCtlName);
                               }};

}  // namespace

std::int64_t GetReportSection(MainObject& main, const LateBound& ctl) {
  ControlPosition position(main, ctl, kTop);
  position.readStacked(kReportStack, heightAbove);
  if (main.state.blnInOptionGroup || main.state.blnInTab) position.correctTop();
  return position.result();
}

}  // namespace tarrowin
