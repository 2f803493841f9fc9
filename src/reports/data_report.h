// The Data Report designer file of a report: header, sections, closing line. What it reads is
// mrptCurr, as it is open in Access.
#pragma once

#include <cstdint>
#include <string>

#include "core/access_objects.h"

namespace tarrowin {

struct MainObject;

// The margin on all four sides, in twips: half of what the report is narrower than a page of 12240
// twips, 360 when it is not. Raises what reading Width raises.
std::int32_t GetReportMargin(const LateBound& report);

// Prints the header, from "VERSION 5.00" to the Title line; sets the heights and strRptCaption.
void SetupVBReport(MainObject& main);

// Prints the whole file but the code behind the report. Sets strRecordSource; empties
// strCommandNames and gstrSourceTables.
void GetAccDataReportProps(MainObject& main);

}  // namespace tarrowin
