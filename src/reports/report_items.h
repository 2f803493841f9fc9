// The items of a section in the Data Report.
#pragma once

#include <cstdint>

namespace tarrowin {

struct MainObject;

// Prints items 0 to intNumRptSectionControls - 1 of section intSectionNum (Access's number) of
// mrptCurr.
void PrintReportSectionControls(MainObject& main, std::int32_t intSectionNum,
                                std::int32_t intNumRptSectionControls);

}  // namespace tarrowin
