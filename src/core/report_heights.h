// The heights of a report's sections, in twips, and what they add up to.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/conversion_state.h"
#include "core/design_sections.h"
#include "core/statement.h"
#include "shared/vb_number.h"

namespace tarrowin {

// Access numbers of a report's sections from top to bottom: report header, page header, group
// headers from the outermost inward, Detail, group footers outward, page footer, report footer.
inline constexpr std::array<std::int32_t, 13> kReportStack = {1, 3, 5,  7,  9, 11, 0,
                                                              6, 8, 10, 12, 4, 2};

// What a report is higher than its sections, and the most that Visual Basic shows of it.
inline constexpr std::int16_t kReportMargin = 120;
inline constexpr std::int32_t kHighestReport = 11520;
// What stands for a height that does not fit 16 bits.
inline constexpr std::int32_t kOverflowedReportHeight = 32767;

// Reads each height in a statement of its own; 0 for a section that cannot be read.
inline void readReportHeights(Procedure& procedure, const LateBound& report,
                              ReportHeights& heights) {
  heights.fill(0);
  for (const std::int32_t number : kReportStack) {
    procedure.statement([&] {
      heights[static_cast<std::size_t>(number)] =
          toInteger(sectionOf(report, number).get("Height"));
    });
  }
}

// All heights and the margin in 16-bit arithmetic; raises 6 beyond it.
inline std::int16_t sumOfReportHeights(const ReportHeights& heights) {
  std::int16_t sum = 0;
  for (const std::int32_t number : kReportStack)
    sum = addInt16(sum, heights[static_cast<std::size_t>(number)]);
  return addInt16(sum, kReportMargin);
}

// Sets intRptHeights and lngReportHeight from the report.
inline void readReportHeights(Procedure& procedure, const LateBound& report,
                              ConversionState& state) {
  readReportHeights(procedure, report, state.intRptHeights);
  std::int32_t& total = state.lngReportHeight;
  try {
    total = sumOfReportHeights(state.intRptHeights);
  } catch (const VbError&) {
    total = kOverflowedReportHeight;
  }
  total = std::min(total, kHighestReport);
}

}  // namespace tarrowin
